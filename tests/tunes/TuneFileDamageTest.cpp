// SPDX-License-Identifier: GPL-3.0-or-later
#include "tunes/TunOpnSavClass.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "tunes/TuneFileDesk.h"

namespace sprout {
namespace {

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

} // namespace
} // namespace sprout
