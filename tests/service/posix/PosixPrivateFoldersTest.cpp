// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/posix/PosixPrivateFolders.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstdlib>
#include <ctime>
#include <optional>
#include <string>

#include "base/Errors.h"
#include "support/TestFolder.h"

namespace sprout {
namespace {

namespace fs = std::filesystem;

constexpr std::time_t kDay = 86400;

/// Sets the age of a folder or of a link itself.
void SetAge(const fs::path& path, std::time_t seconds)
{
    const std::array<timespec, 2> times{timespec{std::time(nullptr) - seconds, 0},
                                        timespec{std::time(nullptr) - seconds, 0}};
    ASSERT_EQ(::utimensat(AT_FDCWD, path.c_str(), times.data(), AT_SYMLINK_NOFOLLOW), 0);
}

class PrivateFoldersTest : public testing::Test {
protected:
    /// A folder with a song in it, left behind by a mail of an earlier run.
    [[nodiscard]] fs::path MakeLeft(const std::string& name, std::time_t age = 2 * kDay) const
    {
        const fs::path left = folder.Path() / name;
        fs::create_directory(left);
        WriteBytes(left / "Zumi.wma", "song");
        SetAge(left, age);
        return left;
    }

    void Clean() const { DeleteLeftPrivateFolders(folder.Path()); }

