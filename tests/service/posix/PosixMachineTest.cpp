// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/posix/PosixMachine.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

namespace sprout {
namespace {

TEST(PosixMachine, KnowsItsMemory)
{
    const MemoryStatus memory = PosixMachine().GlobalMemoryStatus();
    EXPECT_GT(memory.TotalBytes, 10'000'000U);
    EXPECT_GT(memory.AvailableBytes, 0U);
    EXPECT_LE(memory.AvailableBytes, memory.TotalBytes);
    EXPECT_GE(memory.LoadPercent, 0);
    EXPECT_LE(memory.LoadPercent, 100);
}

TEST(PosixMachine, NamesTheTempFolderOfTheEnvironment)
{
    const char* before = std::getenv("TMPDIR");
    const std::string kept = before ? before : "";
    ::setenv("TMPDIR", "/some/where", 1);
    EXPECT_EQ(PosixMachine().TempPath(), "/some/where");
    ::setenv("TMPDIR", "", 1);
    EXPECT_EQ(PosixMachine().TempPath(), "/tmp");
    ::unsetenv("TMPDIR");
    EXPECT_EQ(PosixMachine().TempPath(), "/tmp");
    if (before)
        ::setenv("TMPDIR", kept.c_str(), 1);
}

TEST(PosixMachine, FindsTheRunningProgram)
{
    EXPECT_TRUE(std::filesystem::is_regular_file(PosixMachine().ExecutablePath()));
}

TEST(PosixMachine, AsksForTheRoomOnAVolume)
{
    EXPECT_GT(PosixMachine().FreeBytes("/tmp"), 0U);
    EXPECT_EQ(PosixMachine().FreeBytes("/no/such/folder"), 0U);
}

TEST(PosixMachine, LeavesMemoryUsableThatItAskedLargePagesFor)
{
    constexpr std::size_t page = std::size_t{1} << 21;
    void* memory = std::aligned_alloc(page, 2 * page);
    ASSERT_NE(memory, nullptr);
    PosixMachine().PreferLargePages(memory, 2 * page);
    static_cast<char*>(memory)[2 * page - 1] = 'x';
    EXPECT_EQ(static_cast<char*>(memory)[2 * page - 1], 'x');
    std::free(memory);
}

} // namespace
} // namespace sprout
