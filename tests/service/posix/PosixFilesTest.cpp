// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/posix/PosixFiles.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <span>
#include <string>
#include <vector>

#include "core/Errors.h"
#include "support/TestFolder.h"

namespace sprout {
namespace {

namespace fs = std::filesystem;

class FilesOnDisk : public testing::Test {
protected:
    [[nodiscard]] fs::path In(const std::string& name) const { return folder.Path() / name; }

    static void Save(const fs::path& target, const std::string& text)
    {
        const auto bytes = std::as_bytes(std::span(text));
        PosixFiles().ReplaceFile(target, {&bytes, 1}, Flush::Yes);
    }

    [[nodiscard]] std::vector<std::string> Names() const
    {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(folder.Path()))
            names.push_back(entry.path().filename());
        std::sort(names.begin(), names.end());
        return names;
    }

    TestFolder folder;
};

/// Holds a file as another running program would: locks of two openings of a file shut each other out.
class Holder {
public:
    explicit Holder(const fs::path& path) : descriptor(::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600))
    {
        ::flock(descriptor, LOCK_EX | LOCK_NB);
    }
    Holder(const Holder&) = delete;
    Holder& operator=(const Holder&) = delete;
    ~Holder() { ::close(descriptor); }

private:
    int descriptor;
};

TEST_F(FilesOnDisk, MakeANewFileOfAllPieces)
{
    std::vector<std::string> texts(1500, "ab"); // more pieces than the system takes at once
    texts[3].clear();
    std::vector<std::span<const std::byte>> pieces;
    for (const std::string& text : texts)
        pieces.push_back(std::as_bytes(std::span(text)));
    PosixFiles().ReplaceFile(In("new"), pieces, Flush::No);
    EXPECT_EQ(ReadBytes(In("new")).size(), 2998U);
    PosixFiles().ReplaceFile(In("new"), {}, Flush::No);
    EXPECT_EQ(ReadBytes(In("new")), "");
    EXPECT_EQ(Names(), std::vector<std::string>{"new"});
}

TEST_F(FilesOnDisk, KeepTheModeOfTheFileThatIsReplaced)
{
    WriteBytes(In("old"), "old");
    fs::permissions(In("old"), fs::perms(0640));
    Save(In("old"), "new");
    EXPECT_EQ(fs::status(In("old")).permissions(), fs::perms(0640));
    EXPECT_EQ(ReadBytes(In("old")), "new");
}

TEST_F(FilesOnDisk, GiveANewFileTheUsualMode)
{
    const mode_t before = ::umask(027);
    Save(In("new"), "new");
    ::umask(before);
    EXPECT_EQ(fs::status(In("new")).permissions(), fs::perms(0640));
}

TEST_F(FilesOnDisk, WriteThroughALink)
{
    fs::create_directory(In("elsewhere"));
    WriteBytes(In("elsewhere/real"), "old");
    fs::create_symlink(In("elsewhere/real"), In("link"));
    Save(In("link"), "new");
    EXPECT_TRUE(fs::is_symlink(In("link")));
    EXPECT_EQ(ReadBytes(In("elsewhere/real")), "new");
}

TEST_F(FilesOnDisk, TellAMissingFolderAndAFolderInTheWay)
{
    EXPECT_THROW(Save(In("missing/file"), "x"), RunTimeError);
    fs::create_directory(In("folder"));
    EXPECT_THROW(Save(In("folder"), "x"), RunTimeError);
    EXPECT_EQ(Names(), std::vector<std::string>{"folder"});
}

TEST_F(FilesOnDisk, ClearWhatAKilledProgramLeft)
{
    WriteBytes(In(".TqkSave1"), "stale");
    Save(In("song"), "new");
    EXPECT_EQ(Names(), std::vector<std::string>{"song"});
}

TEST_F(FilesOnDisk, LeaveTheFileThatAnotherRunningProgramWrites)
{
    const Holder other(In(".TqkSave1"));
    Save(In("song"), "new");
    EXPECT_EQ(Names(), (std::vector<std::string>{".TqkSave1", "song"}));
    EXPECT_EQ(ReadBytes(In("song")), "new");
}

TEST_F(FilesOnDisk, FollowNoLinkUnderTheHiddenName)
{
    WriteBytes(In("victim"), "kept");
    fs::create_symlink(In("victim"), In(".TqkSave1"));
    Save(In("song"), "new");
    EXPECT_EQ(ReadBytes(In("victim")), "kept");
    EXPECT_TRUE(fs::is_symlink(In(".TqkSave1")));
}

TEST_F(FilesOnDisk, DeleteStaleFilesUnlessTheyAreHeld)
{
    WriteBytes(In("stale"), "");
    WriteBytes(In("victim"), "");
    fs::create_directory(In("folder"));
    fs::create_symlink(In("victim"), In("link"));
    {
        const Holder other(In("stale"));
        PosixFiles().DeleteStaleFile(In("stale"));
        EXPECT_TRUE(fs::exists(In("stale")));
    }
    for (const char* name : {"stale", "missing", "folder", "link"})
        PosixFiles().DeleteStaleFile(In(name));
    EXPECT_EQ(Names(), (std::vector<std::string>{"folder", "link", "victim"}));
}

} // namespace
} // namespace sprout
