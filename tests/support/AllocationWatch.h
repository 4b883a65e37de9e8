// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>

namespace sprout {

/// Notes the largest single piece of memory that anybody asks `new` for, as long as it lives. One at a time.
class AllocationWatch {
public:
    AllocationWatch();
    AllocationWatch(const AllocationWatch&) = delete;
    AllocationWatch& operator=(const AllocationWatch&) = delete;
    ~AllocationWatch();

    [[nodiscard]] std::size_t Largest() const;
};

} // namespace sprout
