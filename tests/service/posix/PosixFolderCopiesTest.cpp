// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/posix/PosixFolderCopies.h"

#include <sys/stat.h>

#include <gtest/gtest.h>

#include <string>
#include <system_error>

#include "base/Errors.h"
#include "base/FilePaths.h"
#include "service/posix/FileLock.h"
#include "support/InstalledBeats.h"
#include "support/KilledChild.h"
#include "support/UnchangeableFolder.h"

namespace sprout {
namespace {

namespace fs = std::filesystem;

using Names = std::vector<std::string>;

class FolderCopies : public testing::Test {
protected:
    /// Subfolders and hidden files do not count, so such a folder is filled, and keeps its contents.
    void MakeTargetWithoutFiles() const
    {
        fs::create_directories(beats.Target() / "sub");
        WriteBytes(beats.Target() / "sub/mine.wav", "mine");
        WriteBytes(beats.Target() / "sub/c.wav", "my c");
        WriteBytes(beats.Target() / ".hidden", "hidden");
    }

    void ExpectFilledAroundMine() const
    {
        auto files = beats.Filled();
        EXPECT_EQ(files["sub/mine.wav"], "mine");
        EXPECT_EQ(files["sub/c.wav"], "my c");
        EXPECT_EQ(files[".hidden"], "hidden");
        EXPECT_EQ(files["a.wav"].size(), 300'000U);
        EXPECT_EQ(files["b.wav"], "b");
        EXPECT_EQ(files.size(), 5U);
        EXPECT_EQ(beats.NamesOfUser(), Names{"Beats"});
    }

    InstalledBeats beats;
};

TEST_F(FolderCopies, AreWholeAndKeepTheTimes)
{
    EXPECT_TRUE(beats.Fill().empty());
    EXPECT_EQ(beats.Filled(), beats.Installed());
    EXPECT_EQ(fs::last_write_time(beats.Target() / "b.wav"), fs::last_write_time(beats.Source() / "b.wav"));
    EXPECT_EQ(beats.NamesOfUser(), Names{"Beats"});
    EXPECT_FALSE(PosixFolderCopies().IsUnfinished(beats.Target()));
}

TEST_F(FolderCopies, LeaveAFolderWithFilesAlone)
{
    fs::create_directories(beats.Target());
    WriteBytes(beats.Target() / "mine.wav", "mine");
    EXPECT_TRUE(beats.Fill().empty());
    EXPECT_EQ(beats.Filled().size(), 1U);
}

TEST_F(FolderCopies, ComeBesideWhatTheFolderHolds)
{
    MakeTargetWithoutFiles();
    EXPECT_TRUE(beats.Fill().empty());
    ExpectFilledAroundMine();
}

TEST_F(FolderCopies, FollowALinkToTheFolder)
{
    fs::create_directories(beats.User() / "elsewhere");
    fs::create_directory_symlink(beats.User() / "elsewhere", beats.Target());
    EXPECT_TRUE(beats.Fill().empty());
    EXPECT_TRUE(fs::is_symlink(beats.Target()));
    EXPECT_EQ(InstalledBeats::FilesIn(beats.User() / "elsewhere"), beats.Installed());
}

TEST_F(FolderCopies, LeaveOutWhatCannotBeRead)
{
    fs::permissions(beats.Source() / "b.wav", fs::perms::none);
    fs::create_directory(beats.User() / "other");
    const UnchangeableFolder rightsLaidDown(beats.User() / "other");
    const std::vector<LeftOutFile> leftOut = beats.Fill();
    ASSERT_EQ(leftOut.size(), 1U);
    EXPECT_EQ(leftOut[0].Path, beats.Source() / "b.wav");
    EXPECT_EQ(leftOut[0].Reason, "Permission denied");
    EXPECT_EQ(beats.Filled().size(), 2U);
}

TEST_F(FolderCopies, MakeNothingWhereNoFileCanBeRead)
{
    for (const auto& [name, bytes] : beats.Installed())
        fs::permissions(beats.Source() / name, fs::perms::none);
    fs::create_directory(beats.User() / "other");
    const UnchangeableFolder rightsLaidDown(beats.User() / "other");
    EXPECT_THROW(static_cast<void>(beats.Fill()), std::system_error);
    EXPECT_FALSE(fs::exists(beats.Target()));
}

TEST_F(FolderCopies, TellAMissingSourceAndAFileInTheWay)
{
    const auto nothing = [](std::size_t, std::size_t) {};
    EXPECT_THROW(static_cast<void>(PosixFolderCopies().FillFolder("/missing", beats.Target(), nothing)),
                 std::system_error);
    EXPECT_EQ(beats.NamesOfUser(), Names{});
    WriteBytes(beats.Target(), "in the way");
    EXPECT_THROW(static_cast<void>(beats.Fill()), std::system_error);
    EXPECT_EQ(ReadBytes(beats.Target()), "in the way");
}

TEST_F(FolderCopies, TellHowFarTheyAreAndEndWhereTheyAreStopped)
{
    std::size_t last = 0;
    const auto stopBehindTwo = [&last](std::size_t done, std::size_t total) {
        EXPECT_EQ(total, 6U);
        EXPECT_EQ(done, last++);
        if (done == 2)
            throw WorkStopped();
    };
    EXPECT_THROW(static_cast<void>(PosixFolderCopies().FillFolder(beats.Source(), beats.Target(), stopBehindTwo)),
                 WorkStopped);
    EXPECT_EQ(beats.NamesOfUser(), Names{});
}

TEST_F(FolderCopies, WaitForAnotherProgramAndMayBeStoppedMeanwhile)
{
    FileLock other(beats.User() / ".TqkCopyLock");
    ASSERT_EQ(other.Try(), Lock::Taken);
    int asked = 0;
    const auto stopLater = [&asked](std::size_t, std::size_t) {
        if (++asked == 3)
            throw WorkStopped();
    };
    EXPECT_THROW(static_cast<void>(PosixFolderCopies().FillFolder(beats.Source(), beats.Target(), stopLater)),
                 WorkStopped);
    EXPECT_EQ(beats.NamesOfUser(), Names{".TqkCopyLock"});
}

TEST_F(FolderCopies, AreMadeByOneOfTwoProgramsAtOnce)
{
    for (int round = 0; round < 50; ++round) {
        RunAtOnce(2, [this](int) { EXPECT_TRUE(beats.Fill().empty()); });
        ASSERT_EQ(beats.Filled(), beats.Installed());
        ASSERT_EQ(beats.NamesOfUser(), Names{"Beats"});
        fs::remove_all(beats.Target());
    }
}

TEST_F(FolderCopies, AreWholeAfterAKillAtEachSystemCall)
{
    int call = 1;
    for (; KilledAtSystemCall(call, [this] { static_cast<void>(beats.Fill()); }); call += kKillStep) {
        SCOPED_TRACE(call);
        const auto left = beats.Filled();
        ASSERT_TRUE(left.empty() || left == beats.Installed()) << "half a library";
        ASSERT_TRUE(beats.Fill().empty());
        ASSERT_EQ(beats.Filled(), beats.Installed());
        ASSERT_EQ(beats.NamesOfUser(), Names{"Beats"});
        fs::remove_all(beats.Target());
    }
    EXPECT_GT(call, 40) << "three files take more calls than that";
}

TEST_F(FolderCopies, KeepWhatTheFolderHoldsAfterAKillAtEachSystemCall)
{
    bool killed = true;
    for (int call = 1; killed && !HasFailure(); call += kKillStep) {
        SCOPED_TRACE(call);
        fs::remove_all(beats.Target());
        MakeTargetWithoutFiles();
        killed = KilledAtSystemCall(call, [this] { static_cast<void>(beats.Fill()); });
        EXPECT_TRUE(!HoldsFile(beats.Target()) || PosixFolderCopies().IsUnfinished(beats.Target()) ||
                    beats.Filled().size() == 5);
        EXPECT_TRUE(beats.Fill().empty());
        ExpectFilledAroundMine();
    }
}

/// Files that are added to those of a user, who has another one of the same name.
class AddedFiles : public FolderCopies {
protected:
    void MakeTarget() const
    {
        fs::remove_all(beats.Target());
        fs::create_directories(beats.Target());
        WriteBytes(beats.Target() / "b.wav", "my b");
        WriteBytes(beats.Target() / "mine.wav", "mine");
    }

