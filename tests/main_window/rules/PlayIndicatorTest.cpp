// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/rules/PlayIndicator.h"

#include <gtest/gtest.h>

#include "core/Errors.h"

namespace sprout {
namespace {

constexpr TrackView kScrolled{2, 11, 600, 300, 300};

TEST(PlayingCell, CountsCellsOfTheTempoAtTheStart)
{
    EXPECT_EQ(PlayingCell({1, 0, 44100, 320, 33}), 33);
    EXPECT_EQ(PlayingCell({1, 44100, 44100, 320, 33}), 38); // 5.33 cells
    EXPECT_EQ(PlayingCell({1, 44100, 44100, 640, 33}), 44); // 10.67
    EXPECT_EQ(PlayingCell({1, 44100, 22050, 320, 33}), 44); // the played wave's rate
    EXPECT_THROW(static_cast<void>(PlayingCell({1, 0, 0, 320, 33})), RunTimeError);
}

TEST(MovePlayIndicator, MarksTheTimeBandForTheWholeSong)
{
    const PlayIndicator indicator = MovePlayIndicator({kWholeSong, 0, 44100, 320, 31}, kScrolled);
    EXPECT_EQ(indicator.songLeft, 60);
    EXPECT_FALSE(indicator.track);
}

TEST(MovePlayIndicator, MarksTheRowOfATrack)
{
    const PlayIndicator indicator = MovePlayIndicator({3, 0, 44100, 320, 31}, kScrolled);
    EXPECT_FALSE(indicator.songLeft);
    EXPECT_EQ(indicator.track, (PlayIndicator::OnRow{60, 73}));
}

TEST(MovePlayIndicator, HidesTheMarkOfATrackOutsideTheRows)
{
    EXPECT_FALSE(MovePlayIndicator({1, 0, 44100, 320, 31}, kScrolled).track);
    EXPECT_TRUE(MovePlayIndicator({9, 0, 44100, 320, 31}, kScrolled).track);
    EXPECT_FALSE(MovePlayIndicator({10, 0, 44100, 320, 31}, kScrolled).track);
}

TEST(MovePlayIndicator, ShowsNothingWhenNothingPlaysOrTheCellCannotBeTold)
{
    for (const PlayedSound& sound : {PlayedSound{0, 0, 44100, 320, 31}, PlayedSound{kWholeSong, 5, 0, 320, 31},
                                     PlayedSound{kWholeSong, 0, 0, 320, 31}, PlayedSound{1, 1e300, 44100, 320, 31}}) {
        const PlayIndicator indicator = MovePlayIndicator(sound, kScrolled);
        EXPECT_FALSE(indicator.songLeft);
        EXPECT_FALSE(indicator.track);
    }
}

} // namespace
} // namespace sprout
