// SPDX-License-Identifier: GPL-3.0-or-later
#include "beat_window/BeatGrid.h"

#include "beat_window/BeatWindowTest.h"

namespace sprout {
namespace {

using BeatGridTest = BeatWindowTest;

TEST_F(BeatGridTest, ADoubleClickOnABeatIsOk)
{
    MakeBeat("bell", 10);
    MakeBeat("drum", 10);
    Open();
    ClickBeat(2);
    QTest::mouseDClick(Grid().childAt(PlaceOf(2)), Qt::LeftButton);
    EXPECT_FALSE(window->isVisible());
    EXPECT_TRUE(window->OkPressed);
    EXPECT_EQ(window->ChosenBeatName, "drum");
}

TEST_F(BeatGridTest, TheDeleteKeyAsksAsTheButtonDoes)
{
    ProtectNothing();
    MakeBeat("bell", 10);
    Open();
    WithNextForm([](BandedForm& form) { Click(form, "YesBtn"); });
    QTest::keyClick(&Grid(), Qt::Key_Delete);
    EXPECT_EQ(ListedNames(), "");
    EXPECT_EQ(FilesOfUserBeats(), "");
}

TEST_F(BeatGridTest, AClickBesideThePicturesChangesNothing)
{
    MakeBeat("bell", 10);
    Open();
    QTest::mouseClick(&Grid(), Qt::LeftButton, {}, QPoint(40, 20));
    EXPECT_EQ(TextOf("NmLbl"), "bell");
    EXPECT_FALSE(SoundPlayed());
}

TEST_F(BeatGridTest, GivesOriginalsABlueBorderAndTheUsersOwnARedOne)
{
    MakeBeat("bell", 10);
    Open().reject();
    MakeBeat("drum", 10);
    MakeBeat("echo", 10);
    Open("echo");
    const QImage image = Grid().grab().toImage();
    EXPECT_EQ(image.pixelColor(4, 4), QColor(0x00, 0x00, 0xFF));
    EXPECT_EQ(image.pixelColor(44, 4), QColor(0xC0, 0x00, 0x00));
}

TEST_F(BeatGridTest, ScrollsToTheRowsThatDoNotFit)
{
    for (int i = 0; i < 17 * 12 + 1; ++i)
        MakeBeat("beat" + std::to_string(1000 + i), 10);
    Open();
    EXPECT_TRUE(Grid().VScroll1().isEnabled());
    EXPECT_EQ(Grid().VScroll1().maximum(), 3);
    Grid().VScroll1().setValue(3);
    EXPECT_FALSE(Grid().BlinkSelectedTimer().isActive());
    ClickBeat(205);
    EXPECT_EQ(TextOf("NmLbl"), "beat1204");
    EXPECT_EQ(Grid().TopRow(), 3);
    window->LoadBeatFiles();
    EXPECT_EQ(Grid().TopRow(), 1) << "as after every command";
    EXPECT_EQ(Grid().VScroll1().value(), 1);
}

TEST_F(BeatGridTest, BeginsAtTheFirstRowAlsoWhereTheChosenBeatIsNotInView)
{
    for (int i = 0; i < 17 * 12 + 1; ++i)
        MakeBeat("beat" + std::to_string(1000 + i), 10);
    Open("beat1204");
    EXPECT_EQ(TextOf("NmLbl"), "beat1204");
    EXPECT_EQ(Grid().TopRow(), 1);
    EXPECT_FALSE(Grid().BlinkSelectedTimer().isActive());
}

TEST_F(BeatGridTest, ChoosesWithTheKeyboard)
{
    for (const char* name : {"a", "b", "c"})
        MakeBeat(name, 10);
    Open();
    QWidget* focused = window->focusWidget();
    EXPECT_EQ(focused, &Grid());
    QTest::keyClick(focused, Qt::Key_Right);
    EXPECT_EQ(TextOf("NmLbl"), "b");
    EXPECT_TRUE(SoundPlayed());
    sound.pcm.clear();
    QTest::keyClick(focused, Qt::Key_Space);
    EXPECT_TRUE(SoundPlayed());
    QTest::keyClick(focused, Qt::Key_Return);
    EXPECT_TRUE(window->OkPressed);
    EXPECT_EQ(window->ChosenBeatName, "b");
    EXPECT_FALSE(window->isVisible());
}

TEST_F(BeatGridTest, OpensTheMenuOfMovesOnTheRightButtonAndTheMenuKey)
{
    for (int i = 0; i < 14; ++i)
        MakeBeat("beat" + std::to_string(10 + i), 10);
    Open();
    ClickBeat(2, Qt::RightButton);
    auto& menu = Control<QMenu>("PopPosiMnu");
    ASSERT_TRUE(menu.isVisible());
    EXPECT_EQ(TextOf("NmLbl"), "beat11");
    EXPECT_FALSE(SoundPlayed());
    std::string captions;
    for (const QAction* action : menu.actions())
        captions += action->text().toStdString() + (action->isEnabled() ? "+ " : "- ");
    EXPECT_EQ(captions, "Move Up- Move Down+ Move Left+ Move Right+ ");
    menu.close();
    QTest::keyClick(&Grid(), Qt::Key_Menu);
    EXPECT_TRUE(menu.isVisible());
    menu.actions().at(2)->trigger();
    EXPECT_EQ(ListedNames().substr(0, 14), "beat11 beat10 ");
    EXPECT_EQ(Grid().Selected(), 1);
    menu.actions().at(1)->trigger();
    EXPECT_EQ(Grid().Selected(), 13);
    EXPECT_EQ(Grid().Entry(13).Name, "beat11");
}

TEST_F(BeatGridTest, KeepsAMoveWithOkAndLosesItWithCancel)
{
    MakeBeat("a", 10);
    MakeBeat("b", 10);
    for (const char* leave : {"CancelBtn", "CloseImgBtn", "OkBtn"}) {
        Open("a");
        EXPECT_EQ(ListedNames(), "a b ") << leave;
        ClickBeat(1, Qt::RightButton);
        Control<QMenu>("PopPosiMnu").actions().at(3)->trigger();
        EXPECT_EQ(ListedNames(), "b a ");
        Control<QMenu>("PopPosiMnu").close();
        Click(*window, leave);
        EXPECT_FALSE(window->isVisible());
    }
    Open();
    EXPECT_EQ(ListedNames(), "b a ");
}

TEST_F(BeatGridTest, ShowsTheBeatsOfATableAndFramesItsSelection)
{
    BeatTable table;
    table.BeatList.resize(3);
    table.BeatList[1].Name = "b_bass";
    table.BeatList[2].Name = "new";
    table.NamesForPeople = {{"b_bass", "Bass"}};
    table.BeatProtected = {false, true, false};
    table.BeatListCount = 2;
    table.SelectedBeat = 2;
    QWidget parent;
    BeatGrid grid(&parent);
    grid.ShowBeats(table);
    grid.ShowSelection(table);
    ASSERT_EQ(grid.Count(), 2);
    EXPECT_EQ(grid.Entry(1).Name, "Bass");
    EXPECT_TRUE(grid.Entry(1).Original);
    EXPECT_EQ(grid.Entry(2).Name, "") << "it is not known yet";
    EXPECT_FALSE(grid.Entry(2).Original);
    EXPECT_EQ(grid.Selected(), 2);
}

} // namespace
} // namespace sprout
