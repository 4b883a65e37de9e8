// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <exception>
#include <new>

#include "base/Log.h"
#include "base/WaveData.h"
#include "waves/WavOperations.h"

namespace sprout {

/// The result of render(), or an empty wave if it fails. If memory runs out, the sound itself is fine: std::bad_alloc
/// passes through, so the user is told and the next request renders the sound again.
template <class Render>
WaveData QuietRender(Render render)
{
    try {
        return render();
    } catch (const std::bad_alloc&) {
        throw;
    } catch (const std::exception& error) {
        LogFailure("Rendering a sound", error);
        return EmptyWave();
    }
}

} // namespace sprout
