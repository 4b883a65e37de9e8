// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <cstddef>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "base/Text.h"
#include "core/SongSizes.h"
#include "songs/SongVersions.h"

namespace sprout {

namespace {

/// The new number of each beat, indexed by its old one, from 1.
using BeatNumbers = std::vector<std::int32_t>;

template <class Visit>
void ForEachStep(SongState& song, Visit visit)
{
    for (std::int32_t i = 1; i <= song.TrackCount; ++i) {
        Track& track = At(song.Tracks, i);
        for (std::int32_t s = 1; track.IsMusic() && s <= track.TrackTune.StepCount; ++s)
            visit(At(track.TrackTune.Steps, s));
    }
}

bool IsSongBeat(const SongState& song, std::int32_t index)
{
    return index >= 1 && index <= song.SongBeatCount;
}

void RenumberSteps(SongState& song, const BeatNumbers& numbers)
{
    ForEachStep(song, [&](TuneStep& step) {
        if (IsSongBeat(song, step.BeatIndex))
            step.BeatIndex = At(numbers, step.BeatIndex);
    });
}

/// Clears the name of every beat that equals an earlier one and points its steps to that one.
void MergeEqualBeats(SongState& song)
{
    std::unordered_map<std::string, std::int32_t> firstBeats;
    BeatNumbers numbers(song.SongBeats.size());
    for (std::int32_t i = 1; i <= song.SongBeatCount; ++i) {
        Beat& beat = At(song.SongBeats, i);
        At(numbers, i) = i;
        if (beat.Name.empty())
            continue;
        At(numbers, i) = firstBeats.emplace(NameKey(beat.Name) + '\0' + beat.DateStamp, i).first->second;
        if (At(numbers, i) != i)
            beat.Name.clear();
    }
    RenumberSteps(song, numbers);
}

void ClearUnusedNames(SongState& song)
{
    std::vector<bool> used(song.SongBeats.size());
    ForEachStep(song, [&](const TuneStep& step) {
        if (IsSongBeat(song, step.BeatIndex))
            used[static_cast<std::size_t>(step.BeatIndex)] = true;
    });
    for (std::int32_t i = 1; i <= song.SongBeatCount; ++i)
        if (!used[static_cast<std::size_t>(i)])
            At(song.SongBeats, i).Name.clear();
}

/// Drops the beats without a name; steps that point to one then point to none.
void DropNamelessBeats(SongState& song)
{
    std::vector<Beat> kept(1);
    BeatNumbers numbers(song.SongBeats.size());
    for (std::int32_t i = 1; i <= song.SongBeatCount; ++i) {
        if (At(song.SongBeats, i).Name.empty())
            continue;
        At(numbers, i) = static_cast<std::int32_t>(kept.size());
        kept.push_back(std::move(At(song.SongBeats, i)));
    }
    RenumberSteps(song, numbers);
    ReplaceSongBeats(song, std::move(kept));
}

} // namespace

void Compact_Song_Beats(SongState& song)
{
    MergeEqualBeats(song);
    ClearUnusedNames(song);
    const auto nameless = [](const Beat& beat) { return beat.Name.empty(); };
    if (std::any_of(song.SongBeats.begin() + 1, song.SongBeats.end(), nameless))
        DropNamelessBeats(song);
}

} // namespace sprout
