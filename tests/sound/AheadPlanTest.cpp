// SPDX-License-Identifier: GPL-3.0-or-later
#include "sound/AheadPlan.h"

#include <gtest/gtest.h>

#include <cmath>

#include "sound/AheadTest.h"
#include "support/Flags.h"

namespace sprout {
namespace {

constexpr std::size_t kPlenty = StepCache::kMostBytes;

class AheadPlanTest : public AheadTest {
protected:
    static AheadPlan Plan(std::size_t mostBytes = kPlenty) { return PlanAhead(Shared().Song, mostBytes); }
};

TEST_F(AheadPlanTest, TakesEachSoundOnceTheEarliestSoundingFirst)
{
    const std::int32_t beat = AddToneBeat(5);
    AddPitchTrack(beat, {1, 2, 3}, 10, 11); // step 3 is never reached, but the mix renders it
    AddPitchTrack(beat, {4, 2}, 5, 6);
    const AheadPlan plan = Plan();
    EXPECT_TRUE(plan.mixable);
    EXPECT_EQ(plan.keys, (std::vector{KeyOf(beat, 4), KeyOf(beat, 2), KeyOf(beat, 1), KeyOf(beat, 3)}));
}

TEST_F(AheadPlanTest, ACopyMakesItsSoundEarlier)
{
    const std::int32_t beat = AddToneBeat(5);
    const std::int32_t track = AddPitchTrack(beat, {1, 2, 2}, 3, 5);
    AddPitchTrack(beat, {7}, 4, 4);
    SetStepWaveValid(At(TrackAt(track).TrackTune.Steps, 1), true);
    At(TrackAt(track).TrackTune.Steps, 2).OnPos = kStepOff;
    EXPECT_EQ(Plan().keys, (std::vector{KeyOf(beat, 7), KeyOf(beat, 2)}));
    At(TrackAt(track).TrackTune.Steps, 2).OnPos = kStepOn;
    Paint(track, 1, 2);
    EXPECT_EQ(Plan().keys, (std::vector{KeyOf(beat, 2), KeyOf(beat, 7)}));
}

TEST_F(AheadPlanTest, LeavesOutWhatIsValidCopiedOrNotInTheMix)
{
    const std::int32_t beat = AddToneBeat(5);
    const std::int32_t track = AddPitchTrack(beat, {1, 1, 2}, 1, 3);
    SetStepWaveValid(At(TrackAt(track).TrackTune.Steps, 1), true); // step 2 copies it
    AddPitchTrack(beat, {9}, 2, 1);                                // without paint
    TrackAt(AddPitchTrack(beat, {8}, 1, 1)).TrackType = 7;
    EXPECT_EQ(Plan().keys, (std::vector{KeyOf(beat, 2)}));
    SetSongMixValid(Shared().Song, true);
    EXPECT_TRUE(Plan().keys.empty());
    EXPECT_FALSE(Plan().mixable);
}

TEST_F(AheadPlanTest, WithoutASoundingCellNoStepIsNeeded)
{
    const std::int32_t beat = AddToneBeat(5);
    const std::int32_t track = AddPitchTrack(beat, {1, 2}, 1, 1);
    At(TrackAt(track).TrackTune.Steps, 1).OnPos = kStepOff;
    EXPECT_TRUE(Plan().keys.empty());
    EXPECT_TRUE(Plan().mixable);
    AddAudioTrack(EmptyWave()); // counts as a sound of the mix
    EXPECT_EQ(Plan().keys, (std::vector{KeyOf(beat, 2)}));
}

TEST_F(AheadPlanTest, AStepWithoutABeatNeedsTheTestTone)
{
    Shared().TestTone = MonoWave(SampleList(700, 3));
    AddPitchTrack(0, {0}, 1, 1);
    ASSERT_EQ(Plan().keys.size(), 1u);
    EXPECT_TRUE(Plan().keys[0].Source.WavL.SharesBlockWith(Shared().TestTone.WavL));
}

TEST_F(AheadPlanTest, ABeatThatIsNotLoadedIsLeftToThePlay)
{
    const std::int32_t missing = AddToneBeat(5);
    At(Shared().Song.SongBeats, missing).Loaded = false;
    const std::int32_t beat = AddToneBeat(6);
    AddPitchTrack(missing, {1}, 1, 1);
    AddPitchTrack(beat, {2}, 1, 1);
    EXPECT_EQ(Plan().keys, (std::vector{KeyOf(beat, 2)}));
    EXPECT_FALSE(Plan().mixable);
}

TEST_F(AheadPlanTest, AStepThatWouldFailIsLeftToThePlay)
{
    const std::int32_t beat = AddToneBeat(6);
    Shared().Song.SongBeatCount = 9;
    AddPitchTrack(9, {1}, 1, 1);
    AddPitchTrack(beat, {2}, 1, 1);
    EXPECT_EQ(Plan().keys, (std::vector{KeyOf(beat, 2)}));
    EXPECT_FALSE(Plan().mixable);
}

TEST_F(AheadPlanTest, ASilentBeatNeedsNoSound)
{
    AddPitchTrack(AddBeat(EmptyWave()), {1}, 1, 1);
    EXPECT_TRUE(Plan().keys.empty());
    EXPECT_TRUE(Plan().mixable);
}

TEST_F(AheadPlanTest, ASongThatCannotBeMixedNeedsNothing)
{
    const std::int32_t beat = AddToneBeat(6);
    const std::int32_t track = AddPitchTrack(beat, {2}, 1, 1);
    const SongState whole = Shared().Song;
    const auto expectNothing = [] {
        EXPECT_TRUE(Plan().keys.empty());
        EXPECT_FALSE(Plan().mixable);
    };
    Shared().Song.TrackCount = 50;
    expectNothing();
    Shared().Song = whole;
    TrackAt(track).Painted.resize(10);
    expectNothing();
    Shared().Song = whole;
    TrackAt(track).TrackTune.StepCount = 20;
    expectNothing();
    Shared().Song = whole;
    TrackAt(track).TrackTune.Steps.resize(1);
    expectNothing();
}

TEST_F(AheadPlanTest, TakesNoMoreThanTheCacheHolds)
{
    const std::int32_t beat = AddToneBeat(5, 10000);
    AddPitchTrack(beat, {1, 2, 3, 4, 5, 6, 7, 8}, 1, 8);
    constexpr std::size_t room = 150'000; // the beat takes 20,000, each sound up to 40,000
    const AheadPlan plan = Plan(room);
    EXPECT_EQ(plan.keys, (std::vector{KeyOf(beat, 1), KeyOf(beat, 2), KeyOf(beat, 3)}));
    EXPECT_FALSE(plan.mixable);
    StepCache cache(room);
    for (const StepKey& key : plan.keys)
        cache.Keep(key, RenderKey(key));
    EXPECT_EQ(cache.Count(), plan.keys.size());
    EXPECT_TRUE(Plan(0).keys.empty());
    EXPECT_TRUE(Plan(10 * room).mixable);
}

TEST_F(AheadPlanTest, TheMixTakesAtMostTheMemoryOfTheWholeGrid)
{
    AddPitchTrack(AddToneBeat(5), {1}, kSongCells, kSongCells);
    Paint(1, 1, 1);
    Shared().Song.Tempo = kReferenceTempo;
    const double bytes = MixBytes(Shared().Song);
    MixSong();
    EXPECT_GE(bytes, 4.0 * Shared().Song.SongMix.Length);
    EXPECT_LE(bytes, 4.0 * 44100 * 260);
    AddAudioTrack(LevelWave(100, 5));
    EXPECT_EQ(MixBytes(Shared().Song), 2 * bytes);
    SetTrackRenderValid(TrackAt(2), true);
    EXPECT_EQ(MixBytes(Shared().Song), bytes);
    for (const std::int32_t nonsense : {0, -1}) {
        Shared().Song.Tempo = nonsense;
        EXPECT_TRUE(std::isinf(MixBytes(Shared().Song)));
    }
}

} // namespace
} // namespace sprout
