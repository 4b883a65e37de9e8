// SPDX-License-Identifier: GPL-3.0-or-later
#include "beat_window/LibraryCommandsTest.h"

#include "base/FilePaths.h"
#include "core/Paths.h"

namespace sprout {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;

using RenameBeatTest = LibraryCommandsTest;

TEST_F(RenameBeatTest, RenamesThePairKeepsItsPlaceAndSelectsIt)
{
    MakeBeat("a", 10);
    MakeBeat("b", 10);
    Open("a");
    Rename(QStringLiteral("Zimbel"));
    EXPECT_THAT(told, ElementsAre("Enter the new name||Enter a new name for this beat"));
    EXPECT_EQ(FilesOfUserBeats(), "Zimbel.bmp Zimbel.wav b.bmp b.wav original.bmp original.wav ");
    EXPECT_EQ(ListedNames(), "Zimbel b original ");
    EXPECT_EQ(TextOf("NmLbl"), "Zimbel");
}

TEST_F(RenameBeatTest, PutsUnderlinesForForbiddenCharactersButNotForTheBar)
{
    MakeBeat("a", 10);
    Open("a");
    Rename(QStringLiteral("./\\:*?\"<>|x"));
    EXPECT_EQ(FilesOfUserBeats(), "_________|x.bmp _________|x.wav original.bmp original.wav ");
    EXPECT_EQ(TextOf("NmLbl"), "_________|x");
}

TEST_F(RenameBeatTest, TakesNamesOfOtherAlphabets)
{
    MakeBeat("a", 10);
    Open("a");
    Rename(QString::fromUtf8("Тамбурин 太鼓"));
    EXPECT_EQ(TextOf("NmLbl"), "Тамбурин 太鼓");
    Click(*window, "OkBtn");
    EXPECT_EQ(window->ChosenBeatName, "тамбурин 太鼓");
    EXPECT_TRUE(FileExists(NamedFile(Shared().UserBeats, window->ChosenBeatName, ".wav")));
    Open(window->ChosenBeatName);
    EXPECT_EQ(TextOf("NmLbl"), "Тамбурин 太鼓");
}

TEST_F(RenameBeatTest, EndsForAnEmptyAnswerAndForTheOldName)
{
    MakeBeat("a", 10);
    Open("a");
    const std::string index = IndexText();
    Rename(QString());
    Rename(QStringLiteral("a"));
    EXPECT_EQ(FilesOfUserBeats(), "a.bmp a.wav original.bmp original.wav ");
    EXPECT_EQ(IndexText(), index);
    EXPECT_THAT(services.messages.shown, IsEmpty());
}

TEST_F(RenameBeatTest, TellsWhereTheNameIsTaken)
{
    MakeBeat("a", 10);
    MakeBeat("B", 20);
    Open("a");
    Rename(QStringLiteral("b"));
    ASSERT_EQ(services.messages.shown.size(), 1U);
    EXPECT_EQ(services.messages.shown[0].text, "Error renaming beat\r\nThe file B.wav already exists.");
    EXPECT_EQ(FilesOfUserBeats(), "B.bmp B.wav a.bmp a.wav original.bmp original.wav ");
    EXPECT_EQ(TextOf("NmLbl"), "a");
}

TEST_F(RenameBeatTest, LosesABeatWhosePictureCouldNotFollow)
{
    MakeBeat("a", 10);
    WriteBytes(Shared().UserBeats / "b.bmp", "another");
    fs::remove(Shared().UserBeats / "original.wav");
    Open("a");
    fs::remove(Shared().UserBeats / "a.bmp");
    Rename(QStringLiteral("c"));
    ASSERT_EQ(services.messages.shown.size(), 1U);
    EXPECT_EQ(services.messages.shown[0].text, "Error renaming beat\r\nThe file a.bmp was not found.");
    EXPECT_EQ(ListedNames(), "");
    EXPECT_EQ(TextOf("NoteLbl"), "No beat file found");
}

TEST_F(RenameBeatTest, RefusesOriginals)
{
    Open();
    Rename(QStringLiteral("x"));
    EXPECT_THAT(told, ElementsAre("\"original\" is an original Beat from Tonquill|Renaming is not possible.|"
                                  "Can not rename"));
    EXPECT_EQ(statusLbl.text(), QString());
    EXPECT_EQ(FilesOfUserBeats(), "original.bmp original.wav ");
}

TEST_F(RenameBeatTest, RefusesOriginalsAlsoWhereTunesMayBeEdited)
{
    Shared().AllowEditOriginal = true;
    Open();
    Rename(QStringLiteral("x"));
    Delete("OkBtn");
    EXPECT_EQ(FilesOfUserBeats(), "original.bmp original.wav ");
}

TEST_F(RenameBeatTest, NeedsABeat)
{
    fs::remove(Shared().UserBeats / "original.wav");
    Open();
    Rename(QStringLiteral("x"));
    EXPECT_THAT(told, ElementsAre("Select a beat to rename.|Click on a picture to select a beat"));
    EXPECT_EQ(statusLbl.text(), QString());
}

} // namespace
} // namespace sprout
