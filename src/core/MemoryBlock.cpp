// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/MemoryBlock.h"

#include <new>

#include "service/Machine.h"
#include "service/Services.h"

namespace sprout {

std::shared_ptr<void> LargeBlock(std::size_t bytes)
{
    constexpr std::align_val_t alignment{kLargePageBytes};
    const auto release = [](void* memory) { ::operator delete(memory, alignment); };
    std::shared_ptr<void> block(::operator new(bytes, alignment), release);
    if (const Machine* machine = TheServices().machine)
        machine->PreferLargePages(block.get(), bytes / kLargePageBytes * kLargePageBytes);
    return block;
}

} // namespace sprout
