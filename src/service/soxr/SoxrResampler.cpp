// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/Resampler.h"

#include <soxr.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <new>

namespace sprout {
namespace {

// Share of half the rate that passes unweakened. A steeper filter would keep 2 kHz more of a full-band sound, which few
// people hear, but ring for milliseconds before every click, which everybody hears.
constexpr double kPassband = 0.82;

/// Throws std::bad_alloc unless there is memory for a sound. The library does not check its allocations and would end
/// the program. It was measured to take up to 0.5 MB plus 19 bytes per sample.
void RequireMemory(std::size_t samples)
{
    constexpr std::size_t always = 1'000'000;
    constexpr std::size_t forASample = 24;
    ::operator delete(::operator new(always + forASample * samples));
}

struct DeleteResampler {
    void operator()(soxr_t resampler) const { soxr_delete(resampler); }
};

} // namespace

std::vector<float> Resample(std::span<const float> sound, double pitch, std::int64_t outCount)
{
    std::vector<float> result(static_cast<std::size_t>(outCount));
    if (pitch == 1) {
        std::copy_n(sound.begin(), std::min(sound.size(), result.size()), result.begin());
        return result;
    }
    const soxr_io_spec_t samples = soxr_io_spec(SOXR_FLOAT32_I, SOXR_FLOAT32_I);
    soxr_quality_spec_t quality = soxr_quality_spec(SOXR_HQ, 0);
    quality.passband_end = kPassband;
    // One thread: callers that want more speed stretch several sounds at once.
    const soxr_runtime_spec_t runtime = soxr_runtime_spec(1);
    std::size_t done = 0;
    RequireMemory(sound.size());
    soxr_error_t error = nullptr;
    const std::unique_ptr<soxr, DeleteResampler> resampler(
        soxr_create(pitch, 1, 1, &error, &samples, &quality, &runtime));
    // If memory runs out, the library returns no handle, and does not always report an error.
    if (resampler == nullptr || error != nullptr)
        throw std::bad_alloc();
    // The complement of the length tells it that no more input follows.
    error = soxr_process(resampler.get(), sound.data(), ~sound.size(), nullptr, result.data(), result.size(), &done);
    if (error != nullptr)
        throw std::bad_alloc();
    std::fill(result.begin() + static_cast<std::int64_t>(done), result.end(), 0.0F);
    return result;
}

} // namespace sprout
