// SPDX-License-Identifier: GPL-3.0-or-later
#include "stretch/StretchEngine.h"

#include <gmock/gmock.h>

#include <algorithm>

#include "stretch/TestSounds.h"

namespace sprout::stretch {
namespace {

constexpr std::int32_t kRate = 44100;

/// The first sample that is louder than a tenth of the loudest.
Index AttackOf(const std::vector<std::int16_t>& sound)
{
    int loudest = 0;
    for (const std::int16_t sample : sound)
        loudest = std::max(loudest, std::abs(sample));
    const auto first = std::find_if(sound.begin(), sound.end(), [=](int s) { return std::abs(s) * 10 > loudest; });
    return first - sound.begin();
}

} // namespace

TEST(StretchSamples, MovesThePitchAndKeepsTheLength)
{
    const std::vector<std::int16_t> sound = SineSamples(30000, 600);
    for (const double pitch : {0.5, 0.75, 1.25, 2.0}) {
        const std::vector<std::int16_t> result = StretchSamples(sound, kRate, pitch, 1);
        ASSERT_EQ(result.size(), sound.size());
        const std::span<const std::int16_t> middle = std::span(result).subspan(5000, 20000);
        EXPECT_NEAR(LevelAt(middle, 600 * pitch), 16000, 100) << pitch;
        EXPECT_LT(LevelAt(middle, 600), 20) << pitch;
    }
}

TEST(StretchSamples, MovesTheLengthAndKeepsThePitch)
{
    const std::vector<std::int16_t> sound = SineSamples(30001, 600);
    for (const double duration : {0.5, 0.75, 1.5, 2.0}) {
        const std::vector<std::int16_t> result = StretchSamples(sound, kRate, 1, duration);
        ASSERT_EQ(std::ssize(result), ResultLength(30001, duration));
        const std::span<const std::int16_t> middle = std::span(result).subspan(3000, 10000);
        EXPECT_NEAR(LevelAt(middle, 600), 16000, 100) << duration;
    }
}

TEST(StretchSamples, HoldsThePitchAtTheLowerRates)
{
    for (const std::int32_t rate : {11025, 22050}) {
        const std::vector<std::int16_t> result = StretchSamples(SineSamples(10000, 600, 16000, rate), rate, 1.5, 1.5);
        ASSERT_EQ(result.size(), 15000U);
        EXPECT_NEAR(LevelAt(std::span<const std::int16_t>(result).subspan(2000, 10000), 900, rate), 16000, 150);
    }
}

TEST(StretchSamples, LandsAnAttackAtItsStretchedPlaceWithNothingAhead)
{
    const std::vector<std::int16_t> sound = Rounded(StruckFloats(30000, 8000));
    for (const double duration : {0.5, 1.0, 2.0}) {
        const std::vector<std::int16_t> result = StretchSamples(sound, kRate, 1.26, duration);
        EXPECT_NEAR(static_cast<double>(AttackOf(result)), 8000 * duration, 20) << duration;
        for (Index i = 0; i < static_cast<Index>(8000 * duration) - 88; ++i)
            ASSERT_NEAR(result[static_cast<std::size_t>(i)], 0, 3) << i;
    }
}

TEST(StretchSamples, BeginsWithoutLatency)
{
    const std::vector<std::int16_t> sound = Rounded(StruckFloats(20000, 0));
    EXPECT_LT(AttackOf(StretchSamples(sound, kRate, 0.75, 1.5)), 20);
    EXPECT_LT(AttackOf(StretchSamples(sound, kRate, 1.5, 0.75)), 20);
}

TEST(StretchSamples, KeepsAnAttackAsItIsWhenOnlyTheLengthChanges)
{
    const std::vector<std::int16_t> sound = Rounded(StruckFloats(30000, 0));
    const std::vector<std::int16_t> result = StretchSamples(sound, kRate, 1, 1.5);
    for (std::size_t i = 0; i < 300; ++i)
        ASSERT_EQ(result[i], sound[i]) << i;
}

TEST(StretchSamples, StretchesNoiseWithoutLosingItsLevel)
{
    const std::vector<std::int16_t> sound = Rounded(NoiseFloats(30000));
    const std::vector<std::int16_t> result = StretchSamples(sound, kRate, 1, 1.5);
    const auto power = [](const std::vector<std::int16_t>& samples) {
        double sum = 0;
        for (const double sample : samples)
            sum += sample * sample;
        return sum / static_cast<double>(samples.size());
    };
    EXPECT_NEAR(10 * std::log10(power(result) / power(sound)), 0, 1.5);
}

TEST(StretchSamples, CutsOffWhatIsTooLoudAndNeverWraps)
{
    std::vector<std::int16_t> sound(30000);
    for (std::size_t i = 0; i < sound.size(); ++i) {
        const double wave =
            90000 * std::sin(static_cast<double>(i) * 0.02) + 9000 * std::sin(static_cast<double>(i) * 0.1);
        sound[i] = static_cast<std::int16_t>(std::clamp(wave, -32768.0, 32767.0));
    }
    const std::vector<std::int16_t> result = StretchSamples(sound, kRate, 1.5, 1.5);
    EXPECT_EQ(*std::max_element(result.begin(), result.end()), 32767);
    for (std::size_t i = 1; i < result.size(); ++i)
        ASSERT_LT(std::abs(result[i] - result[i - 1]), 32768) << i;
}

TEST(StretchSamples, MakesSilenceOfSilence)
{
    EXPECT_THAT(StretchSamples(std::vector<std::int16_t>(9000), kRate, 1.3, 1.7), testing::Each(0));
}

TEST(StretchSamples, SoundsBlocksTooShortForASpectrum)
{
    for (const std::size_t count : {std::size_t{1}, std::size_t{2}, std::size_t{3}, std::size_t{255}}) {
        const std::vector<std::int16_t> sound = SineSamples(count, 3000);
        EXPECT_EQ(StretchSamples(sound, kRate, 2, 2).size(), 2 * count);
        EXPECT_EQ(std::ssize(StretchSamples(sound, kRate, 0.5, 0.5)), ResultLength(std::ssize(sound), 0.5));
    }
    const std::vector<std::int16_t> result = StretchSamples(SineSamples(250, 3000), kRate, 0.5, 1);
    EXPECT_NEAR(LevelAt(std::span<const std::int16_t>(result).first(150), 1500), 16000, 1600);
}

TEST(StretchSamples, KeepsTheLevelOfTheShortestBlocks)
{
    const std::vector<std::int16_t> sound = SineSamples(512, 1000);
    for (const double factor : {0.5, 0.8, 1.3, 2.0}) {
        const std::vector<std::int16_t> result = StretchSamples(sound, kRate, factor, 1);
        ASSERT_EQ(result.size(), 512U);
        EXPECT_GT(LevelAt(std::span<const std::int16_t>(result), 1000 * factor), 10000) << factor;
    }
}

TEST(StretchSamples, TakesAMinuteOfSound)
{
    const std::vector<std::int16_t> sound = SineSamples(60 * 11025, 440, 16000, 11025);
    EXPECT_EQ(std::ssize(StretchSamples(sound, 11025, 1.1, 1.1)), ResultLength(std::ssize(sound), 1.1));
}

TEST(StretchTime, HasExactlyTheLengthAsked)
{
    const std::vector<float> sound = StruckFloats(9000, 3000);
    for (const Index count : {256, 2251, 8999, 9001, 36000})
        EXPECT_EQ(std::ssize(StretchTime(sound, count, SizesFor(kRate))), count);
}

} // namespace sprout::stretch
