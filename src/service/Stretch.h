// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace sprout {

/// Changes pitch and duration of one channel of signed 16-bit samples independently.
///
/// Deterministic, keeps no state between sounds, and may be called from several threads at once.
class Stretch {
public:
    Stretch() = default;
    Stretch(const Stretch&) = delete;
    Stretch& operator=(const Stretch&) = delete;
    virtual ~Stretch() = default;

    /// The sound of `samples` (mono, `rate` frames per second) with another pitch and duration.
    ///
    /// pitchFactor: 2 is an octave up, 0.5 an octave down; durationFactor: 2 is twice as long; both are clamped to
    /// 0.5..2. The length of the result depends only on sample count and duration factor, so both channels of a stereo
    /// sound get the same length. Factors 1 and 1 return the samples unchanged. Empty if there are no samples, the rate
    /// is not above 0, a factor is not a number, or the result would be too long to count in 32 bits. Throws
    /// std::bad_alloc.
    [[nodiscard]] virtual std::vector<std::int16_t> Change(std::span<const std::int16_t> samples, std::int32_t rate,
                                                           float pitchFactor, float durationFactor) const = 0;
};

} // namespace sprout
