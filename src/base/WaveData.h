// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <memory>
#include <span>

namespace sprout {

/// The samples of one channel: a value whose copies share one block until one of them is changed.
///
/// Elements run from 0 to `UpperBound()`; sample frame i is element i, counted from 1, and element 0 holds nothing.
class Channel {
public:
    /// One element, 0, as in the right channel of a mono wave.
    Channel() = default;

    /// Elements 0 to `upperBound` (>= 0), all zero. Throws std::bad_alloc.
    explicit Channel(std::int32_t upperBound);

    /// Elements 0 to `upperBound` (>= 0), of which all but element 0 wait to be written whole.
    [[nodiscard]] static Channel Unfilled(std::int32_t upperBound);

    /// Element 0 and behind it `samples` as frames 1 on.
    [[nodiscard]] static Channel FromSamples(std::span<const std::int16_t> samples);

    [[nodiscard]] std::int32_t UpperBound() const { return upper; }

    [[nodiscard]] std::int16_t operator[](std::int32_t element) const
    {
        return block ? block[element] : std::int16_t{0};
    }

    /// Frames 1 to `UpperBound()`; the first of them stands at index 0 of the span.
    [[nodiscard]] std::span<const std::int16_t> Samples() const
    {
        return upper == 0 ? std::span<const std::int16_t>()
                          : std::span<const std::int16_t>(block.get() + 1, static_cast<std::size_t>(upper));
    }

    /// All elements, 0 to `UpperBound()`, for writing; a shared block is copied first.
    [[nodiscard]] std::span<std::int16_t> Change();

    /// Makes the upper bound `upperBound` (>= 0): what is new is zero, what lies beyond is lost.
    void Resize(std::int32_t upperBound);

    /// True when both share one block, so that they must be equal.
    [[nodiscard]] bool SharesBlockWith(const Channel& other) const
    {
        return block == other.block && upper == other.upper;
    }

    /// Tells blocks apart as long as they live.
    [[nodiscard]] const void* Identity() const { return block.get(); }

    /// Equal elements 1 to `UpperBound()`.
    friend bool operator==(const Channel& a, const Channel& b);

private:
    std::shared_ptr<std::int16_t[]> block; // none for the upper bound 0 as long as element 0 is zero
    std::int32_t upper = 0;
};

/// The one sound record. A value: copying is cheap, operations take waves unchanged and hand back new ones.
///
/// The default is an empty wave in the program's format.
struct WaveData {
    std::int32_t Bits = 16;    ///< 8 or 16; samples of 8 bits run from -128 to 127
    std::int32_t Channels = 2; ///< 1 or 2
    std::int32_t Rate = 44100; ///< frames a second: 11025, 22050 or 44100
    Channel WavL;              ///< left, or the only one; upper bound `Length`
    Channel WavR;              ///< right; upper bound 0 in a mono or empty wave
    std::int32_t Length = 0;   ///< sample frames

    friend bool operator==(const WaveData&, const WaveData&) = default;
};

} // namespace sprout
