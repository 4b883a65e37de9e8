// SPDX-License-Identifier: GPL-3.0-or-later
#include "recording/rules/WaveEdits.h"

#include <gmock/gmock.h>

#include <cmath>

#include "recording/rules/WaveMaker.h"

namespace sprout {
namespace {

using testing::ElementsAre;
using testing::SizeIs;

std::int16_t Changed(VolumeChange change, std::int16_t sample, std::int32_t bits = 16)
{
    WaveData wave = MonoOf({sample}, bits);
    ChangeVolume(change, 1, 1, wave);
    return wave.WavL[1];
}

TEST(ChangeVolume, RoundsHalvesToTheEvenNumber)
{
    EXPECT_EQ(Changed(VolumeChange::Up, 2), 2);     // 2.5
    EXPECT_EQ(Changed(VolumeChange::Up, 6), 8);     // 7.5
    EXPECT_EQ(Changed(VolumeChange::Up, -2), -2);   // -2.5
    EXPECT_EQ(Changed(VolumeChange::Up, -6), -8);   // -7.5
    EXPECT_EQ(Changed(VolumeChange::Up, 3), 4);     // 3.75
    EXPECT_EQ(Changed(VolumeChange::Down, 3), 2);   // 2.4
    EXPECT_EQ(Changed(VolumeChange::Down, -2), -2); // -1.6
}

TEST(ChangeVolume, HoldsLoudSamplesToTheLimitsOfTheBits)
{
    EXPECT_EQ(Changed(VolumeChange::Up, 30000), 32767);
    EXPECT_EQ(Changed(VolumeChange::Up, -30000), -32768);
    EXPECT_EQ(Changed(VolumeChange::Up, 120, 8), 127);
    EXPECT_EQ(Changed(VolumeChange::Up, -120, 8), -128);
    EXPECT_EQ(Changed(VolumeChange::Up, 120), 150);
}

TEST(ChangeVolume, RoundsEverySampleLikeASinglePrecisionProduct)
{
    for (const VolumeChange change : {VolumeChange::Up, VolumeChange::Down}) {
        const float factor = change == VolumeChange::Up ? 1.25F : 0.8F;
        std::vector<std::int16_t> samples;
        std::vector<std::int16_t> expected;
        for (int value = -32768; value <= 32767; ++value) {
            samples.push_back(static_cast<std::int16_t>(value));
            const float rounded = std::nearbyint(static_cast<float>(static_cast<double>(factor) * value));
            expected.push_back(static_cast<std::int16_t>(std::min(std::max(rounded, -32768.0F), 32767.0F)));
        }
        WaveData wave = MonoOf(samples);
        ChangeVolume(change, 1, wave.Length, wave);
        EXPECT_EQ(SamplesOf(wave.WavL), expected);
    }
}

TEST(ChangeVolume, ChangesTheSelectedSamplesOfBothChannelsAlone)
{
    WaveData wave = StereoOf({100, 200, 300, 400}, {10, 20, 40, 80});
    ChangeVolume(VolumeChange::Down, 2, 3, wave);
    EXPECT_THAT(SamplesOf(wave.WavL), ElementsAre(100, 160, 240, 400));
    EXPECT_THAT(SamplesOf(wave.WavR), ElementsAre(10, 16, 32, 80));
}

TEST(ChangeVolume, LeavesTheSamplesOfCopiesAsTheyAre)
{
    const WaveData track = StereoOf({100, 200}, {100, 200});
    WaveData edited = track;
    edited.WavR = edited.WavL; // one block for both
    ChangeVolume(VolumeChange::Up, 1, 1, edited);
    EXPECT_THAT(SamplesOf(track.WavL), ElementsAre(100, 200));
    EXPECT_THAT(SamplesOf(edited.WavL), ElementsAre(125, 200));
    EXPECT_THAT(SamplesOf(edited.WavR), ElementsAre(125, 200));
}

std::int16_t SixAndSix(VolumeChange first, VolumeChange then, std::int16_t sample)
{
    WaveData wave = MonoOf({sample});
    for (int i = 0; i < 6; ++i)
        ChangeVolume(first, 1, 1, wave);
    for (int i = 0; i < 6; ++i)
        ChangeVolume(then, 1, 1, wave);
    return wave.WavL[1];
}

TEST(ChangeVolume, ComesBackFromSixUpsButNotFromSixDownsOfAQuietSound)
{
    for (const std::int16_t sample : std::vector<std::int16_t>{3, 7, 50, 999, -4321})
        EXPECT_EQ(SixAndSix(VolumeChange::Up, VolumeChange::Down, sample), sample);
    EXPECT_NE(SixAndSix(VolumeChange::Down, VolumeChange::Up, 50), 50);
    EXPECT_NE(SixAndSix(VolumeChange::Up, VolumeChange::Down, 30000), 30000); // clipped on the way
}

TEST(CutSamples, MovesTheTailDownInBothChannels)
{
    const WaveData left = CutSamples(StereoOf({1, 2, 3, 4, 5}, {10, 20, 30, 40, 50}), 2, 3);
    EXPECT_EQ(left.Length, 3);
    EXPECT_THAT(SamplesOf(left.WavL), ElementsAre(1, 4, 5));
    EXPECT_THAT(SamplesOf(left.WavR), ElementsAre(10, 40, 50));
}

TEST(CutSamples, CutsAtTheFrontAndAtTheEnd)
{
    const WaveData wave = MonoOf({1, 2, 3, 4, 5});
    EXPECT_THAT(SamplesOf(CutSamples(wave, 1, 2).WavL), ElementsAre(3, 4, 5));
    EXPECT_THAT(SamplesOf(CutSamples(wave, 4, 5).WavL), ElementsAre(1, 2, 3));
    EXPECT_THAT(SamplesOf(wave.WavL), SizeIs(5));
}

TEST(CutSamples, LeavesOneSampleOfACutFromTheSecondToTheLast)
{
    const WaveData left = CutSamples(MonoOf({1, 2, 3, 4, 5}), 2, 5);
    EXPECT_EQ(left.Length, 1);
    EXPECT_THAT(SamplesOf(left.WavL), ElementsAre(1));
    EXPECT_EQ(left.WavR.UpperBound(), 0);
}

TEST(CutSamples, KeepsFormatAndSharing)
{
    WaveData wave = MonoOf({1, 2, 3}, 8);
    wave.Rate = 11025;
    const WaveData mono = CutSamples(wave, 1, 1);
    EXPECT_EQ(mono.Bits, 8);
    EXPECT_EQ(mono.Rate, 11025);
    wave.Channels = 2;
    wave.WavR = wave.WavL;
    const WaveData stereo = CutSamples(wave, 1, 1);
    EXPECT_TRUE(stereo.WavR.SharesBlockWith(stereo.WavL));
}

} // namespace
} // namespace sprout
