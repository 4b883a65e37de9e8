// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/AllocationWatch.h"

#include <atomic>
#include <cstdlib>
#include <new>

namespace {

std::atomic<bool> watching = false;
std::atomic<std::size_t> largest = 0;

void* Allocate(std::size_t size)
{
    if (watching && size > largest)
        largest = size;
    if (void* memory = std::malloc(size == 0 ? 1 : size))
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
