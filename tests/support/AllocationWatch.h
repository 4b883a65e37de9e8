// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>

namespace sprout {

/// While it lives, notes the largest single block that anyone requests from `new`. Only one may live at a time.
class AllocationWatch {
public:
    AllocationWatch();
    AllocationWatch(const AllocationWatch&) = delete;
    AllocationWatch& operator=(const AllocationWatch&) = delete;
    ~AllocationWatch();

    [[nodiscard]] std::size_t Largest() const;
};

} // namespace sprout
