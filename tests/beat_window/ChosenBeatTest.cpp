// SPDX-License-Identifier: GPL-3.0-or-later
#include "beat_window/ChosenBeat.h"

#include "beat_window/BeatWindowTest.h"

namespace sprout {
namespace {

using testing::ElementsAre;

using ChosenBeatTest = BeatWindowTest;

TEST_F(ChosenBeatTest, ShowsTheSelectedBeatAndPlaysNothingUntilItIsClicked)
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

TEST_F(ChosenBeatTest, ShowsNamesAsTheirFilesAreWrittenAndWithoutTheirFamily)
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

TEST_F(ChosenBeatTest, SelectsTheFirstBeatForAnEmptyName)
{
    MakeBeat("bell", 10);
    MakeBeat("drum", 10);
    Open();
    EXPECT_EQ(TextOf("NmLbl"), "bell");
    EXPECT_FALSE(SoundPlayed());
}

TEST_F(ChosenBeatTest, PlaysABeatWhenItsPictureIsClicked)
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

TEST_F(ChosenBeatTest, PlaysTheChosenBeatAgainWhenItsFrameIsClicked)
{
    MakeBeat("bell", 10);
    Open();
    QTest::mouseClick(&Grid().BlinkSelectImg(), Qt::LeftButton, {}, QPoint(1, 1));
    EXPECT_EQ(play.PlayLength, 10);
}

TEST_F(ChosenBeatTest, PlaysTheChosenBeatFromItsLargePictureAndThePlayButton)
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

TEST_F(ChosenBeatTest, SaysWhereBeatsAreMissing)
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

TEST_F(ChosenBeatTest, TellsToSelectABeatWhereNoneIs)
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

TEST_F(ChosenBeatTest, TellsOfADamagedWaveAndStaysUsable)
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

TEST_F(ChosenBeatTest, TellsOfADamagedPictureAndStaysUsable)
{
    MakeBeat("bell", 10);
    WriteBytes(Shared().UserBeats / "bell.bmp", "bad");
    Open();
    ASSERT_EQ(services.messages.shown.size(), 1U);
    EXPECT_EQ(services.messages.shown[0].title, "Error Loading Picture");
    ClickBeat(1);
    EXPECT_EQ(play.PlayLength, 10);
}

TEST_F(ChosenBeatTest, KeepsALongNameWholeInTheToolTip)
{
    const std::string name = "a beat with a very long <name> that goes on and on and ends somewhere";
    MakeBeat(name, 10);
    Open(name);
    EXPECT_EQ(TextOf("NmLbl"), name);
    EXPECT_TRUE(Control("NmLbl").toolTip().contains(QStringLiteral("&lt;name&gt; that goes on and on and ends")));
}

TEST_F(ChosenBeatTest, PlaysNothingWithoutASelectionAndSaysNothing)
{
    BeatTable table;
    PlaySelectedBeat(table);
    EXPECT_FALSE(SoundPlayed());
    EXPECT_EQ(statusLbl.text(), QString());
}

} // namespace
} // namespace sprout
