// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/rules/PlayIndicator.h"

#include <gtest/gtest.h>

namespace sprout {
namespace {

constexpr TrackView kScrolled{2, 11, 600, 300, 300};

TEST(FollowingFirstCell, StaysWhileTheMarkerIsInView)
{
    EXPECT_EQ(FollowingFirstCell(kScrolled, 11, FollowedEdges::Both, 1000), 11);
    EXPECT_EQ(FollowingFirstCell(kScrolled, 210, FollowedEdges::Both, 1000), 11);
}

TEST(FollowingFirstCell, BringsAMarkerBeyondTheRightEdgeToTheSecondCell)
{
    EXPECT_EQ(FollowingFirstCell(kScrolled, 211, FollowedEdges::Right, 1000), 210);
    EXPECT_EQ(FollowingFirstCell(kScrolled, 211, FollowedEdges::Both, 1000), 210);
}

TEST(FollowingFirstCell, FollowsBeyondTheLeftEdgeOnlyAtAPlaysStart)
{
    EXPECT_EQ(FollowingFirstCell(kScrolled, 10, FollowedEdges::Right, 1000), 11);
    EXPECT_EQ(FollowingFirstCell(kScrolled, 10, FollowedEdges::Both, 1000), 9);
}

TEST(FollowingFirstCell, IsHeldToTheScrollBar)
{
    EXPECT_EQ(FollowingFirstCell(kScrolled, 1, FollowedEdges::Both, 1000), 1);
    EXPECT_EQ(FollowingFirstCell(kScrolled, 1280, FollowedEdges::Right, 1090), 1090);
    EXPECT_EQ(FollowingFirstCell(kScrolled, 1280, FollowedEdges::Right, 0), 1);
}

TEST(MovePlayIndicator, MarksTheTimeBandForTheWholeSong)
{
    const PlayIndicator indicator = MovePlayIndicator(kWholeSong, 31, kScrolled);
    EXPECT_EQ(indicator.songLeft, 60);
    EXPECT_FALSE(indicator.track);
}

TEST(MovePlayIndicator, MarksTheRowOfATrack)
{
    const PlayIndicator indicator = MovePlayIndicator(3, 31, kScrolled);
    EXPECT_FALSE(indicator.songLeft);
    EXPECT_EQ(indicator.track, (PlayIndicator::OnRow{60, 73}));
}

TEST(MovePlayIndicator, HidesTheMarkOfATrackOutsideTheRows)
{
    EXPECT_FALSE(MovePlayIndicator(1, 31, kScrolled).track);
    EXPECT_TRUE(MovePlayIndicator(9, 31, kScrolled).track);
    EXPECT_FALSE(MovePlayIndicator(10, 31, kScrolled).track);
}

TEST(MovePlayIndicator, ShowsNothingWithoutACell)
{
    for (const std::int32_t track : {kWholeSong, 0, 2}) {
        const PlayIndicator indicator = MovePlayIndicator(track, std::nullopt, kScrolled);
        EXPECT_FALSE(indicator.songLeft);
        EXPECT_FALSE(indicator.track);
    }
}

} // namespace
} // namespace sprout
