// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <memory>
#include <span>

namespace sprout {

/// The samples of one channel: a value whose copies share one block until one of them changes.
///
/// Elements run from 0 to `UpperBound()`; sample frame i is element i, counted from 1, and element 0 is unused.
class Channel {
public:
    /// One element, 0, as in the right channel of a mono wave.
    Channel() = default;

    /// Elements 0 to `upperBound` (>= 0), all zero. Throws std::bad_alloc.
    explicit Channel(std::int32_t upperBound);

    /// Elements 0 to `upperBound` (>= 0); the caller must write all of them except element 0.
    [[nodiscard]] static Channel Unfilled(std::int32_t upperBound);

    /// Element 0, followed by `samples` as frames 1 on.
    [[nodiscard]] static Channel FromSamples(std::span<const std::int16_t> samples);

    [[nodiscard]] std::int32_t UpperBound() const { return upper; }

    [[nodiscard]] std::int16_t operator[](std::int32_t element) const
    {
        return block ? block[element] : std::int16_t{0};
    }

    /// Frames 1 to `UpperBound()`; frame 1 is at index 0 of the span.
    [[nodiscard]] std::span<const std::int16_t> Samples() const
    {
        return upper == 0 ? std::span<const std::int16_t>()
                          : std::span<const std::int16_t>(block.get() + 1, static_cast<std::size_t>(upper));
    }

    /// All elements, 0 to `UpperBound()`, for writing; a shared block is copied first.
    [[nodiscard]] std::span<std::int16_t> Change();

    /// Sets the upper bound to `upperBound` (>= 0): new elements are zero, elements beyond are lost.
    void Resize(std::int32_t upperBound);

    /// True if both share one block and so must be equal.
    [[nodiscard]] bool SharesBlockWith(const Channel& other) const
    {
        return block == other.block && upper == other.upper;
    }

    /// Distinguishes blocks during their lifetime.
    [[nodiscard]] const void* Identity() const { return block.get(); }

    /// True if elements 1 to `UpperBound()` are equal.
    friend bool operator==(const Channel& a, const Channel& b);

private:
    std::shared_ptr<std::int16_t[]> block; // null if the upper bound is 0 and element 0 is zero
    std::int32_t upper = 0;
};

/// The only sound record. A value: copying is cheap; operations leave their waves unchanged and return new ones.
///
/// The default is an empty wave in the program's format.
struct WaveData {
    std::int32_t Bits = 16;    ///< 8 or 16; samples of 8 bits run from -128 to 127
    std::int32_t Channels = 2; ///< 1 or 2
    std::int32_t Rate = 44100; ///< frames per second: 11025, 22050 or 44100
    Channel WavL;              ///< left, or the only one; upper bound `Length`
    Channel WavR;              ///< right; upper bound 0 in a mono or empty wave
    std::int32_t Length = 0;   ///< sample frames

    friend bool operator==(const WaveData&, const WaveData&) = default;
};

} // namespace sprout
