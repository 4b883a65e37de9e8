// SPDX-License-Identifier: GPL-3.0-or-later
#include "tutorial/SungVoice.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "support/TestFolder.h"

namespace sprout {
namespace {

class SungVoiceTest : public testing::Test {
protected:
    SungVoiceTest()
    {
        WaveData sound;
        sound.Length = 3;
        sound.WavL = Channel::FromSamples(std::vector<std::int16_t>{1, 2, -3});
        sound.WavR = Channel::FromSamples(std::vector<std::int16_t>{4, 5, 6});
        voice.SetVoice(sound);
    }

    TestFolder folder;
    std::filesystem::path left = folder.Path() / "left";
    std::filesystem::path right = folder.Path() / "right";
    SungVoice voice;
};

TEST_F(SungVoiceTest, IsRecordedAsLongAsItSings)
{
    ASSERT_TRUE(voice.Start(left, right));
    voice.Sing(0.5);
    voice.Sing(0.5);
    voice.Stop();
    EXPECT_EQ(std::filesystem::file_size(left), 88200U);
    EXPECT_EQ(ReadBytes(left).substr(0, 8), std::string("\1\0\2\0\xFD\xFF\1\0", 8));
    EXPECT_EQ(ReadBytes(right).substr(0, 8), std::string("\4\0\5\0\6\0\4\0", 8));
}

TEST_F(SungVoiceTest, TellsHowLongAndHowLoudItWas)
{
    EXPECT_EQ(voice.Status().State, CaptureState::Stopped);
    ASSERT_TRUE(voice.Start(left, right));
    EXPECT_EQ(voice.Peaks().Left, 0);
    voice.Sing(3);
    EXPECT_EQ(voice.Status().State, CaptureState::Recording);
    EXPECT_EQ(voice.Status().Blocks, 15);
    EXPECT_EQ(voice.Status().Pieces, 150);
    EXPECT_GT(voice.Peaks().Left, 10000);
    EXPECT_FALSE(voice.Peaks().LeftOverloaded);
    EXPECT_EQ(voice.ListSources()->Sources.size(), 1U);
}

TEST_F(SungVoiceTest, LeavesNoFilesOfACancelledRecording)
{
    ASSERT_TRUE(voice.Start(left, right));
    EXPECT_TRUE(std::filesystem::exists(left));
    voice.Release();
    EXPECT_FALSE(std::filesystem::exists(left));
    EXPECT_FALSE(std::filesystem::exists(right));
    EXPECT_EQ(voice.Status().State, CaptureState::Stopped);
}

} // namespace
} // namespace sprout
