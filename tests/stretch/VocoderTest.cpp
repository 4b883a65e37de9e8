// SPDX-License-Identifier: GPL-3.0-or-later
#include "stretch/Vocoder.h"

#include <gtest/gtest.h>

#include "stretch/TestSounds.h"

namespace sprout::stretch {
namespace {

std::vector<float> Stretched(const std::vector<float>& sound, const TimeMap& map, std::size_t outCount)
{
    Vocoder vocoder(3072, CrossoverGains({}, Vocoder::FftSizeFor(3072), 44100));
    std::vector<float> result(outCount);
    vocoder.AddStretched(sound, map, result);
    return result;
}

} // namespace

TEST(Vocoder, ReturnsItsInputWhereTimeIsNotStretched)
{
    const std::vector<float> sound = NoiseFloats(9000);
    const std::vector<float> result = Stretched(sound, TimeMap(0, 9000, 9000), 9000);
    for (std::size_t i = 0; i < sound.size(); ++i)
        ASSERT_NEAR(result[i], sound[i], 1) << i;
}

TEST(Vocoder, KeepsTheLevelOfAToneUpToBothEnds)
{
    const std::vector<float> result = Stretched(SineFloats(20000, 1000), TimeMap(600, 20000, 30000), 30000);
    const std::span<const float> all = result;
    for (const std::size_t at : {0U, 12000U, 29118U})
        EXPECT_NEAR(LevelAt(all.subspan(at, 882), 1000), 16000, 1600) << at;
}

TEST(Vocoder, AddsToWhatIsThere)
{
    const std::vector<float> sound = SineFloats(9000, 500);
    Vocoder vocoder(3072, CrossoverGains({}, Vocoder::FftSizeFor(3072), 44100));
    std::vector<float> result(9000, 100.0F);
    vocoder.AddStretched(sound, TimeMap(0, 9000, 9000), result);
    EXPECT_NEAR(result[4000], sound[4000] + 100, 1);
}

TEST(Vocoder, MakesSilenceOfSilence)
{
    for (const float sample : Stretched(std::vector<float>(5000), TimeMap(600, 5000, 9000), 9000))
        ASSERT_EQ(sample, 0);
}

TEST(CrossoverGains, AddUpToOneAndCrossBetweenTheirFrequencies)
{
    const std::vector<float> low = CrossoverGains({Crossover::Keep::Low, 400, 800}, 4096, 44100);
    const std::vector<float> high = CrossoverGains({Crossover::Keep::High, 400, 800}, 4096, 44100);
    ASSERT_EQ(low.size(), 2049U);
    for (std::size_t bin = 0; bin < low.size(); ++bin)
        EXPECT_NEAR(low[bin] + high[bin], 1, 1e-6);
    EXPECT_EQ(low[37], 1);  // 398 Hz
    EXPECT_EQ(high[75], 1); // 807 Hz
    EXPECT_NEAR(low[56], 0.5, 0.02);
}

} // namespace sprout::stretch
