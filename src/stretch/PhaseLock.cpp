// SPDX-License-Identifier: GPL-3.0-or-later
#include "stretch/PhaseLock.h"

#include <algorithm>

namespace sprout::stretch {
namespace {

using Bin = std::complex<float>;

Bin BinOf(std::span<const Complex4> frames, Index bin, std::size_t lane)
{
    const Complex4& four = frames[static_cast<std::size_t>(bin)];
    return {four.re[lane], four.im[lane]};
}

// The operators of std::complex look for infinities; these do not and are
// several times as fast.
Bin Times(Bin a, Bin b)
{
    return {a.real() * b.real() - a.imag() * b.imag(), a.real() * b.imag() + a.imag() * b.real()};
}

/// The direction of each lane, or no turn where it is zero.
Complex4 DirectionOf(Complex4 four)
{
    const Float4 size = Root(four.re * four.re + four.im * four.im);
    const Int4 turns = size > 1e-20F;
    return {Choose(turns, four.re / size, Float4{} + 1), Choose(turns, four.im / size, Float4{})};
}

Bin TurnOf(std::span<const Complex4> turns, std::size_t region)
{
    return {turns[region / kLanes].re[region % kLanes], turns[region / kLanes].im[region % kLanes]};
}

} // namespace

// Two more than used: a peak near the upper end needs its neighbours.
PhaseLock::PhaseLock(Index usedBins, Index bins)
    : power(static_cast<std::size_t>(std::min(usedBins + 2, bins))),
      regions(std::ssize(power)),
      turnsAnew(power.size()),
      regionAt(static_cast<std::size_t>(usedBins)),
      newTurns(power.size()),
      last(static_cast<std::size_t>(usedBins))
{
}

void PhaseLock::Turn(std::span<Complex4> frames, std::span<const Complex4> before)
{
    MeasurePower(frames);
    regions.Find(power);
    NumberRegions();
    for (std::size_t lane = 0; lane < kLanes; ++lane)
        ListTurns(lane, frames, before);
    Apply(frames);
}

void PhaseLock::MeasurePower(std::span<const Complex4> frames)
{
    for (std::size_t bin = 0; bin < power.size(); ++bin)
        power[bin] = frames[bin].re * frames[bin].re + frames[bin].im * frames[bin].im;
}

/// Tells in which region each bin lies, in one pass over all lanes: a search among the regions of one lane for each
/// peak of the next would often be mispredicted.
void PhaseLock::NumberRegions()
{
    turnsAnew[0] = Int4{} - 1; // a frame without a peak turns as one region, too
    for (std::size_t lane = 0; lane < kLanes; ++lane)
        for (std::size_t i = 1; i < regions.InLane(lane).size(); ++i)
            turnsAnew[static_cast<std::size_t>(regions.InLane(lane)[i].first)][lane] = -1;
    Int4 number = Int4{} - 1;
    for (std::size_t bin = 0; bin < regionAt.size(); ++bin) {
        number -= turnsAnew[bin];
        regionAt[bin] = number;
    }
}

/// Lists by how much each region of a frame turns. A frame without a peak keeps
/// its phases.
void PhaseLock::ListTurns(std::size_t lane, std::span<const Complex4> frames, std::span<const Complex4> before)
{
    const std::span<const PeakRegion> found = regions.InLane(lane);
    const std::size_t count = std::max<std::size_t>(found.size(), 1);
    turns[lane].assign((count + kLanes - 1) / kLanes, Complex4{Float4{} + 1, Float4{}});
    if (!fresh)
        Follow(lane, frames, before);
    fresh = false;
    for (std::size_t i = 0; i < count; ++i) {
        const auto bin = i == 0 ? 0 : static_cast<std::size_t>(found[i].first);
        const Bin turn = TurnOf(turns[lane], i);
        newTurns[bin].re[lane] = turn.real();
        newTurns[bin].im[lane] = turn.imag();
    }
}

/// Turns the peaks of a frame from where they are in the one before it. Only
/// those bins of that one are needed as they will sound, so it is not turned as
/// a whole yet.
void PhaseLock::Follow(std::size_t lane, std::span<const Complex4> frames, std::span<const Complex4> before)
{
    const std::span<const PeakRegion> found = regions.InLane(lane);
    const auto soundingAt = [&](Index peak) {
        if (lane == 0)
            return last[static_cast<std::size_t>(peak)];
        const auto region = static_cast<std::size_t>(regionAt[static_cast<std::size_t>(peak)][lane - 1]);
        return Times(BinOf(frames, peak, lane - 1), TurnOf(turns[lane - 1], region));
    };
    for (std::size_t i = 0; i < found.size(); ++i) {
        const Index peak = found[i].peak;
        const Bin sounding = soundingAt(peak);
        const Bin turn = Times(sounding, std::conj(BinOf(before, peak, lane)));
        turns[lane][i / kLanes].re[i % kLanes] = turn.real();
        turns[lane][i / kLanes].im[i % kLanes] = turn.imag();
    }
    std::transform(turns[lane].begin(), turns[lane].end(), turns[lane].begin(), DirectionOf);
}

void PhaseLock::Apply(std::span<Complex4> frames)
{
    Complex4 turn{};
    for (std::size_t bin = 0; bin < last.size(); ++bin) {
        turn.re = Choose(turnsAnew[bin], newTurns[bin].re, turn.re);
        turn.im = Choose(turnsAnew[bin], newTurns[bin].im, turn.im);
        turnsAnew[bin] = Int4{};
        const Complex4 frame = frames[bin];
        const Complex4 turned{frame.re * turn.re - frame.im * turn.im, frame.re * turn.im + frame.im * turn.re};
        frames[bin] = turned;
        last[bin] = {turned.re[kLanes - 1], turned.im[kLanes - 1]};
    }
}

} // namespace sprout::stretch
