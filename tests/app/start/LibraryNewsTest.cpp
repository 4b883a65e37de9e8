// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/start/LibraryNews.h"

#include <gtest/gtest.h>

#include <system_error>

#include "app/start/UserFolders.h"
#include "base/FilePaths.h"
#include "core/Paths.h"
#include "core/Settings.h"
#include "support/FakeServices.h"
#include "support/InstalledBeats.h"
#include "support/UnchangeableFolder.h"

namespace sprout {
namespace {

namespace fs = std::filesystem;

using Files = std::map<std::string, std::string>;

/// A user whose folders were filled from an installed library of one tune, song, beat and star.
class LibraryNewsTest : public testing::Test {
protected:
    LibraryNewsTest()
    {
        SharedState& shared = Shared();
        fs::create_directories(fake.folder.Path() / "documents");
        shared.DocumentsFolder = fake.folder.Path() / "documents";
        shared.InstallRoot = AsFolder(Installed());
        shared.InstallBeats = AsFolder(Installed() / "Beats");
        shared.InstallTunes = AsFolder(Installed() / "Tunes");
        shared.InstallStars = AsFolder(Installed() / "Stars");
        shared.InstallSongs = AsFolder(Installed() / "Songs");
        for (const char* folder : {"Beats", "Tunes", "Stars", "Songs"})
            fs::create_directories(Installed() / folder);
        for (const char* file : {"Tunes/Lumo.TqTun", "Tunes/TqTunes.ini", "Songs/Zumi.TqSng", "Beats/D_Kick.wav",
                                 "Beats/D_Kick.bmp", "Stars/Sun.TqSta", "Stars/Sun.bmp"})
            Install(file);
        Start();
    }

    [[nodiscard]] fs::path Installed() const { return fake.folder.Path() / "program" / "Sprout"; }
    [[nodiscard]] static fs::path User() { return Shared().UserRoot; }
    [[nodiscard]] static fs::path List() { return User() / ".SproutLibrary"; }

    void Install(const std::string& file) const { WriteBytes(Installed() / file, "library's " + file); }

    /// The next version of the library has one more of each kind, and another Lumo.
    void Upgrade() const
    {
        WriteBytes(Installed() / "Tunes/Lumo.TqTun", "changed");
        for (const char* file : {"Tunes/Fizz.TqTun", "Songs/Rain.TqSng", "Beats/F_Frog High.wav",
                                 "Beats/F_Frog High.bmp", "Stars/Moon.TqSta", "Stars/Moon.bmp"})
            Install(file);
    }

    /// What is new at a start of the program.
    static LibraryNews Start()
    {
        SetUserFolders();
        FillUserFolders();
        return LibraryNews::Find();
    }

    static std::string Offered() { return Start().Names().English(); }

    /// The user's files except the list.
    static Files Own()
    {
        Files files = InstalledBeats::FilesIn(User());
        files.erase(".SproutLibrary");
        return files;
    }