    [[nodiscard]] std::map<std::string, std::string> Wanted() const
    {
        return {{"a.wav", std::string(300'000, 'a')}, {"b.wav", "my b"}, {"mine.wav", "mine"}};
    }
};

TEST_F(AddedFiles, ComeBesideTheUsersAndReplaceNone)
{
    MakeTarget();
    SetWrittenIn2020(beats.Source() / "a.wav", 2000);
    EXPECT_TRUE(beats.Add().empty());
    EXPECT_EQ(beats.Filled(), Wanted());
    EXPECT_EQ(fs::last_write_time(beats.Target() / "a.wav"), fs::last_write_time(beats.Source() / "a.wav"));
    EXPECT_EQ(beats.NamesOfUser(), Names{"Beats"});
    EXPECT_FALSE(PosixFolderCopies().IsUnfinished(beats.Target()));
}

TEST_F(AddedFiles, MayBeStopped)
{
    MakeTarget();
    const auto before = beats.Filled();
    const std::vector<fs::path> names{"a.wav", "b.wav"};
    const auto stop = [](std::size_t done, std::size_t total) {
        EXPECT_EQ(total, 4U);
        if (done == 3)
            throw WorkStopped();
    };
    EXPECT_THROW(static_cast<void>(PosixFolderCopies().AddFiles(beats.Source(), beats.Target(), names, stop)),
                 WorkStopped);
    EXPECT_EQ(beats.Filled(), before);
    EXPECT_EQ(beats.NamesOfUser(), Names{"Beats"});
}

TEST_F(AddedFiles, LeaveOutWhatIsNotThere)
{
    MakeTarget();
    const std::vector<fs::path> names{"a.wav", "gone.wav"};
    const auto leftOut =
        PosixFolderCopies().AddFiles(beats.Source(), beats.Target(), names, [](std::size_t, std::size_t) {});
    ASSERT_EQ(leftOut.size(), 1U);
    EXPECT_EQ(leftOut[0].Path, beats.Source() / "gone.wav");
    EXPECT_EQ(beats.Filled(), Wanted());
}

TEST_F(AddedFiles, AreWholeAfterAKillAtEachSystemCallOrTheNextStart)
{
    bool killed = true;
    for (int call = 1; killed && !HasFailure(); call += kKillStep) {
        SCOPED_TRACE(call);
        MakeTarget();
        const auto before = beats.Filled();
        killed = KilledAtSystemCall(call, [this] { static_cast<void>(beats.Add()); });
        const bool isUnfinished = PosixFolderCopies().IsUnfinished(beats.Target());
        EXPECT_TRUE(isUnfinished || beats.Filled() == before || beats.Filled() == Wanted());
        if (isUnfinished)
            static_cast<void>(beats.Fill()); // as a start does then
        EXPECT_TRUE(beats.Filled() == before || beats.Filled() == Wanted());
        EXPECT_TRUE(beats.Add().empty());
        EXPECT_EQ(beats.Filled(), Wanted());
        EXPECT_EQ(beats.NamesOfUser(), Names{"Beats"});
    }
}

TEST_F(AddedFiles, FinishWhatAKilledProgramLeft)
{
    MakeTarget();
    fs::create_directories(beats.User() / ".TqkWhole-Beats");
    WriteBytes(beats.User() / ".TqkWhole-Beats/c.wav", "c");
    fs::create_directories(beats.User() / ".TqkCopy-Beats");
    WriteBytes(beats.User() / ".TqkCopy-Beats/half.wav", "half");
    EXPECT_TRUE(beats.Add().empty());
    auto wanted = Wanted();
    wanted["c.wav"] = "c";
    EXPECT_EQ(beats.Filled(), wanted);
    EXPECT_EQ(beats.NamesOfUser(), Names{"Beats"});
}

TEST(FileLock, IsHeldByOneAtATime)
{
    const TestFolder folder;
    const fs::path path = folder.Path() / "lock";
    {
        FileLock first(path);
        EXPECT_EQ(first.Try(), Lock::Taken);
        FileLock second(path);
        EXPECT_EQ(second.Try(), Lock::Held);
    }
    EXPECT_FALSE(fs::exists(path));
    WriteBytes(path, "left by a program that was killed");
    FileLock third(path);
    EXPECT_EQ(third.Try(), Lock::Taken);
    EXPECT_EQ(FileLock(folder.Path() / "missing/lock").Try(), Lock::Unknown);
}

TEST(FileLock, FollowsNoLink)
{
    const TestFolder folder;
    WriteBytes(folder.Path() / "victim", "kept");
    fs::create_symlink(folder.Path() / "victim", folder.Path() / "lock");
    EXPECT_EQ(FileLock(folder.Path() / "lock").Try(), Lock::Unknown);
    EXPECT_EQ(ReadBytes(folder.Path() / "victim"), "kept");
}

} // namespace
} // namespace sprout
