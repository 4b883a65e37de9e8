// SPDX-License-Identifier: GPL-3.0-or-later
// Mail from the main window.
#include "main_window/MainWindowTest.h"
#include "sound/PlayTest.h"
#include "support/Flags.h"

namespace sprout {
namespace {

class MainMailTest : public MainWindowTest {};

TEST_F(MainMailTest, MailsTheSong)
{
    ShowHint(Words::AsIs("Before"));
    ClickButton("EmailBtn");
    EXPECT_EQ(TextOf("StatusLbl"), "Please paint on the track.");
    Song().SongMix = CountingWave(1000);
    SetSongMixValid(Song(), true);
    ClickButton("EmailBtn");
    fake.mail.WaitForMessage();
    EXPECT_EQ(fake.mail.messages.front().Subject, "Song i composed myself - Untitled");
}

TEST_F(MainMailTest, WaitsForNoMailProgramOnceItIsClosed)
{
    Song().SongMix = CountingWave(1000);
    SetSongMixValid(Song(), true);
    fake.mail.takesItsTime = true;
    ClickButton("EmailBtn");
    fake.mail.WaitForMessage();
    window->close();
    EXPECT_TRUE(fake.mail.wasStopped);
}

TEST_F(MainMailTest, HasNoMailWhereItIsSwitchedOff)
{
    for (const char* value : {"1", "1.0", " 1x"}) {
        PutSetting("General", "HideEmail", value);
        Open();
        EXPECT_FALSE(Control("EmailBtn").isVisible()) << value;
    }
    const int gap = Control("HelpBtn").x() - Control("SaveBtn").geometry().right();
    Control("SongTitleChgBtn").setFocus();
    QTest::keyClick(window->focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(window->focusWidget(), &Control("HelpBtn"));
    for (const char* value : {"0", "", "1.2", "yes"}) {
        PutSetting("General", "HideEmail", value);
        Open();
        EXPECT_TRUE(Control("EmailBtn").isVisible()) << value;
    }
    EXPECT_EQ(Control("HelpBtn").x() - Control("EmailBtn").geometry().right(), gap);
}

TEST_F(MainMailTest, ReadsOnlyOnceWhetherMailIsSwitchedOff)
{
    PutSetting("General", "HideEmail", "1");
    window->resize(800, 600);
    window->showMaximized();
    EXPECT_TRUE(Control("EmailBtn").isVisible());
}

} // namespace
} // namespace sprout
