// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/SongCommands.h"

#include "main_window/SongCommandsFixture.h"
#include "support/Flags.h"

namespace sprout {
namespace {

class SongCommandsTest : public SongCommandsFixture {};

TEST_F(SongCommandsTest, NewMakesANewSongAndStopsThePlayer)
{
    PutSong("Untitled", kQuickTempo);
    Song().SongTitle = "Rain";
    Song().Tempo = kQuickTempo;
    StartToPlay();
    ShowHint(Words::AsIs("Before"));
    ClickButton("NewBtn");
    EXPECT_EQ(Song().SongTitle, "Untitled 1");
    EXPECT_EQ(Song().TrackCount, 2);
    EXPECT_FALSE(Song().SongChanged);
    EXPECT_EQ(PlayShared().PlayState, PlayState::Stopped);
    EXPECT_EQ(TextOf("SngTitleLbl"), "Untitled 1");
    EXPECT_EQ(TextOf("TempoLbl"), "100%");
    EXPECT_EQ(TextOf("StatusLbl"), "");
}

TEST_F(SongCommandsTest, NewAsksAboutAChangedSong)
{
    SetSongChanged(Song(), true);
    Song().Tempo = kQuickTempo;
    QString asked;
    QString caption;
    QString hint;
    WithNextForm([&](BandedForm& form) {
        caption = form.findChild<QLabel*>(QStringLiteral("CaptionLbl"))->text();
        asked = form.findChild<QLabel*>(QStringLiteral("SongNameLbl"))->text();
        hint = QtText(TextOf("StatusLbl"));
        Click(form, "Cancel_Btn");
    });
    ClickButton("NewBtn");
    EXPECT_EQ(asked, QStringLiteral("Untitled"));
    EXPECT_EQ(caption, QStringLiteral(" Tonquill Sprout Painter"));
    EXPECT_EQ(hint, QStringLiteral("This Song is changed, say \"Yes\" to save if you need it"));
    EXPECT_EQ(TextOf("StatusLbl"), "");
    EXPECT_EQ(Song().Tempo, kQuickTempo);
    EXPECT_TRUE(Song().SongChanged);
}

TEST_F(SongCommandsTest, TheSaveQuestionIsCancelledByItsCloseBoxAndEscape)
{
    Song().Tempo = kQuickTempo;
    SetSongChanged(Song(), true);
    WithNextForm([](BandedForm& form) { Click(form, "CloseImgBtn"); });
    ClickButton("NewBtn");
    WithNextForm([](BandedForm& form) { QTest::keyClick(&form, Qt::Key_Escape); });
    ClickButton("NewBtn");
    EXPECT_EQ(Song().Tempo, kQuickTempo);
}

TEST_F(SongCommandsTest, NewGoesOnWithoutSavingAfterNo)
{
    SetSongChanged(Song(), true);
    Song().Tempo = kQuickTempo;
    WithNextForm([](BandedForm& form) { Click(form, "NoBtn"); });
    ClickButton("NewBtn");
    EXPECT_EQ(Song().Tempo, kReferenceTempo);
    EXPECT_FALSE(Song().SongChanged);
    EXPECT_FALSE(std::filesystem::exists(SongPath("Untitled")));
}

TEST_F(SongCommandsTest, NewSavesUnderTheTitleAfterYesWithoutAskingForAName)
{
    SetSongChanged(Song(), true);
    Song().SongTitle = "Rain";
    Song().Tempo = kQuickTempo;
    WithNextForm([](BandedForm& form) { Click(form, "YesBtn"); });
    ClickButton("NewBtn");
    EXPECT_EQ(Song().Tempo, kReferenceTempo);
    OpenSaveClass().Load_Song(SongPath("Rain"));
    EXPECT_EQ(Song().Tempo, kQuickTempo);
}

TEST_F(SongCommandsTest, NewSavesOverTheSongsOwnFileAfterYesWithoutAQuestion)
{
    PutSong("Rain", kQuickTempo);
    ChooseNextSong("Rain");
    ClickButton("OpenBtn");
    Song().Tempo = kQuickTempo + 1;
    SetSongChanged(Song(), true);
    WithNextForm([](BandedForm& form) { Click(form, "YesBtn"); });
    ClickButton("NewBtn");
    EXPECT_EQ(Song().SongTitle, "Untitled");
    OpenSaveClass().Load_Song(SongPath("Rain"));
    EXPECT_EQ(Song().Tempo, kQuickTempo + 1);
}

TEST_F(SongCommandsTest, YesOpensTheSaveWindowWhereTheSongWouldTakeTheFileOfAnother)
{
    PutSong("Untitled", kQuickTempo); // an older one
    SetSongChanged(Song(), true);
    QString second;
    WithNextForm([&second](BandedForm& question) {
        WithNextForm([&second](BandedForm& chooser) {
            second = chooser.objectName();
            EXPECT_EQ(chooser.findChild<QLineEdit*>(QStringLiteral("SongNameTxt"))->text(), QStringLiteral("Untitled"));
            Click(chooser, "CancelBtn");
        });
        Click(question, "YesBtn");
    });
    ClickButton("NewBtn");
    EXPECT_EQ(second, QStringLiteral("SongSelFrm"));
    EXPECT_TRUE(Song().SongChanged);
    EXPECT_EQ(Song().SongTitle, "Untitled");
    OpenSaveClass().Load_Song(SongPath("Untitled"));
    EXPECT_EQ(Song().Tempo, kQuickTempo);
}

TEST_F(SongCommandsTest, ASongSavedInThatWindowLetsTheCommandGoOn)
{
    PutSong("Untitled", kQuickTempo);
    SetSongChanged(Song(), true);
    ShownMessage message;
    WithNextForm([&message](BandedForm& question) {
        SaveNextAs("Rain", message);
        Click(question, "YesBtn");
    });
    ClickButton("NewBtn");
    EXPECT_EQ(message.line1, QStringLiteral("Your song \"Rain\" is saved."));
    EXPECT_TRUE(std::filesystem::exists(SongPath("Rain")));
    EXPECT_EQ(Song().SongTitle, "Untitled 1");
    EXPECT_FALSE(Song().SongChanged);
}

TEST_F(SongCommandsTest, YesAsksForANameWhereTheTitleCanBeNone)
{
    SetSongChanged(Song(), true);
    Song().SongTitle = "Rain/Sun";
    QString second;
    WithNextForm([&second](BandedForm& question) {
        WithNextForm([&second](BandedForm& chooser) {
            second = chooser.objectName();
            Click(chooser, "CancelBtn");
        });
        Click(question, "YesBtn");
    });
    ClickButton("NewBtn");
    EXPECT_EQ(second, QStringLiteral("SongSelFrm"));
    EXPECT_TRUE(Song().SongChanged);
}

TEST_F(SongCommandsTest, NewKeepsASongThatCannotBeSaved)
{
    SetSongChanged(Song(), true);
    Song().Tempo = kQuickTempo;
    TheServices().files = &fullDisk;
    ShownMessage message;
    WithNextForm([&message](BandedForm& form) {
        NoteNextMessage(message);
        Click(form, "YesBtn");
    });
    ClickButton("NewBtn");
    EXPECT_EQ(message.line1, QStringLiteral("Error making new file\r\nNo space left on device."));
    EXPECT_EQ(Song().Tempo, kQuickTempo);
    EXPECT_TRUE(Song().SongChanged);
}

} // namespace
} // namespace sprout
