// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/posix/LargePages.h"

#include <sys/mman.h>

#include <new>

namespace sprout {

void LargePages::UseFromNowOn()
{
    static LargePages pages;
    std::pmr::set_default_resource(&pages);
}

void* LargePages::do_allocate(std::size_t bytes, std::size_t alignment)
{
    void* const memory = ::operator new (bytes, std::align_val_t{alignment});
    // A kernel without large pages refuses; small ones are fine too.
    if (bytes >= alignment)
        static_cast<void>(::madvise(memory, bytes / alignment * alignment, MADV_HUGEPAGE));
    return memory;
}

void LargePages::do_deallocate(void* memory, std::size_t /*bytes*/, std::size_t alignment)
{
    ::operator delete (memory, std::align_val_t{alignment});
}

bool LargePages::do_is_equal(const std::pmr::memory_resource& other) const noexcept
{
    return this == &other;
}

} // namespace sprout
