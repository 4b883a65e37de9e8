// SPDX-License-Identifier: GPL-3.0-or-later
#include "song_window/NameDecision.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/Shared.h"
#include "support/FakeServices.h"

namespace sprout {
namespace {

const std::vector<SongFile> kSongs{{"Rain", {}}, {"Zumi", {}}};

/// The songs "Rain" and "Zumi" in the user's folder; the open one is "Zumi", read from its file.
class DecideNameTest : public testing::Test {
protected:
    DecideNameTest()
    {
        for (const SongFile& song : kSongs)
            WriteBytes(PathOf(song.Name), song.Name);
        Shared().Song.SongTitle = "Zumi";
        Shared().Song.OwnFile = MarkOf(PathOf("Zumi"));
    }

    [[nodiscard]] static std::filesystem::path PathOf(const std::string& name)
    {
        return Shared().UserSongs / (name + ".TqSng");
    }
    [[nodiscard]] static NameDecision Saved(std::string_view name)
    {
        return DecideName(SongSelMode::Save, name, kSongs);
    }
    [[nodiscard]] static NameDecision Made(std::string_view name) { return DecideName(SongSelMode::New, name, kSongs); }

    FakeServices services;
};

TEST_F(DecideNameTest, AsksForANameThatIsMoreThanBlanks)
{
    EXPECT_EQ(Saved(""), NameDecision::AskForName);
    EXPECT_EQ(Saved(" "), NameDecision::AskForName);
    EXPECT_EQ(Made("  "), NameDecision::AskForName);
}

TEST_F(DecideNameTest, SavesASongOverItsOwnFileInAnyCaseUnasked)
{
    EXPECT_EQ(Saved("Zumi"), NameDecision::Accept);
    EXPECT_EQ(Saved("ZUMI"), NameDecision::Accept);
    EXPECT_EQ(Saved("Zumi "), NameDecision::Accept); // a different name that is free
}

TEST_F(DecideNameTest, AsksBeforeItTakesTheNameOfAnotherSong)
{
    EXPECT_EQ(Saved("rain"), NameDecision::AskToOverwrite);
    EXPECT_EQ(Made("Rain"), NameDecision::AskToOverwrite);
    EXPECT_EQ(Saved("Snow"), NameDecision::Accept);
}

TEST_F(DecideNameTest, AsksUnderTheOpenTitleTooWhereTheSongIsNotFromThatFile)
{
    Shared().Song.OwnFile = FileMark();
    EXPECT_EQ(Saved("Zumi"), NameDecision::AskToOverwrite);
}

TEST_F(DecideNameTest, AsksWhereAnotherProgramHasChangedTheOwnFile)
{
    WriteBytes(PathOf("Zumi"), "changed");
    EXPECT_EQ(Saved("Zumi"), NameDecision::AskToOverwrite);
}

TEST_F(DecideNameTest, AsksBeforeSavingOverASongThatIsNotListedYet)
{
    WriteBytes(PathOf("Snow"), "new");
    EXPECT_EQ(Saved("SNOW"), NameDecision::AskToOverwrite);
}

TEST_F(DecideNameTest, AsksForANewSongOfTheOpenSongsTitleIfThatWasSavedOnly)
{
    EXPECT_EQ(Made("Zumi"), NameDecision::AskToOverwrite);
    Shared().Song.SongTitle = "Untitled";
    EXPECT_EQ(Made("Untitled"), NameDecision::Accept);
}

} // namespace
} // namespace sprout
