// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/WaveData.h"
#include "core/Song.h"
#include "core/rendered/Rendered.h"
#include "sound/QuietRender.h"
#include "sound/RenderSetting.h"
#include "waves/WavOperations.h"

namespace sprout {

/// The mix of the setting's song. Sets `SongFirstPos` and the tracks' `FirstPainted`, fills the steps and renders the
/// audio tracks that are not valid; `SongMix` stays as it is. Shows nothing. Throws `RunTimeError`, std::bad_alloc;
/// what was filled until then stays.
[[nodiscard]] WaveData MixParts(const RenderSetting& setting);

/// Stores render() as a track's sound; a run-time error stores an empty one. The old sound is released before. Throws
/// std::bad_alloc; the track is then empty and not valid.
template <class Render>
void KeepRenderOf(Track& track, Render render)
{
    track.TrackRender = EmptyWave(); // frees the old sound before the new one is made
    Rendered::KeepTrackRender(track, QuietRender(render));
}

} // namespace sprout
