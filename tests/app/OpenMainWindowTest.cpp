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
    OpenMainWindowTest()
    {
        window->hide();
        PutSetting("General", "WelcomeShown", "1");
        Shared().InstallTunes = AsFolder(fake.folder.Path() / "installed" / "Tunes");
        std::filesystem::create_directories(Shared().InstallTunes);
    }

    static void PutTune(const std::filesystem::path& folder, const std::string& name)
    {
        Shared().TuneClipboard = Tune();
        Shared().TuneClipboard.Name = name;
        TunOpnSavClass(Flush::No).Save_Tune(folder / (name + ".TqTun"));
    }

    /// What the program asks at a start, whose answer is the button; nothing if it asks nothing.
    ShownMessage AskedAtStart(const char* button) const
    {
        ShownMessage question;
        OpenMainWindow(*window);
        WithNextForm([&question, button](BandedForm& form) {
            const auto text = [&form](const char* name) {
                return form.findChild<QLabel*>(QString::fromLatin1(name))->text();
            };
            question = {text("CaptionLbl"), text("NoteLbl1"), text("NoteLbl2")};
            Click(form, button);
        });
        QCoreApplication::processEvents();
        return question;
    }

    /// Somebody with one tune, at the first start with a library that has two more.
    void BeginWithNewTunes() const
    {
        PutTune(Shared().UserTunes, "Mine");
        PutTune(Shared().InstallTunes, "Lumo"); // was deleted
        EXPECT_EQ(AskedAtStart("YesBtn").line1, QString());
        PutTune(Shared().InstallTunes, "Fizz");
        PutTune(Shared().InstallTunes, "Wobble");
    }

    [[nodiscard]] bool IsWelcoming() const
    {
        const auto* card = window->findChild<QWidget*>(QStringLiteral("WelcomeCard"));
        return card && card->isVisible();
    }
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
    PutTune(Shared().UserTunes, "Walk");
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

TEST_F(OpenMainWindowTest, WelcomesOnTheVeryFirstStart)
{
    PutSetting("General", "WelcomeShown", "0");
    OpenMainWindow(*window);
    EXPECT_TRUE(IsWelcoming());
    EXPECT_EQ(TextOf("StatusLbl"), "Click Play all to hear the song, or Demo to see how to make one");
}

TEST_F(OpenMainWindowTest, DoesNotWelcomeAgainThoughTheCardWasNotPutAway)
{
    PutSetting("General", "WelcomeShown", "0");
    OpenMainWindow(*window);
    ASSERT_TRUE(IsWelcoming());
    Open();
    window->hide();
    OpenMainWindow(*window);
    EXPECT_FALSE(IsWelcoming());
    EXPECT_EQ(TextOf("StatusLbl"), "Ready");
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

TEST_F(OpenMainWindowTest, OffersWhatIsNewInTheLibraryAndHasItReadyAfterAYes)
{
    BeginWithNewTunes();
    const ShownMessage question = AskedAtStart("YesBtn");
    EXPECT_EQ(question.caption, QStringLiteral(" Something new"));
    EXPECT_EQ(question.line1, QStringLiteral("There is something new for you. Do you want it?"));
    EXPECT_EQ(question.line2, QStringLiteral("New tunes: Fizz, Wobble"));
    ASSERT_EQ(Shared().TuneTableCount, 3);
    EXPECT_EQ(At(Shared().TuneTable, 1).Name, "Fizz");
    EXPECT_EQ(ReadBytes(Shared().UserTunes / "Fizz.TqTun"), ReadBytes(Shared().InstallTunes / "Fizz.TqTun"));
    EXPECT_EQ(AskedAtStart("YesBtn").line1, QString());
}

TEST_F(OpenMainWindowTest, OffersNothingAgainAfterANo)
{
    for (const char* no : {"NoBtn", "CloseImgBtn"}) {
        BeginWithNewTunes();
        EXPECT_NE(AskedAtStart(no).line1, QString());
        QCoreApplication::processEvents();
        EXPECT_FALSE(std::filesystem::exists(Shared().UserTunes / "Fizz.TqTun"));
        EXPECT_EQ(AskedAtStart("YesBtn").line1, QString());
        for (const auto* file : {"Fizz.TqTun", "Wobble.TqTun"})
            std::filesystem::remove(Shared().InstallTunes / file);
        std::filesystem::remove(Shared().UserRoot / ".SproutLibrary");
    }
}

TEST_F(OpenMainWindowTest, AsksAgainWhereTheProgramEndedDuringTheQuestion)
{
    BeginWithNewTunes();
    OpenMainWindow(*window);
    WithNextForm([](BandedForm& /*form*/) { QCoreApplication::exit(0); });
    QCoreApplication::exec();
    Open(); // the old window goes with what it would still have done
    window->hide();
    EXPECT_NE(AskedAtStart("YesBtn").line1, QString());
}

} // namespace
} // namespace sprout
