// SPDX-License-Identifier: GPL-3.0-or-later
#include "beats/BeatIndex.h"

#include <gmock/gmock.h>

#include "beat_window/BeatFolderMaker.h"
#include "support/FakeServices.h"

namespace sprout {
namespace {

using testing::HasSubstr;
using testing::UnorderedElementsAre;

class BeatIndexTest : public testing::Test {
protected:
    static void WriteIndex(const std::string& text) { WriteBytes(Shared().UserBeats / "TqBeats.ini", text); }

    FakeServices services;
};

TEST_F(BeatIndexTest, MakesAllBeatsOriginalsAtTheFirstUseAndNeverAgain)
{
    BeatIndex index = BeatIndex::Read();
    EXPECT_TRUE(index.WriteProtectedList(std::vector<std::string>{"Drum", "Glöckchen"}));
    index.Write();
    EXPECT_EQ(IndexText(), "[General]\r\nProtectedNos=2\r\nProtected=1\r\n[Protected]\r\nFile1=Drum\r\nFile2="
                           "Gl\xF6"
                           "ckchen\r\n");
    index = BeatIndex::Read();
    EXPECT_FALSE(index.WriteProtectedList(std::vector<std::string>{"New"}));
    EXPECT_THAT(index.ReadProtectedList(), UnorderedElementsAre("drum", "glöckchen"));
}

TEST_F(BeatIndexTest, TakesOnlyTheNumber1ForDone)
{
    for (const char* value : {"0", "2", "", "yes"}) {
        WriteIndex("[General]\r\nProtected=" + std::string(value) + "\r\n");
        EXPECT_TRUE(BeatIndex::Read().WriteProtectedList({})) << value;
    }
    WriteIndex("[general]\r\nPROTECTED= 1.0 \r\n");
    EXPECT_FALSE(BeatIndex::Read().WriteProtectedList({}));
}

TEST_F(BeatIndexTest, ProtectsTheFirst1000Originals)
{
    std::vector<std::string> names;
    for (int i = 1; i <= 1001; ++i)
        names.push_back("beat" + std::to_string(i));
    BeatIndex index = BeatIndex::Read();
    index.WriteProtectedList(names);
    const auto originals = index.ReadProtectedList();
    EXPECT_TRUE(originals.contains("beat1000"));
    EXPECT_FALSE(originals.contains("beat1001"));
}

TEST_F(BeatIndexTest, ProtectsNothingForANumberThatIsNone)
{
    for (const char* number : {"-5", "x", ""}) {
        WriteIndex("[General]\r\nProtectedNos=" + std::string(number) + "\r\n[Protected]\r\nFile1=drum\r\n");
        EXPECT_TRUE(BeatIndex::Read().ReadProtectedList().empty()) << number;
    }
    WriteIndex("[General]\r\nProtectedNos=1e300\r\n[Protected]\r\nFile1=drum\r\n");
    EXPECT_TRUE(BeatIndex::Read().ReadProtectedList().contains("drum"));
}

TEST_F(BeatIndexTest, KeepsTheOrderUnderTheNamesOfTheBeats)
{
    BeatIndex index = BeatIndex::Read();
    index.SetOrder(std::vector<std::string>{"drum", "bell"});
    index.Write();
    EXPECT_EQ(IndexText(), "[SortOrder]\r\ndrum=1\r\nbell=2\r\n");
    EXPECT_EQ(BeatIndex::Read().Place("Bell"), 2);
    EXPECT_EQ(BeatIndex::Read().Place("other"), 1'000'000);
}

TEST_F(BeatIndexTest, DoesNotGrowByNamesThatCanBeNoKey)
{
    const std::vector<std::string> names{"a=b", "[c]", ";d", "e"};
    for (int i = 0; i < 2; ++i) {
        BeatIndex index = BeatIndex::Read();
        index.SetOrder(names);
        index.Write();
    }
    EXPECT_EQ(IndexText(), "[SortOrder]\r\ne=4\r\n");
}

TEST_F(BeatIndexTest, IsSilentWhereTheFolderCannotBeWritten)
{
    Shared().UserBeats = services.folder.Path() / "no such folder" / "";
    BeatIndex index = BeatIndex::Read();
    index.SetOrder(std::vector<std::string>{"drum"});
    EXPECT_NO_THROW(index.Write());
    EXPECT_TRUE(services.messages.shown.empty());
}

} // namespace
} // namespace sprout
