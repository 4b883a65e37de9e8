// SPDX-License-Identifier: GPL-3.0-or-later
#include "tutorial/HeardSound.h"

#include <gtest/gtest.h>

#include <vector>

namespace sprout {
namespace {

/// A second of stereo: left `left`, right its half.
std::vector<std::byte> SecondOf(std::int16_t left)
{
    std::vector<std::byte> pcm;
    for (int frame = 0; frame < 44100; ++frame)
        for (const int sample : {int{left}, left / 2}) {
            pcm.push_back(static_cast<std::byte>(sample & 0xFF));
            pcm.push_back(static_cast<std::byte>(sample >> 8 & 0xFF));
        }
    return pcm;
}

class HeardSoundTest : public testing::Test {
protected:
    void Play(std::int16_t left)
    {
        const std::vector<std::byte> pcm = SecondOf(left);
        object = sound.Open(std::move(object), 1, SoundFormat(), static_cast<std::int32_t>(pcm.size()));
        object->Load(pcm);
        object->Start(StartFrom::Beginning, Loop::No);
    }

    HeardSound sound;
    SoundHandle object;
};

TEST_F(HeardSoundTest, GivesWhatIsHeardPieceByPiece)
{
    Play(-2000);
    const WaveData first = sound.Hear(0.25);
    EXPECT_EQ(first.Length, 11025);
    EXPECT_EQ(first.WavL[1], -2000);
    EXPECT_EQ(first.WavR[11025], -1000);
    EXPECT_EQ(object->Place().Cursor, 11025);
    EXPECT_TRUE(object->Place().Playing);
    EXPECT_EQ(sound.Hear(2).Length, 44100 - 11025) << "it ends";
    EXPECT_EQ(sound.Hear(1).Length, 0);
}

TEST_F(HeardSoundTest, BeginsAnewWithEachSound)
{
    Play(100);
    EXPECT_EQ(sound.Hear(0.5).WavL[1], 100);
    Play(300);
    EXPECT_EQ(sound.Hear(0.5).WavL[1], 300);
}

TEST_F(HeardSoundTest, KeepsItsPlaceWhereItStops)
{
    EXPECT_EQ(sound.Hear(1).Length, 0);
    Play(100);
    static_cast<void>(sound.Hear(0.5));
    object->Stop();
    EXPECT_FALSE(object->Place().Playing);
    object->Start(StartFrom::WhereItStopped, Loop::No);
    EXPECT_EQ(object->Place().Cursor, 22050);
}

TEST_F(HeardSoundTest, BecomesAShortMonoSoundWithASoftEnd)
{
    Play(2000);
    const WaveData slide = SoundOfSlide(sound.Hear(1));
    EXPECT_EQ(slide.Channels, 1);
    EXPECT_EQ(slide.Rate, 22050);
    EXPECT_EQ(slide.Length, 22050);
    EXPECT_EQ(slide.WavL[5000], 1500);
    EXPECT_NEAR(slide.WavL[22050 - 5512], 750, 1);
    EXPECT_EQ(slide.WavL[22050], 0);
}

} // namespace
} // namespace sprout
