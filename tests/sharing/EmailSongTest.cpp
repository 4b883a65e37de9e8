// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing/EmailSong.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QTest>

#include <optional>

#include "core/Shared.h"
#include "core/SongModel.h"
#include "sound/PlayTest.h"
#include "support/FakeServices.h"
#include "support/Flags.h"
#include "support/FullDisk.h"
#include "ui/ModalSteps.h"
#include "ui/widgets/Hints.h"

namespace sprout {
namespace {

namespace fs = std::filesystem;

constexpr const char* kPaintHint = "Please paint on the track.";
constexpr const char* kStartsHint = "Your mail program is starting.";

/// A song with a mix of 1000 frames, and its command.
class EmailSongTest : public testing::Test {
protected:
    EmailSongTest()
    {
        NewSong();
        song.SongTitle = "Zumi: 1";
        song.SongCreatedBy = "Lina";
        song.SongMix = CountingWave(1000);
        SetSongMixValid(song, true);
        SetStatusLbl(&statusLbl);
        ShowHint(Words::AsIs("Before"));
        window.show();
    }

    [[nodiscard]] fs::path MailedFile() const { return Shared().TempFolder / "private1/Zumi_ 1.wma"; }
    [[nodiscard]] std::string Hint() const { return statusLbl.text().toStdString(); }

    /// Notes the lines of the next message and closes it with OK.
    void NoteNextMessage()
    {
        WithNextForm([this](BandedForm& form) { NoteMessage(form); });
    }
    void NoteMessage(BandedForm& form)
    {
        for (const QLabel* note : form.findChildren<QLabel*>(QRegularExpression(QStringLiteral("^NoteLbl"))))
            told.push_back(note->text().toStdString());
        Click(form, "OkBtn");
    }

    /// Clicks and waits until everything has ended.
    void EmailToTheEnd()
    {
        command->EmailBtn();
        EXPECT_TRUE(QTest::qWaitFor([this] { return IsAtRest(); }, kLongestWait));
    }
    [[nodiscard]] bool IsAtRest() const { return !command->IsUnderWay(); }

    /// Answers a message that comes some time later.
    void NoteMessageWhenItComes()
    {
        QObject::connect(&look, &QTimer::timeout, &look, [this] {
            auto* form = qobject_cast<BandedForm*>(QApplication::activeModalWidget());
            if (!form)
                return;
            look.stop();
            NoteMessage(*form);
        });
        look.start(1);
    }

    static constexpr int kLongestWait = 60000;

