// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/rules/Transport.h"

#include <algorithm>

#include "base/Errors.h"
#include "base/Numbers.h"
#include "core/SongTime.h"

namespace sprout {

namespace {

constexpr TwoLines kSelectTune{Words::Later("Please select tune for track using tune button."), {}};
constexpr TwoLines kPaintSong{Words::Later("Please paint on the track."),
                              Words::Later("Use the paint button and draw on the track.")};
constexpr TwoLines kSelectOrEditTune{Words::Later("Please select a tune or edit it."),
                                     Words::Later("Use the first button on the left.")};
constexpr TwoLines kTrackNotPainted{Words::Later("This track is not painted."),
                                    Words::Later("Use the Brush button and paint on the track.")};
constexpr TwoLines kClickOnPaint{Words::Later("Please click on the painted area on the track to play from there."), {}};
constexpr TwoLines kPaintThenPlay{Words::Later("Please paint on the track, after that you can play it."),
                                  Words::Later("Use the paint button and draw on the track.")};

constexpr std::int32_t kTracksWithoutChecks = 5;
constexpr std::int32_t kSecondInMilliseconds = 1000;

bool HasContent(const Track& track)
{
    return track.IsAudio() || !track.TrackTune.Name.empty();
}

bool AStepSounds(const Tune& tune)
{
    for (std::int32_t step = 1; step <= tune.StepCount; ++step)
        if (At(tune.Steps, step).IsOn())
            return true;
    return false;
}

bool IsSilentMusic(const Track& track)
{
    return !track.IsAudio() && !AStepSounds(track.TrackTune);
}

bool IsPaintedFrom(const Track& track, std::int32_t songCells, std::int32_t cell)
{
    for (std::int32_t c = cell; c <= songCells; ++c)
        if (track.IsPainted(c))
            return true;
    return false;
}

/// One second after something that lasts `seconds`. A length that is not a number counts as none.
std::int32_t RepeatAfter(double seconds)
{
    try {
        return std::max(RoundHalfEven((seconds + 1) * kSecondInMilliseconds), 0);
    } catch (const RunTimeError&) {
        return kSecondInMilliseconds;
    }
}

} // namespace

PlayCheck CheckSong(const SongState& song)
{
    bool content = false;
    bool painted = false;
    for (std::int32_t t = 1; t <= song.TrackCount; ++t) {
        content = content || HasContent(At(song.Tracks, t));
        painted = painted || FindFirstPainted(At(song.Tracks, t), song.SongCells) != 0;
    }
    if (!content)
        return {kSelectTune, true};
    if (!painted)
        return {kPaintSong, false};
    return {};
}

PlayCheck CheckSongFromCell(const SongState& song)
{
    return song.TrackCount < kTracksWithoutChecks ? CheckSong(song) : PlayCheck{};
}

PlayCheck CheckTrack(const Track& track, std::int32_t songCells)
{
    if (IsSilentMusic(track))
        return {kSelectOrEditTune, false};
    if (FindFirstPainted(track, songCells) == 0)
        return {kTrackNotPainted, false};
    return {};
}

PlayCheck CheckTrackFromCell(const Track& track, std::int32_t songCells, std::int32_t cell)
{
    if (IsSilentMusic(track))
        return {kSelectOrEditTune, false};
    if (IsPaintedFrom(track, songCells, cell))
        return {};
    return {IsPaintedFrom(track, songCells, 1) ? kClickOnPaint : kPaintThenPlay, false};
}

std::int32_t TuneHoverInterval(std::int32_t length, std::int32_t stepCount, std::int32_t tempo)
{
    return length > 0 ? RepeatAfter(CellSeconds(tempo) * stepCount) : kSecondInMilliseconds;
}

std::int32_t AudioHoverInterval(const WaveData& audio)
{
    return audio.Length > 0 ? RepeatAfter(static_cast<double>(audio.Length) / audio.Rate) : kSecondInMilliseconds;
}

} // namespace sprout
