// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/Fft.h"

#include <gtest/gtest.h>

#include <thread>

#include "stretch/TestSounds.h"

namespace sprout {

TEST(Fft, FindsASineInItsBin)
{
    Fft fft(1024);
    std::vector<FftBin> spectrum(static_cast<std::size_t>(fft.Bins()));
    fft.Forward(SineFloats(1024, 32, 1, 1024), spectrum);
    EXPECT_NEAR(std::abs(spectrum[32]), 512, 0.1);
    EXPECT_NEAR(std::abs(spectrum[31]), 0, 0.1);
}

TEST(Fft, ReturnsTheBlockTimesItsSizeAfterBothWays)
{
    Fft fft(96);
    const std::vector<float> block = NoiseFloats(96, 100);
    std::vector<FftBin> spectrum(static_cast<std::size_t>(fft.Bins()));
    std::vector<float> back(96);
    fft.Forward(block, spectrum);
    fft.Inverse(spectrum, back);
    for (std::size_t i = 0; i < block.size(); ++i)
        EXPECT_NEAR(back[i] / 96, block[i], 1e-3);
}

TEST(FftOfSize, IsMadeOnceAThreadAndNotSharedBetweenThreads)
{
    Fft* here = &FftOfSize(64);
    Fft* there = nullptr;
    std::thread([&there] { there = &FftOfSize(64); }).join();
    EXPECT_EQ(&FftOfSize(64), here);
    EXPECT_NE(there, here);
}

} // namespace sprout
