// SPDX-License-Identifier: GPL-3.0-or-later
#include <QClipboard>

#include "song_window/SongSelFrmTest.h"

namespace sprout {
namespace {

using SongNameTest = SongSelFrmTest;

TEST_F(SongNameTest, TypedCharactersThatNoFileNameMayHoldBecomeUnderscoresAtOnce)
{
    Open(SongSelMode::Save);
    NameBox().clear();
    QTest::keyClicks(&NameBox(), QStringLiteral("a.b"));
    EXPECT_EQ(NameBox().text(), QStringLiteral("a_b"));
    NameBox().clear();
    QTest::keyClicks(&NameBox(), QStringLiteral("./\\:*?\"<>,|'"));
    EXPECT_EQ(NameBox().text(), QStringLiteral("_________,|'"));
}

TEST_F(SongNameTest, TheCaretStaysWhereItWasTyped)
{
    Open(SongSelMode::Save);
    NameBox().setText(QStringLiteral("Zumi"));
    NameBox().setCursorPosition(2);
    QTest::keyClicks(&NameBox(), QStringLiteral("?"));
    EXPECT_EQ(NameBox().text(), QStringLiteral("Zu_mi"));
    EXPECT_EQ(NameBox().cursorPosition(), 3);
    QApplication::clipboard()->setText(QStringLiteral("a:b"));
    NameBox().paste();
    EXPECT_EQ(NameBox().text(), QStringLiteral("Zu_a_bmi"));
    EXPECT_EQ(NameBox().cursorPosition(), 6);
}

TEST_F(SongNameTest, ANameHasNoLengthLimit)
{
    Open(SongSelMode::New);
    NameBox().setText(QString(40'000, QLatin1Char('a')));
    EXPECT_EQ(NameBox().text().size(), 40'000);
}

TEST_F(SongNameTest, AClickOnALinePutsItsNameIntoTheBox)
{
    Put({"Rain", "Zumi"});
    Open(SongSelMode::Save);
    ClickRow(0);
    EXPECT_EQ(NameBox().text(), QStringLiteral("Rain"));
    QTest::keyClicks(&NameBox(), QStringLiteral(" 2"));
    ClickRow(0); // the same line again
    EXPECT_EQ(NameBox().text(), QStringLiteral("Rain"));
}

TEST_F(SongNameTest, ArrowsInTheNameBoxGoThroughTheList)
{
    Put({"Rain", "Zumi"});
    Open(SongSelMode::Save);
    QTest::keyClick(&NameBox(), Qt::Key_Down);
    QTest::keyClick(&NameBox(), Qt::Key_Down);
    EXPECT_EQ(Selected(), QStringLiteral("Zumi"));
    EXPECT_EQ(NameBox().text(), QStringLiteral("Zumi"));
    QTest::keyClick(&NameBox(), Qt::Key_Up);
    EXPECT_EQ(NameBox().text(), QStringLiteral("Rain"));
    EXPECT_TRUE(NameBox().hasFocus());
}

TEST_F(SongNameTest, ABlankNameIsAskedForAgain)
{
    Open(SongSelMode::Save);
    NameBox().setText(QStringLiteral("  "));
    EXPECT_EQ(ClickAndAnswer("OkBtn", "OkBtn"), (Told{kTitle,
                                                      QStringLiteral("Please enter a song name."),
                                                      {},
                                                      QStringLiteral("Type a name in song name text box")}));
    EXPECT_EQ(statusLbl.text(), QString());
    EXPECT_TRUE(form.isVisible());
    Open(SongSelMode::New);
    NameBox().clear();
    EXPECT_EQ(ClickAndAnswer("OkBtn", "OkBtn"), (Told{kTitle, QStringLiteral("Please enter a song name."), {}, {}}));
    EXPECT_FALSE(form.Ok);
}

TEST_F(SongNameTest, SavingOverTheOwnFileInAnotherCaseAsksNothing)
{
    Put({"Zumi"});
    Shared().Song.OwnFile = MarkOf(songFolder / "Zumi.TqSng");
    Open(SongSelMode::Save);
    NameBox().setText(QStringLiteral("ZUMI"));
    Click(form, "OkBtn");
    EXPECT_TRUE(form.Ok);
    EXPECT_EQ(form.ChosenName, "ZUMI");
}

TEST_F(SongNameTest, SavingOverAFileThatTheSongIsNotFromAsksUnderItsTitleTooAndEnterSaysNo)
{
    Put({"Zumi"});
    Open(SongSelMode::Save);
    QString asked;
    WithNextForm([&asked](BandedForm& question) {
        asked = question.findChild<QLabel*>(QStringLiteral("NoteLbl1"))->text();
        QTest::keyClick(question.focusWidget(), Qt::Key_Return);
    });
    QTest::keyClick(&NameBox(), Qt::Key_Return);
    EXPECT_EQ(asked, QStringLiteral("A song with this name already exists: Zumi"));
    EXPECT_TRUE(form.isVisible());
    EXPECT_FALSE(form.Ok);
}

TEST_F(SongNameTest, SavingOverAnotherSongAsksFirst)
{
    Put({"Rain", "Zumi"});
    Open(SongSelMode::Save);
    NameBox().setText(QStringLiteral("rain"));
    EXPECT_EQ(ClickAndAnswer("OkBtn", "NoBtn"),
              (Told{kTitle, QStringLiteral("A song with this name already exists: rain"),
                    QStringLiteral("Do you wish to overwrite?"),
                    QStringLiteral("Recommended to click 'No' and then save with another name")}));
    EXPECT_EQ(statusLbl.text(), QString());
    EXPECT_TRUE(form.isVisible());
    EXPECT_FALSE(form.Ok);
    ClickAndAnswer("OkBtn", "CloseImgBtn");
    EXPECT_TRUE(form.isVisible());
    ClickAndAnswer("OkBtn", "YesBtn");
    EXPECT_TRUE(form.Ok);
    EXPECT_EQ(form.ChosenName, "rain");
}

TEST_F(SongNameTest, AFreeNameIsTakenAsItWasTyped)
{
    Put({"Rain"});
    Open(SongSelMode::Save);
    NameBox().setText(QStringLiteral(" Snow "));
    QTest::keyClick(&NameBox(), Qt::Key_Return);
    EXPECT_TRUE(form.Ok);
    EXPECT_EQ(form.ChosenName, " Snow ");
}

TEST_F(SongNameTest, ANewSongOfTheOpenTitleAsksIfThereIsAFileOfThatName)
{
    Put({"Zumi"});
    Open(SongSelMode::New);
    NameBox().setText(QStringLiteral("Zumi"));
    EXPECT_EQ(ClickAndAnswer("OkBtn", "NoBtn"), (Told{kTitle,
                                                      QStringLiteral("A song with this name already exists: Zumi"),
                                                      QStringLiteral("Do you wish to overwrite?"),
                                                      {}}));
    EXPECT_FALSE(form.Ok);
}

TEST_F(SongNameTest, ANewSongOfTheOpenTitleAsksNothingIfThereIsNoFile)
{
    Put({"Rain"});
    Open(SongSelMode::New);
    NameBox().setText(QStringLiteral("Zumi"));
    Click(form, "OkBtn");
    EXPECT_TRUE(form.Ok);
    EXPECT_EQ(form.ChosenName, "Zumi");
}

} // namespace
} // namespace sprout
