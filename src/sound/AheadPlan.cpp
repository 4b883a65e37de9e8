// SPDX-License-Identifier: GPL-3.0-or-later
#include "sound/AheadPlan.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <optional>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include "base/Errors.h"
#include "beats/BeatFiles.h"
#include "core/Shared.h"
#include "core/SongTime.h"
#include "sound/StepSound.h"
#include "sound/TrackMix.h"
#include "waves/WaveFormat.h"

namespace sprout {

namespace {

constexpr std::int32_t kNever = std::numeric_limits<std::int32_t>::max();
constexpr double kLongestStepSeconds = 2.0 * kLongestBeatSeconds;
constexpr std::size_t kFrameBytes = 2 * sizeof(std::int16_t);

/// A music track that is painted, and the first cell of each of its steps.
struct SoundingTrack {
    const Tune* tune;
    std::vector<std::int32_t> firstCells;
};

/// Collects the keys of one song.
class Planning {
public:
    explicit Planning(const SongState& plannedSong) : song(plannedSong) {}

    /// Throws `RunTimeError` where the mix would.
    AheadPlan Make(std::size_t mostBytes)
    {
        Collect();
        if (isSilent)
            return {{}, true};
        for (const SoundingTrack& track : tracks)
            AddSteps(track);
        const auto earlier = [](const Wanted& a, const Wanted& b) { return a.firstCell < b.firstCell; };
        std::stable_sort(wanted.begin(), wanted.end(), earlier);
        return Bounded(mostBytes);
    }

private:
    struct Wanted {
        StepKey key;
        std::int32_t firstCell;
    };

    void Collect()
    {
        CheckTracks(song);
        for (std::int32_t number = 1; number <= song.TrackCount; ++number) {
            const Track& track = At(song.Tracks, number);
            if (track.IsAudio())
                isSilent = false;
            if (track.IsMusic() && FirstPaintedCell(song, track) != 0)
                tracks.push_back({&track.TrackTune, FirstCells(track)});
        }
    }

    std::vector<std::int32_t> FirstCells(const Track& track)
    {
        std::vector<std::int32_t> cells(track.TrackTune.Steps.size(), kNever);
        RunTuneAlongPaint(song, track, [&](std::int32_t cell, std::int32_t number) {
            isSilent = false;
            At(cells, number) = std::min(At(cells, number), cell);
        });
        return cells;
    }

    void AddSteps(const SoundingTrack& track)
    {
        const Tune& tune = *track.tune;
        std::unordered_map<const TuneStep*, std::size_t> own; // places of its steps
        const auto cellOf = [&](const TuneStep& step) {
            return track.firstCells[static_cast<std::size_t>(&step - tune.Steps.data())];
        };
        const auto copy = [&](const TuneStep& step, const TuneStep& equal) {
            if (const auto place = own.find(&equal); place != own.end())
                SoundsFrom(place->second, cellOf(step));
        };
        ForStaleSteps(tune, BeatSource::Song, copy, [&](const TuneStep& step) {
            if (const std::optional<std::size_t> place = PlaceOf(step)) {
                SoundsFrom(*place, cellOf(step));
                own.emplace(&step, *place);
            }
        });
    }

    void SoundsFrom(std::size_t place, std::int32_t cell)
    {
        wanted[place].firstCell = std::min(wanted[place].firstCell, cell);
    }

    /// Nothing if the step is left out, or silent.
    std::optional<std::size_t> PlaceOf(const TuneStep& step)
    {
        const WaveData* const instrument = InstrumentOf(step);
        if (!instrument || instrument->Length <= 0)
            return std::nullopt;
        StepKey key = KeyOfStep(step, *instrument);
        const auto [known, isNew] = places.try_emplace(key, wanted.size());
        if (isNew)
            wanted.push_back({std::move(key), kNever});
        return known->second;
    }

    const WaveData* InstrumentOf(const TuneStep& step)
    {
        try {
            const std::int32_t number = SongBeatOf(step, song);
            if (number == 0)
                return &Shared().TestTone;
            const Beat& beat = At(song.SongBeats, number);
            if (beat.Loaded)
                return &beat.Sound;
        } catch (const RunTimeError&) {
            // The play meets it again and treats it.
        }
        leftOut = true;
        return nullptr;
    }

    AheadPlan Bounded(std::size_t mostBytes)
    {
        AheadPlan plan;
        StepCache room(mostBytes);
        for (Wanted& one : wanted) {
            const std::size_t before = room.Count();
            room.Keep(one.key, {});
            const double frames = static_cast<double>(one.key.Source.Length) * Shared().SampleRate /
                                  std::max(one.key.Source.Rate, 1) * one.key.DurationFactor;
            soundBytes += std::min(frames, double{kLongestWaveFrames}) * kFrameBytes;
            if (room.Count() == before ||
                static_cast<double>(room.Bytes()) + soundBytes > static_cast<double>(mostBytes))
                return plan;
            plan.keys.push_back(std::move(one.key));
        }
        plan.mixable = !leftOut;
        return plan;
    }

    const SongState& song;
    std::vector<SoundingTrack> tracks;
    std::vector<Wanted> wanted;
    std::unordered_map<StepKey, std::size_t, StepKeyHash> places;
    double soundBytes = 0;
    bool isSilent = true;
    bool leftOut = false;
};

} // namespace

AheadPlan PlanAhead(const SongState& song, std::size_t mostBytes)
{
    if (song.SongMixValid)
        return {};
    try {
        return Planning(song).Make(mostBytes);
    } catch (const RunTimeError&) {
        return {}; // the mix will be empty
    }
}

double MixBytes(const SongState& song)
{
    if (song.Tempo <= 0)
        return std::numeric_limits<double>::infinity();
    double longestSeconds = kLongestStepSeconds;
    double waves = 1;
    for (const Track& track : song.Tracks) {
        if (!track.IsAudio())
            continue;
        longestSeconds =
            std::max(longestSeconds, static_cast<double>(track.TrackAudio.Length) / std::max(track.TrackAudio.Rate, 1));
        waves += track.TrackRenderValid ? 0 : 1;
    }
    const double seconds = CellSeconds(song.Tempo) * song.SongCells + longestSeconds;
    return seconds * Shared().SampleRate * kFrameBytes * waves;
}

} // namespace sprout
