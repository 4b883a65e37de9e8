// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <thread>

namespace sprout {

/// Returns true as soon as `condition` holds, which is checked as often as the windows check; false if that takes too
/// long.
template <class Condition>
[[nodiscard]] bool Comes(Condition condition)
{
    const auto latest = std::chrono::steady_clock::now() + std::chrono::seconds(30);
    while (!condition()) {
        if (std::chrono::steady_clock::now() > latest)
            return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    return true;
}

} // namespace sprout
