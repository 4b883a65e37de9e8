// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace sprout {

/// Changes pitch and duration of one channel of signed 16-bit samples, each without the other.
///
/// Deterministic and without memory of earlier sounds; may be called from several threads at once.
class Stretch {
public:
    Stretch() = default;
    Stretch(const Stretch&) = delete;
    Stretch& operator=(const Stretch&) = delete;
    virtual ~Stretch() = default;

    /// The sound of `samples` (mono, `rate` frames a second) in another pitch and duration.
    ///
    /// pitchFactor: 2 an octave up, 0.5 an octave down; durationFactor: 2 twice as long; both are clamped to 0.5..2.
    /// The length of the result depends on sample count and duration factor alone, so that both channels of a stereo
    /// sound come out equally long. Factors 1 and 1 return the samples unchanged. Empty where samples are missing, the
    /// rate is not above 0, a factor is not a number, or the result would be too long to count in 32 bits. Throws
    /// std::bad_alloc.
    [[nodiscard]] virtual std::vector<std::int16_t> Change(std::span<const std::int16_t> samples, std::int32_t rate,
                                                           float pitchFactor, float durationFactor) const = 0;
};

} // namespace sprout
