// SPDX-License-Identifier: GPL-3.0-or-later
#include "tunes/TuneTable.h"

#include <gmock/gmock.h>

#include <filesystem>

#include "core/Shared.h"
#include "support/FakeServices.h"
#include "tune_window/Tunes.h"

namespace sprout {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;

class TuneTableTest : public testing::Test {
protected:
    [[nodiscard]] static fs::path Folder() { return Shared().UserTunes; }
    static void MakeIndex(const std::string& lines) { WriteBytes(TuneIndexFile(), "[SortOrder]\r\n" + lines); }

    static std::vector<std::string> Names()
    {
        std::vector<std::string> names;
        for (std::int32_t i = 1; i <= Shared().TuneTableCount; ++i)
            names.push_back(At(Shared().TuneTable, i).Name);
        return names;
    }

    FakeServices services;
};

TEST_F(TuneTableTest, TunesWithTheSameNumberKeepTheAlphabeticalOrder)
{
    MakeIndex("C=2\r\nB=2\r\nA=3\r\nD=1\r\n");
    EXPECT_THAT(InTuneOrder({"A", "B", "C", "D"}, FolderOrder::Read(TuneIndexFile())), ElementsAre("D", "B", "C", "A"));
}

TEST_F(TuneTableTest, TunesWithoutAKeyStandBehindAllWithOneInAlphabeticalOrder)
{
    MakeIndex("Z=999999\r\nY=5\r\n");
    EXPECT_THAT(InTuneOrder({"a", "B", "c", "Y", "Z"}, FolderOrder::Read(TuneIndexFile())),
                ElementsAre("Y", "Z", "a", "B", "c"));
}

TEST_F(TuneTableTest, ReadsTheHeadsOfAllTunesInTheirOrderUnderTheWorkingSign)
{
    MakeTuneFile(PlainTune("Sun", "Ann"));
    MakeTuneFile(PlainTune("Rain", "Tonquill"));
    MakeIndex("Sun=1\r\n");
    ReadTuneTable();
    EXPECT_THAT(Names(), ElementsAre("Sun", "Rain"));
    EXPECT_EQ(Shared().TuneTable[2].CreatedBy, "Tonquill");
    EXPECT_EQ(Shared().TuneTable[2].Picture.Pixel(0, 0), 0x102030U);
    EXPECT_EQ(Shared().TuneTable[1].StepCount, 0);
    EXPECT_FALSE(Shared().TuneTable[1].TuneWaveValid);
    EXPECT_EQ(services.screen.processPicsShown, 1);
    EXPECT_EQ(services.screen.hourglassesShown, 1);
    EXPECT_EQ(services.screen.processPics, 0);
    EXPECT_EQ(services.screen.hourglasses, 0);
}

TEST_F(TuneTableTest, ATuneThatCannotBeReadIsToldAndLeavesAnEmptyEntry)
{
    WriteBytes(Folder() / "Broken.TqTun", FileOf("TqTun", "2", {1000, 0}));
    MakeTuneFile(PlainTune("Rain", "Ann"));
    ReadTuneTable();
    EXPECT_THAT(Names(), ElementsAre("", "Rain"));
    ASSERT_EQ(services.messages.shown.size(), 1U);
    EXPECT_EQ(services.messages.shown[0].title, "Error Loading Tune File");
}

TEST_F(TuneTableTest, ADamagedIndexLeavesTheAlphabeticalOrder)
{
    MakeTuneFiles(3);
    WriteBytes(TuneIndexFile(), std::string("\x00\xFF[[[==\r\n=\xFE[SortOrder", 22));
    ReadTuneTable();
    EXPECT_THAT(Names(), ElementsAre("Tune 01", "Tune 02", "Tune 03"));
    EXPECT_TRUE(services.messages.shown.empty());
}

TEST_F(TuneTableTest, NamesOfAllAlphabetsKeepTheirOrderSaveThoseThatAnIniFileCannotHold)
{
    const std::string rain = "\xE9\x9B\xA8";
    const std::string cafe = "Caf\xC3\xA9";
    for (const std::string& name : {std::string("Sun"), rain, cafe, std::string("[; 50%")})
        MakeTuneFile(PlainTune(name, "Ann"));
    Shared().TuneTable = {Tune(), PlainTune(rain, ""), PlainTune("[; 50%", ""), PlainTune("Sun", ""),
                          PlainTune(cafe, "")};
    Shared().TuneTableCount = 4;
    SaveTuneOrder();
    ReadTuneTable();
    EXPECT_THAT(Names(), ElementsAre(rain, "Sun", cafe, "[; 50%"));
}

TEST_F(TuneTableTest, AnEmptyEntryHasNoKeyAndKeepsItsPlaceFree)
{
    Shared().TuneTable = {Tune(), PlainTune("Sun", "Ann"), Tune(), PlainTune("Rain", "Ann")};
    Shared().TuneTableCount = 3;
    MakeIndex("Broken=2\r\n");
    SaveTuneOrder();
    const FolderOrder index = FolderOrder::Read(TuneIndexFile());
    EXPECT_EQ(index.Place("Sun"), 1);
    EXPECT_EQ(index.Place("Broken"), 2);
    EXPECT_EQ(index.Place("Rain"), 3);
    EXPECT_EQ(ReadBytes(TuneIndexFile()).find("\n="), std::string::npos);
}

TEST_F(TuneTableTest, FindsTheFirstTuneOfANameInAnyLetterCase)
{
    Shared().TuneTable = {Tune(), Tune(), PlainTune("RAIN", "Ann"), PlainTune("rain", "Ann")};
    Shared().TuneTableCount = 3;
    EXPECT_EQ(FindInTuneTable("Rain"), 2);
    EXPECT_EQ(FindInTuneTable("Snow"), 0);
    EXPECT_EQ(FindInTuneTable(""), 0);
}

TEST_F(TuneTableTest, HoldsTheIndicesFromOneToTheCount)
{
    Shared().TuneTableCount = 2;
    EXPECT_FALSE(IsInTuneTable(-1));
    EXPECT_FALSE(IsInTuneTable(0));
    EXPECT_TRUE(IsInTuneTable(1));
    EXPECT_TRUE(IsInTuneTable(2));
    EXPECT_FALSE(IsInTuneTable(3));
}

TEST_F(TuneTableTest, HoldsTheTunesOfTheClassThatTheUserHasNot)
{
    MakeTuneFile(PlainTune("Rain", "Teacher"));
    MakeTuneFile(PlainTune("Sun", "Teacher"));
    Shared().ClassRoot = services.folder.Path() / "class" / "";
    fs::create_directories(Shared().ClassRoot);
    fs::rename(Folder().parent_path(), Shared().ClassRoot / "Tunes");
    fs::create_directories(Folder());
    MakeTuneFile(PlainTune("SUN", "Ann"));
    MakeIndex("SUN=1\r\n");
    ReadTuneTable();
    EXPECT_THAT(Names(), ElementsAre("SUN", "Rain"));
    EXPECT_EQ(Shared().TuneTable[1].CreatedBy, "Ann");
    EXPECT_EQ(Shared().TuneTable[2].CreatedBy, "Teacher");
    EXPECT_EQ(TuneFileToRead("rain"), Shared().ClassRoot / "Tunes" / "Rain.TqTun");
    EXPECT_EQ(TuneFile("Rain"), Folder() / "Rain.TqTun"); // where it is saved
    EXPECT_EQ(TuneFileToRead("New"), Folder() / "New.TqTun");
}

} // namespace
} // namespace sprout
