// SPDX-License-Identifier: GPL-3.0-or-later
#include "tune_window/TuneChoice.h"

#include "tune_window/TuneFrm2Test.h"

namespace sprout {
namespace {

using TuneChoiceTest = TuneFrm2Test;

TEST_F(TuneChoiceTest, ChoosesAndPlaysTheFirstTuneWhenItOpens)
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

TEST_F(TuneChoiceTest, FindsTunesThatCameIntoAnEmptyFolderMeanwhile)
{
    Open([](TuneFrm2& window) { Click(window, "NewTuneBtn"); });
    MakeTuneFiles(1);
    Open([](TuneFrm2& window) { EXPECT_EQ(GridOf(window).Selected(), 1); });
}

TEST_F(TuneChoiceTest, FindsATuneOrNothingAndStaysOpenWithoutAName)
{
    MakeTuneFiles(2);
    LoadTuneFiles();
    TuneChoice choice;
    choice.Find("tune 02");
    EXPECT_EQ(choice.SelectedTune(), 2);
    EXPECT_TRUE(choice.HasTune());
    choice.Find("Gone");
    EXPECT_FALSE(choice.HasTune());
    EXPECT_TRUE(choice.ShowsEditorsTune());
    choice.ChooseFirstIfOpen();
    EXPECT_FALSE(choice.HasTune()) << "nothing shall be chosen";
    choice.Find("");
    EXPECT_EQ(choice.SelectedTune(), 0);
    choice.ChooseFirstIfOpen();
    EXPECT_EQ(choice.SelectedTune(), 1);
    EXPECT_GT(Played(), 0);
}

TEST_F(TuneChoiceTest, StartsWithTheEditorsTuneUntilOneIsChosen)
{
    MakeTuneFiles(2);
    LoadTuneFiles();
    TuneChoice choice;
    choice.StartWithEditor();
    choice.Find("Tune 01");
    EXPECT_TRUE(choice.StartedWithEditor());
    EXPECT_TRUE(choice.ShowsEditorsTune());
    choice.Choose(2);
    EXPECT_FALSE(choice.StartedWithEditor());
    EXPECT_FALSE(choice.ShowsEditorsTune());
    choice.ChooseNothing();
    EXPECT_TRUE(choice.ShowsEditorsTune());
    choice.Play();
    EXPECT_EQ(Played(), 0);
}

TEST_F(TuneChoiceTest, PlaysWhatItCopiedFromTheEditor)
{
    MakeTuneFiles(1);
    LoadTuneFiles();
    Shared().CurrentTune = PlainTune("Mine", "Ann", 13);
    TuneChoice choice;
    choice.TakeEditorsTune(1);
    choice.Play();
    EXPECT_EQ(Played(), kLeadInFrames + 13);
}

} // namespace
} // namespace sprout
