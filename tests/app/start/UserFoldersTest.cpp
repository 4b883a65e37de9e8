// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/start/UserFolders.h"

#include <gtest/gtest.h>

#include <system_error>

#include "base/FilePaths.h"
#include "core/Paths.h"
#include "core/Settings.h"
#include "support/FakeServices.h"
#include "support/InstalledBeats.h"
#include "support/UnchangeableFolder.h"

namespace sprout {
namespace {

namespace fs = std::filesystem;

/// A user without folders, beside an installation with one file in each of its own.
class UserFolders : public testing::Test {
protected:
    UserFolders()
    {
        SharedState& shared = Shared();
        fs::create_directories(Documents());
        shared.DocumentsFolder = Documents();
        shared.InstallRoot = AsFolder(Installed());
        shared.InstallBeats = AsFolder(Installed() / "Beats");
        shared.InstallTunes = AsFolder(Installed() / "Tunes");
        shared.InstallStars = AsFolder(Installed() / "Stars");
        shared.InstallSongs = AsFolder(Installed() / "Songs");
        for (const fs::path& folder :
             {shared.InstallBeats, shared.InstallTunes, shared.InstallStars, shared.InstallSongs}) {
            fs::create_directories(folder);
            WriteBytes(folder / "file", "installed");
        }
    }

    [[nodiscard]] fs::path Documents() const { return fake.folder.Path() / "documents"; }
    [[nodiscard]] fs::path Installed() const { return fake.folder.Path() / "program" / "Sprout"; }
    [[nodiscard]] fs::path User() const { return Documents() / "Tonquill Sprout Painter"; }

    static void Begin()
    {
        SetUserFolders();
        FillUserFolders();
    }

    static bool ReadsOnlyInstalledOnes()
    {
        const SharedState& shared = Shared();
        return shared.UserBeats == shared.InstallBeats && shared.UserTunes == shared.InstallTunes &&
               shared.UserStars == shared.InstallStars && shared.UserSongs == shared.InstallSongs;
    }

    /// All four are the user's own, whatever they hold.
    [[nodiscard]] bool ReadsOnlyOwnOnes() const
    {
        const SharedState& shared = Shared();
        return shared.UserBeats == AsFolder(User() / "Beats") && shared.UserTunes == AsFolder(User() / "Tunes") &&
               shared.UserStars == AsFolder(User() / "Stars") && shared.UserSongs == AsFolder(User() / "Songs");
    }

