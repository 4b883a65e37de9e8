// SPDX-License-Identifier: GPL-3.0-or-later
#include "beats/BeatFolder.h"

#include <gmock/gmock.h>

#include "support/TestFolder.h"

namespace sprout {
namespace {

using testing::ElementsAre;

class ListBeatFolderTest : public testing::Test {
protected:
    void Make(const std::string& name) { WriteBytes(folder.Path() / name, "x"); }

    std::vector<std::string> PairNames()
    {
        std::vector<std::string> names;
        for (const BeatPair& pair : ListBeatFolder(folder.Path()).Pairs)
            names.push_back(pair.Name);
        return names;
    }

    TestFolder folder;
};

TEST_F(ListBeatFolderTest, ListsPairsOnlyAndIgnoresLetterCase)
{
    for (const char* name : {"Drum.WAV", "drum.bmp", "alone.wav", "lonely.bmp", "other.txt", ".wav", ".bmp"})
        Make(name);
    std::filesystem::create_directories(folder.Path() / "folder.wav");
    Make("folder.bmp");
    const BeatFolder found = ListBeatFolder(folder.Path());
    ASSERT_THAT(PairNames(), ElementsAre("drum"));
    EXPECT_EQ(found.Pairs[0].Wave, folder.Path() / "Drum.WAV");
    EXPECT_EQ(found.Pairs[0].Picture, folder.Path() / "drum.bmp");
    EXPECT_THAT(found.WaveNames, ElementsAre("alone", "Drum"));
}

TEST_F(ListBeatFolderTest, IsAlphabeticalWithoutRegardToCase)
{
    for (const char* name : {"b", "C", "a", "Ärger", "a b"}) {
        Make(std::string(name) + ".wav");
        Make(std::string(name) + ".bmp");
    }
    EXPECT_THAT(PairNames(), ElementsAre("a", "a b", "b", "c", "ärger"));
}

TEST_F(ListBeatFolderTest, ListsNamesThatDifferInCaseOnlyOnceAndPrefersTheLowerCase)
{
    for (const char* name : {"Drum.wav", "drum.wav", "DRUM.wav", "drum.bmp", "Drum.bmp"})
        Make(name);
    const BeatFolder found = ListBeatFolder(folder.Path());
    ASSERT_EQ(found.Pairs.size(), 1U);
    EXPECT_EQ(found.Pairs[0].Wave, folder.Path() / "drum.wav");
    EXPECT_EQ(found.Pairs[0].Picture, folder.Path() / "drum.bmp");
}

TEST_F(ListBeatFolderTest, KeepsEveryCharacterOfANameButItsCase)
{
    for (const char* name : {"..a", "x=y", "[z]", "a|b:c*?\"<>\\", "Тук", "太鼓"}) {
        Make(std::string(name) + ".wav");
        Make(std::string(name) + ".bmp");
    }
    EXPECT_THAT(PairNames(), testing::UnorderedElementsAre("..a", "x=y", "[z]", "a|b:c*?\"<>\\", "тук", "太鼓"));
}

TEST_F(ListBeatFolderTest, IsEmptyForAFolderThatIsNotThere)
{
    EXPECT_TRUE(ListBeatFolder(folder.Path() / "none").Pairs.empty());
}

} // namespace
} // namespace sprout
