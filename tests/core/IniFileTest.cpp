// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/IniFile.h"

#include <gtest/gtest.h>

#include "base/Errors.h"
#include "support/FakeServices.h"
#include "support/KilledChild.h"
#include "support/UnchangeableFolder.h"

namespace sprout {
namespace {

namespace fs = std::filesystem;

TEST(IniFile, LooksUpWithoutRegardToCase)
{
    const IniFile ini("[Main]\r\nKey=value\r\n[ÉCOLE]\nÄ=1\n");
    EXPECT_EQ(ini.Value("mAIN", "KEY", ""), "value");
    EXPECT_EQ(ini.Value("école", "ä", ""), "1");
    EXPECT_FALSE(ini.Has("Main", "Other"));
}

TEST(IniFile, TakesTheFirstKeyOfAllSectionsOfOneName)
{
    const IniFile ini("[a]\nx=1\nx=2\n[b]\ny=3\n[A]\nx=4\nz=5\n");
    EXPECT_EQ(ini.Value("a", "x", ""), "1");
    EXPECT_EQ(ini.Value("a", "z", ""), "5");
    EXPECT_EQ(ini.Value("a", "y", "none"), "none");
}

TEST(IniFile, DropsBlanksAndOnePairOfQuotes)
{
    const IniFile ini("[a]\n b \t=  c d  \nq=\" x \"\ns='y'\nn=\"half\nd=\"\"two\"\"\ne=a=b\n");
    EXPECT_EQ(ini.Value("a", "b", ""), "c d");
    EXPECT_EQ(ini.Value("a", "q", ""), " x ");
    EXPECT_EQ(ini.Value("a", "s", ""), "y");
    EXPECT_EQ(ini.Value("a", "n", ""), "\"half");
    EXPECT_EQ(ini.Value("a", "d", ""), "\"two\"");
    EXPECT_EQ(ini.Value("a", "e", ""), "a=b");
}

TEST(IniFile, TellsAnEmptyValueFromAMissingOne)
{
    const IniFile ini("[a]\nx=\n;y=1\n=2\nno value\n");
    EXPECT_EQ(ini.Value("a", "x", "fallback"), "");
    EXPECT_EQ(ini.Value("a", "y", "fallback"), "fallback");
    EXPECT_EQ(ini.Value("a", "", "fallback"), "fallback");
    EXPECT_EQ(ini.Value("a", "no value", "fallback"), "fallback");
}

TEST(IniFile, KeepsEveryByteThatItDoesNotChange)
{
    const std::string bytes = "; caf\xE9\r\n\r\n[a] ; note\r\nx = \xC3\xA9 \r\njunk\r\n[b]\r\n";
    IniFile ini(bytes);
    EXPECT_EQ(ini.Bytes(), bytes);
    ini.SetValue("b", "y", "é");
    EXPECT_EQ(ini.Bytes(), bytes + "y=\xE9\r\n");
    EXPECT_EQ(ini.Value("a", "x", ""), "é");
}

TEST(IniFile, PutsNewKeysBehindTheirSection)
{
    IniFile ini("[a]\r\nx=1\r\n\r\n[b]\r\n");
    ini.SetValue("A", "y", "2");
    ini.SetValue("a", "X", "3");
    ini.SetValue("c", "z", "4");
    EXPECT_EQ(ini.Bytes(), "[a]\r\nX=3\r\ny=2\r\n\r\n[b]\r\n[c]\r\nz=4\r\n");
    EXPECT_EQ(ini.Value("a", "y", ""), "2");
    EXPECT_EQ(ini.Value("c", "z", ""), "4");
}

TEST(IniFile, ReadsBackEveryValueThatItSets)
{
    for (const char* value : {"", " ends ", "\"quoted\"", "'", "\"", "a=b", ";c", "[d]", "♪", "Ã©"}) {
        IniFile ini;
        ini.SetValue("s", "k", value);
        EXPECT_EQ(IniFile(ini.Bytes()).Value("s", "k", "none"), value);
    }
}

TEST(IniFile, MakesOneLineOfAValueWithLineBreaks)
{
    IniFile ini;
    ini.SetValue("s", "k", "a\r\n[t]");
    EXPECT_EQ(IniFile(ini.Bytes()).Value("s", "k", ""), "a  [t]");
}

TEST(IniFile, RemovesSectionsWhole)
{
    IniFile ini("top=0\n[a]\nx=1\nX=2\ny=3\n[b]\nx=4\n[A]\nz=5\n");
    ini.RemoveSection("a");
    EXPECT_FALSE(ini.Has("a", "x"));
    EXPECT_EQ(ini.Bytes(), "top=0\r\n[b]\r\nx=4\r\n");
    EXPECT_EQ(ini.Value("b", "x", ""), "4");
}

class IniOnDisk : public testing::Test {
protected:
    [[nodiscard]] fs::path Path() const { return fake.folder.Path() / "index.ini"; }
    FakeServices fake;
};

TEST_F(IniOnDisk, ReadsAMissingFileAndAFolderAsEmpty)
{
    EXPECT_EQ(GetIniValue("a", "b", "fallback", Path()), "fallback");
    EXPECT_EQ(GetIniValue("a", "b", "fallback", fake.folder.Path()), "fallback");
}

TEST_F(IniOnDisk, ReturnsLongValuesWhole)
{
    for (const std::size_t size : {48U, 49U, 50U, 5000U}) {
        PutIniValue("a", "b", std::string(size, 'v'), Path());
        EXPECT_EQ(GetIniValue("a", "b", "", Path()).size(), size);
    }
}

TEST_F(IniOnDisk, WritesABlankSectionAsGeneral)
{
    PutIniValue(" ", "b", "1", Path());
    EXPECT_EQ(ReadBytes(Path()), "[General]\r\nb=1\r\n");
    EXPECT_EQ(GetIniValue("", "b", "none", Path()), "none"); // when reading, no section is the default
}

TEST_F(IniOnDisk, RemovesTheSectionOfABlankKey)
{
    PutIniValue("a", "b", "1", Path());
    PutIniValue("c", "d", "2", Path());
    PutIniValue("a", " ", "3", Path());
    EXPECT_EQ(ReadBytes(Path()), "[c]\r\nd=2\r\n");
}

/// Counts how often a file is replaced.
class CountedFiles : public PosixFiles {
public:
    void ReplaceFile(const fs::path& target, std::span<const std::span<const std::byte>> pieces, Flush flush) override
    {
        ++replaced;
        allFlushed = allFlushed && flush == Flush::Yes;
        PosixFiles::ReplaceFile(target, pieces, flush);
    }

