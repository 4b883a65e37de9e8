// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/rules/TitleStrip.h"

#include <gtest/gtest.h>

namespace sprout {
namespace {

constexpr TrackView kStripView{1, 1, 600, 300, 300};

FloatingButtons HoverAt(std::int32_t x, std::int32_t y, bool isAudio = false)
{
    return HoverTitleStrip(kStripView, TitleStripTrack(kStripView, 2, y), isAudio, x, y);
}

TEST(TrackNumberLeft, MovesAsideForTwoDigits)
{
    EXPECT_EQ(TrackNumberLeft(9), 6);
    EXPECT_EQ(TrackNumberLeft(10), 2);
}

TEST(HoverTitleStrip, FloatsTheTuneButtonFrom22To56)
{
    EXPECT_FALSE(HoverAt(21, 70).OverlayShown());
    EXPECT_TRUE(HoverAt(22, 70).TrackTuneBtn);
    EXPECT_TRUE(HoverAt(56, 70).TrackTuneBtn);
    EXPECT_FALSE(HoverAt(57, 70).OverlayShown());
    EXPECT_EQ(HoverAt(56, 70).HoverTrack, 2);
    EXPECT_EQ(HoverAt(56, 70).pictureButtonTop, 66 + 6);
}

TEST(HoverTitleStrip, FloatsTheAudioButtonInItsPlaceOnAudioTracks)
{
    for (const std::int32_t x : {22, 56}) {
        EXPECT_TRUE(HoverAt(x, 70, true).TrackAudioBtn);
        EXPECT_FALSE(HoverAt(x, 70, true).TrackTuneBtn);
        EXPECT_FALSE(HoverAt(x, 70).TrackAudioBtn);
    }
    EXPECT_FALSE(HoverAt(21, 70, true).OverlayShown());
    EXPECT_FALSE(HoverAt(57, 70, true).OverlayShown());
}

TEST(HoverTitleStrip, FloatsTheDeleteButtonOnItsPictureAlone)
{
    EXPECT_TRUE(HoverAt(71, 81).TrackDeleteBtn);
    EXPECT_TRUE(HoverAt(83, 96).TrackDeleteBtn);
    EXPECT_FALSE(HoverAt(70, 81).TrackDeleteBtn);
    EXPECT_FALSE(HoverAt(84, 81).TrackDeleteBtn);
    EXPECT_FALSE(HoverAt(71, 80).TrackDeleteBtn);
    EXPECT_FALSE(HoverAt(71, 97).TrackDeleteBtn);
    EXPECT_EQ(HoverAt(71, 81).deleteButtonTop, 81);
}

TEST(HoverTitleStrip, FloatsThePlayButtonFrom100To134)
{
    EXPECT_FALSE(HoverAt(99, 70).TrackPlayBtn);
    EXPECT_TRUE(HoverAt(100, 70).TrackPlayBtn);
    EXPECT_TRUE(HoverAt(134, 70).TrackPlayBtn);
    EXPECT_FALSE(HoverAt(135, 70).TrackPlayBtn);
    EXPECT_EQ(HoverAt(100, 70).playButtonTop, 73);
}

TEST(HoverTitleStrip, ShowsNothingOutsideTheRows)
{
    EXPECT_FALSE(HoverAt(30, 10).OverlayShown());
    EXPECT_FALSE(HoverAt(30, 200).OverlayShown());
    EXPECT_EQ(HoverAt(30, 200).HoverTrack, 0);
}

} // namespace
} // namespace sprout
