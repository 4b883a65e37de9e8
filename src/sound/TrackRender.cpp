// SPDX-License-Identifier: GPL-3.0-or-later
#include "sound/TrackRender.h"

#include <algorithm>
#include <cstddef>

#include "base/Errors.h"
#include "core/Busy.h"
#include "core/Shared.h"
#include "core/SongTime.h"
#include "core/rendered/Rendered.h"
#include "sound/QuietRender.h"
#include "sound/RenderAhead.h"
#include "sound/RenderSetting.h"
#include "sound/SongParts.h"
#include "sound/TrackMix.h"
#include "waves/WavOperations.h"

namespace sprout {

namespace {

bool HasTrack(std::int32_t trackNumber)
{
    const SongState& song = Shared().Song;
    return trackNumber >= 1 && trackNumber <= song.TrackCount &&
           static_cast<std::size_t>(trackNumber) < song.Tracks.size();
}

template <class Render>
void RenderTrack(std::int32_t trackNumber, Render render)
{
    if (!HasTrack(trackNumber) || At(Shared().Song.Tracks, trackNumber).TrackRenderValid)
        return;
    Track& track = At(Shared().Song.Tracks, trackNumber);
    const WorkingSign sign;
    KeepRenderOf(track, [&] { return render(SharedSetting(), track); });
}

/// First frame of the wave that belongs to `cell`; nothing if it is not a 32-bit number.
std::optional<std::int32_t> FrameOfCell(const WaveData& wave, std::int32_t origin, std::int32_t cell,
                                        std::int32_t tempo)
{
    try {
        return CellOffset(cell, origin, tempo, wave.Rate);
    } catch (const RunTimeError&) {
        return std::nullopt;
    }
}

bool HoldsItsFrames(const WaveData& wave)
{
    return wave.WavL.UpperBound() >= wave.Length && (wave.Channels != 2 || wave.WavR.UpperBound() >= wave.Length);
}

} // namespace

void RenderTuneTrack(std::int32_t trackNumber)
{
    RenderTrack(trackNumber, MixTuneTrack);
}

void RenderAudioTrack(std::int32_t trackNumber)
{
    RenderTrack(trackNumber, MixAudioTrack);
}

void MixSong()
{
    SongState& song = Shared().Song;
    if (song.SongMixValid)
        return;
    const WorkingSign sign;
    if (RenderAhead::HandMixTo(song))
        return;
    song.SongMix = EmptyWave(); // frees the old mix before the new one is made
    Rendered::KeepSongMix(song, QuietRender([] { return MixParts(SharedSetting()); }));
}

std::optional<PlayFrom> CutFromCell(const WaveData& wave, std::int32_t origin, std::int32_t cell, std::int32_t tempo)
{
    if (cell <= origin)
        return PlayFrom{wave, origin};
    const std::optional<std::int32_t> frame = FrameOfCell(wave, origin, cell, tempo);
    if (!frame || *frame < 0 || *frame >= wave.Length || !HoldsItsFrames(wave))
        return std::nullopt;
    // At an absurd tempo the position may round to 0, where there is no frame.
    return PlayFrom{CutWaveSlice(wave, std::max(*frame, 1), wave.Length), cell};
}

} // namespace sprout
