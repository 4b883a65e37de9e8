// SPDX-License-Identifier: GPL-3.0-or-later
#include "tune_window/TuneFrm2.h"

#include <gmock/gmock.h>

#include <QFile>
#include <QImage>

#include <filesystem>

#include "core/Settings.h"
#include "service/qt/QtPictureFiles.h"
#include "support/Flags.h"
#include "tune_window/StepEditor.h"
#include "tune_window/TuneWindowTest.h"
#include "ui/FileDialogs.h"
#include "ui/HelpFrm.h"

namespace sprout {
namespace {

namespace fs = std::filesystem;
using testing::Each;
using testing::ElementsAre;

class TuneFrm2Test : public TuneWindowTest {
protected:
    static std::vector<std::string> TableNames()
    {
        std::vector<std::string> names;
        for (std::int32_t i = 1; i <= Shared().TuneTableCount; ++i)
            names.push_back(At(Shared().TuneTable, i).Name);
        return names;
    }

    static fs::path File(const char* name) { return Shared().UserTunes / name; }
};

TEST_F(TuneFrm2Test, ChoosesAndPlaysTheFirstTuneWhenItOpens)
{
    MakeTuneFile(PlainTune("Rain", "Ann", 7));
    MakeTuneFile(PlainTune("Sun", "Bob"));
    Open([](TuneFrm2& window) {
        EXPECT_EQ(GridOf(window).Selected(), 1);
        EXPECT_EQ(TextOf(window, "TuneNameLbl"), "Rain");
        EXPECT_EQ(TextOf(window, "CreatedByLbl"), "By: Ann");
        EXPECT_EQ(PartOf<TunePicture>(window, "TunePic").Picture().Pixel(0, 0), 0x102030U);
        EXPECT_EQ(Played(), kLeadInFrames + 7);
        EXPECT_EQ(Shared().CurrentTune.Name, "Rain");
        EXPECT_EQ(Shared().CurrentTune.StepCount, 2);
    });
    EXPECT_EQ(display.status, "Playing Tune");
    EXPECT_EQ(Shared().TuneInfoDefault.CreatedBy, "Ann");
    EXPECT_EQ(Shared().TuneInfoDefault.Name, "Lumo");
}

TEST_F(TuneFrm2Test, ALeftPressOnATuneChoosesAndPlaysIt)
{
    MakeTuneFiles(2);
    MakeTuneFile(PlainTune("Tune 03", "Tonquill", 9));
    Open([](TuneFrm2& window) {
        PressTune(window, 3);
        EXPECT_EQ(GridOf(window).Selected(), 3);
        EXPECT_EQ(Played(), kLeadInFrames + 9);
        EXPECT_EQ(PlayShared().PlayState, PlayState::Playing);
        EXPECT_EQ(TextOf(window, "TuneNameLbl"), "Tune 03");
        // The sound has begun, so the editor shows the tune, and no word stands before the author.
        EXPECT_EQ(TextOf(window, "CreatedByLbl"), "Tonquill");
        EXPECT_TRUE(GridOf(window).BlinkSelectedTimer().isActive());
        EXPECT_EQ(GridOf(window).BlinkSelectImg().toolTip(), QStringLiteral("Tune 03"));
    });
}

TEST_F(TuneFrm2Test, OriginalsHaveABlueBorderAndTheUsersTunesARedOne)
{
    MakeTuneFiles(1);
    MakeTuneFile(PlainTune("Tune 02", "TONQUILL and friends"));
    MakeTuneFile(PlainTune("Tune 03", "Bob of Tonquill"));
    Open([](TuneFrm2& window) {
        const QImage grid = GridOf(window).grab().toImage();
        EXPECT_EQ(grid.pixelColor(44, 20), QColor(0, 0, 255));
        EXPECT_EQ(grid.pixelColor(84, 20), QColor(0xC0, 0, 0));
        EXPECT_EQ(grid.pixelColor(84, 2), QColor(Qt::white));
        // Pictures store their colours as blue, green, red.
        EXPECT_EQ(grid.pixelColor(60, 20), QColor(0x30, 0x20, 0x10));
    });
}

TEST_F(TuneFrm2Test, AChosenTuneIsShownOnAMachineWithoutADeviceToo)
{
    MakeTuneFiles(2);
    services.sound.opens = false;
    Open([](TuneFrm2& window) {
        PressTune(window, 2);
        EXPECT_EQ(Shared().CurrentTune.Name, "Tune 02");
        EXPECT_EQ(TextOf(window, "CreatedByLbl"), "Ann");
    });
    SetSoundDriver(false);
    Open([](TuneFrm2& window) {
        PressTune(window, 2);
        EXPECT_EQ(TextOf(window, "CreatedByLbl"), "Ann");
    });
}

TEST_F(TuneFrm2Test, APressBesideThePicturesKeepsTheChoiceAndPlaysNothing)
{
    MakeTuneFiles(3);
    Open([](TuneFrm2& window) {
        PressTune(window, 2);
        ForgetPlay();
        QTest::mouseClick(&GridOf(window), Qt::LeftButton, {}, QPoint(41, 10));
        EXPECT_EQ(GridOf(window).Selected(), 2);
        EXPECT_EQ(TextOf(window, "CreatedByLbl"), "By: Ann");
        EXPECT_EQ(Played(), 0);
    });
}

TEST_F(TuneFrm2Test, APressOnTheFrameReadsAndPlaysTheChosenTuneAgain)
{
    MakeTuneFiles(2);
    Open([](TuneFrm2& window) {
        ForgetPlay();
        MakeTuneFile(PlainTune("Tune 01", "Ann", 11));
        QTest::mouseClick(&GridOf(window).BlinkSelectImg(), Qt::LeftButton, {}, QPoint(2, 2));
        EXPECT_EQ(Played(), kLeadInFrames + 11);
    });
}

TEST_F(TuneFrm2Test, ATuneScrolledOutOfViewHasNoFrameAndDoesNotBlink)
{
    MakeTuneFiles(90);
    Open([](TuneFrm2& window) {
        window.FitTo({640, 480});
        PictureGridPic& grid = GridOf(window);
        const QPoint inView = grid.BlinkSelectImg().pos();
        EXPECT_EQ(inView, QPoint(0, 40 - 40));
        grid.VScroll1().setValue(2);
        EXPECT_LT(grid.BlinkSelectImg().geometry().right(), 0);
        EXPECT_FALSE(grid.BlinkSelectedTimer().isActive());
        EXPECT_EQ(TextOf(window, "TuneNameLbl"), "Tune 01");
        grid.VScroll1().setValue(1);
        EXPECT_EQ(grid.BlinkSelectImg().pos(), inView);
        EXPECT_TRUE(grid.BlinkSelectedTimer().isActive());
    });
}

TEST_F(TuneFrm2Test, EighteenTunesNeedNoScrollBarWhereTheyAllFit)
{
    MakeTuneFiles(18);
    Open([](TuneFrm2& window) {
        window.FitTo({640, 480});
        EXPECT_TRUE(GridOf(window).VScroll1().isHidden());
        EXPECT_EQ(GridOf(window).VScroll1().maximum(), 1);
    });
}

TEST_F(TuneFrm2Test, The19thTuneOpensARowFromWhichItMovesUpAndNotDown)
{
    MakeTuneFiles(19);
    Open([](TuneFrm2& window) {
        window.FitTo({640, 480});
        EXPECT_TRUE(GridOf(window).VScroll1().isEnabled());
        EXPECT_EQ(PlaceInGrid(GridOf(window).Grid(), 19), (GridPlace{5, 45}));
        PressTune(window, 19, Qt::RightButton);
        EXPECT_TRUE(MenuItem(window, 0).isEnabled());
        EXPECT_FALSE(MenuItem(window, 1).isEnabled());
        MenuItem(window, 1).trigger();
        EXPECT_EQ(GridOf(window).Selected(), 19);
        MenuItem(window, 0).trigger();
        EXPECT_EQ(GridOf(window).Selected(), 1);
        EXPECT_EQ(TableNames().front(), "Tune 19");
        EXPECT_EQ(TableNames().back(), "Tune 01");
    });
}

TEST_F(TuneFrm2Test, ARightPressOpensTheMenuAndPlaysNothing)
{
    MakeTuneFiles(3);
    Open([](TuneFrm2& window) {
        ForgetPlay();
        PressTune(window, 2, Qt::RightButton);
        auto& menu = PartOf<QMenu>(window, "PopPosiMnu");
        EXPECT_TRUE(menu.isVisible());
        EXPECT_EQ(GridOf(window).Selected(), 2);
        EXPECT_EQ(Played(), 0);
        EXPECT_EQ(Shared().CurrentTune.Name, "Tune 01");
        std::vector<std::string> captions;
        for (const QAction* item : menu.actions())
            if (!item->isSeparator())
                captions.push_back(item->text().toStdString());
        EXPECT_THAT(captions, ElementsAre("Move Up", "Move Down", "Move Left", "Move Right", "Delete"));
        menu.hide();
    });
}

TEST_F(TuneFrm2Test, AMoveLivesInMemoryAndTheNextStartShowsTheOldOrder)
{
    MakeTuneFiles(3);
    Open([](TuneFrm2& window) {
        PressTune(window, 2, Qt::RightButton);
        MenuItem(window, 2).trigger();
        EXPECT_EQ(GridOf(window).Selected(), 1);
        EXPECT_EQ(GridOf(window).Entry(1).Name, "Tune 02");
        MenuItem(window, 3).trigger();
        MenuItem(window, 3).trigger();
        EXPECT_EQ(GridOf(window).Selected(), 3);
        EXPECT_EQ(TextOf(window, "TuneNameLbl"), "Tune 02");
    });
    EXPECT_THAT(TableNames(), ElementsAre("Tune 01", "Tune 03", "Tune 02"));
    EXPECT_FALSE(fs::exists(TuneIndexFile()));
    Shared().TuneTableCount = 0;
    LoadTuneFiles();
    EXPECT_THAT(TableNames(), ElementsAre("Tune 01", "Tune 02", "Tune 03"));
}

TEST_F(TuneFrm2Test, ADeleteKeepsTheOrderAndTheTuneInTheEditor)
{
    MakeTuneFiles(3);
    WriteBytes(File("Tune 01.bmp"), "picture");
    Open([this](TuneFrm2& window) {
        PressTune(window, 1, Qt::RightButton);
        MenuItem(window, 3).trigger();
        ForgetPlay();
        AnswerNext("YesBtn");
        MenuItem(window, 4).trigger();
        EXPECT_EQ(GridOf(window).Selected(), -1);
        EXPECT_EQ(GridOf(window).Count(), 2);
        EXPECT_EQ(TextOf(window, "TuneNameLbl"), "Tune 01") << "the first tune, which the opening chose";
        EXPECT_EQ(Played(), 0);
        EXPECT_EQ(statusLbl.text(), QString());
    });
    EXPECT_THAT(noted, ElementsAre("  Confirm Delete Tune", "Are you sure to delete this Tune?", "Tune name: Tune 01"));
    EXPECT_EQ(hintOfMessage, "Click Yes to delete, No to keep");
    EXPECT_FALSE(fs::exists(File("Tune 01.TqTun")));
    EXPECT_FALSE(fs::exists(File("Tune 01.bmp")));
    EXPECT_EQ(FolderOrder::Read(TuneIndexFile()).Place("Tune 02"), 1);
}

TEST_F(TuneFrm2Test, ATuneIsKeptOnAnyAnswerButYes)
{
    MakeTuneFiles(2);
    Open([this](TuneFrm2& window) {
        WithNextForm([](BandedForm& form) { form.reject(); });
        MenuItem(window, 4).trigger();
        EXPECT_EQ(statusLbl.text(), QString());
        EXPECT_EQ(GridOf(window).Count(), 2);
        AnswerNext("NoBtn");
        MenuItem(window, 4).trigger();
        EXPECT_EQ(GridOf(window).Count(), 2);
    });
    EXPECT_TRUE(fs::exists(File("Tune 01.TqTun")));
    EXPECT_EQ(statusLbl.text(), QString());
}

TEST_F(TuneFrm2Test, ButtonAndKeyDeleteTheChosenTuneAsTheMenuDoes)
{
    for (const bool byKey : {false, true}) {
        MakeTuneFiles(2);
        Shared().TuneTableCount = 0;
        Open([&](TuneFrm2& window) {
            PressTune(window, 2);
            AnswerNext("NoBtn");
            byKey ? QTest::keyClick(&GridOf(window), Qt::Key_Delete) : Click(window, "DeleteTuneBtn");
            EXPECT_EQ(noted.back(), "Tune name: Tune 02");
            EXPECT_TRUE(fs::exists(File("Tune 02.TqTun")));
            AnswerNext("YesBtn");
            byKey ? QTest::keyClick(&GridOf(window), Qt::Key_Delete) : Click(window, "DeleteTuneBtn");
            EXPECT_FALSE(fs::exists(File("Tune 02.TqTun")));
        });
    }
}

TEST_F(TuneFrm2Test, ADoubleClickOnATuneIsOk)
{
    MakeTuneFiles(2);
    Open([](TuneFrm2& window) {
        const GridPlace place = PlaceInGrid(GridOf(window).Grid(), 2);
        PressTune(window, 2);
        QTest::mouseDClick(GridOf(window).childAt(place.x + 16, place.y + 16), Qt::LeftButton);
        EXPECT_FALSE(window.isVisible());
    });
    EXPECT_EQ(tune.Name, "Tune 02");
}

TEST_F(TuneFrm2Test, ANewTuneTellsHowItBegins)
{
    Open([this](TuneFrm2& window) {
        Click(window, "NewTuneBtn");
        EXPECT_EQ(statusLbl.text(), QStringLiteral("Click a lamp to switch a step on"));
    });
}

TEST_F(TuneFrm2Test, AnOriginalCannotBeDeleted)
{
    MakeTuneFile(PlainTune("Lumo", "tonquill"));
    Open([this](TuneFrm2& window) {
        AnswerNext("OkBtn");
        MenuItem(window, 4).trigger();
    });
    EXPECT_THAT(noted, ElementsAre(" Tonquill Sprout Painter", "This is an original Tune from Tonquill.",
                                   "This tune can not be deleted."));
    EXPECT_EQ(hintOfMessage, "Blue bordered are originals, red bordered are your new tunes");
    EXPECT_TRUE(fs::exists(File("Lumo.TqTun")));
    EXPECT_EQ(statusLbl.text(), QString());
}

TEST_F(TuneFrm2Test, AnOriginalCanBeDeletedWhereOriginalsMayBeEdited)
{
    MakeTuneFile(PlainTune("Lumo", "Tonquill"));
    Shared().AllowEditOriginal = true;
    Open([this](TuneFrm2& window) {
        AnswerNext("YesBtn");
        MenuItem(window, 4).trigger();
        EXPECT_EQ(TextOf(window, "TuneNameLbl"), "[none]");
        EXPECT_EQ(TextOf(window, "CreatedByLbl"), "");
        EXPECT_TRUE(PartOf<TunePicture>(window, "TunePic").Picture().IsNothing());
        EXPECT_EQ(GridOf(window).BlinkSelectImg().pos(), QPoint(-47, -47));
    });
    EXPECT_FALSE(fs::exists(File("Lumo.TqTun")));
}

TEST_F(TuneFrm2Test, WithoutAChoiceThereIsNothingToDeleteOrToPlay)
{
    MakeTuneFiles(2);
    Open([this](TuneFrm2& window) {
        Click(window, "NewTuneBtn");
        AnswerNext("OkBtn");
        MenuItem(window, 4).trigger();
        EXPECT_THAT(noted, ElementsAre(" Tonquill Sprout Painter", "Select a Tune and try this."));
        EXPECT_EQ(hintOfMessage, "Click on a picture to select a Tune");
        AnswerNext("OkBtn");
        Click(window, "TunePic");
        EXPECT_THAT(noted, ElementsAre(" Tonquill Sprout Painter", "Select a Tune first."));
        EXPECT_EQ(hintOfMessage, "Click on a picture to select a tune");
        EXPECT_EQ(statusLbl.text(), QString());
    });
}

TEST_F(TuneFrm2Test, TheTunePicturePlaysTheChosenTune)
{
    MakeTuneFile(PlainTune("Rain", "Ann", 7));
    Open([](TuneFrm2& window) {
        ForgetPlay();
        Click(window, "TunePic");
        EXPECT_EQ(Played(), kLeadInFrames + 7);
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
        ShowHint(QStringLiteral("A hint"));
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
        ShowHint(QStringLiteral("A hint"));
        Click(window, "OkBtn");
        EXPECT_TRUE(window.OkPressed);
        EXPECT_TRUE(window.TuneChanged);
        EXPECT_FALSE(GridOf(window).BlinkSelectedTimer().isActive());
        EXPECT_EQ(statusLbl.text(), QString());
    });
    EXPECT_EQ(PlayShared().PlayState, PlayState::Playing);
}

TEST_F(TuneFrm2Test, ArrowsInTheGridDoWhatAPressOnTheNeighbourDoes)
{
    MakeTuneFiles(20);
    Open([](TuneFrm2& window) {
        PictureGridPic& grid = GridOf(window);
        EXPECT_EQ(window.focusWidget(), &grid);
        ForgetPlay();
        QTest::keyClick(&grid, Qt::Key_Right);
        EXPECT_EQ(grid.Selected(), 2);
        EXPECT_EQ(Played(), kLeadInFrames + 4);
        EXPECT_EQ(Shared().CurrentTune.Name, "Tune 02");
        QTest::keyClick(&grid, Qt::Key_Down);
        EXPECT_EQ(grid.Selected(), 20);
        QTest::keyClick(&grid, Qt::Key_Left);
        QTest::keyClick(&grid, Qt::Key_Up);
        EXPECT_EQ(grid.Selected(), 1);
    });
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

TEST_F(TuneFrm2Test, TheMenuKeyOpensTheMoveMenu)
{
    MakeTuneFiles(2);
    Open([](TuneFrm2& window) {
        QTest::keyClick(&GridOf(window), Qt::Key_Menu);
        auto& menu = PartOf<QMenu>(window, "PopPosiMnu");
        EXPECT_TRUE(menu.isVisible());
        EXPECT_FALSE(MenuItem(window, 2).isEnabled());
        EXPECT_TRUE(MenuItem(window, 3).isEnabled());
        menu.hide();
    });
}

TEST_F(TuneFrm2Test, HelpButtonAndF1OpenTheHelp)
{
    MakeTuneFiles(1);
    const auto help = [] {
        for (QWidget* widget : QApplication::topLevelWidgets())
            if (qobject_cast<HelpFrm*>(widget) && widget->isVisible())
                return widget;
        return static_cast<QWidget*>(nullptr);
    };
    Open([&help](TuneFrm2& window) {
        Click(window, "HelpBtn");
        ASSERT_TRUE(help());
        delete help();
        QTest::keyClick(&GridOf(window), Qt::Key_F1);
        ASSERT_TRUE(help());
        delete help();
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

TEST_F(TuneFrm2Test, HoverTellsTheNameAndPlaysNothing)
{
    MakeTuneFiles(2);
    Open([](TuneFrm2& window) {
        ForgetPlay();
        PictureGridPic& grid = GridOf(window);
        QTest::mouseMove(&grid, QPoint(41, 10));
        EXPECT_EQ(grid.toolTip(), QString());
        QTest::mouseMove(&grid, QPoint(60, 20));
        EXPECT_EQ(grid.toolTip(), QStringLiteral("Tune 02"));
        EXPECT_EQ(Played(), 0);
        EXPECT_EQ(grid.Selected(), 1);
    });
}

TEST_F(TuneFrm2Test, WithoutTunesItTellsWhereTheyShouldBe)
{
    Open([](TuneFrm2& window) {
        EXPECT_EQ(GridOf(window).Count(), 0);
        EXPECT_EQ(TextOf(window, "TuneNameLbl"), "[none]");
        EXPECT_FALSE(GridOf(window).BlinkSelectedTimer().isActive());
        EXPECT_EQ(Played(), 0);
        PressTune(window, 1);
        QTest::keyClick(&GridOf(window), Qt::Key_Down);
        QTest::keyClick(&GridOf(window), Qt::Key_Menu);
        Click(window, "TestPlayBtn");
        Click(window, "OkBtn");
    });
    EXPECT_EQ(tune.Name, "New");
}

TEST_F(TuneFrm2Test, FindsTunesThatCameIntoAnEmptyFolderMeanwhile)
{
    Open([](TuneFrm2& window) { Click(window, "NewTuneBtn"); });
    MakeTuneFiles(1);
    Open([](TuneFrm2& window) { EXPECT_EQ(GridOf(window).Selected(), 1); });
}

TEST_F(TuneFrm2Test, ATuneThatIsGoneIsShownAsABlankOne)
{
    MakeTuneFiles(2);
    Open([](TuneFrm2& window) {
        fs::remove(File("Tune 02.TqTun"));
        PressTune(window, 2);
        EXPECT_EQ(Shared().CurrentTune.StepCount, 16);
        PressTune(window, 1);
        EXPECT_EQ(Shared().CurrentTune.Name, "Tune 01");
    });
    EXPECT_FALSE(fs::exists(File("Tune 02.TqTun")));
}

TEST_F(TuneFrm2Test, AnEmptyEntryCanBeChosenAndHarmsNothing)
{
    WriteBytes(File("Broken.TqTun"), FileOf("TqTun", "2", {1000, 0}));
    MakeTuneFiles(1);
    Open([this](TuneFrm2& window) {
        EXPECT_EQ(GridOf(window).Count(), 2);
        PressTune(window, 1);
        AnswerNext("YesBtn");
        MenuItem(window, 4).trigger();
    });
    EXPECT_TRUE(fs::exists(File("Broken.TqTun")));
    EXPECT_FALSE(fs::exists(File(".TqTun")));
}

TEST_F(TuneFrm2Test, ShowsNamesOfAllAlphabetsAndShortensLongOnes)
{
    const std::string name = "\xE9\x9B\xA8 \xD0\x94\xD0\xBE\xD0\xB6\xD0\xB4\xD1\x8C";
    const std::string longName(120, 'm');
    MakeTuneFile(PlainTune(name, "\xC3\x85sa"));
    MakeTuneFile(PlainTune(longName, "Ann"));
    WriteBytes(TuneIndexFile(), "[SortOrder]\r\n" + name + "=1\r\n");
    Open([&](TuneFrm2& window) {
        EXPECT_EQ(TextOf(window, "TuneNameLbl"), name);
        EXPECT_EQ(TextOf(window, "CreatedByLbl"), "By: \xC3\x85sa");
        PressTune(window, 2);
        EXPECT_LT(TextOf(window, "TuneNameLbl").size(), 100U);
        EXPECT_EQ(PartOf(window, "TuneNameLbl").toolTip().toStdString(), longName);
    });
}

TEST_F(TuneFrm2Test, OpensAtItsFirstRowWhateverRowItWasLeftAt)
{
    MakeTuneFiles(300);
    Open([](TuneFrm2& window) { GridOf(window).VScroll1().setValue(5); });
    Open([](TuneFrm2& window) {
        EXPECT_EQ(GridOf(window).VScroll1().value(), 1);
        EXPECT_EQ(GridOf(window).TopRow(), 1);
    });
}

class ChangePicBtnTest : public TuneFrm2Test {
protected:
    ChangePicBtnTest() { MakeTuneFiles(1); }

    /// Clicks the button; the desktop's dialog returns a file.
    void ChangePicture(std::optional<fs::path> answer, const std::function<void(TuneFrm2&)>& then)
    {
        const FileChooserStandIn standIn([this, answer](const FileQuestion& asked) {
            question = asked;
            hintOfMessage = statusLbl.text().toStdString();
            return answer;
        });
        Open([&then](TuneFrm2& window) {
            Click(window, "ChangePicBtn");
            then(window);
        });
    }

    FileQuestion question;
};

TEST_F(ChangePicBtnTest, TakesAPictureAndRemembersItsFolder)
{
    const fs::path file = services.folder.Path() / "cloud.bmp";
    WriteBytes(file, std::string(55, 'p'));
    ChangePicture(file, [](TuneFrm2& window) {
        EXPECT_EQ(Shared().CurrentTune.Picture.Pixel(0, 0), 55U);
        EXPECT_EQ(PartOf<TunePicture>(window, "TunePic").Picture().Pixel(0, 0), 55U);
        EXPECT_TRUE(window.TuneChanged);
    });
    EXPECT_EQ(hintOfMessage, "Choose a small (32x32) bmp picture file");
    EXPECT_EQ(question.Title, "Please select a picture file (32x32) to use");
    EXPECT_EQ(question.DefaultExtension, "bmp");
    EXPECT_EQ(question.Filter, "Picture files|*.bmp;*.jpg;*.gif;*.png|All files|*.*");
    EXPECT_EQ(question.Folder, Shared().InstallStars);
    EXPECT_EQ(GetSetting("General", "PictureSelectPath", ""), services.folder.Path().native() + "/");
    ChangePicture({}, [](TuneFrm2&) {});
    EXPECT_EQ(question.Folder, services.folder.Path() / "");
}

TEST_F(ChangePicBtnTest, ScalesAPictureOfAnotherSizeAsItIsFoundAfterSaving)
{
    QtPictureFiles pictures;
    TheServices().pictures = &pictures;
    QImage photo(200, 100, QImage::Format_RGB32);
    photo.fill(Qt::green);
    const fs::path file = services.folder.Path() / "photo.png";
    ASSERT_TRUE(photo.save(QFile::decodeName(file.c_str()), "PNG"));
    ChangePicture(file, [](TuneFrm2& window) {
        const Picture taken = Shared().CurrentTune.Picture;
        EXPECT_EQ(taken.Width(), 32);
        EXPECT_EQ(taken.Height(), 32);
        EXPECT_EQ(taken.Pixel(31, 23), 0x00FF00U);
        EXPECT_EQ(taken.Pixel(31, 24), 0xFFFFFFU);
        EXPECT_TRUE(SamePicture(PartOf<TunePicture>(window, "TunePic").Picture(), taken));
    });
}

TEST_F(ChangePicBtnTest, CancelChangesNothing)
{
    ChangePicture({}, [](TuneFrm2& window) {
        EXPECT_EQ(Shared().CurrentTune.Picture.Pixel(0, 0), 0x102030U);
        EXPECT_FALSE(window.TuneChanged);
    });
    EXPECT_TRUE(services.messages.shown.empty());
    EXPECT_EQ(GetSetting("General", "PictureSelectPath", "none"), "none");
}

TEST_F(ChangePicBtnTest, AFileThatIsNoPictureIsToldAndThePictureStays)
{
    const fs::path file = services.folder.Path() / "cloud.bmp";
    WriteBytes(file, "bad");
    ChangePicture(file, [](TuneFrm2& window) {
        EXPECT_EQ(Shared().CurrentTune.Picture.Pixel(0, 0), 0x102030U);
        EXPECT_FALSE(window.TuneChanged);
    });
    ASSERT_EQ(services.messages.shown.size(), 1U);
    EXPECT_EQ(services.messages.shown[0].text,
              "Error selecting picture file\r\nThe picture " + file.native() + " cannot be read.");
}

class SaveTuneBtnTest : public TuneFrm2Test {
protected:
    /// Fills in the next form for names and leaves it with a button; the previous texts of its boxes are kept.
    void AnswerNames(const char* name, const char* author, std::function<void()> before = {},
                     const char* button = "OkBtn")
    {
        WithNextForm([this, name, author, button, before = std::move(before)](BandedForm& form) {
            offered = {PartOf<QLineEdit>(form, "NameTxt").text().toStdString(),
                       PartOf<QLineEdit>(form, "CreatedTxt").text().toStdString()};
            if (name)
                PartOf<QLineEdit>(form, "NameTxt").setText(QString::fromUtf8(name));
            if (author)
                PartOf<QLineEdit>(form, "CreatedTxt").setText(QString::fromUtf8(author));
            if (before)
                before();
            Click(form, button);
        });
    }

    static Tune Loaded(const char* name)
    {
        TunOpnSavClass().Load_Tune(File(name));
        return Shared().TuneClipboard;
    }

    TuneNames offered;
};

TEST_F(SaveTuneBtnTest, AnOriginalOffersTwoEmptyBoxes)
{
    MakeTuneFile(PlainTune("Lumo", "Tonquill"));
    Open([this](TuneFrm2& window) {
        AnswerNames("My Lumo", "Ann");
        Click(window, "SaveTuneBtn");
        EXPECT_EQ(TextOf(window, "TuneNameLbl"), "My Lumo");
        EXPECT_EQ(TextOf(window, "CreatedByLbl"), "By: Ann");
    });
    EXPECT_EQ(offered, (TuneNames{"", ""}));
    EXPECT_EQ(Loaded("My Lumo.TqTun").CreatedBy, "Ann");
    EXPECT_EQ(Shared().TuneClipboard.TuneWave.Length, 4);
    EXPECT_EQ(Loaded("Lumo.TqTun").CreatedBy, "Tonquill");
}

TEST_F(SaveTuneBtnTest, ANewTuneSortsLastAndIsChosen)
{
    MakeTuneFiles(2);
    WriteBytes(TuneIndexFile(), "[SortOrder]\r\nTune 02=1\r\nTune 01=2\r\n");
    Open([this](TuneFrm2& window) {
        AnswerNames(" A first ", " Bob ");
        Click(window, "SaveTuneBtn");
        EXPECT_EQ(GridOf(window).Selected(), 3);
        EXPECT_EQ(GridOf(window).Count(), 3);
    });
    EXPECT_EQ(offered, (TuneNames{"Tune 02", "Ann"}));
    EXPECT_THAT(TableNames(), ElementsAre("Tune 02", "Tune 01", "A first"));
    EXPECT_EQ(Shared().CurrentTune.Name, "A first");
    EXPECT_EQ(FolderOrder::Read(TuneIndexFile()).Place("A first"), 3);
    EXPECT_TRUE(tune.Name.empty());
}

TEST_F(SaveTuneBtnTest, AnOverwrittenTuneKeepsItsPlaceAndTheFrameGoesToTheLast)
{
    MakeTuneFiles(3);
    WriteBytes(TuneIndexFile(), "[SortOrder]\r\nTune 01=1\r\nTune 02=2\r\nTune 03=3\r\n");
    Open([this](TuneFrm2& window) {
        Shared().CurrentTune.Picture = PlainPicture(0x77);
        AnswerNames(nullptr, "Bob", [this] { AnswerNext("YesBtn"); });
        Click(window, "SaveTuneBtn");
        EXPECT_EQ(GridOf(window).Selected(), 3);
        EXPECT_EQ(TextOf(window, "TuneNameLbl"), "Tune 03");
    });
    EXPECT_THAT(noted, ElementsAre(" Tonquill Sprout Painter", "Another Tune is there with this name: Tune 01",
                                   "Would you like to overwrite that?"));
    EXPECT_THAT(TableNames(), ElementsAre("Tune 01", "Tune 02", "Tune 03"));
    EXPECT_EQ(Shared().TuneTable[1].CreatedBy, "Bob");
    EXPECT_EQ(Shared().TuneTable[1].Picture.Pixel(0, 0), 0x77U);
    EXPECT_EQ(Shared().CurrentTune.Name, "Tune 01");
}

TEST_F(SaveTuneBtnTest, ATuneThatIsKeptLeadsBackToTheTypedTexts)
{
    MakeTuneFiles(2);
    Open([this](TuneFrm2& window) {
        AnswerNames("Tune 02", " Bob ", [this] {
            WithNextForm([this](BandedForm& question) {
                AnswerNames(nullptr, nullptr, {}, "CancelBtn");
                Click(question, "NoBtn");
            });
        });
        Click(window, "SaveTuneBtn");
    });
    EXPECT_EQ(offered, (TuneNames{"Tune 02", "Bob"}));
    EXPECT_EQ(Loaded("Tune 02.TqTun").CreatedBy, "Ann");
    EXPECT_EQ(Shared().CurrentTune.Name, "Tune 01");
}

TEST_F(SaveTuneBtnTest, TheNameOfAnOriginalIsRefused)
{
    MakeTuneFile(PlainTune("Lumo", "Tonquill", 7));
    Open([this](TuneFrm2& window) {
        AnswerNames("lumo", "Ann", [this] {
            WithNextForm([this](BandedForm& message) {
                noted = {TextOf(message, "CaptionLbl"), TextOf(message, "NoteLbl1"), TextOf(message, "NoteLbl2")};
                AnswerNames(nullptr, nullptr, {}, "CancelBtn");
                Click(message, "OkBtn");
            });
        });
        Click(window, "SaveTuneBtn");
    });
    EXPECT_THAT(noted, ElementsAre(" Tonquill Sprout Painter",
                                   "An Original Tonquill Tune is there with this name \"lumo\"\r\n",
                                   "Please enter another name for this Tune and save."));
    EXPECT_EQ(offered, (TuneNames{"lumo", "Ann"}));
    EXPECT_EQ(Loaded("Lumo.TqTun").CreatedBy, "Tonquill");
}

TEST_F(SaveTuneBtnTest, WhereOriginalsMayBeEditedOverwritingOneAsksOnlyThat)
{
    MakeTuneFile(PlainTune("Lumo", "Tonquill"));
    Shared().AllowEditOriginal = true;
    Open([this](TuneFrm2& window) {
        AnswerNames(nullptr, nullptr, [this] { AnswerNext("YesBtn"); });
        Click(window, "SaveTuneBtn");
    });
    EXPECT_EQ(offered, (TuneNames{"Lumo", "Tonquill"}));
    EXPECT_EQ(noted[1], "Another Tune is there with this name: Lumo");
    EXPECT_EQ(Loaded("Lumo.TqTun").CreatedBy, "Tonquill");
}

TEST_F(SaveTuneBtnTest, WithoutAnAuthorItAsksAgain)
{
    MakeTuneFiles(1);
    Open([this](TuneFrm2& window) {
        AnswerNames("Rain", "  ", [this] {
            WithNextForm([this](BandedForm& message) {
                noted = {TextOf(message, "NoteLbl")};
                AnswerNames(nullptr, "Bob");
                Click(message, "OkBtn");
            });
        });
        Click(window, "SaveTuneBtn");
    });
    EXPECT_THAT(noted, ElementsAre("Enter a your name in \"Created By\" box."));
    EXPECT_EQ(offered, (TuneNames{"Rain", ""}));
    EXPECT_EQ(Loaded("Rain.TqTun").CreatedBy, "Bob");
}

TEST_F(SaveTuneBtnTest, CancelSavesNothing)
{
    MakeTuneFiles(1);
    Open([this](TuneFrm2& window) {
        AnswerNames("Rain", "Bob", {}, "CancelBtn");
        Click(window, "SaveTuneBtn");
        EXPECT_EQ(GridOf(window).Count(), 1);
    });
    EXPECT_EQ(Shared().CurrentTune.Name, "Tune 01");
    EXPECT_FALSE(fs::exists(File("Rain.TqTun")));
}

TEST_F(SaveTuneBtnTest, AFolderThatTakesNoFileIsToldAndTheWindowStaysUsable)
{
    MakeTuneFiles(2);
    fs::create_directory(File("Rain.TqTun"));
    Open([this](TuneFrm2& window) {
        AnswerNames("Rain", "Bob");
        Click(window, "SaveTuneBtn");
        ASSERT_EQ(services.messages.shown.size(), 1U);
        EXPECT_FALSE(services.messages.shown[0].text.empty());
        EXPECT_EQ(Shared().CurrentTune.Name, "Tune 01");
        PressTune(window, 2);
        EXPECT_EQ(Shared().CurrentTune.Name, "Tune 02");
    });
}

TEST_F(SaveTuneBtnTest, AnEditedTuneCarriesTheSoundThatItHadLast)
{
    MakeTuneFile(PlainTune("Rain", "Ann", 7));
    Open([this](TuneFrm2& window) {
        Shared().CurrentTune.Steps[2].OnPos = 1;
        SetTuneWaveValid(Shared().CurrentTune, false);
        AnswerNames("Sun", nullptr);
        Click(window, "SaveTuneBtn");
    });
    const Tune saved = Loaded("Sun.TqTun");
    EXPECT_EQ(saved.TuneWave.Length, 7);
    EXPECT_EQ(saved.Steps[2].OnPos, 1);
}

} // namespace
} // namespace sprout
