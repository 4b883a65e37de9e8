// SPDX-License-Identifier: GPL-3.0-or-later
#include "sprout-library/Measure.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "waves/WavOperations.h"

namespace sprout {
namespace {

std::vector<double> Sine(double frequency, double seconds, double amplitude)
{
    std::vector<double> sound(static_cast<std::size_t>(seconds * kRate));
    for (std::size_t i = 0; i < sound.size(); ++i)
        sound[i] = amplitude * std::sin(2 * std::numbers::pi * frequency * static_cast<double>(i) / kRate);
    return sound;
}

double FrequencyOf(int key, double cents)
{
    return 440 * std::exp2((key - 69) / 12.0 + cents / 1200);
}

WaveData Stereo(const std::vector<double>& sound)
{
    std::vector<std::int16_t> samples;
    for (const double sample : sound)
        samples.push_back(static_cast<std::int16_t>(std::lround(sample * 32767)));
    WaveData wave = EmptyWave();
    wave.WavL = wave.WavR = Channel::FromSamples(samples);
    wave.Length = wave.WavL.UpperBound();
    return wave;
}

TEST(PeakDb, IsZeroAtFullScaleAndFloorInSilence)
{
    EXPECT_DOUBLE_EQ(PeakDb(std::vector<double>{0.1, -1, 0.5}), 0);
    EXPECT_NEAR(PeakDb(std::vector<double>{0.5}), -6.02, 0.01);
    EXPECT_DOUBLE_EQ(PeakDb(std::vector<double>{0, 0}), kSilenceDb);
    EXPECT_DOUBLE_EQ(PeakDb({}), kSilenceDb);
}

TEST(Offset, IsTheMean)
{
    EXPECT_DOUBLE_EQ(Offset(std::vector<double>{0.5, 0.25, 0, 0.25}), 0.25);
}

TEST(LoudnessDb, ReadsTheStandardsReferenceTone)
{
    // A 997 Hz sine at full scale measures -3.01 LUFS in one channel, and 3 dB more in both.
    EXPECT_NEAR(LoudnessDb(Stereo(Sine(997, 5, 1))), 0.0, 0.05);
    EXPECT_NEAR(LoudnessDb(Stereo(Sine(997, 5, 0.1))), -20.0, 0.05);
}

TEST(LoudnessDb, LeavesSilenceBesideTheSoundOut)
{
    std::vector<double> sound = Sine(997, 4, 0.1);
    sound.resize(sound.size() * 3);
    EXPECT_NEAR(LoudnessDb(Stereo(sound)), -20.0, 0.3);
    EXPECT_DOUBLE_EQ(LoudnessDb(Stereo(std::vector<double>(44100))), kSilenceDb);
}

TEST(LoudestSecond, IsFoundToATenth)
{
    std::vector<double> sound = Sine(997, 6, 0.01);
    const std::vector<double> loud = Sine(997, 1, 0.1);
    std::copy(loud.begin(), loud.end(), sound.begin() + 3 * 44100 + 22050);
    const Loud found = LoudestSecond(Stereo(sound));
    EXPECT_NEAR(found.Db, -20.0, 0.1);
    EXPECT_NEAR(found.Seconds, 3.5, 0.01);
}

TEST(LoudestDb, TakesTheLoudestTenthOfASecond)
{
    std::vector<double> sound = Sine(997, 1, 0.01);
    const std::vector<double> loud = Sine(997, 0.2, 0.1);
    std::copy(loud.begin(), loud.end(), sound.begin() + 22050);
    EXPECT_NEAR(LoudestDb(sound), -23.0, 0.1);
}

TEST(CentsOff, TellsHowFarASoundIsFromItsKey)
{
    for (const int key : {36, 48, 60, 72, 84}) {
        EXPECT_NEAR(CentsOff(Sine(FrequencyOf(key, 12), 0.5, 0.5), key), 12, 0.5) << key;
        EXPECT_NEAR(CentsOff(Sine(FrequencyOf(key, -30), 0.5, 0.5), key), -30, 0.5) << key;
    }
}

TEST(SoundingC, FindsTheOctave)
{
    for (const int key : {36, 48, 60, 72, 84})
        EXPECT_EQ(SoundingC(Sine(FrequencyOf(key, 3), 0.5, 0.5)), key);
}

TEST(SoundingC, IsZeroForNoiseWithoutAPitch)
{
    std::vector<double> click(4410);
    click[0] = 1;
    EXPECT_EQ(SoundingC(click), 0);
}

} // namespace
} // namespace sprout
