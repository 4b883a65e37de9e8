// SPDX-License-Identifier: GPL-3.0-or-later
#include "tune_window/TuneGrid.h"

#include "tune_window/TuneFrm2Test.h"

namespace sprout {
namespace {

using TuneGridTest = TuneFrm2Test;

TEST_F(TuneGridTest, OriginalsHaveABlueBorderAndTheUsersTunesARedOne)
{
    MakeTuneFiles(1);
    MakeTuneFile(PlainTune("Tune 02", "TONQUILL and friends"));
    MakeTuneFile(PlainTune("Tune 03", "Bob of Tonquill"));
    Open([](TuneFrm2& window) {
        const QImage grid = GridOf(window).grab().toImage();
        EXPECT_EQ(grid.pixelColor(44, 20), QColor(0, 0, 255));
        EXPECT_EQ(grid.pixelColor(84, 20), QColor(0xC0, 0, 0));
        EXPECT_EQ(grid.pixelColor(84, 2), QColor(Qt::white));
        // Pictures store their colours as blue, green, red.
        EXPECT_EQ(grid.pixelColor(60, 20), QColor(0x30, 0x20, 0x10));
    });
}

TEST_F(TuneGridTest, ATuneScrolledOutOfViewHasNoFrameAndDoesNotBlink)
{
    MakeTuneFiles(90);
    Open([](TuneFrm2& window) {
        window.FitTo({640, 480});
        PictureGridPic& grid = GridOf(window);
        const QPoint inView = grid.BlinkSelectImg().pos();
        EXPECT_EQ(inView, QPoint(0, 40 - 40));
        grid.VScroll1().setValue(2);
        EXPECT_LT(grid.BlinkSelectImg().geometry().right(), 0);
        EXPECT_FALSE(grid.BlinkSelectedTimer().isActive());
        EXPECT_EQ(TextOf(window, "TuneNameLbl"), "Tune 01");
        grid.VScroll1().setValue(1);
        EXPECT_EQ(grid.BlinkSelectImg().pos(), inView);
        EXPECT_TRUE(grid.BlinkSelectedTimer().isActive());
    });
}

TEST_F(TuneGridTest, EighteenTunesNeedNoScrollBarWhereTheyAllFit)
{
    MakeTuneFiles(18);
    Open([](TuneFrm2& window) {
        window.FitTo({640, 480});
        EXPECT_TRUE(GridOf(window).VScroll1().isHidden());
        EXPECT_EQ(GridOf(window).VScroll1().maximum(), 1);
    });
}

TEST_F(TuneGridTest, HoverTellsTheNameAndPlaysNothing)
{
    MakeTuneFiles(2);
    Open([](TuneFrm2& window) {
        ForgetPlay();
        PictureGridPic& grid = GridOf(window);
        QTest::mouseMove(&grid, QPoint(41, 10));
        EXPECT_EQ(grid.toolTip(), QString());
        QTest::mouseMove(&grid, QPoint(60, 20));
        EXPECT_EQ(grid.toolTip(), QStringLiteral("Tune 02"));
        EXPECT_EQ(Played(), 0);
        EXPECT_EQ(grid.Selected(), 1);
    });
}

TEST_F(TuneGridTest, OpensAtItsFirstRowWhateverRowItWasLeftAt)
{
    MakeTuneFiles(300);
    Open([](TuneFrm2& window) { GridOf(window).VScroll1().setValue(5); });
    Open([](TuneFrm2& window) {
        EXPECT_EQ(GridOf(window).VScroll1().value(), 1);
        EXPECT_EQ(GridOf(window).TopRow(), 1);
    });
}

TEST_F(TuneGridTest, WithoutTunesItTellsWhereTheyShouldBe)
{
    Open([](TuneFrm2& window) {
        EXPECT_EQ(GridOf(window).Count(), 0);
        EXPECT_EQ(TextOf(window, "TuneNameLbl"), "[none]");
        EXPECT_FALSE(GridOf(window).BlinkSelectedTimer().isActive());
        EXPECT_EQ(Played(), 0);
        PressTune(window, 1);
        QTest::keyClick(&GridOf(window), Qt::Key_Down);
        QTest::keyClick(&GridOf(window), Qt::Key_Menu);
        Click(window, "TestPlayBtn");
        Click(window, "OkBtn");
    });
    EXPECT_EQ(tune.Name, "New");
}

TEST_F(TuneGridTest, FramesATuneOfTheTableAndNoneOutsideIt)
{
    MakeTuneFiles(3);
    LoadTuneFiles();
    QWidget window;
    TuneGrid grid(&window);
    grid.TakeTuneTable();
    ASSERT_EQ(grid.Count(), 3);
    EXPECT_EQ(grid.Entry(3).Name, "Tune 03");
    grid.ShowSelection(2);
    EXPECT_EQ(grid.Selected(), 2);
    grid.ShowSelection(-1);
    EXPECT_EQ(grid.BlinkSelectImg().toolTip(), QString());
}

} // namespace
} // namespace sprout
