// SPDX-License-Identifier: GPL-3.0-or-later
#include "sound/SongParts.h"

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

#include "sound/Mixer.h"
#include "sound/TrackMix.h"
#include "sound/TuneRender.h"
#include "waves/WavOperations.h"

namespace sprout {

namespace {

constexpr std::int32_t kSongClip = 100;
constexpr std::int32_t kUnsetPosition = -1;

/// The tracks in the song's mix, and how much they contribute.
class SongParts {
public:
    explicit SongParts(const RenderSetting& renderSetting) : setting(renderSetting), song(renderSetting.song) {}

    /// Finds the first painted cells and renders audio tracks.
    void Collect()
    {
        song.SongFirstPos = kUnsetPosition;
        CheckTracks(song);
        for (std::int32_t number = 1; number <= song.TrackCount; ++number) {
            Track& track = At(song.Tracks, number);
            if (track.IsMusic() ? TakeMusic(track) : track.IsAudio() && TakeAudio(track)) {
                parts.push_back(&track);
                if (song.SongFirstPos == kUnsetPosition || song.SongFirstPos > track.FirstPainted)
                    song.SongFirstPos = track.FirstPainted;
            }
        }
    }

    [[nodiscard]] bool Silent() const { return placementCount == 0; }

    [[nodiscard]] WaveData MixAll(std::int32_t origin) const
    {
        RenderSteps();
        MixInput input;
        input.placements.reserve(placementCount);
        for (const Track* const track : parts) {
            if (track->IsMusic()) {
                AddTuneTrack(input, song, *track, origin);
                continue;
            }
            input.waves.push_back(track->TrackRender);
            const auto index = static_cast<std::int32_t>(input.waves.size()) - 1;
            input.placements.push_back({OffsetOf(song, track->FirstPainted, origin), index});
        }
        return MixWaves(std::move(input.waves), input.placements, 100, 0, kSongClip, setting.mixProgress);
    }

private:
    bool TakeMusic(Track& track)
    {
        track.FirstPainted = FirstPaintedCell(song, track);
        if (track.FirstPainted == 0)
            return false;
        placementCount += CountSoundingCells(song, track);
        return true;
    }

    /// A track without paint also takes part: its first cell of 0 moves the song's start.
    bool TakeAudio(Track& track)
    {
        if (!track.TrackRenderValid)
            KeepRenderOf(track, [&] { return MixAudioTrack(setting, track); });
        ++placementCount;
        return track.TrackRenderValid;
    }

    void RenderSteps() const
    {
        std::vector<Tune*> tunes;
        for (Track* const track : parts)
            if (track->IsMusic())
                tunes.push_back(&track->TrackTune);
        RenderTrackSteps(tunes, setting);
    }

    const RenderSetting& setting;
    SongState& song;
    std::vector<Track*> parts;
    std::size_t placementCount = 0;
};

} // namespace

WaveData MixParts(const RenderSetting& setting)
{
    SongParts parts(setting);
    parts.Collect();
    return parts.Silent() ? EmptyWave() : parts.MixAll(setting.song.SongFirstPos);
}

} // namespace sprout
