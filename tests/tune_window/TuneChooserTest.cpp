// SPDX-License-Identifier: GPL-3.0-or-later
#include "tune_window/TuneChooser.h"

#include "tune_window/TuneFrm2Test.h"

namespace sprout {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;

using TuneChooserTest = TuneFrm2Test;

TEST_F(TuneChooserTest, ALeftPressOnATuneChoosesAndPlaysIt)
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

TEST_F(TuneChooserTest, AChosenTuneIsShownOnAMachineWithoutADeviceToo)
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

TEST_F(TuneChooserTest, APressBesideThePicturesKeepsTheChoiceAndPlaysNothing)
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

TEST_F(TuneChooserTest, APressOnTheFrameReadsAndPlaysTheChosenTuneAgain)
{
    MakeTuneFiles(2);
    Open([](TuneFrm2& window) {
        ForgetPlay();
        MakeTuneFile(PlainTune("Tune 01", "Ann", 11));
        QTest::mouseClick(&GridOf(window).BlinkSelectImg(), Qt::LeftButton, {}, QPoint(2, 2));
        EXPECT_EQ(Played(), kLeadInFrames + 11);
    });
}

TEST_F(TuneChooserTest, The19thTuneOpensARowFromWhichItMovesUpAndNotDown)
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

TEST_F(TuneChooserTest, ARightPressOpensTheMenuAndPlaysNothing)
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

TEST_F(TuneChooserTest, AMoveLivesInMemoryAndTheNextStartShowsTheOldOrder)
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

TEST_F(TuneChooserTest, ADoubleClickOnATuneIsOk)
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

TEST_F(TuneChooserTest, TheTunePicturePlaysTheChosenTune)
{
    MakeTuneFile(PlainTune("Rain", "Ann", 7));
    Open([](TuneFrm2& window) {
        ForgetPlay();
        Click(window, "TunePic");
        EXPECT_EQ(Played(), kLeadInFrames + 7);
    });
}

TEST_F(TuneChooserTest, ArrowsInTheGridDoWhatAPressOnTheNeighbourDoes)
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

TEST_F(TuneChooserTest, TheMenuKeyOpensTheMoveMenu)
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

TEST_F(TuneChooserTest, ATuneThatIsGoneIsShownAsABlankOne)
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

TEST_F(TuneChooserTest, AsksForTheEditorsTuneUntilAnotherIsChosen)
{
    MakeTuneFiles(2);
    LoadTuneFiles();
    QWidget window;
    TuneChooser chooser(&window);
    int wanted = 0;
    QObject::connect(&chooser, &TuneChooser::EditorsTunePlayWanted, &window, [&wanted] { ++wanted; });
    Shared().CurrentTune.Name = "Mine";
    chooser.BeginWithEditorsTune();
    chooser.FindTune("tune 01");
    chooser.RefreshShowAllPic();
    EXPECT_EQ(TextOf(window, "TuneNameLbl"), "Mine");
    Click(window, "TunePic");
    EXPECT_EQ(wanted, 1);
    Q_EMIT GridOf(window).Pressed(1, Qt::LeftButton, {});
    EXPECT_EQ(wanted, 2) << "it is the editor's";
    Q_EMIT GridOf(window).Pressed(2, Qt::LeftButton, {});
    Click(window, "TunePic");
    EXPECT_EQ(wanted, 2);
    EXPECT_GT(Played(), 0);
}

TEST_F(TuneChooserTest, ChoosesTheLastTuneOfTheTableAfterASave)
{
    MakeTuneFiles(2);
    LoadTuneFiles();
    QWidget window;
    TuneChooser chooser(&window);
    chooser.ChooseNothing();
    chooser.RefreshShowAllPic();
    MakeTuneFiles(3);
    chooser.ShowSavedTune();
    EXPECT_EQ(GridOf(window).Count(), 3);
    EXPECT_EQ(GridOf(window).Selected(), 3);
    EXPECT_EQ(TextOf(window, "TuneNameLbl"), "Tune 03");
    EXPECT_EQ(FolderOrder::Read(TuneIndexFile()).Place("Tune 03"), 3);
    EXPECT_EQ(Played(), 0);
}

} // namespace
} // namespace sprout
