// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/WindowSettings.h"

#include <QScreen>
#include <QSignalSpy>

#include "main_window/MainWindowTest.h"

namespace sprout {
namespace {

class WindowSettingsTest : public MainWindowTest {};

TEST_F(WindowSettingsTest, StandsWhereTheSettingsTell)
{
    EXPECT_EQ(window->geometry(), QRect(50, 60, 700, 500));
    EXPECT_FALSE(window->isMaximized());
}

TEST_F(WindowSettingsTest, TakesEightTenthsOfTheScreenInPlaceOfASizeLargerThanIt)
{
    const QSize screen = window->screen()->size();
    PutSetting("MainWindow", "Size", "90000,90000");
    PutSetting("MainWindow", "Position", "-1,-1");
    Open();
    EXPECT_EQ(window->size(), QSize(screen.width() * 8 / 10, screen.height() * 8 / 10));
    EXPECT_EQ(window->pos(), QPoint(screen.width() / 10, screen.height() / 10));
}

TEST_F(WindowSettingsTest, OpensMaximizedAsLongAsNothingElseIsStored)
{
    std::filesystem::remove(Shared().SettingsFile);
    Open();
    EXPECT_TRUE(window->isMaximized());
    EXPECT_TRUE(Control("RestoreImgBtn").isVisible());
}

TEST_F(WindowSettingsTest, OpensAsNormalWhereItWasClosedMinimized)
{
    PutSetting("MainWindow", "WindowState", "1");
    Open();
    EXPECT_EQ(window->windowState(), Qt::WindowNoState);
    EXPECT_EQ(window->geometry(), QRect(50, 60, 700, 500));
}

TEST_F(WindowSettingsTest, StoresItsPlaceWhenItCloses)
{
    QSignalSpy unloaded(window.get(), &MainFrm::Unloaded);
    window->setGeometry(11, 22, 640, 333);
    ClickButton("CloseImgBtn");
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(unloaded.count(), 1);
    EXPECT_EQ(GetSetting("MainWindow", "WindowState", ""), "0");
    EXPECT_EQ(GetSetting("MainWindow", "Position", ""), "165,330");
    EXPECT_EQ(GetSetting("MainWindow", "Size", ""), "9600,4995");
}

TEST_F(WindowSettingsTest, StoresOnlyItsStateWhenItIsClosedMaximizedOrMinimized)
{
    window->showMaximized();
    window->close();
    EXPECT_EQ(GetSetting("MainWindow", "WindowState", ""), "2");
    Open();
    window->showMinimized();
    window->close();
    EXPECT_EQ(GetSetting("MainWindow", "WindowState", ""), "1");
    EXPECT_EQ(GetSetting("MainWindow", "Position", ""), "750,900");
    EXPECT_EQ(GetSetting("MainWindow", "Size", ""), "10500,7500");
}

TEST_F(WindowSettingsTest, KeepsTheStoredPositionWhereTheDesktopPlacesWindows)
{
    window->setGeometry(0, 0, 640, 333);
    WritePlaceToSettings(*window, true);
    EXPECT_EQ(GetSetting("MainWindow", "Position", ""), "750,900");
    EXPECT_EQ(GetSetting("MainWindow", "Size", ""), "9600,4995");
}

} // namespace
} // namespace sprout
