// SPDX-License-Identifier: GPL-3.0-or-later
#include "waves/WavOperations.h"

#include <gtest/gtest.h>

#include <cmath>
#include <utility>

#include "waves/WavFile.h"

namespace sprout {
namespace {

/// The formula of the test tone, frame by frame.
SampleList ToneByTheBook(std::int32_t frames, double rate, double amplitude)
{
    const double turn = 6.28318530717958;
    double step = turn / (rate / 650);
    const double growth = std::pow((turn / (rate / 700)) / step, 1.0 / frames);
    SampleList samples;
    double phase = 0;
    for (std::int32_t i = 1; i <= frames; ++i) {
        const double left = static_cast<double>(frames - i) / frames;
        samples.push_back(static_cast<std::int16_t>(std::nearbyint(std::sin(phase) * amplitude * left)));
        step *= growth;
        phase += step;
        if (phase > turn)
            phase -= turn;
    }
    return samples;
}

TEST_F(WavFile, TheTestToneIsItsFormulaSampleBySample)
{
    const WaveData tone = MakeTestTone();
    EXPECT_EQ(tone.Length, 8820);
    EXPECT_EQ(ListOf(tone.WavL), ToneByTheBook(8820, 44100, 22937));
    EXPECT_EQ(tone.WavL[1], 0);
    EXPECT_EQ(tone.WavL[2], 2121); // the amplitude times sin(2 pi 650 / 44100); two of 8820 frames faded
    EXPECT_TRUE(tone.WavR == tone.WavL);
    EXPECT_EQ(tone.Channels, 2);
}

TEST_F(WavFile, TheTestToneFollowsTheSharedFormat)
{
    Shared().SampleRate = 22050;
    Shared().BitsPerSample = 8;
    Shared().Channels = 1;
    const WaveData tone = MakeTestTone();
    EXPECT_EQ(ListOf(tone.WavL), ToneByTheBook(4410, 22050, 89));
    EXPECT_EQ(tone.WavR.UpperBound(), 0);
    EXPECT_EQ(tone.Rate, 22050);
    EXPECT_EQ(tone.Bits, 8);
}

TEST_F(WavFile, TheTestTonesLengthIsRounded)
{
    for (const auto& [rate, frames] : {std::pair(44112, 8822), std::pair(44113, 8823)}) {
        Shared().SampleRate = rate;
        EXPECT_EQ(MakeTestTone().Length, frames) << rate;
    }
}

TEST_F(WavFile, TellsAToneThatCannotBeMade)
{
    Shared().SampleRate = -1;
    EXPECT_EQ(MakeTestTone().Length, 0);
    ASSERT_EQ(fake.messages.shown.size(), 1U);
    EXPECT_EQ(fake.messages.shown[0].title, "Generate Sine Error");
}

} // namespace
} // namespace sprout
