// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/stretch/Vocoder.h"

#include "service/stretch/Window.h"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <numbers>

namespace sprout::stretch {
namespace {

constexpr Index kOverlap = 4;
// Where the windows add up to less than this, nothing of the sound lies under them.
constexpr float kLeastWeight = 1e-4F;

// The operators of std::complex look for infinities; these do not and are several times as fast.
Bin Times(Bin a, Bin b)
{
    return {a.real() * b.real() - a.imag() * b.imag(), a.real() * b.imag() + a.imag() * b.real()};
}

/// The direction of a / b, or none where either is nothing.
Bin DirectionBetween(Bin a, Bin b)
{
    const Bin product = Times(a, std::conj(b));
    const float size = std::sqrt(std::norm(product));
    return size > 1e-20F ? Bin{product.real() / size, product.imag() / size} : Bin{1, 0};
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
    if (crossover.keep == Crossover::Keep::All) {
        return gains;
    }
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
    while (size < window) {
        size *= 2;
    }
    return size;
}

Vocoder::Vocoder(Index window, std::vector<float> gains)
    : hop_(window / kOverlap),
      fft_(FftOfSize(FftSizeFor(window))),
      window_(HannWindow(window)),
      gains_(std::move(gains)),
      usedBins_(static_cast<Index>(LastUsedBin(gains_))),
      block_(static_cast<std::size_t>(fft_.Size())),
      last_(static_cast<std::size_t>(fft_.Bins())),
      scaled_(static_cast<std::size_t>(fft_.Bins()))
{
    assert(std::ssize(gains_) == fft_.Bins());
    for (Analysis& analysis : analyses_) {
        analysis.bins.resize(last_.size());
    }
    // Two more than are used: a peak near the upper end needs its neighbours.
    power_.resize(static_cast<std::size_t>(std::min(usedBins_ + 2, fft_.Bins())));
}

const std::vector<Bin>& Vocoder::Analyse(std::span<const float> sound, Index at)
{
    for (const Analysis& analysis : analyses_) {
        if (analysis.valid && analysis.at == at) {
            return analysis.bins;
        }
    }
    Analysis& analysis = analyses_[oldest_];
    oldest_ = (oldest_ + 1) % analyses_.size();
    WindowBlock(sound, at - std::ssize(window_) / 2, window_, block_);
    fft_.Forward(block_, analysis.bins);
    analysis.at = at;
    analysis.valid = true;
    return analysis.bins;
}

/// Makes `last_` the spectrum `now`, each peak turned on from `last_` as far as it turned from `before` to `now`.
void Vocoder::Turn(const std::vector<Bin>& now, const std::vector<Bin>& before)
{
    for (std::size_t bin = 0; bin < power_.size(); ++bin) {
        power_[bin] = now[bin].real() * now[bin].real() + now[bin].imag() * now[bin].imag();
    }
    FindPeakRegions(power_, regions_);
    if (regions_.empty()) {
        std::copy(now.begin(), now.end(), last_.begin());
        return;
    }
    for (const PeakRegion& region : regions_) {
        const auto peak = static_cast<std::size_t>(region.peak);
        const Bin turn = DirectionBetween(last_[peak], before[peak]);
        for (auto bin = static_cast<std::size_t>(region.first); bin < static_cast<std::size_t>(region.end); ++bin) {
            last_[bin] = Times(now[bin], turn);
        }
    }
}

/// Adds the frame in `last_`, analysed at `from`, to the sums around `at`.
///
/// Only what lies inside the sound counts as weight: at its ends the frames would otherwise pull the level down.
void Vocoder::OverlapAdd(std::span<const float> sound, Index from, Index at)
{
    for (std::size_t bin = 0; bin < static_cast<std::size_t>(usedBins_); ++bin) {
        scaled_[bin] = {last_[bin].real() * gains_[bin], last_[bin].imag() * gains_[bin]};
    }
    fft_.Inverse(scaled_, block_);
    const Index half = std::ssize(window_) / 2;
    const Index first = std::max<Index>({0, at - half, at - from});
    const Index end = std::min<Index>({std::ssize(sum_), at + half, at - from + std::ssize(sound)});
    for (Index out = first; out < end; ++out) {
        const auto inBlock = static_cast<std::size_t>(out - at + half);
        const float window = window_[inBlock];
        sum_[static_cast<std::size_t>(out)] += window * block_[inBlock];
        weights_[static_cast<std::size_t>(out)] += window * window;
    }
}

void Vocoder::AddStretched(std::span<const float> sound, const TimeMap& map, std::span<float> result)
{
    sum_.assign(result.size(), 0.0F);
    weights_.assign(result.size(), 0.0F);
    for (Analysis& analysis : analyses_) {
        analysis.valid = false;
    }
    const Index half = std::ssize(window_) / 2;
    for (Index out = 0; out - half < std::ssize(result) && map(out) - half < std::ssize(sound); out += hop_) {
        const Index in = map(out);
        const std::vector<Bin>& now = Analyse(sound, in);
        if (out == 0) {
            std::copy(now.begin(), now.end(), last_.begin());
        } else {
            Turn(now, Analyse(sound, in - hop_));
        }
        OverlapAdd(sound, in, out);
    }
    const float scale = 1 / static_cast<float>(fft_.Size());
    for (std::size_t i = 0; i < result.size(); ++i) {
        result[i] += sum_[i] * scale / std::max(weights_[i], kLeastWeight);
    }
}

} // namespace sprout::stretch
