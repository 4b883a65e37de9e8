// SPDX-License-Identifier: GPL-3.0-or-later
#include "stretch/PeakRegions.h"

#include <gmock/gmock.h>

#include <algorithm>

#include "service/Fft.h"
#include "stretch/TestSounds.h"
#include "stretch/Window.h"

namespace sprout::stretch {
namespace {

std::vector<PeakRegion> RegionsOf(const std::vector<float>& power)
{
    std::vector<PeakRegion> regions{{1, 2, 3}};
    FindPeakRegions(power, regions);
    return regions;
}

} // namespace

TEST(FindPeakRegions, BordersPeaksAtTheMinimumBetweenThem)
{
    const std::vector<float> power{0, 1, 3, 9, 4, 2, 1, 2, 5, 8, 3, 1};
    EXPECT_THAT(RegionsOf(power), testing::ElementsAre(PeakRegion{0, 3, 6}, PeakRegion{6, 9, 12}));
}

TEST(FindPeakRegions, WantsAPeakAboveTwoNeighboursOnEachSide)
{
    EXPECT_THAT(RegionsOf({0, 5, 2, 4, 1, 1, 1, 1}), testing::IsEmpty());
    EXPECT_THAT(RegionsOf({0, 1, 2, 4, 1, 1, 1, 1}), testing::ElementsAre(PeakRegion{0, 3, 8}));
}

TEST(FindPeakRegions, FindsNoneInSilence)
{
    EXPECT_THAT(RegionsOf(std::vector<float>(100)), testing::IsEmpty());
    EXPECT_THAT(RegionsOf({1}), testing::IsEmpty());
}

TEST(FindPeakRegions, KeepsTheSideLobesOfASineWithItsPeak)
{
    Fft fft(4096);
    std::vector<float> block(4096);
    std::vector<FftBin> spectrum(2049);
    WindowBlock(SineFloats(3072, 5000), 0, HannWindow(3072), block);
    fft.Forward(block, spectrum);
    std::vector<float> power;
    for (const FftBin bin : spectrum)
        power.push_back(std::norm(bin));
    std::vector<PeakRegion> regions = RegionsOf(power);
    const auto main = std::find_if(regions.begin(), regions.end(), [](const PeakRegion& r) { return r.peak == 464; });
    ASSERT_NE(main, regions.end());
    EXPECT_LT(main->first, 464 - 20);
    EXPECT_GT(main->end, 464 + 20);
}

} // namespace sprout::stretch
