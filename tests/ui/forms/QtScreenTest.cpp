// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/forms/QtScreen.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QTest>
#include <QWindow>

#include "core/Busy.h"

namespace sprout {
namespace {

TEST(QtScreen, ShowsTheHourglassAsOftenAsItIsAskedTo)
{
    QtScreen screen;
    screen.ShowHourglass();
    screen.ShowHourglass();
    screen.RestorePointer();
    ASSERT_NE(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    screen.RestorePointer();
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

/// A main window that the desktop has been asked to show but has not shown yet.
class ScreenOfNewWindow : public testing::Test {
protected:
    ScreenOfNewWindow()
    {
        window.resize(400, 300);
        screen.SetProcessPic(&sign);
        window.show();
    }

    QtScreen screen;
    QWidget window;
    ProcessPic sign{&window};
};

TEST_F(ScreenOfNewWindow, ShowsNoHourglassBeforeTheWindowAppears)
{
    screen.ShowHourglass();
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    screen.RestorePointer();
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    screen.ShowHourglass();
    EXPECT_NE(QApplication::overrideCursor(), nullptr);
    screen.RestorePointer();
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(ScreenOfNewWindow, LetsTheWindowAppearWhereTheWorkIsLong)
{
    screen.ShowHourglass();
    screen.ShowProcessPic();
    ASSERT_FALSE(window.windowHandle()->isExposed());
    QElapsedTimer working;
    working.start();
    while (!window.windowHandle()->isExposed() && !working.hasExpired(30'000))
        screen.ShowProgress(1, 2);
    EXPECT_TRUE(window.windowHandle()->isExposed());
    screen.ShowProgress(2, 2);
    EXPECT_NE(QApplication::overrideCursor(), nullptr);
    screen.HideProcessPic();
    screen.RestorePointer();
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST(QtScreen, ShowsTheSignUntilTheLastWorkIsDone)
{
    QtScreen screen;
    QWidget window;
    window.resize(400, 300);
    ProcessPic sign(&window);
    window.show();
    screen.SetProcessPic(&sign);
    screen.ShowProcessPic();
    screen.ShowProcessPic();
    screen.HideProcessPic();
    EXPECT_TRUE(sign.isVisible());
    screen.HideProcessPic();
    EXPECT_FALSE(sign.isVisible());
}

TEST(QtScreen, WorksBeforeThereIsASign)
{
    QtScreen screen;
    screen.ShowProcessPic();
    screen.ShowProgress(1, 2);
    screen.HideProcessPic();
}

TEST(QtScreen, EnablesTheBlinkingOnceThereIsATimer)
{
    QtScreen screen;
    int enabled = 0;
    screen.EnableTuneNotFilledTimer();
    screen.SetTuneNotFilledTimer([&enabled] { ++enabled; });
    EXPECT_EQ(enabled, 1);
    screen.EnableTuneNotFilledTimer();
    EXPECT_EQ(enabled, 2);
}

TEST(ProcessPic, GrowsWithTheWork)
{
    QWidget window;
    window.resize(400, 300);
    ProcessPic sign(&window);
    window.show();
    sign.Appear();
    EXPECT_NEAR(sign.geometry().center().x(), 200, 1);
    const QImage before = sign.grab().toImage();
    sign.ShowProgress(19, 20);
    EXPECT_NE(sign.grab().toImage(), before);
    sign.ShowProgress(0, 0);
    EXPECT_EQ(sign.grab().toImage(), before);
}

} // namespace
} // namespace sprout
