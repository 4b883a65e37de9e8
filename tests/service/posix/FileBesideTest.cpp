// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/posix/FileBeside.h"

#include <sys/stat.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "base/Errors.h"
#include "service/Files.h"
#include "support/TestFolder.h"

namespace sprout {
namespace {

namespace fs = std::filesystem;

class FileBesideTest : public testing::Test {
protected:
    static void Write(FileBeside& file, const std::string& text)
    {
        const auto bytes = std::as_bytes(std::span(text));
        file.Write({&bytes, 1});
    }

    static std::string TextOf(const fs::path& path)
    {
        std::ifstream file(path);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    [[nodiscard]] std::vector<std::string> Names() const
    {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(folder.Path()))
            names.push_back(entry.path().filename());
        std::sort(names.begin(), names.end());
        return names;
    }

    using Strings = std::vector<std::string>;
    TestFolder folder;
    const fs::path target = folder.Path() / "target";
};

TEST_F(FileBesideTest, IsHiddenAndGoesUnlessItIsMoved)
{
    {
        FileBeside file(target);
        Write(file, "text");
        EXPECT_EQ(Names(), Strings{".TqkSave1"});
        EXPECT_EQ(TextOf(folder.Path() / ".TqkSave1"), "text");
    }
    EXPECT_EQ(Names(), Strings());
}

TEST_F(FileBesideTest, TwoAtOnceHaveNamesOfTheirOwn)
{
    FileBeside one(target);
    FileBeside other(target);
    EXPECT_EQ(Names(), (Strings{".TqkSave1", ".TqkSave2"}));
    DeleteUnlessHeld(folder.Path() / ".TqkSave1");
    EXPECT_EQ(Names(), (Strings{".TqkSave1", ".TqkSave2"}));
}

TEST_F(FileBesideTest, AStaleFileMakesRoom)
{
    std::ofstream(folder.Path() / ".TqkSave1") << "stale";
    FileBeside file(target);
    Write(file, "new");
    EXPECT_EQ(Names(), Strings{".TqkSave1"});
    EXPECT_EQ(TextOf(folder.Path() / ".TqkSave1"), "new");
}

TEST_F(FileBesideTest, MovesOverTheTarget)
{
    std::ofstream(target) << "old and long";
    FileBeside file(target);
    Write(file, "new text");
    file.MoveTo(4);
    Write(file, "song");
    file.FlushToDisk();
    EXPECT_EQ(TextOf(target), "old and long");
    file.MoveOver();
    EXPECT_EQ(TextOf(target), "new song");
    EXPECT_EQ(Names(), Strings{"target"});
}

TEST_F(FileBesideTest, TakesAFreeNameOnly)
{
    {
        FileBeside first(target);
        Write(first, "first");
        EXPECT_TRUE(first.MoveToFreeName());
        FileBeside second(target);
        Write(second, "second");
        EXPECT_FALSE(second.MoveToFreeName());
    }
    EXPECT_EQ(Names(), Strings{"target"});
    EXPECT_EQ(TextOf(target), "first");
}

TEST_F(FileBesideTest, TakesTheModeOfWhatItReplaces)
{
    std::ofstream(target) << "old";
    ::chmod(target.c_str(), 0640);
    FileBeside file(target);
    struct stat facts {};
    ASSERT_EQ(::stat((folder.Path() / ".TqkSave1").c_str(), &facts), 0);
    EXPECT_EQ(facts.st_mode & 07777, 0600U);
    file.TakeMode();
    ASSERT_EQ(::stat((folder.Path() / ".TqkSave1").c_str(), &facts), 0);
    EXPECT_EQ(facts.st_mode & 07777, 0640U);
}

TEST_F(FileBesideTest, OnlyAPlainFileMayBeReplaced)
{
    FileBeside file(target);
    EXPECT_NO_THROW(file.RequireTarget());
    fs::create_directory(target);
    EXPECT_THROW(file.RequireTarget(), NotReplaced);
    EXPECT_THROW(file.MoveOver(), NotReplaced);
}

TEST(FolderOfAFile, IsTheCurrentOneForABareName)
{
    EXPECT_EQ(FolderOf("song.TqSng"), ".");
    EXPECT_EQ(FolderOf("/a/song.TqSng"), "/a");
}

} // namespace
} // namespace sprout
