// SPDX-License-Identifier: GPL-3.0-or-later
#include "stretch/FftBatch.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <complex>
#include <thread>

#include "stretch/TestSounds.h"
#include "stretch/Window.h"

namespace sprout::stretch {
namespace {

/// Four different blocks of noise.
std::vector<Complex4> NoiseBlocks(Index size)
{
    const std::vector<float> ones(static_cast<std::size_t>(size), 1.0F);
    std::vector<Complex4> blocks(ones.size() / 2);
    WindowBlocks(NoiseFloats(4 * ones.size()), {0, size, 2 * size, 3 * size}, ones, blocks);
    return blocks;
}

float SampleOf(const std::vector<Complex4>& blocks, std::size_t i, std::size_t lane)
{
    const Complex4& pair = blocks[i / 2];
    return i % 2 == 0 ? pair.re[lane] : pair.im[lane];
}

/// One bin, by the definition of the transform.
std::complex<double> PlainBin(const std::vector<Complex4>& blocks, std::size_t bin, std::size_t lane)
{
    const std::size_t size = 2 * blocks.size();
    std::complex<double> sum = 0;
    for (std::size_t i = 0; i < size; ++i) {
        const double turn = static_cast<double>(bin * i % size) / static_cast<double>(size);
        sum += std::polar<double>(SampleOf(blocks, i, lane), -2 * std::numbers::pi * turn);
    }
    return sum;
}

std::vector<Complex4> SpectraOf(const std::vector<Complex4>& blocks)
{
    const FftBatch fft(2 * std::ssize(blocks));
    std::vector<Complex4> spectra(static_cast<std::size_t>(fft.Bins()));
    fft.Forward(blocks, spectra);
    return spectra;
}

} // namespace

TEST(FftBatch, TransformsEachLaneOfEverySize)
{
    for (const Index size : {64, 128, 256, 512, 1024, 2048, 4096}) {
        const std::vector<Complex4> blocks = NoiseBlocks(size);
        const std::vector<Complex4> spectra = SpectraOf(blocks);
        const auto half = static_cast<std::size_t>(size / 2);
        const double tolerance = 0.02 * std::sqrt(static_cast<double>(size));
        for (const std::size_t bin : {std::size_t{0}, std::size_t{1}, std::size_t{7}, half / 2, half - 3, half})
            for (std::size_t lane = 0; lane < kLanes; ++lane) {
                const std::complex<double> expected = PlainBin(blocks, bin, lane);
                EXPECT_NEAR(spectra[bin].re[lane], expected.real(), tolerance) << size << " " << bin << " " << lane;
                EXPECT_NEAR(spectra[bin].im[lane], expected.imag(), tolerance) << size << " " << bin << " " << lane;
            }
    }
}

TEST(FftBatch, FindsASineInItsBin)
{
    std::vector<Complex4> blocks(512);
    const std::vector<float> ones(1024, 1.0F);
    WindowBlocks(SineFloats(1024, 32, 1, 1024), {0, 0, 0, 0}, ones, blocks);
    const std::vector<Complex4> spectra = SpectraOf(blocks);
    EXPECT_NEAR(std::hypot(spectra[32].re[2], spectra[32].im[2]), 512, 0.1);
    EXPECT_NEAR(std::hypot(spectra[31].re[2], spectra[31].im[2]), 0, 0.1);
}

TEST(FftBatch, ReturnsTheBlocksTimesTheirSizeAfterBothWays)
{
    for (const Index size : {64, 128, 4096}) {
        const std::vector<Complex4> blocks = NoiseBlocks(size);
        std::vector<Complex4> spectra = SpectraOf(blocks);
        std::vector<Complex4> back(blocks.size());
        FftBatch(size).Inverse(spectra, back);
        for (std::size_t i = 0; i < static_cast<std::size_t>(size); ++i)
            for (std::size_t lane = 0; lane < kLanes; ++lane)
                ASSERT_NEAR(SampleOf(back, i, lane) / static_cast<float>(size), SampleOf(blocks, i, lane), 0.02) << i;
    }
}

TEST(FftBatch, TakesTheUnusedPartOfABlockForSilence)
{
    for (const Index size : {64, 128, 512, 4096}) {
        const std::vector<Complex4> blocks = NoiseBlocks(size);
        std::vector<Complex4> silent = blocks;
        std::fill(silent.end() - size / 8, silent.end(), Complex4{});
        const std::vector<Complex4> expected = SpectraOf(silent);
        std::vector<Complex4> spectra(expected.size());
        FftBatch(size).Forward(blocks, spectra, UsedPart::ThreeQuarters);
        for (std::size_t bin = 0; bin < spectra.size(); ++bin)
            for (std::size_t lane = 0; lane < kLanes; ++lane) {
                ASSERT_EQ(spectra[bin].re[lane], expected[bin].re[lane]) << size << " " << bin;
                ASSERT_EQ(spectra[bin].im[lane], expected[bin].im[lane]) << size << " " << bin;
            }
    }
}

TEST(FftBatch, GivesTheUsedPartOfABlockTheSameBitsAsInTheWhole)
{
    for (const Index size : {64, 128, 512, 4096}) {
        std::vector<Complex4> spectra = SpectraOf(NoiseBlocks(size));
        std::vector<Complex4> copy = spectra;
        std::vector<Complex4> whole(spectra.size() - 1);
        std::vector<Complex4> part(whole.size());
        FftBatch(size).Inverse(spectra, whole);
        FftBatch(size).Inverse(copy, part, UsedPart::ThreeQuarters);
        for (std::size_t i = 0; i < static_cast<std::size_t>(size) * 3 / 4; ++i)
            for (std::size_t lane = 0; lane < kLanes; ++lane)
                ASSERT_EQ(SampleOf(part, i, lane), SampleOf(whole, i, lane)) << size << " " << i;
    }
}

TEST(FftBatch, GivesABlockTheSameBitsInEveryLaneAndCompany)
{
    const std::vector<Complex4> blocks = NoiseBlocks(512);
    std::vector<Complex4> moved(blocks);
    for (Complex4& pair : moved)
        pair = {Float4{1, pair.re[0], 2, pair.re[3]}, Float4{5, pair.im[0], 0, pair.im[3]}};
    const std::vector<Complex4> spectra = SpectraOf(blocks);
    const std::vector<Complex4> spectraMoved = SpectraOf(moved);
    for (std::size_t bin = 0; bin < spectra.size(); ++bin) {
        ASSERT_EQ(spectraMoved[bin].re[1], spectra[bin].re[0]) << bin;
        ASSERT_EQ(spectraMoved[bin].im[1], spectra[bin].im[0]) << bin;
        ASSERT_EQ(spectraMoved[bin].im[3], spectra[bin].im[3]) << bin;
    }
}

TEST(FftBatchOfSize, IsMadeOnceAThread)
{
    const FftBatch* here = &FftBatchOfSize(64);
    const FftBatch* there = nullptr;
    std::thread([&there] { there = &FftBatchOfSize(64); }).join();
    EXPECT_EQ(&FftBatchOfSize(64), here);
    EXPECT_NE(there, here);
}

} // namespace sprout::stretch
