// SPDX-License-Identifier: GPL-3.0-or-later
#include "beat_window/BeatWindowTest.h"

#include <QScreen>

#include "beat_window/ChooseBeat.h"
#include "ui/HelpFrm.h"

namespace sprout {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class ChooseBeatTest : public BeatWindowTest {};

TEST_F(BeatWindowTest, ShowsTheSelectedBeatAndPlaysNothingUntilItIsClicked)
{
    MakeBeat("bell", 5512);
    MakeBeat("drum", 11025);
    Open("Drum");
    EXPECT_EQ(ListedNames(), "bell drum ");
    EXPECT_EQ(Grid().Selected(), 2);
    EXPECT_EQ(TextOf("NmLbl"), "drum");
    EXPECT_EQ(TextOf("DurLbl"), "1.0 Sec");
    EXPECT_FALSE(Control<ChoosenPicture>("ChoosenPic").IsClear());
    EXPECT_EQ(Grid().BlinkSelectImg().toolTip(), QStringLiteral("drum"));
    EXPECT_TRUE(Grid().BlinkSelectedTimer().isActive());
    EXPECT_FALSE(SoundPlayed());
    EXPECT_EQ(services.screen.hourglasses, 0);
    EXPECT_EQ(services.screen.hourglassesShown, 1);
}

TEST_F(BeatWindowTest, ShowsNamesAsTheirFilesAreWrittenAndWithoutTheirFamily)
{
    MakeBeat("B_Acoustic Bass Low", 10);
    MakeBeat("my DOG", 10);
    Open("b_acoustic bass low");
    EXPECT_EQ(TextOf("NmLbl"), "Acoustic Bass Low");
    EXPECT_EQ(Control<ChoosenPicture>("ChoosenPic").accessibleName(), QStringLiteral("Acoustic Bass Low"));
    EXPECT_EQ(Grid().BlinkSelectImg().toolTip(), QStringLiteral("Acoustic Bass Low"));
    EXPECT_EQ(ListedNames(), "Acoustic Bass Low my DOG ");
    window->reject();
}

TEST_F(BeatWindowTest, ADoubleClickOnABeatIsOk)
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

TEST_F(BeatWindowTest, TheDeleteKeyAsksAsTheButtonDoes)
{
    ProtectNothing();
    MakeBeat("bell", 10);
    Open();
    WithNextForm([](BandedForm& form) { Click(form, "YesBtn"); });
    QTest::keyClick(&Grid(), Qt::Key_Delete);
    EXPECT_EQ(ListedNames(), "");
    EXPECT_EQ(FilesOfUserBeats(), "");
}

TEST_F(BeatWindowTest, SelectsTheFirstBeatForAnEmptyName)
{
    MakeBeat("bell", 10);
    MakeBeat("drum", 10);
    Open();
    EXPECT_EQ(TextOf("NmLbl"), "bell");
    EXPECT_FALSE(SoundPlayed());
}

TEST_F(BeatWindowTest, ListsDrumWavWithDrumBmpAsDrum)
{
    SaveWaveFile(QuietWave(10), Shared().UserBeats / "Drum.WAV");
    WriteBytes(Shared().UserBeats / "drum.bmp", "p");
    Open();
    EXPECT_EQ(ListedNames(), "Drum ");
    Click(*window, "OkBtn");
    EXPECT_EQ(window->ChosenBeatName, "drum");
}

TEST_F(BeatWindowTest, PlaysABeatWhenItsPictureIsClicked)
{
    MakeBeat("bell", 10);
    MakeBeat("drum", 20);
    Open();
    ClickBeat(2);
    EXPECT_EQ(TextOf("NmLbl"), "drum");
    EXPECT_TRUE(SoundPlayed());
    EXPECT_EQ(display.status, "Playing Beat");
    EXPECT_EQ(play.PlayLength, 20);
    EXPECT_EQ(play.PlayState, PlayState::Playing);
    EXPECT_FALSE(play.PlayLooping);
}

TEST_F(BeatWindowTest, PlaysTheChosenBeatAgainWhenItsFrameIsClicked)
{
    MakeBeat("bell", 10);
    Open();
    QTest::mouseClick(&Grid().BlinkSelectImg(), Qt::LeftButton, {}, QPoint(1, 1));
    EXPECT_EQ(play.PlayLength, 10);
}

TEST_F(BeatWindowTest, PlaysTheChosenBeatFromItsLargePictureAndThePlayButton)
{
    MakeBeat("bell", 10);
    Open();
    for (const char* control : {"ChoosenPic", "TestPlayBtn"}) {
        sound.pcm.clear();
        Click(*window, control);
        EXPECT_TRUE(SoundPlayed()) << control;
        EXPECT_EQ(display.status, "Playing Beat");
    }
}

TEST_F(BeatWindowTest, AClickBesideThePicturesChangesNothing)
{
    MakeBeat("bell", 10);
    Open();
    QTest::mouseClick(&Grid(), Qt::LeftButton, {}, QPoint(40, 20));
    EXPECT_EQ(TextOf("NmLbl"), "bell");
    EXPECT_FALSE(SoundPlayed());
}

TEST_F(BeatWindowTest, GivesOriginalsABlueBorderAndTheUsersOwnARedOne)
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

TEST_F(BeatWindowTest, SaysWhereBeatsAreMissing)
{
    Open("drum");
    EXPECT_EQ(TextOf("NoteLbl"), "No beat file found");
    EXPECT_EQ(TextOf("NmLbl"), "[none]");
    EXPECT_EQ(TextOf("DurLbl"), " ");
    EXPECT_TRUE(Control<ChoosenPicture>("ChoosenPic").IsClear());
    EXPECT_FALSE(Grid().BlinkSelectedTimer().isActive());
    EXPECT_EQ(Grid().BlinkSelectImg().pos(), QPoint(-47, -47));
    const QImage lines = Grid().grab().toImage();
    Grid().SetLines({});
    EXPECT_NE(lines, Grid().grab().toImage());
}

TEST_F(BeatWindowTest, TellsToSelectABeatWhereNoneIs)
{
    Open();
    for (const char* control : {"ChoosenPic", "TestPlayBtn"}) {
        FormAnswers answers(statusLbl, {});
        Click(*window, control);
        EXPECT_THAT(answers.seen, ElementsAre("Select a Beat first.|Click on a picture to select a beat"));
        EXPECT_EQ(statusLbl.text(), QString());
    }
    EXPECT_FALSE(SoundPlayed());
}

TEST_F(BeatWindowTest, TellsOfADamagedWaveAndStaysUsable)
{
    MakeBeat("bell", 10);
    MakeBeat("drum", 10);
    WriteBytes(Shared().UserBeats / "bell.wav", std::string(100, 'x'));
    Open();
    EXPECT_EQ(services.messages.shown.size(), 1U);
    EXPECT_EQ(TextOf("DurLbl"), "0.0 Sec");
    ClickBeat(1);
    EXPECT_EQ(services.messages.shown.size(), 1U);
    EXPECT_FALSE(SoundPlayed());
    ClickBeat(2);
    EXPECT_EQ(play.PlayLength, 10);
}

TEST_F(BeatWindowTest, TellsOfADamagedPictureAndStaysUsable)
{
    MakeBeat("bell", 10);
    WriteBytes(Shared().UserBeats / "bell.bmp", "bad");
    Open();
    ASSERT_EQ(services.messages.shown.size(), 1U);
    EXPECT_EQ(services.messages.shown[0].title, "Error Loading Picture");
    ClickBeat(1);
    EXPECT_EQ(play.PlayLength, 10);
}

TEST_F(BeatWindowTest, ScrollsToTheRowsThatDoNotFit)
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

TEST_F(BeatWindowTest, IsAsHighAsItsBeatsAskForAndTheScreenAllows)
{
    MakeBeat("beat1000", 10);
    Open();
    const int fewRows = Grid().height();
    EXPECT_EQ(fewRows, 8 * 40 + 2);
    for (int i = 1; i < 8 * 12; ++i)
        MakeBeat("beat" + std::to_string(1000 + i), 10);
    window->LoadBeatFiles();
    EXPECT_EQ(Grid().height(), fewRows) << "the open window has changed its size";
    Open();
    EXPECT_EQ(Grid().height(), fewRows + 40);
    EXPECT_FALSE(Grid().VScroll1().isEnabled());
    EXPECT_LE(window->height(), window->screen()->availableGeometry().height());
}

TEST_F(BeatWindowTest, BeginsAtTheFirstRowAlsoWhereTheChosenBeatIsNotInView)
{
    for (int i = 0; i < 17 * 12 + 1; ++i)
        MakeBeat("beat" + std::to_string(1000 + i), 10);
    Open("beat1204");
    EXPECT_EQ(TextOf("NmLbl"), "beat1204");
    EXPECT_EQ(Grid().TopRow(), 1);
    EXPECT_FALSE(Grid().BlinkSelectedTimer().isActive());
}

TEST_F(BeatWindowTest, ChoosesWithTheKeyboard)
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

TEST_F(BeatWindowTest, EscapeCancels)
{
    MakeBeat("a", 10);
    Open("a");
    QTest::keyClick(&Grid(), Qt::Key_Escape);
    EXPECT_FALSE(window->isVisible());
    EXPECT_FALSE(window->OkPressed);
}

TEST_F(BeatWindowTest, OpensTheMenuOfMovesOnTheRightButtonAndTheMenuKey)
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

TEST_F(BeatWindowTest, KeepsAMoveWithOkAndLosesItWithCancel)
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

TEST_F(BeatWindowTest, EveryWayOutStopsTheSoundAndTheBlinkingAndClearsTheHint)
{
    MakeBeat("a", 10);
    for (const char* leave : {"OkBtn", "CancelBtn", "CloseImgBtn"}) {
        Open();
        ClickBeat(1);
        sound.calls.clear();
        statusLbl.setText(QStringLiteral("hint"));
        Click(*window, leave);
        EXPECT_THAT(sound.calls, testing::Contains(HasSubstr("Stop"))) << leave;
        EXPECT_FALSE(Grid().BlinkSelectedTimer().isActive()) << leave;
        EXPECT_EQ(statusLbl.text(), QString()) << leave;
    }
}

TEST_F(BeatWindowTest, AClosingByTheSystemActsAsCancel)
{
    MakeBeat("a", 10);
    Open("a");
    window->close();
    EXPECT_FALSE(window->isVisible());
    EXPECT_FALSE(window->OkPressed);
    EXPECT_FALSE(Grid().BlinkSelectedTimer().isActive());
}

TEST_F(BeatWindowTest, OkWithoutABeatClosesAsIfCancelled)
{
    Open("drum");
    Click(*window, "OkBtn");
    EXPECT_FALSE(window->isVisible());
    EXPECT_FALSE(window->OkPressed);
    EXPECT_EQ(window->ChosenBeatName, "drum");
}

TEST_F(BeatWindowTest, TellsWhatEachControlDoes)
{
    MakeBeat("a", 10);
    Open();
    const std::vector<std::pair<const char*, const char*>> hints{
        {"BlinkSelectImg", "This is the chosen Beat. Click on it to play"},
        {"ShowAllPic", "Click on a picture to choose a beat"},
        {"ChoosenPic", "That shows the selected beat, click on it to play this beat"},
        {"NmLbl", "That shows the name of the selected beat"},
        {"DurLbl", "That shows the duration of the selected beat"},
        {"OkBtn", "Click Ok after choosing a beat"},
        {"TestPlayBtn", "Play button, click on it to play selected beat"},
        {"AddBtn", "Adds more beats with your wav file"},
        {"RenameBtn", "Renames the beat"},
        {"DeleteBtn", "This button will deletes the selected beat"},
        {"CancelBtn", "Cancel button, use it to leave the beat as it was"},
        {"HelpBtn", "Help button, use it to see help"},
        {"NoteLbl", ""}};
    EXPECT_EQ(TextOf("CaptionLbl"), " Choose a Beat");
    for (const auto& [name, hint] : hints) {
        auto& control = Control(name);
        statusLbl.setText(QStringLiteral("before"));
        QTest::mouseMove(&control, control.rect().bottomRight() - QPoint(4, 4));
        QTest::mouseMove(&control, control.rect().bottomRight() - QPoint(5, 5));
        EXPECT_EQ(statusLbl.text().toStdString(), hint) << name;
        EXPECT_EQ(control.accessibleDescription().toStdString(), hint) << name;
    }
}

TEST_F(BeatWindowTest, NamesEveryControlForAScreenReader)
{
    MakeBeat("a", 10);
    Open();
    for (const char* name :
         {"ShowAllPic", "VScroll1", "OkBtn", "CancelBtn", "HelpBtn", "TestPlayBtn", "AddBtn", "RenameBtn", "DeleteBtn"})
        EXPECT_FALSE(Control(name).accessibleName().isEmpty()) << name;
    EXPECT_EQ(Control("ChoosenPic").accessibleName(), QStringLiteral("a"));
    std::filesystem::remove(Shared().UserBeats / "a.wav");
    window->LoadBeatFiles();
    EXPECT_EQ(Control("ChoosenPic").accessibleName(), QStringLiteral("[none]"));
}

TEST_F(BeatWindowTest, OpensTheHelp)
{
    Open();
    Click(*window, "HelpBtn");
    HelpFrm* help = nullptr;
    for (QWidget* widget : QApplication::topLevelWidgets())
        if (auto* form = qobject_cast<HelpFrm*>(widget))
            help = form;
    ASSERT_NE(help, nullptr);
    EXPECT_TRUE(help->isVisible());
    delete help;
}

TEST_F(BeatWindowTest, FitsItsControlsWithoutOverlaps)
{
    MakeBeat("a", 10);
    Open();
    const std::vector<const char*> names{"ShowAllFrame", "ChoosenPic", "NmLbl",     "DurLbl",
                                         "NoteLbl",      "OkBtn",      "CancelBtn", "HelpBtn",
                                         "AddBtn",       "RenameBtn",  "DeleteBtn", "TestPlayBtn"};
    for (std::size_t i = 0; i < names.size(); ++i) {
        const QRect place = Control(names[i]).geometry();
        EXPECT_TRUE(window->rect().adjusted(2, kBandHeight, -2, -2).contains(place)) << names[i];
        for (std::size_t j = i + 1; j < names.size(); ++j)
            EXPECT_FALSE(place.intersects(Control(names[j]).geometry())) << names[i] << " " << names[j];
    }
}

TEST_F(BeatWindowTest, KeepsALongNameWholeInTheToolTip)
{
    const std::string name = "a beat with a very long <name> that goes on and on and ends somewhere";
    MakeBeat(name, 10);
    Open(name);
    EXPECT_EQ(TextOf("NmLbl"), name);
    EXPECT_TRUE(Control("NmLbl").toolTip().contains(QStringLiteral("&lt;name&gt; that goes on and on and ends")));
}

TEST_F(ChooseBeatTest, ReturnsTheChosenName)
{
    MakeBeat("Bell", 10);
    MakeBeat("drum", 10);
    std::string name = "BELL";
    WithNextForm([](BandedForm& form) {
        EXPECT_EQ(form.objectName(), QStringLiteral("BeatWindow"));
        auto* grid = form.findChild<PictureGridPic*>(QStringLiteral("ShowAllPic"));
        EXPECT_EQ(grid->Selected(), 1);
        QTest::mouseClick(grid, Qt::LeftButton, {}, QPoint(60, 20));
        Click(form, "OkBtn");
    });
    EXPECT_TRUE(ChooseBeat(name));
    EXPECT_EQ(name, "drum");
}

TEST_F(ChooseBeatTest, LeavesTheNameWhenItIsCancelled)
{
    MakeBeat("bell", 10);
    std::string name = "Other";
    WithNextForm([](BandedForm& form) { Click(form, "CancelBtn"); });
    EXPECT_FALSE(ChooseBeat(name));
    EXPECT_EQ(name, "Other");
}

TEST_F(ChooseBeatTest, ListsTheFolderAnewAtEveryOpening)
{
    MakeBeat("bell", 10);
    std::string name;
    int count = 0;
    const auto countAndLeave = [&count](BandedForm& form) {
        count = form.findChild<PictureGridPic*>(QStringLiteral("ShowAllPic"))->Count();
        Click(form, "CancelBtn");
    };
    WithNextForm(countAndLeave);
    EXPECT_FALSE(ChooseBeat(name));
    EXPECT_EQ(count, 1);
    MakeBeat("drum", 10);
    WithNextForm(countAndLeave);
    EXPECT_FALSE(ChooseBeat(name));
    EXPECT_EQ(count, 2);
}

} // namespace
} // namespace sprout
