// SPDX-License-Identifier: GPL-3.0-or-later
#include "beats/BeatFiles.h"

#include <gtest/gtest.h>

#include "beats/BeatFilesDesk.h"

namespace sprout {
namespace {

using LoadPictureFileTest = BeatFilesTest;

TEST_F(LoadPictureFileTest, ReadsThePictureWhateverTheLetterCase)
{
    WriteBytes(services.folder.Path() / "Drum.BMP", "four");
    EXPECT_EQ(LoadPictureFile(services.folder.Path() / "drum.bmp").Pixel(0, 0), 4U);
}

TEST_F(LoadPictureFileTest, GivesTheDefaultPictureWhereNoFileIs)
{
    fs::create_directory(services.folder.Path() / "folder.bmp");
    for (const fs::path& path :
         {fs::path(), fs::path("  "), services.folder.Path() / "no.bmp", services.folder.Path() / "folder.bmp"})
        EXPECT_TRUE(SamePicture(LoadPictureFile(path), Shared().DefaultTunePicture)) << path;
    EXPECT_TRUE(services.messages.shown.empty());
}

TEST_F(LoadPictureFileTest, TellsOfADamagedPicture)
{
    const fs::path file = services.folder.Path() / "x.bmp";
    WriteBytes(file, "bad picture");
    EXPECT_TRUE(SamePicture(LoadPictureFile(file), Shared().DefaultTunePicture));
    const FakeMessages::Shown told{"Error Loading Picture", "The picture " + file.native() + " cannot be read.",
                                   MessageIcon::None};
    EXPECT_EQ(services.messages.shown, std::vector{told});
}

TEST_F(BeatFilesTest, LoadsNameStampSoundAndPicture)
{
    const WaveData wave = WaveOf({1, 2, 3}, {4, 5, 6});
    MakeBeat("Drum", wave, 9);
    Beat beat;
    LoadBeatFile(beat, "Drum");
    EXPECT_EQ(beat.Name, "Drum");
    EXPECT_EQ(beat.DateStamp, FileStamp(Shared().UserBeats / "Drum.wav"));
    EXPECT_EQ(beat.Sound, wave);
    EXPECT_EQ(beat.Picture.Pixel(3, 3), 9U);
    EXPECT_TRUE(beat.Loaded);
}

TEST_F(BeatFilesTest, NamesBeatsForPeopleAsTheirFilesAreWrittenAndWithoutTheirFamily)
{
    WriteBytes(Shared().UserBeats / "B_Acoustic Bass Low.wav", "");
    WriteBytes(Shared().UserBeats / "my DOG.wav", "");
    EXPECT_EQ(BeatNameForPeople("b_acoustic bass low"), "Acoustic Bass Low");
    EXPECT_EQ(BeatNameForPeople("my dog"), "my DOG");
    EXPECT_EQ(BeatNameForPeople("P_of a song"), "of a song") << "without a file the name itself is all there is";
    EXPECT_EQ(BeatNameForPeople("b_"), "b_");
    EXPECT_EQ(BeatNameForPeople("ab_c"), "ab_c");
    EXPECT_EQ(BeatNameForPeople("__c"), "__c");
    EXPECT_EQ(BeatNameForPeople(""), "");
}

TEST_F(BeatFilesTest, EmptiesABeatWithoutWave)
{
    Beat beat = OldBeat();
    LoadBeatFile(beat, "Missing");
    EXPECT_EQ(beat.Name, "");
    EXPECT_EQ(beat.DateStamp, "");
    EXPECT_EQ(beat.Sound.Length, 0);
    EXPECT_TRUE(beat.Picture.IsNothing());
    EXPECT_FALSE(beat.Loaded);
}

TEST_F(BeatFilesTest, LeavesABeatAsItWasWhereTheWaveHoldsNoSamples)
{
    WriteBytes(Shared().UserBeats / "Bad.wav", "no wave at all");
    Beat beat = OldBeat();
    LoadBeatFile(beat, "Bad");
    EXPECT_EQ(beat.Name, "Old");
    EXPECT_EQ(beat.Sound, WaveOf({1, 2, 3}));
    EXPECT_EQ(services.messages.shown.size(), 1U);
}

TEST_F(BeatFilesTest, GivesTheBeatOfAFileAsAValue)
{
    MakeBeat("Drum", WaveOf({4, 5}));
    WriteBytes(Shared().UserBeats / "Bad.wav", "no wave at all");
    EXPECT_EQ(BeatOfFile(OldBeat(), "Drum").Sound, WaveOf({4, 5}));
    EXPECT_EQ(BeatOfFile(OldBeat(), "Missing").Name, "");
    EXPECT_EQ(BeatOfFile(OldBeat(), "Bad").Name, "Old");
}

TEST_F(BeatFilesTest, LoadsABeatByANameOfItsOwn)
{
    MakeBeat("A rather long name of a drum", WaveOf({1}));
    Beat beat;
    beat.Name = "A rather long name of a drum";
    LoadBeatFile(beat, beat.Name);
    EXPECT_EQ(beat.Name, "A rather long name of a drum");
    EXPECT_TRUE(beat.Loaded);
}

TEST_F(BeatFilesTest, CutsBothChannelsAtFiveSeconds)
{
    const auto frames = static_cast<std::size_t>(5 * 11025 + 1);
    WaveData wave = WaveOf(std::vector<std::int16_t>(frames, 1), std::vector<std::int16_t>(frames, 2));
    wave.Rate = 11025;
    MakeBeat("Long", wave);
    Beat beat;
    LoadBeatFile(beat, "Long");
    EXPECT_EQ(beat.Sound.Length, 5 * 11025);
    EXPECT_EQ(beat.Sound.WavL.UpperBound(), 5 * 11025);
    EXPECT_EQ(beat.Sound.WavR.UpperBound(), 5 * 11025);
}

TEST_F(BeatFilesTest, KeepsASoundOfJustFiveSeconds)
{
    WaveData wave = WaveOf(std::vector<std::int16_t>(5 * 11025, 1));
    wave.Rate = 11025;
    MakeBeat("Five", wave);
    Beat beat;
    LoadBeatFile(beat, "Five");
    EXPECT_EQ(beat.Sound, wave);
}

TEST_F(BeatFilesTest, NamesNeverLeadOutOfTheFolder)
{
    MakeBeat("../outside", WaveOf({1}));
    ASSERT_TRUE(fs::exists(Shared().UserRoot / "outside.wav"));
    std::int32_t index = 5;
    for (const std::string_view name :
         {std::string_view("../outside"), std::string_view("a\0b", 3), std::string_view(""), std::string_view("   ")}) {
        Beat beat = OldBeat();
        LoadBeatFile(beat, name);
        EXPECT_FALSE(beat.Loaded);
        FindOrLoadBeat(Shared().Song, name, index);
        EXPECT_EQ(index, 0);
    }
}

TEST_F(BeatFilesTest, ReloadsASoundThatChanged)
{
    MakeBeat("Drum", WaveOf({1}));
    Beat beat;
    beat.Name = "Drum";
    ReloadBeat(beat);
    EXPECT_EQ(beat.Sound, WaveOf({1}));
    EXPECT_TRUE(beat.Loaded);
}

TEST_F(BeatFilesTest, ReloadTakesStampAndPictureAnewCutsAtFiveSecondsAndKeepsTheNamesLetters)
{
    WaveData wave = WaveOf(std::vector<std::int16_t>(5 * 11025 + 1, 1));
    wave.Rate = 11025;
    MakeBeat("Old", wave, 8);
    Beat beat = OldBeat();
    beat.Name = "oLD";
    ReloadBeat(beat);
    EXPECT_EQ(beat.Name, "oLD");
    EXPECT_EQ(beat.DateStamp, FileStamp(Shared().UserBeats / "Old.wav"));
    EXPECT_EQ(beat.Sound.Length, 5 * 11025);
    EXPECT_EQ(beat.Picture.Pixel(0, 0), 8U);
}

TEST_F(BeatFilesTest, ReloadLeavesABeatAsItWasWhereTheWaveHoldsNoSamples)
{
    WriteBytes(Shared().UserBeats / "Old.wav", "no wave at all");
    Beat beat = OldBeat();
    beat.Loaded = false;
    ReloadBeat(beat);
    EXPECT_EQ(beat.DateStamp, "stamp");
    EXPECT_EQ(beat.Sound, WaveOf({1, 2, 3}));
    EXPECT_FALSE(beat.Loaded);
}

TEST_F(BeatFilesTest, ReloadKeepsTheNameOfAMissingBeatAndCountsItAsLoaded)
{
    WriteBytes(Shared().UserBeats / "Old.bmp", "12345");
    Beat beat = OldBeat();
    beat.Loaded = false;
    ReloadBeat(beat);
    EXPECT_EQ(beat.Name, "Old");
    EXPECT_EQ(beat.DateStamp, "");
    EXPECT_EQ(beat.Sound, EmptyWave());
    EXPECT_EQ(beat.Picture.Pixel(0, 0), 5U);
    EXPECT_TRUE(beat.Loaded);
}

TEST_F(BeatFilesTest, ReloadOfABlankNameTakesTheDefaultPicture)
{
    Beat beat;
    ReloadBeat(beat);
    EXPECT_TRUE(SamePicture(beat.Picture, Shared().DefaultTunePicture));
    EXPECT_TRUE(beat.Loaded);
}

TEST_F(BeatFilesTest, FindsABeatIgnoringCaseAndAddsItOnce)
{
    MakeBeat("Drum", WaveOf({1}));
    SongState song;
    std::int32_t index = 0;
    FindOrLoadBeat(song, "Drum", index);
    EXPECT_EQ(index, 1);
    FindOrLoadBeat(song, "DRUM", index);
    EXPECT_EQ(index, 1);
    EXPECT_EQ(song.SongBeatCount, 1);
    ASSERT_EQ(song.SongBeats.size(), 2U);
    EXPECT_EQ(song.SongBeats[1].Name, "Drum");
}

TEST_F(BeatFilesTest, TakesABeatOfAnotherStampForAnother)
{
    MakeBeat("Drum", WaveOf({1}));
    SongState song;
    std::int32_t index = 0;
    FindOrLoadBeat(song, "Drum", index);
    SetWrittenIn2020(Shared().UserBeats / "Drum.wav", 6);
    FindOrLoadBeat(song, "Drum", index);
    EXPECT_EQ(index, 2);
    EXPECT_EQ(song.SongBeatCount, 2);
}

TEST_F(BeatFilesTest, FindsAsOneWhatFilesWriteAlike)
{
    MakeBeat("Caf\xC3\xA9", WaveOf({1}));
    SongState song;
    std::int32_t index = 0;
    FindOrLoadBeat(song, "Caf\xC3\xA9", index);
    Tune tune;
    tune.Steps.resize(2);
    tune.StepCount = 1;
    tune.Steps[1].OnPos = 1;
    tune.Steps[1].StepBeat = song.SongBeats[1];
    tune.Steps[1].StepBeat.Name = "caf\xE9"; // a name in the code page, as a foreign file system may have it
    MergeTuneBeats(song, tune);
    EXPECT_EQ(tune.Steps[1].BeatIndex, 1);
    EXPECT_EQ(song.SongBeatCount, 1);
}

TEST_F(BeatFilesTest, ReaderReadsEachPairOnceAndSharesItsSamples)
{
    MakeBeat("Drum", WaveOf({1, 2}));
    WriteBytes(Shared().UserBeats / "Bad.wav", "no wave at all");
    BeatReader reader;
    Beat first, second, left = OldBeat();
    reader.LoadBeatFile(first, "Drum");
    reader.LoadBeatFile(second, "Drum");
    EXPECT_TRUE(first.Sound.WavL.SharesBlockWith(second.Sound.WavL));
    reader.LoadBeatFile(left, "Bad");
    reader.LoadBeatFile(left, "Bad");
    EXPECT_EQ(left.Name, "Old");
    EXPECT_EQ(services.messages.shown.size(), 1U);
    reader.LoadBeatFile(left, "Missing");
    EXPECT_EQ(left.Name, "");
}

} // namespace
} // namespace sprout
