// SPDX-License-Identifier: GPL-3.0-or-later
#include "Editor.h"

#include <cstring>
#include <memory>
#include <vector>

#include "BenchSounds.h"
#include "recording/rules/WaveEdits.h"

namespace sprout {

namespace {

constexpr std::int32_t kCutFrames = 44100;

const WaveData& LongWave()
{
    return FullSongWaves()[1];
}

/// Copies all frames of both channels, except the first `skipped`, into new memory.
void CopyInto(std::size_t skipped, benchmark::State& state)
{
    for ([[maybe_unused]] auto _ : state)
        for (const Channel* channel : {&LongWave().WavL, &LongWave().WavR}) {
            const auto samples = channel->Samples().subspan(skipped);
            // The same large pages as any block of samples.
            Channel copy = Channel::Unfilled(static_cast<std::int32_t>(samples.size()));
            std::memcpy(copy.Change().data() + 1, samples.data(), samples.size_bytes());
            benchmark::DoNotOptimize(copy);
        }
}

} // namespace

void Louder(benchmark::State& state)
{
    WaveData wave = LongWave();
    ChangeVolume(VolumeChange::Up, 1, wave.Length, wave); // owns its samples from here on
    VolumeChange change = VolumeChange::Down;
    for ([[maybe_unused]] auto _ : state) {
        ChangeVolume(change, 1, wave.Length, wave);
        change = change == VolumeChange::Up ? VolumeChange::Down : VolumeChange::Up;
        benchmark::ClobberMemory();
    }
}

void LouderAtFirst(benchmark::State& state)
{
    for ([[maybe_unused]] auto _ : state) {
        WaveData wave = LongWave();
        ChangeVolume(VolumeChange::Up, 1, wave.Length, wave);
        benchmark::DoNotOptimize(wave);
    }
}

void CutFront(benchmark::State& state)
{
    for ([[maybe_unused]] auto _ : state) {
        WaveData left = CutSamples(LongWave(), 1, kCutFrames);
        benchmark::DoNotOptimize(left);
    }
}

void CopyBytes(benchmark::State& state)
{
    const std::size_t bytes = LongWave().WavL.Samples().size_bytes();
    std::vector<std::byte> copy(2 * bytes);
    for ([[maybe_unused]] auto _ : state) {
        std::memcpy(copy.data(), LongWave().WavL.Samples().data(), bytes);
        std::memcpy(copy.data() + bytes, LongWave().WavR.Samples().data(), bytes);
        benchmark::ClobberMemory();
    }
}

void CopyBytesAnew(benchmark::State& state)
{
    CopyInto(0, state);
}

void CopyTail(benchmark::State& state)
{
    CopyInto(kCutFrames, state);
}

} // namespace sprout
