// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/OpenMainWindow.h"
#include "base/FilePaths.h"

#include "main_window/MainWindowTest.h"
#include "songs/SongKeeper.h"
#include "support/Flags.h"
#include "tunes/TunOpnSavClass.h"

namespace sprout {
namespace {

class OpenMainWindowTest : public MainWindowTest {
protected:
    OpenMainWindowTest() { window->hide(); }
};

TEST_F(OpenMainWindowTest, ShowsTheNewSongAndTellsThatItIsReady)
{
    OpenMainWindow(*window);
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(TextOf("CaptionLbl"), "Tonquill Sprout Painter - [Untitled]");
    EXPECT_EQ(TextOf("StatusLbl"), "Ready");
    EXPECT_EQ(TextOf("SoundStatusLbl"), "Ready");
    EXPECT_EQ(PlayShared().SoundDriver, 1);
}

TEST_F(OpenMainWindowTest, TellsWithoutABoxThatThereIsNoSoundDevice)
{
    fake.sound.deviceCount = 0;
    OpenMainWindow(*window);
    EXPECT_EQ(TextOf("SoundStatusLbl"), "Device Failed:");
    EXPECT_TRUE(fake.messages.shown.empty());
}

TEST_F(OpenMainWindowTest, HasTheTunesOfTheUserReady)
{
    Shared().TuneClipboard = Tune();
    Shared().TuneClipboard.Name = "Walk";
    TunOpnSavClass(Flush::No).Save_Tune(Shared().UserTunes / "Walk.TqTun");
    OpenMainWindow(*window);
    ASSERT_EQ(Shared().TuneTableCount, 1);
    EXPECT_EQ(At(Shared().TuneTable, 1).Name, "Walk");
}

TEST_F(OpenMainWindowTest, ReadsTheOptionsThatAUserSetsByHand)
{
    PutSetting("General", "SongBeatsOutside", "1");
    PutSetting("General", "AllowEditOriginal", "1");
    OpenMainWindow(*window);
    EXPECT_FALSE(Shared().SongBeatsInside);
    EXPECT_TRUE(Shared().AllowEditOriginal);
}

TEST_F(OpenMainWindowTest, ShowsTheSampleSongOnTheFirstStarts)
{
    constexpr std::int32_t tempo = 400;
    PutSong("Zumi", tempo);
    OpenMainWindow(*window);
    EXPECT_EQ(Song().Tempo, tempo);
    EXPECT_FALSE(Song().SongChanged);
    EXPECT_EQ(TextOf("SngTitleLbl"), "Zumi");
    EXPECT_EQ(TextOf("TempoLbl"), "125%");
    EXPECT_EQ(TextOf("CaptionLbl"), "Tonquill Sprout Painter - [Zumi]");
}

TEST_F(OpenMainWindowTest, OpensTheGivenSongInPlaceOfTheSampleSong)
{
    constexpr std::int32_t tempo = 400;
    PutSong("Zumi", tempo / 2);
    PutSong("Rain", tempo);
    const std::filesystem::path given = fake.folder.Path() / "Rain of mine.TqSng";
    std::filesystem::rename(SongPath("Rain"), given);
    OpenMainWindow(*window, given);
    QCoreApplication::processEvents();
    EXPECT_EQ(Song().Tempo, tempo);
    EXPECT_EQ(TextOf("CaptionLbl"), "Tonquill Sprout Painter - [Rain of mine]");
}

TEST_F(OpenMainWindowTest, OpensAGivenSongOnceTheStartIsOver)
{
    const std::filesystem::path given = fake.folder.Path() / "Broken.TqSng";
    WriteBytes(given, "This is no song.");
    OpenMainWindow(*window, given);
    EXPECT_TRUE(fake.messages.shown.empty());
    EXPECT_EQ(TextOf("StatusLbl"), "Ready");
    QCoreApplication::processEvents();
    EXPECT_FALSE(fake.messages.shown.empty());
}

TEST_F(OpenMainWindowTest, TellsBeforehandThatNothingCanBeKept)
{
    const std::filesystem::path songs = Shared().UserRoot / "Songs";
    Shared().UserSongs = AsFolder(fake.folder.Path() / "installed");
    ShownMessage message;
    OpenMainWindow(*window);
    NoteNextMessage(message);
    QCoreApplication::processEvents();
    EXPECT_EQ(message.line1, QStringLiteral("What you make now cannot be kept here:"));
    EXPECT_EQ(message.line2, QtText(PathText(songs)));
}

TEST_F(OpenMainWindowTest, TellsOnceWhichSongsWereKeptAndWhere)
{
    SetSongChanged(Song(), true);
    SongKeeper().KeepUnsavedSong();
    SongKeeper().KeepUnsavedSong();
    ShownMessage message;
    OpenMainWindow(*window);
    NoteNextMessage(message);
    QCoreApplication::processEvents();
    EXPECT_EQ(message.line1, QStringLiteral("What was not saved last time is kept as the song \"Untitled kept\", "
                                            "\"Untitled kept 2\""));
    EXPECT_EQ(message.line2, QtText("in the folder " + PathText(Shared().UserSongs)));
    message = {};
    OpenMainWindow(*window);
    NoteNextMessage(message);
    QCoreApplication::processEvents();
    EXPECT_EQ(message.line1, QString());
}

} // namespace
} // namespace sprout
