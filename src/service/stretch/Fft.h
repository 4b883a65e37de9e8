// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "service/stretch/Sizes.h"

#include <complex>
#include <memory>
#include <span>

namespace sprout::stretch {

using Bin = std::complex<float>;

/// Fourier transform of real blocks of one size; holds scratch memory, so one thread at a time may use it.
class Fft {
public:
    /// size: even, best a product of 2, 3 and 5. Throws std::bad_alloc.
    explicit Fft(Index size);
    ~Fft();
    Fft(const Fft&) = delete;
    Fft& operator=(const Fft&) = delete;

    [[nodiscard]] Index Size() const { return size_; }
    [[nodiscard]] Index Bins() const { return size_ / 2 + 1; }

    /// block: Size() samples; spectrum: Bins() bins, from 0 to half the rate, not scaled.
    void Forward(std::span<const float> block, std::span<Bin> spectrum);

    /// The reverse, Size() times too large: forward and inverse together multiply by Size().
    void Inverse(std::span<const Bin> spectrum, std::span<float> block);

private:
    struct Plans;
    Index size_;
    std::unique_ptr<Plans> plans_;
};

/// The calling thread's transform of that size, made at its first use. Throws std::bad_alloc.
[[nodiscard]] Fft& FftOfSize(Index size);

} // namespace sprout::stretch
