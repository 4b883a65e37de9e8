// SPDX-License-Identifier: GPL-3.0-or-later
#include "beats/BeatFiles.h"

#include <gtest/gtest.h>

#include "beats/BeatFilesDesk.h"

namespace sprout {
namespace {

/// A song with beats "A" and "B", and a tune: on with A, off, on with B, on without a beat.
class SharedBeatsTest : public BeatFilesTest {
protected:
    SharedBeatsTest()
    {
        song.SongBeats.resize(3);
        song.SongBeatCount = 2;
        song.SongBeats[1] = {"A", "stamp", WaveOf({1}), Shared().BlankPic, true};
        song.SongBeats[2] = {"B", "stamp", WaveOf({2}), Shared().BlankPic, true};
        tune.Steps.resize(5);
        tune.StepCount = 4;
        const std::int32_t on[] = {1, 0, 1, 1};
        const std::int32_t beats[] = {1, 2, 2, 3};
        for (std::size_t i = 1; i <= 4; ++i) {
            tune.Steps[i].OnPos = on[i - 1];
            tune.Steps[i].BeatIndex = beats[i - 1];
        }
    }

    SongState song;
    Tune tune;
};

TEST_F(SharedBeatsTest, ExpandGivesOnStepsTheirBeatAndOthersAnEmptyOne)
{
    tune.Steps[2].StepBeat.Name = "left over";
    ExpandTuneBeats(song, tune);
    EXPECT_EQ(tune.Steps[1].StepBeat.Name, "A");
    EXPECT_TRUE(tune.Steps[1].StepBeat.Sound.WavL.SharesBlockWith(song.SongBeats[1].Sound.WavL));
    EXPECT_EQ(tune.Steps[3].StepBeat.Name, "B");
    for (const std::size_t empty : {2U, 4U}) {
        EXPECT_EQ(tune.Steps[empty].StepBeat.Name, "");
        EXPECT_FALSE(tune.Steps[empty].StepBeat.Loaded);
        EXPECT_TRUE(SamePicture(tune.Steps[empty].StepBeat.Picture, Shared().DefaultTunePicture));
    }
}

TEST_F(SharedBeatsTest, StepsOfAnyValueBut1NeitherGetNorGiveABeat)
{
    tune.Steps[1].OnPos = 2;
    ExpandTuneBeats(song, tune);
    EXPECT_EQ(tune.Steps[1].StepBeat.Name, "");
    tune.Steps[1].StepBeat.Name = "mine";
    MergeTuneBeats(song, tune);
    EXPECT_EQ(song.SongBeatCount, 2);
    EXPECT_EQ(tune.Steps[1].StepBeat.Name, "mine");
}

TEST_F(SharedBeatsTest, ExpandGivesNoBeatForANumberBeyondTheList)
{
    song.SongBeats[0].Name = "no beat at all";
    for (const std::int32_t index : {0, -1, 3, 2147483647, -2147483647 - 1}) {
        tune.Steps[1].BeatIndex = index;
        ExpandTuneBeats(song, tune);
        EXPECT_EQ(tune.Steps[1].StepBeat.Name, "") << index;
        EXPECT_TRUE(SamePicture(tune.Steps[1].StepBeat.Picture, Shared().DefaultTunePicture));
    }
}

TEST_F(SharedBeatsTest, ExpandAndMergeLeaveEveryOnStepWithItsBeat)
{
    ExpandTuneBeats(song, tune);
    MergeTuneBeats(song, tune);
    EXPECT_EQ(tune.Steps[1].BeatIndex, 1);
    EXPECT_EQ(tune.Steps[3].BeatIndex, 2);
    EXPECT_EQ(song.SongBeatCount, 2);
    EXPECT_EQ(tune.Steps[1].StepBeat.Name, "");
    EXPECT_EQ(tune.Steps[1].StepBeat.Sound.Length, 0);
}

TEST_F(SharedBeatsTest, MergeLeavesOffStepsAndStepsWithoutBeatAsTheyAre)
{
    ExpandTuneBeats(song, tune);
    tune.Steps[2].StepBeat.Name = "kept";
    MergeTuneBeats(song, tune);
    EXPECT_EQ(tune.Steps[2].StepBeat.Name, "kept");
    EXPECT_EQ(tune.Steps[2].BeatIndex, 2);
    EXPECT_EQ(tune.Steps[4].BeatIndex, 3);
}

TEST_F(SharedBeatsTest, MergeAddsANewBeatOnceAndTellsStampsApart)
{
    ExpandTuneBeats(song, tune);
    tune.Steps[1].StepBeat.Name = "b"; // in other letter case, with the same stamp
    tune.Steps[3].StepBeat.DateStamp = "other stamp";
    tune.Steps[4].StepBeat = tune.Steps[3].StepBeat;
    MergeTuneBeats(song, tune);
    EXPECT_EQ(tune.Steps[1].BeatIndex, 2);
    EXPECT_EQ(tune.Steps[3].BeatIndex, 3);
    EXPECT_EQ(tune.Steps[4].BeatIndex, 3);
    EXPECT_EQ(song.SongBeatCount, 3);
    ASSERT_EQ(song.SongBeats.size(), 4U);
    EXPECT_EQ(song.SongBeats[3].DateStamp, "other stamp");
}

TEST_F(SharedBeatsTest, TheFirstOfSeveralEqualBeatsIsFound)
{
    MakeBeat("A", WaveOf({9}));
    const std::string stamp = FileStamp(Shared().UserBeats / "A.wav");
    song.SongBeats[1].DateStamp = stamp;
    song.SongBeats[2] = {"a", stamp, WaveOf({2}), Shared().BlankPic, true};
    std::int32_t index = 0;
    FindOrLoadBeat(song, "A", index);
    EXPECT_EQ(index, 1);
    tune.Steps[3].StepBeat = song.SongBeats[2];
    MergeTuneBeats(song, tune);
    EXPECT_EQ(tune.Steps[3].BeatIndex, 1);
}

TEST_F(SharedBeatsTest, MergeHandsAWholeBeatToTheSongAndLeavesAnEmptyOne)
{
    const Beat added{"New", "its stamp", WaveOf({7, 8}), Shared().BlankStarPic, true};
    tune.Steps[1].StepBeat = added;
    MergeTuneBeats(song, tune);
    EXPECT_EQ(tune.Steps[1].BeatIndex, 3);
    ASSERT_EQ(song.SongBeats.size(), 4U);
    EXPECT_EQ(song.SongBeats[3].Name, "New");
    EXPECT_EQ(song.SongBeats[3].DateStamp, "its stamp");
    EXPECT_EQ(song.SongBeats[3].Sound, WaveOf({7, 8}));
    EXPECT_TRUE(SamePicture(song.SongBeats[3].Picture, Shared().BlankStarPic));
    EXPECT_TRUE(song.SongBeats[3].Loaded);
    const Beat& left = tune.Steps[1].StepBeat;
    EXPECT_EQ(left.Name + left.DateStamp, "");
    EXPECT_EQ(left.Sound.Length, 0);
    EXPECT_TRUE(SamePicture(left.Picture, Shared().DefaultTunePicture));
    EXPECT_FALSE(left.Loaded);
}

} // namespace
} // namespace sprout
