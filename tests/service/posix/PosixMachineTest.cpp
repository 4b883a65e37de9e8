// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/posix/PosixMachine.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <sstream>
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

TEST(PosixMachine, TellsWhatProgramsCanGetInBytesAndTheLoadInPercent)
{
    std::istringstream facts("MemTotal:        4000000 kB\n"
                             "MemFree:          300000 kB\n"
                             "MemAvailable:    1000000 kB\n"
                             "Buffers:           20000 kB\n");
    const MemoryStatus memory = ReadMemoryStatus(facts);
    EXPECT_EQ(memory.TotalBytes, 4'000'000ULL * 1024);
    EXPECT_EQ(memory.AvailableBytes, 1'000'000ULL * 1024);
    EXPECT_EQ(memory.LoadPercent, 75);
}

TEST(PosixMachine, KnowsNoLoadWhereTheSystemTellsNothing)
{
    std::istringstream nothing;
    const MemoryStatus memory = ReadMemoryStatus(nothing);
    EXPECT_EQ(memory.TotalBytes, 0U);
    EXPECT_EQ(memory.LoadPercent, MemoryStatus().LoadPercent);
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

TEST(PosixMachine, HasFoldersThatNoEnvironmentMoves)
{
    EXPECT_EQ(PosixMachine().CommonTempPath(), "/tmp");
    EXPECT_EQ(PosixMachine().ConfigFolder(), "/etc");
}

TEST(PosixMachine, FindsTheRunningProgram)
{
    const std::filesystem::path program = PosixMachine().ExecutablePath();
    EXPECT_TRUE(std::filesystem::is_regular_file(program));
    EXPECT_EQ(program.filename(), "sprout_service_tests");
}

TEST(PosixMachine, AsksForTheRoomOnAVolume)
{
    EXPECT_GT(PosixMachine().FreeBytes("/tmp"), 0U);
    EXPECT_LT(PosixMachine().FreeBytes("/"), std::filesystem::space("/").capacity);
    EXPECT_EQ(PosixMachine().FreeBytes("/no/such/folder"), 0U);
}

} // namespace
} // namespace sprout
