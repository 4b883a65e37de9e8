// SPDX-License-Identifier: GPL-3.0-or-later
#include "beat_window/LibraryCommandsTest.h"

namespace sprout {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;

using DeleteBeatTest = LibraryCommandsTest;

TEST_F(DeleteBeatTest, DeletesThePairAfterAQuestionAndSelectsTheBeatBehind)
{
    MakeBeat("a", 10);
    MakeBeat("b", 10);
    Open("a");
    Delete("YesBtn");
    EXPECT_THAT(told, ElementsAre("Are you sure to delete this Beat?|Beat name: a|Click Yes to delete, No to keep"));
    EXPECT_EQ(caption, QStringLiteral("  Confirm Delete Beat"));
    EXPECT_EQ(FilesOfUserBeats(), "b.bmp b.wav original.bmp original.wav ");
    EXPECT_EQ(ListedNames(), "b original ");
    EXPECT_EQ(TextOf("NmLbl"), "b");
    EXPECT_THAT(IndexText(), testing::HasSubstr("b=2\r\noriginal=3\r\n")) << "the order was written";
    EXPECT_EQ(statusLbl.text(), QString());
}

TEST_F(DeleteBeatTest, SelectsTheOneBeforeWhenTheLastWasDeleted)
{
    MakeBeat("a", 10);
    MakeBeat("z", 10);
    Open("z");
    Delete("YesBtn");
    EXPECT_EQ(ListedNames(), "a original ");
    EXPECT_EQ(TextOf("NmLbl"), "original");
}

TEST_F(DeleteBeatTest, LeavesAnEmptyWindowWhenTheOnlyBeatWasDeleted)
{
    fs::remove(Shared().UserBeats / "original.wav");
    MakeBeat("a", 10);
    Open();
    Delete("YesBtn");
    EXPECT_EQ(TextOf("NoteLbl"), "No beat file found");
    Delete("OkBtn");
    EXPECT_THAT(told, ElementsAre("Select a beat to delete.|Click on a picture to select a beat"));
}

TEST_F(DeleteBeatTest, KeepsTheBeatOnNo)
{
    MakeBeat("a", 10);
    Open("a");
    Delete("NoBtn");
    EXPECT_EQ(FilesOfUserBeats(), "a.bmp a.wav original.bmp original.wav ");
    EXPECT_EQ(TextOf("NmLbl"), "a");
}

TEST_F(DeleteBeatTest, RefusesOriginals)
{
    Open();
    Delete("OkBtn");
    EXPECT_THAT(told, ElementsAre("This an original Beat from Tonquill|It can not be deleted.|Blue bordered are "
                                  "originals, red bordered are your new beats"));
    EXPECT_EQ(statusLbl.text(), QString());
    EXPECT_EQ(FilesOfUserBeats(), "original.bmp original.wav ");
}

TEST_F(DeleteBeatTest, RefusesBeatsOfTheClassAsRenamingDoes)
{
    Shared().ClassRoot = services.folder.Path() / "class" / "";
    const fs::path beats = Shared().ClassRoot / "Beats";
    fs::create_directories(beats);
    MakeBeat("bell", 10);
    for (const char* const file : {"bell.wav", "bell.bmp"})
        fs::rename(Shared().UserBeats / file, beats / file);
    Open("bell");
    Delete("OkBtn");
    EXPECT_THAT(told, ElementsAre("This Beat is for the whole class.|It can not be deleted.|"));
    Rename(QStringLiteral("gong"));
    EXPECT_THAT(told, ElementsAre("This Beat is for the whole class.|Renaming is not possible.|Can not rename"));
    EXPECT_TRUE(fs::exists(beats / "bell.wav"));
}

} // namespace
} // namespace sprout
