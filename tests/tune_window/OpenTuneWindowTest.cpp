// SPDX-License-Identifier: GPL-3.0-or-later
#include "tune_window/OpenTuneWindow.h"

#include <QComboBox>
#include <QTimer>

#include "tune_window/TuneWindowTest.h"

namespace sprout {
namespace {

class OpenTuneWindowTest : public TuneWindowTest {
protected:
    OpenTuneWindowTest() { tune = PlainTune("Snow", "Eve"); }

    /// The place of a tune in the grid.
    static std::int32_t IndexOf(const std::string& name)
    {
        for (std::int32_t i = 1; i <= Shared().TuneTableCount; ++i)
            if (At(Shared().TuneTable, i).Name == name)
                return i;
        return 0;
    }

    static void ExpectShown(const QWidget& window, const char* name, const char* author, std::uint32_t pixel)
    {
        EXPECT_EQ(TextOf(window, "TuneNameLbl"), name);
        EXPECT_EQ(TextOf(window, "CreatedByLbl"), author);
        EXPECT_EQ(PartOf<TunePicture>(window, "TunePic").Picture().Pixel(0, 0), pixel);
    }
};

TEST_F(OpenTuneWindowTest, WithOkTheTrackTakesTheTuneThenShownThoughNothingWasEdited)
{
    MakeTuneFiles(2);
    tune.Picture = PlainPicture(1);
    EXPECT_TRUE(Open([](TuneFrm2& window) {
        PressTune(window, 2);
        Click(window, "OkBtn");
    }));
    EXPECT_TRUE(newFlag);
    EXPECT_EQ(tune.Name, "Tune 02");
    EXPECT_EQ(tune.StepCount, 2);
}

TEST_F(OpenTuneWindowTest, TheBeatsOfTheChosenTuneGoIntoTheSong)
{
    MakeTuneFiles(1);
    Open([](TuneFrm2& window) {
        PressTune(window, 1);
        Click(window, "OkBtn");
    });
    ASSERT_EQ(Shared().Song.SongBeatCount, 1);
    EXPECT_EQ(Shared().Song.SongBeats[1].Name, "Drum");
    EXPECT_EQ(tune.Steps[1].BeatIndex, 1);
    EXPECT_TRUE(tune.Steps[1].StepBeat.Name.empty());
}

TEST_F(OpenTuneWindowTest, ItOpensOnTheTracksTuneAndPlaysNothing)
{
    MakeTuneFiles(300);
    tune = PlainTune("TUNE 290", "Eve", 11);
    tune.Picture = PlainPicture(1);
    Open([this](TuneFrm2& window) {
        EXPECT_EQ(window.OriginalTuneName, "TUNE 290");
        EXPECT_EQ(GridOf(window).Selected(), IndexOf("Tune 290"));
        EXPECT_TRUE(IsInGridView(GridOf(window).Grid(), GridOf(window).Selected()));
        EXPECT_EQ(Played(), 0);
        EXPECT_EQ(Shared().CurrentTune.CreatedBy, "Eve");
        ExpectShown(window, "TUNE 290", "Eve", 1);
    });
    EXPECT_EQ(tune.CreatedBy, "Eve");
}

TEST_F(OpenTuneWindowTest, ATracksTuneThatTheGridDoesNotHaveSelectsNothing)
{
    MakeTuneFiles(2);
    tune.Picture = PlainPicture(1);
    Open([this](TuneFrm2& window) {
        EXPECT_EQ(GridOf(window).Selected(), -1);
        EXPECT_EQ(Played(), 0);
        EXPECT_EQ(Shared().CurrentTune.Name, "Snow");
        ExpectShown(window, "Snow", "Eve", 1);
        EXPECT_TRUE(window.findChild<QWidget*>(QStringLiteral("Step2"))) << "the editor shows it";
        EXPECT_FALSE(window.findChild<QWidget*>(QStringLiteral("Step3")));
        PressTune(window, 1);
        EXPECT_EQ(Played(), kLeadInFrames + 4);
        EXPECT_EQ(TextOf(window, "TuneNameLbl"), "Tune 01");
    });
}

TEST_F(OpenTuneWindowTest, UntilAPictureIsChosenTheEditorsTuneIsHeardAndShown)
{
    MakeTuneFiles(2);
    tune = PlainTune("Tune 02", "Eve");
    tune.Picture = PlainPicture(1);
    Open([this](TuneFrm2& window) {
        for (const bool byFrame : {true, false}) {
            ForgetPlay();
            byFrame ? PressTune(window, 2) : Click(window, "TunePic");
            EXPECT_EQ(Played(), Shared().CurrentTune.TuneWave.Length) << "without a lead-in";
            EXPECT_EQ(Shared().CurrentTune.CreatedBy, "Eve");
        }
        GridOf(window).VScroll1().setValue(1);
        window.RefreshShowAllPic();
        ExpectShown(window, "Tune 02", "Eve", 1);
        PressTune(window, 2, Qt::RightButton); // its menu belongs to the file
        PartOf<QMenu>(window, "PopPosiMnu").close();
        EXPECT_EQ(TextOf(window, "CreatedByLbl"), "By: Ann");
        Click(window, "TunePic");
        EXPECT_EQ(Played(), kLeadInFrames + 4);
    });
}

TEST_F(OpenTuneWindowTest, ADeleteLeavesTheTracksTuneInTheEditor)
{
    MakeTuneFiles(2);
    tune.Name = "Tune 02";
    Open([this](TuneFrm2& window) {
        AnswerNext("YesBtn");
        MenuItem(window, 4).trigger();
        EXPECT_EQ(GridOf(window).Count(), 1);
        EXPECT_EQ(GridOf(window).Selected(), -1);
        EXPECT_EQ(Shared().CurrentTune.CreatedBy, "Eve");
        EXPECT_EQ(Played(), 0);
        Click(window, "OkBtn");
    });
    EXPECT_EQ(tune.CreatedBy, "Eve");
}

TEST_F(OpenTuneWindowTest, ATrackWithoutATuneHearsTheFirstOne)
{
    MakeTuneFiles(2);
    tune = Tune();
    Open([](TuneFrm2& window) {
        EXPECT_EQ(GridOf(window).Selected(), 1);
        EXPECT_EQ(Played(), kLeadInFrames + 4);
    });
}

TEST_F(OpenTuneWindowTest, CancelLeavesTheTracksTuneAsItWas)
{
    MakeTuneFiles(2);
    tune.Picture = PlainPicture(1);
    EXPECT_FALSE(Open([](TuneFrm2& window) {
        PressTune(window, 2);
        Shared().CurrentTune.Steps[1].OnPos = 0;
        window.TuneChanged = true;
        Click(window, "CancelBtn");
    }));
    EXPECT_FALSE(newFlag);
    EXPECT_EQ(tune.Name, "Snow");
    EXPECT_EQ(tune.Steps[1].OnPos, 1);
    EXPECT_EQ(Shared().Song.SongBeatCount, 0);
}

TEST_F(OpenTuneWindowTest, APictureThatIsSwappedCountsAsAChangeOnCancelToo)
{
    tune.Picture = Shared().DefaultTunePicture;
    EXPECT_TRUE(Open([](TuneFrm2&) {}));
    EXPECT_TRUE(SamePicture(tune.Picture, Shared().DefaultTunePicture));
}

TEST_F(OpenTuneWindowTest, TheTuneUnderEditHasItsOwnBeatsAndAName)
{
    Shared().Song.SongBeats.push_back({"Bell", "", WaveOf({1}), PlainPicture(2), true});
    Shared().Song.SongBeatCount = 1;
    tune = Tune();
    tune.Steps.resize(3);
    tune.StepCount = 2;
    tune.Steps[2].OnPos = 1;
    tune.Steps[2].BeatIndex = 1;
    Open([](TuneFrm2&) {
        const Tune& current = Shared().CurrentTune;
        EXPECT_EQ(current.Name, "New");
        EXPECT_EQ(current.CreatedBy, "Me");
        EXPECT_EQ(current.Steps[2].StepBeat.Name, "Bell");
        EXPECT_TRUE(SamePicture(current.Picture, Shared().NewTunePicture));
    });
}

TEST_F(OpenTuneWindowTest, WithTheFlagItShowsNoChoice)
{
    MakeTuneFiles(2);
    tune = Tune();
    newFlag = true;
    Open([](TuneFrm2& window) {
        EXPECT_EQ(GridOf(window).Selected(), -1);
        EXPECT_EQ(TextOf(window, "TuneNameLbl"), "New");
        EXPECT_EQ(Played(), 0);
    });
    EXPECT_FALSE(newFlag);
}

TEST_F(OpenTuneWindowTest, OneWindowLivesForAllOpenings)
{
    MakeTuneFiles(1);
    const QWidget* first = nullptr;
    const QWidget* second = nullptr;
    Open([&first](TuneFrm2& window) { first = &window; });
    Open([&second](TuneFrm2& window) { second = &window; });
    EXPECT_TRUE(first);
    EXPECT_EQ(first, second);
}

TEST_F(OpenTuneWindowTest, WithoutTunesEachOpeningShowsTheTrackInTheEditor)
{
    Open([](TuneFrm2& window) { EXPECT_TRUE(window.findChild<QWidget*>(QStringLiteral("Step2"))); });
    tune = Tune();
    Open([](TuneFrm2& window) {
        EXPECT_EQ(PartOf<QComboBox>(window, "StepNosCmb").currentText(), QStringLiteral("16 Steps"));
        EXPECT_TRUE(window.findChild<QWidget*>(QStringLiteral("Step16")));
    });
}

TEST_F(OpenTuneWindowTest, ThePlayMarksEndWithTheWindow)
{
    MakeTuneFile(PlainTune("Rain", "Ann", 44100));
    Open([this](TuneFrm2& window) {
        Click(window, "TestPlayBtn");
        services.sound.place = {1, true};
        ASSERT_TRUE(QMetaObject::invokeMethod(&PartOf<QTimer>(window, "PlayPosTimer"), "timeout"));
        EXPECT_FALSE(PartOf(window, "PlayingStepImg").isHidden());
        Click(window, "OkBtn");
    });
    EXPECT_EQ(PlayShared().PlayState, PlayState::Playing);
    EXPECT_FALSE(TheWindow()->findChild<QTimer*>(QStringLiteral("PlayPosTimer"))->isActive());
    EXPECT_TRUE(PartOf(*TheWindow(), "PlayingStepImg").isHidden());
}

TEST_F(OpenTuneWindowTest, TheTableIsReadOnceAndNotAtEachOpening)
{
    MakeTuneFiles(2);
    LoadTuneFiles();
    EXPECT_EQ(Shared().TuneTableCount, 2);
    EXPECT_EQ(services.screen.processPicsShown, 1);
    MakeTuneFiles(3);
    Open([](TuneFrm2& window) { EXPECT_EQ(GridOf(window).Count(), 2); });
    LoadTuneFiles();
    EXPECT_EQ(Shared().TuneTableCount, 2);
    EXPECT_EQ(services.screen.processPicsShown, 1);
}

TEST_F(OpenTuneWindowTest, ReadingTheTableClearsTheHint)
{
    ShowHint(Words::AsIs("A hint"));
    LoadTuneFiles();
    EXPECT_EQ(statusLbl.text(), QString());
}

TEST_F(OpenTuneWindowTest, WithoutAWindowThereIsNothingToShow)
{
    Shared().CurrentTune = tune;
    UpdateThisTune();
    EXPECT_EQ(Shared().CurrentTune.Name, "Snow");
}

TEST_F(OpenTuneWindowTest, ANewTuneOfASecondOpeningMergesWithoutHarm)
{
    tune.Name.clear();
    MakeTuneFiles(1);
    Open([](TuneFrm2& window) { Click(window, "OkBtn"); });
    Open([](TuneFrm2& window) {
        Click(window, "NewTuneBtn");
        Click(window, "OkBtn");
    });
    EXPECT_EQ(tune.Name, "New");
    EXPECT_EQ(Shared().Song.SongBeatCount, 1);
}

} // namespace
} // namespace sprout
