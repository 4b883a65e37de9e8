// SPDX-License-Identifier: GPL-3.0-or-later
#include "stretch/Tonality.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "stretch/FftBatch.h"
#include "stretch/Window.h"

namespace sprout::stretch {
namespace {

constexpr Index kBinsOfBand = 16;
constexpr Index kMostFrames = 6;
constexpr double kTopHz = 15000;
constexpr double kNoisyDb = -8;
constexpr double kSilentDb = -100;
// A hundredth of the power of one unit of white noise in a bin: keeps the logarithm of digital silence finite.
constexpr double kPowerFloor = 1e-2;

struct WeightedFlatness {
    double sum = 0;
    double weights = 0;
};

/// Adds the flatness of one band of one lane. One logarithm is enough for the whole geometric mean: the product of
/// sixteen powers of 16-bit sound is at most 1e251.
void AddBand(WeightedFlatness& total, std::span<const Complex4> band, std::size_t lane)
{
    double product = 1;
    double sum = 0;
    for (const Complex4& bin : band) {
        const double power =
            static_cast<double>(bin.re[lane] * bin.re[lane] + bin.im[lane] * bin.im[lane]) + kPowerFloor;
        product *= power;
        sum += power;
    }
    const double count = static_cast<double>(band.size());
    const double mean = sum / count;
    const double weight = std::sqrt(mean) - std::sqrt(kPowerFloor);
    total.sum += weight * (std::log(product) / count - std::log(mean));
    total.weights += weight;
}

/// Adds the flatness of all bands of one lane, up to the bin `end`.
void AddSpectrum(WeightedFlatness& total, std::span<const Complex4> spectra, Index end, std::size_t lane)
{
    for (Index bin = kBinsOfBand; bin + kBinsOfBand <= end; bin += kBinsOfBand)
        AddBand(total, spectra.subspan(static_cast<std::size_t>(bin), kBinsOfBand), lane);
}

} // namespace

double FlatnessDb(std::span<const float> sound, const Sizes& sizes)
{
    const Index size = sizes.longWindow * 4 / 3;
    const FftBatch& fft = FftBatchOfSize(size);
    std::vector<Complex4> blocks(static_cast<std::size_t>(size / 2));
    std::vector<Complex4> spectra(static_cast<std::size_t>(fft.Bins()));
    const Index topBin = static_cast<Index>(kTopHz * static_cast<double>(size) / sizes.nominalRate);
    const Index end = std::min(topBin, fft.Bins() - 1);

    // The middle of each of `frames` equal parts: a long sound costs only a few transforms.
    const Index frames = std::clamp<Index>(std::ssize(sound) / size, 1, kMostFrames);
    const auto firstOf = [&](Index frame) { return std::ssize(sound) * (2 * frame + 1) / (2 * frames) - size / 2; };
    WeightedFlatness total;
    for (Index frame = 0; frame < frames; frame += kLanes) {
        const FourPlaces firsts{firstOf(frame), firstOf(frame + 1), firstOf(frame + 2), firstOf(frame + 3)};
        WindowBlocks(sound, firsts, HannWindow(size), blocks);
        fft.Forward(blocks, spectra);
        for (Index lane = 0; lane < std::min<Index>(kLanes, frames - frame); ++lane)
            AddSpectrum(total, spectra, end, static_cast<std::size_t>(lane));
    }
    return total.weights > 0 ? 10 / std::log(10.0) * total.sum / total.weights : kSilentDb;
}

bool IsNoisy(std::span<const float> sound, const Sizes& sizes)
{
    return FlatnessDb(sound, sizes) > kNoisyDb;
}

} // namespace sprout::stretch
