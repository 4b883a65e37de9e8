// SPDX-License-Identifier: GPL-3.0-or-later
#include "beat_window/LibraryCommandsTest.h"

#include "beats/BeatFiles.h"
#include "core/Settings.h"
#include "sound/ChosenSound.h"

namespace sprout {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kAddHint = "Choose a wav file and small (32x32) bmp picture file";

using AddBeatTest = LibraryCommandsTest;

TEST_F(AddBeatTest, AddsAPairAndSelectsIt)
{
    Open();
    Add(Chosen("Bell.wav"), Chosen("Picture.bmp"));
    EXPECT_THAT(told,
                ElementsAre(std::string("Select a .wav file to add as a new beat.|") + kAddHint,
                            std::string("Now select a picture (32x32) file to use for this new beat.|") + kAddHint));
    EXPECT_EQ(FilesOfUserBeats(), "Bell.bmp Bell.wav original.bmp original.wav ");
    EXPECT_EQ(ReadBytes(Shared().UserBeats / "Bell.wav"), ReadBytes(Chosen("Bell.wav")));
    EXPECT_EQ(ListedNames(), "original Bell ");
    EXPECT_EQ(TextOf("NmLbl"), "Bell");
    EXPECT_THAT(services.messages.shown, IsEmpty());
    EXPECT_THAT(IndexText(), testing::HasSubstr("original=1\r\n")) << "the order was written";
}

TEST_F(AddBeatTest, AsksForTheTwoFilesInTheirFolders)
{
    PutSetting("General", "WavFileSelPath", "/waves/");
    Open();
    Add(Chosen("Bell.wav"), Chosen("Picture.bmp"));
    ASSERT_EQ(questions.size(), 2U);
    EXPECT_EQ(questions[0].Title.English(), "Please select a .wav file to use");
    EXPECT_EQ(questions[0].Folder, "/waves/");
    EXPECT_EQ(questions[0].FileName, "");
    EXPECT_EQ(questions[0].DefaultExtension, "wav");
    EXPECT_EQ(questions[0].Filter.English(), "Wave files(*.wav)|*.wav|All files|*.*|" + kOtherSoundsFilter.English());
    EXPECT_EQ(questions[0].FilterIndex, 3) << "every sound is shown at first, .wav among them";
    EXPECT_EQ(questions[1].Title.English(), "Please select a picture file (32x32) to use");
    EXPECT_EQ(questions[1].Folder, "/install/Stars/");
    EXPECT_EQ(questions[1].DefaultExtension, "bmp");
    EXPECT_EQ(questions[1].Filter.English(),
              "Picture files(*.bmp;*.jpg;*.gif;*.png)|*.bmp;*.jpg;*.gif;*.png|All files|*.*");
    const std::string folder = services.folder.Path().native() + "/";
    EXPECT_EQ(GetSetting("General", "WavFileSelPath", ""), folder);
    EXPECT_EQ(GetSetting("General", "PictureSelectPath", ""), folder);
}

TEST_F(AddBeatTest, GuidesOnlyUntilOneBeatWasAdded)
{
    Open();
    Add(Chosen("Bell.wav"), std::nullopt);
    Add(Chosen("Bell.wav"), Chosen("Picture.bmp"));
    EXPECT_EQ(told.size(), 2U) << "nothing was added the first time";
    SaveWaveFile(QuietWave(5), Chosen("Other.wav"));
    Open();
    Add(Chosen("Other.wav"), Chosen("Picture.bmp"));
    EXPECT_THAT(told, IsEmpty());
}

TEST_F(AddBeatTest, TellsOfTheTrimmingAndStoresTheWholeWave)
{
    SaveWaveFile(QuietWave(10 * 11025), Chosen("Long.wav"));
    Open();
    Add(Chosen("Long.wav"), Chosen("Picture.bmp"));
    ASSERT_EQ(told.size(), 3U);
    EXPECT_EQ(told[1],
              std::string("The duration of this file is 10 seconds,|This will be trimmed to 3 seconds.|") + kAddHint);
    EXPECT_EQ(LoadWaveFile(Shared().UserBeats / "Long.wav").Length, 10 * 11025);
    EXPECT_EQ(TextOf("DurLbl"), "3.0 Sec");
    Click(*window, "TestPlayBtn");
    EXPECT_EQ(play.PlayLength, 3 * 11025);
    Beat inTune;
    LoadBeatFile(inTune, "long");
    EXPECT_EQ(inTune.Sound.Length, 5 * 11025);
}

TEST_F(AddBeatTest, DoesNotTellOfThreeSeconds)
{
    SaveWaveFile(QuietWave(3 * 11025), Chosen("Three.wav"));
    Open();
    Add(Chosen("Three.wav"), Chosen("Picture.bmp"));
    EXPECT_EQ(told.size(), 2U);
}

TEST_F(AddBeatTest, TellsTheNewNameWhereTheOldOneIsTaken)
{
    MakeBeat("bell", 10);
    BeatLibraryCommands::AddHelpShown = true;
    Open();
    Add(Chosen("Bell.wav"), Chosen("Picture.bmp"));
    EXPECT_THAT(told, ElementsAre("\"bell\" already exists|New beat is added as New1Bell|"));
    EXPECT_EQ(TextOf("NmLbl"), "New1Bell");
    Add(Chosen("Bell.wav"), Chosen("Picture.bmp"));
    EXPECT_THAT(told, ElementsAre("\"bell\" already exists|New beat is added as New2Bell|"));
    EXPECT_EQ(FilesOfUserBeats(), "New1Bell.bmp New1Bell.wav New2Bell.bmp New2Bell.wav bell.bmp bell.wav original.bmp "
                                  "original.wav ");
}

TEST_F(AddBeatTest, EndsSilentlyWhenTheFirstDialogIsCancelled)
{
    Open();
    Add(std::nullopt, std::nullopt);
    EXPECT_EQ(questions.size(), 1U);
    EXPECT_EQ(told.size(), 1U);
    EXPECT_EQ(GetSetting("General", "WavFileSelPath", "none"), "none");
    EXPECT_EQ(FilesOfUserBeats(), "original.bmp original.wav ");
    EXPECT_THAT(services.messages.shown, IsEmpty());
}

TEST_F(AddBeatTest, LeavesTheFolderAsItWasWhenThePictureIsCancelledButKeepsTheWavesFolder)
{
    Open();
    const std::string index = IndexText();
    Add(Chosen("Bell.wav"), std::nullopt);
    EXPECT_EQ(questions.size(), 2U);
    EXPECT_EQ(FilesOfUserBeats(), "original.bmp original.wav ");
    EXPECT_EQ(IndexText(), index);
    EXPECT_EQ(GetSetting("General", "WavFileSelPath", ""), services.folder.Path().native() + "/");
    EXPECT_EQ(GetSetting("General", "PictureSelectPath", "none"), "none");
    EXPECT_THAT(services.messages.shown, IsEmpty());
}

TEST_F(AddBeatTest, NeverProtectsANewBeat)
{
    Open();
    Add(Chosen("Bell.wav"), Chosen("Picture.bmp"));
    EXPECT_FALSE(Grid().Entry(2).Original);
    EXPECT_TRUE(Grid().Entry(1).Original);
}

} // namespace
} // namespace sprout
