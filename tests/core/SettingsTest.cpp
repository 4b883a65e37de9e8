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

} // namespace
} // namespace sprout
