// SPDX-License-Identifier: GPL-3.0-or-later
#include "posix/Descriptor.h"

#include <fcntl.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <utility>

#include "support/TestFolder.h"

namespace sprout {
namespace {

bool IsOpen(int number)
{
    return ::fcntl(number, F_GETFD) >= 0;
}

class DescriptorTest : public testing::Test {
protected:
    [[nodiscard]] int Open() const { return ::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, kOwnerOnly); }

    TestFolder folder;
    const std::filesystem::path path = folder.Path() / "file";
};

TEST_F(DescriptorTest, ClosesWhatItHolds)
{
    const int number = Open();
    {
        const Descriptor file(number);
        EXPECT_TRUE(IsOpen(file.Number()));
    }
    EXPECT_FALSE(IsOpen(number));
}

TEST_F(DescriptorTest, MovesAndReleases)
{
    const int number = Open();
    Descriptor first(number);
    Descriptor second(std::move(first));
    EXPECT_LT(first.Number(), 0);
    EXPECT_EQ(second.Release(), number);
    EXPECT_LT(second.Number(), 0);
    ASSERT_TRUE(IsOpen(number));
    Descriptor third(number);
    EXPECT_EQ(third.Close(), 0);
    EXPECT_FALSE(IsOpen(number));
    EXPECT_NE(third.Close(), 0);
}

TEST_F(DescriptorTest, ALockIsHeldByOneOpeningAtATime)
{
    const Descriptor first(Open());
    EXPECT_EQ(TakeLock(first.Number()), Lock::Taken);
    const Descriptor second(Open());
    EXPECT_EQ(TakeLock(second.Number()), Lock::Held);
    EXPECT_EQ(TakeLock(first.Number()), Lock::Taken);
}

TEST_F(DescriptorTest, KnowsWhetherAPathNamesItsFile)
{
    const Descriptor file(Open());
    EXPECT_TRUE(Names(path, file.Number()));
    std::filesystem::rename(path, folder.Path() / "other");
    EXPECT_EQ(NamingOf(path, file.Number()), Naming::Another);
    const Descriptor next(Open());
    EXPECT_EQ(NamingOf(path, file.Number()), Naming::Another);
    EXPECT_EQ(NamingOf(path, -1), Naming::Unknown);
}

} // namespace
} // namespace sprout