    FakeServices fake;
};

TEST_F(UserFolders, AreFilledAndKeepWhatIsMade)
{
    Begin();
    EXPECT_TRUE(ReadsOnlyOwnOnes());
    EXPECT_EQ(InstalledBeats::FilesIn(User()), InstalledBeats::FilesIn(Installed()));
    EXPECT_TRUE(FoldersThatKeepNothing().IsBlank());
}

TEST_F(UserFolders, AreTheInstalledOnesInAHomeThatCannotBeWritten)
{
    const UnchangeableFolder locked(Documents());
    Begin();
    EXPECT_TRUE(ReadsOnlyInstalledOnes());
    EXPECT_EQ(Shared().UserRoot, User());
    EXPECT_EQ(FoldersThatKeepNothing().English(), User().native());
    EXPECT_TRUE(fake.messages.shown.empty()) << "one sentence is enough";
}

TEST_F(UserFolders, AreTheInstalledOnesInAnEmptyFolderThatCannotBeWritten)
{
    fs::create_directories(User() / "Songs");
    const UnchangeableFolder locked(User());
    Begin();
    EXPECT_TRUE(ReadsOnlyInstalledOnes());
    EXPECT_TRUE(fake.messages.shown.empty());
}

TEST_F(UserFolders, AreReadAsTheyAreWhereTheyHoldFilesButCannotBeWritten)
{
    Begin();
    const UnchangeableFolder locked(User() / "Songs");
    Begin();
    EXPECT_TRUE(ReadsOnlyOwnOnes());
    EXPECT_EQ(FoldersThatKeepNothing().English(), (User() / "Songs").native());
}

TEST_F(UserFolders, AreReplacedOneByOne)
{
    fs::create_directories(User() / "Tunes");
    fs::create_directories(User() / "Stars");
    {
        const UnchangeableFolder locked(User() / "Tunes");
        const UnchangeableFolder other(User() / "Stars");
        Begin();
        EXPECT_EQ(FoldersThatKeepNothing().English(), (User() / "Tunes").native() + ", " + (User() / "Stars").native());
    }
    EXPECT_EQ(Shared().UserTunes, Shared().InstallTunes);
    EXPECT_EQ(Shared().UserStars, Shared().InstallStars);
    EXPECT_EQ(Shared().UserSongs, AsFolder(User() / "Songs"));
    EXPECT_EQ(ReadBytes(Shared().UserSongs / "file"), "installed");
}

TEST_F(UserFolders, AreReplacedWhereAFileIsInTheWayWhichIsTold)
{
    fs::create_directories(User());
    WriteBytes(User() / "Beats", "a file in the way");
    Begin();
    EXPECT_EQ(fake.messages.shown.size(), 1U);
    EXPECT_EQ(Shared().UserBeats, Shared().InstallBeats);
    EXPECT_EQ(Shared().UserTunes, AsFolder(User() / "Tunes"));
    EXPECT_EQ(FoldersThatKeepNothing().English(), (User() / "Beats").native());
}

/// Copies nothing.
class FullDiskCopies : public PosixFolderCopies {
public:
    [[nodiscard]] std::vector<LeftOutFile> FillFolder(const fs::path& /*source*/, const fs::path& /*target*/,
                                                      const Progress& /*progress*/) override
    {
        throw std::system_error(std::make_error_code(std::errc::no_space_on_device));
    }
};

TEST_F(UserFolders, AreTheInstalledOnesOnAFullDiskWhichIsToldOnce)
{
    FullDiskCopies copies;
    TheServices().folderCopies = &copies;
    fs::create_directories(User() / "Songs");
    Begin();
    EXPECT_TRUE(ReadsOnlyInstalledOnes());
    ASSERT_EQ(fake.messages.shown.size(), 1U);
    EXPECT_TRUE(fake.messages.shown[0].text.ends_with("\r\nNo space left on device"));
    EXPECT_EQ(FoldersThatKeepNothing().English(), User().native());
}

TEST_F(UserFolders, StayEmptyWhereTheUserStopsTheCopy)
{
    fake.screen.progressesBeforeStop = 0;
    Begin();
    EXPECT_TRUE(ReadsOnlyOwnOnes());
    EXPECT_TRUE(FoldersThatKeepNothing().IsBlank()) << "what is made is kept";
}

TEST_F(UserFolders, StayEmptyWhereTheFirstCopyIsSwitchedOff)
{
    PutSetting("General", "SkipFirstCopy", "1");
    Begin();
    EXPECT_TRUE(ReadsOnlyOwnOnes());
    EXPECT_TRUE(InstalledBeats::FilesIn(User()).empty());
    EXPECT_TRUE(FoldersThatKeepNothing().IsBlank());
    PutSetting("General", "SkipFirstCopy", "0");
    Begin();
    EXPECT_FALSE(InstalledBeats::FilesIn(User()).empty());
}

TEST_F(UserFolders, AreTheInstalledOnesThoughTheFirstCopyIsSwitchedOff)
{
    PutSetting("General", "SkipFirstCopy", "1");
    const UnchangeableFolder locked(Documents());
    Begin();
    EXPECT_TRUE(ReadsOnlyInstalledOnes());
}

TEST_F(UserFolders, StayTheUsersWhereNothingIsInstalled)
{
    for (const char* name : {"Beats", "Tunes", "Stars", "Songs"})
        fs::remove(Installed() / name / "file");
    Begin();
    EXPECT_TRUE(ReadsOnlyOwnOnes());
    EXPECT_TRUE(FoldersThatKeepNothing().IsBlank());
}

TEST_F(UserFolders, LetNothingBeChangedInTheInstalledOnes)
{
    const UnchangeableFolder locked(Documents());
    Begin();
    EXPECT_FALSE(DeleteFile(Shared().UserSongs / "file"));
    EXPECT_TRUE(fs::exists(Installed() / "Songs" / "file"));
}

} // namespace
} // namespace sprout
