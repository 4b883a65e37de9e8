// SPDX-License-Identifier: GPL-3.0-or-later
#include "tunes/TunOpnSavClass.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "base/Errors.h"
#include "core/IniFile.h"
#include "core/Paths.h"
#include "core/Shared.h"
#include "support/AllocationWatch.h"
#include "support/FakeServices.h"
#include "support/HandArray.h"
#include "waves/WavOperations.h"

namespace sprout {
namespace {

namespace fs = std::filesystem;
using Elements = std::vector<std::int32_t>;

Beat MakeBeat(const std::string& name, std::int16_t sample)
{
    return {name, "01/02/2003,04:05:06", WaveOf({sample}), PlainPicture(0x30), true};
}

/// Off, on with "Drum", on with "Drum", on with "drum".
Tune MakeTune()
{
    Tune tune;
    tune.Name = "Rain";
    tune.CreatedBy = "Ann";
    tune.Picture = PlainPicture(0x20);
    tune.Steps.resize(5);
    tune.StepCount = 4;
    for (std::int32_t i = 1; i <= 4; ++i)
        At(tune.Steps, i) = {i > 1 ? 1 : 0, 0, i, 10 * i, 100 * i, {}, {}, false};
    tune.Steps[2].StepBeat = MakeBeat("Drum", 5);
    tune.Steps[3].StepBeat = tune.Steps[2].StepBeat;
    tune.Steps[4].StepBeat = MakeBeat("drum", 6);
    tune.TuneWave = WaveOf({7, 8, 9});
    return tune;
}

/// `MakeTune` as it must look in a file that includes its beats.
HandArray MakeArray()
{
    HandArray array;
    array.Text("Rain").Text("Ann").Picture(0x20).Add({4});
    array.Add({0, 1, 100, 10}).Add({1, 2, 200, 20}).Add({1, 3, 300, 30}).Add({1, 4, 400, 40});
    array.Text("Drum").Text("Drum").Text("drum");
    array.Add({1}).Text("01/02/2003,04:05:06").Add({5, 16, 1, 44100, 1, 5}).Picture(0x30);
    array.Add({1}).Text("01/02/2003,04:05:06").Add({5, 16, 1, 44100, 1, 6}).Picture(0x30);
    array.Add({1}).Add({6, 16, 1, 44100, 3, 0x00080007, 9});
    return array;
}

class TunOpnSavClassTest : public testing::Test {
protected:
    [[nodiscard]] fs::path Path() const { return Shared().UserTunes / "Rain.TqTun"; }

    const Tune& LoadBytes(const std::string& bytes, TuneLoad mode = TuneLoad::All)
    {
        fs::remove(Path()); // emptying and rewriting a file would wait for the disk
        WriteBytes(Path(), bytes);
        TunOpnSavClass().Load_Tune(Path(), mode);
        return Shared().TuneClipboard;
    }

    std::string SaveBytes(const Tune& tune)
    {
        Shared().TuneClipboard = tune;
        TunOpnSavClass(Flush::No).Save_Tune(Path());
        return ReadBytes(Path());
    }

