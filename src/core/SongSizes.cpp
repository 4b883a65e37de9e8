// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/SongSizes.h"

#include <cstddef>
#include <utility>

namespace sprout {

namespace {

/// The number of entries of an array with indices 0 to `count`.
std::size_t SizeFor(std::int32_t count)
{
    return static_cast<std::size_t>(count) + 1;
}

} // namespace

void ResizeTracks(SongState& song, std::int32_t count)
{
    song.Tracks.resize(SizeFor(count));
    song.TrackCount = count;
}

void EraseTrack(SongState& song, std::int32_t track)
{
    song.Tracks.erase(song.Tracks.begin() + track);
    --song.TrackCount;
}

void ForgetTracks(SongState& song)
{
    song.TrackCount = 0;
}

void ResizeSongBeats(SongState& song, std::int32_t count)
{
    song.SongBeats.resize(SizeFor(count));
    song.SongBeatCount = count;
}

std::int32_t AppendSongBeat(SongState& song, Beat beat)
{
    song.SongBeats.push_back(std::move(beat));
    return ++song.SongBeatCount;
}

void ReplaceSongBeats(SongState& song, std::vector<Beat> beats)
{
    song.SongBeats = std::move(beats);
    song.SongBeatCount = static_cast<std::int32_t>(song.SongBeats.size()) - 1;
}

void ResizeSteps(Tune& tune, std::int32_t count)
{
    tune.Steps.resize(SizeFor(count));
    tune.StepCount = count;
}

void AssignSteps(Tune& tune, std::int32_t count, const TuneStep& step)
{
    tune.Steps.assign(SizeFor(count), step);
    tune.StepCount = count;
}

} // namespace sprout
