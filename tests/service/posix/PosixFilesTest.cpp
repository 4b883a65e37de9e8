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

#include "base/Errors.h"
#include "support/ScratchDevice.h"
#include "support/TestFolder.h"
#include "support/UnchangeableFolder.h"

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

    [[nodiscard]] bool WriteNew(const std::string& name, const std::string& text) const
    {
        const auto bytes = std::as_bytes(std::span(text));
        return PosixFiles().WriteNewFile(In(name), {&bytes, 1});
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

/// Holds a file like another running program: the locks of two openings of a file exclude each other.
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

TEST_F(FilesOnDisk, MakeAFolderAgainThatHasGone)
{
    Save(In("gone/song"), "new");
    EXPECT_EQ(ReadBytes(In("gone/song")), "new");
    EXPECT_THROW(Save(In("no/such/song"), "new"), RunTimeError) << "more than one is a slip of the pen";
}

TEST_F(FilesOnDisk, TellAFileInPlaceOfTheFolder)
{
    WriteBytes(In("file"), "kept");
    EXPECT_THROW(Save(In("file/song"), "x"), RunTimeError);
    EXPECT_EQ(ReadBytes(In("file")), "kept");
    EXPECT_EQ(Names(), std::vector<std::string>{"file"});
}

TEST_F(FilesOnDisk, ReplaceNoDeviceAndNoPipe)
{
    ASSERT_EQ(::mkfifo(In("pipe").c_str(), 0600), 0);
    MakeScratchDevice(In("device"));
    fs::create_symlink(In("device"), In("link"));
    EXPECT_THROW(Save(In("pipe"), "x"), NotReplaced);
    EXPECT_THROW(Save(In("link"), "x"), NotReplaced);
    EXPECT_TRUE(fs::is_fifo(In("pipe")));
    EXPECT_TRUE(IsScratchDevice(In("device")));
    EXPECT_EQ(Names(), (std::vector<std::string>{"device", "link", "pipe"}));
}

TEST_F(FilesOnDisk, ReplaceNoWriteProtectedFile)
{
    WriteBytes(In("song"), "old");
    fs::permissions(In("song"), fs::perms::owner_read);
    fs::create_directory(In("other"));
    const UnchangeableFolder rightsLaidDown(In("other"));
    EXPECT_THROW(Save(In("song"), "new"), NotReplaced);
    EXPECT_EQ(ReadBytes(In("song")), "old");
    EXPECT_EQ(Names(), (std::vector<std::string>{"other", "song"}));
}

TEST_F(FilesOnDisk, TellThatAFileIsAnotherOne)
{
    const PosixFiles files;
    EXPECT_EQ(files.FactsOf(In("song")), std::nullopt);
    WriteBytes(In("song"), "old");
    const auto old = files.FactsOf(In("song"));
    ASSERT_TRUE(old);
    EXPECT_EQ(old->Size, 3U);
    EXPECT_EQ(files.FactsOf(In("song")), old);
    Save(In("song"), "new");
    EXPECT_NE(files.FactsOf(In("song")), old) << "of the same size";
    const auto renewed = files.FactsOf(In("song"));
    SetWrittenIn2020(In("song"), 1);
    EXPECT_NE(files.FactsOf(In("song"))->WrittenNs, renewed->WrittenNs);
}

TEST_F(FilesOnDisk, AreHeldByOneProgramAtATime)
{
    PosixFiles files;
    auto hold = files.HoldForChange(In("a.ini"));
    EXPECT_TRUE(hold);
    EXPECT_FALSE(files.HoldForChange(In("b.ini"))) << "of the same folder, after seconds";
    hold.reset();
    EXPECT_TRUE(files.HoldForChange(In("b.ini")));
    EXPECT_FALSE(files.HoldForChange(In("missing/a.ini")));
    EXPECT_TRUE(Names().empty());
}

TEST_F(FilesOnDisk, TellAFolderInTheWay)
{
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

TEST_F(FilesOnDisk, ReplaceAFilePieceByPiece)
{
    WriteBytes(In("song"), "old");
    const auto bytes = [](std::string_view text) { return std::as_bytes(std::span(text)); };
    const auto file = PosixFiles().BeginReplacement(In("song"));
    file->Write(bytes("head"));
    file->Write({});
    file->MoveTo(6);
    file->Write(bytes("tail"));
    file->MoveTo(0);
    file->Write(bytes("HE"));
    EXPECT_EQ(ReadBytes(In("song")), "old") << "until it is put in place";
    file->PutInPlace(Flush::Yes);
    EXPECT_EQ(ReadBytes(In("song")), std::string("HEad\0\0tail", 10));
    EXPECT_EQ(Names(), std::vector<std::string>{"song"});
}

TEST_F(FilesOnDisk, LeaveNothingOfAReplacementThatIsGivenUp)
{
    WriteBytes(In("song"), "old");
    {
        const auto file = PosixFiles().BeginReplacement(In("song"));
        file->Write(std::as_bytes(std::span(std::string_view("new"))));
        EXPECT_EQ(Names().size(), 2U);
    }
    EXPECT_EQ(ReadBytes(In("song")), "old");
    EXPECT_EQ(Names(), std::vector<std::string>{"song"});
}

TEST_F(FilesOnDisk, TellWhatDoesNotGiveWay)
{
    fs::create_directory(In("folder"));
    EXPECT_THROW(PosixFiles().BeginReplacement(In("folder"))->PutInPlace(Flush::No), NotReplaced);
    // Here nothing is in the way: the name itself is impossible.
    const auto file = PosixFiles().BeginReplacement(In(std::string(300, 'n')));
    try {
        file->PutInPlace(Flush::No);
        ADD_FAILURE() << "the name is too long";
    } catch (const NotReplaced&) {
        ADD_FAILURE() << "there is nothing to be replaced";
    } catch (const RunTimeError&) {
    }
    EXPECT_THROW(static_cast<void>(PosixFiles().BeginReplacement(In("missing/file"))), RunTimeError);
}

TEST_F(FilesOnDisk, KnowWhichFolderMayBeChanged)
{
    const PosixFiles files;
    fs::create_directory(In("folder"));
    fs::create_directory_symlink(In("folder"), In("link"));
    WriteBytes(In("file"), "");
    EXPECT_TRUE(files.MayChangeFolder(In("folder")));
    EXPECT_TRUE(files.MayChangeFolder(In("link")));
    EXPECT_FALSE(files.MayChangeFolder(In("file")));
    EXPECT_FALSE(files.MayChangeFolder(In("missing")));
    const UnchangeableFolder locked(In("folder"));
    EXPECT_FALSE(files.MayChangeFolder(In("folder")));
    EXPECT_FALSE(files.MayChangeFolder(In("link")));
}

TEST_F(FilesOnDisk, KnowWhatMayBeReplaced)
{
    const PosixFiles files;
    WriteBytes(In("song"), "old");
    fs::create_directory(In("folder"));
    fs::create_symlink(In("song"), In("link"));
    fs::create_symlink(In("nothing"), In("dangling"));
    ASSERT_EQ(::mkfifo(In("pipe").c_str(), 0600), 0);
    EXPECT_TRUE(files.MayBeReplaced(In("nothing")));
    EXPECT_TRUE(files.MayBeReplaced(In("song")));
    EXPECT_TRUE(files.MayBeReplaced(In("link")));
    EXPECT_TRUE(files.MayBeReplaced(In("dangling")));
    EXPECT_FALSE(files.MayBeReplaced(In("folder")));
    EXPECT_FALSE(files.MayBeReplaced(In("pipe")));
    MakeScratchDevice(In("device"));
    EXPECT_FALSE(files.MayBeReplaced(In("device")));
}

TEST_F(FilesOnDisk, KnowThatAProtectedFileOrFolderMayNotBeReplaced)
{
    const PosixFiles files;
    WriteBytes(In("song"), "old");
    {
        const UnchangeableFolder locked(folder.Path());
        EXPECT_FALSE(files.MayBeReplaced(In("song"))) << "its folder cannot be changed";
        EXPECT_TRUE(files.MayBeReplaced(In("nothing"))) << "that fails when it is written";
    }
    fs::create_directory(In("other"));
    fs::permissions(In("song"), fs::perms::owner_read);
    const UnchangeableFolder rightsLaidDown(In("other"));
    EXPECT_FALSE(files.MayBeReplaced(In("song"))) << "the file is protected";
}

TEST_F(FilesOnDisk, WriteANewFileWhole)
{
    EXPECT_TRUE(WriteNew("song", "new"));
    EXPECT_EQ(ReadBytes(In("song")), "new");
    EXPECT_EQ(Names(), std::vector<std::string>{"song"});
}

TEST_F(FilesOnDisk, WriteNoNewFileWhereSomethingHasItsName)
{
    WriteBytes(In("song"), "old");
    fs::create_directory(In("folder"));
    fs::create_symlink(In("nothing"), In("link"));
    for (const char* name : {"song", "folder", "link"})
        EXPECT_FALSE(WriteNew(name, "new")) << name;
    EXPECT_EQ(ReadBytes(In("song")), "old");
    EXPECT_EQ(Names(), (std::vector<std::string>{"folder", "link", "song"}));
    EXPECT_THROW(static_cast<void>(WriteNew("missing/song", "new")), RunTimeError);
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
