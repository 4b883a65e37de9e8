// SPDX-License-Identifier: GPL-3.0-or-later
#include "sound/StepCache.h"

#include <gtest/gtest.h>

#include <vector>

#include "sound/Waves.h"

namespace sprout {
namespace {

TEST(StepCache, FindsTheSoundOfAnEqualKey)
{
    StepCache cache;
    const WaveData source = RampWave(100);
    const StepKey key{source, 2, 0.5f, 70};
    EXPECT_EQ(cache.Find(key), nullptr);
    cache.Keep(key, LevelWave(50, 3));
    ASSERT_NE(cache.Find({source, 2, 0.5f, 70}), nullptr);
    EXPECT_EQ(*cache.Find(key), LevelWave(50, 3));
}

TEST(StepCache, TellsEveryPartOfAKeyApart)
{
    StepCache cache;
    const WaveData source = RampWave(100);
    cache.Keep({source, 1, 1, 100}, source);
    EXPECT_EQ(cache.Find({source, 2, 1, 100}), nullptr);
    EXPECT_EQ(cache.Find({source, 1, 2, 100}), nullptr);
    EXPECT_EQ(cache.Find({source, 1, 1, 99}), nullptr);
    EXPECT_EQ(cache.Find({RampWave(100), 1, 1, 100}), nullptr) << "a source of its own block";
    WaveData other = source;
    other.Rate = 22050;
    EXPECT_EQ(cache.Find({other, 1, 1, 100}), nullptr);
    other = source;
    other.Bits = 8;
    EXPECT_EQ(cache.Find({other, 1, 1, 100}), nullptr);
    other = source;
    other.Channels = 1;
    EXPECT_EQ(cache.Find({other, 1, 1, 100}), nullptr);
    other = source;
    other.Length = 99;
    EXPECT_EQ(cache.Find({other, 1, 1, 100}), nullptr);
    other = source;
    other.WavR = Channel();
    EXPECT_EQ(cache.Find({other, 1, 1, 100}), nullptr);
}

TEST(StepCache, AChangeOfTheSourceIsAnotherSource)
{
    StepCache cache;
    WaveData source = RampWave(100);
    cache.Keep({source, 1, 1, 100}, source);
    source.WavL.Change()[1] = 5;
    EXPECT_EQ(cache.Find({source, 1, 1, 100}), nullptr);
}

TEST(StepCache, DropsWhatWasNotUsedForLongest)
{
    StepCache cache;
    std::vector<StepKey> keys;
    for (int i = 0; i < 3; ++i) {
        keys.push_back({RampWave(10000), 1, 1, 100});
        cache.Keep(keys.back(), LevelWave(10000, 1));
    }
    ASSERT_NE(cache.Find(keys[0]), nullptr);
    cache.SetMostBytes(cache.Bytes() - 1);
    EXPECT_EQ(cache.Count(), 2u);
    EXPECT_NE(cache.Find(keys[0]), nullptr);
    EXPECT_EQ(cache.Find(keys[1]), nullptr);
    EXPECT_NE(cache.Find(keys[2]), nullptr);
}

TEST(StepCache, NeverHoldsMoreThanItsBound)
{
    StepCache cache(100000);
    for (int i = 0; i < 50; ++i) {
        cache.Keep({RampWave(1000 + 300 * i), 1, 1, 100}, LevelWave(2000, 1));
        EXPECT_LE(cache.Bytes(), 100000u);
    }
    EXPECT_GT(cache.Count(), 0u);
    cache.Keep({RampWave(10), 1, 1, 100}, LevelWave(60000, 1));
    EXPECT_EQ(cache.Count(), 0u);
    EXPECT_EQ(cache.Bytes(), 0u);
}

TEST(StepCache, CountsASharedBlockOnce)
{
    StepCache cache;
    const WaveData source = RampWave(10000);
    cache.Keep({source, 1, 1, 100}, source);
    const std::size_t first = cache.Bytes();
    EXPECT_LT(first, 2u * 2 * 10001 + 1000) << "the source's two channels";
    cache.Keep({source, 1, 1, 50}, source);
    EXPECT_LT(cache.Bytes() - first, 1000u);
    cache.Keep({source, 1, 1, 50}, source);
    EXPECT_EQ(cache.Count(), 2u);
    cache.SetMostBytes(first);
    EXPECT_EQ(cache.Bytes(), first);
    cache.Clear();
    EXPECT_EQ(cache.Bytes(), 0u);
    EXPECT_EQ(cache.Find({source, 1, 1, 100}), nullptr);
}

} // namespace
} // namespace sprout
