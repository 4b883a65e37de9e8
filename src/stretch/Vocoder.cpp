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

/// Without those of the last bins that are zero.
std::vector<float> UsedGains(std::vector<float> gains)
{
    while (!gains.empty() && !(gains.back() > 0))
        gains.pop_back();
    return gains;
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
      fft(FftBatchOfSize(FftSizeFor(window))),
      shape(HannWindow(window)),
      used(4 * window == 3 * fft.Size() ? UsedPart::ThreeQuarters : UsedPart::Whole),
      gains(UsedGains(std::move(binGains))),
      passesAll(std::ssize(gains) == fft.Bins() && std::count(gains.begin(), gains.end(), 1.0F) == fft.Bins()),
      phases(std::ssize(gains), fft.Bins()),
      blocks(static_cast<std::size_t>(fft.Size() / 2)),
      frames(static_cast<std::size_t>(fft.Bins())),
      before(frames.size()),
      samples(kLanes * shape.size())
{
    assert(std::ssize(gains) <= fft.Bins());
}

/// The spectra of the sound around four places, all moved by `shift`.
void Vocoder::Analyse(std::span<const float> sound, const FourPlaces& places, Index shift, std::span<Complex4> spectra)
{
    FourPlaces firsts = places;
    for (Index& first : firsts)
        first += shift - std::ssize(shape) / 2;
    WindowBlocks(sound, firsts, shape, used == UsedPart::Whole ? blocks : std::span(blocks).first(shape.size() / 2));
    fft.Forward(blocks, spectra, used);
}

void Vocoder::Weaken(std::span<Complex4> spectra) const
{
    if (passesAll)
        return;
    for (std::size_t bin = 0; bin < gains.size(); ++bin)
        spectra[bin] = {spectra[bin].re * gains[bin], spectra[bin].im * gains[bin]};
    std::fill(spectra.begin() + std::ssize(gains), spectra.end(), Complex4{});
}

/// Adds a frame of the result, analysed at `from`, to the sums around `at`.
///
/// Only the part inside the sound counts as weight; otherwise the frames would lower the level at its ends.
void Vocoder::OverlapAdd(std::span<const float> row, std::span<const float> sound, Index from, Index at)
{
    const Index half = std::ssize(shape) / 2;
    const Index first = std::max<Index>({0, at - half, at - from});
    const Index end = std::min<Index>({std::ssize(sum), at + half, at - from + std::ssize(sound)});
    for (Index out = first; out < end; ++out) {
        const auto inRow = static_cast<std::size_t>(out - at + half);
        const float weight = shape[inRow];
        sum[static_cast<std::size_t>(out)] += weight * row[inRow];
        weights[static_cast<std::size_t>(out)] += weight * weight;
    }
}

void Vocoder::AddStretched(std::span<const float> sound, const TimeMap& map, std::span<float> result)
{
    sum.assign(result.size(), 0.0F);
    weights.assign(result.size(), 0.0F);
    phases.Restart();
    const std::size_t width = shape.size();
    const std::span<float> all = samples;
    const std::array rows{all.first(width), all.subspan(width, width), all.subspan(2 * width, width), all.last(width)};
    const Index half = std::ssize(shape) / 2;
    const auto reaches = [&](Index out) {
        return out - half < std::ssize(result) && map(out) - half < std::ssize(sound);
    };
    for (Index out = 0; reaches(out); out += kLanes * hop) {
        const FourPlaces places{map(out), map(out + hop), map(out + 2 * hop), map(out + 3 * hop)};
        Analyse(sound, places, 0, frames);
        Analyse(sound, places, -hop, before);
        phases.Turn(frames, before);
        Weaken(frames);
        fft.Inverse(frames, blocks, used);
        SplitBlocks(blocks, rows);
        for (std::size_t lane = 0; lane < kLanes; ++lane)
            if (const Index at = out + static_cast<Index>(lane) * hop; reaches(at))
                OverlapAdd(rows[lane], sound, places[lane], at);
    }
    const float scale = 1 / static_cast<float>(fft.Size());
    for (std::size_t i = 0; i < result.size(); ++i)
        result[i] += sum[i] * scale / std::max(weights[i], kLeastWeight);
}

} // namespace sprout::stretch
