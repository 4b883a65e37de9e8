// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <memory_resource>

namespace sprout {

/// Memory that asks the kernel for large pages, as many as fit into a block aligned to their size; long sounds are then
/// ready sooner. Any thread.
class LargePages : public std::pmr::memory_resource {
public:
    /// Makes it the default memory resource until the program ends.
    static void UseFromNowOn();

private:
    /// Throws std::bad_alloc.
    void* do_allocate(std::size_t bytes, std::size_t alignment) override;
    void do_deallocate(void* memory, std::size_t bytes, std::size_t alignment) override;
    [[nodiscard]] bool do_is_equal(const std::pmr::memory_resource& other) const noexcept override;
};

} // namespace sprout
