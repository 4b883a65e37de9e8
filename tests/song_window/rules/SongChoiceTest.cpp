// SPDX-License-Identifier: GPL-3.0-or-later
#include "song_window/rules/SongChoice.h"

#include <gtest/gtest.h>

namespace sprout {
namespace {

const std::vector<SongFile> kSongs{{"Rain", {}}, {"Zumi", {}}};

TEST(LayoutOf, TellsTheTopsAndHeightsOfEachMode)
{
    const SongSelLayout& open = LayoutOf(SongSelMode::Open);
    EXPECT_EQ(open.ListHeight, 257);
    EXPECT_EQ(open.ListTop, 56);
    EXPECT_EQ(open.ListTitleTop, 32);
    for (const SongSelMode mode : {SongSelMode::Save, SongSelMode::New}) {
        EXPECT_EQ(LayoutOf(mode).ListHeight, 211);
        EXPECT_EQ(LayoutOf(mode).ListTop, 44);
        EXPECT_EQ(LayoutOf(mode).ListTitleTop, 20);
    }
}

TEST(DecideName, AsksForANameThatIsMoreThanBlanks)
{
    EXPECT_EQ(DecideName(SongSelMode::Save, "", "Zumi", kSongs), NameDecision::AskForName);
    EXPECT_EQ(DecideName(SongSelMode::New, "  ", "Zumi", kSongs), NameDecision::AskForName);
    EXPECT_EQ(DecideName(SongSelMode::Save, " ", " ", kSongs), NameDecision::AskForName);
}

TEST(DecideName, SavesTheOpenSongUnderItsTitleInAnyCaseWithoutAQuestion)
{
    EXPECT_EQ(DecideName(SongSelMode::Save, "ZUMI", "Zumi", kSongs), NameDecision::Accept);
    EXPECT_EQ(DecideName(SongSelMode::Save, "Zumi ", "Zumi", kSongs), NameDecision::Accept); // another name, and free
}

TEST(DecideName, AsksBeforeItTakesTheNameOfAnotherSong)
{
    EXPECT_EQ(DecideName(SongSelMode::Save, "rain", "Zumi", kSongs), NameDecision::AskToOverwrite);
    EXPECT_EQ(DecideName(SongSelMode::New, "Rain", "Zumi", kSongs), NameDecision::AskToOverwrite);
    EXPECT_EQ(DecideName(SongSelMode::Save, "Snow", "Zumi", kSongs), NameDecision::Accept);
}

TEST(DecideName, AsksForANewSongOfTheOpenSongsTitleIfThatWasSavedOnly)
{
    EXPECT_EQ(DecideName(SongSelMode::New, "Zumi", "Zumi", kSongs), NameDecision::AskToOverwrite);
    EXPECT_EQ(DecideName(SongSelMode::New, "Untitled", "Untitled", kSongs), NameDecision::Accept);
}

TEST(RowAfterChange, StaysWhereItWasHeldToTheLastLine)
{
    EXPECT_EQ(RowAfterChange(1, 3), 1);
    EXPECT_EQ(RowAfterChange(3, 3), 2);
    EXPECT_EQ(RowAfterChange(0, 0), -1);
}

} // namespace
} // namespace sprout
