// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <complex>
#include <cstdint>
#include <memory>
#include <span>

namespace sprout {

using FftBin = std::complex<float>;

/// Fourier transform of real blocks of one size. It holds scratch memory, so only one thread at a time may use it.
class Fft {
public:
    /// size: even, preferably a product of 2, 3 and 5. Throws std::bad_alloc.
    explicit Fft(std::int64_t size);
    ~Fft();
    Fft(const Fft&) = delete;
    Fft& operator=(const Fft&) = delete;

    [[nodiscard]] std::int64_t Size() const { return blockSize; }
    [[nodiscard]] std::int64_t Bins() const { return blockSize / 2 + 1; }

    /// block: Size() samples; spectrum: Bins() bins, from 0 to half the rate, not scaled.
    void Forward(std::span<const float> block, std::span<FftBin> spectrum);

    /// The inverse, Size() times too large: forward and inverse together multiply by Size().
    void Inverse(std::span<const FftBin> spectrum, std::span<float> block);

private:
    struct Plans;
    std::int64_t blockSize;
    std::unique_ptr<Plans> plans;
};

/// The calling thread's transform of that size, created at its first use. Throws std::bad_alloc.
[[nodiscard]] Fft& FftOfSize(std::int64_t size);

} // namespace sprout