    FakeServices services;
    FakeMail& mail = services.mail;
    SongState& song = Shared().Song;
    QLabel statusLbl;
    QWidget window;
    QTimer look;
    std::vector<std::string> told;
    std::optional<EmailSong> command{std::in_place, nullptr};
};

TEST_F(EmailSongTest, HandsTheSongToTheMailProgram)
{
    EmailToTheEnd();
    ASSERT_EQ(mail.messages.size(), 1U);
    const MailMessage& message = mail.messages.front();
    EXPECT_EQ(message.Recipient, "");
    EXPECT_EQ(message.Subject, "Song i composed myself - Zumi: 1");
    EXPECT_EQ(message.Body, "Hi \r\n\r\nListen to this song \"Zumi: 1\" I composed with Tonquill Sprout Painter\r\n"
                            "https://tonquill.example/\r\n\r\nTalk to you later\r\nLina");
    EXPECT_EQ(message.Attachment, MailedFile());
    EXPECT_EQ(ReadBytes(MailedFile()).size(), 4000U);
    EXPECT_EQ(Hint(), "");
    EXPECT_TRUE(services.messages.shown.empty());
    EXPECT_TRUE(services.desktop.opened.empty());
    EXPECT_EQ(services.screen.stages, (std::vector<std::string>{"Mixing your song", "Writing the wma file", ""}));
}

TEST_F(EmailSongTest, KeepsTheFirstMailedSongWhenASecondGoesOut)
{
    EmailToTheEnd();
    EmailToTheEnd();
    EXPECT_TRUE(fs::exists(MailedFile()));
    EXPECT_TRUE(fs::exists(Shared().TempFolder / "private2/Zumi_ 1.wma"));
    EXPECT_EQ(mail.messages.size(), 2U);
}

TEST_F(EmailSongTest, TellsWhereTheSongIsAndOpensItsFolderWhereNoMailProgramStarts)
{
    mail.starts = false;
    NoteMessageWhenItComes();
    EmailToTheEnd();
    EXPECT_EQ(told, (std::vector<std::string>{"Failed to send email. Song is saved to file:", MailedFile().native()}));
    EXPECT_EQ(services.desktop.opened, (std::vector<std::string>{MailedFile().parent_path().native()}));
    EXPECT_EQ(ReadBytes(MailedFile()).size(), 4000U);
}

TEST_F(EmailSongTest, TakesABrokenHandOverForAFailedOne)
{
    mail.throws = true;
    NoteMessageWhenItComes();
    EmailToTheEnd();
    EXPECT_EQ(told.size(), 2U);
    EXPECT_TRUE(fs::exists(MailedFile()));
}

TEST_F(EmailSongTest, HintsAtPaintingWhereTheSongIsSilent)
{
    SetSongMixValid(song, false);
    command->EmailBtn();
    EXPECT_TRUE(IsAtRest());
    EXPECT_EQ(Hint(), kPaintHint);
    EXPECT_TRUE(mail.messages.empty());
    EXPECT_FALSE(fs::exists(MailedFile().parent_path()));
}

TEST_F(EmailSongTest, EndsWithoutAWordWhereNoFormatFits)
{
    services.wma.list = "Windows Media Audio 2\r\n48 kbit/s\n48000\n44100\n2\n16";
    command->EmailBtn();
    EXPECT_EQ(Hint(), "");
    EXPECT_TRUE(mail.messages.empty());
    EXPECT_FALSE(fs::exists(MailedFile().parent_path()));
}

TEST_F(EmailSongTest, TellsWhyNoFileCouldBeWritten)
{
    services.wma.openFails = true;
    NoteNextMessage();
    command->EmailBtn();
    EXPECT_EQ(told, (std::vector<std::string>{"Failed to open WMA Writer"}));
    EXPECT_EQ(Hint(), "");
    EXPECT_TRUE(mail.messages.empty());
    EXPECT_FALSE(fs::exists(MailedFile().parent_path()));
    EXPECT_EQ(services.screen.stages.back(), ""); // the progress was already gone
}

TEST_F(EmailSongTest, LeavesNothingOnAFullDisk)
{
    FullDisk fullDisk;
    TheServices().files = &fullDisk;
    NoteNextMessage();
    command->EmailBtn();
    EXPECT_EQ(told.size(), 1U);
    EXPECT_FALSE(fs::exists(MailedFile().parent_path()));
    EXPECT_TRUE(IsAtRest());
}

TEST_F(EmailSongTest, TellsWhereThereIsNoPlaceForThePrivateFolder)
{
    services.privateFolders.fails = true;
    command->EmailBtn();
    ASSERT_EQ(services.messages.shown.size(), 1U);
    EXPECT_EQ(services.messages.shown.front().text, "No folder could be made.");
    EXPECT_TRUE(IsAtRest());
}

TEST_F(EmailSongTest, LeavesNothingWhereTheUserStopsTheWriting)
{
    services.screen.progressesBeforeStop = 0;
    command->EmailBtn();
    EXPECT_TRUE(IsAtRest());
    EXPECT_TRUE(mail.messages.empty());
    EXPECT_FALSE(fs::exists(MailedFile().parent_path()));
    EXPECT_TRUE(services.messages.shown.empty());
    EXPECT_EQ(Hint(), "");
    EXPECT_EQ(services.screen.stages.back(), "");
    EXPECT_TRUE(song.SongMixValid); // that was already done
}

TEST_F(EmailSongTest, LeavesNothingWhereTheUserStopsTheMixing)
{
    Shared().TestTone = CountingWave(1000);
    At(song.Tracks, 1).TrackTune.Steps[1].OnPos = 1; // without a beat it plays the test tone
    At(song.Tracks, 1).Painted[1] = 1;
    SetSongMixValid(song, false);
    services.screen.progressesBeforeStop = 0;
    command->EmailBtn();
    EXPECT_TRUE(IsAtRest());
    EXPECT_FALSE(song.SongMixValid);
    EXPECT_EQ(services.screen.stages, (std::vector<std::string>{"Mixing your song", ""}));
    EXPECT_EQ(Hint(), "");
    EXPECT_FALSE(fs::exists(MailedFile().parent_path()));
    services.screen.progressesBeforeStop = -1;
    EmailToTheEnd();
    EXPECT_EQ(mail.messages.size(), 1U);
}

TEST_F(EmailSongTest, StartsNothingTwice)
{
    mail.takesItsTime = true;
    command->EmailBtn();
    mail.WaitForMessage();
    EXPECT_EQ(Hint(), "");
    command->EmailBtn();
    EXPECT_EQ(Hint(), kStartsHint);
    mail.GoOn();
    EXPECT_TRUE(QTest::qWaitFor([this] { return IsAtRest(); }, kLongestWait));
    EXPECT_EQ(mail.messages.size(), 1U);
    EXPECT_EQ(services.privateFolders.made.size(), 1U);
}

TEST_F(EmailSongTest, LetsTheWindowLiveWhileTheMailProgramStarts)
{
    mail.takesItsTime = true;
    command->EmailBtn(); // returns
    mail.WaitForMessage();
    song.SongTitle = "Rain";
    song.SongMix = WaveData();
    mail.GoOn();
    EXPECT_TRUE(QTest::qWaitFor([this] { return IsAtRest(); }, kLongestWait));
    EXPECT_EQ(mail.messages.front().Subject, "Song i composed myself - Zumi: 1");
}

TEST_F(EmailSongTest, WaitsWithItsMessageUntilAnotherFormIsAnswered)
{
    mail.starts = false;
    bool cameBefore = false;
    BandedForm other(nullptr);
    WithNextForm([&](BandedForm& form) {
        command->EmailBtn();
        // The hand-over ends, and its end is noticed, while the form waits.
        EXPECT_TRUE(QTest::qWaitFor([this] { return command->findChild<QTimer*>()->isActive(); }, kLongestWait));
        cameBefore = QApplication::activeModalWidget() != &form;
        NoteMessageWhenItComes();
        form.reject();
    });
    other.ShowModal();
    EXPECT_FALSE(cameBefore);
    EXPECT_TRUE(QTest::qWaitFor([this] { return IsAtRest(); }, kLongestWait));
    EXPECT_EQ(told.size(), 2U);
}

TEST_F(EmailSongTest, EndsWithTheProgramWhileTheMailProgramStarts)
{
    mail.takesItsTime = true;
    mail.starts = false;
    command->EmailBtn();
    mail.WaitForMessage();
    command.reset();
    EXPECT_TRUE(mail.wasStopped);
    QCoreApplication::processEvents();
    EXPECT_TRUE(told.empty());
    EXPECT_TRUE(fs::exists(MailedFile()));
}

TEST_F(EmailSongTest, TellsNothingOnceNobodyWaits)
{
    mail.takesItsTime = true;
    mail.starts = false;
    command->EmailBtn();
    mail.WaitForMessage();
    command->StopWaiting();
    EXPECT_TRUE(mail.wasStopped);
    QCoreApplication::processEvents(); // a message would wait for its OK
    EXPECT_TRUE(IsAtRest());
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_TRUE(services.desktop.opened.empty());
}

} // namespace
} // namespace sprout
