// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/posix/LargePages.h"

#include <gtest/gtest.h>

#include <cstdint>

namespace sprout {
namespace {

constexpr std::size_t kPage = std::size_t{1} << 21;

TEST(LargePages, GivesMemoryOfTheWantedAlignmentThatCanBeUsed)
{
    LargePages pages;
    for (const std::size_t alignment : {std::size_t{16}, kPage})
        for (const std::size_t bytes : {std::size_t{1}, 2 * kPage + 1}) {
            auto* const memory = static_cast<char*>(pages.allocate(bytes, alignment));
            EXPECT_EQ(reinterpret_cast<std::uintptr_t>(memory) % alignment, 0U);
            memory[bytes - 1] = 'x';
            EXPECT_EQ(memory[bytes - 1], 'x');
            pages.deallocate(memory, bytes, alignment);
        }
}

TEST(LargePages, BecomesTheDefault)
{
    std::pmr::memory_resource* const before = std::pmr::get_default_resource();
    LargePages::UseFromNowOn();
    EXPECT_NE(dynamic_cast<LargePages*>(std::pmr::get_default_resource()), nullptr);
    EXPECT_EQ(*std::pmr::get_default_resource(), *std::pmr::get_default_resource());
    EXPECT_NE(*std::pmr::get_default_resource(), *before);
    std::pmr::set_default_resource(before);
}

} // namespace
} // namespace sprout
