// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <memory>
#include <span>

namespace sprout {

/// A finished block that waits inside the service for `Tq5Service02a`.
class StretchedBlock {
public:
    StretchedBlock() = default;
    StretchedBlock(const StretchedBlock&) = delete;
    StretchedBlock& operator=(const StretchedBlock&) = delete;
    virtual ~StretchedBlock() = default;
};

using StretchHandle = std::unique_ptr<StretchedBlock>;

/// Changes pitch and duration of one channel of signed 16-bit samples, each without the other.
///
/// Deterministic and without memory of earlier blocks; may be called from several threads at once.
/// The length of a result depends on sample count and duration factor alone, so that both channels of a stereo sound
/// come out equally long. Factors 1 and 1 return the samples unchanged.
class Stretch {
public:
    Stretch() = default;
    Stretch(const Stretch&) = delete;
    Stretch& operator=(const Stretch&) = delete;
    virtual ~Stretch() = default;

    /// Processes `samples` (mono, `rate` frames a second).
    ///
    /// pitchFactor: 2 an octave up, 0.5 an octave down; durationFactor: 2 twice as long; both are clamped to 0.5..2.
    /// size: on entry the room offered for the result in samples, on return the result's sample count.
    /// handle: receives the result. Returns false, with an empty handle and size 0, where samples are missing, the rate
    /// is not above 0, a factor is not a number, or the room is too small. Throws std::bad_alloc.
    [[nodiscard]] virtual bool Tq5Service02(StretchHandle& handle, float pitchFactor, float durationFactor,
                                            std::int32_t rate, std::span<const std::int16_t> samples,
                                            std::int32_t& size) const = 0;

    /// Copies the result of `handle` into `samples` and releases the handle.
    ///
    /// size: on entry the room in `samples`, on return the count copied. Returns false where the handle is empty or
    /// the room too small.
    [[nodiscard]] virtual bool Tq5Service02a(StretchHandle handle, std::int32_t& size,
                                             std::span<std::int16_t> samples) const = 0;
};

} // namespace sprout
