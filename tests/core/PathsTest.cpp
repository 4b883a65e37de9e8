// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Paths.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>

#include "base/Errors.h"
#include "base/FilePaths.h"
#include "core/Shared.h"
#include "support/FakeServices.h"
#include "support/UnchangeableFolder.h"

namespace sprout {
namespace {

namespace fs = std::filesystem;
using namespace std::string_literals;

class Paths : public testing::Test {
protected:
    [[nodiscard]] fs::path In(const std::string& name) const { return fake.folder.Path() / name; }
    FakeServices fake;
};

TEST_F(Paths, FindFilesInAnyLetterCaseAndTheirOwnNameFirst)
{
    WriteBytes(In("Beat.WAV"), "1");
    EXPECT_EQ(FindFile(In("bEAT.wav")), In("Beat.WAV"));
    WriteBytes(In("beat.wav"), "2");
    EXPECT_EQ(FindFile(In("beat.wav")), In("beat.wav"));
    WriteBytes(In("Élan.wav"), "3");
    EXPECT_TRUE(FileExists(In("éLAN.wav")));
}

TEST_F(Paths, FindNothingButPlainFiles)
{
    fs::create_directory(In("folder"));
    WriteBytes(In("a"), "");
    for (const fs::path& path : {fs::path(), fs::path("  "), In("folder"), In("missing"), In("missing/a"),
                                 fs::path(In("a").native() + "\0b"s), In("folder/")})
        EXPECT_FALSE(FileExists(path)) << path;
}

TEST_F(Paths, DeleteFileTellsWhatStillExists)
{
    EXPECT_TRUE(DeleteFile(""));
    EXPECT_TRUE(DeleteFile(In("missing")));
    WriteBytes(In("a"), "");
    WriteBytes(In("A"), "");
    EXPECT_TRUE(DeleteFile(In("a")));
    EXPECT_FALSE(fs::exists(In("a")));
    EXPECT_TRUE(fs::exists(In("A")));
    EXPECT_FALSE(DeleteFile("/proc/self/status"));
    EXPECT_TRUE(DeleteFile(fs::path(In("A").native() + "\0b"s)));
    EXPECT_TRUE(fs::exists(In("A")));
}

TEST_F(Paths, DeleteOnlyTheFileOfTheExactName)
{
    WriteBytes(In("mine.wav"), "");
    EXPECT_TRUE(DeleteFile(In("Mine.wav"))) << "there is none";
    EXPECT_TRUE(fs::exists(In("mine.wav")));
    fs::create_directory(In("folder"));
    EXPECT_FALSE(DeleteFile(In("folder")));
    EXPECT_TRUE(fs::exists(In("folder")));
    fs::create_symlink(In("mine.wav"), In("link"));
    EXPECT_TRUE(DeleteFile(In("link")));
    EXPECT_FALSE(fs::is_symlink(In("link")));
    EXPECT_TRUE(fs::exists(In("mine.wav")));
}

TEST_F(Paths, ClearStaleTemporaryFilesOnTheWay)
{
    const fs::path temp = Shared().TempFolder;
    EXPECT_EQ(NewTempFileName("TqSng"), temp / "TqkTmp1.TqSng");
    WriteBytes(temp / "TqkTmp1.TqSng", "stale");
    WriteBytes(temp / "TqkTmp2.TqSng", "stale");
    WriteBytes(temp / "TqkTmp1.TqTun", "other");
    EXPECT_EQ(NewTempFileName("TqSng"), temp / "TqkTmp3.TqSng");
    EXPECT_FALSE(fs::exists(temp / "TqkTmp1.TqSng"));
    EXPECT_FALSE(fs::exists(temp / "TqkTmp2.TqSng"));
    EXPECT_TRUE(fs::exists(temp / "TqkTmp1.TqTun"));
    EXPECT_EQ(NewTempFileName("TqSng"), temp / "TqkTmp1.TqSng");
}

TEST_F(Paths, PassOverLinksInTheTempFolder)
{
    WriteBytes(In("target"), "kept");
    fs::create_symlink(In("target"), Shared().TempFolder / "TqkTmp1.raw");
    fs::create_symlink(In("nowhere"), Shared().TempFolder / "TqkTmp2.raw");
    EXPECT_EQ(NewTempFileName("raw").filename(), "TqkTmp3.raw");
    EXPECT_EQ(ReadBytes(In("target")), "kept");
}

TEST_F(Paths, EndTheSearchWhereANameCannotBeAskedFor)
{
    const std::string tooLong(300, 'x');
    EXPECT_EQ(NewTempFileName(tooLong), Shared().TempFolder / ("TqkTmp1." + tooLong));
}

/// A machine with free space only on the volume of the temporary folder.
class NamedRoom : public FakeMachine {
public:
    [[nodiscard]] std::uint64_t FreeBytes(const fs::path& path) const override
    {
        return path == Shared().TempFolder ? 5'000'000'000U : 0U;
    }
};

TEST_F(Paths, AskForTheRoomOfTheTempFolder)
{
    NamedRoom machine;
    TheServices().machine = &machine;
    EXPECT_EQ(FreeDiskBytes(), 5'000'000'000U);
}

TEST_F(Paths, CopyFoldersWithTheirTimesAndOverwriteNothing)
{
    fs::create_directories(In("from/Beats/sub"));
    fs::create_directories(In("to/Beats/sub"));
    WriteBytes(In("from/Beats/a.wav"), "a");
    WriteBytes(In("from/Beats/b.wav"), "b");
    WriteBytes(In("from/Beats/sub/c.wav"), "c");
    WriteBytes(In("from/Beats/sub/d.wav"), "d");
    WriteBytes(In("to/Beats/sub/d.wav"), "mine");
    SetWrittenIn2020(In("from/Beats/a.wav"), 1000);
    fs::permissions(In("from/Beats/a.wav"), fs::perms::owner_read);
    EXPECT_TRUE(CopyFolder(In("from/Beats/"), In("to")).IsBlank());
    EXPECT_EQ(FileStamp(In("to/Beats/a.wav")), FileStamp(In("from/Beats/a.wav")));
    EXPECT_EQ(fs::last_write_time(In("to/Beats/a.wav")), fs::last_write_time(In("from/Beats/a.wav")));
    EXPECT_NE(fs::status(In("to/Beats/a.wav")).permissions() & fs::perms::owner_write, fs::perms::none);
    EXPECT_EQ(ReadBytes(In("to/Beats/b.wav")), "b");
    EXPECT_EQ(ReadBytes(In("to/Beats/sub/c.wav")), "c");
    EXPECT_EQ(ReadBytes(In("to/Beats/sub/d.wav")), "mine");
    EXPECT_EQ(fake.screen.processPicsShown, 1);
    EXPECT_EQ(fake.screen.processPics, 0);
    EXPECT_EQ(fake.screen.hourglasses, 0);
}

TEST_F(Paths, CopyFilesBesideOthersAndOverwriteNothing)
{
    fs::create_directories(In("from"));
    fs::create_directories(In("to/Beats"));
    WriteBytes(In("from/a.wav"), "a");
    WriteBytes(In("from/b.wav"), "b");
    WriteBytes(In("from/c.wav"), "c");
    WriteBytes(In("to/Beats/b.wav"), "mine");
    const std::vector<fs::path> names{"a.wav", "b.wav"};
    EXPECT_TRUE(CopyFiles(In("from"), In("to/Beats"), names).IsBlank());
    EXPECT_EQ(ReadBytes(In("to/Beats/a.wav")), "a");
    EXPECT_EQ(ReadBytes(In("to/Beats/b.wav")), "mine");
    EXPECT_FALSE(fs::exists(In("to/Beats/c.wav")));
    EXPECT_EQ(fake.screen.stages, (std::vector<std::string>{"Getting your beats ready", ""}));
    EXPECT_EQ(fake.screen.processPics, 0);
}

TEST_F(Paths, TellAFailedCopy)
{
    TellFailedCopy(In("missing"), CopyFolder(In("missing"), In("to")));
    ASSERT_EQ(fake.messages.shown.size(), 1U);
    EXPECT_EQ(fake.messages.shown[0].title, "Error message");
    EXPECT_EQ(fake.messages.shown[0].icon, MessageIcon::Exclamation);
    EXPECT_EQ(fake.messages.shown[0].text, "Following error occurd while copying folder " + In("missing").native() +
                                               "\r\nNo such file or directory");
    EXPECT_EQ(fake.screen.processPics, 0);
}

TEST_F(Paths, FindTheProgramsFoldersAndSettings)
{
    fake.machine.executable = In("program/sprout.painter");
    fake.machine.temp = In("temp/");
    FindTempFolder();
    EXPECT_EQ(Shared().ProgramFolder, In("program"));
    EXPECT_EQ(Shared().SettingsFile, In("program/sprout.ini"));
    EXPECT_EQ(Shared().TempFolder, In("temp"));
    WriteBytes(In("file"), "");
    for (const fs::path& bad : {In("missing"), In("file"), fs::path(" "), fs::path()}) {
        fake.machine.temp = bad;
        FindTempFolder();
        EXPECT_EQ(Shared().TempFolder, In("program")) << bad;
    }
}

/// A program with places for its settings beside it, in the user's home and in the machine's folder.
class PathsOfSettings : public Paths {
protected:
    PathsOfSettings()
    {
        fake.machine.executable = In("program/sprout-painter");
        fake.machine.temp = In("temp");
        fake.machine.commonTemp = In("common");
        fake.machine.config = In("etc");
        fake.desktop.config = In("home/.config");
    }

    [[nodiscard]] fs::path Users() const { return In("home/.config/sprout-painter/sprout-painter.ini"); }
    void Install() const { WriteBytes(In("program/installed"), "installed"); }
};

TEST_F(PathsOfSettings, StayBesideAProgramThatIsCarriedAround)
{
    FindTempFolder();
    EXPECT_FALSE(Shared().IsInstalled);
    EXPECT_EQ(Shared().SettingsFile, In("program/sprout-painter.ini"));
    EXPECT_EQ(Shared().ProgramSettingsFile, Shared().SettingsFile);
    EXPECT_EQ(Shared().MachineSettingsFile, In("etc/sprout-painter/sprout-painter.ini"));
}

TEST_F(PathsOfSettings, AreTheDesktopsForAnInstalledProgram)
{
    Install();
    FindTempFolder();
    EXPECT_TRUE(Shared().IsInstalled);
    EXPECT_EQ(Shared().SettingsFile, Users());
    EXPECT_EQ(Shared().ProgramSettingsFile, In("program/sprout-painter.ini"));
    EXPECT_EQ(Shared().MachineSettingsFile, In("etc/sprout-painter/sprout-painter.ini"));
    fs::remove(In("program/installed"));
    FindTempFolder();
    EXPECT_FALSE(Shared().IsInstalled);
}

TEST_F(PathsOfSettings, AreTheDesktopsWhereTheProgramsFolderMayNotBeChanged)
{
    const UnchangeableFolder locked(In("program"));
    FindTempFolder();
    EXPECT_FALSE(Shared().IsInstalled);
    EXPECT_EQ(Shared().SettingsFile, Users());
}

TEST_F(PathsOfSettings, AreNowhereWithoutAHome)
{
    Install();
    fake.desktop.config.clear();
    fake.machine.config.clear();
    FindTempFolder();
    EXPECT_TRUE(Shared().SettingsFile.empty());
    EXPECT_TRUE(Shared().MachineSettingsFile.empty());
}

TEST_F(PathsOfSettings, LeadAnInstalledProgramWithoutATempFolderToTheCommonOne)
{
    Install();
    for (const fs::path& bad : {In("missing"), In("program/installed"), fs::path()}) {
        fake.machine.temp = bad;
        FindTempFolder();
        EXPECT_EQ(Shared().TempFolder, In("common")) << bad;
    }
    fake.machine.temp = In("temp");
    FindTempFolder();
    EXPECT_EQ(Shared().TempFolder, In("temp"));
}

TEST_F(Paths, ChangeNothingThatIsInstalled)
{
    Shared().InstallRoot = AsFolder(In("program/Sprout"));
    fs::create_directories(In("program/Sprout/Songs"));
    const fs::path song = In("program/Sprout/Songs/Zumi.TqSng");
    WriteBytes(song, "zumi");
    EXPECT_TRUE(IsOfInstallation(song));
    EXPECT_TRUE(IsOfInstallation(In("program/./Sprout//Songs/New.TqSng")));
    EXPECT_FALSE(DeleteFile(song));
    EXPECT_EQ(ReadBytes(song), "zumi");
    EXPECT_THROW(PrepareToReplace(song), RunTimeError);
    EXPECT_THROW(PrepareToReplace(In("program/Sprout/Songs/New.TqSng")), RunTimeError);
    EXPECT_THROW(RequireOwnFile(song), RunTimeError);
    for (const fs::path& own : {In("program/Sprouts/a"), In("program/Sprout/../a"), In("program/a"), In("a")})
        EXPECT_NO_THROW(RequireOwnFile(own)) << own;
}

TEST_F(Paths, ChangeNothingBesideAnInstalledProgram)
{
    Shared().ProgramFolder = In("program");
    const fs::path file = In("program/sprout-painter.ini");
    EXPECT_FALSE(IsOfInstallation(file));
    Shared().IsInstalled = true;
    EXPECT_TRUE(IsOfInstallation(file));
    EXPECT_THROW(PrepareToReplace(file), RunTimeError);
    EXPECT_FALSE(IsOfInstallation(In("programs/a")));
}

TEST_F(Paths, StampFilesInLocalTime)
{
    WriteBytes(In("a"), "");
    SetWrittenIn2020(In("a"), 3661);
    const char* before = std::getenv("TZ");
    const std::string zone = before ? before : "";
    ::setenv("TZ", "UTC-2", 1);
    ::tzset();
    EXPECT_EQ(FileStamp(In("a")), "01/01/2020,03:01:01");
    if (before)
        ::setenv("TZ", zone.c_str(), 1);
    else
        ::unsetenv("TZ");
    ::tzset();
    EXPECT_EQ(FileStamp(In("missing")), "");
}

TEST_F(Paths, FindTheProgramsFolderAnew)
{
    fake.machine.executable = In("temp/other");
    fake.machine.temp = In("missing");
    FindTempFolder();
    EXPECT_EQ(Shared().ProgramFolder, In("temp"));
    EXPECT_EQ(Shared().SettingsFile, In("temp/other.ini"));
    EXPECT_EQ(Shared().TempFolder, In("temp"));
}

TEST_F(Paths, OfASongAreInTheUsersSongs)
{
    SetUserRoot(In("user"));
    EXPECT_EQ(SongPath("Rain"), In("user/Songs/Rain.TqSng"));
    EXPECT_TRUE(SongPath("../Rain").empty());
    EXPECT_TRUE(SongPath(" ").empty());
}

} // namespace
} // namespace sprout
