// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/rules/TitleStrip.h"

#include <gtest/gtest.h>

namespace sprout {
namespace {

constexpr TrackView kView{1, 1, 600, 300, 300};

FloatingButtons Hover(std::int32_t x, std::int32_t y, bool isAudio = false)
{
    return HoverTitleStrip(kView, TitleStripTrack(kView, 2, y), isAudio, x, y);
}

TEST(TrackNumberLeft, MovesAsideForTwoDigits)
{
    EXPECT_EQ(TrackNumberLeft(9), 6);
    EXPECT_EQ(TrackNumberLeft(10), 2);
}

TEST(HoverTitleStrip, FloatsTheTuneButtonFrom22To56)
{
    EXPECT_FALSE(Hover(21, 70).OverlayShown());
    EXPECT_TRUE(Hover(22, 70).TrackTuneBtn);
    EXPECT_TRUE(Hover(56, 70).TrackTuneBtn);
    EXPECT_FALSE(Hover(57, 70).OverlayShown());
    EXPECT_EQ(Hover(56, 70).HoverTrack, 2);
    EXPECT_EQ(Hover(56, 70).pictureButtonTop, 66 + 6);
}

TEST(HoverTitleStrip, FloatsTheAudioButtonInItsPlaceOnAudioTracks)
{
    EXPECT_TRUE(Hover(30, 70, true).TrackAudioBtn);
    EXPECT_FALSE(Hover(30, 70, true).TrackTuneBtn);
}

TEST(HoverTitleStrip, FloatsTheDeleteButtonOnItsPictureAlone)
{
    EXPECT_TRUE(Hover(71, 81).TrackDeleteBtn);
    EXPECT_TRUE(Hover(83, 96).TrackDeleteBtn);
    EXPECT_FALSE(Hover(70, 81).TrackDeleteBtn);
    EXPECT_FALSE(Hover(84, 81).TrackDeleteBtn);
    EXPECT_FALSE(Hover(71, 80).TrackDeleteBtn);
    EXPECT_FALSE(Hover(71, 97).TrackDeleteBtn);
    EXPECT_EQ(Hover(71, 81).deleteButtonTop, 81);
}

TEST(HoverTitleStrip, FloatsThePlayButtonFrom100To134)
{
    EXPECT_FALSE(Hover(99, 70).TrackPlayBtn);
    EXPECT_TRUE(Hover(100, 70).TrackPlayBtn);
    EXPECT_TRUE(Hover(134, 70).TrackPlayBtn);
    EXPECT_FALSE(Hover(135, 70).TrackPlayBtn);
    EXPECT_EQ(Hover(100, 70).playButtonTop, 73);
}

TEST(HoverTitleStrip, ShowsNothingOutsideTheRows)
{
    EXPECT_FALSE(Hover(30, 10).OverlayShown());
    EXPECT_FALSE(Hover(30, 200).OverlayShown());
    EXPECT_EQ(Hover(30, 200).HoverTrack, 0);
}

} // namespace
} // namespace sprout
