// SPDX-License-Identifier: GPL-3.0-or-later
#include "waves/WaveFormat.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <vector>

#include "base/Errors.h"
#include "base/Numbers.h"
#include "sound/Waves.h"
#include "support/FakeServices.h"

namespace sprout {
namespace {

TEST(FramesOf, TakesNoMoreThanTheLengthAndRefusesAShorterChannel)
{
    const Channel channel = Channel::FromSamples(SampleList{1, 2, 3});
    EXPECT_EQ(FramesOf(channel, 2).size(), 2u);
    EXPECT_EQ(FramesOf(channel, 3)[2], 3);
    EXPECT_TRUE(FramesOf(channel, 0).empty());
    EXPECT_TRUE(FramesOf(channel, -5).empty());
    EXPECT_THROW(static_cast<void>(FramesOf(channel, 4)), RunTimeError);
}

TEST(ConvertWaveChannels, MonoBecomesStereoWithoutACopyOfTheSamples)
{
    const WaveData mono = MonoWave({1, -2, 3});
    const WaveData stereo = ConvertWaveChannels(mono, 0);
    EXPECT_EQ(stereo.Channels, 2);
    EXPECT_EQ(ListOf(stereo.WavR), (SampleList{1, -2, 3}));
    EXPECT_TRUE(stereo.WavR.SharesBlockWith(mono.WavL));
}

TEST(ConvertWaveChannels, StereoToMonoTakesThreeQuartersOfTheSum)
{
    // 0.75 x 2 = 1.5 and 0.75 x 6 = 4.5 round to even.
    const WaveData mono = ConvertWaveChannels(StereoWave({100, 1, 3, -1}, {200, 1, 3, -1}), 1);
    EXPECT_EQ(mono.Channels, 1);
    EXPECT_EQ(ListOf(mono.WavL), (SampleList{225, 2, 4, -2}));
    EXPECT_EQ(mono.WavR.UpperBound(), 0);
}

TEST(ConvertWaveChannels, StereoToMonoClipsEightBits)
{
    const WaveData mono = ConvertWaveChannels(StereoWave({127, -128}, {127, -128}, 44100, 8), 1);
    EXPECT_EQ(ListOf(mono.WavL), (SampleList{127, -128}));
}

TEST(ConvertWaveChannels, ASumBeyond16BitsIsARunTimeError)
{
    EXPECT_EQ(ListOf(ConvertWaveChannels(StereoWave({32766}, {1}), 1).WavL), (SampleList{24575}));
    EXPECT_THROW(static_cast<void>(ConvertWaveChannels(StereoWave({32767}, {1}), 1)), RunTimeError);
    EXPECT_THROW(static_cast<void>(ConvertWaveChannels(StereoWave({-32768}, {-1}), 1)), RunTimeError);
}

TEST(ConvertWaveChannels, LeavesEveryOtherCombinationAsItIs)
{
    WaveData odd = StereoWave({1, 2}, {3, 4});
    odd.Channels = 7;
    EXPECT_EQ(ConvertWaveChannels(odd, 2), odd);
    EXPECT_EQ(ConvertWaveChannels(MonoWave({5}), 1), MonoWave({5}));
}

TEST(ConvertWaveFormat, WidensEightBits)
{
    const WaveData wide = ConvertWaveFormat(MonoWave({-128, -1, 0, 127}, 44100, 8), 0, 0);
    EXPECT_EQ(wide.Bits, 16);
    EXPECT_EQ(ListOf(wide.WavL), (SampleList{-32768, -256, 0, 32512}));
}

TEST(ConvertWaveFormat, WideningASampleThatIsNoEightBitSampleIsARunTimeError)
{
    EXPECT_THROW(static_cast<void>(ConvertWaveFormat(MonoWave({128}, 44100, 8), 0, 0)), RunTimeError);
    EXPECT_THROW(static_cast<void>(ConvertWaveFormat(MonoWave({-129}, 44100, 8), 0, 0)), RunTimeError);
}

TEST(ConvertWaveFormat, NarrowingRoundsAndCanGive128)
{
    const WaveData narrow = ConvertWaveFormat(MonoWave({128, 384, -384, 32639, 32640, 32767, -32768}), 44100, 8);
    EXPECT_EQ(narrow.Bits, 8);
    EXPECT_EQ(ListOf(narrow.WavL), (SampleList{0, 2, -2, 127, 128, 128, -128}));
}

TEST(ConvertWaveFormat, AnEmptyWaveGivesABlankRecord)
{
    WaveData empty = MonoWave({}, 11025, 8);
    EXPECT_EQ(ConvertWaveFormat(empty, 0, 0), WaveData());
    empty.Length = -3;
    EXPECT_EQ(ConvertWaveFormat(empty, 0, 0), WaveData());
}

TEST(ConvertWaveFormat, ReturnsAWaveOfTheTargetFormatAsItIs)
{
    const WaveData wave = RampWave(10);
    EXPECT_TRUE(ConvertWaveFormat(wave, 0, 0).WavL.SharesBlockWith(wave.WavL));
}

TEST(ConvertWaveFormat, QuadruplesTheLengthFrom11025)
{
    for (const std::int32_t length : {1, 2, 3, 777}) {
        WaveData wave = RampWave(length);
        wave.Rate = 11025;
        const WaveData converted = ConvertWaveFormat(wave, 0, 0);
        EXPECT_EQ(converted.Length, 4 * length);
        EXPECT_EQ(converted.WavL.UpperBound(), 4 * length);
        EXPECT_EQ(converted.WavR.UpperBound(), 4 * length);
        EXPECT_EQ(converted.Rate, 44100);
        for (std::int32_t i = 1; i <= length; ++i)
            EXPECT_EQ(converted.WavL[4 * i], wave.WavL[i]);
    }
}

TEST(ConvertWaveFormat, HalvesByDroppingEverySecondSample)
{
    const WaveData wave = MonoWave({1, 2, 3, 4, 5});
    const WaveData half = ConvertWaveFormat(wave, 22050, 16);
    EXPECT_EQ(ListOf(half.WavL), (SampleList{2, 4}));
    EXPECT_EQ(half.Length, 2);
    EXPECT_EQ(half.Rate, 22050);
    const WaveData quarter = ConvertWaveFormat(wave, 11025, 16);
    EXPECT_EQ(ListOf(quarter.WavL), (SampleList{4}));
    EXPECT_EQ(quarter.Length, 1);
    EXPECT_EQ(quarter.Rate, 11025);
    EXPECT_EQ(ConvertWaveFormat(MonoWave({9}), 11025, 16).Length, 0);
}

TEST(ConvertWaveFormat, ConvertsBitsBeforeTheRate)
{
    const WaveData up = ConvertWaveFormat(MonoWave({1, 2, 1}, 22050, 8), 0, 0);
    EXPECT_EQ(up.WavL[3], 403); // 384 + 0.075 x (256 - 0); 8 bits would have rounded it to a multiple of 256
    // 127.6 becomes 128, which is not clipped; the values interpolated between two of them are clipped.
    const WaveData down = ConvertWaveFormat(MonoWave({32666, 32666, 32666}, 22050), 44100, 8);
    EXPECT_EQ(ListOf(down.WavL), (SampleList{127, 128, 127, 128, 127, 128}));
}

TEST(ConvertWaveFormat, DoublesAlongTheCurve)
{
    const WaveData twice = ConvertWaveFormat(MonoWave({1000, 2000, -500, 0}, 22050), 0, 0);
    // Before 1000, which element 0 repeats: 1000 + 0.075 x (0 - (2000 - 1000)) = 925.
    // Between 1000 and 2000: 1500 + 0.075 x ((2000 - 1000) - (-500 - 1000)) = 1687.5, rounded to even: 1688.
    // Between 2000 and -500: 750 + 0.075 x ((-500 - 1000) - (0 - 2000)) = 787.5, rounded to even: 788.
    // At the end b is the last difference: -250 + 0.075 x ((0 - 2000) - (0 + 500)) = -437.5, rounded to even: -438.
    EXPECT_EQ(ListOf(twice.WavL), (SampleList{925, 1000, 1688, 2000, 788, -500, -438, 0}));
    EXPECT_EQ(twice.WavL[0], 1000);
}

TEST(ConvertWaveFormat, TheFirstDoubledSampleLiesNearTheFirstOfTheSource)
{
    // Element 0 repeats the first sample: 1000 + 0.075 x (0 - (1100 - 1000)) = 992.5.
    const WaveData twice = ConvertWaveFormat(MonoWave({1000, 1100}, 22050), 0, 0);
    EXPECT_EQ(twice.WavL[1], 992);
    EXPECT_EQ(ListOf(ConvertWaveFormat(MonoWave({-7}, 22050), 0, 0).WavL), (SampleList{-7, -7}));
}

TEST(ConvertWaveFormat, DoublingClipsToTheTargetBits)
{
    const WaveData loud = ConvertWaveFormat(MonoWave({-32768, 32767, 32767, -32768}, 22050), 0, 0);
    EXPECT_EQ(loud.WavL[5], 32767);
    const WaveData small = ConvertWaveFormat(MonoWave({-128, 127, 127, -128}, 22050, 8), 44100, 8);
    EXPECT_EQ(small.WavL[5], 127);
    EXPECT_EQ(small.Bits, 8);
}

/// The steps of the doubler one after the other, on elements counted from 0.
std::vector<double> DoubledByTheBook(const SampleList& samples)
{
    const auto half = static_cast<int>(samples.size());
    const int length = 2 * half;
    std::vector<double> s(static_cast<std::size_t>(length) + 1);
    const auto at = [&s](int i) -> double& { return s[static_cast<std::size_t>(i)]; };
    for (int i = 1; i <= half; ++i)
        at(i) = samples[static_cast<std::size_t>(i - 1)];
    at(0) = at(1);
    for (int i = half; i >= 1; --i)
        at(2 * i) = at(i);
    for (int j = 0; j <= length - 2; j += 2) {
        const double a = j == 0 ? at(j + 2) - at(j) : at(j + 2) - at(j - 2);
        const double c1 = at(j) + a / 5;
        const double b = j == length - 2 ? at(j + 2) - at(j) : at(j + 4) - at(j);
        const double c2 = at(j + 2) - b / 5;
        const double value = 0.125 * at(j) + 0.375 * c1 + 0.375 * c2 + 0.125 * at(j + 2);
        at(j + 1) = std::clamp(RoundHalfEven(value), -32768, 32767);
    }
    return s;
}

TEST(ConvertWaveFormat, DoublesEveryLengthStepByStep)
{
    for (int length = 1; length <= 40; ++length) {
        SampleList samples;
        for (int i = 0; i < length; ++i)
            samples.push_back(static_cast<std::int16_t>((i * 30011 + length * 977) % 65536 - 32768));
        const WaveData twice = ConvertWaveFormat(MonoWave(samples, 22050), 0, 0);
        const std::vector<double> expected = DoubledByTheBook(samples);
        for (std::int32_t i = 0; i <= 2 * length; ++i)
            ASSERT_EQ(twice.WavL[i], expected[static_cast<std::size_t>(i)]) << length << ' ' << i;
    }
}

TEST(ConvertWaveFormat, LeavesUnknownRatesAndBitsAsTheyAre)
{
    for (const std::int32_t rate : {0, -1, 8000, 48000, std::numeric_limits<std::int32_t>::max()}) {
        WaveData wave = RampWave(9);
        wave.Rate = rate;
        EXPECT_EQ(ConvertWaveFormat(wave, 0, 0), wave);
    }
    WaveData wave = RampWave(9);
    wave.Bits = 24;
    EXPECT_EQ(ConvertWaveFormat(wave, 0, 0), wave);
}

TEST(ConvertWaveFormat, AWaveShorterThanItTellsIsARunTimeError)
{
    WaveData wave = MonoWave({1, 2, 3}, 22050);
    wave.Length = 4;
    EXPECT_THROW(static_cast<void>(ConvertWaveFormat(wave, 0, 0)), RunTimeError);
    WaveData lame = MonoWave({1, 2, 3}, 22050);
    lame.Channels = 2;
    EXPECT_THROW(static_cast<void>(ConvertWaveFormat(lame, 0, 0)), RunTimeError);
}

TEST(ConvertWaveFormat, ConvertsSharedChannelsOnce)
{
    const WaveData wave = ConvertWaveChannels(MonoWave({1, 2, 3}, 22050, 8), 2);
    const WaveData converted = ConvertWaveFormat(wave, 0, 0);
    EXPECT_EQ(converted.Length, 6);
    EXPECT_TRUE(converted.WavR.SharesBlockWith(converted.WavL));
}

TEST(ApplyWavePan, FoldsOneChannelIntoTheOther)
{
    const WaveData wave = StereoWave({1000, -3}, {200, 4});
    const WaveData right = ApplyWavePan(wave, 25);
    EXPECT_EQ(ListOf(right.WavL), (SampleList{750, -2}));
    EXPECT_EQ(ListOf(right.WavR), (SampleList{450, 3}));
    const WaveData left = ApplyWavePan(wave, -25);
    EXPECT_EQ(ListOf(left.WavL), (SampleList{1050, -2}));
    EXPECT_EQ(ListOf(left.WavR), (SampleList{150, 3}));
}

TEST(ApplyWavePan, MakesMonoStereoAndLeavesItInTheMiddleAtZero)
{
    const WaveData middle = ApplyWavePan(MonoWave({7, 8}), 0);
    EXPECT_EQ(middle, StereoWave({7, 8}, {7, 8}));
}

TEST(ApplyWavePan, HoldsTheFactorInSinglePrecision)
{
    // 5 x 0.7f = 3.4999999; as a double it would be a tie that rounds to 4.
    EXPECT_EQ(ApplyWavePan(StereoWave({5}, {0}), 70), StereoWave({2}, {3}));
}

TEST(ApplyWavePan, ClipsToTheBits)
{
    EXPECT_EQ(ListOf(ApplyWavePan(StereoWave({30000}, {30000}), 100).WavR), (SampleList{32767}));
    EXPECT_EQ(ListOf(ApplyWavePan(StereoWave({-100}, {-100}, 44100, 8), -100).WavL), (SampleList{-128}));
}

TEST(ScaleWaveVolume, MultipliesRoundsAndClips)
{
    const WaveData half = ScaleWaveVolume(StereoWave({1, 3, 32767}, {-1, -3, -32768}), 50, 100);
    EXPECT_EQ(ListOf(half.WavL), (SampleList{0, 2, 16384}));
    EXPECT_EQ(ListOf(half.WavR), (SampleList{0, -2, -16384}));
    const WaveData loud = ScaleWaveVolume(MonoWave({20000, -20000}), 200, 80);
    EXPECT_EQ(ListOf(loud.WavL), (SampleList{26214, -26214}));
    EXPECT_EQ(loud.WavR.UpperBound(), 0);
}

TEST(ScaleWaveVolume, AClipOfZeroIsFullScaleAndEightBitsHaveTheirOwnLimits)
{
    EXPECT_EQ(ListOf(ScaleWaveVolume(MonoWave({30000, -30000}), 200, 0).WavL), (SampleList{32767, -32768}));
    EXPECT_EQ(ListOf(ScaleWaveVolume(MonoWave({100, -100}, 44100, 8), 200, 80).WavL), (SampleList{127, -128}));
}

TEST(ScaleWaveVolume, HoldsTheFactorInSinglePrecision)
{
    // The float 0.7 is slightly below 0.7: 5 x 0.7f = 3.4999999, not the tie 3.5, which would round to 4.
    EXPECT_EQ(ListOf(ScaleWaveVolume(MonoWave({5}), 70, 100).WavL), (SampleList{3}));
}

TEST(ScaleWaveVolume, AClipAboveFullScaleLetsNoSampleLeaveThe16Bits)
{
    EXPECT_EQ(ListOf(ScaleWaveVolume(MonoWave({100}), 200, 150).WavL), (SampleList{200}));
    EXPECT_THROW(static_cast<void>(ScaleWaveVolume(MonoWave({30000}), 200, 150)), RunTimeError);
}

} // namespace
} // namespace sprout
