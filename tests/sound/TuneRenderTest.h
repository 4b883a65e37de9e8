// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "base/Errors.h"
#include "sound/RenderThreads.h"
#include "sound/SongMaker.h"
#include "sound/StepCache.h"
#include "sound/TuneRender.h"
#include "sound/Waves.h"
#include "support/FakeServices.h"
#include "waves/WavOperations.h"

namespace sprout {

class TuneRenderTest : public testing::Test {
protected:
    TuneRenderTest()
    {
        TheStepCache().Clear();
        Shared().TestTone = MakeTestTone();
        Shared().Song.Tempo = kSlowTempo;
    }
    ~TuneRenderTest() override
    {
        TheStepCache().SetMostBytes(StepCache::kMostBytes);
        TheStepCache().Clear();
    }

    [[nodiscard]] std::size_t Calls() const { return services.stretch.Calls().size(); }

    void ExpectSignsRestored() const
    {
        EXPECT_EQ(services.screen.hourglasses, 0);
        EXPECT_EQ(services.screen.processPics, 0);
    }

    void SaveBeat(const std::string& name, const WaveData& sound) const
    {
        SaveWaveFile(sound, Shared().UserBeats / (name + ".wav"));
    }

    FakeServices services;
};

inline TuneStep StepOf(std::int32_t beatIndex)
{
    TuneStep step;
    step.OnPos = 1;
    step.BeatIndex = beatIndex;
    return step;
}

} // namespace sprout
