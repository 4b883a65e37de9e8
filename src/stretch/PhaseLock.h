// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <complex>
#include <span>
#include <vector>

#include "stretch/Float4.h"
#include "stretch/PeakRegions.h"

namespace sprout::stretch {

/// Continues the phases of a sound from frame to frame, with peaks that lock
/// their surroundings.
///
/// Each peak turns from the result's last frame to this one by as much as it
/// turned between two analyses one hop apart, so no phase is unwrapped; the
/// bins around a peak turn with it (Laroche and Dolson 1999; the second
/// analysis after Puckette 1995). Takes four consecutive frames at once, one in
/// each lane.
class PhaseLock {
public:
    /// usedBins: how many bins of the spectra are wanted; bins: how many they
    /// have.
    PhaseLock(Index usedBins, Index bins);

    /// The next frame is the first of a sound and keeps its phases.
    void Restart() { fresh = true; }

    /// Turns the used bins of four frames in place. before: the same, analysed
    /// one hop earlier.
    void Turn(std::span<Complex4> frames, std::span<const Complex4> before);

private:
    /// How far each region of a frame turns, four regions beside each other.
    using Turns = std::vector<Complex4>;

    void MeasurePower(std::span<const Complex4> frames);
    void NumberRegions();
    void ListTurns(std::size_t lane, std::span<const Complex4> frames, std::span<const Complex4> before);
    void Follow(std::size_t lane, std::span<const Complex4> frames, std::span<const Complex4> before);
    void Apply(std::span<Complex4> frames);

    bool fresh = true;
    std::vector<Float4> power;
    PeakRegions regions;
    std::array<Turns, kLanes> turns;
    std::vector<Int4> turnsAnew;           // -1 in the lanes whose turn changes at a bin
    std::vector<Int4> regionAt;            // the number of the region at each used bin
    std::vector<Complex4> newTurns;        // from that bin on
    std::vector<std::complex<float>> last; // the frame before the four
};

} // namespace sprout::stretch
