// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/AllocationWatch.h"

#include <atomic>
#include <cstdlib>
#include <new>

namespace {

std::atomic<bool> watching = false;
std::atomic<std::size_t> largest = 0;

void* Allocate(std::size_t size, std::size_t alignment = 0)
{
    if (watching && size > largest)
        largest = size;
    const std::size_t bytes = size == 0 ? 1 : size;
    if (void* memory = alignment == 0 ? std::malloc(bytes) : std::aligned_alloc(alignment, bytes))
        return memory;
    throw std::bad_alloc();
}

} // namespace

void* operator new(std::size_t size)
{
    return Allocate(size);
}

void* operator new[](std::size_t size)
{
    return Allocate(size);
}

// The library's own version gets the memory of a sort from elsewhere, but it would be freed here.
void* operator new(std::size_t size, const std::nothrow_t&) noexcept
{
    try {
        return Allocate(size);
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

void* operator new(std::size_t size, std::align_val_t alignment)
{
    const auto step = static_cast<std::size_t>(alignment);
    return Allocate((size + step - 1) / step * step, step);
}

void operator delete(void* memory, std::align_val_t) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, std::size_t, std::align_val_t) noexcept
{
    std::free(memory);
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}

void operator delete[](void* memory) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}

void operator delete[](void* memory, std::size_t) noexcept
{
    std::free(memory);
}

namespace sprout {

AllocationWatch::AllocationWatch()
{
    largest = 0;
    watching = true;
}

AllocationWatch::~AllocationWatch()
{
    watching = false;
}

std::size_t AllocationWatch::Largest() const
{
    return largest;
}

} // namespace sprout
