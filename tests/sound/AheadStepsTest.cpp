// SPDX-License-Identifier: GPL-3.0-or-later
#include "sound/AheadSteps.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <set>
#include <vector>

#include "sound/AheadTest.h"

namespace sprout {
namespace {

class AheadStepsTest : public AheadTest {
protected:
    AheadStepsTest() : threads(Threads()), beat(AddToneBeat(7))
    {
        for (std::int32_t pitch = 1; pitch <= 6; ++pitch)
            keys.push_back(KeyOf(beat, pitch));
    }
    ~AheadStepsTest() override { stretch.gate.Open(); }

    std::vector<AheadSteps::Result> Finish(AheadSteps& steps)
    {
        std::vector<AheadSteps::Result> results;
        while (true) {
            const bool isFinished = steps.IsFinished();
            for (AheadSteps::Result& result : steps.TakeResults())
                results.push_back(std::move(result));
            if (isFinished)
                return results;
            bell.WaitForNext();
        }
    }

    AheadThreads threads;
    std::int32_t beat;
    std::vector<StepKey> keys;
};

TEST_F(AheadStepsTest, GivesTheSoundOfEachKeyOnce)
{
    AheadSteps steps(keys, 3, threads);
    const auto results = Finish(steps);
    ASSERT_EQ(results.size(), keys.size());
    for (const StepKey& key : keys) {
        const auto found =
            std::find_if(results.begin(), results.end(), [&](const auto& one) { return one.key == key; });
        ASSERT_NE(found, results.end());
        EXPECT_EQ(found->sound, RenderKey(key));
    }
    EXPECT_TRUE(steps.TakeResults().empty());
}

TEST_F(AheadStepsTest, RunsNoMoreThreadsThanItMay)
{
    stretch.gate.Close();
    AheadSteps steps(keys, 2, threads);
    stretch.gate.WaitFor(2);
    EXPECT_EQ(begun.Came(), 2);
    EXPECT_FALSE(steps.IsFinished());
    EXPECT_TRUE(steps.TakeResults().empty());
    stretch.gate.Open();
    EXPECT_EQ(Finish(steps).size(), keys.size());
    EXPECT_EQ(begun.Came(), 2);
}

TEST_F(AheadStepsTest, GivenUpItFinishesOnlyTheFirstThatHaveBegunAndNobodyWaits)
{
    stretch.gate.Close();
    AheadSteps steps(keys, 2, threads);
    stretch.gate.WaitFor(2);
    steps.GiveUp(); // returns although the service does not
    EXPECT_FALSE(steps.IsFinished());
    stretch.gate.Open();
    std::set<float> rendered;
    for (const AheadSteps::Result& result : Finish(steps))
        rendered.insert(result.key.PitchFactor);
    EXPECT_EQ(rendered, (std::set<float>{keys[0].PitchFactor, keys[1].PitchFactor}));
    EXPECT_EQ(services.stretch.Calls().size(), 2u);
}

TEST_F(AheadStepsTest, AStepThatFailsIsEmpty)
{
    services.stretch.lacksMemory = true;
    AheadSteps steps({keys[0]}, 1, threads);
    const auto results = Finish(steps);
    ASSERT_EQ(results.size(), 1u);
    EXPECT_EQ(results[0].sound.Length, 0);
}

TEST_F(AheadStepsTest, ItsSourcesBelongToNobodyElseOnlyOnceItIsGone)
{
    stretch.gate.Close();
    auto steps = std::make_unique<AheadSteps>(std::vector{keys[0]}, 1, threads);
    stretch.gate.WaitFor(1);
    keys.clear();
    WaveData& own = At(Shared().Song.SongBeats, beat).Sound;
    const void* const shared = own.WavL.Identity();
    own.WavL.Change()[1] = 9; // what the thread reads stays as it was
    EXPECT_NE(own.WavL.Identity(), shared);
    stretch.gate.Open();
    const auto results = Finish(*steps);
    EXPECT_EQ(results[0].sound.WavL[1], 7);
    steps.reset();
    const void* const alone = own.WavL.Identity();
    own.WavL.Change()[1] = 10;
    EXPECT_EQ(own.WavL.Identity(), alone);
}

} // namespace
} // namespace sprout
