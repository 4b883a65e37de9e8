// SPDX-License-Identifier: GPL-3.0-or-later
#include "recording/rules/Volume.h"

#include <gtest/gtest.h>

namespace sprout {
namespace {

TEST(VolumePercent, HoldsWhatIsBeyondTheRange)
{
    EXPECT_EQ(VolumePercent(0), 0);
    EXPECT_EQ(VolumePercent(65535), 100);
    EXPECT_EQ(VolumePercent(32768), 50);
    EXPECT_EQ(VolumePercent(98304), 100);
    EXPECT_EQ(VolumePercent(-5), 0);
}

TEST(VolumeOfPercent, ComesBackAsTheSamePercentage)
{
    EXPECT_EQ(VolumeOfPercent(0), 0);
    EXPECT_EQ(VolumeOfPercent(100), 65535);
    EXPECT_EQ(VolumeOfPercent(50), 32768); // 32767.5
    EXPECT_EQ(VolumeOfPercent(30), 19660); // 19660.5
    for (std::int32_t percent = 0; percent <= 100; ++percent)
        EXPECT_EQ(VolumePercent(VolumeOfPercent(percent)), percent);
}

TEST(LinesOfSources, TellEachSourceWithItsIndex)
{
    const SourceLines lines = LinesOfSources(SoundSources{{{"Microphone", 65535}, {" Headset ", 30000}}, 1});
    EXPECT_EQ(lines.Lines, (std::vector<SourceLine>{{"Microphone", 0}, {"Headset", 1}}));
    EXPECT_EQ(lines.Selected, 1);
    EXPECT_EQ(lines.SourceIndex, 1);
    EXPECT_EQ(lines.Volume, 30000);
}

TEST(LinesOfSources, LeaveOutSourcesWithoutAName)
{
    const SourceLines lines = LinesOfSources(SoundSources{{{"  ", 1}, {"Microphone", 2}, {"", 3}, {"Webcam", 4}}, 3});
    EXPECT_EQ(lines.Lines, (std::vector<SourceLine>{{"Microphone", 1}, {"Webcam", 3}}));
    EXPECT_EQ(lines.Selected, 1);
    EXPECT_EQ(lines.SourceIndex, 3);
    EXPECT_EQ(lines.Volume, 4);
}

TEST(LinesOfSources, SelectNoLineWhereTheSelectedSourceHasNoName)
{
    const SourceLines lines = LinesOfSources(SoundSources{{{"", 77}, {"Webcam", 4}}, 0});
    EXPECT_EQ(lines.Selected, -1);
    EXPECT_EQ(lines.SourceIndex, 0);
    EXPECT_EQ(lines.Volume, 77);
}

TEST(LinesOfSources, AreFiftyAtMost)
{
    SoundSources sources{std::vector<SoundSource>(60, {"Microphone", 5}), 55};
    EXPECT_EQ(LinesOfSources(sources).Lines.size(), 50U);
    EXPECT_EQ(LinesOfSources(sources).Selected, -1);
    EXPECT_EQ(LinesOfSources(sources).SourceIndex, 55);
    sources.Selected = 49;
    EXPECT_EQ(LinesOfSources(sources).Selected, 49);
}

TEST(LinesOfSources, HaveTheirWholeNamesIn3200Bytes)
{
    const SoundSource longName{std::string(319, 'n'), 5};
    EXPECT_EQ(LinesOfSources(SoundSources{std::vector<SoundSource>(20, longName), 0}).Lines.size(), 10U);
    std::vector<SoundSource> sources(10, longName);
    sources.back().Name += 'n'; // one byte too long
    EXPECT_EQ(LinesOfSources(SoundSources{sources, 0}).Lines.size(), 9U);
}

TEST(LinesOfSources, AreNoneWhereTheSourcesCannotBeTold)
{
    EXPECT_TRUE(LinesOfSources(std::nullopt).Lines.empty());
    EXPECT_TRUE(LinesOfSources(SoundSources{{{"Microphone", 1}}, -1}).Lines.empty());
    EXPECT_TRUE(LinesOfSources(SoundSources{{{"Microphone", 1}}, 1}).Lines.empty());
    EXPECT_TRUE(LinesOfSources(SoundSources{{{" ", 1}}, 0}).Lines.empty());
    EXPECT_TRUE(LinesOfSources(SoundSources{}).Lines.empty());
    EXPECT_EQ(LinesOfSources(std::nullopt).SourceIndex, -1);
}

} // namespace
} // namespace sprout
