// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/sound/LimitedSound.h"

#include <gtest/gtest.h>

#include <initializer_list>

#include "core/Settings.h"
#include "support/FakeServices.h"

namespace sprout {
namespace {

constexpr SoundFormat kStereo16{2, 44100, 16};

std::vector<std::byte> Samples(std::initializer_list<int> values)
{
    std::vector<std::byte> pcm;
    for (const int value : values) {
        pcm.push_back(static_cast<std::byte>(value));
        pcm.push_back(static_cast<std::byte>(static_cast<unsigned>(value) >> 8U));
    }
    return pcm;
}

class LimitedSoundTest : public testing::Test {
protected:
    static void Limit(std::string_view percent) { PutSetting("General", "LoudnessLimit", percent); }

    FakeServices fake;
    LimitedSound limited{fake.sound};
};

TEST(AtLoudness, ScalesSamplesTowardsSilence)
{
    EXPECT_EQ(AtLoudness(Samples({0, 1000, -1000, 32767, -32768, 1, -1}), 16, 50),
              Samples({0, 500, -500, 16383, -16384, 0, 0}));
    EXPECT_EQ(AtLoudness(Samples({32767, -32768}), 16, 10), Samples({3276, -3276}));
    const std::vector<std::byte> bytes{std::byte{128}, std::byte{228}, std::byte{28}, std::byte{0}, std::byte{255}};
    EXPECT_EQ(AtLoudness(bytes, 8, 50),
              (std::vector<std::byte>{std::byte{128}, std::byte{178}, std::byte{78}, std::byte{64}, std::byte{191}}));
    EXPECT_TRUE(AtLoudness({}, 16, 50).empty());
}

TEST_F(LimitedSoundTest, HasALimitFromTenToAHundredPercent)
{
    EXPECT_EQ(LoudnessLimit(), 100);
    for (const auto& [value, percent] : {std::pair("60", 60),
                                         {"100", 100},
                                         {"101", 100},
                                         {"10", 10},
                                         {"9", 10},
                                         {"-50", 10},
                                         {"1e300", 100},
                                         {"loud", 10},
                                         {" 55%", 55}}) {
        Limit(value);
        EXPECT_EQ(LoudnessLimit(), percent) << value;
    }
}

TEST_F(LimitedSoundTest, PlaysAtTheLimitAndWithoutOneAsItIs)
{
    const std::vector<std::byte> pcm = Samples({1000, -2000});
    SoundHandle sound = limited.Open(nullptr, 7, kStereo16, 4);
    sound->Load(pcm);
    EXPECT_EQ(fake.sound.pcm, pcm);
    Limit("40");
    sound = limited.Open(std::move(sound), 7, kStereo16, 4);
    sound->Load(pcm);
    EXPECT_EQ(fake.sound.pcm, Samples({400, -800}));
    EXPECT_EQ(fake.sound.windowHandle, 7);
    EXPECT_EQ(fake.sound.bufferBytes, 4);
    Limit("100");
    sound = limited.Open(std::move(sound), 7, kStereo16, 4);
    sound->Load(pcm);
    EXPECT_EQ(fake.sound.pcm, pcm);
}

TEST_F(LimitedSoundTest, HandsTheOutputItsOwnSoundOfTheLastPlay)
{
    Limit("50");
    SoundHandle sound;
    for (int play = 0; play < 3; ++play)
        sound = limited.Open(std::move(sound), 0, kStereo16, 4);
    EXPECT_EQ(fake.sound.calls, (std::vector<std::string>{"Open 0", "Open 1", "Open 2"}));
    EXPECT_EQ(fake.sound.open, 1);
}

TEST_F(LimitedSoundTest, PassesEverythingElseOn)
{
    Limit("50");
    fake.sound.deviceCount = 3;
    EXPECT_EQ(limited.SoundDeviceCount(), 3);
    const SoundHandle sound = limited.Open(nullptr, 0, kStereo16, 4);
    sound->Start(StartFrom::WhereItStopped, Loop::Yes);
    sound->SetLooping(Loop::No);
    fake.sound.place.Cursor = 5;
    EXPECT_EQ(sound->Place().Cursor, 5);
    EXPECT_TRUE(sound->Place().Playing);
    sound->Stop();
    EXPECT_EQ(fake.sound.calls,
              (std::vector<std::string>{"Open 0", "Start 1 WhereItStopped loop", "SetLooping 1 once", "Stop 1"}));
}

TEST_F(LimitedSoundTest, OpensNothingWithoutADevice)
{
    Limit("50");
    fake.sound.opens = false;
    EXPECT_FALSE(limited.Open(nullptr, 0, kStereo16, 4));
}

} // namespace
} // namespace sprout
