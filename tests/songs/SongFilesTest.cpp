// SPDX-License-Identifier: GPL-3.0-or-later
#include "songs/SongFiles.h"

#include <gmock/gmock.h>

#include "base/Errors.h"
#include "service/Services.h"
#include "support/FakeServices.h"
#include "support/FullDisk.h"
#include "support/TestFolder.h"

namespace sprout {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

namespace fs = std::filesystem;

class SongFilesTest : public testing::Test {
protected:
    SongFilesTest() { fs::create_directory(folder); }

    void Put(std::string_view fileName, std::string_view bytes = "song") { WriteBytes(folder / fileName, bytes); }

    [[nodiscard]] std::vector<std::string> Names() const
    {
        std::vector<std::string> names;
        for (const SongFile& song : ListSongs(folder))
            names.push_back(song.Name);
        return names;
    }

    /// The number of entries in the folder, including hidden ones.
    [[nodiscard]] std::size_t Entries() const
    {
        return static_cast<std::size_t>(std::distance(fs::directory_iterator(folder), fs::directory_iterator()));
    }

    FakeServices services;
    fs::path folder = services.folder.Path() / "Songs" / "";
};

TEST_F(SongFilesTest, AreListedByNameWithoutRegardToCase)
{
    for (const char* name : {"zumi.TqSng", "Bell.TqSng", "apple.TqSng", "Äpfel.TqSng", "Bell 2.TqSng"})
        Put(name);
    EXPECT_THAT(Names(), ElementsAre("apple", "Bell", "Bell 2", "zumi", "Äpfel"));
}

TEST_F(SongFilesTest, AreThoseWithTheExtensionInAnyCaseAndNoOthers)
{
    Put("Small.tqsng");
    Put("Tune.TqTun");
    Put("Song.TqSng.bak");
    Put(".TqSng");
    Put(".hidden.TqSng");
    fs::create_directory(folder / "Folder.TqSng");
    EXPECT_THAT(Names(), ElementsAre("Small"));
    EXPECT_EQ(ListSongs(folder).front().Path, folder / "Small.tqsng");
}

TEST_F(SongFilesTest, AreNoneInAFolderThatIsNotThere)
{
    EXPECT_THAT(ListSongs(folder / "missing" / ""), IsEmpty());
    EXPECT_THAT(ListSongs({}), IsEmpty());
}

TEST_F(SongFilesTest, AreFoundIgnoringCase)
{
    Put("Zumi.TqSng");
    const std::vector<SongFile> songs = ListSongs(folder);
    ASSERT_NE(FindSong(songs, "zUMI"), nullptr);
    EXPECT_EQ(FindSong(songs, "zUMI")->Name, "Zumi");
    EXPECT_EQ(FindSong(songs, "Zum"), nullptr);
}

TEST_F(SongFilesTest, ACopyGetsTheFirstNumberThatNoSongHas)
{
    EXPECT_EQ(FreeCopyName(std::vector<SongFile>{{"Zumi", {}}}, "Zumi"), "Zumi1");
    EXPECT_EQ(FreeCopyName(std::vector<SongFile>{{"Zumi", {}}, {"zumi1", {}}}, "Zumi"), "Zumi2");
    EXPECT_EQ(FreeCopyName(std::vector<SongFile>{{"Zumi1", {}}}, "Zumi1"), "Zumi11");
}

TEST_F(SongFilesTest, ACopyHoldsTheSameBytes)
{
    const std::string bytes = "head\r\n" + std::string(100'000, '\0') + "\xFFtail";
    Put("zumi.TQSNG", bytes);
    CopySong(ListSongs(folder).front(), "zumi1");
    EXPECT_EQ(ReadBytes(folder / "zumi1.TqSng"), bytes);
    EXPECT_EQ(ReadBytes(folder / "zumi.TQSNG"), bytes);
    EXPECT_EQ(Entries(), 2U);
}

TEST_F(SongFilesTest, ACopyTakesNoOtherFilesPlace)
{
    Put("Zumi.TqSng", "old");
    Put("Other.tqsng", "other");
    fs::create_directory(folder / "Folder.TqSng");
    fs::create_symlink(folder / "nowhere", folder / "Link.TqSng");
    const SongFile song{"Zumi", folder / "Zumi.TqSng"};
    for (const char* taken : {"Other", "OTHER", "Folder", "Link", "Zumi"})
        EXPECT_THROW(CopySong(song, taken), RunTimeError) << taken;
    EXPECT_EQ(ReadBytes(folder / "Other.tqsng"), "other");
    EXPECT_FALSE(fs::exists(folder / "nowhere"));
    EXPECT_EQ(Entries(), 4U);
}

TEST_F(SongFilesTest, ACopyOnAFullDiskLeavesNothingBehind)
{
    FullDisk disk;
    TheServices().files = &disk;
    Put("Zumi.TqSng");
    EXPECT_THROW(CopySong({"Zumi", folder / "Zumi.TqSng"}, "Zumi1"), RunTimeError);
    EXPECT_EQ(Entries(), 1U);
}

TEST_F(SongFilesTest, ACopyOfASongThatIsGoneIsAnError)
{
    EXPECT_THROW(CopySong({"Zumi", folder / "Zumi.TqSng"}, "Zumi1"), RunTimeError);
    EXPECT_EQ(Entries(), 0U);
}

TEST_F(SongFilesTest, ARenamedSongKeepsItsBytes)
{
    Put("Zumi.TqSng", "bytes");
    RenameSong({"Zumi", folder / "Zumi.TqSng"}, "Rain");
    EXPECT_EQ(ReadBytes(folder / "Rain.TqSng"), "bytes");
    EXPECT_EQ(Entries(), 1U);
}

TEST_F(SongFilesTest, ARenamedSongReplacesNothing)
{
    Put("Zumi.TqSng", "zumi");
    Put("Rain.tqSNG", "rain");
    fs::create_directory(folder / "Folder.TqSng");
    const SongFile song{"Zumi", folder / "Zumi.TqSng"};
    for (const char* taken : {"Rain", "RAIN", "Folder"})
        EXPECT_THROW(RenameSong(song, taken), RunTimeError) << taken;
    EXPECT_EQ(ReadBytes(folder / "Zumi.TqSng"), "zumi");
    EXPECT_EQ(ReadBytes(folder / "Rain.tqSNG"), "rain");
}

TEST_F(SongFilesTest, ANameThatIsNoneIsAnError)
{
    Put("Zumi.TqSng");
    const SongFile song{"Zumi", folder / "Zumi.TqSng"};
    EXPECT_THROW(RenameSong(song, "  "), RunTimeError);
    EXPECT_THROW(RenameSong(song, "../Zumi"), RunTimeError);
    EXPECT_THROW(RenameSong(song, std::string(300, 'a')), std::exception);
    EXPECT_THAT(Names(), ElementsAre("Zumi"));
}

TEST_F(SongFilesTest, DeletingTakesTheFileAwayAndIsFineWhenItIsGone)
{
    Put("Zumi.TqSng");
    const SongFile song{"Zumi", folder / "Zumi.TqSng"};
    DeleteSong(song);
    EXPECT_EQ(Entries(), 0U);
    DeleteSong(song);
}

TEST_F(SongFilesTest, DeletingASongThatIsGoneLeavesOneOfAnotherCase)
{
    Put("ZUMI.TqSng");
    DeleteSong({"Zumi", folder / "Zumi.TqSng"});
    EXPECT_THAT(Names(), ElementsAre("ZUMI"));
}

TEST_F(SongFilesTest, StayAsTheyAreWhereTheyAreInstalled)
{
    Put("Zumi.TqSng");
    Shared().InstallRoot = folder;
    const SongFile song{"Zumi", folder / "Zumi.TqSng"};
    EXPECT_THROW(CopySong(song, "Another"), RunTimeError);
    EXPECT_THROW(RenameSong(song, "Another"), RunTimeError);
    EXPECT_THROW(DeleteSong(song), RunTimeError);
    EXPECT_THAT(Names(), ElementsAre("Zumi"));
}

TEST_F(SongFilesTest, DeletingAFileThatStaysIsAnError)
{
    EXPECT_THROW(DeleteSong({"version", "/proc/version"}), RunTimeError); // nobody can delete that file
}

TEST_F(SongFilesTest, OfTheClassAreOpenedWhereTheUserHasNone)
{
    Shared().UserSongs = folder;
    Shared().ClassRoot = services.folder.Path() / "class" / "";
    const fs::path song = Shared().ClassRoot / "Songs" / "Rain.TqSng";
    fs::create_directories(song.parent_path());
    WriteBytes(song, "of all");
    EXPECT_EQ(SongFileToOpen("rain"), song);
    EXPECT_EQ(PlaceOfSong("Rain"), folder / "Rain.TqSng"); // where it is saved
    EXPECT_EQ(SongFileToOpen("New"), folder / "New.TqSng");
    EXPECT_THROW(RenameSong({"Rain", song}, "Sun"), RunTimeError);
    EXPECT_THROW(DeleteSong({"Rain", song}), RunTimeError);
    EXPECT_EQ(ReadBytes(song), "of all");
    EXPECT_EQ(Entries(), 0U);
    Put("Rain.TqSng", "own");
    EXPECT_EQ(SongFileToOpen("Rain"), folder / "Rain.TqSng");
}

} // namespace
} // namespace sprout
