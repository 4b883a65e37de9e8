// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/sound/MachineCapture.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>
#include <vector>

#include "app/sound/MachineCaptureDesk.h"

namespace sprout {
namespace {

/// A machine without a server, where SDL captures the contents of a file.
class SdlMachineCaptureTest : public ::testing::Test {
protected:
    SdlMachineCaptureTest()
    {
        WriteBytes(input, RampBytes(30 * 44100, 1));
        setenv("SDL_AUDIODRIVER", "disk", 1);
        setenv("SDL_DISKAUDIOFILEIN", input.c_str(), 1);
    }
    ~SdlMachineCaptureTest() override
    {
        unsetenv("SDL_AUDIODRIVER");
        unsetenv("SDL_DISKAUDIOFILEIN");
    }

    TestFolder folder;
    const std::string input = folder.Path() / "in.raw";
    const fs::path left = folder.Path() / "TqkTmp1.WavL";
    const fs::path right = folder.Path() / "TqkTmp1.WavR";
    MachineCapture capture;
};

TEST_F(SdlMachineCaptureTest, WhatSdlGivesArrivesWithoutALostFrame)
{
    for (int round = 0; round < 2; ++round) {
        ASSERT_EQ(capture.Open(), CaptureOpening::Ready);
        ASSERT_TRUE(capture.Start(left, right));
        ASSERT_TRUE(Comes([this] { return capture.Status().Blocks >= 5; }));
        EXPECT_EQ(capture.Status().State, CaptureState::Recording);
        EXPECT_GT(capture.Peaks().Left, 0);
        capture.Stop();
        const std::vector<int> numbers = ReadCaptured(left, right).Numbers();
        EXPECT_GE(numbers.size(), 44100U);
        EXPECT_EQ(GapsOf(numbers), "");
        EXPECT_GE(numbers.front(), 0);
        capture.Release();
        fs::remove(left);
        fs::remove(right);
    }
}

TEST_F(SdlMachineCaptureTest, ItTellsNoSources)
{
    ASSERT_EQ(capture.Open(), CaptureOpening::Ready);
    EXPECT_FALSE(capture.ListSources());
    EXPECT_EQ(capture.SourceChanges(), 0U);
    capture.SelectSource(0);
    capture.SetVolume(0, 1);
}

TEST_F(SdlMachineCaptureTest, WithoutSoundNothingOpens)
{
    setenv("SDL_AUDIODRIVER", "none of SDL's", 1);
    EXPECT_EQ(capture.Open(), CaptureOpening::Failed);
    EXPECT_FALSE(capture.Start(left, right));
    EXPECT_EQ(capture.Status().State, CaptureState::Stopped);
}

} // namespace
} // namespace sprout
