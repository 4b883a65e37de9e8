// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <vector>

#include "stretch/FftBatch.h"
#include "stretch/PhaseLock.h"
#include "stretch/TimeMap.h"
#include "stretch/Window.h"

namespace sprout::stretch {

/// The part of the spectrum that a vocoder passes: nothing below `fromHz`, everything above `toHz`, or the reverse.
struct Crossover {
    enum class Keep { All, Low, High };
    Keep keep = Keep::All;
    double fromHz = 0;
    double toHz = 0;
};

/// Gain of each bin of a transform of `fftSize` samples at `rate`: a raised cosine between the two frequencies, so the
/// gains for Low and High add up to 1.
[[nodiscard]] std::vector<float> CrossoverGains(const Crossover& crossover, Index fftSize, double rate);

/// A phase vocoder with locked peaks.
///
/// For each frame of the result the input is analysed at the mapped moment u and one hop before u, which tells how far
/// to turn its peaks. Consecutive unstretched frames come out unchanged. Four frames are transformed at once.
class Vocoder {
public:
    /// window: samples, even and a multiple of the overlap of 4. binGains: for each bin of FftSizeFor(window).
    Vocoder(Index window, std::vector<float> binGains);

    [[nodiscard]] static Index FftSizeFor(Index window);

    /// Adds the stretched `sound` to `result`, whose length sets the stretched length.
    void AddStretched(std::span<const float> sound, const TimeMap& map, std::span<float> result);

private:
    void Analyse(std::span<const float> sound, const FourPlaces& places, Index shift, std::span<Complex4> spectra);
    void Weaken(std::span<Complex4> spectra) const;
    void OverlapAdd(std::span<const float> row, std::span<const float> sound, Index from, Index at);

    Index hop;
    const FftBatch& fft;
    std::span<const float> shape; // of the window
    UsedPart used;                // of each block, by the window
    std::vector<float> gains;     // of the bins that are used
    bool passesAll;
    PhaseLock phases;
    std::vector<Complex4> blocks;
    std::vector<Complex4> frames;
    std::vector<Complex4> before;
    std::vector<float> samples; // of the four frames, one after the other
    std::vector<float> sum;
    std::vector<float> weights;
};

} // namespace sprout::stretch
