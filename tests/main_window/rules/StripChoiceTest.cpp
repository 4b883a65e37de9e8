// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/rules/StripChoice.h"

#include <gtest/gtest.h>

namespace sprout {
namespace {

using Point = StripChoice::Point;

TEST(StripChoice, BeginsWithoutARowAtThePlayButton)
{
    StripChoice choice;
    EXPECT_EQ(choice.Row(), 0);
    choice.ChooseRow(1, 3);
    EXPECT_EQ(choice.Place({}), (Point{118, 20 + 22}));
}

TEST(StripChoice, StaysWithinTheTracksOfTheSong)
{
    StripChoice choice;
    choice.ChooseRow(0, 3);
    EXPECT_EQ(choice.Row(), 1);
    choice.ChooseRow(4, 3);
    EXPECT_EQ(choice.Row(), 3);
    choice.ChooseRow(2, 0);
    EXPECT_EQ(choice.Row(), 1);
}

TEST(StripChoice, GoesToTheLastTrackWhereItsOwnIsDeleted)
{
    StripChoice choice;
    choice.ChooseRow(3, 3);
    choice.FitSong(2);
    EXPECT_EQ(choice.Row(), 2);
    choice.FitSong(5);
    EXPECT_EQ(choice.Row(), 2);
}

TEST(StripChoice, GoesThroughTheButtonsOfARowAndStopsAtTheEnds)
{
    StripChoice choice;
    choice.ChooseRow(5, 9);
    TrackView view;
    view.FirstTrack = 4;
    const auto place = [&](std::int32_t step) {
        choice.ChooseColumn(step);
        return choice.Place(view);
    };
    EXPECT_EQ(place(1), (Point{118, 66 + 22}));
    EXPECT_EQ(place(-1), (Point{77, 66 + 22}));
    EXPECT_EQ(place(-1), (Point{40, 66 + 22}));
    EXPECT_EQ(place(-1), (Point{40, 66 + 22}));
    EXPECT_EQ(place(1), (Point{77, 66 + 22}));
}

} // namespace
} // namespace sprout
