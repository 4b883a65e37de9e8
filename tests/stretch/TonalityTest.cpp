// SPDX-License-Identifier: GPL-3.0-or-later
#include "stretch/Tonality.h"

#include <gtest/gtest.h>

#include "stretch/TestSounds.h"

namespace sprout::stretch {

TEST(FlatnessDb, TellsNoiseFromTones)
{
    const Sizes sizes = SizesFor(44100);
    EXPECT_NEAR(FlatnessDb(NoiseFloats(44100), sizes), -2.5, 1);
    EXPECT_LT(FlatnessDb(SineFloats(44100, 440), sizes), -11);
    EXPECT_LT(FlatnessDb(StruckFloats(44100, 0), sizes), -11);
}

TEST(FlatnessDb, IsFiniteForSilenceAndForTheLoudestSound)
{
    const Sizes sizes = SizesFor(44100);
    EXPECT_EQ(FlatnessDb(std::vector<float>(9000), sizes), -100);
    const double loudest = FlatnessDb(SineFloats(9000, 3000, 32767), sizes);
    EXPECT_TRUE(std::isfinite(loudest));
}

TEST(IsNoisy, HoldsForShortBlocksAndLowRates)
{
    EXPECT_TRUE(IsNoisy(NoiseFloats(1300), SizesFor(44100)));
    EXPECT_TRUE(IsNoisy(NoiseFloats(5000), SizesFor(11025)));
    EXPECT_FALSE(IsNoisy(SineFloats(5000, 440, 16000, 11025), SizesFor(11025)));
}

} // namespace sprout::stretch
