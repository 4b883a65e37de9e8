// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>

namespace sprout {

/// Limits the threads of every render during its lifetime. Renders give the same samples with any number.
class RenderThreads {
public:
    /// most: 1 or more, or 0 for one per core.
    explicit RenderThreads(std::size_t most) : before(bound) { bound = most; }
    RenderThreads(const RenderThreads&) = delete;
    RenderThreads& operator=(const RenderThreads&) = delete;
    ~RenderThreads() { bound = before; }

    [[nodiscard]] static std::size_t Most() { return bound; }

private:
    inline static std::size_t bound = 0;
    std::size_t before;
};

} // namespace sprout
