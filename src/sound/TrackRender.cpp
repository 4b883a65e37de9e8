// SPDX-License-Identifier: GPL-3.0-or-later
#include "sound/TrackRender.h"

#include <algorithm>
#include <cstddef>
#include <exception>
#include <optional>
#include <vector>

#include "base/Errors.h"
#include "core/Busy.h"
#include "core/Shared.h"
#include "core/SongTime.h"
#include "core/rendered/Rendered.h"
#include "sound/Mixer.h"
#include "sound/QuietRender.h"
#include "sound/TuneRender.h"
#include "waves/WavOperations.h"
#include "waves/WaveFormat.h"

namespace sprout {

namespace {

constexpr std::int32_t kTrackClip = 85;
constexpr std::int32_t kSongClip = 100;
constexpr std::int32_t kUnsetPosition = -1;

/// The input of one mix; waves count from 1.
struct MixInput {
    std::vector<WaveData> waves = std::vector<WaveData>(1);
    std::vector<WaveFilePlacement> placements;
};

/// The position of a sound at `cell` on a time line that begins at cell `origin`.
std::int32_t OffsetOf(std::int32_t cell, std::int32_t origin)
{
    return CellOffset(cell, origin, Shared().Song.Tempo, Shared().SampleRate);
}

bool HasTrack(std::int32_t trackNumber)
{
    const SongState& song = Shared().Song;
    return trackNumber >= 1 && trackNumber <= song.TrackCount &&
           static_cast<std::size_t>(trackNumber) < song.Tracks.size();
}

std::int32_t FirstPaintedCell(const Track& track)
{
    const std::int32_t cells = Shared().Song.SongCells;
    if (cells > 0 && track.Painted.size() <= static_cast<std::size_t>(cells))
        throw RunTimeError(Words::Text("The track has fewer cells than the song."));
    return FindFirstPainted(track, cells);
}

/// Calls sound(cell, step) for every cell that sounds a step; the tune restarts at each painted run.
template <class Sound>
void RunTuneAlongPaint(const Track& track, Sound sound)
{
    const Tune& tune = track.TrackTune;
    std::int32_t number = 0;
    for (std::int32_t cell = 1; cell <= Shared().Song.SongCells; ++cell) {
        if (!track.IsPainted(cell)) {
            number = 0;
            continue;
        }
        number = number < tune.StepCount ? number + 1 : 1;
        if (static_cast<std::size_t>(number) >= tune.Steps.size())
            throw RunTimeError(Words::Text("The tune has no such step."));
        if (At(tune.Steps, number).IsOn())
            sound(cell, number);
    }
}

std::size_t CountSoundingCells(const Track& track)
{
    std::size_t count = 0;
    RunTuneAlongPaint(track, [&count](std::int32_t, std::int32_t) { ++count; });
    return count;
}

/// Adds the steps of a track, whose sounds are in `StepWave`, and their positions.
void AddTuneTrack(MixInput& input, const Track& track, std::int32_t origin)
{
    const auto base = static_cast<std::int32_t>(input.waves.size()) - 1;
    const Tune& tune = track.TrackTune;
    for (std::int32_t number = 1; number <= tune.StepCount; ++number)
        input.waves.push_back(At(tune.Steps, number).StepWave);
    RunTuneAlongPaint(track, [&](std::int32_t cell, std::int32_t number) {
        input.placements.push_back({OffsetOf(cell, origin), base + number});
    });
}

WaveData RenderTune(Track& track)
{
    track.FirstPainted = FirstPaintedCell(track);
    if (track.FirstPainted == 0)
        return EmptyWave();
    RenderTrackSteps(track.TrackTune);
    MixInput input;
    input.placements.reserve(CountSoundingCells(track));
    AddTuneTrack(input, track, track.FirstPainted);
    return MixWaves(std::move(input.waves), input.placements, 100, 0, kTrackClip);
}

/// Lays an audio track's wave along its paint, run by run.
class AudioRuns {
public:
    explicit AudioRuns(const Track& audioTrack)
        : track(audioTrack), wave(audioTrack.TrackAudio), cellSeconds(CellSeconds(Shared().Song.Tempo))
    {
        if (wave.Rate == 0)
            throw RunTimeError(Words::Text("The sound has no rate."));
        waveSeconds = static_cast<float>(static_cast<double>(wave.Length) / wave.Rate);
        input.waves.push_back(wave);
    }

    /// All sounds of the track. A run that reaches the end of the song before its wave ends stays silent.
    MixInput Lay()
    {
        for (std::int32_t cell = 1; cell <= Shared().Song.SongCells; ++cell) {
            if (track.IsPainted(cell))
                TakePainted(cell);
            else if (cellCount > 0)
                EndRun();
        }
        return std::move(input);
    }

private:
    void TakePainted(std::int32_t cell)
    {
        if (cellCount == 0)
            runStart = cell;
        ++cellCount;
        if (static_cast<float>(cellCount * cellSeconds) >= waveSeconds)
            Place(1);
    }

