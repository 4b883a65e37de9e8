// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/start/StartUp.h"
#include "base/FilePaths.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <utility>

#include "base/Errors.h"
#include "core/IniFile.h"
#include "core/Settings.h"
#include "support/FakeServices.h"
#include "support/InstalledBeats.h"
#include "support/KilledChild.h"
#include "support/UnchangeableFolder.h"
#include "waves/WavOperations.h"

namespace sprout {
namespace {

namespace fs = std::filesystem;

/// A machine on which the program was just installed, with one file in each of its folders.
class StartUp : public testing::Test {
protected:
    StartUp()
    {
        fake.machine.executable = Program() / "sprout-painter";
        fake.machine.temp = fake.folder.Path() / "temp";
        fake.machine.memory = {16'000'000, 4'000'000, 75};
        fake.machine.freeBytes = 123'456'789'012;
        fake.desktop.documents = fake.folder.Path() / "documents";
        fs::create_directories(fake.desktop.documents);
        for (const char* name : {"Beats", "Tunes", "Stars", "Songs"})
            fs::create_directories(Installed() / name);
        WriteBytes(Installed() / "Beats" / "G_Acoustic Guitar High.wav", "guitar");
        WriteBytes(Installed() / "Tunes" / "Walk.TqTun", "walk");
        WriteBytes(Installed() / "Stars" / "Even.TqSta", "even");
        WriteBytes(Installed() / "Songs" / "Zumi.TqSng", "zumi");
    }

    [[nodiscard]] fs::path Program() const { return fake.folder.Path() / "program"; }
    [[nodiscard]] fs::path Installed() const { return Program() / "Sprout"; }
    [[nodiscard]] fs::path User() const { return fake.desktop.documents / "Tonquill Sprout Painter"; }

