// SPDX-License-Identifier: GPL-3.0-or-later
#include <filesystem>

#include "songs/HandSongs.h"
#include "songs/SongFileMaker.h"
#include "waves/WavOperations.h"

namespace sprout {
namespace {

using Elements = std::vector<std::int32_t>;

class OldSongVersionsTest : public SongFilesTest {
protected:
    static void MakeStar(const std::string& name)
    {
        WriteBytes(Shared().UserStars / (name + ".TqSta"),
                   "[StepCycle]\r\nNumberOfSteps=3\r\nOnPos=1,0,1\r\nVolume=90,90,90\r\n");
    }

    /// Loads the array truncated after each element, and with a wrong value in each element.
    void ExpectToSurvive(const HandArray& array, const std::string& version)
    {
        const Elements elements = array.Elements();
        for (std::size_t place = 1; place < elements.size(); ++place) {
            if (elements[place] == 0x32 && place % 50 != 0) // a colour
                continue;
            const std::string bytes = FileOf("TqSng", version, elements);
            EXPECT_EQ(LoadBytes(bytes.substr(0, bytes.find("Data=") + 5 + place * 4)).TrackCount, 0);
            for (const std::int32_t lie : {0, 1, -1, 1000, 2147483647, -2147483647 - 1}) {
                Elements lying = elements;
                lying[place] = lie;
                const SongState& song = LoadBytes(FileOf("TqSng", version, lying));
                if (song.TrackCount != 0) {
                    EXPECT_EQ(song.SongBeats.size(), static_cast<std::size_t>(song.SongBeatCount) + 1);
                }
            }
        }
    }
};

TEST_F(OldSongVersionsTest, Version11BringsBeatsAndTunesTrackByTrack)
{
    SaveWaveFile(WaveOf({40}), Shared().UserBeats / "Bass.wav");
    const SongState& song = LoadArray(MakeArray11(), "1.1");
    ASSERT_EQ(song.TrackCount, 4);
    EXPECT_EQ(song.SongCells, 2);
    EXPECT_EQ(song.Tempo, 400);
    EXPECT_EQ(song.SongTitle, "Song");
    EXPECT_EQ(song.SongCreatedBy, "Ann");
    ASSERT_EQ(song.SongBeatCount, 2);
    EXPECT_EQ(song.SongBeats[1].Name, "Drum");
    EXPECT_EQ(song.SongBeats[1].DateStamp, "stamp");
    EXPECT_TRUE(song.SongBeats[1].Loaded);
    EXPECT_EQ(song.SongBeats[1].Sound, WaveOf({5}));
    EXPECT_EQ(song.SongBeats[2].Sound, WaveOf({40}));

    const Tune& tune = song.Tracks[1].TrackTune;
    EXPECT_EQ(tune.Name, "Tune");
    EXPECT_EQ(tune.DateStamp, "tune stamp");
    EXPECT_EQ(tune.CreatedBy, "Bob");
    EXPECT_EQ(tune.Picture.Pixel(0, 0), 0x32U);
    ASSERT_EQ(tune.StepCount, 2);
    EXPECT_EQ(tune.Steps[1].PitchShift, -2);
    EXPECT_EQ(tune.Steps[1].Volume, 80);
    EXPECT_EQ(tune.Steps[2].Duration, 100);
    EXPECT_EQ(tune.Steps[2].BeatIndex, 1);
    EXPECT_EQ(song.Tracks[3].TrackTune.Steps[1].BeatIndex, 2);
    EXPECT_EQ(song.Tracks[4].TrackAudio, WaveOf({9}));
    EXPECT_TRUE(Told().empty());
}

TEST_F(OldSongVersionsTest, Version11GivesSixteenSilentStepsForATuneThatItDoesNotHold)
{
    const SongState& song = LoadArray(MakeArray11(), "1.1");
    const Tune& tune = song.Tracks[2].TrackTune;
    EXPECT_EQ(tune.Name, "");
    ASSERT_EQ(tune.StepCount, 16);
    EXPECT_EQ(tune.Steps[16].OnPos, 0);
    EXPECT_EQ(tune.Steps[16].BeatIndex, 0);
    EXPECT_EQ(song.Tracks[3].TrackTune.Steps[1].BeatIndex, 0); // its beat is in no folder
}

TEST_F(OldSongVersionsTest, Version11AddsAStoredBeatForEachTrack)
{
    HandArray array;
    array.Add({2, 0, 320}).Text("s").Text("a");
    for (int track = 0; track < 2; ++track)
        array.Add({0}).Add({1}).Text("Drum").Add({1}).Text("x").Add({4, 16, 1, 44100, 0}).Picture(1).Add({0});
    const SongState& song = LoadArray(array, "1.1");
    EXPECT_EQ(song.SongBeatCount, 2);
    EXPECT_EQ(song.Tracks[2].TrackTune.Steps[1].BeatIndex, 2);
}

TEST_F(OldSongVersionsTest, Version11KnowsOneAloneAsStored)
{
    HandArray array;
    array.Add({1, 0, 320}).Text("s").Text("a").Add({0}).Add({2}).Add({2});
    const SongState& song = LoadArray(array, "1.1");
    EXPECT_EQ(song.SongBeatCount, 0);
    EXPECT_EQ(song.Tracks[1].TrackTune.StepCount, 16);
}

TEST_F(OldSongVersionsTest, Version11TakesABeatFromItsFolderUnlessItsSecondFlagIs1)
{
    SaveWaveFile(WaveOf({40}), Shared().UserBeats / "Drum.wav");
    HandArray array;
    array.Add({1, 0, 320}).Text("s").Text("a").Add({0}).Add({1}).Text("Drum").Add({2}).Add({0});
    const SongState& song = LoadArray(array, "1.1");
    ASSERT_EQ(song.SongBeatCount, 1);
    EXPECT_EQ(song.SongBeats[1].Sound, WaveOf({40}));
    EXPECT_EQ(song.Tracks[1].TrackTune.Steps[1].BeatIndex, 1);
    EXPECT_TRUE(Told().empty());
}

TEST_F(OldSongVersionsTest, Version1TakesBeatsAndStarsFromTheirFolders)
{
    SaveWaveFile(WaveOf({40}), Shared().UserBeats / "Drum.wav");
    MakeStar("Star");
    const SongState& song = LoadArray(MakeArray10(), "1");
    ASSERT_EQ(song.TrackCount, 4);
    ASSERT_EQ(song.SongBeatCount, 1);
    EXPECT_EQ(song.SongBeats[1].Sound, WaveOf({40}));
    const Tune& star = song.Tracks[1].TrackTune;
    EXPECT_EQ(star.Name, "Star");
    ASSERT_EQ(star.StepCount, 3);
    EXPECT_EQ(star.Steps[1].OnPos, 1);
    EXPECT_EQ(star.Steps[1].Volume, 90);
    for (std::size_t step = 1; step <= 3; ++step) {
        EXPECT_EQ(star.Steps[step].BeatIndex, 1);
        EXPECT_EQ(song.Tracks[4].TrackTune.Steps[step].BeatIndex, 1);
    }
    EXPECT_EQ(song.Tracks[2].TrackAudio, WaveOf({9}));
    EXPECT_EQ(song.Tracks[3].TrackTune.Name, "Gone");
    EXPECT_EQ(song.Tracks[3].TrackTune.StepCount, 16);
    EXPECT_EQ(song.Tracks[3].TrackTune.Steps[1].BeatIndex, 0);
    EXPECT_TRUE(Told().empty());
}

TEST_F(OldSongVersionsTest, ADamagedStarEndsTheLoadWithAMessage)
{
    WriteBytes(Shared().UserStars / "Star.TqSta", "[StepCycle]\r\nNumberOfSteps=1e99\r\n");
    EXPECT_EQ(LoadArray(MakeArray10(), "1").TrackCount, 0);
    EXPECT_EQ(Told(), (std::vector<std::string>{"Error Loading File|A number is too large.", "|Failed Loading"}));
}

TEST_F(OldSongVersionsTest, OldSongsAreSavedInTheCurrentVersion)
{
    LoadArray(MakeArray11(), "1.1");
    const std::string bytes = SaveBytes();
    EXPECT_NE(bytes.find("\r\nFile Version=2\r\n"), std::string::npos);
    OpenSaveClass().Load_Song(Path());
    EXPECT_EQ(Shared().Song.Tracks[1].TrackTune.Steps[1].BeatIndex, 1);
    EXPECT_EQ(Shared().Song.TrackCount, 4);
}

TEST_F(OldSongVersionsTest, DamagedSongsOfVersion11NeverBreakTheLoad)
{
    ExpectToSurvive(MakeArray11(), "1.1");
}

TEST_F(OldSongVersionsTest, DamagedSongsOfVersion1NeverBreakTheLoad)
{
    MakeStar("Star");
    ExpectToSurvive(MakeArray10(), "1");
}

TEST_F(OldSongVersionsTest, Version11RefusesStepsThatTheFileCannotHold)
{
    HandArray array;
    array.Add({1, 0, 320}).Text("s").Text("a").Add({0}).Add({0}).Add({1}).Text("T").Text("").Text("").Picture(0);
    array.Add({3}).Many(1, 8); // three steps would take nine elements
    LoadArray(array, "1.1");
    EXPECT_EQ(Told(),
              (std::vector<std::string>{"Error Loading File|The file is damaged: it promises more than it holds.",
                                        "|Failed Loading"}));
}

} // namespace
} // namespace sprout
