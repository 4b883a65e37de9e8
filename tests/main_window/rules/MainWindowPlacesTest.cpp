// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/rules/MainWindowPlaces.h"

#include <gtest/gtest.h>

namespace sprout {
namespace {

TEST(MainWindowPlaces, PutsThePartsBelowEachOtherInsideTheFrame)
{
    const MainWindowPlaces places = PlaceMainWindow(700, 500, 60);
    EXPECT_TRUE(places.hasStatus);
    EXPECT_EQ(places.titleBand, (Box{0, 0, 700, 40}));
    EXPECT_EQ(places.controlBar, (Box{6, 40, 688, 60}));
    EXPECT_EQ(places.canvas, (Box{6, 100, 688, 356}));
    EXPECT_EQ(places.statusBar, (Box{44, 462, 612, 32}));
    EXPECT_EQ(places.leftCorner, (Box{2, 462, 36, 36}));
    EXPECT_EQ(places.rightCorner, (Box{662, 462, 36, 36}));
    EXPECT_EQ(ControlBarWidth(700), 688);
}

TEST(MainWindowPlaces, GivesTheRoomOfTheStatusFrameToTheTracksWhereNoRowFits)
{
    const auto hasStatus = [](std::int32_t height) { return PlaceMainWindow(533, height, 100).hasStatus; };
    std::int32_t height = 200;
    while (!hasStatus(height))
        ++height;
    EXPECT_EQ(PlaceMainWindow(533, height, 100).canvas.height, 20 + 46 + 18) << "one row and the scroll bar";
    const MainWindowPlaces low = PlaceMainWindow(533, height - 1, 100);
    EXPECT_EQ(low.canvas.top + low.canvas.height, height - 1 - 6);
}

TEST(MainWindowPlaces, TakesTheRoomOfTheWelcomeCardFromTheLowerEdgeOfTheCanvas)
{
    const MainWindowPlaces without = PlaceMainWindow(800, 600, 130);
    const MainWindowPlaces places = PlaceMainWindow(800, 600, 130, WelcomeStrip::Shown);
    EXPECT_EQ(without.canvas, (Box{6, 170, 788, 386}));
    EXPECT_EQ(without.welcome, Box());
    EXPECT_EQ(places.canvas, (Box{6, 170, 788, 336}));
    EXPECT_EQ(places.welcome, (Box{6, 512, 788, 44}));
    EXPECT_EQ(places.controlBar, without.controlBar);
    EXPECT_EQ(places.statusBar, without.statusBar);
}

TEST(MainWindowPlaces, LeavesTheWelcomeCardOutWhereTheCanvasWouldNotShowARow)
{
    const auto at = [](std::int32_t height) { return PlaceMainWindow(533, height, 100, WelcomeStrip::Shown); };
    std::int32_t height = 200;
    while (at(height).welcome == Box())
        ++height;
    EXPECT_EQ(at(height).canvas.height, 20 + 46 + 18) << "one row and the scroll bar";
    EXPECT_EQ(at(height - 1).canvas, PlaceMainWindow(533, height - 1, 100).canvas);
    EXPECT_EQ(at(200).welcome, Box()) << "nor where there is no status frame";
}

} // namespace
} // namespace sprout
