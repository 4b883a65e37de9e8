// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <functional>
#include <random>

#include "core/Song.h"

namespace sprout {

/// Gives the next number of a random sequence, 0 <= r < 1.
using RandomNumber = std::function<float()>;

/// A random sequence that starts from the beginning.
class RandomSequence {
public:
    explicit RandomSequence(std::uint32_t seed) : generator(seed) {}

    /// Seeded from the clock.
    [[nodiscard]] static RandomSequence FromClock();

    [[nodiscard]] float operator()();

private:
    std::mt19937 generator;
};

/// A random tune draws only beats whose files are shorter.
inline constexpr std::uintmax_t kShortBeatBytes = 80000;

/// Creates a tune from the folders of beats and stars: name, author, picture, steps. Its sound is then stale. The order
/// of the draws is fixed, so the same sequence always gives the same tune. Messages report unreadable files.
void MakeRandomTune(Tune& tune, const RandomNumber& next);

} // namespace sprout
