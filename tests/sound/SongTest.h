// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <vector>

#include "core/SongModel.h"
#include "sound/RenderThreads.h"
#include "sound/SongMaker.h"
#include "sound/StepCache.h"
#include "sound/TrackRender.h"
#include "sound/Waves.h"
#include "support/FakeServices.h"
#include "waves/WavOperations.h"

namespace sprout {

inline constexpr std::int32_t kBeatFrames = 600;

/// A song with a tempo at which a cell is a whole number of frames.
class SongTest : public testing::Test {
protected:
    SongTest()
    {
        TheStepCache().Clear();
        Shared().Song.Tempo = kSlowTempo;
    }
    ~SongTest() override
    {
        TheStepCache().SetMostBytes(StepCache::kMostBytes);
        TheStepCache().Clear();
    }

    /// A track of `steps` steps, of which step k sounds the level k.
    static std::int32_t AddNumberedTrack(std::int32_t steps)
    {
        Tune tune = MakeTune(steps);
        for (std::int32_t k = 1; k <= steps; ++k)
            SetStep(tune, k, AddBeat(LevelWave(kBeatFrames, static_cast<std::int16_t>(k))));
        return AddTuneTrack(tune);
    }

    /// The level at the beginning of each of `cells` cells.
    static SampleList LevelsAtCells(const WaveData& wave, std::int32_t cells)
    {
        SampleList levels;
        for (std::int32_t cell = 0; cell < cells; ++cell)
            levels.push_back(cell * kCellFrames < wave.Length ? wave.WavL[cell * kCellFrames + 1] : std::int16_t{0});
        return levels;
    }

    void ExpectSignsRestored() const
    {
        EXPECT_EQ(services.screen.hourglasses, 0);
        EXPECT_EQ(services.screen.processPics, 0);
        EXPECT_TRUE(services.messages.shown.empty());
    }

    FakeServices services;
};

} // namespace sprout
