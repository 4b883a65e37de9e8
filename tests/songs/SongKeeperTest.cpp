// SPDX-License-Identifier: GPL-3.0-or-later
#include "songs/SongKeeper.h"

#include <gmock/gmock.h>

#include <filesystem>

#include "base/Errors.h"
#include "base/FolderFiles.h"
#include "core/SongModel.h"
#include "songs/SongFileMaker.h"
#include "support/Flags.h"
#include "support/FullDisk.h"

namespace sprout {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;

class SongKeeperTest : public SongFilesTest {
protected:
    SongKeeperTest()
    {
        NewSong();
        Shared().Song.SongTitle = "Rain";
        Shared().Song.Tempo = 400;
        SetSongChanged(Shared().Song, true);
    }

    [[nodiscard]] static std::vector<std::string> Songs() { return NamesInFolder(Shared().UserSongs, ".TqSng"); }

    SongKeeper keeper;
};

TEST_F(SongKeeperTest, WritesAnUnsavedSongUnderAFreeName)
{
    WriteBytes(Shared().UserSongs / "Rain.TqSng", "saved");
    EXPECT_EQ(keeper.KeepUnsavedSong(), "Rain kept");
    EXPECT_THAT(Songs(), ElementsAre("Rain", "Rain kept"));
    EXPECT_EQ(ReadBytes(Shared().UserSongs / "Rain.TqSng"), "saved");
    Shared().Song.Tempo = 1;
    OpenSaveClass().Load_Song(Shared().UserSongs / "Rain kept.TqSng");
    EXPECT_EQ(Shared().Song.Tempo, 400);
}

TEST_F(SongKeeperTest, ReplacesNothing)
{
    WriteBytes(Shared().UserSongs / "RAIN KEPT.TqSng", "first");
    WriteBytes(Shared().UserSongs / "Rain kept 2.TqSng", "second");
    EXPECT_EQ(keeper.KeepUnsavedSong(), "Rain kept 3");
    EXPECT_EQ(ReadBytes(Shared().UserSongs / "RAIN KEPT.TqSng"), "first");
    EXPECT_EQ(ReadBytes(Shared().UserSongs / "Rain kept 2.TqSng"), "second");
}

TEST_F(SongKeeperTest, TwoProgramsKeepTwoSongs)
{
    EXPECT_EQ(keeper.KeepUnsavedSong(), "Rain kept");
    EXPECT_EQ(SongKeeper().KeepUnsavedSong(), "Rain kept 2");
    EXPECT_THAT(TakeKeptSongs(), ElementsAre("Rain kept", "Rain kept 2"));
}

TEST_F(SongKeeperTest, KeepsTheSameSongOnceAndAChangedOneAgain)
{
    EXPECT_EQ(keeper.KeepUnsavedSong(), "Rain kept");
    EXPECT_EQ(keeper.KeepUnsavedSong(), "");
    Shared().Song.Tracks[1].Painted[1] = 1;
    EXPECT_EQ(keeper.KeepUnsavedSong(), "Rain kept 2");
}

TEST_F(SongKeeperTest, KeepsNothingThatIsSavedOrHasNoTracks)
{
    SetSongChanged(Shared().Song, false);
    EXPECT_EQ(keeper.KeepUnsavedSong(), "");
    SetSongChanged(Shared().Song, true);
    Shared().Song.TrackCount = 0;
    EXPECT_EQ(keeper.KeepUnsavedSong(), "");
    EXPECT_THAT(Songs(), IsEmpty());
}

TEST_F(SongKeeperTest, LeavesTheSongAsItIs)
{
    Shared().Song.SongBeats.resize(2);
    Shared().Song.SongBeatCount = 1; // no step uses it
    keeper.KeepUnsavedSong();
    EXPECT_EQ(Shared().Song.SongBeatCount, 1);
    EXPECT_EQ(Shared().Song.SongTitle, "Rain");
    EXPECT_TRUE(Shared().Song.SongChanged);
}

TEST_F(SongKeeperTest, FindsANameForAnyTitle)
{
    for (const std::string& title :
         {std::string("a/b"), std::string(), std::string(" "), std::string("a\0b", 3), std::string(300, 'x')}) {
        Shared().Song.SongTitle = title;
        const std::string name = SongKeeper().KeepUnsavedSong();
        EXPECT_TRUE(fs::exists(Shared().UserSongs / (name + ".TqSng"))) << title;
    }
    EXPECT_EQ(TakeKeptSongs().size(), 5U);
}

TEST_F(SongKeeperTest, MakesAFolderThatHasGoneAgain)
{
    fs::remove_all(Shared().UserSongs);
    EXPECT_EQ(keeper.KeepUnsavedSong(), "Rain kept");
    EXPECT_THAT(Songs(), ElementsAre("Rain kept"));
}

TEST_F(SongKeeperTest, TriesAgainWhereItFailed)
{
    FullDisk disk;
    Files* const files = TheServices().files;
    TheServices().files = &disk;
    EXPECT_THROW(keeper.KeepUnsavedSong(), RunTimeError);
    TheServices().files = files;
    EXPECT_EQ(keeper.KeepUnsavedSong(), "Rain kept");
}

TEST_F(SongKeeperTest, KeptSongsAreToldOnceAndOnlyWhileTheyAreThere)
{
    keeper.KeepUnsavedSong();
    EXPECT_THAT(TakeKeptSongs(), ElementsAre("Rain kept"));
    EXPECT_THAT(TakeKeptSongs(), IsEmpty());
    fs::remove(Shared().UserSongs / "Rain kept.TqSng");
    keeper = SongKeeper();
    keeper.KeepUnsavedSong();
    fs::remove(Shared().UserSongs / "Rain kept.TqSng");
    EXPECT_THAT(TakeKeptSongs(), IsEmpty());
    EXPECT_EQ(std::distance(fs::directory_iterator(Shared().UserSongs), fs::directory_iterator()), 0);
}

} // namespace
} // namespace sprout
