// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/MainTabOrder.h"

#include <set>

#include "main_window/MainWindowTest.h"

namespace sprout {
namespace {

class MainTabOrderTest : public MainWindowTest {};

TEST_F(MainTabOrderTest, BeginsWithTheFocusOnTheTracks)
{
    EXPECT_EQ(window->focusWidget(), &Control("TrackPic"));
}

TEST_F(MainTabOrderTest, ReachesEveryVisibleButtonOfItsBarByTab)
{
    std::set<QString> reached;
    for (int i = 0; i < 60; ++i) {
        reached.insert(window->focusWidget()->objectName());
        QTest::keyClick(window->focusWidget(), Qt::Key_Tab);
    }
    for (const char* name :
         {"PlayAllBtn",  "PlayStopBtn",    "BrushBtn",        "EraserBtn",      "PlayToolBtn", "NewBtn",
          "OpenBtn",     "SaveBtn",        "SongTitleChgBtn", "EmailBtn",       "HelpBtn",     "AboutBtn",
          "DemoBtn",     "CloseImgBtn",    "MaximizeImgBtn",  "MinimizeImgBtn", "TempoPrtImg", "TrackTitlePic",
          "TrackAddBtn", "TrackAddRecBtn", "TrackPic"})
        EXPECT_TRUE(reached.count(QString::fromLatin1(name))) << name;
}

TEST_F(MainTabOrderTest, GoesByTabFromTheToolsToTheTitlesToItsOwnButtonsAndToTheTracks)
{
    QStringList reached;
    Control("PlayAllBtn").setFocus();
    do {
        reached << window->focusWidget()->objectName();
        QTest::keyClick(window->focusWidget(), Qt::Key_Tab);
    } while (window->focusWidget() != &Control("PlayAllBtn") && reached.size() < 60);
    EXPECT_EQ(reached.join(QLatin1Char(' ')).toStdString(),
              "PlayAllBtn PlayStopBtn BrushBtn EraserBtn PlayToolBtn NewBtn OpenBtn SaveBtn SongTitleChgBtn EmailBtn "
              "HelpBtn AboutBtn DemoBtn TempoPrtImg Label5 Label1 TrackTitlePic TrackAddBtn TrackAddRecBtn "
              "CloseImgBtn MaximizeImgBtn MinimizeImgBtn TrackPic");
}

TEST_F(MainTabOrderTest, TheFirstTabStandsOnPlayAll)
{
    ASSERT_EQ(window->focusWidget(), &Control("TrackPic"));
    QTest::keyClick(window->focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(window->focusWidget(), &Control("PlayAllBtn"));
}

} // namespace
} // namespace sprout
