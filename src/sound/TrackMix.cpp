// SPDX-License-Identifier: GPL-3.0-or-later
#include "sound/TrackMix.h"

#include <algorithm>
#include <utility>

#include "core/Shared.h"
#include "core/SongTime.h"
#include "sound/TuneRender.h"
#include "waves/WavOperations.h"
#include "waves/WaveFormat.h"

namespace sprout {

namespace {

constexpr std::int32_t kTrackClip = 85;

WaveData MixTrack(MixInput input, const RenderSetting& setting)
{
    return MixWaves(std::move(input.waves), input.placements, 100, 0, kTrackClip, setting.mixProgress);
}

/// Lays an audio track's wave along its paint, run by run.
class AudioRuns {
public:
    AudioRuns(const SongState& itsSong, const Track& audioTrack)
        : song(itsSong), track(audioTrack), wave(audioTrack.TrackAudio), cellSeconds(CellSeconds(itsSong.Tempo))
    {
        if (wave.Rate == 0)
            throw RunTimeError(Words::Text("The sound has no rate."));
        waveSeconds = static_cast<float>(static_cast<double>(wave.Length) / wave.Rate);
        input.waves.push_back(wave);
    }

    /// All sounds of the track. A run that reaches the end of the song before its wave ends stays silent.
    MixInput Lay()
    {
        for (std::int32_t cell = 1; cell <= song.SongCells; ++cell) {
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
        const std::int32_t length = OffsetOf(song, cellCount, 0);
        if (length < 0 || OffsetOf(song, runStart, track.FirstPainted) > kLongestWaveFrames - length)
            throw RunTimeError(Words::Text("The sound is too long."));
        Place(CutTo(length));
    }

    void Place(std::int32_t waveIndex)
    {
        input.placements.push_back({OffsetOf(song, runStart, track.FirstPainted), waveIndex});
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

    const SongState& song;
    const Track& track;
    const WaveData& wave;
    double cellSeconds;
    float waveSeconds = 0;
    MixInput input;
    std::int32_t cellCount = 0; // of the current wave
    std::int32_t runStart = 0;
};

} // namespace

std::int32_t OffsetOf(const SongState& song, std::int32_t cell, std::int32_t origin)
{
    return CellOffset(cell, origin, song.Tempo, Shared().SampleRate);
}

void CheckTracks(const SongState& song)
{
    if (song.TrackCount >= 1 && static_cast<std::size_t>(song.TrackCount) >= song.Tracks.size())
        throw RunTimeError(Words::Text("The song has fewer tracks than it says."));
}

std::int32_t FirstPaintedCell(const SongState& song, const Track& track)
{
    const std::int32_t cells = song.SongCells;
    if (cells > 0 && track.Painted.size() <= static_cast<std::size_t>(cells))
        throw RunTimeError(Words::Text("The track has fewer cells than the song."));
    return FindFirstPainted(track, cells);
}

std::size_t CountSoundingCells(const SongState& song, const Track& track)
{
    std::size_t count = 0;
    RunTuneAlongPaint(song, track, [&count](std::int32_t, std::int32_t) { ++count; });
    return count;
}

void AddTuneTrack(MixInput& input, const SongState& song, const Track& track, std::int32_t origin)
{
    const auto base = static_cast<std::int32_t>(input.waves.size()) - 1;
    const Tune& tune = track.TrackTune;
    for (std::int32_t number = 1; number <= tune.StepCount; ++number)
        input.waves.push_back(At(tune.Steps, number).StepWave);
    RunTuneAlongPaint(song, track, [&](std::int32_t cell, std::int32_t number) {
        input.placements.push_back({OffsetOf(song, cell, origin), base + number});
    });
}

WaveData MixTuneTrack(const RenderSetting& setting, Track& track)
{
    track.FirstPainted = FirstPaintedCell(setting.song, track);
    if (track.FirstPainted == 0)
        return EmptyWave();
    Tune* const tune = &track.TrackTune;
    RenderTrackSteps({&tune, 1}, setting);
    MixInput input;
    input.placements.reserve(CountSoundingCells(setting.song, track));
    AddTuneTrack(input, setting.song, track, track.FirstPainted);
    return MixTrack(std::move(input), setting);
}

WaveData MixAudioTrack(const RenderSetting& setting, Track& track)
{
    // FirstPainted then keeps its old value, which the song's mix uses.
    if (track.TrackAudio.Length <= 0)
        return EmptyWave();
    track.FirstPainted = FirstPaintedCell(setting.song, track);
    if (track.FirstPainted == 0)
        return EmptyWave();
    return MixTrack(AudioRuns(setting.song, track).Lay(), setting);
}

} // namespace sprout
