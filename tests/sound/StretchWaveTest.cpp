// SPDX-License-Identifier: GPL-3.0-or-later
#include "sound/StretchWave.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <span>
#include <vector>

#include "base/Errors.h"
#include "service/Services.h"
#include "sound/Waves.h"
#include "support/FakeServices.h"

namespace sprout {
namespace {

class StretchWaveTest : public testing::Test {
protected:
    FakeServices services;
};

TEST(PitchFactor, StaysWithinAnOctave)
{
    EXPECT_EQ(PitchFactor(0), 1.0f);
    EXPECT_EQ(PitchFactor(12), 2.0f);
    EXPECT_EQ(PitchFactor(14), 2.0f);
    EXPECT_EQ(PitchFactor(-12), 0.5f);
    EXPECT_EQ(PitchFactor(-20), 0.5f);
    EXPECT_FLOAT_EQ(PitchFactor(7), 1.4983071f);
    EXPECT_EQ(PitchFactor(1000000000), 2.0f);
    EXPECT_EQ(PitchFactor(-1000000000), 0.5f);
}

TEST(DurationFactor, HalvesTheWayBelow100)
{
    EXPECT_EQ(DurationFactor(100), 1.0f);
    EXPECT_EQ(DurationFactor(0), 0.5f);
    EXPECT_EQ(DurationFactor(50), 0.75f);
    EXPECT_EQ(DurationFactor(99), 0.995f);
    EXPECT_EQ(DurationFactor(150), 1.5f);
    EXPECT_EQ(DurationFactor(200), 2.0f);
    EXPECT_EQ(DurationFactor(100000), 2.0f);
    EXPECT_EQ(DurationFactor(-100000), 0.5f);
}

TEST_F(StretchWaveTest, OneAndTwoFramesPass)
{
    EXPECT_EQ(StretchWave(MonoWave({1, 2}), 2, 2), MonoWave({1, 2}));
    EXPECT_EQ(StretchWave(MonoWave({}), 2, 2), MonoWave({}));
    EXPECT_TRUE(services.stretch.Calls().empty());
}

TEST_F(StretchWaveTest, ThreeTo511FramesComeOutSilent)
{
    for (const std::int32_t length : {3, 511}) {
        const WaveData silent = StretchWave(RampWave(length), 1, 1);
        EXPECT_EQ(silent.Length, 0);
        EXPECT_EQ(silent.WavL.UpperBound(), length);
        EXPECT_EQ(silent.WavL[1], 0);
        EXPECT_EQ(silent.WavR.UpperBound(), 0);
    }
    EXPECT_TRUE(services.stretch.Calls().empty());
    EXPECT_EQ(StretchWave(RampWave(512), 1, 1), RampWave(512));
}

TEST_F(StretchWaveTest, HandsRateFactorsAndEveryChannelToTheService)
{
    WaveData wave = RampWave(600);
    wave.Rate = 22050;
    const WaveData result = StretchWave(wave, 1.5f, 2);
    EXPECT_EQ(result.Length, 1200);
    EXPECT_EQ(result.Rate, 22050);
    EXPECT_EQ(result.WavR[1200], wave.WavR[600]);
    const auto calls = services.stretch.Calls();
    ASSERT_EQ(calls.size(), 2u);
    EXPECT_EQ(calls[0].pitchFactor, 1.5f);
    EXPECT_EQ(calls[0].durationFactor, 2.0f);
    EXPECT_EQ(calls[0].rate, 22050);
    EXPECT_EQ(calls[0].count, 600u);
}

TEST_F(StretchWaveTest, StretchesEqualChannelsOnce)
{
    const WaveData result = StretchWave(LevelWave(600, 5), 1, 2);
    EXPECT_EQ(services.stretch.Calls().size(), 1u);
    EXPECT_EQ(result, LevelWave(1200, 5));
}

TEST_F(StretchWaveTest, MonoStaysMono)
{
    const WaveData result = StretchWave(MonoWave(SampleList(512, 3)), 1, 0.5f);
    EXPECT_EQ(result, MonoWave(SampleList(256, 3)));
}

TEST_F(StretchWaveTest, AFailureIsSilent)
{
    services.stretch.fails = true;
    const WaveData result = StretchWave(RampWave(600), 1, 1);
    EXPECT_EQ(result.Length, 0);
    EXPECT_EQ(result.WavL.UpperBound(), 600);
}

TEST_F(StretchWaveTest, EightBitSamplesAreShiftedUpAndBack)
{
    SampleList samples(512, 100);
    samples[0] = 127;
    samples[1] = -128;
    const WaveData result = StretchWave(MonoWave(samples, 44100, 8), 1, 1);
    EXPECT_EQ(ListOf(result.WavL), samples);
    EXPECT_EQ(result.Bits, 8);
}

/// Returns what the test has set.
class OddStretch : public Stretch {
public:
    [[nodiscard]] std::vector<std::int16_t> Change(std::span<const std::int16_t> samples, std::int32_t /*rate*/,
                                                   float /*pitchFactor*/, float /*durationFactor*/) const override
    {
        heard = samples.front();
        if (refusedSample != 0 && samples.front() == refusedSample)
            return {};
        const auto count = told != 0 ? told : static_cast<std::int32_t>(samples.size()) + samples.front();
        return std::vector<std::int16_t>(static_cast<std::size_t>(count), given);
    }

