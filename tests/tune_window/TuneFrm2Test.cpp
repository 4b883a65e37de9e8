// SPDX-License-Identifier: GPL-3.0-or-later
#include "tune_window/TuneFrm2Test.h"

#include "tune_window/StepEditor.h"
#include "ui/help/OpenedHelp.h"

namespace sprout {
namespace {

TEST_F(TuneFrm2Test, ANewTuneTellsHowItBegins)
{
    Open([this](TuneFrm2& window) {
        Click(window, "NewTuneBtn");
        EXPECT_EQ(statusLbl.text(), QStringLiteral("Click a lamp to switch a step on"));
    });
}

TEST_F(TuneFrm2Test, ANewTuneIsSilentAndStandsForNoPicture)
{
    MakeTuneFiles(2);
    Open([](TuneFrm2& window) {
        Click(window, "NewTuneBtn");
        EXPECT_EQ(PlayShared().PlayState, PlayState::Stopped);
        EXPECT_EQ(GridOf(window).Selected(), -1);
        EXPECT_LT(GridOf(window).BlinkSelectImg().geometry().right(), 0);
        EXPECT_FALSE(GridOf(window).BlinkSelectedTimer().isActive());
        EXPECT_EQ(GridOf(window).BlinkSelectImg().toolTip(), QString());
        EXPECT_EQ(TextOf(window, "TuneNameLbl"), "New");
        EXPECT_EQ(TextOf(window, "CreatedByLbl"), "Me");
        EXPECT_FALSE(window.NewTuneMode);
        const Tune& current = Shared().CurrentTune;
        EXPECT_TRUE(SamePicture(PartOf<TunePicture>(window, "TunePic").Picture(), current.Picture));
        EXPECT_TRUE(SamePicture(current.Picture, Shared().NewTunePicture));
        EXPECT_EQ(current.StepCount, 16);
        EXPECT_FALSE(current.TuneWaveValid);
        EXPECT_TRUE(window.findChild<QWidget*>(QStringLiteral("Step16"))) << "the editor shows it";
        Click(window, "OkBtn");
    });
    EXPECT_EQ(tune.Name, "New");
    EXPECT_EQ(tune.StepCount, 16);
}

TEST_F(TuneFrm2Test, ARandomTunePlaysAtOnceAndNothingIsChosen)
{
    MakeTuneFiles(2);
    Open([](TuneFrm2& window) {
        ForgetPlay();
        Click(window, "RndTuneBtn");
        EXPECT_EQ(GridOf(window).Selected(), -1);
        EXPECT_TRUE(window.TuneChanged);
        EXPECT_EQ(TextOf(window, "TuneNameLbl"), "New");
        EXPECT_EQ(TextOf(window, "CreatedByLbl"), "Random");
        const Tune& current = Shared().CurrentTune;
        EXPECT_THAT((std::vector{8, 16, 32}), testing::Contains(current.StepCount));
        EXPECT_EQ(Played(), current.TuneWave.Length);
        EXPECT_GT(Played(), 0);
    });
}

TEST_F(TuneFrm2Test, ThePlayButtonPlaysTheTuneUnderEditWithoutALeadIn)
{
    MakeTuneFile(PlainTune("Rain", "Ann", 7));
    Open([](TuneFrm2& window) {
        ForgetPlay();
        Click(window, "TestPlayBtn");
        EXPECT_EQ(Played(), 7);
        EXPECT_EQ(PlayShared().PlayState, PlayState::Playing);
    });
}

TEST_F(TuneFrm2Test, AnEditMarksTheTuneAsChanged)
{
    MakeTuneFiles(1);
    Open([](TuneFrm2& window) {
        EXPECT_FALSE(window.TuneChanged);
        Q_EMIT window.findChild<StepEditor*>()->TuneEdited();
        EXPECT_TRUE(window.TuneChanged);
    });
}

TEST_F(TuneFrm2Test, CancelStopsThePlayerAndForgetsTheChoice)
{
    MakeTuneFiles(2);
    Open([this](TuneFrm2& window) {
        window.OriginalTuneName = "Tune 02";
        PressTune(window, 2);
        ShowHint(Words::AsIs("A hint"));
        Click(window, "CancelBtn");
        EXPECT_FALSE(window.isVisible());
        EXPECT_FALSE(window.OkPressed);
        EXPECT_EQ(window.ChosenTuneName, "Tune 02");
        EXPECT_FALSE(GridOf(window).BlinkSelectedTimer().isActive());
        EXPECT_EQ(PlayShared().PlayState, PlayState::Stopped);
        EXPECT_EQ(statusLbl.text(), QString());
    });
    // Whatever was chosen before, the window opens with the tune of its track.
    tune.Name = "Tune 01";
    Open([](TuneFrm2& window) { EXPECT_EQ(GridOf(window).Selected(), 1); });
}

TEST_F(TuneFrm2Test, ClosingTheWindowByItsFrameActsAsCancel)
{
    MakeTuneFiles(2);
    const auto closings = {
        +[](TuneFrm2& window) { static_cast<void>(window.close()); },
        +[](TuneFrm2& window) { Click(window, "CloseImgBtn"); },
        +[](TuneFrm2& window) { QTest::keyClick(&window, Qt::Key_Escape); },
    };
    for (const auto close : closings) {
        bool flag = false;
        newFlag = flag;
        Open([close](TuneFrm2& window) {
            window.OkPressed = true;
            close(window);
            EXPECT_FALSE(window.isVisible());
            EXPECT_FALSE(window.OkPressed);
            EXPECT_EQ(PlayShared().PlayState, PlayState::Stopped);
        });
        EXPECT_FALSE(newFlag);
        EXPECT_TRUE(tune.Name.empty());
    }
}

TEST_F(TuneFrm2Test, OkLeavesTheSoundAndAlwaysMarksTheTuneAsChanged)
{
    MakeTuneFiles(1);
    Open([this](TuneFrm2& window) {
        ShowHint(Words::AsIs("A hint"));
        Click(window, "OkBtn");
        EXPECT_TRUE(window.OkPressed);
        EXPECT_TRUE(window.TuneChanged);
        EXPECT_FALSE(GridOf(window).BlinkSelectedTimer().isActive());
        EXPECT_EQ(statusLbl.text(), QString());
    });
    EXPECT_EQ(PlayShared().PlayState, PlayState::Playing);
}

TEST_F(TuneFrm2Test, TheBlankInTheGridIsThePlayButton)
{
    MakeTuneFile(PlainTune("Rain", "Ann", 7));
    Open([](TuneFrm2& window) {
        ForgetPlay();
        QTest::keyClick(&GridOf(window), Qt::Key_Space);
        EXPECT_EQ(Played(), 7);
        ForgetPlay();
        RepeatKey(GridOf(window), Qt::Key_Space);
        RepeatKey(window, Qt::Key_Space);
        EXPECT_EQ(Played(), 0);
    });
}

TEST_F(TuneFrm2Test, EnterInTheGridIsTheOkButton)
{
    MakeTuneFiles(1);
    Open([](TuneFrm2& window) {
        QTest::keyClick(&GridOf(window), Qt::Key_Return);
        EXPECT_FALSE(window.isVisible());
    });
    EXPECT_EQ(tune.Name, "Tune 01");
}

TEST_F(TuneFrm2Test, HelpButtonAndF1OpenTheHelp)
{
    MakeTuneFiles(1);
    Open([](TuneFrm2& window) {
        const std::string ofWindow = "Choosing a tune";
        EXPECT_EQ(HelpPageOpenedBy(window, [&window] { Click(window, "HelpBtn"); }), ofWindow);
        EXPECT_EQ(HelpPageOpenedBy(window, [&window] { QTest::keyClick(&GridOf(window), Qt::Key_F1); }), ofWindow);
    });
}

TEST_F(TuneFrm2Test, ControlsTellWhatTheyAreFor)
{
    MakeTuneFiles(2);
    const std::vector<std::pair<const char*, const char*>> hints{
        {"ShowAllPic", "Click on a picture to choose a tune"},
        {"BlinkSelectImg", "This is the chosen Tune. Click on it to play"},
        {"TunePic", "That shows the selected tune"},
        {"TuneNameLbl", "That shows the name of the selected tune"},
        {"CreatedByLbl", "That shows who created the selected tune"},
        {"OkBtn", "Click Ok after choosing and/or editing a tune"},
        {"TestPlayBtn", "Play button, use it to hear this tune"},
        {"RndTuneBtn", "Random button, use it to make up a surprise tune"},
        {"NewTuneBtn", "New button, use it to start making your own new tune"},
        {"ChangePicBtn", "Picture button, use it to choose a picture for this tune"},
        {"SaveTuneBtn", "Save button, use it to keep this tune among your tunes"},
        {"DeleteTuneBtn", "This button will delete the selected tune"},
        {"HelpBtn", "Help button, use it to see help"},
        {"CancelBtn", "Cancel button, use it to leave the track's tune as it was"},
        {"StepNosCmb", "Number of steps, use it to make the tune longer or shorter"},
        {"TunFramHScroll", "Slide this to see the other steps"}};
    Open([&](TuneFrm2& window) {
        EXPECT_EQ(TextOf(window, "CaptionLbl"), " Choose a Tune");
        for (const auto& [name, hint] : hints) {
            auto& part = PartOf(window, name);
            statusLbl.setText(QStringLiteral("before"));
            const QPoint corner = part.rect().bottomRight();
            QTest::mouseMove(&part, corner - QPoint(4, 4));
            QTest::mouseMove(&part, corner - QPoint(5, 5));
            EXPECT_EQ(statusLbl.text().toStdString(), hint) << name;
            EXPECT_EQ(part.accessibleDescription().toStdString(), hint) << name;
        }
        for (const char* name :
             {"TestPlayBtn", "RndTuneBtn", "NewTuneBtn", "ChangePicBtn", "SaveTuneBtn", "HelpBtn", "CancelBtn"})
            EXPECT_FALSE(PartOf(window, name).accessibleName().isEmpty()) << name;
        Q_EMIT PartOf<QMenu>(window, "PopPosiMnu").hovered(&MenuItem(window, 4));
        EXPECT_EQ(statusLbl.text(), QStringLiteral("This button will delete the selected tune"));
    });
}

} // namespace
} // namespace sprout
