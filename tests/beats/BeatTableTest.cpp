// SPDX-License-Identifier: GPL-3.0-or-later
#include "beats/BeatTable.h"

#include <gmock/gmock.h>

#include "beat_window/BeatFolderMaker.h"
#include "beats/BeatFiles.h"
#include "support/FakeServices.h"

namespace sprout {
namespace {

using testing::ElementsAre;

class BeatTableTest : public testing::Test {
protected:
    void Load(std::string_view wanted = "") { LoadBeatFiles(table, wanted); }

    std::vector<std::string> Names() const
    {
        std::vector<std::string> names;
        for (std::int32_t i = 1; i <= table.BeatListCount; ++i)
            names.push_back(At(table.BeatList, i).Name);
        return names;
    }

    /// `count` beats called 001, 002, ... in memory.
    void FillWith(int count)
    {
        table = BeatTable();
        for (int i = 1; i <= count; ++i) {
            table.BeatList.emplace_back().Name = std::to_string(i);
            table.BeatProtected.push_back(i % 2 == 1);
        }
        table.BeatListCount = count;
    }

    FakeServices services;
    BeatTable table;
};

using LoadBeatFilesTest = BeatTableTest;
using LoadBeatSoundTest = BeatTableTest;
using MoveBeatTest = BeatTableTest;
using SaveBeatOrderTest = BeatTableTest;

TEST_F(LoadBeatFilesTest, ListsBeatsInLowerCaseWithTheirPicturesAndWithoutSound)
{
    MakeBeat("Drum", 100, 3);
    MakeBeat("bell", 100, 4);
    Load();
    EXPECT_THAT(Names(), ElementsAre("bell", "drum"));
    EXPECT_EQ(At(table.BeatList, 1).Picture.Pixel(0, 0), 4U);
    EXPECT_EQ(At(table.BeatList, 2).Picture.Pixel(0, 0), 3U);
    EXPECT_FALSE(At(table.BeatList, 1).Loaded);
    EXPECT_EQ(table.BeatList.size(), 3U);
    EXPECT_EQ(services.screen.hourglasses, 0);
}

TEST_F(LoadBeatFilesTest, MakesEveryBeatAnOriginalAtTheFirstUse)
{
    MakeBeat("drum");
    Load();
    MakeBeat("added");
    Load();
    EXPECT_THAT(Names(), ElementsAre("added", "drum"));
    EXPECT_THAT(table.BeatProtected, ElementsAre(false, false, true));
}

TEST_F(LoadBeatFilesTest, MakesEveryBeatAnOriginalWhenTheIndexWasDeleted)
{
    MakeBeat("drum");
    Load();
    MakeBeat("added");
    std::filesystem::remove(Shared().UserBeats / "TqBeats.ini");
    Load();
    EXPECT_THAT(table.BeatProtected, ElementsAre(false, true, true));
}

TEST_F(LoadBeatFilesTest, ProtectsOriginalsWhateverTheirLetterCase)
{
    WriteBytes(Shared().UserBeats / "TqBeats.ini",
               "[General]\r\nProtected=1\r\nProtectedNos=1\r\n[Protected]\r\nFile1=GLÖCKCHEN\r\n");
    MakeBeat("Glöckchen");
    Load();
    EXPECT_TRUE(table.BeatProtected[1]);
}

TEST_F(LoadBeatFilesTest, SortsByTheNumbersOfTheIndexAndLeavesTheRestAlphabetical)
{
    WriteBytes(Shared().UserBeats / "TqBeats.ini",
               "[SortOrder]\r\nd=1\r\nb=7\r\nA=7\r\nlast=2000000\r\nnone=x\r\nrounded=6.6\r\n");
    for (const char* name : {"a", "b", "c", "d", "e", "last", "none", "rounded"})
        MakeBeat(name, 10);
    Load();
    EXPECT_THAT(Names(), ElementsAre("none", "d", "a", "b", "rounded", "c", "e", "last"));
}

TEST_F(LoadBeatFilesTest, SelectsTheWantedBeatElseTheFirst)
{
    MakeBeat("a", 10);
    MakeBeat("b", 10);
    for (const auto& [wanted, index] : {std::pair("B", 2), std::pair("", 1), std::pair("gone", 1)}) {
        table.SelectedBeat = 0;
        Load(wanted);
        EXPECT_EQ(table.SelectedBeat, index) << wanted;
    }
}

TEST_F(LoadBeatFilesTest, KeepsASelectionThatTheListStillHas)
{
    MakeBeat("a", 10);
    MakeBeat("b", 10);
    table.SelectedBeat = 2;
    Load("a");
    EXPECT_EQ(table.SelectedBeat, 2);
    table.SelectedBeat = 3;
    Load("b");
    EXPECT_EQ(table.SelectedBeat, 2);
}

TEST_F(LoadBeatFilesTest, FindsTheBeatOfACommandAgain)
{
    MakeBeat("a", 10);
    MakeBeat("b", 10);
    table.SelectedBeat = kRefindBeat;
    table.RefindBeatName = "B";
    Load("a");
    EXPECT_EQ(table.SelectedBeat, 2);
    table.SelectedBeat = kRefindBeat;
    table.RefindBeatName = "gone";
    Load("b");
    EXPECT_EQ(table.SelectedBeat, 1);
}

TEST_F(LoadBeatFilesTest, SelectsNothingInAnEmptyFolder)
{
    table.SelectedBeat = kRefindBeat;
    Load("drum");
    EXPECT_EQ(table.SelectedBeat, 0);
    EXPECT_EQ(table.BeatListCount, 0);
    EXPECT_FALSE(HasSelection(table));
}

TEST_F(LoadBeatFilesTest, TellsOfADamagedPictureAndListsTheBeatWithTheDefaultOne)
{
    MakeBeat("drum");
    WriteBytes(Shared().UserBeats / "drum.bmp", "bad");
    Load();
    ASSERT_EQ(services.messages.shown.size(), 1U);
    EXPECT_EQ(services.messages.shown[0].title, "Error Loading Picture");
    EXPECT_TRUE(SamePicture(At(table.BeatList, 1).Picture, Shared().DefaultTunePicture));
}

TEST_F(LoadBeatFilesTest, ReadsTheIndexOnceAndWritesItOnlyAtTheFirstUse)
{
    for (int i = 0; i < 5; ++i)
        MakeBeat("beat" + std::to_string(i), 10);
    Load();
    SetWrittenIn2020(Shared().UserBeats / "TqBeats.ini", 1);
    const auto written = std::filesystem::last_write_time(Shared().UserBeats / "TqBeats.ini");
    Load();
    EXPECT_EQ(std::filesystem::last_write_time(Shared().UserBeats / "TqBeats.ini"), written);
}

TEST_F(LoadBeatSoundTest, ReadsAtMostThreeSeconds)
{
    MakeBeat("long", 10 * 11025);
    MakeBeat("three", 3 * 11025);
    Load();
    LoadBeatSound(table, 1);
    LoadBeatSound(table, 2);
    EXPECT_EQ(At(table.BeatList, 1).Sound.Length, 3 * 11025);
    EXPECT_EQ(At(table.BeatList, 1).Sound.Rate, 11025);
    EXPECT_EQ(At(table.BeatList, 2).Sound.Length, 3 * 11025);
    EXPECT_TRUE(At(table.BeatList, 1).Loaded);
}

TEST_F(LoadBeatSoundTest, CutsBothChannels)
{
    const std::int32_t rate = 44100;
    SaveWaveFile(RampWave(4 * rate), Shared().UserBeats / "stereo.wav");
    WriteBytes(Shared().UserBeats / "stereo.bmp", "p");
    Load();
    LoadBeatSound(table, 1);
    const WaveData& sound = At(table.BeatList, 1).Sound;
    EXPECT_EQ(sound.WavL.UpperBound(), 3 * rate);
    EXPECT_EQ(sound.WavR.UpperBound(), 3 * rate);
    EXPECT_EQ(sound.WavR[3 * rate], RampWave(4 * rate).WavR[3 * rate]);
}

TEST_F(LoadBeatSoundTest, TellsOfADamagedWaveOnceAndCountsItAsLoaded)
{
    MakeBeat("drum");
    WriteBytes(Shared().UserBeats / "drum.wav", std::string(100, 'x'));
    Load();
    table.SelectedBeat = 1;
    LoadSelectedSound(table);
    LoadSelectedSound(table);
    EXPECT_EQ(services.messages.shown.size(), 1U);
    EXPECT_TRUE(At(table.BeatList, 1).Loaded);
    EXPECT_EQ(At(table.BeatList, 1).Sound.Length, 0);
    EXPECT_EQ(DurationText(At(table.BeatList, 1).Sound).English(), "0.0 Sec");
}

TEST_F(LoadBeatSoundTest, FindsTheFileWhateverItsLetterCase)
{
    SaveWaveFile(QuietWave(5), Shared().UserBeats / "Drum.WAV");
    WriteBytes(Shared().UserBeats / "drum.bmp", "p");
    Load();
    LoadBeatSound(table, 1);
    EXPECT_EQ(At(table.BeatList, 1).Sound.Length, 5);
}

TEST_F(LoadBeatSoundTest, IsQuietAboutAFileThatIsGone)
{
    MakeBeat("drum");
    Load();
    std::filesystem::remove(Shared().UserBeats / "drum.wav");
    LoadBeatSound(table, 1);
    EXPECT_TRUE(services.messages.shown.empty());
    EXPECT_TRUE(At(table.BeatList, 1).Loaded);
}

TEST_F(MoveBeatTest, SwapsTheEntryAndItsProtectionAndTheSelectionFollows)
{
    FillWith(14);
    table.SelectedBeat = 1;
    MoveBeatTo(table, 2);
    EXPECT_EQ(table.SelectedBeat, 2);
    EXPECT_EQ(At(table.BeatList, 1).Name, "2");
    EXPECT_EQ(At(table.BeatList, 2).Name, "1");
    EXPECT_FALSE(table.BeatProtected[1]);
    EXPECT_TRUE(table.BeatProtected[2]);
    MoveBeatTo(table, 14);
    EXPECT_EQ(table.SelectedBeat, 14);
    EXPECT_EQ(At(table.BeatList, 14).Name, "1");
    EXPECT_EQ(At(table.BeatList, 2).Name, "14");
}

TEST_F(SaveBeatOrderTest, KeepsTheOrderForTheNextLoad)
{
    for (const char* name : {"a", "b", "c"})
        MakeBeat(name, 10);
    Load();
    table.SelectedBeat = 3;
    MoveBeatTo(table, 2);
    BeatTable unsaved;
    LoadBeatFiles(unsaved, "");
    EXPECT_EQ(At(unsaved.BeatList, 3).Name, "c");
    SaveBeatOrder(table);
    Load();
    EXPECT_THAT(Names(), ElementsAre("a", "c", "b"));
    EXPECT_THAT(IndexText(), testing::HasSubstr("[SortOrder]\r\na=1\r\nc=2\r\nb=3\r\n"));
    EXPECT_TRUE(table.BeatProtected[2]) << "the originals stand beside the order";
}

TEST(DurationText, ShowsTenthsOfASecond)
{
    EXPECT_EQ(DurationText(QuietWave(11025)).English(), "1.0 Sec");
    EXPECT_EQ(DurationText(QuietWave(2756)).English(), "0.2 Sec");
    EXPECT_EQ(DurationText(MonoWave(SampleList(11025, 1))).English(), "0.3 Sec"); // a quarter of a second goes up
    EXPECT_EQ(DurationText(QuietWave(3 * 11025)).English(), "3.0 Sec");
    EXPECT_EQ(DurationText(EmptyWave()).English(), "0.0 Sec");
    EXPECT_EQ(DurationText(WaveData()).English(), "0.0 Sec");
}

TEST(DurationText, SaysThatMoreThanThreeSecondsAreTooMany)
{
    EXPECT_EQ(DurationText(QuietWave(3 * 11025 + 1)).English(), "3.0 Sec(Only 3 seconds allowed)");
    EXPECT_EQ(DurationText(QuietWave(4 * 11025)).English(), "4.0 Sec(Only 3 seconds allowed)");
}

TEST_F(LoadBeatFilesTest, ListsTheBeatsOfTheClassAsOriginals)
{
    MakeBeat("bell", 100, 3);
    MakeBeat("drum", 200, 4);
    MakeBeat("gong", 300, 5);
    Shared().ClassRoot = services.folder.Path() / "class" / "";
    std::filesystem::create_directories(Shared().ClassRoot);
    std::filesystem::rename(Shared().UserBeats.parent_path(), Shared().ClassRoot / "Beats");
    std::filesystem::create_directories(Shared().UserBeats);
    ProtectNothing();
    MakeBeat("Cow", 400, 6);
    MakeBeat("Drum", 500, 7);
    std::filesystem::remove(Shared().UserBeats / "Drum.bmp"); // no pair, but it hides that of the class all the same
    Load();
    EXPECT_THAT(Names(), ElementsAre("bell", "cow", "gong"));
    EXPECT_EQ(table.BeatProtected, (std::vector<bool>{false, true, false, true}));
    EXPECT_EQ(At(table.BeatList, 1).Picture.Pixel(0, 0), 3U);
    LoadBeatSound(table, 3);
    EXPECT_EQ(At(table.BeatList, 3).Sound.Length, 300);
    Beat beat;
    LoadBeatFile(beat, "Gong");
    EXPECT_EQ(beat.Sound.Length, 300);
    EXPECT_EQ(beat.Picture.Pixel(0, 0), 5U);
    LoadBeatFile(beat, "drum");
    EXPECT_EQ(beat.Sound.Length, 500);
}

} // namespace
} // namespace sprout
