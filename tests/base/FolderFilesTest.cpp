// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/FolderFiles.h"

#include <gmock/gmock.h>

#include "support/TestFolder.h"

namespace sprout {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;

class FilesInFolderTest : public testing::Test {
protected:
    void Make(std::initializer_list<const char*> names)
    {
        for (const char* name : names)
            WriteBytes(folder.Path() / name, "x");
    }

    TestFolder folder;
};

TEST_F(FilesInFolderTest, AreThoseOfTheExtensionAlphabeticallyWithoutRegardToCase)
{
    Make({"beta.TqTun", "Alpha.tqtun", "GAMMA.TQTUN", "ärger.TqTun", "beta 2.TqTun", "picture.bmp", "Old.TqTun.bak"});
    fs::create_directory(folder.Path() / "folder.TqTun");
    EXPECT_THAT(NamesInFolder(folder.Path(), ".TqTun"), ElementsAre("Alpha", "beta", "beta 2", "GAMMA", "ärger"));
}

TEST_F(FilesInFolderTest, KeepThePathThatTheFolderHas)
{
    Make({"Drum.WAV"});
    const std::vector<FolderFile> files = FilesInFolder(folder.Path(), ".wav");
    ASSERT_EQ(files.size(), 1U);
    EXPECT_EQ(files[0].Name, "Drum");
    EXPECT_EQ(files[0].Path, folder.Path() / "Drum.WAV");
}

TEST_F(FilesInFolderTest, StandByTheirBytesWhereCaseAloneTellsThemApart)
{
    Make({"drum.wav", "Drum.wav", "DRUM.wav", "drum.WAV"});
    std::vector<fs::path> names;
    for (const FolderFile& file : FilesInFolder(folder.Path(), ".wav"))
        names.push_back(file.Path.filename());
    EXPECT_THAT(names, ElementsAre("DRUM.wav", "Drum.wav", "drum.WAV", "drum.wav"));
}

TEST_F(FilesInFolderTest, BeginWithADotOnlyWhereThatIsWanted)
{
    Make({".hidden.wav", ".wav", "a.wav"});
    EXPECT_THAT(NamesInFolder(folder.Path(), ".wav"), ElementsAre("a"));
    const std::vector<FolderFile> all = FilesInFolder(folder.Path(), ".wav", DotFiles::Yes);
    ASSERT_EQ(all.size(), 2U);
    EXPECT_EQ(all[0].Name, ".hidden");
}

TEST_F(FilesInFolderTest, AreNoneWhereThereIsNoFolder)
{
    Make({"file"});
    for (const fs::path& none : {folder.Path() / "missing" / "", folder.Path() / "file", fs::path()})
        EXPECT_THAT(NamesInFolder(none, ".wav"), IsEmpty()) << none;
}

} // namespace
} // namespace sprout
