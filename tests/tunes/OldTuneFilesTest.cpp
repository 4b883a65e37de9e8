// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <filesystem>

#include "base/Errors.h"
#include "core/Paths.h"
#include "core/Shared.h"
#include "support/FakeServices.h"
#include "support/Flags.h"
#include "support/HandArray.h"
#include "tunes/TunOpnSavClass.h"
#include "waves/WavOperations.h"

namespace sprout {
namespace {

namespace fs = std::filesystem;

class OldTuneFilesTest : public testing::Test {
protected:
    static const Tune& Load(const std::string& text, TuneLoad mode = TuneLoad::All)
    {
        WriteBytes(Shared().UserTunes / "Old tune.TqTun", text);
        TunOpnSavClass().Load_Tune(Shared().UserTunes / "Old tune.TqTun", mode);
        return Shared().TuneClipboard;
    }

    static Tune LoadStar(const std::string& text)
    {
        WriteBytes(Shared().UserStars / "Star.TqSta", text);
        Tune tune;
        tune.Name = "Star";
        LoadStarFile(tune);
        return tune;
    }

    FakeServices services;
};

TEST_F(OldTuneFilesTest, ReadsEveryKeyOfATune)
{
    SaveWaveFile(WaveOf({1, 2}), Shared().UserBeats / "Bass, low.wav");
    WriteBytes(Shared().UserTunes / "Old tune.bmp", "picture");
    const Tune& tune = Load("[General]\r\nCreatedBy=Tonquill\r\n[StepCycle]\r\nNumberOfSteps=3\r\nOnPos=1,0,7\r\n"
                            "PitchShift=-64,64,5\r\nDuration=50,300,-7\r\nVolume=0,1000,25\r\n"
                            "Instruments=Bass, low|none|Bass, low\r\n");
    EXPECT_EQ(tune.Name, "Old tune");
    EXPECT_EQ(tune.CreatedBy, "Tonquill");
    EXPECT_EQ(tune.DateStamp, FileStamp(Shared().UserTunes / "Old tune.TqTun"));
    EXPECT_EQ(tune.Picture.Pixel(0, 0), 7U);
    ASSERT_EQ(tune.StepCount, 3);
    ASSERT_EQ(tune.Steps.size(), 4U);
    EXPECT_EQ(tune.Steps[1].OnPos, 1);
    EXPECT_EQ(tune.Steps[2].OnPos, 0);
    EXPECT_EQ(tune.Steps[3].OnPos, 1); // any value except 0 is on
    EXPECT_EQ(tune.Steps[1].PitchShift, -64);
    EXPECT_EQ(tune.Steps[2].PitchShift, 64);
    EXPECT_EQ(tune.Steps[2].Duration, 300);
    EXPECT_EQ(tune.Steps[3].Duration, -7);
    EXPECT_EQ(tune.Steps[2].Volume, 1000);
    EXPECT_EQ(tune.Steps[3].Volume, 25);
    EXPECT_EQ(tune.Steps[1].StepBeat.Name, "Bass, low");
    EXPECT_EQ(tune.Steps[2].StepBeat.Name, "");
    EXPECT_TRUE(tune.Steps[1].StepBeat.Sound.WavL.SharesBlockWith(tune.Steps[3].StepBeat.Sound.WavL));
    EXPECT_FALSE(tune.TuneWaveValid);
    EXPECT_TRUE(services.messages.shown.empty());
}

TEST_F(OldTuneFilesTest, FindsThePictureOfATuneOfTheClassBesideIt)
{
    Shared().ClassRoot = services.folder.Path() / "class" / "";
    const fs::path tunes = Shared().ClassRoot / "Tunes";
    fs::create_directories(tunes);
    WriteBytes(tunes / "Bells.TqTun", "[General]\r\n");
    WriteBytes(tunes / "Bells.bmp", "picture");
    TunOpnSavClass().Load_Tune(tunes / "Bells.TqTun", TuneLoad::List);
    EXPECT_EQ(Shared().TuneClipboard.Name, "Bells");
    EXPECT_EQ(Shared().TuneClipboard.Picture.Pixel(0, 0), 7U);
}

TEST_F(OldTuneFilesTest, GivesDefaultsToAnEmptyFile)
{
    const Tune& tune = Load("");
    EXPECT_EQ(tune.CreatedBy, "???");
    EXPECT_TRUE(SamePicture(tune.Picture, Shared().DefaultTunePicture));
    ASSERT_EQ(tune.StepCount, 16);
    for (std::size_t i = 1; i <= 16; ++i) {
        EXPECT_EQ(tune.Steps[i].OnPos, 0);
        EXPECT_EQ(tune.Steps[i].PitchShift, 0);
        EXPECT_EQ(tune.Steps[i].Duration, 100);
        EXPECT_EQ(tune.Steps[i].Volume, 100);
        EXPECT_EQ(tune.Steps[i].StepBeat.Name, "");
    }
}

TEST_F(OldTuneFilesTest, ABeatNamedZeroStandsInWhereNoInstrumentsAreNamed)
{
    SaveWaveFile(WaveOf({1}), Shared().UserBeats / "0.wav");
    const Tune& tune = Load("[StepCycle]\r\nNumberOfSteps=2\r\n");
    EXPECT_EQ(tune.Steps[2].StepBeat.Name, "0");
}

TEST_F(OldTuneFilesTest, LimitsTheNumberOfSteps)
{
    const std::pair<const char*, std::int32_t> counts[] = {{"1", 1},   {"256", 256}, {"257", 256}, {"0", 16},
                                                           {"-5", 16}, {"word", 16}, {"2.5", 2},   {"", 16}};
    for (const auto& [text, count] : counts)
        EXPECT_EQ(Load(std::string("[StepCycle]\r\nNumberOfSteps=") + text + "\r\n").StepCount, count) << text;
}

TEST_F(OldTuneFilesTest, CutsAndPadsListsBeforeItLooksAtTheirValues)
{
    const Tune& tune = Load("[StepCycle]\r\nNumberOfSteps=3\r\nOnPos=1,1,1,1\r\nPitchShift=65,-65.4,\r\n"
                            "Duration=50\r\nVolume=1001,-1,2.5\r\n");
    EXPECT_EQ(tune.Steps[3].OnPos, 1);
    EXPECT_EQ(tune.Steps[1].PitchShift, 0);
    EXPECT_EQ(tune.Steps[2].PitchShift, 0);
    EXPECT_EQ(tune.Steps[1].Duration, 50);
    EXPECT_EQ(tune.Steps[2].Duration, 0); // a padded value is 0
    EXPECT_EQ(tune.Steps[1].Volume, 0);
    EXPECT_EQ(tune.Steps[2].Volume, 0);
    EXPECT_EQ(tune.Steps[3].Volume, 2); // ties to even
}

TEST_F(OldTuneFilesTest, RoundsBeforeItTests)
{
    const Tune& tune = Load("[StepCycle]\r\nNumberOfSteps=3\r\nOnPos=0.4,0.5,0.6\r\nPitchShift=64.5,-64.4,64.6\r\n");
    EXPECT_EQ(tune.Steps[1].OnPos, 0);
    EXPECT_EQ(tune.Steps[2].OnPos, 0);
    EXPECT_EQ(tune.Steps[3].OnPos, 1);
    EXPECT_EQ(tune.Steps[1].PitchShift, 64);
    EXPECT_EQ(tune.Steps[2].PitchShift, -64);
    EXPECT_EQ(tune.Steps[3].PitchShift, 0);
}

TEST_F(OldTuneFilesTest, AnEmptyKeyIsAListOfNoValues)
{
    const Tune& tune = Load("[StepCycle]\r\nNumberOfSteps=2\r\nDuration=\r\nVolume=\r\n");
    EXPECT_EQ(tune.Steps[1].Duration, 0);
    EXPECT_EQ(tune.Steps[2].Volume, 0);
}

TEST_F(OldTuneFilesTest, EveryListModeReadsNameAuthorAndPictureOnly)
{
    for (const TuneLoad mode : {TuneLoad::List, TuneLoad::StepNames, TuneLoad::Beats}) {
        const Tune& tune = Load("[General]\r\nCreatedBy=Ann\r\n[StepCycle]\r\nNumberOfSteps=3\r\n", mode);
        EXPECT_EQ(tune.Name, "Old tune");
        EXPECT_EQ(tune.CreatedBy, "Ann");
        EXPECT_EQ(tune.StepCount, 0);
        EXPECT_EQ(tune.Steps.size(), 1U);
        EXPECT_EQ(tune.DateStamp, "");
    }
}

TEST_F(OldTuneFilesTest, TellsOfANumberBeyondAllNumbers)
{
    Load("[StepCycle]\r\nNumberOfSteps=2\r\nVolume=1e99,1\r\n");
    ASSERT_EQ(services.messages.shown.size(), 1U);
    EXPECT_EQ(services.messages.shown[0].title, "Error Opening File");
}

TEST_F(OldTuneFilesTest, DropsSixLettersFromTheFileNameWhateverTheyAre)
{
    for (const auto& [file, name] : {std::pair("12345678.txt", "123456"), std::pair("abc", "")}) {
        WriteBytes(Shared().UserTunes / file, "[StepCycle]\r\n");
        TunOpnSavClass().Load_Tune(Shared().UserTunes / file, TuneLoad::List);
        EXPECT_EQ(Shared().TuneClipboard.Name, name);
    }
}

TEST_F(OldTuneFilesTest, ReadsAStar)
{
    SaveWaveFile(WaveOf({1}), Shared().UserBeats / "Drum.wav");
    WriteBytes(Shared().UserStars / "Star.bmp", "12345");
    const Tune star = LoadStar("[StepCycle]\r\nNumberOfSteps=2\r\nOnPos=0,1\r\nInstruments=Drum|Drum\r\n");
    EXPECT_EQ(star.Name, "Star");
    EXPECT_EQ(star.CreatedBy, "???");
    EXPECT_EQ(star.DateStamp, FileStamp(Shared().UserStars / "Star.TqSta"));
    EXPECT_EQ(star.Picture.Pixel(0, 0), 5U);
    ASSERT_EQ(star.StepCount, 2);
    EXPECT_EQ(star.Steps[2].OnPos, 1);
    EXPECT_EQ(star.Steps[2].StepBeat.Name, ""); // a star has no beats
}

TEST_F(OldTuneFilesTest, AStarBringsItsOwnAuthorAndNoSoundOfTheTuneBefore)
{
    WriteBytes(Shared().UserStars / "Star.TqSta", "[General]\r\nCreatedBy=Ann\r\n");
    Tune star;
    star.Name = "Star";
    star.CreatedBy = "before";
    star.TuneWave = WaveOf({1});
    SetTuneWaveValid(star, true);
    LoadStarFile(star);
    EXPECT_EQ(star.CreatedBy, "Ann");
    EXPECT_EQ(star.TuneWave, WaveData());
    EXPECT_FALSE(star.TuneWaveValid);
}

TEST_F(OldTuneFilesTest, AMissingStarBecomesSixteenSilentStepsWithoutLength)
{
    for (const std::string_view name :
         {std::string_view(""), std::string_view("None"), std::string_view("../x"), std::string_view("a\0b", 3)}) {
        Tune star;
        star.Name = name;
        star.CreatedBy = "before";
        star.DateStamp = "before";
        star.TuneWave = WaveOf({1});
        SetTuneWaveValid(star, true);
        LoadStarFile(star);
        EXPECT_EQ(star.Name, name);
        EXPECT_EQ(star.CreatedBy, "");
        EXPECT_EQ(star.DateStamp, "");
        EXPECT_TRUE(SamePicture(star.Picture, Shared().DefaultTunePicture));
        EXPECT_FALSE(star.TuneWaveValid);
        EXPECT_EQ(star.TuneWave.Length, 0);
        ASSERT_EQ(star.StepCount, 16);
        EXPECT_EQ(star.Steps[16].Volume, 100);
        EXPECT_EQ(star.Steps[16].Duration, 0);
        EXPECT_EQ(star.Steps[16].PitchShift, 0);
        EXPECT_FALSE(star.Steps[16].StepWaveValid);
    }
}

TEST_F(OldTuneFilesTest, AStarWithANumberBeyondAllNumbersIsAnError)
{
    EXPECT_THROW(LoadStar("[StepCycle]\r\nNumberOfSteps=1e99\r\n"), RunTimeError);
}

} // namespace
} // namespace sprout
