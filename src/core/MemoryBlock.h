// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <memory>

namespace sprout {

// Most of the time in which a large block is first filled goes into the first touch of one small page after the other.
// Blocks of several large pages ask the machine for these instead.
inline constexpr std::size_t kLargePageBytes = std::size_t{1} << 21;
inline constexpr std::size_t kSmallestLargeBlock = 2 * kLargePageBytes;

/// `bytes` bytes on large pages, where the machine has them. Throws std::bad_alloc.
[[nodiscard]] std::shared_ptr<void> LargeBlock(std::size_t bytes);

/// `count` elements, whatever they hold. Throws std::bad_alloc.
template <typename Element>
[[nodiscard]] std::shared_ptr<Element[]> MemoryBlock(std::size_t count)
{
    if (count * sizeof(Element) < kSmallestLargeBlock)
        return std::make_shared_for_overwrite<Element[]>(count);
    const std::shared_ptr<void> block = LargeBlock(count * sizeof(Element));
    return {block, static_cast<Element*>(block.get())};
}

} // namespace sprout
