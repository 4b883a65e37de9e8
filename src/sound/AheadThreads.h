// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

namespace sprout {

/// What the threads that render ahead call; both must be fit for any thread.
struct AheadThreads {
    std::function<void()> begun;    ///< first, in each thread: lowers its priority
    std::function<void()> finished; ///< after each piece of work: there is something to take
};

} // namespace sprout
