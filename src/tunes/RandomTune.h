// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <random>

#include "core/Song.h"

namespace sprout {

/// Gives the next number of a random sequence, 0 <= r < 1.
using RandomNumber = std::function<float()>;

/// A random sequence that begins anew.
class RandomSequence {
public:
    explicit RandomSequence(std::uint32_t seed) : generator(seed) {}

    /// Seeded from the clock.
    [[nodiscard]] static RandomSequence FromClock();

    [[nodiscard]] float operator()();

private:
    std::mt19937 generator;
};

/// Makes up a tune from the folders of beats and stars: name, author, picture, steps. Its sound is stale then. The
/// order of the draws is part of the rule, so that one sequence always gives one tune. Unreadable files are told in
/// messages.
void MakeRandomTune(Tune& tune, const RandomNumber& next);

} // namespace sprout
