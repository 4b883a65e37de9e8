// SPDX-License-Identifier: GPL-3.0-or-later
#include "stretch/PeakRegions.h"

#include <gmock/gmock.h>

#include <algorithm>

#include "stretch/FftBatch.h"
#include "stretch/TestSounds.h"
#include "stretch/Window.h"

namespace sprout::stretch {
namespace {

/// The regions of one spectrum in a lane of its own beside silent ones.
std::vector<PeakRegion> RegionsOf(const std::vector<float>& power, std::size_t lane = 1)
{
    std::vector<Float4> four(power.size());
    for (std::size_t bin = 0; bin < power.size(); ++bin)
        four[bin][lane] = power[bin];
    PeakRegions regions(std::ssize(power));
    regions.Find(four);
    return {regions.InLane(lane).begin(), regions.InLane(lane).end()};
}

} // namespace

TEST(PeakRegions, BordersPeaksAtTheMinimumBetweenThem)
{
    const std::vector<float> power{0, 1, 3, 9, 4, 2, 1, 2, 5, 8, 3, 1};
    EXPECT_THAT(RegionsOf(power), testing::ElementsAre(PeakRegion{0, 3, 6}, PeakRegion{6, 9, 12}));
}

TEST(PeakRegions, WantsAPeakAboveTwoNeighboursOnEachSide)
{
    EXPECT_THAT(RegionsOf({0, 5, 2, 4, 1, 1, 1, 1}), testing::IsEmpty());
    EXPECT_THAT(RegionsOf({0, 1, 2, 4, 1, 1, 1, 1}), testing::ElementsAre(PeakRegion{0, 3, 8}));
}

TEST(PeakRegions, FindsAPeakAtEachPlaceOfEachLane)
{
    for (std::size_t bins = 5; bins < 16; ++bins)
        for (std::size_t peak = 2; peak + 2 < bins; ++peak)
            for (std::size_t lane = 0; lane < kLanes; ++lane) {
                std::vector<float> power(bins);
                power[peak] = 1;
                const PeakRegion expected{0, static_cast<Index>(peak), static_cast<Index>(bins)};
                EXPECT_THAT(RegionsOf(power, lane), testing::ElementsAre(expected)) << bins << " " << peak;
            }
}

TEST(PeakRegions, FindsNoneInSilence)
{
    EXPECT_THAT(RegionsOf(std::vector<float>(100)), testing::IsEmpty());
    EXPECT_THAT(RegionsOf({1}), testing::IsEmpty());
}

TEST(PeakRegions, KeepsTheSideLobesOfASineWithItsPeak)
{
    std::vector<Complex4> blocks(2048);
    std::vector<Complex4> spectra(2049);
    WindowBlocks(SineFloats(3072, 5000), {0, 0, 0, 0}, HannWindow(3072), blocks);
    FftBatchOfSize(4096).Forward(blocks, spectra);
    std::vector<float> power;
    for (const Complex4& bin : spectra)
        power.push_back(bin.re[0] * bin.re[0] + bin.im[0] * bin.im[0]);
    const std::vector<PeakRegion> regions = RegionsOf(power);
    const auto main = std::find_if(regions.begin(), regions.end(), [](const PeakRegion& r) { return r.peak == 464; });
    ASSERT_NE(main, regions.end());
    EXPECT_LT(main->first, 464 - 20);
    EXPECT_GT(main->end, 464 + 20);
}

TEST(PeakRegions, BordersPeaksOnBothSidesOfTheMiddle)
{
    // Twelve bins: the lowest one between the peaks lies in the first half, in the second, or in both.
    EXPECT_THAT(RegionsOf({0, 1, 3, 9, 1, 2, 3, 4, 5, 8, 3, 1}),
                testing::ElementsAre(PeakRegion{0, 3, 4}, PeakRegion{4, 9, 12}));
    EXPECT_THAT(RegionsOf({0, 1, 3, 9, 4, 3, 2, 1, 5, 8, 3, 1}),
                testing::ElementsAre(PeakRegion{0, 3, 7}, PeakRegion{7, 9, 12}));
    EXPECT_THAT(RegionsOf({0, 1, 3, 9, 4, 2, 2, 3, 5, 8, 3, 1}),
                testing::ElementsAre(PeakRegion{0, 3, 5}, PeakRegion{5, 9, 12}));
    EXPECT_THAT(RegionsOf({0, 1, 9, 2, 4, 3, 8, 7, 1, 0, 1, 0, 0}),
                testing::ElementsAre(PeakRegion{0, 2, 3}, PeakRegion{3, 6, 13}));
}

TEST(PeakRegions, AreFoundInEachLaneForItself)
{
    const std::vector<float> one{0, 1, 3, 9, 4, 2, 1, 2, 5, 8, 3, 1};
    const std::vector<float> other{9, 4, 2, 1, 5, 9, 5, 4, 3, 2, 1, 0};
    std::vector<Float4> power(one.size());
    for (std::size_t bin = 0; bin < one.size(); ++bin)
        power[bin] = Float4{one[bin], other[bin], 0, one[bin]};
    PeakRegions regions(std::ssize(power));
    for (int time = 0; time < 2; ++time) {
        regions.Find(power);
        EXPECT_THAT(regions.InLane(0), testing::ElementsAre(PeakRegion{0, 3, 6}, PeakRegion{6, 9, 12}));
        EXPECT_THAT(regions.InLane(1), testing::ElementsAre(PeakRegion{0, 5, 12}));
        EXPECT_THAT(regions.InLane(2), testing::IsEmpty());
        EXPECT_THAT(regions.InLane(3), testing::ElementsAre(PeakRegion{0, 3, 6}, PeakRegion{6, 9, 12}));
    }
}

} // namespace sprout::stretch
