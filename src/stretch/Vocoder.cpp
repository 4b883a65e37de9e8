// SPDX-License-Identifier: GPL-3.0-or-later
#include "stretch/Vocoder.h"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <numbers>

#include "stretch/Window.h"

namespace sprout::stretch {
namespace {

constexpr Index kOverlap = 4;
// If the windows add up to less than this, there is no sound under them.
constexpr float kLeastWeight = 1e-4F;

// The operators of std::complex look for infinities; these do not and are several times as fast.
FftBin Times(FftBin a, FftBin b)
{
    return {a.real() * b.real() - a.imag() * b.imag(), a.real() * b.imag() + a.imag() * b.real()};
}

/// The direction of a / b, or no turn if either is zero.
FftBin DirectionBetween(FftBin a, FftBin b)
{
    const FftBin product = Times(a, std::conj(b));
    const float size = std::sqrt(std::norm(product));
    return size > 1e-20F ? FftBin{product.real() / size, product.imag() / size} : FftBin{1, 0};
}

std::size_t LastUsedBin(const std::vector<float>& gains)
{
    const auto last = std::find_if(gains.rbegin(), gains.rend(), [](float gain) { return gain > 0; });
    return static_cast<std::size_t>(gains.rend() - last);
}

} // namespace

std::vector<float> CrossoverGains(const Crossover& crossover, Index fftSize, double rate)
{
    std::vector<float> gains(static_cast<std::size_t>(fftSize / 2 + 1), 1.0F);
    if (crossover.keep == Crossover::Keep::All)
        return gains;
    for (std::size_t bin = 0; bin < gains.size(); ++bin) {
        const double hz = static_cast<double>(bin) * rate / static_cast<double>(fftSize);
        const double way = std::clamp((hz - crossover.fromHz) / (crossover.toHz - crossover.fromHz), 0.0, 1.0);
        const double high = 0.5 - 0.5 * std::cos(std::numbers::pi * way);
        gains[bin] = static_cast<float>(crossover.keep == Crossover::Keep::High ? high : 1 - high);
    }
    return gains;
}

Index Vocoder::FftSizeFor(Index window)
{
    Index size = 64;
    while (size < window)
        size *= 2;
    return size;
}

Vocoder::Vocoder(Index window, std::vector<float> binGains)
    : hop(window / kOverlap),
      fft(FftOfSize(FftSizeFor(window))),
      shape(HannWindow(window)),
      gains(std::move(binGains)),
      usedBins(static_cast<Index>(LastUsedBin(gains))),
      block(static_cast<std::size_t>(fft.Size())),
      last(static_cast<std::size_t>(fft.Bins())),
      scaled(static_cast<std::size_t>(fft.Bins()))
{
    assert(std::ssize(gains) == fft.Bins());
    for (Analysis& analysis : analyses)
        analysis.bins.resize(last.size());
    // Two more than used: a peak near the upper end needs its neighbours.
    power.resize(static_cast<std::size_t>(std::min(usedBins + 2, fft.Bins())));
}

const std::vector<FftBin>& Vocoder::Analyse(std::span<const float> sound, Index at)
{
    for (const Analysis& analysis : analyses)
        if (analysis.valid && analysis.at == at)
            return analysis.bins;
    Analysis& analysis = analyses[oldest];
    oldest = (oldest + 1) % analyses.size();
    WindowBlock(sound, at - std::ssize(shape) / 2, shape, block);
    fft.Forward(block, analysis.bins);
    analysis.at = at;
    analysis.valid = true;
    return analysis.bins;
}

/// Sets `last` to the spectrum `now`, each peak turned from `last` as far as it turned from `before` to `now`.
void Vocoder::Turn(const std::vector<FftBin>& now, const std::vector<FftBin>& before)
{
    for (std::size_t bin = 0; bin < power.size(); ++bin)
        power[bin] = now[bin].real() * now[bin].real() + now[bin].imag() * now[bin].imag();
    FindPeakRegions(power, regions);
    if (regions.empty()) {
        std::copy(now.begin(), now.end(), last.begin());
        return;
    }
    for (const PeakRegion& region : regions) {
        const auto peak = static_cast<std::size_t>(region.peak);
        const FftBin turn = DirectionBetween(last[peak], before[peak]);
        for (auto bin = static_cast<std::size_t>(region.first); bin < static_cast<std::size_t>(region.end); ++bin)
            last[bin] = Times(now[bin], turn);
    }
}

/// Adds the frame in `last`, analysed at `from`, to the sums around `at`.
///
/// Only the part inside the sound counts as weight; otherwise the frames would lower the level at its ends.
void Vocoder::OverlapAdd(std::span<const float> sound, Index from, Index at)
{
    for (std::size_t bin = 0; bin < static_cast<std::size_t>(usedBins); ++bin)
        scaled[bin] = {last[bin].real() * gains[bin], last[bin].imag() * gains[bin]};
    fft.Inverse(scaled, block);
    const Index half = std::ssize(shape) / 2;
    const Index first = std::max<Index>({0, at - half, at - from});
    const Index end = std::min<Index>({std::ssize(sum), at + half, at - from + std::ssize(sound)});
    for (Index out = first; out < end; ++out) {
        const auto inBlock = static_cast<std::size_t>(out - at + half);
        const float weight = shape[inBlock];
        sum[static_cast<std::size_t>(out)] += weight * block[inBlock];
        weights[static_cast<std::size_t>(out)] += weight * weight;
    }
}

void Vocoder::AddStretched(std::span<const float> sound, const TimeMap& map, std::span<float> result)
{
    sum.assign(result.size(), 0.0F);
    weights.assign(result.size(), 0.0F);
    for (Analysis& analysis : analyses)
        analysis.valid = false;
    const Index half = std::ssize(shape) / 2;
    for (Index out = 0; out - half < std::ssize(result) && map(out) - half < std::ssize(sound); out += hop) {
        const Index in = map(out);
        const std::vector<FftBin>& now = Analyse(sound, in);
        if (out == 0)
            std::copy(now.begin(), now.end(), last.begin());
        else
            Turn(now, Analyse(sound, in - hop));
        OverlapAdd(sound, in, out);
    }
    const float scale = 1 / static_cast<float>(fft.Size());
    for (std::size_t i = 0; i < result.size(); ++i)
        result[i] += sum[i] * scale / std::max(weights[i], kLeastWeight);
}

} // namespace sprout::stretch