    FakeServices fake;
};

TEST_F(LibraryNewsTest, AreNoneWhileTheLibraryStaysTheSame)
{
    EXPECT_TRUE(Start().IsEmpty());
    const std::string list = ReadBytes(List());
    EXPECT_TRUE(Start().IsEmpty());
    EXPECT_EQ(ReadBytes(List()), list);
    EXPECT_NE(list.find("Tunes/Lumo=1"), std::string::npos);
}

TEST_F(LibraryNewsTest, AreWhatCameIntoIt)
{
    Upgrade();
    const LibraryNews news = Start();
    EXPECT_FALSE(news.IsEmpty());
    EXPECT_EQ(news.Names().English(),
              "New tunes: Fizz\nNew songs: Rain\nNew beats: Frog High\nNew surprises for random tunes");
}

TEST_F(LibraryNewsTest, ComeBesideWhatTheUserHasWhichStaysAsItIs)
{
    WriteBytes(Shared().UserTunes / "TqTunes.ini", "[SortOrder]\r\nMine=1\r\n");
    WriteBytes(Shared().UserTunes / "Mine.TqTun", "mine");
    WriteBytes(Shared().UserSongs / "Zumi.TqSng", "painted");
    Upgrade();
    SetWrittenIn2020(Installed() / "Beats/F_Frog High.wav", 1000);
    Files wanted = Own();
    Start().Add();
    for (const char* file : {"Tunes/Fizz.TqTun", "Songs/Rain.TqSng", "Beats/F_Frog High.wav", "Beats/F_Frog High.bmp",
                             "Stars/Moon.TqSta", "Stars/Moon.bmp"})
        wanted[file] = std::string("library's ") + file;
    EXPECT_EQ(Own(), wanted);
    EXPECT_EQ(FileStamp(Shared().UserBeats / "F_Frog High.wav"), FileStamp(Installed() / "Beats/F_Frog High.wav"));
    EXPECT_TRUE(Start().IsEmpty());
    EXPECT_TRUE(fake.messages.shown.empty());
}

TEST_F(LibraryNewsTest, AreNotOfferedAgainAfterANo)
{
    Upgrade();
    const Files before = Own();
    Start().Decline();
    EXPECT_TRUE(Start().IsEmpty());
    EXPECT_EQ(Own(), before);
    Install("Tunes/Wobble.TqTun");
    EXPECT_EQ(Offered(), "New tunes: Wobble");
}

TEST_F(LibraryNewsTest, AreOfferedAgainWhereNobodyAnswered)
{
    Upgrade();
    const std::string offered = Offered();
    EXPECT_EQ(Offered(), offered);
}

TEST_F(LibraryNewsTest, DoNotHaveWhatTheUserDeleted)
{
    WriteBytes(Shared().UserTunes / "Mine.TqTun", "mine"); // else the empty folder would be filled again
    fs::remove(Shared().UserTunes / "Lumo.TqTun");
    EXPECT_TRUE(Start().IsEmpty());
    Install("Tunes/Fizz.TqTun");
    Start().Add();
    fs::remove(Shared().UserTunes / "Fizz.TqTun");
    EXPECT_TRUE(Start().IsEmpty());
}

TEST_F(LibraryNewsTest, DoNotHaveWhatTheUserHasUnderThatNameInAnyCase)
{
    WriteBytes(Shared().UserTunes / "fizz.tqtun", "mine");
    WriteBytes(Shared().UserBeats / "f_frog high.bmp", "mine");
    Upgrade();
    EXPECT_EQ(Offered(), "New songs: Rain\nNew surprises for random tunes");
    fs::remove(Shared().UserTunes / "fizz.tqtun");
    EXPECT_EQ(Offered(), "New songs: Rain\nNew surprises for random tunes") << "it was noted";
}

TEST_F(LibraryNewsTest, DoNotHaveWhatAnEarlierVersionHad)
{
    Upgrade();
    Start().Decline();
    fs::remove(Installed() / "Tunes/Fizz.TqTun");
    EXPECT_TRUE(Start().IsEmpty());
    Install("Tunes/Fizz.TqTun");
    EXPECT_TRUE(Start().IsEmpty());
}

TEST_F(LibraryNewsTest, AreNoneInFoldersOfWhichNothingWasNoted)
{
    fs::remove(List());
    fs::remove(Shared().UserSongs / "Zumi.TqSng");
    WriteBytes(Shared().UserSongs / "Mine.TqSng", "mine");
    Upgrade();
    EXPECT_TRUE(Start().IsEmpty()) << "Zumi may have been deleted";
    EXPECT_TRUE(Start().IsEmpty());
}

TEST_F(LibraryNewsTest, AreNoneWhereTheListCannotBeRead)
{
    Upgrade();
    const std::string tooLarge(5'000'000, ';');
    WriteBytes(List(), tooLarge);
    static_cast<void>(Start());
    EXPECT_EQ(ReadBytes(List()), tooLarge);
}

TEST_F(LibraryNewsTest, HaveWhatWasStruckOffTheList)
{
    WriteBytes(Shared().UserTunes / "Mine.TqTun", "mine");
    fs::remove(Shared().UserTunes / "Lumo.TqTun");
    std::string list = ReadBytes(List());
    const std::string line = "Tunes/Lumo=1\r\n";
    list.erase(list.find(line), line.size());
    WriteBytes(List(), list);
    EXPECT_EQ(Offered(), "New tunes: Lumo");
}

TEST_F(LibraryNewsTest, AreNoneWhereASettingKeepsTheLibraryAway)
{
    PutSetting("General", "SkipFirstCopy", "1");
    Upgrade();
    const std::string list = ReadBytes(List());
    EXPECT_TRUE(Start().IsEmpty());
    EXPECT_EQ(ReadBytes(List()), list);
}

TEST_F(LibraryNewsTest, AreNoneWhereNothingCanBeKept)
{
    Upgrade();
    {
        const UnchangeableFolder locked(User());
        EXPECT_TRUE(Start().IsEmpty());
    }
    const UnchangeableFolder locked(User() / "Tunes");
    EXPECT_EQ(Offered(), "New songs: Rain\nNew beats: Frog High\nNew surprises for random tunes");
}

TEST_F(LibraryNewsTest, NameTheFirstFive)
{
    for (const char* name : {"A", "B", "C", "D", "E"})
        Install(std::string("Songs/") + name + ".TqSng");
    EXPECT_EQ(Offered(), "New songs: A, B, C, D, E");
    Install("Songs/F.TqSng");
    Install("Songs/G = H.TqSng");
    const LibraryNews news = Start();
    EXPECT_EQ(news.Names().English(), "New songs: A, B, C, D, E, and 2 more");
    news.Decline();
    EXPECT_TRUE(Start().IsEmpty());
}

TEST_F(LibraryNewsTest, AreOfferedAgainWhereTheUserStopsTheCopy)
{
    Upgrade();
    const LibraryNews news = Start();
    fake.screen.progressesBeforeStop = 2; // behind the tune
    news.Add();
    EXPECT_TRUE(fs::exists(Shared().UserTunes / "Fizz.TqTun"));
    fake.screen.progressesBeforeStop = -1;
    EXPECT_EQ(Offered(), "New songs: Rain\nNew beats: Frog High\nNew surprises for random tunes");
}

/// Adds nothing.
class FullDiskCopies : public PosixFolderCopies {
public:
    [[nodiscard]] std::vector<LeftOutFile> AddFiles(const fs::path& /*source*/, const fs::path& /*target*/,
                                                    std::span<const fs::path> /*names*/,
                                                    const Progress& /*progress*/) override
    {
        throw std::system_error(std::make_error_code(std::errc::no_space_on_device));
    }
};

TEST_F(LibraryNewsTest, AreOfferedAgainAfterAFullDiskWhichIsTold)
{
    Install("Tunes/Fizz.TqTun");
    FullDiskCopies copies;
    TheServices().folderCopies = &copies;
    Start().Add();
    ASSERT_EQ(fake.messages.shown.size(), 1U);
    EXPECT_TRUE(fake.messages.shown[0].text.ends_with("\r\nNo space left on device"));
    EXPECT_EQ(Offered(), "New tunes: Fizz");
}

} // namespace
} // namespace sprout