    std::int32_t told = 0; // 0: the number of input samples plus the value of the first one
    std::int16_t given = 9;
    std::int16_t refusedSample = 0;
    mutable std::int16_t heard = 0;
};

TEST_F(StretchWaveTest, TheLongerChannelSetsTheLength)
{
    OddStretch odd;
    TheServices().stretch = &odd;
    const WaveData left = StretchWave(StereoWave(SampleList(512, 10), SampleList(512, 3)), 1, 1);
    EXPECT_EQ(left.Length, 522);
    EXPECT_EQ(left.WavR.UpperBound(), 522);
    EXPECT_EQ(left.WavR[515], 9);
    EXPECT_EQ(left.WavR[516], 0);
    EXPECT_EQ(left.WavL[522], 9);
    const WaveData right = StretchWave(StereoWave(SampleList(512, 3), SampleList(512, 10)), 1, 1);
    EXPECT_EQ(right.Length, 522);
    EXPECT_EQ(right.WavL.UpperBound(), 522);
    EXPECT_EQ(right.WavL[515], 9);
    EXPECT_EQ(right.WavL[516], 0);
    EXPECT_EQ(right.WavR[522], 9);
}

TEST_F(StretchWaveTest, ARightChannelThatFailsIsSilentBesideTheLeftOne)
{
    OddStretch odd;
    odd.refusedSample = 3;
    TheServices().stretch = &odd;
    const WaveData result = StretchWave(StereoWave(SampleList(512, 10), SampleList(512, 3)), 1, 1);
    EXPECT_EQ(result.Length, 522);
    EXPECT_EQ(ListOf(result.WavR), SampleList(522, 0));
}

TEST_F(StretchWaveTest, TakesTheLengthThatComes)
{
    OddStretch odd;
    TheServices().stretch = &odd;
    for (const std::int32_t told : {1, 2048}) {
        odd.told = told;
        const WaveData result = StretchWave(RampWave(512), 1, 1);
        EXPECT_EQ(result.Length, told);
        EXPECT_EQ(result.WavL.UpperBound(), told);
    }
}

TEST_F(StretchWaveTest, EightBitsComeBackRoundedAndNever128)
{
    OddStretch odd;
    odd.told = 3;
    TheServices().stretch = &odd;
    const WaveData wave = MonoWave(SampleList(512, -2), 44100, 8);
    odd.given = 32767;
    EXPECT_EQ(ListOf(StretchWave(wave, 1, 1).WavL), SampleList(3, 127));
    EXPECT_EQ(odd.heard, -512);
    odd.given = 384;
    EXPECT_EQ(ListOf(StretchWave(wave, 1, 1).WavL), SampleList(3, 2));
}

TEST_F(StretchWaveTest, AWaveShorterThanItTellsIsARunTimeError)
{
    WaveData wave = RampWave(600);
    wave.Length = 601;
    EXPECT_THROW(static_cast<void>(StretchWave(wave, 1, 1)), RunTimeError);
}

} // namespace
} // namespace sprout
