// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/FileMark.h"

#include <gtest/gtest.h>

#include <chrono>

#include "support/TestFolder.h"

namespace sprout {
namespace {

namespace fs = std::filesystem;

class FileMarkTest : public testing::Test {
protected:
    FileMarkTest() { WriteBytes(file, "four"); }

    TestFolder folder;
    fs::path file = folder.Path() / "a";
};

TEST_F(FileMarkTest, IsTheSameAsLongAsTheFileIs)
{
    const FileMark mark = MarkOf(file);
    EXPECT_EQ(mark.Path, file);
    EXPECT_EQ(mark.Size, 4U);
    EXPECT_EQ(MarkOf(file), mark);
}

TEST_F(FileMarkTest, DiffersInSizeAlone)
{
    const FileMark mark = MarkOf(file);
    WriteBytes(file, "five!");
    fs::last_write_time(file, mark.Written);
    EXPECT_NE(MarkOf(file), mark);
}

TEST_F(FileMarkTest, DiffersInTimeAlone)
{
    const FileMark mark = MarkOf(file);
    fs::last_write_time(file, mark.Written + std::chrono::nanoseconds(1));
    EXPECT_NE(MarkOf(file), mark);
}

TEST_F(FileMarkTest, IsEmptyWhereThereIsNoPlainFile)
{
    EXPECT_EQ(MarkOf(folder.Path()), FileMark());
    EXPECT_EQ(MarkOf(folder.Path() / "missing"), FileMark());
    EXPECT_EQ(MarkOf(""), FileMark());
}

} // namespace
} // namespace sprout
