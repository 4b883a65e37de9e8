// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/LevelMeter.h"

#include <gtest/gtest.h>

#include <vector>

namespace sprout {
namespace {

using Samples = std::vector<std::int16_t>;

void AddTo(ChannelMeter& meter, std::int16_t sample, std::size_t times)
{
    for (std::size_t i = 0; i < times; ++i)
        meter.Add(sample);
}

TEST(LevelMeter, TellsTheGreatestSampleOfEachChannel)
{
    LevelMeter meter;
    EXPECT_TRUE(meter.Add(Samples{5, -7, -300, 20, 0, 1}));
    EXPECT_EQ(meter.Left().Peak(), 300);
    EXPECT_EQ(meter.Right().Peak(), 20);
}

TEST(LevelMeter, TellsWhetherAnySampleIsNotZero)
{
    LevelMeter meter;
    EXPECT_FALSE(meter.Add(Samples{0, 0, 0, 0}));
    EXPECT_TRUE(meter.Add(Samples{0, 0, 0, 1}));
    EXPECT_TRUE(meter.Add(Samples{-1, 0}));
    EXPECT_FALSE(meter.Add({}));
}

TEST(ChannelMeter, HoldsTheLeastSampleToTheGreatest)
{
    ChannelMeter meter;
    meter.Add(-32768);
    EXPECT_EQ(meter.Peak(), 32767);
}

TEST(ChannelMeter, ForgetsWhatIsOlderThanAFifthOfASecond)
{
    ChannelMeter meter;
    meter.Add(1000);
    AddTo(meter, 10, kMeterPieces * kMeterPieceFrames - 1);
    EXPECT_EQ(meter.Peak(), 1000);
    meter.Add(10);
    EXPECT_EQ(meter.Peak(), 10);
}

TEST(ChannelMeter, IsOverloadedByThreeSamplesInARowAtFullScaleForGood)
{
    ChannelMeter meter;
    AddTo(meter, 32767, 2);
    meter.Add(0);
    AddTo(meter, -32768, 2);
    EXPECT_FALSE(meter.IsOverloaded());
    meter.Add(32767);
    EXPECT_TRUE(meter.IsOverloaded());
    AddTo(meter, 0, 20000);
    EXPECT_TRUE(meter.IsOverloaded());
}

} // namespace
} // namespace sprout
