// SPDX-License-Identifier: GPL-3.0-or-later
#include "stretch/PhaseLock.h"

#include <gtest/gtest.h>

#include <cmath>

namespace sprout::stretch {
namespace {

using Bin = std::complex<float>;

constexpr std::size_t kBins = 20;

/// The same spectrum in every lane: peaks at bins 5 and 14, with phases of their own.
std::vector<Complex4> TwoPeaks(Bin low, Bin high)
{
    std::vector<Complex4> spectra(kBins);
    for (std::size_t bin = 0; bin < kBins; ++bin) {
        const bool isHigh = bin >= 10;
        const auto distance = static_cast<float>(bin) - (isHigh ? 14.0F : 5.0F);
        const Bin value = (isHigh ? high : low) * 1000.0F / (1 + distance * distance);
        spectra[bin] = {Float4{} + value.real(), Float4{} + value.imag()};
    }
    return spectra;
}

Bin At(const std::vector<Complex4>& spectra, std::size_t bin, int lane)
{
    return {spectra[bin].re[lane], spectra[bin].im[lane]};
}

double Phase(const std::vector<Complex4>& spectra, std::size_t bin, int lane)
{
    return std::arg(At(spectra, bin, lane));
}

} // namespace

TEST(PhaseLock, LeavesTheFirstFrameAsItIs)
{
    PhaseLock phases(kBins, kBins);
    const std::vector<Complex4> first = TwoPeaks({1, 0}, {0, 1});
    std::vector<Complex4> frames = first;
    phases.Turn(frames, TwoPeaks({0, 1}, {1, 0}));
    for (std::size_t bin = 0; bin < kBins; ++bin)
        EXPECT_EQ(At(frames, bin, 0), At(first, bin, 0)) << bin;
}

TEST(PhaseLock, TurnsEachPeakAsFarAsItTurnedBetweenTheAnalyses)
{
    PhaseLock phases(kBins, kBins);
    // Between the analyses the low peak turns by 0.3 and the high one by -1, in each of the frames.
    const std::vector<Complex4> now = TwoPeaks({1, 0}, std::polar(1.0F, 0.5F));
    const std::vector<Complex4> before = TwoPeaks(std::polar(1.0F, -0.3F), std::polar(1.0F, 1.5F));
    std::vector<Complex4> frames = now;
    phases.Turn(frames, before);
    for (int lane = 0; lane < kLanes; ++lane)
        for (const std::size_t side : {0U, 1U, 3U}) {
            EXPECT_NEAR(Phase(frames, 5 - side, lane), 0.3 * lane, 1e-5);
            EXPECT_NEAR(std::remainder(Phase(frames, 14 + side, lane) - (0.5 - lane), 6.2831853), 0, 1e-5);
        }
    EXPECT_NEAR(std::abs(At(frames, 5, 3)), 1000, 0.01);
}

TEST(PhaseLock, FollowsAPeakFromTheRegionInWhichItLay)
{
    PhaseLock phases(kBins, kBins);
    std::vector<Complex4> frames = TwoPeaks({1, 0}, std::polar(1.0F, 0.5F));
    std::vector<Complex4> before = TwoPeaks(std::polar(1.0F, -0.3F), std::polar(1.0F, 1.5F));
    // The third frame has one peak between the two, which turns by 0.2.
    for (std::size_t bin = 0; bin < kBins; ++bin) {
        const float distance = static_cast<float>(bin) - 12;
        const Bin value = std::polar(1000 / (1 + distance * distance), 0.2F);
        frames[bin].re[2] = value.real();
        frames[bin].im[2] = value.imag();
        before[bin].re[2] = std::abs(value);
        before[bin].im[2] = 0;
    }
    phases.Turn(frames, before);
    EXPECT_NEAR(Phase(frames, 12, 1), 0.5 - 1, 1e-5);
    EXPECT_NEAR(Phase(frames, 12, 2), 0.5 - 1 + 0.2, 1e-5);
    EXPECT_NEAR(Phase(frames, 5, 2), 0.5 - 1 + 0.2, 1e-5);
}

TEST(PhaseLock, GoesOnFromTheLastFrameOfTheFourBefore)
{
    PhaseLock phases(kBins, kBins);
    const std::vector<Complex4> now = TwoPeaks({1, 0}, {1, 0});
    const std::vector<Complex4> before = TwoPeaks(std::polar(1.0F, -0.3F), std::polar(1.0F, -0.1F));
    std::vector<Complex4> frames = now;
    phases.Turn(frames, before);
    frames = now;
    phases.Turn(frames, before);
    EXPECT_NEAR(Phase(frames, 5, 0), 4 * 0.3, 1e-5);
    EXPECT_NEAR(Phase(frames, 14, 3), 7 * 0.1, 1e-5);
    phases.Restart();
    frames = now;
    phases.Turn(frames, before);
    EXPECT_NEAR(Phase(frames, 5, 0), 0, 1e-5);
}

TEST(PhaseLock, LeavesFramesWithoutAPeakAsTheyAre)
{
    PhaseLock phases(kBins, kBins);
    std::vector<Complex4> frames = TwoPeaks({1, 0}, {1, 0});
    phases.Turn(frames, TwoPeaks({0, 1}, {0, 1}));
    std::vector<Complex4> flat(kBins, Complex4{Float4{} + 3, Float4{} + 4});
    phases.Turn(flat, flat);
    for (std::size_t bin = 0; bin < kBins; ++bin)
        EXPECT_EQ(At(flat, bin, 2), Bin(3, 4)) << bin;
}

TEST(PhaseLock, TurnsNoBinAboveThoseThatAreUsed)
{
    PhaseLock phases(10, kBins);
    const std::vector<Complex4> now = TwoPeaks({1, 0}, {1, 0});
    std::vector<Complex4> frames = now;
    phases.Turn(frames, TwoPeaks({0, 1}, {0, 1}));
    EXPECT_NEAR(Phase(frames, 5, 1), -1.5707963, 1e-5);
    for (std::size_t bin = 10; bin < kBins; ++bin)
        EXPECT_EQ(At(frames, bin, 1), At(now, bin, 1)) << bin;
}

} // namespace sprout::stretch