    int replaced = 0;
    bool allFlushed = true;
};

TEST_F(IniOnDisk, ReplacesTheFileOnceForSeveralValues)
{
    CountedFiles files;
    TheServices().files = &files;
    const std::vector<IniValue> values{{"b", "1"}, {"c", "2"}};
    PutIniValues("a", values, Path());
    EXPECT_EQ(ReadBytes(Path()), "[a]\r\nb=1\r\nc=2\r\n");
    EXPECT_EQ(files.replaced, 1);
    EXPECT_TRUE(files.allFlushed);
}

TEST_F(IniOnDisk, LeavesAFileAloneThatSaysTheSameAlready)
{
    CountedFiles files;
    TheServices().files = &files;
    PutIniValue("a", "b", "1", Path());
    PutIniValue("a", "b", "1", Path());
    EXPECT_EQ(files.replaced, 1);
    PutIniValue("a", "b", "2", Path());
    EXPECT_EQ(files.replaced, 2);
    PutIniValue("a", "none", "", Path()); // an empty value is not the same as none
    EXPECT_EQ(files.replaced, 3);
}

TEST_F(IniOnDisk, FindsTheFileInAnyLetterCase)
{
    WriteBytes(fake.folder.Path() / "INDEX.INI", "[a]\nb=1\n");
    EXPECT_EQ(GetIniValue("a", "b", "", Path()), "1");
    PutIniValue("a", "b", "2", Path());
    EXPECT_FALSE(fs::exists(Path()));
    EXPECT_EQ(ReadBytes(fake.folder.Path() / "INDEX.INI"), "[a]\r\nb=2\r\n");
}

TEST_F(IniOnDisk, LosesSilentlyWhatCannotBeWritten)
{
    WriteBytes(fake.folder.Path() / "file", "");
    PutIniValue("a", "b", "1", fake.folder.Path() / "file" / "x.ini");
    EXPECT_TRUE(fake.messages.shown.empty());
    EXPECT_THROW(IniFile().Write(fake.folder.Path() / "file" / "x.ini"), RunTimeError);
}

TEST_F(IniOnDisk, NeverReplacesAFileThatItCannotRead)
{
    const std::string bytes = "[a]\r\nb=1\r\n";
    WriteBytes(Path(), bytes);
    fs::permissions(Path(), fs::perms::owner_write);
    {
        fs::create_directory(fake.folder.Path() / "other");
        const UnchangeableFolder rightsLaidDown(fake.folder.Path() / "other");
        PutIniValue("a", "c", "2", Path());
        PutIniValue("a", "", "", Path());
        EXPECT_EQ(GetIniValue("a", "b", "none", Path()), "none");
        EXPECT_THROW(IniFile::Read(Path()).Write(Path()), RunTimeError);
    }
    EXPECT_EQ(ReadBytes(Path()), bytes);
}

TEST_F(IniOnDisk, NeitherReadsNorReplacesAFileAboveFourMegabytes)
{
    std::string bytes = "[a]\r\nb=1\r\n;";
    bytes.resize(kMostIniBytes, 'x');
    WriteBytes(Path(), bytes);
    EXPECT_EQ(GetIniValue("a", "b", "none", Path()), "1");
    WriteBytes(Path(), bytes + 'x');
    EXPECT_EQ(GetIniValue("a", "b", "none", Path()), "none");
    PutIniValue("a", "c", "2", Path());
    EXPECT_EQ(fs::file_size(Path()), kMostIniBytes + 1);
    fs::resize_file(Path(), 5'000'000'000); // a sparse file
    EXPECT_EQ(GetIniValue("a", "b", "none", Path()), "none");
}

std::string KeyOf(int program, int key)
{
    return std::to_string(program) + "k" + std::to_string(key);
}

TEST_F(IniOnDisk, LosesNothingWhereTwoProgramsWriteOtherKeys)
{
    constexpr int keys = 40;
    RunAtOnce(2, [this](int program) {
        for (int key = 0; key < keys; ++key)
            PutIniValue("a", KeyOf(program, key), "1", Path());
    });
    const IniFile written = IniFile::Read(Path());
    for (int program = 0; program < 2; ++program)
        for (int key = 0; key < keys; ++key)
            EXPECT_TRUE(written.Has("a", KeyOf(program, key))) << program << ' ' << key;
}

TEST(IniFile, ReadsNothingBetweenTwoQuotes)
{
    const IniFile ini("[a]\nx=\"\"\ny=''\n");
    EXPECT_EQ(ini.Value("a", "x", "fallback"), "");
    EXPECT_EQ(ini.Value("a", "y", "fallback"), "");
}

} // namespace
} // namespace sprout
