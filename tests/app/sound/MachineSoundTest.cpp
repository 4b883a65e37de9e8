// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/sound/MachineSound.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <thread>
#include <utility>

#include "service/pulse/PulseSound.h"
#include "service/pulse/TestSoundServer.h"
#include "service/sdl/SdlLibrary.h"
#include "service/sdl/SdlSound.h"

namespace sprout {
namespace {

bool IsOfServer(const SoundHandle& sound)
{
    return dynamic_cast<PulseSound*>(sound.get()) != nullptr;
}

bool IsOfSdl(const SoundHandle& sound)
{
    return dynamic_cast<SdlSound*>(sound.get()) != nullptr;
}

/// A machine on which SDL finds a device without the user having named one.
class MachineSoundTest : public ::testing::Test {
protected:
    MachineSoundTest() { Sdl().SetHint("SDL_AUDIODRIVER", "dummy"); }
    ~MachineSoundTest() override
    {
        unsetenv("SDL_AUDIODRIVER");
        Sdl().SetHint("SDL_AUDIODRIVER", nullptr);
    }

    SoundHandle Opened(SoundHandle old = nullptr) { return output.Open(std::move(old), 0, SoundFormat(), 4); }

    TestSoundServer server;
    MachineSound output;
};

TEST_F(MachineSoundTest, AServerThatAnswersIsUsed)
{
    ASSERT_TRUE(server.Start());
    EXPECT_EQ(output.SoundDeviceCount(), 1);
    EXPECT_TRUE(IsOfServer(Opened()));
}

TEST_F(MachineSoundTest, WhatIsCountedAheadIsTheFirstAnswerAlone)
{
    ASSERT_TRUE(server.Start());
    output.CountAhead();
    EXPECT_TRUE(IsOfServer(Opened()));
    EXPECT_EQ(output.SoundDeviceCount(), 1);
    server.Kill();
    setenv("SDL_AUDIODRIVER", "none", 1);
    EXPECT_EQ(output.SoundDeviceCount(), 0);
}

TEST_F(MachineSoundTest, AnOutputThatNobodyAsksEndsWithItsCount)
{
    MachineSound unasked;
    unasked.CountAhead();
}

TEST_F(MachineSoundTest, WithoutAServerSdlPlays)
{
    EXPECT_EQ(output.SoundDeviceCount(), 1);
    EXPECT_TRUE(IsOfSdl(Opened()));
}

TEST_F(MachineSoundTest, ADriverThatTheUserNamedMeansSdl)
{
    ASSERT_TRUE(server.Start());
    setenv("SDL_AUDIODRIVER", "dummy", 1);
    EXPECT_TRUE(IsOfSdl(Opened()));
    setenv("SDL_AUDIODRIVER", "", 1);
    EXPECT_TRUE(IsOfServer(Opened()));
}

TEST_F(MachineSoundTest, AServerThatDiesLeavesSdlAndOneThatComesIsFoundWithTheNextDevice)
{
    ASSERT_TRUE(server.Start());
    SoundHandle sound = Opened();
    ASSERT_TRUE(IsOfServer(sound));
    server.Kill();
    const auto latest = std::chrono::steady_clock::now() + std::chrono::seconds(30);
    while (!IsOfSdl(sound) && std::chrono::steady_clock::now() < latest)
        sound = Opened(std::move(sound)); // it is not known at once that the server is gone
    ASSERT_TRUE(IsOfSdl(sound));
    ASSERT_TRUE(server.Start());
    const SoundObject* const device = sound.get();
    sound = Opened(std::move(sound));
    EXPECT_EQ(sound.get(), device); // it is open
    sound = output.Open(std::move(sound), 0, {1, 11025, 8}, 4);
    EXPECT_TRUE(IsOfServer(sound));
}

TEST_F(MachineSoundTest, AServerThatComesIsFoundWhenTheDeviceRested)
{
    MachineSound resting{std::chrono::milliseconds(1)};
    SoundHandle sound = resting.Open(nullptr, 0, SoundFormat(), 4);
    ASSERT_TRUE(IsOfSdl(sound));
    ASSERT_TRUE(server.Start());
    while (static_cast<SdlSound&>(*sound).IsOpenIn(SoundFormat()))
        std::this_thread::yield();
    sound = resting.Open(std::move(sound), 0, SoundFormat(), 4);
    EXPECT_TRUE(IsOfServer(sound));
}

TEST_F(MachineSoundTest, AServerThatStandsStillIsNotLeftToSdl)
{
    ASSERT_TRUE(server.Start());
    server.Freeze();
    EXPECT_EQ(output.SoundDeviceCount(), 0);
    EXPECT_FALSE(Opened());
    server.Thaw();
    SoundHandle sound;
    for (int tries = 0; tries < 20 && !sound; ++tries)
        sound = Opened();
    EXPECT_TRUE(IsOfServer(sound));
}

} // namespace
} // namespace sprout
