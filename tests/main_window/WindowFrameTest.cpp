// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/WindowFrame.h"

#include "main_window/MainWindowTest.h"
#include "ui/look/Palette.h"

namespace sprout {
namespace {

class WindowFrameTest : public MainWindowTest {};

TEST_F(WindowFrameTest, IsResizedByItsEdgesAndCorners)
{
    Drag(Control("GripRight"), QPoint(3, 100), QPoint(20, 5));
    EXPECT_EQ(window->geometry(), QRect(50, 60, 720, 500));
    Drag(Control("GripTopLeft"), QPoint(3, 3), QPoint(-10, 12));
    EXPECT_EQ(window->geometry(), QRect(40, 72, 730, 488));
    Drag(Control("GripBottom"), QPoint(300, 3), QPoint(5, -400));
    EXPECT_EQ(window->geometry(), QRect(40, 72, 730, 200));
}

TEST_F(WindowFrameTest, HasNoEdgesToDragWhileItIsMaximized)
{
    EXPECT_EQ(Control("GripLeft").cursor().shape(), Qt::SizeHorCursor);
    EXPECT_EQ(Control("GripTopRight").cursor().shape(), Qt::SizeBDiagCursor);
    window->showMaximized();
    EXPECT_FALSE(Control("GripLeft").isVisible());
}

TEST_F(WindowFrameTest, GivesTheRoomOfTheStatusLineToTheTracksInTheLowestWindow)
{
    window->resize(533, 200);
    EXPECT_FALSE(Control("StatusFramePic").isVisible());
    EXPECT_FALSE(Control("Corner4Pic").isVisible());
    EXPECT_EQ(Control("TrackFramePic").geometry().bottom(), 193);
    EXPECT_GT(Control("TrackPic").height(), 20 + 7);
    window->resize(533, 266);
    EXPECT_TRUE(Control("StatusFramePic").isVisible());
    EXPECT_TRUE(Control("Corner4Pic").isVisible());
    EXPECT_EQ(Control("TrackPic").height(), 20 + 46);
}

TEST_F(WindowFrameTest, HasALineAroundItUnlessItIsMaximized)
{
    const auto edge = [this] { return window->grab().toImage().pixelColor(0, window->height() / 2); };
    EXPECT_EQ(edge(), kBark);
    window->showMaximized();
    EXPECT_EQ(edge(), kPaper);
}

TEST_F(WindowFrameTest, HasAVineInEachLowerCorner)
{
    EXPECT_EQ(Control("Corner3Pic").geometry(), QRect(2, 462, 36, 36));
    EXPECT_EQ(Control("Corner4Pic").geometry(), QRect(662, 462, 36, 36));
    EXPECT_NE(Control("Corner3Pic").grab().toImage(), Control("Corner4Pic").grab().toImage());
}

} // namespace
} // namespace sprout
