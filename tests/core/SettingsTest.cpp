// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Settings.h"

#include <gtest/gtest.h>

#include "support/FakeServices.h"
#include "support/UnchangeableFolder.h"

namespace sprout {
namespace {

class Settings : public testing::Test {
protected:
    static void Write(const std::string& bytes) { WriteBytes(Shared().SettingsFile, bytes); }
    FakeServices fake;
};

TEST_F(Settings, CutsLongValuesTo99Characters)
{
    PutSetting("s", "k", std::string(150, 'a'));
    EXPECT_EQ(GetSetting("s", "k", ""), std::string(99, 'a'));
    EXPECT_EQ(GetSetting("s", "none", std::string(150, 'b')), std::string(99, 'b'));
    std::string accents;
    for (int i = 0; i < 100; ++i)
        accents += "é";
    PutSetting("s", "k", accents);
    EXPECT_EQ(GetSetting("s", "k", "").size(), 2 * 99U);
}

TEST_F(Settings, ReadsAndWritesABlankSectionAsGeneral)
{
    PutSetting("", "k", "1");
    EXPECT_EQ(GetSetting("General", "k", ""), "1");
    EXPECT_EQ(GetSetting(" ", "k", ""), "1");
}

TEST_F(Settings, TakesASwitchForSetWhereItsNumberIsOne)
{
    EXPECT_FALSE(IsSetToOne("k"));
    for (const char* value : {"1", "1.0", " 1x", "+1"}) {
        PutSetting("General", "k", value);
        EXPECT_TRUE(IsSetToOne("k")) << value;
    }
    for (const char* value : {"0", "", "1.2", "yes", "-1", "11"}) {
        PutSetting("General", "k", value);
        EXPECT_FALSE(IsSetToOne("k")) << value;
    }
}

TEST_F(Settings, WritesSeveralValuesWithoutThoseOfBlankKeys)
{
    PutSettings("s", {{"k", std::string(150, 'a')}, {" ", "2"}, {"l", "3"}});
    EXPECT_EQ(GetSetting("s", "k", ""), std::string(99, 'a'));
    EXPECT_EQ(GetSetting("s", "l", ""), "3");
}

TEST_F(Settings, ReadsABlankKeyAsEnd)
{
    Write("[General]\r\nk=1\r\n");
    EXPECT_EQ(GetSetting("General", "", "fallback"), "fallback");
    Write("[General]\r\nEND=2\r\n");
    EXPECT_EQ(GetSetting("General", " ", "fallback"), "2");
}

TEST_F(Settings, KeepsTheSectionWhereABlankKeyIsWritten)
{
    PutSetting("s", "k", "1");
    PutSetting("s", "", "2");
    EXPECT_EQ(GetSetting("s", "k", ""), "1");
}

TEST_F(Settings, AFileThatItsUserMayNotWriteIsNotReplaced)
{
    Write("[s]\r\nk=1\r\n");
    std::filesystem::permissions(Shared().SettingsFile, std::filesystem::perms::owner_read);
    std::filesystem::create_directory(fake.folder.Path() / "other");
    const UnchangeableFolder rightsLaidDown(fake.folder.Path() / "other");
    PutSetting("s", "k", "2");
    EXPECT_EQ(GetSetting("s", "k", ""), "1");
}

/// Can pretend that a file has not changed.
class StillFiles : public PosixFiles {
public:
    [[nodiscard]] std::optional<FileFacts> FactsOf(const std::filesystem::path& file) const override
    {
        return stands ? FileFacts{1, 2, 3, 4, 5} : PosixFiles::FactsOf(file);
    }

