// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/SongCommands.h"

#include <QLineEdit>
#include <QListWidget>
#include <QScrollBar>
#include <QTimer>

#include "main_window/MainWindowTest.h"
#include "support/Flags.h"
#include "support/FullDisk.h"

namespace sprout {
namespace {

constexpr std::int32_t kQuickTempo = 400;

class SongCommandsTest : public MainWindowTest {
protected:
    /// Chooses a song in the next song window, after running `before`.
    static void ChooseNextSong(const char* name, std::function<void()> before = {})
    {
        WithNextForm([name, before = std::move(before)](BandedForm& form) {
            auto* list = form.findChild<QListWidget*>(QStringLiteral("SngNmLst"));
            const auto lines = list->findItems(QString::fromLatin1(name), Qt::MatchExactly);
            ASSERT_EQ(lines.size(), 1);
            list->setCurrentItem(lines.front());
            if (before)
                before();
            Click(form, "OkBtn");
        });
    }

    /// Types a name into the next song window and clicks OK; `message` is what the program says then.
    static void SaveNextAs(const char* name, ShownMessage& message)
    {
        WithNextForm([name, &message](BandedForm& form) {
            auto* box = form.findChild<QLineEdit*>(QStringLiteral("SongNameTxt"));
            EXPECT_EQ(box->text().toStdString(), Song().SongTitle);
            box->setText(QString::fromLatin1(name));
            // The message appears after the song window has closed.
            NoteNextMessage(message);
            Click(form, "OkBtn");
        });
    }

    /// Answers the next title form.
    void ChangeNextTitle(const char* name, const char* author, const char* button = "OkBtn") const
    {
        WithNextForm([this, name, author, button](BandedForm& form) {
            EXPECT_EQ(form.findChild<QLabel*>(QStringLiteral("CaptionLbl"))->text(),
                      QStringLiteral(" Change Song Title"));
            EXPECT_EQ(TextOf("StatusLbl"), "");
            form.findChild<QLineEdit*>(QStringLiteral("NameTxt"))->setText(QString::fromLatin1(name));
            form.findChild<QLineEdit*>(QStringLiteral("CreatedTxt"))->setText(QString::fromLatin1(author));
            Click(form, button);
        });
    }

    void StartToPlay()
    {
        SetSoundDriver(true);
        Shared().TestTone = WaveOfOneSecond();
        PlayWaveStatus(Shared().TestTone, "Playing", Loop::No);
        ASSERT_EQ(PlayShared().PlayState, PlayState::Playing);
    }

    static WaveData WaveOfOneSecond()
    {
        WaveData wave;
        wave.Length = 44100;
        wave.WavL = Channel(wave.Length);
        wave.WavR = Channel(wave.Length);
        return wave;
    }