    TestFolder folder;
};

TEST_F(PrivateFoldersTest, MakesFoldersForTheUserAlone)
{
    PosixPrivateFolders folders;
    const fs::path first = folders.MakeFolder(folder.Path());
    const fs::path second = folders.MakeFolder(folder.Path());
    EXPECT_EQ(first.parent_path(), folder.Path());
    EXPECT_TRUE(first.filename().native().starts_with("TqkMail-"));
    EXPECT_EQ(first.filename().native().size(), std::string("TqkMail-").size() + 6);
    EXPECT_NE(first, second);
    struct stat facts {};
    ASSERT_EQ(::lstat(first.c_str(), &facts), 0);
    EXPECT_EQ(facts.st_mode, S_IFDIR | 0700U);
    EXPECT_EQ(facts.st_uid, ::geteuid());
}

TEST_F(PrivateFoldersTest, TellsWhereNoFolderCanBeMade)
{
    PosixPrivateFolders folders;
    EXPECT_THROW(static_cast<void>(folders.MakeFolder(folder.Path() / "missing")), RunTimeError);
    WriteBytes(folder.Path() / "file", "");
    EXPECT_THROW(static_cast<void>(folders.MakeFolder(folder.Path() / "file")), RunTimeError);
}

TEST_F(PrivateFoldersTest, DeletesAnOwnFolderWithItsFiles)
{
    PosixPrivateFolders folders;
    const fs::path own = folders.MakeFolder(folder.Path());
    const fs::path other = folders.MakeFolder(folder.Path());
    WriteBytes(own / "Zumi.wma", "song");
    WriteBytes(own / ".hidden", "half a song");
    WriteBytes(other / "Rain.wma", "song");
    folders.DeleteFolder(own);
    EXPECT_FALSE(fs::exists(own));
    EXPECT_EQ(ReadBytes(other / "Rain.wma"), "song");
}

TEST_F(PrivateFoldersTest, DeletesNoFolderThatItDidNotMake)
{
    const fs::path foreign = MakeLeft("TqkMail-abcdef");
    PosixPrivateFolders().DeleteFolder(foreign);
    EXPECT_TRUE(fs::exists(foreign / "Zumi.wma"));
}

TEST_F(PrivateFoldersTest, LeavesItsFoldersBehind)
{
    fs::path mailed;
    {
        PosixPrivateFolders folders;
        mailed = folders.MakeFolder(folder.Path());
        WriteBytes(mailed / "Zumi.wma", "song");
    }
    EXPECT_EQ(ReadBytes(mailed / "Zumi.wma"), "song");
}

TEST_F(PrivateFoldersTest, CleansUpWhatIsOlderThanADay)
{
    const fs::path old = MakeLeft("TqkMail-abcdef", kDay + 60);
    const fs::path fresh = MakeLeft("TqkMail-ghijkl", kDay - 60);
    const fs::path fromTheFuture = MakeLeft("TqkMail-mnopqr", -2 * kDay);
    Clean();
    EXPECT_FALSE(fs::exists(old));
    EXPECT_EQ(ReadBytes(fresh / "Zumi.wma"), "song");
    EXPECT_TRUE(fs::exists(fromTheFuture));
}

TEST_F(PrivateFoldersTest, LeavesOtherNamesAlone)
{
    const fs::path other = MakeLeft("TqkMai-abcdef");
    const fs::path longer = MakeLeft("My TqkMail-abcdef");
    WriteBytes(folder.Path() / "TqkMail-file", "a file");
    SetAge(folder.Path() / "TqkMail-file", 2 * kDay);
    Clean();
    EXPECT_TRUE(fs::exists(other / "Zumi.wma"));
    EXPECT_TRUE(fs::exists(longer / "Zumi.wma"));
    EXPECT_EQ(ReadBytes(folder.Path() / "TqkMail-file"), "a file");
}

TEST_F(PrivateFoldersTest, LeavesWhatARunningProgramHolds)
{
    std::optional<PosixPrivateFolders> running(std::in_place);
    const fs::path mailed = running->MakeFolder(folder.Path());
    SetAge(mailed, 2 * kDay);
    Clean();
    EXPECT_TRUE(fs::exists(mailed));
    running.reset();
    Clean();
    EXPECT_FALSE(fs::exists(mailed));
}

TEST_F(PrivateFoldersTest, LeavesWhatAnotherProcessHolds)
{
    const fs::path mailed = MakeLeft("TqkMail-abcdef");
    std::array<int, 2> held{};
    std::array<int, 2> letGo{};
    ASSERT_EQ(::pipe2(held.data(), O_CLOEXEC), 0);
    ASSERT_EQ(::pipe2(letGo.data(), O_CLOEXEC), 0);
    const pid_t other = ::fork();
    char byte = 'x';
    if (other == 0) {
        ::close(letGo[1]);
        const int lock = ::open(mailed.c_str(), O_RDONLY | O_DIRECTORY);
        const bool locked = ::flock(lock, LOCK_EX | LOCK_NB) == 0;
        const bool told = locked && ::write(held[1], &byte, 1) == 1;
        ::_exit(told && ::read(letGo[0], &byte, 1) == 1 ? 0 : 1);
    }
    ::close(held[1]);
    ASSERT_EQ(::read(held[0], &byte, 1), 1);
    Clean();
    EXPECT_EQ(ReadBytes(mailed / "Zumi.wma"), "song");
    ASSERT_EQ(::write(letGo[1], &byte, 1), 1);
    ASSERT_EQ(::waitpid(other, nullptr, 0), other);
    Clean();
    EXPECT_FALSE(fs::exists(mailed));
    for (const int pipe : {held[0], letGo[0], letGo[1]})
        ::close(pipe);
}

TEST_F(PrivateFoldersTest, LeavesFoldersOfOtherUsers)
{
    if (::geteuid() != 0)
        GTEST_SKIP() << "only root can give a folder away";
    const fs::path foreign = MakeLeft("TqkMail-abcdef");
    ASSERT_EQ(::chown(foreign.c_str(), 65534, 65534), 0);
    SetAge(foreign, 2 * kDay);
    Clean();
    EXPECT_EQ(ReadBytes(foreign / "Zumi.wma"), "song");
}

TEST_F(PrivateFoldersTest, FollowsNoLinkToAFolder)
{
    const fs::path precious = folder.Path() / "precious";
    fs::create_directory(precious);
    WriteBytes(precious / "work", "a year of it");
    SetAge(precious, 2 * kDay);
    fs::create_directory_symlink(precious, folder.Path() / "TqkMail-abcdef");
    SetAge(folder.Path() / "TqkMail-abcdef", 2 * kDay);
    Clean();
    EXPECT_EQ(ReadBytes(precious / "work"), "a year of it");
    EXPECT_TRUE(fs::is_symlink(folder.Path() / "TqkMail-abcdef"));
}

TEST_F(PrivateFoldersTest, DeletesALinkInsideAndNotWhatItLeadsTo)
{
    const fs::path precious = folder.Path() / "precious";
    fs::create_directory(precious);
    WriteBytes(precious / "work", "a year of it");
    const fs::path left = MakeLeft("TqkMail-abcdef");
    fs::create_symlink(precious / "work", left / "file");
    fs::create_directory_symlink(precious, left / "folder");
    SetAge(left, 2 * kDay);
    Clean();
    EXPECT_FALSE(fs::exists(left));
    EXPECT_EQ(ReadBytes(precious / "work"), "a year of it");
}

TEST_F(PrivateFoldersTest, GoesIntoNoFolderInside)
{
    const fs::path left = MakeLeft("TqkMail-abcdef");
    fs::create_directory(left / "inner");
    WriteBytes(left / "inner/work", "kept");
    SetAge(left, 2 * kDay);
    Clean();
    EXPECT_EQ(ReadBytes(left / "inner/work"), "kept");
    EXPECT_FALSE(fs::exists(left / "Zumi.wma"));
}

TEST_F(PrivateFoldersTest, CleansUpInAParentThatIsNamedByALink)
{
    const fs::path left = MakeLeft("TqkMail-abcdef");
    const TestFolder other;
    fs::create_directory_symlink(folder.Path(), other.Path() / "tmp");
    DeleteLeftPrivateFolders(other.Path() / "tmp");
    EXPECT_FALSE(fs::exists(left));
}

TEST_F(PrivateFoldersTest, CleansUpNothingWhereThereIsNoParent)
{
    DeleteLeftPrivateFolders(folder.Path() / "missing");
    DeleteLeftPrivateFolders("");
    EXPECT_FALSE(fs::exists(folder.Path() / "missing"));
}

TEST_F(PrivateFoldersTest, StopsWhenItIsAskedTo)
{
    const fs::path left = MakeLeft("TqkMail-abcdef");
    std::stop_source stop;
    stop.request_stop();
    DeleteLeftPrivateFolders(folder.Path(), stop.get_token());
    EXPECT_TRUE(fs::exists(left));
}

TEST_F(PrivateFoldersTest, CleansUpInAThreadOfItsOwn)
{
    const fs::path left = MakeLeft("TqkMail-abcdef");
    PosixPrivateFolders folders;
    folders.DeleteLeftFolders(folder.Path());
    const std::time_t end = std::time(nullptr) + 60;
    while (fs::exists(left) && std::time(nullptr) < end)
        std::this_thread::yield();
    EXPECT_FALSE(fs::exists(left));
}

} // namespace
} // namespace sprout
