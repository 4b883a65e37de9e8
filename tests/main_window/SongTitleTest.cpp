// SPDX-License-Identifier: GPL-3.0-or-later
// The command that changes the title and the author of the song.
#include "main_window/SongCommandsFixture.h"

namespace sprout {
namespace {

class SongTitleTest : public SongCommandsFixture {};

TEST_F(SongTitleTest, ChangeTakesTitleAndAuthor)
{
    ShowHint(Words::AsIs("Before"));
    ChangeNextTitle("Rain", "Lina");
    ClickButton("SongTitleChgBtn");
    EXPECT_EQ(Song().SongTitle, "Rain");
    EXPECT_EQ(Song().SongCreatedBy, "Lina");
    EXPECT_TRUE(Song().SongChanged);
    EXPECT_EQ(TextOf("SngTitleLbl"), "Rain");
    EXPECT_EQ(TextOf("SngCreateLbl"), "Lina");
    EXPECT_EQ(TextOf("StatusLbl"), "");
}

TEST_F(SongTitleTest, ChangeOfOneLettersCaseIsAChange)
{
    ChangeNextTitle("untitled", "Your name here");
    ClickButton("SongTitleChgBtn");
    EXPECT_EQ(Song().SongTitle, "untitled");
    EXPECT_TRUE(Song().SongChanged);
}

TEST_F(SongTitleTest, ChangeOfTheAuthorAloneIsAChange)
{
    ChangeNextTitle("Untitled", "Lina");
    ClickButton("SongTitleChgBtn");
    EXPECT_EQ(Song().SongCreatedBy, "Lina");
    EXPECT_EQ(TextOf("SngCreateLbl"), "Lina");
    EXPECT_TRUE(Song().SongChanged);
}

TEST_F(SongTitleTest, ChangeThatChangesNothingLeavesTheSongUnchanged)
{
    ChangeNextTitle("Untitled", "Your name here");
    ClickButton("SongTitleChgBtn");
    EXPECT_FALSE(Song().SongChanged);
    ChangeNextTitle("Rain", "Lina", "CancelBtn");
    ClickButton("SongTitleChgBtn");
    EXPECT_FALSE(Song().SongChanged);
    EXPECT_EQ(Song().SongTitle, "Untitled");
}

TEST_F(SongTitleTest, ChangeLeavesTheOldFileInPlaceAndALaterSaveWritesANewOne)
{
    PutSong("Rain", kQuickTempo);
    ChooseNextSong("Rain");
    ClickButton("OpenBtn");
    ChangeNextTitle("Sun", "Lina");
    ClickButton("SongTitleChgBtn");
    EXPECT_TRUE(std::filesystem::exists(SongPath("Rain")));
    EXPECT_FALSE(std::filesystem::exists(SongPath("Sun")));
    ShownMessage message;
    SaveNextAs("Sun", message);
    ClickButton("SaveBtn");
    EXPECT_TRUE(std::filesystem::exists(SongPath("Rain")));
    EXPECT_TRUE(std::filesystem::exists(SongPath("Sun")));
}

TEST_F(SongTitleTest, DoubleClicksOnTitleAndAuthorChangeThemToo)
{
    int asked = 0;
    for (const char* name : {"SngTitleLbl", "SngTitle2Lbl", "SngCreateLbl", "SngCreate2Lbl"}) {
        WithNextForm([&asked](BandedForm& form) {
            asked += form.objectName() == QStringLiteral("SongTitleFrm") ? 1 : 0;
            Click(form, "CancelBtn");
        });
        QTest::mouseDClick(&Control(name), Qt::LeftButton);
    }
    EXPECT_EQ(asked, 4);
}

} // namespace
} // namespace sprout
