// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <span>
#include <vector>

#include "stretch/Float4.h"
#include "stretch/Sizes.h"

namespace sprout::stretch {

/// How much of a block is used. The rest is taken for silence on the way to the spectrum, whatever it holds, and has no
/// meaning on the way back.
enum class UsedPart { Whole, ThreeQuarters };

/// Fourier transforms of four real blocks of one size at once, one in each lane.
///
/// A radix-4 transform, decimated in time, of half the size: even samples are its real parts, odd ones its imaginary
/// parts. Each lane is computed without a look at the others, so it does not matter which blocks share a call. Only
/// holds tables, so several threads may share one.
class FftBatch {
public:
    /// size: a power of two, at least 64.
    explicit FftBatch(Index size);

    [[nodiscard]] Index Size() const { return 2 * half; }
    [[nodiscard]] Index Bins() const { return half + 1; }

    /// blocks: Size() / 2 pairs of samples; spectra: Bins() bins, from 0 to half the rate, not scaled.
    void Forward(std::span<const Complex4> blocks, std::span<Complex4> spectra, UsedPart used = UsedPart::Whole) const;

    /// The inverse, Size() times too large: forward and inverse together multiply by Size(). The content of `spectra`
    /// is lost.
    void Inverse(std::span<Complex4> spectra, std::span<Complex4> blocks, UsedPart used = UsedPart::Whole) const;

private:
    /// The factors of the last three of a butterfly's four inputs, each in all four lanes already: to spread one takes
    /// the place of an addition, of which there are most.
    using Twiddles = std::array<Complex4, 3>;

    /// What a transform multiplies with in one direction.
    struct Tables {
        std::vector<std::vector<Twiddles>> levels; // from the whole transform down to its parts of 16 or 32
        Twiddles eighths;                          // of the parts of eight
        std::vector<Complex4> real;                // of bins 1 to half / 2, between the half and the whole size
        Index second = 1; // where a butterfly's second result goes; the fourth goes to 4 - second
    };

    static Tables MakeTables(Index half, double direction);
    template <UsedPart>
    static void TransformFour(const Complex4* in, Index step, Complex4* out, Index second);
    template <UsedPart>
    static void TransformEight(const Tables& tables, const Complex4* in, Index step, Complex4* out);
    template <UsedPart>
    static void Combine(const std::vector<Twiddles>& level, Complex4* parts, Index second);
    template <UsedPart>
    static void TransformParts(const Tables& tables, std::size_t depth, const Complex4* in, Index step, Complex4* out);
    template <UsedPart In, UsedPart Out>
    static void Transform(const Tables& tables, const Complex4* in, Complex4* out);

    Index half;
    Tables forward;
    Tables inverse;
};

/// The calling thread's transforms of that size, created at their first use. Throws std::bad_alloc.
[[nodiscard]] const FftBatch& FftBatchOfSize(Index size);

} // namespace sprout::stretch