    FakeServices fake;
};

TEST(SoundMemoryLimit, FollowsTheTableOfShares)
{
    EXPECT_EQ(SoundMemoryLimit(8'000'000), 10'000'000);
    EXPECT_EQ(SoundMemoryLimit(0), 10'000'000);
    EXPECT_EQ(SoundMemoryLimit(16'000'000), 10'560'000);
    EXPECT_EQ(SoundMemoryLimit(32'999'999), 21'779'999);
    EXPECT_EQ(SoundMemoryLimit(33'000'000), 16'500'000);
    EXPECT_EQ(SoundMemoryLimit(66'500'000), 21'945'000);
    EXPECT_EQ(SoundMemoryLimit(157'000'000), 39'250'000);
    EXPECT_EQ(SoundMemoryLimit(268'435'456), 67'108'864);
    EXPECT_EQ(SoundMemoryLimit(1'000'000'000'000), 67'108'864);
}

TEST_F(StartUp, WritesTheFactsAboutTheMachine)
{
    RunStartUp();
    const IniFile ini = IniFile::Read(Program() / "sprout-painter.ini");
    EXPECT_EQ(ini.Value("General", "InstalledPath", ""), Program().native());
    EXPECT_EQ(ini.Value("General", "FreeHardDisk", ""), "123456789012");
    EXPECT_EQ(ini.Value("General", "PhyMemorySz", ""), "4000000");
    EXPECT_EQ(ini.Value("General", "PhyMemoryLoad", ""), "75");
    EXPECT_EQ(ini.Value("General", "TotalPhyMemory", ""), "16000000");
    EXPECT_EQ(ini.Value("General", "DirectXInstalled", ""), "ErrorInDetecting");
    EXPECT_EQ(Shared().SoundMemoryLimit, 10'560'000);
}

TEST_F(StartUp, FindsEveryFolder)
{
    RunStartUp();
    const std::string installed = Installed().native();
    EXPECT_EQ(Shared().InstallRoot.native(), installed + "/");
    EXPECT_EQ(Shared().InstallBeats.native(), installed + "/Beats/");
    EXPECT_EQ(Shared().InstallTunes.native(), installed + "/Tunes/");
    EXPECT_EQ(Shared().InstallStars.native(), installed + "/Stars/");
    EXPECT_EQ(Shared().InstallSongs.native(), installed + "/Songs/");
    EXPECT_EQ(Shared().DemoImages.native(), installed + "/DemoImages/");
    EXPECT_EQ(Shared().DocumentsFolder, fake.desktop.documents);
    EXPECT_EQ(Shared().UserRoot, User());
    EXPECT_EQ(Shared().UserBeats.native(), User().native() + "/Beats/");
    EXPECT_EQ(Shared().UserTunes.native(), User().native() + "/Tunes/");
    EXPECT_EQ(Shared().UserStars.native(), User().native() + "/Stars/");
    EXPECT_EQ(Shared().UserSongs.native(), User().native() + "/Songs/");
    EXPECT_EQ(Shared().TempFolder, fake.machine.temp);
}

TEST_F(StartUp, CleansUpWhatEarlierRunsMailed)
{
    RunStartUp();
    EXPECT_EQ(fake.privateFolders.cleaned, (std::vector<fs::path>{fake.machine.temp}));
    EXPECT_EQ(fake.capture.cleaned, (std::vector<fs::path>{fake.machine.temp}));
}

TEST_F(StartUp, DropsTheSeparatorBehindTheDocumentsFolder)
{
    fake.desktop.documents /= "";
    RunStartUp();
    EXPECT_EQ(Shared().DocumentsFolder, fake.folder.Path() / "documents");
}

TEST_F(StartUp, FillsTheUsersFoldersWithoutAMessage)
{
    RunStartUp();
    EXPECT_EQ(ReadBytes(User() / "Beats" / "G_Acoustic Guitar High.wav"), "guitar");
    EXPECT_EQ(ReadBytes(User() / "Tunes" / "Walk.TqTun"), "walk");
    EXPECT_EQ(ReadBytes(User() / "Stars" / "Even.TqSta"), "even");
    EXPECT_EQ(ReadBytes(User() / "Songs" / "Zumi.TqSng"), "zumi");
    EXPECT_TRUE(fake.messages.shown.empty());
    EXPECT_EQ(fake.screen.processPics, 0);
    EXPECT_EQ(fake.screen.processPicsShown, 4);
}

TEST_F(StartUp, CopiesNothingIntoFoldersThatHoldFiles)
{
    RunStartUp();
    WriteBytes(Installed() / "Songs" / "Another.TqSng", "another");
    WriteBytes(User() / "Songs" / "Zumi.TqSng", "mine");
    RunStartUp();
    EXPECT_EQ(fake.screen.processPicsShown, 4);
    EXPECT_FALSE(fs::exists(User() / "Songs" / "Another.TqSng"));
    EXPECT_EQ(ReadBytes(User() / "Songs" / "Zumi.TqSng"), "mine");
}

TEST_F(StartUp, RefillsAFolderThatHoldsOnlyFolders)
{
    RunStartUp();
    fs::remove(User() / "Beats" / "G_Acoustic Guitar High.wav");
    fs::create_directory(User() / "Beats" / "Old");
    WriteBytes(User() / "Beats" / "Old" / "Kept.wav", "kept");
    RunStartUp();
    EXPECT_TRUE(fs::exists(User() / "Beats" / "G_Acoustic Guitar High.wav"));
    EXPECT_EQ(ReadBytes(User() / "Beats" / "Old" / "Kept.wav"), "kept");
}

TEST_F(StartUp, TellsMissingSupportFilesAndGoesOn)
{
    const fs::path file = Installed() / "Beats" / "G_Acoustic Guitar High.wav";
    fs::remove(file);
    RunStartUp();
    const FakeMessages::Shown told{"", "Some support files are missing\r\n" + file.native() + "\r\nPlease reinstall",
                                   MessageIcon::None};
    ASSERT_EQ(fake.messages.shown.size(), 1U);
    EXPECT_EQ(fake.messages.shown[0], told);
    EXPECT_TRUE(fs::exists(User() / "Songs" / "Zumi.TqSng"));
}

TEST_F(StartUp, MakesTheInstalledFoldersThatAreMissing)
{
    fs::remove_all(Installed());
    RunStartUp();
    for (const char* name : {"Beats", "Tunes", "Stars", "Songs"})
        EXPECT_TRUE(fs::is_directory(Installed() / name)) << name;
}

TEST_F(StartUp, WritesNothingBesideAnInstalledProgram)
{
    WriteBytes(Program() / "installed", "");
    fs::remove_all(Installed() / "Stars");
    fake.desktop.config = fake.folder.Path() / "config";
    const auto before = InstalledBeats::FilesIn(Program());
    RunStartUp();
    EXPECT_FALSE(fs::exists(Installed() / "Stars"));
    EXPECT_EQ(InstalledBeats::FilesIn(Program()), before);
    const IniFile ini = IniFile::Read(fake.desktop.config / "sprout-painter" / "sprout-painter.ini");
    EXPECT_EQ(ini.Value("General", "InstalledPath", ""), Program().native());
}

TEST_F(StartUp, SaysReinstallWhereThereIsNoDocumentsFolder)
{
    const bool wasThere = fs::exists("/Tonquill Sprout Painter");
    fake.desktop.documents.clear();
    RunStartUp();
    ASSERT_FALSE(fake.messages.shown.empty());
    EXPECT_EQ(fake.messages.shown[0].text, "Reinstall the Application");
    EXPECT_EQ(Shared().DocumentsFolder, fs::path());
    EXPECT_EQ(Shared().UserRoot.native(), "/Tonquill Sprout Painter");
    if (!wasThere) // a user who may write there gets it
        fs::remove_all(Shared().UserRoot);
}

TEST_F(StartUp, TellsAFailedCopyAndGoesOnWithTheNext)
{
    fs::create_directories(User());
    WriteBytes(User() / "Beats", "a file in the way");
    RunStartUp();
    ASSERT_EQ(fake.messages.shown.size(), 1U);
    EXPECT_EQ(fake.messages.shown[0].title, "Error message");
    EXPECT_EQ(fake.messages.shown[0].icon, MessageIcon::Exclamation);
    EXPECT_TRUE(fake.messages.shown[0].text.starts_with("Following error occurd while copying folder " +
                                                        (Installed() / "Beats").native() + "\r\n"));
    EXPECT_TRUE(fs::exists(User() / "Tunes" / "Walk.TqTun"));
}

TEST_F(StartUp, IsWholeAfterAKillOfTheOneBefore)
{
    // Every seventh call: a start makes hundreds, and those of a copy are tested one by one elsewhere.
    constexpr int step = 7 * kKillStep;
    const auto start = [] { RunStartUp(); };
    for (int call = 1; KilledAtSystemCall(call, start); call += step) {
        SCOPED_TRACE(call);
        RunStartUp();
        for (const char* name : {"Beats", "Tunes", "Stars", "Songs"})
            ASSERT_EQ(InstalledBeats::FilesIn(User() / name), InstalledBeats::FilesIn(Installed() / name)) << name;
        ASSERT_TRUE(fake.messages.shown.empty());
        fs::remove_all(User());
        fs::remove(Program() / "sprout-painter.ini");
    }
}

TEST_F(StartUp, FillsTheUsersFoldersOnceWhereTwoProgramsStart)
{
    constexpr int rounds = 50;
    for (int round = 0; round < rounds; ++round) {
        RunAtOnce(2, [this](int) {
            RunStartUp();
            EXPECT_TRUE(fake.messages.shown.empty());
        });
        for (const char* name : {"Beats", "Tunes", "Stars", "Songs"})
            ASSERT_EQ(InstalledBeats::FilesIn(User() / name), InstalledBeats::FilesIn(Installed() / name)) << name;
        fs::remove_all(User());
    }
}

TEST_F(StartUp, TellsInOneMessageWhatIsLeftOut)
{
    for (int n = 1; n <= 7; ++n) {
        const fs::path file = Installed() / "Tunes" / ("Locked" + std::to_string(n) + ".TqTun");
        WriteBytes(file, "locked");
        fs::permissions(file, fs::perms::none);
    }
    {
        fs::create_directory(fake.folder.Path() / "other");
        const UnchangeableFolder rightsLaidDown(fake.folder.Path() / "other");
        RunStartUp();
    }
    ASSERT_EQ(fake.messages.shown.size(), 1U);
    EXPECT_EQ(fake.messages.shown[0].title, "Error message");
    EXPECT_NE(fake.messages.shown[0].text.find(".TqTun: Permission denied\r\n"), std::string::npos);
    EXPECT_TRUE(fake.messages.shown[0].text.ends_with("\r\nand 2 more"));
    EXPECT_EQ(ReadBytes(User() / "Tunes" / "Walk.TqTun"), "walk");
    EXPECT_EQ(InstalledBeats::FilesIn(User() / "Tunes").size(), 1U);
    EXPECT_EQ(ReadBytes(User() / "Songs" / "Zumi.TqSng"), "zumi");
}

TEST_F(StartUp, ShowsHowFarItIsAndMayBeStopped)
{
    fake.screen.progressesBeforeStop = 1;
    RunStartUp();
    EXPECT_EQ(fake.screen.stages, (std::vector<std::string>{"Getting your beats ready", ""}));
    EXPECT_TRUE(fake.messages.shown.empty());
    EXPECT_FALSE(fs::exists(User() / "Beats"));
    EXPECT_FALSE(fs::exists(User() / "Tunes"));
    EXPECT_EQ(fake.screen.processPics, 0);
    fake.screen.progressesBeforeStop = -1;
    RunStartUp();
    EXPECT_EQ(fake.screen.lastProgress, (std::pair<std::size_t, std::size_t>(1, 2)));
    EXPECT_EQ(ReadBytes(User() / "Beats" / "G_Acoustic Guitar High.wav"), "guitar");
}

TEST_F(StartUp, GoesOnWhereNoFolderCanBeMade)
{
    fake.machine.executable = "/proc/nowhere/sprout-painter";
    RunStartUp();
    EXPECT_EQ(Shared().UserRoot, User());
    EXPECT_TRUE(fs::is_directory(User()));
    EXPECT_EQ(Shared().Song.TrackCount, 2);
}

class MachineWithoutFacts : public FakeMachine {
public:
    [[nodiscard]] MemoryStatus GlobalMemoryStatus() const override
    {
        throw RunTimeError(Words::AsIs("There are no facts."));
    }
};

class LockedFolders : public FakePrivateFolders {
public:
    void DeleteLeftFolders(const fs::path& /*parent*/) override { throw RunTimeError(Words::AsIs("They are locked.")); }
};

TEST_F(StartUp, GoesOnBehindAStepThatThrows)
{
    MachineWithoutFacts machine;
    machine.executable = fake.machine.executable;
    machine.temp = fake.machine.temp;
    LockedFolders folders;
    TheServices().machine = &machine;
    TheServices().privateFolders = &folders;
    RunStartUp();
    EXPECT_FALSE(fs::exists(Program() / "sprout-painter.ini"));
    EXPECT_EQ(Shared().InstallRoot, AsFolder(Installed()));
    EXPECT_EQ(Shared().Song.TrackCount, 2);
    EXPECT_EQ(ReadBytes(User() / "Songs" / "Zumi.TqSng"), "zumi");
    EXPECT_EQ(fake.capture.cleaned, (std::vector<fs::path>{fake.machine.temp}))
        << "the step behind the last that threw";
    EXPECT_TRUE(fake.messages.shown.empty());
}

TEST_F(StartUp, MakesTheToneTheSongAndTheColours)
{
    WriteBytes(Program() / "sprout-painter.ini", "[Color]\r\nCenterLineColor=255\r\n");
    Shared().SampleRate = 0;
    RunStartUp();
    EXPECT_EQ(Shared().SampleRate, 44100);
    EXPECT_EQ(Shared().BitsPerSample, 16);
    EXPECT_EQ(Shared().Channels, 2);
    EXPECT_EQ(Shared().TestTone.Length, 8820);
    EXPECT_EQ(Shared().Song.SongTitle, "Untitled");
    EXPECT_TRUE(SamePicture(Shared().Song.Tracks[1].TrackTune.Picture, Shared().BlankPic));
    EXPECT_EQ(Shared().WaveColours.CenterLineColor, 255);
    EXPECT_EQ(Shared().WaveColours.NormalBackColor, 0xA00000);
}

TEST_F(StartUp, NamesTheNewSongByTheCurrentFolder)
{
    Shared().UserSongs.clear(); // as at a real start
    const fs::path before = fs::current_path();
    fs::current_path(fake.folder.Path());
    WriteBytes(fake.folder.Path() / "untitled.tqsng", "here");
    RunStartUp();
    fs::current_path(before);
    EXPECT_EQ(Shared().Song.SongTitle, "Untitled 1");
}

TEST_F(StartUp, FallsBackToTheProgramsFolderForAMissingTempFolder)
{
    fake.machine.temp = fake.folder.Path() / "missing";
    RunStartUp();
    EXPECT_EQ(Shared().TempFolder, Program());
}

TEST_F(StartUp, FallsBackToTheProgramsFolderForATempFolderThatIsAFile)
{
    fake.machine.temp = fake.folder.Path() / "file";
    WriteBytes(fake.machine.temp, "file");
    RunStartUp();
    EXPECT_EQ(Shared().TempFolder, Program());
}

TEST_F(StartUp, ReadsTheOptionsInTheirOppositeSenses)
{
    RunStartUp();
    ReadOptionFlags();
    EXPECT_TRUE(Shared().SongBeatsInside);
    EXPECT_FALSE(Shared().AllowEditOriginal);
    for (const char* one : {"1", "1.0", "1x"}) {
        PutSetting("", "SongBeatsOutside", one);
        PutSetting("", "AllowEditOriginal", one);
        ReadOptionFlags();
        EXPECT_FALSE(Shared().SongBeatsInside) << one;
        EXPECT_TRUE(Shared().AllowEditOriginal) << one;
    }
    for (const char* other : {"1.2", "2", "-1", "yes"}) {
        PutSetting("", "SongBeatsOutside", other);
        PutSetting("", "AllowEditOriginal", other);
        ReadOptionFlags();
        EXPECT_TRUE(Shared().SongBeatsInside) << other;
        EXPECT_FALSE(Shared().AllowEditOriginal) << other;
    }
}

/// Fails at the first call.
class FilesThatFailOnce : public PosixFiles {
public:
    [[nodiscard]] std::optional<FileFacts> FactsOf(const fs::path& file) const override
    {
        if (!std::exchange(failed, true))
            throw RunTimeError(Words::AsIs("The disk is busy."));
        return PosixFiles::FactsOf(file);
    }

private:
    mutable bool failed = false;
};

TEST_F(StartUp, AnOptionThatCannotBeReadKeepsNoOtherFromBeingRead)
{
    RunStartUp();
    PutSetting("", "AllowEditOriginal", "1");
    FilesThatFailOnce files;
    TheServices().files = &files;
    ReadOptionFlags();
    EXPECT_TRUE(Shared().SongBeatsInside);
    EXPECT_TRUE(Shared().AllowEditOriginal);
}

} // namespace
} // namespace sprout