    /// The run ended before its wave.
    void EndRun()
    {
        // The cut is counted in frames at the program's rate, whatever the wave's.
        const std::int32_t length = OffsetOf(cellCount, 0);
        if (length < 0 || OffsetOf(runStart, track.FirstPainted) > kLongestWaveFrames - length)
            throw RunTimeError(Words::Text("The sound is too long."));
        Place(CutTo(length));
    }

    void Place(std::int32_t waveIndex)
    {
        input.placements.push_back({OffsetOf(runStart, track.FirstPainted), waveIndex});
        cellCount = 0;
    }

    /// Index of the wave with this length, created if there is none.
    std::int32_t CutTo(std::int32_t length)
    {
        const auto last = static_cast<std::int32_t>(input.waves.size()) - 1;
        for (std::int32_t index = last; index >= 1; --index)
            if (At(input.waves, index).Length == length)
                return index;
        // For the mixer, the length alone cuts a wave; its samples are not copied.
        WaveData cut = wave;
        cut.Length = length;
        if (length > wave.Length) {
            cut.WavL.Resize(length);
            if (cut.Channels == 2)
                cut.WavR.Resize(length);
        }
        input.waves.push_back(std::move(cut));
        return last + 1;
    }

    const Track& track;
    const WaveData& wave;
    double cellSeconds;
    float waveSeconds = 0;
    MixInput input;
    std::int32_t cellCount = 0; // of the current wave
    std::int32_t runStart = 0;
};

WaveData RenderAudio(Track& track)
{
    // FirstPainted then keeps its old value, which the song's mix uses.
    if (track.TrackAudio.Length <= 0)
        return EmptyWave();
    track.FirstPainted = FirstPaintedCell(track);
    if (track.FirstPainted == 0)
        return EmptyWave();
    MixInput input = AudioRuns(track).Lay();
    return MixWaves(std::move(input.waves), input.placements, 100, 0, kTrackClip);
}

template <class Render>
void RenderTrack(std::int32_t trackNumber, Render render)
{
    if (!HasTrack(trackNumber) || At(Shared().Song.Tracks, trackNumber).TrackRenderValid)
        return;
    Track& track = At(Shared().Song.Tracks, trackNumber);
    const WorkingSign sign;
    track.TrackRender = EmptyWave(); // frees the old sound before the new one is made
    Rendered::KeepTrackRender(track, QuietRender([&] { return render(track); }));
}

/// The tracks in the song's mix, and how much they contribute.
class SongParts {
public:
    /// Finds the first painted cells and renders audio tracks.
    void Collect(SongState& song)
    {
        song.SongFirstPos = kUnsetPosition;
        if (song.TrackCount >= 1 && !HasTrack(song.TrackCount))
            throw RunTimeError(Words::Text("The song has fewer tracks than it says."));
        for (std::int32_t number = 1; number <= song.TrackCount; ++number) {
            Track& track = At(song.Tracks, number);
            if (track.IsMusic() ? TakeMusic(track) : track.IsAudio() && TakeAudio(track, number)) {
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
                AddTuneTrack(input, *track, origin);
                continue;
            }
            input.waves.push_back(track->TrackRender);
            const auto index = static_cast<std::int32_t>(input.waves.size()) - 1;
            input.placements.push_back({OffsetOf(track->FirstPainted, origin), index});
        }
        return MixWaves(std::move(input.waves), input.placements, 100, 0, kSongClip);
    }

private:
    bool TakeMusic(Track& track)
    {
        track.FirstPainted = FirstPaintedCell(track);
        if (track.FirstPainted == 0)
            return false;
        placementCount += CountSoundingCells(track);
        return true;
    }

    /// A track without paint also takes part: its first cell of 0 moves the song's start.
    bool TakeAudio(const Track& track, std::int32_t number)
    {
        RenderAudioTrack(number);
        ++placementCount;
        return track.TrackRenderValid;
    }

    void RenderSteps() const
    {
        std::vector<Tune*> tunes;
        for (Track* const track : parts)
            if (track->IsMusic())
                tunes.push_back(&track->TrackTune);
        RenderTrackSteps(tunes);
    }

    std::vector<Track*> parts;
    std::size_t placementCount = 0;
};

WaveData MixParts(SongState& song)
{
    SongParts parts;
    parts.Collect(song);
    return parts.Silent() ? EmptyWave() : parts.MixAll(song.SongFirstPos);
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
    RenderTrack(trackNumber, RenderTune);
}

void RenderAudioTrack(std::int32_t trackNumber)
{
    RenderTrack(trackNumber, RenderAudio);
}

void MixSong()
{
    SongState& song = Shared().Song;
    if (song.SongMixValid)
        return;
    const WorkingSign sign;
    song.SongMix = EmptyWave(); // frees the old mix before the new one is made
    Rendered::KeepSongMix(song, QuietRender([&song] { return MixParts(song); }));
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
