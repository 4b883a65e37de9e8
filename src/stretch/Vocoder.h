// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <span>
#include <vector>

#include "service/Fft.h"
#include "stretch/PeakRegions.h"
#include "stretch/TimeMap.h"

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
/// For each frame of the result the input is analysed at the mapped moment u and one hop before u. Each peak turns from
/// the result's last frame to this one by as much as it turned in between, so no phase is unwrapped; the bins around a
/// peak turn with it (Laroche and Dolson 1999; the second analysis after Puckette 1995). Consecutive unstretched frames
/// come out unchanged.
class Vocoder {
public:
    /// window: samples, even and a multiple of the overlap of 4. binGains: for each bin of FftSizeFor(window).
    Vocoder(Index window, std::vector<float> binGains);

    [[nodiscard]] static Index FftSizeFor(Index window);

    /// Adds the stretched `sound` to `result`, whose length sets the stretched length.
    void AddStretched(std::span<const float> sound, const TimeMap& map, std::span<float> result);

private:
    struct Analysis {
        Index at = 0;
        bool valid = false;
        std::vector<FftBin> bins;
    };

    const std::vector<FftBin>& Analyse(std::span<const float> sound, Index at);
    void Turn(const std::vector<FftBin>& now, const std::vector<FftBin>& before);
    void OverlapAdd(std::span<const float> sound, Index from, Index at);

    Index hop;
    Fft& fft;
    std::span<const float> shape; // of the window
    std::vector<float> gains;
    Index usedBins;
    std::array<Analysis, 4> analyses; // the two of this frame, and those of the last one that it may share
    std::size_t oldest = 0;
    std::vector<float> block;
    std::vector<float> power;
    std::vector<PeakRegion> regions;
    std::vector<FftBin> last;   // the result's last frame, before the gains
    std::vector<FftBin> scaled; // the same after them
    std::vector<float> sum;
    std::vector<float> weights;
};

} // namespace sprout::stretch
