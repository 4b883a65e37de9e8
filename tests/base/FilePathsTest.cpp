// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/FilePaths.h"

#include <gtest/gtest.h>

#include "support/TestFolder.h"

namespace sprout {
namespace {

namespace fs = std::filesystem;
using namespace std::string_literals;

TEST(FilePaths, EndFoldersInOneSeparator)
{
    EXPECT_EQ(AsFolder("/a/b").native(), "/a/b/");
    EXPECT_EQ(AsFolder("/a/b/").native(), "/a/b/");
    EXPECT_EQ(AsFolder("").native(), "");
}

TEST(FilePaths, NameNoFileOutsideOfTheFolder)
{
    EXPECT_EQ(NamedFile("/a/", "b", ".wav").native(), "/a/b.wav");
    for (const std::string& name : {"../b"s, "/b"s, "b\0c"s, ""s, "  "s})
        EXPECT_EQ(NamedFile("/a/", name, ".wav"), fs::path()) << name;
}

TEST(FilePaths, ReplaceWhatFileNamesCannotHold)
{
    EXPECT_EQ(SafeFileName("a./\\:*?<>\"|b é"), "a_________|b é");
}

TEST(FilePaths, CountPlainFilesThatAreNotHidden)
{
    const TestFolder folder;
    const auto in = [&folder](const char* name) { return folder.Path() / name; };
    fs::create_directories(in("f/sub"));
    EXPECT_FALSE(HoldsFile(in("missing")));
    EXPECT_FALSE(HoldsFile(in("f")));
    WriteBytes(in("f/.TqkSave1"), "");
    WriteBytes(in("f/sub/a"), "");
    EXPECT_FALSE(HoldsFile(in("f")));
    WriteBytes(in("f/a"), "");
    EXPECT_TRUE(HoldsFile(in("f")));
}

TEST(FilePaths, TakeTheBaseNameBetweenSeparatorAndLastDot)
{
    EXPECT_EQ(BaseName("/a/b.c.wav"), "b.c");
    EXPECT_EQ(BaseName("É.wav"), "É");
}

TEST(FilePaths, EndTheChosenFolderInASeparator)
{
    EXPECT_EQ(ChosenFolder("/home/child/Bell.wav"), "/home/child/");
    EXPECT_EQ(ChosenFolder("/Bell.wav"), "");
    EXPECT_EQ(ChosenFolder("Bell.wav"), "");
}

} // namespace
} // namespace sprout
