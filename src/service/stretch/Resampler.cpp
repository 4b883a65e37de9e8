// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/stretch/Resampler.h"

#include <soxr.h>

#include <algorithm>
#include <cmath>
#include <new>

namespace sprout::stretch {
namespace {

// Share of half the rate that passes unweakened. A steeper filter would keep 2 kHz more of a full-band sound, which few
// ears hear, and ring for milliseconds ahead of every click, which all do.
constexpr double kPassband = 0.82;

} // namespace

std::vector<float> Resample(std::span<const float> sound, double pitch, Index outCount)
{
    std::vector<float> result(static_cast<std::size_t>(outCount));
    if (pitch == 1) {
        std::copy_n(sound.begin(), std::min(sound.size(), result.size()), result.begin());
        return result;
    }
    const soxr_io_spec_t samples = soxr_io_spec(SOXR_FLOAT32_I, SOXR_FLOAT32_I);
    soxr_quality_spec_t quality = soxr_quality_spec(SOXR_HQ, 0);
    quality.passband_end = kPassband;
    // One thread: callers that want more stretch several sounds at once.
    const soxr_runtime_spec_t runtime = soxr_runtime_spec(1);
    std::size_t done = 0;
    const soxr_error_t error = soxr_oneshot(pitch, 1, 1, sound.data(), sound.size(), nullptr, result.data(),
                                            result.size(), &done, &samples, &quality, &runtime);
    if (error != nullptr) {
        throw std::bad_alloc();
    }
    std::fill(result.begin() + static_cast<Index>(done), result.end(), 0.0F);
    return result;
}

} // namespace sprout::stretch