    FakeServices services;
};

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
    tune.TuneWaveValid = false;
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

TEST_F(TunOpnSavClassTest, ForeignVersionsLoadAsAnEmptyTuneWithoutAMessage)
{
    for (const char* version : {"1", "1.1", "3", "-2"}) {
        Shared().TuneClipboard = MakeTune();
        const Tune& tune = LoadBytes(FileOf("TqTun", version, MakeArray().Elements()));
        EXPECT_EQ(tune.Name, "") << version;
        EXPECT_EQ(tune.StepCount, 0);
        EXPECT_EQ(tune.Steps.size(), 1U);
    }
    EXPECT_TRUE(services.messages.shown.empty());
}

TEST_F(TunOpnSavClassTest, ReadsVersionsByTheirNumber)
{
    for (const char* version : {"2", "2.0", " 2x", "2.00000001"}) {
        EXPECT_EQ(LoadBytes(FileOf("TqTun", version, MakeArray().Elements())).StepCount, 4) << version;
        Shared().TuneClipboard = Tune();
    }
}

TEST_F(TunOpnSavClassTest, TellsWhenTheDataAreMissing)
{
    LoadBytes("TqTun\r\nFile Version=2\r\n" + std::string(100, ' '));
    const FakeMessages::Shown told{"Error Loading Tune File", "Failed to find Data", MessageIcon::None};
    EXPECT_EQ(services.messages.shown, std::vector{told});
}

TEST_F(TunOpnSavClassTest, AMissingFileGivesABlankTune)
{
    fs::create_directory(Shared().UserTunes / "folder.TqTun");
    fs::create_symlink(Shared().UserTunes / "nowhere", Shared().UserTunes / "link.TqTun");
    for (const char* name : {"None.TqTun", "folder.TqTun", "link.TqTun"}) {
        Shared().TuneClipboard = MakeTune();
        TunOpnSavClass().Load_Tune(Shared().UserTunes / name);
        EXPECT_EQ(Shared().TuneClipboard.StepCount, 16) << name;
        EXPECT_TRUE(SamePicture(Shared().TuneClipboard.Picture, Shared().BlankPic));
    }
    EXPECT_TRUE(services.messages.shown.empty());
}

TEST_F(TunOpnSavClassTest, FindsAFileWhateverItsLetterCase)
{
    SaveBytes(MakeTune());
    TunOpnSavClass().Load_Tune(Shared().UserTunes / "rain.tqtun");
    EXPECT_EQ(Shared().TuneClipboard.StepCount, 4);
}

TEST_F(TunOpnSavClassTest, KeepsWhatWasReadBeforeAnError)
{
    Elements elements = MakeArray().Elements();
    elements.resize(1 + 3 + 3 + 1024 + 1 + 2 * 4);
    elements[0] = static_cast<std::int32_t>(elements.size()) - 1;
    const Tune& tune = LoadBytes(FileOf("TqTun", "2", elements));
    EXPECT_EQ(tune.Name, "Rain");
    EXPECT_EQ(tune.CreatedBy, "Ann");
    EXPECT_EQ(tune.Steps.size(), static_cast<std::size_t>(tune.StepCount) + 1);
    ASSERT_EQ(services.messages.shown.size(), 1U);
    EXPECT_EQ(services.messages.shown[0].title, "Error Loading Tune File");
}

TEST_F(TunOpnSavClassTest, AFileCutAnywhereTellsOrLoadsButNeverBreaks)
{
    const std::string bytes = FileOf("TqTun", "2", MakeArray().Elements());
    constexpr std::size_t stride = 13; // reaches every byte of an element; the head and the texts are cut at each byte
    for (std::size_t size = 0; size < bytes.size(); size += size < 200 ? 1 : stride) {
        services.messages.shown.clear();
        const Tune& tune = LoadBytes(bytes.substr(0, size));
        EXPECT_EQ(tune.Steps.size(), static_cast<std::size_t>(tune.StepCount) + 1);
        const bool behindTheHead = size > bytes.find("File Version=2\r\n") + 100;
        if (behindTheHead && size < bytes.size() - 9) {
            EXPECT_EQ(services.messages.shown.size(), 1U) << size;
        }
    }
}

TEST_F(TunOpnSavClassTest, AnyElementMayLie)
{
    const Elements array = MakeArray().Elements();
    std::vector<std::size_t> places;
    for (std::size_t i = 0; i < array.size(); ++i)
        if (i < 8 || (i > 1030 && i < 1080) || (i > 2090 && i < 2110) || i > 3120)
            places.push_back(i);
    for (const std::size_t place : places)
        for (const std::int32_t lie : {0, 1, -1, 2, 5, 1000, 2147483647, -2147483647 - 1}) {
            Elements lying = array;
            lying[place] = lie;
            const std::string bytes = FileOf("TqTun", "2", lying);
            const AllocationWatch watch;
            const Tune& tune = LoadBytes(bytes);
            EXPECT_EQ(tune.Steps.size(), static_cast<std::size_t>(tune.StepCount) + 1);
            EXPECT_LT(watch.Largest(), 1'000'000U) << place;
        }
}

TEST_F(TunOpnSavClassTest, BeatsStayOutsideOnlyWhereTheirWaveIsThere)
{
    Shared().SongBeatsInside = false;
    SaveWaveFile(WaveOf({50, 51}), Shared().UserBeats / "Drum.wav");
    Tune tune = MakeTune();
    tune.Steps[4].StepBeat.Name = "bass";
    HandArray array;
    array.Text("Rain").Text("Ann").Picture(0x20).Add({4});
    array.Add({0, 1, 100, 10}).Add({1, 2, 200, 20}).Add({1, 3, 300, 30}).Add({1, 4, 400, 40});
    array.Text("Drum").Text("Drum").Text("bass").Add({0});
    array.Add({1}).Text("01/02/2003,04:05:06").Add({5, 16, 1, 44100, 1, 6}).Picture(0x30).Add({0});
    EXPECT_EQ(ArrayOf(SaveBytes(tune)), array.Elements());

    TunOpnSavClass().Load_Tune(Path());
    const Tune& loaded = Shared().TuneClipboard;
    EXPECT_EQ(loaded.Steps[2].StepBeat.Sound, WaveOf({50, 51}));
    EXPECT_TRUE(loaded.Steps[2].StepBeat.Sound.WavL.SharesBlockWith(loaded.Steps[3].StepBeat.Sound.WavL));
    EXPECT_EQ(loaded.Steps[4].StepBeat.Sound, WaveOf({6}));
}

TEST_F(TunOpnSavClassTest, ABeatThatIsNowhereLeavesItsStepsOnAndEmpty)
{
    Shared().SongBeatsInside = false;
    SaveWaveFile(WaveOf({50, 51}), Shared().UserBeats / "Drum.wav");
    SaveBytes(MakeTune());
    DeleteFile(Shared().UserBeats / "Drum.wav");
    TunOpnSavClass().Load_Tune(Path());
    const Tune& tune = Shared().TuneClipboard;
    for (const std::size_t step : {2U, 3U}) {
        EXPECT_EQ(tune.Steps[step].OnPos, 1);
        EXPECT_EQ(tune.Steps[step].StepBeat.Name, "");
        EXPECT_FALSE(tune.Steps[step].StepBeat.Loaded);
    }
    EXPECT_TRUE(services.messages.shown.empty());
}

TEST_F(TunOpnSavClassTest, OnlyAFlagOf1MeansThatABeatOrTheSoundIsStored)
{
    SaveWaveFile(WaveOf({50}), Shared().UserBeats / "Drum.wav");
    HandArray array;
    array.Text("Rain").Text("Ann").Picture(0x20).Add({1}).Add({1, 0, 100, 100}).Text("Drum");
    array.Add({2}).Add({2}).Add({5, 16, 1, 44100, 1, 7});
    const Tune& tune = LoadBytes(FileOf("TqTun", "2", array.Elements()));
    EXPECT_EQ(tune.Steps[1].StepBeat.Sound, WaveOf({50}));
    EXPECT_FALSE(tune.TuneWaveValid);
    EXPECT_EQ(tune.TuneWave.Length, 0);
    EXPECT_TRUE(services.messages.shown.empty());
}

TEST_F(TunOpnSavClassTest, AFailedSaveThrowsAndLeavesEverythingAsItWas)
{
    SaveBytes(MakeTune());
    const std::string before = ReadBytes(Path());
    EXPECT_THROW(TunOpnSavClass().Save_Tune(Shared().UserTunes / "no folder" / "in it" / "x.TqTun"), RunTimeError);
    EXPECT_THROW(TunOpnSavClass().Save_Tune(Shared().UserTunes), RunTimeError);
    EXPECT_EQ(ReadBytes(Path()), before);
    EXPECT_FALSE(fs::exists(Shared().UserTunes / "no folder"));
    std::size_t files = 0;
    for ([[maybe_unused]] const auto& entry : fs::directory_iterator(Shared().UserTunes))
        ++files;
    EXPECT_EQ(files, 1U);
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
