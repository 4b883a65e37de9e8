// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <atomic>
#include <cstddef>
#include <functional>
#include <memory_resource>
#include <utility>

namespace sprout {

/// The default memory resource while it lives: counts the blocks of long sounds, and lets a test act at each of them.
class MemoryWatch : public std::pmr::memory_resource {
public:
    explicit MemoryWatch(std::function<void()> taken = [] {})
        : onTaken(std::move(taken)), before(std::pmr::set_default_resource(this))
    {
    }
    MemoryWatch(const MemoryWatch&) = delete;
    MemoryWatch& operator=(const MemoryWatch&) = delete;
    ~MemoryWatch() override { std::pmr::set_default_resource(before); }

    [[nodiscard]] std::size_t Blocks() const { return blocks; }
    [[nodiscard]] std::size_t Alignment() const { return lastAlignment; }

private:
    void* do_allocate(std::size_t bytes, std::size_t alignment) override
    {
        ++blocks;
        lastAlignment = alignment;
        onTaken();
        return before->allocate(bytes, alignment);
    }
    void do_deallocate(void* memory, std::size_t bytes, std::size_t alignment) override
    {
        before->deallocate(memory, bytes, alignment);
    }
    [[nodiscard]] bool do_is_equal(const std::pmr::memory_resource& other) const noexcept override
    {
        return this == &other;
    }

    std::function<void()> onTaken;
    std::pmr::memory_resource* before;
    std::atomic<std::size_t> blocks = 0;
    std::atomic<std::size_t> lastAlignment = 0;
};

} // namespace sprout
