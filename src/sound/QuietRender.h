// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <exception>
#include <new>

#include "base/WaveData.h"
#include "waves/WavOperations.h"

namespace sprout {

/// The result of render(), an empty wave where it fails. Where memory runs out the sound itself is well: std::bad_alloc
/// passes, so that the user is told and the sound is rendered when it is asked for again.
template <class Render>
WaveData QuietRender(Render render)
{
    try {
        return render();
    } catch (const std::bad_alloc&) {
        throw;
    } catch (const std::exception&) {
        return EmptyWave();
    }
}

} // namespace sprout
