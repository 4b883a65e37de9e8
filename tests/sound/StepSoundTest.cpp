// SPDX-License-Identifier: GPL-3.0-or-later
#include "sound/StepSound.h"

#include <gmock/gmock.h>

#include <utility>
#include <vector>

#include "sound/SongMaker.h"
#include "sound/Waves.h"
#include "support/FakeServices.h"
#include "support/Flags.h"

namespace sprout {
namespace {

using testing::ElementsAre;
using testing::Pair;

TEST(SongBeatOf, IsTheBeatThatTheSongHas)
{
    SongState song;
    song.SongBeats.resize(3);
    song.SongBeatCount = 2;
    TuneStep step;
    for (const auto& [index, beat] : {std::pair{1, 1}, {2, 2}, {3, 0}, {0, 0}, {-4, 0}}) {
        step.BeatIndex = index;
        EXPECT_EQ(SongBeatOf(step, song), beat) << index;
    }
    song.SongBeatCount = 3;
    step.BeatIndex = 3;
    EXPECT_THROW(static_cast<void>(SongBeatOf(step, song)), RunTimeError);
}

TEST(RenderKey, StretchesAndScalesTheConvertedInstrument)
{
    const FakeServices services;
    TuneStep step;
    step.PitchShift = 12;
    step.Duration = 200;
    step.Volume = 50;
    const StepKey key = KeyOfStep(step, MonoWave(SampleList(600, 1000), 22050));
    EXPECT_EQ(RenderKey(key), MonoWave(SampleList(2400, 500)));
    ASSERT_EQ(services.stretch.Calls().size(), 1u);
    EXPECT_EQ(services.stretch.Calls()[0].pitchFactor, 2);
    EXPECT_EQ(services.stretch.Calls()[0].rate, 44100);
}

TEST(ForStaleSteps, TellsWhatCopiesAndWhatNeedsItsOwnSound)
{
    Tune tune = MakeTune(6);
    for (const std::int32_t number : {1, 2, 3, 5, 6})
        SetStep(tune, number, number % 2 + 1);
    SetStepWaveValid(tune.Steps[3], true);
    std::vector<std::pair<std::ptrdiff_t, std::ptrdiff_t>> copies;
    std::vector<std::ptrdiff_t> rendered;
    const auto number = [&tune](const TuneStep& step) { return &step - tune.Steps.data(); };
    const auto walk = [&] {
        copies.clear();
        rendered.clear();
        ForStaleSteps(
            tune, BeatSource::Song,
            [&](TuneStep& step, const TuneStep& equal) { copies.emplace_back(number(step), number(equal)); },
            [&](TuneStep& step) { rendered.push_back(number(step)); });
    };
    walk();
    EXPECT_THAT(rendered, ElementsAre(1, 2));
    EXPECT_THAT(copies, ElementsAre(Pair(5, 1), Pair(6, 2)));
    tune.Steps[1].Volume = 50;
    walk();
    EXPECT_THAT(rendered, ElementsAre(1, 2));
    EXPECT_THAT(copies, ElementsAre(Pair(5, 3), Pair(6, 2)));
    tune.StepCount = 7;
    EXPECT_THROW(walk(), RunTimeError);
}

} // namespace
} // namespace sprout
