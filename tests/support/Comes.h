// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <thread>

namespace sprout {

/// True as soon as `condition` holds, which is asked as often as the windows ask; false if it does not come true in
/// time.
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
