// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/FolderOrder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <vector>

#include "core/Shared.h"
#include "support/FakeServices.h"

namespace sprout {
namespace {

class FolderOrderTest : public testing::Test {
protected:
    static std::filesystem::path OrderFile() { return Shared().UserTunes / "TqTunes.ini"; }

    FakeServices services;
};

TEST_F(FolderOrderTest, PutsNamesWithoutAKeyBehindAllOthers)
{
    EXPECT_EQ(FolderOrder::Read(OrderFile()).Place("Any"), 1'000'000);
    WriteBytes(OrderFile(), "[SortOrder]\r\nRain=3\r\nSun=2x\r\nBroken=word\r\nHuge=1e99\r\n");
    const FolderOrder index = FolderOrder::Read(OrderFile());
    EXPECT_EQ(index.Place("RAIN"), 3);
    EXPECT_EQ(index.Place("Sun"), 2);
    EXPECT_EQ(index.Place("Broken"), 0);
    EXPECT_EQ(index.Place("Huge"), 2147483647);
    EXPECT_EQ(index.Place("Snow"), 1'000'000);
}

TEST_F(FolderOrderTest, WritesPlacesOfNamesInAnyAlphabetAndKeepsOthers)
{
    WriteBytes(Shared().UserTunes / "tqtunes.INI", "[SortOrder]\r\nOther=9\r\n[Mine]\r\nKey=1\r\n");
    FolderOrder index = FolderOrder::Read(OrderFile());
    index.SetOrder(std::vector<std::string>{"Sun", "\xE9\x9B\xA8", "Caf\xC3\xA9"});
    index.Write();
    const FolderOrder again = FolderOrder::Read(OrderFile());
    EXPECT_EQ(again.Place("Sun"), 1);
    EXPECT_EQ(again.Place("\xE9\x9B\xA8"), 2);
    EXPECT_EQ(again.Place("caf\xC3\xA9"), 3);
    EXPECT_EQ(again.Place("Other"), 9);
    EXPECT_NE(ReadBytes(Shared().UserTunes / "tqtunes.INI").find("[Mine]\r\nKey=1"), std::string::npos);
}

TEST_F(FolderOrderTest, LeavesOutNamesThatWouldBeReadAsSomethingElse)
{
    FolderOrder index = FolderOrder::Read(OrderFile());
    index.SetOrder(std::vector<std::string>{"[Sun]", "; Rain", "Snow=2", " ", "Wind"});
    index.Write();
    EXPECT_EQ(ReadBytes(OrderFile()), "[SortOrder]\r\nWind=5\r\n");
}

TEST_F(FolderOrderTest, IsSilentWhereItCannotBeWritten)
{
    FolderOrder index = FolderOrder::Read(Shared().UserTunes / "no folder" / "TqTunes.ini");
    index.SetOrder(std::vector<std::string>{"Sun"});
    EXPECT_NO_THROW(index.Write());
}

} // namespace
} // namespace sprout
