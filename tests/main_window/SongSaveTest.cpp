// SPDX-License-Identifier: GPL-3.0-or-later
// The command that saves the song.
#include "main_window/SongCommandsFixture.h"
#include "support/Flags.h"

namespace sprout {
namespace {

class SongSaveTest : public SongCommandsFixture {};

TEST_F(SongSaveTest, ASongWithoutTracksIsNotSaved)
{
    PutSong("Rain", kQuickTempo);
    Song().SongTitle = "Rain";
    Song().TrackCount = 0;
    SetSongChanged(Song(), true);
    ShownMessage message;
    NoteNextMessage(message);
    ClickButton("SaveBtn");
    EXPECT_EQ(message.line1, QStringLiteral("Error Saving file\r\nThis song has no tracks, so it is not saved."));
    OpenSaveClass().Load_Song(SongPath("Rain"));
    EXPECT_EQ(Song().Tempo, kQuickTempo);
}

TEST_F(SongSaveTest, EnterDoesNotReplaceASongThatCouldNotBeRead)
{
    WriteBytes(SongPath("Broken"), "This is no song.");
    ChooseNextSong("Broken");
    ClickButton("OpenBtn");
    Song().TrackCount = 1;
    Song().Tracks.resize(2);
    WithNextForm([](BandedForm& chooser) {
        WithNextForm([](BandedForm& question) {
            WithNextForm([](BandedForm& again) { Click(again, "CancelBtn"); });
            QTest::keyClick(question.focusWidget(), Qt::Key_Return);
        });
        QTest::keyClick(chooser.findChild<QLineEdit*>(QStringLiteral("SongNameTxt")), Qt::Key_Return);
    });
    ClickButton("SaveBtn");
    EXPECT_EQ(ReadBytes(SongPath("Broken")), "This is no song.");
}

TEST_F(SongSaveTest, SaveWritesTheSongUnderItsNewName)
{
    SetSongChanged(Song(), true);
    Song().Tempo = kQuickTempo;
    ShownMessage message;
    SaveNextAs("Rain", message);
    ClickButton("SaveBtn");
    EXPECT_EQ(message.line1, QStringLiteral("Your song \"Rain\" is saved."));
    EXPECT_EQ(message.caption, QStringLiteral(" Good!"));
    EXPECT_EQ(Song().SongTitle, "Rain");
    EXPECT_FALSE(Song().SongChanged);
    EXPECT_EQ(TextOf("SngTitleLbl"), "Rain");
    OpenSaveClass().Load_Song(SongPath("Rain"));
    EXPECT_EQ(Song().Tempo, kQuickTempo);
}

TEST_F(SongSaveTest, SaveReplacesAFileWhoseNameDiffersInCaseOnly)
{
    PutSong("Rain", kQuickTempo);
    Song().SongTitle = "RAIN";
    Song().OwnFile = MarkOf(SongPath("Rain"));
    ShownMessage message;
    SaveNextAs("RAIN", message);
    ClickButton("SaveBtn");
    EXPECT_FALSE(std::filesystem::exists(SongPath("RAIN")));
    OpenSaveClass().Load_Song(SongPath("Rain"));
    EXPECT_EQ(Song().Tempo, kReferenceTempo);
}

TEST_F(SongSaveTest, SaveDoesNothingAfterCancel)
{
    SetSongChanged(Song(), true);
    ShowHint(Words::AsIs("Before"));
    WithNextForm([this](BandedForm& form) {
        EXPECT_EQ(TextOf("StatusLbl"), "");
        Click(form, "CancelBtn");
    });
    ClickButton("SaveBtn");
    EXPECT_TRUE(Song().SongChanged);
    EXPECT_FALSE(std::filesystem::exists(SongPath("Untitled")));
}

TEST_F(SongSaveTest, SaveTellsOfAFullDiskAndKeepsTheSongAsItWas)
{
    SetSongChanged(Song(), true);
    TheServices().files = &fullDisk;
    ShownMessage message;
    SaveNextAs("Rain", message);
    ClickButton("SaveBtn");
    EXPECT_EQ(message.line1, QStringLiteral("Error Saving file\r\nNo space left on device."));
    EXPECT_TRUE(Song().SongChanged);
    EXPECT_EQ(Song().SongTitle, "Untitled");
    EXPECT_EQ(TextOf("SngTitleLbl"), "Untitled");
}

} // namespace
} // namespace sprout
