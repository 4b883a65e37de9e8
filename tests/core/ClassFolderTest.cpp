// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/ClassFolder.h"

#include <gmock/gmock.h>

#include "base/Errors.h"
#include "base/FilePaths.h"
#include "core/Paths.h"
#include "core/Settings.h"
#include "support/FakeServices.h"
#include "support/TestFolder.h"

namespace sprout {
namespace {

using testing::ElementsAre;

namespace fs = std::filesystem;

class ClassFolderTest : public testing::Test {
protected:
    ClassFolderTest()
    {
        fs::create_directories(root / "Songs");
        fs::create_directories(Shared().UserSongs);
        Shared().ClassRoot = AsFolder(root);
    }

    [[nodiscard]] fs::path ClassSong(const char* name) const { return root / "Songs" / name; }
    [[nodiscard]] static fs::path OwnSong(const char* name) { return Shared().UserSongs / name; }
    [[nodiscard]] static fs::path Find(std::string_view name) { return FindNamedFile(SongFolders(), name, ".TqSng"); }

    FakeServices services;
    fs::path root = services.folder.Path() / "class";
};

TEST_F(ClassFolderTest, IsAWholePathInASetting)
{
    for (const char* none : {"", "  ", "class", "./class"}) {
        PutSetting("General", "ClassFolder", none);
        FindClassFolder();
        EXPECT_EQ(Shared().ClassRoot, fs::path()) << none;
        EXPECT_EQ(SongFolders().Class, fs::path()) << none;
        EXPECT_FALSE(IsOfClass("/Songs/Zumi.TqSng"));
    }
    PutSetting("General", "ClassFolder", " " + root.native() + " ");
    FindClassFolder();
    EXPECT_EQ(Shared().ClassRoot, AsFolder(root));
    EXPECT_EQ(SongFolders().Class, AsFolder(root / "Songs"));
    EXPECT_EQ(TuneFolders().Class, AsFolder(root / "Tunes"));
    EXPECT_EQ(BeatFolders().Class, AsFolder(root / "Beats"));
    EXPECT_EQ(SongFolders().Own, Shared().UserSongs);
    EXPECT_EQ(TuneFolders().Own, Shared().UserTunes);
    EXPECT_EQ(BeatFolders().Own, Shared().UserBeats);
}

TEST_F(ClassFolderTest, GivesWhatTheUserHasNotInAnyLetterCase)
{
    WriteBytes(ClassSong("Rain.TqSng"), "class");
    EXPECT_EQ(Find("rain"), ClassSong("Rain.TqSng"));
    WriteBytes(OwnSong("RAIN.TqSng"), "own");
    EXPECT_EQ(Find("Rain"), OwnSong("RAIN.TqSng"));
    EXPECT_EQ(Find("Sun"), fs::path());
    EXPECT_EQ(Find("../Songs/Rain"), fs::path());
}

TEST_F(ClassFolderTest, IsListedAmongTheUsersOwnFilesWhichHideThoseOfTheirNames)
{
    for (const char* name : {"Apple.TqSng", "rain.TqSng", "Zumi.TqSng", ".hidden.TqSng"})
        WriteBytes(ClassSong(name), "class");
    for (const char* name : {"Moon.TqSng", "Rain.TqSng", "RAIN.TqSng"})
        WriteBytes(OwnSong(name), "own");
    std::vector<fs::path> paths;
    for (const FolderFile& file : FilesInFolders(SongFolders(), ".TqSng"))
        paths.push_back(file.Path);
    EXPECT_THAT(paths, ElementsAre(ClassSong("Apple.TqSng"), OwnSong("Moon.TqSng"), OwnSong("RAIN.TqSng"),
                                   OwnSong("Rain.TqSng"), ClassSong("Zumi.TqSng")));
    Shared().ClassRoot.clear();
    EXPECT_EQ(FilesInFolders(SongFolders(), ".TqSng").size(), 3U);
}

TEST_F(ClassFolderTest, LeavesTheUsersOwnFilesTheirs)
{
    const fs::path song = OwnSong("Rain.TqSng");
    WriteBytes(song, "own");
    for (const fs::path& shared : {Shared().UserRoot, Shared().UserRoot.parent_path()}) {
        Shared().ClassRoot = AsFolder(shared);
        EXPECT_FALSE(IsOfClass(song)) << shared;
        EXPECT_NO_THROW(PrepareToReplace(song)) << shared;
        EXPECT_EQ(FilesInFolders(SongFolders(), ".TqSng").size(), 1U) << shared;
    }
    EXPECT_TRUE(DeleteFile(song));
}

TEST_F(ClassFolderTest, IsNeverChanged)
{
    const fs::path song = ClassSong("Rain.TqSng");
    WriteBytes(song, "class");
    EXPECT_TRUE(IsOfClass(song));
    EXPECT_FALSE(IsOfClass(OwnSong("Rain.TqSng")));
    EXPECT_FALSE(DeleteFile(song));
    EXPECT_EQ(ReadBytes(song), "class");
    EXPECT_THROW(PrepareToReplace(song), RunTimeError);
    EXPECT_THROW(PrepareToReplace(ClassSong("New.TqSng")), RunTimeError);
    EXPECT_THROW(RequireOwnFile(song), RunTimeError);
}

} // namespace
} // namespace sprout
