// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

namespace sprout {

inline constexpr std::size_t kMeterPieceFrames = 882; ///< 20 ms
inline constexpr std::size_t kMeterPieces = 10;       ///< 0.2 s

/// The level of one channel, at 44,100 Hz and 16 bits.
class ChannelMeter {
public:
    void Add(std::int16_t sample);

    /// The greatest sample of the last 0.2 s, 0 to 32767.
    [[nodiscard]] std::int32_t Peak() const;
    /// Three samples in a row were at full scale.
    [[nodiscard]] bool IsOverloaded() const { return overloaded; }

private:
    std::array<std::int32_t, kMeterPieces> peaks{};
    std::size_t piece = 0;  // whose peak is being measured
    std::size_t inside = 0; // its samples so far
    int fullScale = 0;      // samples in a row
    bool overloaded = false;
};

/// The level of both channels.
class LevelMeter {
public:
    /// samples: alternating left and right. True if one of them is not exactly zero.
    bool Add(std::span<const std::int16_t> samples);

    [[nodiscard]] const ChannelMeter& Left() const { return left; }
    [[nodiscard]] const ChannelMeter& Right() const { return right; }

private:
    ChannelMeter left;
    ChannelMeter right;
};

} // namespace sprout