    FullDisk fullDisk;
};

TEST_F(SongCommandsTest, NewMakesANewSongAndStopsThePlayer)
{
    PutSong("Untitled", kQuickTempo);
    Song().SongTitle = "Rain";
    Song().Tempo = kQuickTempo;
    StartToPlay();
    ShowHint(QStringLiteral("Before"));
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

TEST_F(SongCommandsTest, ASongWithoutTracksIsNotSaved)
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

TEST_F(SongCommandsTest, EnterDoesNotReplaceASongThatCouldNotBeRead)
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

TEST_F(SongCommandsTest, OpenLoadsTheChosenSong)
{
    PutSong("Rain", kQuickTempo);
    StartToPlay();
    ChooseNextSong("Rain");
    ClickButton("OpenBtn");
    EXPECT_EQ(Song().SongTitle, "Rain");
    EXPECT_EQ(Song().Tempo, kQuickTempo);
    EXPECT_FALSE(Song().SongChanged);
    EXPECT_EQ(PlayShared().PlayState, PlayState::Stopped);
    EXPECT_EQ(TextOf("SngTitleLbl"), "Rain");
    EXPECT_EQ(TextOf("TempoLbl"), "125%");
    EXPECT_EQ(TextOf("CaptionLbl"), "Tonquill Sprout Painter - [Rain]");
}

TEST_F(SongCommandsTest, NewAndOpenShowTheSongFromItsFirstTrackAndCell)
{
    PutSong("Rain", kQuickTempo);
    Song().TrackCount = 20;
    Song().Tracks.resize(21);
    for (Track& track : Song().Tracks)
        track.Painted.resize(static_cast<std::size_t>(Song().SongCells) + 1);
    auto& rows = *window->findChild<QScrollBar*>(QStringLiteral("TrackVScroll"));
    auto& cells = *window->findChild<QScrollBar*>(QStringLiteral("TrackHScroll"));
    const auto scroll = [&] {
        window->DrawTracksAll();
        rows.setValue(2);
        cells.setValue(100);
        ASSERT_EQ(cells.value(), 100);
    };
    scroll();
    ChooseNextSong("Rain");
    ClickButton("OpenBtn");
    EXPECT_EQ(rows.value(), 1);
    EXPECT_EQ(cells.value(), 1);
    scroll();
    ClickButton("NewBtn");
    EXPECT_EQ(cells.value(), 1);
}

TEST_F(SongCommandsTest, OpenDoesNothingAfterCancel)
{
    PutSong("Rain", kQuickTempo);
    WithNextForm([](BandedForm& form) { Click(form, "CancelBtn"); });
    ClickButton("OpenBtn");
    EXPECT_EQ(Song().SongTitle, "Untitled");
}

TEST_F(SongCommandsTest, OpenEndsWhereTheSaveQuestionIsCancelled)
{
    PutSong("Rain", kQuickTempo);
    SetSongChanged(Song(), true);
    QString second;
    WithNextForm([&second](BandedForm& form) {
        WithNextForm([&second](BandedForm& next) {
            second = next.objectName();
            Click(next, "CancelBtn");
        });
        Click(form, "Cancel_Btn");
    });
    ClickButton("OpenBtn");
    QCoreApplication::processEvents();
    EXPECT_EQ(second, QString());
    EXPECT_TRUE(Song().SongChanged);
}

TEST_F(SongCommandsTest, OpenSavesAfterYesAndTheSongIsUnchangedThenThoughNoneIsChosen)
{
    SetSongChanged(Song(), true);
    WithNextForm([](BandedForm& question) {
        WithNextForm([](BandedForm& chooser) { Click(chooser, "CancelBtn"); });
        Click(question, "YesBtn");
    });
    ClickButton("OpenBtn");
    EXPECT_FALSE(Song().SongChanged);
    EXPECT_EQ(Song().SongTitle, "Untitled");
    EXPECT_TRUE(std::filesystem::exists(SongPath("Untitled")));
}

TEST_F(SongCommandsTest, OpenTellsOfAFullDiskAndKeepsTheSong)
{
    SetSongChanged(Song(), true);
    TheServices().files = &fullDisk;
    ShownMessage message;
    WithNextForm([&message](BandedForm& question) {
        NoteNextMessage(message);
        Click(question, "YesBtn");
    });
    ClickButton("OpenBtn");
    EXPECT_EQ(message.line1, QStringLiteral("Error Opening file\r\nNo space left on device."));
    EXPECT_EQ(message.caption, QStringLiteral(" Tonquill Sprout Painter"));
    EXPECT_TRUE(Song().SongChanged);
}

TEST_F(SongCommandsTest, OpenTellsThatASongHasGoneMeanwhile)
{
    PutSong("Rain", kQuickTempo);
    ShownMessage message;
    ChooseNextSong("Rain", [this, &message] {
        std::filesystem::remove(SongPath("Rain"));
        NoteNextMessage(message);
    });
    ClickButton("OpenBtn");
    EXPECT_EQ(message.line1, QStringLiteral("This song is not there any more."));
    EXPECT_EQ(message.line2, QStringLiteral("Rain"));
    EXPECT_EQ(Song().SongTitle, "Untitled");
    EXPECT_EQ(Song().TrackCount, 2);
}

TEST_F(SongCommandsTest, OpenLivesWithABrokenFile)
{
    WriteBytes(SongPath("Broken"), "This is no song.");
    SetSongChanged(Song(), true);
    WithNextForm([](BandedForm& question) {
        ChooseNextSong("Broken");
        Click(question, "NoBtn");
    });
    ClickButton("OpenBtn");
    EXPECT_FALSE(fake.messages.shown.empty());
    EXPECT_EQ(Song().TrackCount, 0);
    EXPECT_EQ(TextOf("SngTitleLbl"), "Broken");
    EXPECT_FALSE(Song().SongChanged);
    window->grab();
    ClickButton("NewBtn");
    EXPECT_EQ(Song().TrackCount, 2);
}

TEST_F(SongCommandsTest, NothingBlinksWhileASongIsChosen)
{
    const auto tick = [this] {
        auto* timer = window->findChild<QTimer*>(QStringLiteral("TuneNotFilledTimer"));
        timer->setInterval(0);
        timer->start();
        QCoreApplication::processEvents();
    };
    PutSong("Rain", kQuickTempo);
    const auto isBlank = [] { return SamePicture(At(Song().Tracks, 1).TrackTune.Picture, Shared().BlankPic); };
    ASSERT_TRUE(isBlank());
    bool blankInside = false;
    WithNextForm([&](BandedForm& form) {
        tick();
        blankInside = isBlank();
        Click(form, "CancelBtn");
    });
    ClickButton("OpenBtn");
    EXPECT_TRUE(blankInside);
    tick();
    EXPECT_FALSE(isBlank());
}

TEST_F(SongCommandsTest, SaveWritesTheSongUnderItsNewName)
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

TEST_F(SongCommandsTest, SaveReplacesAFileWhoseNameDiffersInCaseOnly)
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

TEST_F(SongCommandsTest, SaveDoesNothingAfterCancel)
{
    SetSongChanged(Song(), true);
    ShowHint(QStringLiteral("Before"));
    WithNextForm([this](BandedForm& form) {
        EXPECT_EQ(TextOf("StatusLbl"), "");
        Click(form, "CancelBtn");
    });
    ClickButton("SaveBtn");
    EXPECT_TRUE(Song().SongChanged);
    EXPECT_FALSE(std::filesystem::exists(SongPath("Untitled")));
}

TEST_F(SongCommandsTest, SaveTellsOfAFullDiskAndKeepsTheSongAsItWas)
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

TEST_F(SongCommandsTest, ChangeTakesTitleAndAuthor)
{
    ShowHint(QStringLiteral("Before"));
    ChangeNextTitle("Rain", "Lina");
    ClickButton("SongTitleChgBtn");
    EXPECT_EQ(Song().SongTitle, "Rain");
    EXPECT_EQ(Song().SongCreatedBy, "Lina");
    EXPECT_TRUE(Song().SongChanged);
    EXPECT_EQ(TextOf("SngTitleLbl"), "Rain");
    EXPECT_EQ(TextOf("SngCreateLbl"), "Lina");
    EXPECT_EQ(TextOf("StatusLbl"), "");
}

TEST_F(SongCommandsTest, ChangeOfOneLettersCaseIsAChange)
{
    ChangeNextTitle("untitled", "Your name here");
    ClickButton("SongTitleChgBtn");
    EXPECT_EQ(Song().SongTitle, "untitled");
    EXPECT_TRUE(Song().SongChanged);
}

TEST_F(SongCommandsTest, ChangeOfTheAuthorAloneIsAChange)
{
    ChangeNextTitle("Untitled", "Lina");
    ClickButton("SongTitleChgBtn");
    EXPECT_EQ(Song().SongCreatedBy, "Lina");
    EXPECT_EQ(TextOf("SngCreateLbl"), "Lina");
    EXPECT_TRUE(Song().SongChanged);
}

TEST_F(SongCommandsTest, ChangeThatChangesNothingLeavesTheSongUnchanged)
{
    ChangeNextTitle("Untitled", "Your name here");
    ClickButton("SongTitleChgBtn");
    EXPECT_FALSE(Song().SongChanged);
    ChangeNextTitle("Rain", "Lina", "CancelBtn");
    ClickButton("SongTitleChgBtn");
    EXPECT_FALSE(Song().SongChanged);
    EXPECT_EQ(Song().SongTitle, "Untitled");
}

TEST_F(SongCommandsTest, ChangeLeavesTheOldFileInPlaceAndALaterSaveWritesANewOne)
{
    PutSong("Rain", kQuickTempo);
    ChooseNextSong("Rain");
    ClickButton("OpenBtn");
    ChangeNextTitle("Sun", "Lina");
    ClickButton("SongTitleChgBtn");
    EXPECT_TRUE(std::filesystem::exists(SongPath("Rain")));
    EXPECT_FALSE(std::filesystem::exists(SongPath("Sun")));
    ShownMessage message;
    SaveNextAs("Sun", message);
    ClickButton("SaveBtn");
    EXPECT_TRUE(std::filesystem::exists(SongPath("Rain")));
    EXPECT_TRUE(std::filesystem::exists(SongPath("Sun")));
}

TEST_F(SongCommandsTest, DoubleClicksOnTitleAndAuthorChangeThemToo)
{
    int asked = 0;
    for (const char* name : {"SngTitleLbl", "SngTitle2Lbl", "SngCreateLbl", "SngCreate2Lbl"}) {
        WithNextForm([&asked](BandedForm& form) {
            asked += form.objectName() == QStringLiteral("SongTitleFrm") ? 1 : 0;
            Click(form, "CancelBtn");
        });
        QTest::mouseDClick(&Control(name), Qt::LeftButton);
    }
    EXPECT_EQ(asked, 4);
}

} // namespace
} // namespace sprout
