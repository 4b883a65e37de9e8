// SPDX-License-Identifier: GPL-3.0-or-later
#include "sound/Mixer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <initializer_list>
#include <limits>
#include <vector>

#include "base/Errors.h"
#include "core/Song.h"
#include "sound/RenderThreads.h"
#include "sound/Waves.h"
#include "support/FakeServices.h"
#include "waves/WaveFormat.h"

namespace sprout {
namespace {

using Placements = std::vector<WaveFilePlacement>;

/// Wave 0 is unused.
std::vector<WaveData> From1(std::initializer_list<WaveData> waves)
{
    std::vector<WaveData> all(1);
    all.insert(all.end(), waves);
    return all;
}

TEST(MixWaves, AddsEveryWaveAtItsPlace)
{
    const WaveData mix = MixWaves(From1({StereoWave({1, 2}, {10, 20}), StereoWave({100}, {-100})}),
                                  Placements{{0, 1}, {1, 2}, {3, 1}}, 100, 0, 100);
    EXPECT_EQ(ListOf(mix.WavL), (SampleList{1, 102, 0, 1, 2}));
    EXPECT_EQ(ListOf(mix.WavR), (SampleList{10, -80, 0, 10, 20}));
    EXPECT_EQ(mix.Length, 5);
    EXPECT_EQ(mix.Bits, 16);
    EXPECT_EQ(mix.Channels, 2);
    EXPECT_EQ(mix.Rate, 44100);
}

TEST(MixWaves, WithoutSoundHasLengthZero)
{
    EXPECT_EQ(MixWaves({}, Placements{}, 100, 0, 100), WaveData());
    EXPECT_EQ(MixWaves(From1({LevelWave(3, 1)}), Placements{}, 100, 0, 100), WaveData());
    EXPECT_EQ(MixWaves(From1({WaveData()}), Placements{{500, 1}, {-500, 1}}, 100, 0, 100), WaveData());
}

TEST(MixWaves, ClipsTheSumAndNotEachWave)
{
    const auto waves = From1({LevelWave(1, 32767), LevelWave(1, -32768), LevelWave(1, 32767)});
    EXPECT_EQ(MixWaves(waves, Placements{{0, 1}, {0, 3}}, 100, 0, 100), LevelWave(1, 32767));
    EXPECT_EQ(MixWaves(waves, Placements{{0, 2}, {0, 2}}, 100, 0, 100), LevelWave(1, -32768));
    EXPECT_EQ(MixWaves(waves, Placements{{0, 1}, {0, 3}, {0, 2}}, 100, 0, 100), LevelWave(1, 32766));
}

TEST(MixWaves, ClipPercentSetsTheLimits)
{
    const auto waves = From1({StereoWave({32767}, {-32768})});
    EXPECT_EQ(MixWaves(waves, Placements{{0, 1}}, 100, 0, 85), StereoWave({27852}, {-27853}));
    EXPECT_EQ(MixWaves(waves, Placements{{0, 1}}, 100, 0, 80), StereoWave({26214}, {-26214}));
    EXPECT_EQ(MixWaves(waves, Placements{{0, 1}}, 100, 0, 100), waves[1]);
}

TEST(MixWaves, AClipAboveFullScaleLetsNoSumLeaveThe16Bits)
{
    const auto waves = From1({LevelWave(1, 30000)});
    EXPECT_EQ(MixWaves(waves, Placements{{0, 1}}, 100, 0, 200), waves[1]);
    EXPECT_THROW(static_cast<void>(MixWaves(waves, Placements{{0, 1}, {0, 1}}, 100, 0, 200)), RunTimeError);
    EXPECT_THROW(static_cast<void>(MixWaves(waves, Placements{{0, 1}}, 100, 0, 70000)), RunTimeError);
}

TEST(MixWaves, RoundsAfterEveryPlacementInItsOrder)
{
    // Half of 1 on top of 0 gives 0, half of 1 on top of 1 gives 2: the order matters.
    const auto waves = From1({LevelWave(1, 1), LevelWave(1, 2)});
    EXPECT_EQ(MixWaves(waves, Placements{{0, 1}, {0, 2}}, 50, 0, 100), LevelWave(1, 1));
    EXPECT_EQ(MixWaves(waves, Placements{{0, 2}, {0, 1}}, 50, 0, 100), LevelWave(1, 2));
}

TEST(MixWaves, BringsEveryWaveIntoTheProgramsFormat)
{
    const WaveData mix = MixWaves(From1({MonoWave({1, 1}, 22050, 8)}), Placements{{1, 1}}, 100, 0, 100);
    EXPECT_EQ(mix, StereoWave({0, 256, 256, 256, 256}, {0, 256, 256, 256, 256}));
}

TEST(MixWaves, PansEveryWave)
{
    EXPECT_EQ(MixWaves(From1({StereoWave({100}, {10})}), Placements{{0, 1}}, 100, 100, 100), StereoWave({0}, {110}));
}

TEST(MixWaves, PansOnlyWhereTheProgramIsStereo)
{
    const FakeServices services;
    Shared().Channels = 1;
    EXPECT_EQ(MixWaves(From1({StereoWave({100}, {10})}), Placements{{0, 1}}, 100, 100, 100), StereoWave({100}, {10}));
}

TEST(MixWaves, OfMonoWavesOnlyHasOneChannelWithTwoNames)
{
    const Placements places{{0, 1}, {1, 2}};
    const WaveData mono = MixWaves(From1({MonoWave({1, 2}), MonoWave({100})}), places, 100, 0, 100);
    EXPECT_EQ(mono, StereoWave({1, 102}, {1, 102}));
    EXPECT_EQ(FramesOf(mono.WavL, mono.Length).data(), FramesOf(mono.WavR, mono.Length).data());
    EXPECT_EQ(MixWaves(From1({MonoWave({1, 2}), StereoWave({100}, {10})}), places, 100, 0, 100),
              StereoWave({1, 102}, {1, 12}));
    EXPECT_EQ(MixWaves(From1({MonoWave({100, 50})}), Placements{{0, 1}}, 100, 100, 100),
              StereoWave({0, 0}, {200, 100}));
}

TEST(MixWaves, TakesTheWaveAtIndex0AsItStands)
{
    std::vector<WaveData> waves{StereoWave({5}, {6}, 22050, 8)};
    EXPECT_EQ(MixWaves(waves, Placements{{1, 0}}, 100, 0, 100), StereoWave({0, 5}, {0, 6}));
    waves[0] = MonoWave({5});
    EXPECT_THROW(static_cast<void>(MixWaves(waves, Placements{{1, 0}}, 100, 0, 100)), RunTimeError);
}

TEST(MixWaves, RefusesPlacesAndWavesThatAreNotThere)
{
    const auto waves = From1({LevelWave(2, 1)});
    EXPECT_THROW(static_cast<void>(MixWaves(waves, Placements{{0, 2}}, 100, 0, 100)), RunTimeError);
    EXPECT_THROW(static_cast<void>(MixWaves(waves, Placements{{0, -1}}, 100, 0, 100)), RunTimeError);
    EXPECT_THROW(static_cast<void>(MixWaves(waves, Placements{{-1, 1}}, 100, 0, 100)), RunTimeError);
    const std::int32_t far = std::numeric_limits<std::int32_t>::max();
    EXPECT_THROW(static_cast<void>(MixWaves(waves, Placements{{far, 1}}, 100, 0, 100)), RunTimeError);
    auto shorter = waves;
    shorter[1].Length = 3;
    EXPECT_THROW(static_cast<void>(MixWaves(shorter, Placements{{0, 1}}, 100, 0, 100)), RunTimeError);
    auto strange = waves;
    strange[1].Channels = 7;
    strange[1].Bits = 24;
    strange[1].Rate = 0;
    EXPECT_EQ(MixWaves(strange, Placements{{0, 1}}, 100, 0, 100), LevelWave(2, 1));
}

TEST(MixWaves, ASumBeyond32BitsIsARunTimeError)
{
    const auto waves = From1({LevelWave(1, -32768), LevelWave(1, 32767)});
    Placements places(65536, {0, 1});
    EXPECT_EQ(MixWaves(waves, places, 100, 0, 100), LevelWave(1, -32768));
    places.push_back({0, 1});
    EXPECT_THROW(static_cast<void>(MixWaves(waves, places, 100, 0, 100)), RunTimeError);
    // The sum before a sound of the opposite sign counts.
    places.back().WaveIndex = 2;
    EXPECT_EQ(MixWaves(waves, places, 100, 0, 100), LevelWave(1, -32768));
}

/// The sums one after the other, in 64 bits.
WaveData MixedByTheBook(const std::vector<WaveData>& waves, const Placements& placements)
{
    std::size_t total = 0;
    for (const WaveFilePlacement& place : placements)
        total = std::max(total, static_cast<std::size_t>(place.Offset + At(waves, place.WaveIndex).Length));
    std::vector<std::int64_t> left(total), right(total);
    for (const WaveFilePlacement& place : placements) {
        const WaveData& wave = At(waves, place.WaveIndex);
        for (std::int32_t j = 0; j < wave.Length; ++j) {
            At(left, place.Offset + j) += wave.WavL[j + 1];
            At(right, place.Offset + j) += wave.WavR[j + 1];
        }
    }
    SampleList l, r;
    for (std::size_t i = 0; i < total; ++i) {
        l.push_back(static_cast<std::int16_t>(std::clamp<std::int64_t>(left[i], -27853, 27852)));
        r.push_back(static_cast<std::int16_t>(std::clamp<std::int64_t>(right[i], -27853, 27852)));
    }
    return StereoWave(l, r);
}

TEST(MixWaves, GivesTheSameSamplesWithAnyNumberOfThreads)
{
    const auto waves = From1({RampWave(1, 1), RampWave(8191, 2), RampWave(8193, 3), RampWave(140000, 4)});
    Placements places;
    for (std::int32_t i = 0; i < 300; ++i)
        places.push_back({i * 4099 % 400000, i % 4 + 1});
    const WaveData expected = MixedByTheBook(waves, places);
    for (const std::size_t threads : {1u, 2u, 5u, 0u}) {
        const RenderThreads bound(threads);
        EXPECT_EQ(MixWaves(waves, places, 100, 0, 85), expected) << threads;
    }
    const RenderThreads one(1);
    const WaveData scaled = MixWaves(waves, places, 33, 0, 85);
    const RenderThreads several(4);
    EXPECT_EQ(MixWaves(waves, places, 33, 0, 85), scaled);
}

TEST(MixWaves, TellsItsProgressWhichMayEndIt)
{
    const RenderThreads alone(1); // another thread could do all pieces before this one tells anything
    const auto waves = From1({LevelWave(400000, 1)});
    std::size_t calls = 0;
    const auto count = [&calls](std::size_t done, std::size_t total) {
        ++calls;
        EXPECT_LE(done, total);
    };
    EXPECT_EQ(MixWaves(waves, Placements{{0, 1}}, 100, 0, 100, count), waves[1]);
    EXPECT_GT(calls, 1u);
    const auto stop = [](std::size_t, std::size_t) { throw WorkStopped(); };
    EXPECT_THROW(static_cast<void>(MixWaves(waves, Placements{{0, 1}}, 100, 0, 100, stop)), WorkStopped);
}

} // namespace
} // namespace sprout
