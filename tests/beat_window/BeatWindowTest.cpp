// SPDX-License-Identifier: GPL-3.0-or-later
#include "beat_window/BeatWindowTest.h"

#include <QScreen>

#include "ui/help/OpenedHelp.h"

namespace sprout {
namespace {

using testing::HasSubstr;

TEST_F(BeatWindowTest, ListsDrumWavWithDrumBmpAsDrum)
{
    SaveWaveFile(QuietWave(10), Shared().UserBeats / "Drum.WAV");
    WriteBytes(Shared().UserBeats / "drum.bmp", "p");
    Open();
    EXPECT_EQ(ListedNames(), "Drum ");
    Click(*window, "OkBtn");
    EXPECT_EQ(window->ChosenBeatName, "drum");
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

TEST_F(BeatWindowTest, EscapeCancels)
{
    MakeBeat("a", 10);
    Open("a");
    QTest::keyClick(&Grid(), Qt::Key_Escape);
    EXPECT_FALSE(window->isVisible());
    EXPECT_FALSE(window->OkPressed);
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
    EXPECT_EQ(HelpPageOpenedBy(*window, [this] { Click(*window, "HelpBtn"); }), "Instruments");
    EXPECT_EQ(HelpPageOpenedBy(*window, [this] { QTest::keyClick(&*window, Qt::Key_F1); }), "Instruments");
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

} // namespace
} // namespace sprout
