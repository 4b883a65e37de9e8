// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>

namespace sprout {

// The keyboard of a step: two octaves of 12 keys each, low keys at the bottom, black keys on the left.

/// Size of an octave's picture in pixels.
inline constexpr std::int32_t kOctaveWidth = 30;
inline constexpr std::int32_t kOctaveHeight = 73;
inline constexpr std::int32_t kOctaveKeys = 12;

/// The result for a point between the keys of an octave.
inline constexpr std::int32_t kNoKey = 13;

/// The pitches that the keyboard can show and set.
inline constexpr std::int32_t kLowestKeyPitch = -12;
inline constexpr std::int32_t kHighestKeyPitch = 11;

/// Where the mark of key k lies in an octave's picture, from 1. The bars that represent the marks start at the left
/// edge of the keys, so they use only the heights.
inline constexpr std::array<std::int32_t, kOctaveKeys + 1> KeyMarkX{0, 21, 9, 21, 9, 21, 21, 9, 21, 9, 21, 9, 21};
inline constexpr std::array<std::int32_t, kOctaveKeys + 1> KeyMarkY{0, 64, 60, 54, 48, 43, 34, 30, 24, 18, 12, 6, 1};

enum class Octave { Upper, Lower };

/// The key at a point of an octave's picture, 1 to 12 from the lowest; `kNoKey` if there is none or outside the
/// picture.
[[nodiscard]] std::int32_t KeyAt(std::int32_t dx, std::int32_t dy);

/// Semitones of a key. key: 1 to 12.
[[nodiscard]] std::int32_t PitchOfKey(Octave octave, std::int32_t key);

/// A key of the keyboard.
struct KeyPlace {
    Octave octave = Octave::Upper;
    std::int32_t key = 1;
    friend bool operator==(const KeyPlace&, const KeyPlace&) = default;
};

/// The key that shows a pitch; pitches beyond the keyboard are shown at its ends.
[[nodiscard]] KeyPlace KeyOfPitch(std::int32_t pitchShift);

} // namespace sprout