    bool stands = false;
};

TEST_F(Settings, AreParsedAgainOnlyWhereTheFileIsAnotherOne)
{
    StillFiles files;
    TheServices().files = &files;
    files.stands = true;
    Write("[s]\r\nk=1\r\n");
    EXPECT_EQ(GetSetting("s", "k", ""), "1");
    Write("[s]\r\nk=2\r\n");
    EXPECT_EQ(GetSetting("s", "k", ""), "1") << "the file is said to be the same";
    files.stands = false;
    EXPECT_EQ(GetSetting("s", "k", ""), "2");
}

TEST_F(Settings, AreReadAnewAfterAWriteOfTheProgramsOwn)
{
    StillFiles files;
    TheServices().files = &files;
    files.stands = true;
    PutSetting("s", "k", "1");
    EXPECT_EQ(GetSetting("s", "k", ""), "1");
    PutSetting("s", "k", "2");
    EXPECT_EQ(GetSetting("s", "k", ""), "2");
}

TEST_F(Settings, SeeWhatAnotherProgramWrites)
{
    for (int value = 0; value < 50; ++value) {
        const IniValue written{"k", std::to_string(value)};
        PutIniValues("s", {&written, 1}, Shared().SettingsFile);
        EXPECT_EQ(GetSetting("s", "k", ""), std::to_string(value));
    }
    std::filesystem::remove(Shared().SettingsFile);
    EXPECT_EQ(GetSetting("s", "k", "none"), "none");
}

TEST_F(Settings, GivesTheDefaultsWithoutAFile)
{
    EXPECT_EQ(GetSetting("General", "SongBeatsOutside", "0"), "0");
    const WaveViewColours colours = ReadWaveColours();
    EXPECT_EQ(colours.WaveFormNormalColorL, 0x0000FF);
    EXPECT_EQ(colours.WaveFormNormalColorR, 0x00FFFF);
    EXPECT_EQ(colours.CenterLineColor, 0x808080);
    EXPECT_EQ(colours.NormalBackColor, 0xA00000);
    EXPECT_EQ(colours.SelectBackColor, 0x006400);
    EXPECT_EQ(colours.LineCursorColor, 0x00FFFF);
    EXPECT_EQ(colours.PlayPosIndiColor, 0xFF00FF);
}

TEST_F(Settings, ReadsColoursAsNumbers)
{
    Write("[Color]\nWaveFormNormalColorL=1\nWaveFormNormalColorR=2x\nCenterLineColor=red\nNormalBackColor=-1\n"
          "SelectBackColor=5\nLineCursorColor=6\nPlayPosIndiColor=99999999999\n");
    const WaveViewColours colours = ReadWaveColours();
    EXPECT_EQ(colours.WaveFormNormalColorL, 1);
    EXPECT_EQ(colours.WaveFormNormalColorR, 2);
    EXPECT_EQ(colours.CenterLineColor, 0); // a damaged value reads as 0
    EXPECT_EQ(colours.NormalBackColor, 0xA00000);
    EXPECT_EQ(colours.SelectBackColor, 5);
    EXPECT_EQ(colours.LineCursorColor, 6);
    EXPECT_EQ(colours.PlayPosIndiColor, 0xFF00FF);
}

TEST_F(Settings, ReadsEachColourFromItsOwnKey)
{
    Write("[Color]\nWaveFormNormalColorL=1\nWaveFormNormalColorR=2\nCenterLineColor=3\nNormalBackColor=4\n"
          "SelectBackColor=5\nLineCursorColor=6\nPlayPosIndiColor=7\n");
    const WaveViewColours colours = ReadWaveColours();
    EXPECT_EQ(colours.WaveFormNormalColorL, 1);
    EXPECT_EQ(colours.WaveFormNormalColorR, 2);
    EXPECT_EQ(colours.CenterLineColor, 3);
    EXPECT_EQ(colours.NormalBackColor, 4);
    EXPECT_EQ(colours.SelectBackColor, 5);
    EXPECT_EQ(colours.LineCursorColor, 6);
    EXPECT_EQ(colours.PlayPosIndiColor, 7);
}

/// Settings of the administrator, the user and the program's own folder.
class SettingsOfThree : public Settings {
protected:
    SettingsOfThree()
    {
        Shared().MachineSettingsFile = fake.folder.Path() / "etc.ini";
        Shared().ProgramSettingsFile = fake.folder.Path() / "beside.ini";
        Shared().SettingsFile = fake.folder.Path() / "home" / "config" / "user.ini";
    }

