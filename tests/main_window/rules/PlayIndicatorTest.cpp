// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/rules/PlayIndicator.h"

#include <gtest/gtest.h>

namespace sprout {
namespace {

constexpr TrackView kScrolled{2, 11, 600, 300, 300};

/// Cell 31 of a track or of the whole song is playing.
PlayModState At31(std::int32_t track)
{
    PlayModState play;
    play.PlayingTrack = track;
    play.PlayBufRate = 44100;
    play.PlayTempo = 320;
    play.PlayStartPos = 31;
    return play;
}

TEST(MarkerCell, IsThatOfTheSongOrTrackThatIsHeard)
{
    EXPECT_EQ(MarkerCell(At31(kWholeSong)), 31);
    EXPECT_EQ(MarkerCell(At31(2)), 31);
    EXPECT_FALSE(MarkerCell(At31(0)));
}

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
    const PlayIndicator indicator = MovePlayIndicator(At31(kWholeSong), kScrolled);
    EXPECT_EQ(indicator.songLeft, 60);
    EXPECT_FALSE(indicator.track);
}

TEST(MovePlayIndicator, MarksTheRowOfATrack)
{
    const PlayIndicator indicator = MovePlayIndicator(At31(3), kScrolled);
    EXPECT_FALSE(indicator.songLeft);
    EXPECT_EQ(indicator.track, (PlayIndicator::OnRow{60, 73}));
}

TEST(MovePlayIndicator, HidesTheMarkOfATrackOutsideTheRows)
{
    EXPECT_FALSE(MovePlayIndicator(At31(1), kScrolled).track);
    EXPECT_TRUE(MovePlayIndicator(At31(9), kScrolled).track);
    EXPECT_FALSE(MovePlayIndicator(At31(10), kScrolled).track);
}

TEST(MovePlayIndicator, FollowsTheCursor)
{
    PlayModState play = At31(kWholeSong);
    play.PlayCursor = 44100; // 5.33 cells
    EXPECT_EQ(MovePlayIndicator(play, kScrolled).songLeft, 75);
}

TEST(MovePlayIndicator, StandsBeyondTheSurfaceAtAnAbsurdTempo)
{
    PlayModState play = At31(kWholeSong);
    play.PlayTempo = 2'000'000'000;
    play.PlayCursor = 30 * 44100;
    EXPECT_GT(MovePlayIndicator(play, kScrolled).songLeft, 100'000);
}

TEST(MovePlayIndicator, ShowsNothingWhenNothingPlaysOrTheCellCannotBeTold)
{
    PlayModState rateless = At31(kWholeSong);
    rateless.PlayBufRate = 0;
    PlayModState endless = At31(1);
    endless.PlayTempo = 2'000'000'000;
    endless.PlayCursor = 2'000'000'000;
    for (const PlayModState& play : {At31(0), rateless, endless}) {
        const PlayIndicator indicator = MovePlayIndicator(play, kScrolled);
        EXPECT_FALSE(indicator.songLeft);
        EXPECT_FALSE(indicator.track);
    }
}

} // namespace
} // namespace sprout
