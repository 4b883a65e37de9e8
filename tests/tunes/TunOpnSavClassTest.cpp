// SPDX-License-Identifier: GPL-3.0-or-later
#include "tunes/TunOpnSavClass.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "support/Flags.h"
#include "tunes/TuneFileDesk.h"

namespace sprout {
namespace {

TEST_F(TunOpnSavClassTest, WritesEveryElementInItsPlace)
{
    const std::string bytes = SaveBytes(MakeTune());
    EXPECT_EQ(ArrayOf(bytes), MakeArray().Elements());
    const std::string array = BytesOf(MakeArray().Elements());
    ASSERT_GT(bytes.size(), array.size() + 9);
    EXPECT_EQ(bytes.substr(bytes.size() - 9), std::string("\0\0\0\0EOF\r\n", 9));
    EXPECT_EQ(bytes.substr(bytes.size() - 9 - array.size() - 5, 5), "Data=");
    EXPECT_EQ(bytes.substr(0, 53), "TqTun\r\nFile Description=Tonquill Sprout Tune File\r\nSa");
}

TEST_F(TunOpnSavClassTest, LoadsWhatItSaved)
{
    SaveBytes(MakeTune());
    TunOpnSavClass().Load_Tune(Path());
    const Tune& tune = Shared().TuneClipboard;
    EXPECT_EQ(tune.Name, "Rain");
    EXPECT_EQ(tune.CreatedBy, "Ann");
    EXPECT_EQ(tune.Picture.Pixel(31, 31), 0x20U);
    EXPECT_EQ(tune.DateStamp, FileStamp(Path()));
    ASSERT_EQ(tune.StepCount, 4);
    for (std::int32_t i = 1; i <= 4; ++i) {
        EXPECT_EQ(At(tune.Steps, i).OnPos, i > 1 ? 1 : 0);
        EXPECT_EQ(At(tune.Steps, i).PitchShift, i);
        EXPECT_EQ(At(tune.Steps, i).Volume, 10 * i);
        EXPECT_EQ(At(tune.Steps, i).Duration, 100 * i);
    }
    EXPECT_TRUE(SamePicture(tune.Steps[1].StepBeat.Picture, Shared().DefaultTunePicture));
    EXPECT_FALSE(tune.Steps[1].StepBeat.Loaded);
    EXPECT_EQ(tune.Steps[2].StepBeat.Sound, WaveOf({5}));
    EXPECT_TRUE(tune.Steps[2].StepBeat.Loaded);
    EXPECT_EQ(tune.Steps[4].StepBeat.Name, "drum");
    EXPECT_EQ(tune.Steps[4].StepBeat.Sound, WaveOf({6}));
    EXPECT_EQ(tune.TuneWave, WaveOf({7, 8, 9}));
    EXPECT_TRUE(tune.TuneWaveValid);
    EXPECT_TRUE(services.messages.shown.empty());
}

TEST_F(TunOpnSavClassTest, StepsOfOneBeatShareItsSamplesAndPicture)
{
    SaveBytes(MakeTune());
    TunOpnSavClass().Load_Tune(Path());
    const Tune& tune = Shared().TuneClipboard;
    EXPECT_TRUE(tune.Steps[2].StepBeat.Sound.WavL.SharesBlockWith(tune.Steps[3].StepBeat.Sound.WavL));
    EXPECT_TRUE(SamePicture(tune.Steps[2].StepBeat.Picture, tune.Steps[3].StepBeat.Picture));
}

TEST_F(TunOpnSavClassTest, AnEmptyAuthorIsTwoElements)
{
    Tune tune = MakeTune();
    tune.Name.clear();
    tune.CreatedBy.clear();
    const Elements array = ArrayOf(SaveBytes(tune));
    EXPECT_EQ(Elements(array.begin() + 1, array.begin() + 6), (Elements{1, 0, 1, 0, 0x20}));
    TunOpnSavClass().Load_Tune(Path());
    EXPECT_EQ(Shared().TuneClipboard.CreatedBy, "");
}

TEST_F(TunOpnSavClassTest, ATuneWithNoStepOnHasItsSoundBehindItsSteps)
{
    Tune tune = MakeTune();
    for (TuneStep& step : tune.Steps)
        step.OnPos = 0;
    HandArray array;
    array.Text("Rain").Text("Ann").Picture(0x20).Add({4});
    for (std::int32_t i = 1; i <= 4; ++i)
        array.Add({0, i, 100 * i, 10 * i});
    array.Add({1, 6, 16, 1, 44100, 3, 0x00080007, 9});
    EXPECT_EQ(ArrayOf(SaveBytes(tune)), array.Elements());
}

TEST_F(TunOpnSavClassTest, AStepOfAnyValueBut1BringsNoBeat)
{
    Tune tune = MakeTune();
    tune.Steps[1].OnPos = 2;
    tune.Steps[1].StepBeat = MakeBeat("Ghost", 4);
    Elements expected = MakeArray().Elements();
    expected[1 + 4 + 4 + 1024 + 1] = 2; // after name, author, picture and step count
    EXPECT_EQ(ArrayOf(SaveBytes(tune)), expected);
    TunOpnSavClass().Load_Tune(Path());
    const TuneStep& step = Shared().TuneClipboard.Steps[1];
    EXPECT_EQ(step.OnPos, 2);
    EXPECT_EQ(step.StepBeat.Name, "");
    EXPECT_TRUE(SamePicture(step.StepBeat.Picture, Shared().DefaultTunePicture));
    EXPECT_TRUE(Shared().TuneClipboard.TuneWaveValid);
    EXPECT_TRUE(services.messages.shown.empty());
}

TEST_F(TunOpnSavClassTest, NamesInAnyAlphabetComeBack)
{
    Tune tune = MakeTune();
    tune.CreatedBy = "\xE9\x9B\xA8";
    tune.Steps[2].StepBeat.Name = "Caf\xC3\xA9";
    tune.Steps[3].StepBeat.Name = "Caf\xE9"; // another encoding of the same text
    tune.Steps[4].StepBeat.Name = "\xD0\xB1\xD0\xB0\xD1\x81";
    SaveBytes(tune);
    TunOpnSavClass().Load_Tune(Path());
    const Tune& loaded = Shared().TuneClipboard;
    EXPECT_EQ(loaded.CreatedBy, "\xE9\x9B\xA8");
    EXPECT_EQ(loaded.Steps[2].StepBeat.Name, "Caf\xC3\xA9");
    EXPECT_EQ(loaded.Steps[3].StepBeat.Name, "Caf\xC3\xA9");
    EXPECT_EQ(loaded.Steps[4].StepBeat.Name, "\xD0\xB1\xD0\xB0\xD1\x81");
    EXPECT_TRUE(loaded.TuneWaveValid);
    EXPECT_TRUE(services.messages.shown.empty());
}

TEST_F(TunOpnSavClassTest, AFileRenamedByHandTakesItsNewName)
{
    SaveBytes(MakeTune());
    fs::rename(Path(), Shared().UserTunes / "Snow.v2.TqTun");
    TunOpnSavClass().Load_Tune(Shared().UserTunes / "Snow.v2.TqTun");
    EXPECT_EQ(Shared().TuneClipboard.Name, "Snow.v2");
}

TEST_F(TunOpnSavClassTest, AnUnrenderedTuneComesBackAsRendered)
{
    Tune tune = MakeTune();
    tune.TuneWave = WaveData();
    SetTuneWaveValid(tune, false);
    SaveBytes(tune);
    TunOpnSavClass().Load_Tune(Path());
    EXPECT_TRUE(Shared().TuneClipboard.TuneWaveValid);
    EXPECT_EQ(Shared().TuneClipboard.TuneWave.Length, 0);
}

TEST_F(TunOpnSavClassTest, ModesReadOneBlockMoreEach)
{
    SaveBytes(MakeTune());
    TunOpnSavClass().Load_Tune(Path(), TuneLoad::List);
    EXPECT_EQ(Shared().TuneClipboard.Name, "Rain");
    EXPECT_EQ(Shared().TuneClipboard.CreatedBy, "Ann");
    EXPECT_EQ(Shared().TuneClipboard.Picture.Pixel(0, 0), 0x20U);
    EXPECT_EQ(Shared().TuneClipboard.StepCount, 0);
    EXPECT_EQ(Shared().TuneClipboard.Steps.size(), 1U);

    TunOpnSavClass().Load_Tune(Path(), TuneLoad::StepNames);
    EXPECT_EQ(Shared().TuneClipboard.Steps[4].StepBeat.Name, "drum");
    EXPECT_FALSE(Shared().TuneClipboard.Steps[4].StepBeat.Loaded);
    EXPECT_EQ(Shared().TuneClipboard.Steps[4].StepBeat.Sound.Length, 0);
    EXPECT_FALSE(Shared().TuneClipboard.TuneWaveValid);

    TunOpnSavClass().Load_Tune(Path(), TuneLoad::Beats);
    EXPECT_TRUE(Shared().TuneClipboard.Steps[4].StepBeat.Loaded);
    EXPECT_EQ(Shared().TuneClipboard.TuneWave.Length, 0);
    EXPECT_FALSE(Shared().TuneClipboard.TuneWaveValid);
    EXPECT_EQ(Shared().TuneClipboard.DateStamp, "");
}

TEST_F(TunOpnSavClassTest, TheListModeReadsNoSound)
{
    Tune tune = MakeTune();
    tune.TuneWave = WaveOf(std::vector<std::int16_t>(2'000'000, 1));
    SaveBytes(tune);
    const AllocationWatch watch;
    TunOpnSavClass().Load_Tune(Path(), TuneLoad::List);
    EXPECT_LT(watch.Largest(), 20'000U);
}

TEST_F(TunOpnSavClassTest, TheListModeTellsOfACutFileAllTheSame)
{
    const std::string bytes = SaveBytes(MakeTune());
    LoadBytes(bytes.substr(0, bytes.size() - 10), TuneLoad::List);
    ASSERT_EQ(services.messages.shown.size(), 1U);
    EXPECT_EQ(services.messages.shown[0].title, "Error Loading Tune File");
}

TEST_F(TunOpnSavClassTest, KnowsOriginalsByTheirAuthorsFirstLetters)
{
    const auto isOriginal = [](const std::string& author) {
        Tune tune;
        tune.CreatedBy = author;
        return IsOriginalTune(tune);
    };
    EXPECT_TRUE(isOriginal("Tonquill"));
    EXPECT_TRUE(isOriginal("tonQUILL team"));
    EXPECT_TRUE(isOriginal("Tonquillion"));
    EXPECT_FALSE(isOriginal("Tonquil"));
    EXPECT_FALSE(isOriginal(" Tonquill"));
    EXPECT_FALSE(isOriginal(""));
}

TEST_F(TunOpnSavClassTest, ReadingATuneChangesNoRecordOfTheProgram)
{
    const fs::path path = Shared().UserTunes / "Read.TqTun";
    WriteBytes(path, FileOf("TqTun", "2", MakeArray().Elements()));
    Shared().TuneClipboard = Tune();
    Shared().TuneClipboard.Name = "Before";
    const TuneReading reading = ReadTune(path);
    ASSERT_TRUE(reading.Record);
    EXPECT_TRUE(reading.IsWhole);
    EXPECT_FALSE(reading.Failure);
    EXPECT_EQ(reading.Record->Name, "Read");
    EXPECT_EQ(reading.Record->StepCount, 4);
    EXPECT_TRUE(reading.Record->TuneWaveValid);
    EXPECT_EQ(Shared().TuneClipboard.Name, "Before");
}

TEST_F(TunOpnSavClassTest, ReadingADamagedTuneGivesItsBeginningAndTheReasonWithoutAMessage)
{
    const fs::path path = Shared().UserTunes / "Cut.TqTun";
    std::vector<std::int32_t> elements = MakeArray().Elements();
    elements.resize(elements.size() - 9);
    elements[0] = static_cast<std::int32_t>(elements.size()) - 1;
    WriteBytes(path, FileOf("TqTun", "2", elements));
    const TuneReading reading = ReadTune(path);
    ASSERT_TRUE(reading.Record);
    EXPECT_EQ(reading.Record->CreatedBy, "Ann");
    EXPECT_FALSE(reading.IsWhole);
    ASSERT_TRUE(reading.Failure);
    EXPECT_EQ(reading.Failure->Title.English(), "Error Loading Tune File");
    EXPECT_TRUE(services.messages.shown.empty());
    TellFailure(reading);
    EXPECT_EQ(services.messages.shown.size(), 1U);
}

TEST_F(TunOpnSavClassTest, ReadingAFileThatCannotBeOpenedGivesNoRecord)
{
    const TuneReading reading = ReadTune(Shared().UserTunes / "Gone.TqTun");
    EXPECT_FALSE(reading.Record);
    EXPECT_FALSE(reading.IsWhole);
    ASSERT_TRUE(reading.Failure);
    EXPECT_EQ(reading.Failure->Title.English(), "Error Opening File");
}

TEST_F(TunOpnSavClassTest, SaysWhetherAllWasLoaded)
{
    const auto loads = [this](const std::string& bytes) {
        WriteBytes(Path(), bytes);
        return TunOpnSavClass(Flush::No).Load_Tune(Path());
    };
    const std::string whole = SaveBytes(MakeTune());
    EXPECT_TRUE(loads(whole));
    EXPECT_FALSE(loads(whole.substr(0, whole.size() - 10)));
    EXPECT_FALSE(loads(FileOf("TqTun", "3", MakeArray().Elements())));
    EXPECT_FALSE(loads(std::string(kMostIniBytes + 1, ' '))) << "an old-form tune that is too large";
    fs::remove(Path());
    EXPECT_FALSE(TunOpnSavClass().Load_Tune(Path()));
}

} // namespace
} // namespace sprout