    static void WriteForAll(const std::string& bytes) { WriteBytes(Shared().MachineSettingsFile, bytes); }
    static void WriteBeside(const std::string& bytes) { WriteBytes(Shared().ProgramSettingsFile, bytes); }
};

TEST_F(SettingsOfThree, AreReadFromTheUserThenForAllThenBesideTheProgram)
{
    WriteBeside("[s]\r\nk=beside\r\n");
    EXPECT_EQ(GetSetting("s", "k", "none"), "beside");
    WriteForAll("[s]\r\nk=all\r\n");
    EXPECT_EQ(GetSetting("s", "k", "none"), "all");
    PutSetting("s", "k", "user");
    EXPECT_EQ(GetSetting("s", "k", "none"), "user");
    EXPECT_EQ(GetSetting("s", "l", "none"), "none");
}

TEST_F(SettingsOfThree, AreLockedWhateverTheUserHas)
{
    PutSetting("General", "HideEmail", "0");
    PutSetting("MainWindow", "FollowPlay", "0");
    WriteForAll("[General]\r\nHideEmail=2\r\n[locked]\r\nhideemail=1\r\nFollowPlay=3\r\n");
    EXPECT_EQ(GetSetting("General", "HideEmail", ""), "1");
    EXPECT_EQ(GetSetting("MainWindow", "FollowPlay", ""), "3");
    EXPECT_TRUE(IsSetToOne("HideEmail"));
}

TEST_F(SettingsOfThree, AreNotWrittenWhereTheyAreLocked)
{
    WriteForAll("[Locked]\r\nWindowState=2\r\n");
    PutSettings("MainWindow", {{"WindowState", "0"}, {"Size", "1,2"}});
    EXPECT_EQ(ReadBytes(Shared().SettingsFile), "[MainWindow]\r\nSize=1,2\r\n");
    PutSetting("MainWindow", "windowstate", "0");
    EXPECT_EQ(ReadBytes(Shared().SettingsFile), "[MainWindow]\r\nSize=1,2\r\n");
}

TEST_F(SettingsOfThree, AreLockedByTheAdministratorAlone)
{
    WriteBeside("[Locked]\r\nk=beside\r\n");
    PutSetting("Locked", "k", "user");
    EXPECT_EQ(GetSetting("General", "k", "none"), "none");
    PutSetting("General", "k", "1");
    EXPECT_EQ(GetSetting("General", "k", "none"), "1");
}

TEST_F(SettingsOfThree, AreWrittenOnlyForTheUser)
{
    WriteBeside("[s]\r\nk=beside\r\n");
    WriteForAll("[s]\r\nk=all\r\n");
    PutSetting("s", "k", "user");
    EXPECT_EQ(ReadBytes(Shared().SettingsFile), "[s]\r\nk=user\r\n");
    EXPECT_EQ(ReadBytes(Shared().MachineSettingsFile), "[s]\r\nk=all\r\n");
    EXPECT_EQ(ReadBytes(Shared().ProgramSettingsFile), "[s]\r\nk=beside\r\n");
}

TEST_F(SettingsOfThree, AreForgottenWhereTheUserHasNoPlaceForThem)
{
    Shared().SettingsFile.clear();
    const std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::create_directory(fake.folder.Path() / "here");
    std::filesystem::current_path(fake.folder.Path() / "here");
    PutSetting("s", "k", "1");
    const bool isEmpty = std::filesystem::is_empty(fake.folder.Path() / "here");
    std::filesystem::current_path(before);
    EXPECT_TRUE(isEmpty);
    EXPECT_EQ(GetSetting("s", "k", "none"), "none");
}

TEST_F(SettingsOfThree, FallBackToTheOthersWhereTheUsersCannotBeRead)
{
    WriteForAll("[s]\r\nk=all\r\n");
    std::filesystem::create_directories(Shared().SettingsFile.parent_path());
    const std::string tooLarge = "[s]\r\nk=user\r\n" + std::string(kMostIniBytes, ';');
    Write(tooLarge);
    EXPECT_EQ(GetSetting("s", "k", "none"), "all");
    PutSetting("s", "k", "new");
    EXPECT_EQ(ReadBytes(Shared().SettingsFile), tooLarge) << "it is not replaced";
}

TEST_F(SettingsOfThree, SeeWhatChangesInEachFile)
{
    std::filesystem::create_directories(Shared().SettingsFile.parent_path());
    for (const char* value : {"1", "22", "333"}) {
        const std::string text = std::string("=") + value + "\r\n";
        WriteForAll("[Locked]\r\na" + text + "[s]\r\nc" + text);
        PutIniValue("s", "b", value, Shared().SettingsFile);
        WriteBeside("[s]\r\nd" + text);
        for (const char* key : {"a", "b", "c", "d"})
            EXPECT_EQ(GetSetting("s", key, "none"), value) << key;
    }
}

} // namespace
} // namespace sprout
