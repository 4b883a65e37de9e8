// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/Hints.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QTest>

#include <memory>
#include <string>

#include "core/Shared.h"
#include "ui/widgets/ButtonScheme.h"

namespace sprout {
namespace {

TEST(ShowHint, NeedsNoStatusLine)
{
    auto label = std::make_unique<QLabel>();
    SetStatusLbl(label.get());
    ShowHint(Words::AsIs("Save"));
    EXPECT_EQ(label->text(), QStringLiteral("Save"));
    label.reset();
    ShowHint(Words::AsIs("Open"));
}

TEST(AddHintStrip, ShowsHintsWhileItsWindowHidesTheStatusLine)
{
    QWidget mainWindow;
    mainWindow.setGeometry(0, 0, 300, 200);
    QLabel statusLbl(&mainWindow);
    statusLbl.setGeometry(0, 180, 300, 20);
    SetStatusLbl(&statusLbl);
    mainWindow.show();
    QWidget window;
    window.setGeometry(0, 0, 300, 150);
    auto strip = std::make_unique<QLabel>(&window);
    strip->resize(60, 20);
    AddHintStrip(*strip);
    window.show();
    ShowHint(Words::AsIs("Save"));
    EXPECT_EQ(strip->text(), QString()) << "the status line is seen";
    window.resize(300, 190);
    ShowHint(Words::AsIs("Save"));
    EXPECT_EQ(strip->text(), QStringLiteral("Save"));
    ShowHint(Words::AsIs("Save button, use it to save the song you made"));
    EXPECT_TRUE(strip->text().endsWith(QChar(0x2026)));
    ShowHint({});
    EXPECT_EQ(strip->text(), QString());
    strip.reset();
    ShowHint(Words::AsIs("Open"));
    EXPECT_EQ(statusLbl.text(), QStringLiteral("Open"));
    SetStatusLbl(nullptr);
}

TEST(AddHintStrip, ShowsAllHintsWhereTheDesktopPlacesWindows)
{
    QWidget mainWindow;
    mainWindow.setGeometry(0, 0, 300, 200);
    QLabel statusLbl(&mainWindow);
    statusLbl.setGeometry(0, 180, 300, 20);
    SetStatusLbl(&statusLbl);
    mainWindow.show();
    QWidget window;
    window.setGeometry(0, 0, 300, 150); // as far as it knows
    QLabel strip(&window);
    strip.resize(60, 20);
    AddHintStrip(strip, true);
    window.show();
    ShowHint(Words::AsIs("Save"));
    EXPECT_EQ(strip.text(), QStringLiteral("Save"));
    EXPECT_EQ(statusLbl.text(), QStringLiteral("Save"));
    SetStatusLbl(nullptr);
}

TEST(HintWatcher, FollowsTheTabKey)
{
    QLabel statusLbl;
    SetStatusLbl(&statusLbl);
    QWidget window;
    QLineEdit first(&window);
    QLineEdit second(&window);
    HintWatcher watcher(&window);
    watcher.Watch(second, Words::Text("You can type your name here"));
    window.show();
    QApplication::setActiveWindow(&window);
    first.setFocus();
    QTest::keyClick(&first, Qt::Key_Tab);
    EXPECT_EQ(statusLbl.text(), QStringLiteral("You can type your name here"));
    QTest::keyClick(&second, Qt::Key_Tab);
    EXPECT_EQ(statusLbl.text(), QString());
    SetStatusLbl(nullptr);
}

TEST(HintWatcher, ShowsAndClearsHintsAsTheMouseMoves)
{
    QLabel statusLbl;
    SetStatusLbl(&statusLbl);
    QWidget window;
    window.resize(200, 100);
    QWidget label(&window);
    label.setGeometry(0, 0, 50, 50);
    HintWatcher watcher(&window);
    watcher.Watch(label, Words::Text("Song duration in seconds"));
    watcher.Watch(window, {});
    window.show();
    QTest::mouseMove(&label, QPoint(10, 10));
    EXPECT_EQ(statusLbl.text(), QStringLiteral("Song duration in seconds"));
    QTest::mouseMove(&window, QPoint(150, 80));
    EXPECT_EQ(statusLbl.text(), QString());
}

TEST(HintWatcher, LeavesTheHintsOfButtonsOnAWatchedWindowAlone)
{
    QLabel statusLbl;
    SetStatusLbl(&statusLbl);
    QWidget window;
    window.resize(200, 100);
    HintWatcher watcher(&window);
    watcher.Watch(window, {});
    ButtonScheme scheme(window, AllOffTimer::OffAtFirst);
    ImageButton& save = scheme.AddButton({"SaveBtn", Words::Later("Save"), Words::Later("Restore button")}, [] {});
    window.show();
    QTest::mouseMove(&save, QPoint(20, 20));
    EXPECT_EQ(statusLbl.text(), QStringLiteral("Restore button"));
}

TEST(HintWatcher, LeavesTheHintOfACommandUntilTheMouseMoves)
{
    QLabel statusLbl;
    SetStatusLbl(&statusLbl);
    QWidget window;
    window.resize(200, 100);
    HintWatcher watcher(&window);
    watcher.Watch(window, {});
    ButtonScheme scheme(window, AllOffTimer::OffAtFirst);
    ImageButton& yes = scheme.AddButton({"YesBtn", Words::Later("Yes"), Words::Later("Close button")}, [] {});
    QCursor::setPos(window.mapToGlobal(QPoint(150, 80)));
    ShowHint(Words::AsIs("Click Yes to delete, No to keep"));
    window.show(); // under the pointer
    QApplication::processEvents();
    EXPECT_EQ(statusLbl.text(), QStringLiteral("Click Yes to delete, No to keep"));
    QTest::mouseMove(&yes, QPoint(20, 20));
    EXPECT_EQ(statusLbl.text(), QStringLiteral("Close button"));
}

} // namespace
} // namespace sprout
