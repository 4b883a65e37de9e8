// SPDX-License-Identifier: GPL-3.0-or-later
#include "BenchSounds.h"

#include <algorithm>
#include <cmath>
#include <span>
#include <string>

#include "core/Shared.h"
#include "core/SongModel.h"

namespace sprout {

namespace {

constexpr double kTwoPi = 6.283185307179586;
constexpr double kRate = 44100;
constexpr int kTracks = 20;
constexpr int kStepsATrack = 5;

/// Computes a tone with a recurrence, so twenty full songs are made in seconds.
Channel SwellingTone(std::int32_t frames, double hertz, double swellHertz, double level)
{
    Channel channel = Channel::Unfilled(frames);
    const std::span<std::int16_t> samples = channel.Change();
    const double turn = 2 * std::cos(kTwoPi * hertz / kRate);
    double before = -std::sin(kTwoPi * hertz / kRate);
    double now = 0;
    double swell = 0;
    for (std::int32_t i = 1; i <= frames; ++i) {
        if (i % 1024 == 1)
            swell = level * (0.6 + 0.4 * std::sin(kTwoPi * swellHertz * i / kRate));
        samples[static_cast<std::size_t>(i)] = static_cast<std::int16_t>(swell * now);
        const double next = turn * now - before;
        before = now;
        now = next;
    }
    return channel;
}

} // namespace

const std::vector<WaveData>& FullSongWaves()
{
    static const std::vector<WaveData> waves = [] {
        std::vector<WaveData> made(1);
        for (int i = 1; i <= kMixedWaves; ++i) {
            WaveData wave;
            wave.Length = kFullSongFrames;
            wave.WavL = SwellingTone(kFullSongFrames, 110.0 + 37.0 * i, 0.1 + 0.013 * i, 1200);
            wave.WavR = SwellingTone(kFullSongFrames, 111.0 + 37.0 * i, 0.1 + 0.017 * i, 1200);
            made.push_back(wave);
        }
        return made;
    }();
    return waves;
}

WaveData PluckedSecond(int number)
{
    WaveData wave;
    wave.Channels = 1;
    wave.Length = static_cast<std::int32_t>(kRate);
    wave.WavL = Channel(wave.Length);
    const std::span<std::int16_t> samples = wave.WavL.Change().subspan(1);
    const double base = 110.0 * std::pow(2.0, number / 12.0);
    for (std::size_t i = 0; i < samples.size(); ++i) {
        const double t = static_cast<double>(i) / kRate;
        double sum = 0;
        for (int k = 1; k <= 8; ++k)
            sum += std::exp(-t * (2.0 + 0.8 * k)) / k * std::sin(kTwoPi * base * k * t + 0.3 * k);
        samples[i] = static_cast<std::int16_t>(std::lround(9000 * sum * std::min(1.0, t / 0.0015)));
    }
    return wave;
}

void MakeLargeSong(std::int64_t bytes)
{
    constexpr std::int32_t tracks = 4;
    constexpr std::int64_t bytesAFrame = 4;
    SongState& song = Shared().Song;
    song = SongState();
    song.SongTitle = "Large";
    for (std::int32_t number = 1; number <= tracks; ++number) {
        Track track;
        track.TrackType = static_cast<std::int32_t>(TrackKind::Audio);
        track.Painted.assign(kSongCells + 1, 1);
        WaveData& audio = track.TrackAudio;
        audio.Length = static_cast<std::int32_t>(bytes / bytesAFrame / tracks);
        audio.WavL = SwellingTone(audio.Length, 200.0 + number, 0.2, 6000);
        audio.WavR = SwellingTone(audio.Length, 300.0 + number, 0.2, 6000);
        song.Tracks.push_back(track);
    }
    song.TrackCount = tracks;
}

void MakeFullSong()
{
    SongState& song = Shared().Song;
    song = SongState();
    for (int number = 1; number <= kTracks; ++number) {
        Beat beat;
        beat.Name = "Beat " + std::to_string(number);
        beat.Sound = PluckedSecond(number);
        beat.Loaded = true;
        song.SongBeats.push_back(beat);
        song.SongBeatCount = number;

        Track track;
        track.Painted.assign(kSongCells + 1, 1);
        track.TrackTune.Name = "Tune " + std::to_string(number);
        track.TrackTune.StepCount = kStepsATrack;
        for (int i = 1; i <= kStepsATrack; ++i) {
            TuneStep step;
            step.SetOn(true);
            step.BeatIndex = number;
            step.PitchShift = i - 3;
            step.Volume = 20;
            step.Duration = i == 3 ? 120 : 100; // no step stays unchanged
            track.TrackTune.Steps.push_back(step);
        }
        song.Tracks.push_back(track);
    }
    song.TrackCount = kTracks;
}

} // namespace sprout
