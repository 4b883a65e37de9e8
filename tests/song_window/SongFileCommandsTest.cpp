// SPDX-License-Identifier: GPL-3.0-or-later
#include "song_window/SongFileCommands.h"

#include "service/Services.h"
#include "song_window/SongSelFrmTest.h"
#include "support/FullDisk.h"
#include "support/UnchangeableFolder.h"

namespace sprout {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;

using SongFileCommandsTest = SongSelFrmTest;

TEST_F(SongFileCommandsTest, EnterKeepsASongThatIsAskedAbout)
{
    Put({"Rain"});
    Open(SongSelMode::Open);
    ClickRow(0);
    WithNextForm([](BandedForm& question) { QTest::keyClick(question.focusWidget(), Qt::Key_Return); });
    Click(form, "DeleteBtn");
    EXPECT_TRUE(HasSong("Rain"));
}

TEST_F(SongFileCommandsTest, ACopyIsNumberedBehindThoseThatAreThere)
{
    Put({"Rain", "Zumi", "Zumi1"});
    Open(SongSelMode::Open);
    ClickRow(1);
    EXPECT_EQ(ClickAndAnswer("CopyBtn", "OkBtn"),
              (Told{kTitle, QStringLiteral("The song \"Zumi\""), QStringLiteral("is copied to \"Zumi2\""), {}}));
    EXPECT_EQ(ReadBytes(songFolder / "Zumi2.TqSng"), "Zumi");
    EXPECT_EQ(ReadBytes(songFolder / "Zumi1.TqSng"), "Zumi1");
    EXPECT_EQ(Lines().size(), 4);
    EXPECT_EQ(Selected(), QStringLiteral("Zumi"));
}

TEST_F(SongFileCommandsTest, ACopyLeavesTheTypedNameAndSelectsTheSameLine)
{
    Put({"B", "C"});
    Open(SongSelMode::Save);
    ClickRow(1);
    NameBox().setText(QStringLiteral("Mine"));
    WriteBytes(songFolder / "A.TqSng", "x"); // by another program
    ClickAndAnswer("CopyBtn", "OkBtn");
    EXPECT_THAT(Lines(),
                ElementsAre(QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C"), QStringLiteral("C1")));
    EXPECT_EQ(Selected(), QStringLiteral("B"));
    EXPECT_EQ(NameBox().text(), QStringLiteral("Mine"));
}

TEST_F(SongFileCommandsTest, CopyDeleteAndRenameNeedASelection)
{
    Put({"Zumi"});
    Open(SongSelMode::Open);
    EXPECT_EQ(ClickAndAnswer("CopyBtn", "OkBtn"),
              (Told{kTitle, QStringLiteral("Select a song to copy"), {}, kSelectOne}));
    EXPECT_EQ(ClickAndAnswer("DeleteBtn", "OkBtn"),
              (Told{kTitle, QStringLiteral("Select a song to delete."), {}, kSelectOne}));
    EXPECT_EQ(ClickAndAnswer("RenameBtn", "OkBtn"),
              (Told{kTitle, QStringLiteral("Select a song to rename."), {}, kSelectOne}));
    EXPECT_EQ(statusLbl.text(), QString());
    EXPECT_THAT(Lines(), ElementsAre(QStringLiteral("Zumi")));
}

TEST_F(SongFileCommandsTest, ACopyThatFailsIsToldAndLeavesNothing)
{
    Put({"Zumi"});
    FullDisk disk;
    TheServices().files = &disk;
    Open(SongSelMode::Open);
    ClickRow(0);
    Click(form, "CopyBtn");
    EXPECT_THAT(services.messages.shown,
                ElementsAre(FakeMessages::Shown{"", "Error Copying file\r\nNo space left on device."}));
    EXPECT_TRUE(form.isVisible());
    EXPECT_THAT(Lines(), ElementsAre(QStringLiteral("Zumi")));
    EXPECT_EQ(Selected(), QStringLiteral("Zumi"));
}

TEST_F(SongFileCommandsTest, DeletingAsksFirst)
{
    Put({"Rain", "Zumi"});
    Open(SongSelMode::Open);
    ClickRow(0);
    EXPECT_EQ(ClickAndAnswer("DeleteBtn", "NoBtn"),
              (Told{kTitle, QStringLiteral("Do you want to delete this song?"), QStringLiteral("Rain"),
                    QStringLiteral("Click Yes to delete, No to keep")}));
    EXPECT_EQ(statusLbl.text(), QString());
    EXPECT_TRUE(HasSong("Rain"));
    ClickAndAnswer("DeleteBtn", "YesBtn");
    EXPECT_FALSE(HasSong("Rain"));
    EXPECT_TRUE(HasSong("Zumi"));
    EXPECT_EQ(Selected(), QStringLiteral("Zumi"));
    EXPECT_EQ(statusLbl.text(), QString());
}

TEST_F(SongFileCommandsTest, ADeleteThatFailsIsToldAndLeavesTheSong)
{
    Put({"Rain", "Zumi"});
    Open(SongSelMode::Open);
    ClickRow(0);
    {
        const UnchangeableFolder locked(songFolder);
        ClickAndAnswer("DeleteBtn", "YesBtn");
    }
    ASSERT_EQ(services.messages.shown.size(), 1U);
    EXPECT_EQ(services.messages.shown.front().title, "");
    EXPECT_THAT(services.messages.shown.front().text, testing::StartsWith("Error Deleting file\r\n"));
    EXPECT_EQ(statusLbl.text(), QString()); // not the question's hint
    EXPECT_TRUE(HasSong("Rain"));
    EXPECT_EQ(Selected(), QStringLiteral("Rain"));
    EXPECT_TRUE(form.isVisible());
}

TEST_F(SongFileCommandsTest, AfterTheLastLineIsDeletedTheNewLastOneIsSelected)
{
    Put({"Apple", "Rain", "Zumi"});
    Open(SongSelMode::Open);
    ClickRow(2);
    ClickAndAnswer("DeleteBtn", "YesBtn");
    EXPECT_EQ(Selected(), QStringLiteral("Rain"));
    ClickAndAnswer("DeleteBtn", "YesBtn");
    ClickAndAnswer("DeleteBtn", "YesBtn");
    EXPECT_EQ(Selected(), QString());
    EXPECT_THAT(Lines(), ElementsAre(QStringLiteral("No song found")));
}

TEST_F(SongFileCommandsTest, TheOpenSongsFileCanBeDeletedAndItsTitleStays)
{
    Put({"Zumi"});
    Open(SongSelMode::Open);
    ClickRow(0);
    ClickAndAnswer("DeleteBtn", "YesBtn");
    EXPECT_FALSE(HasSong("Zumi"));
    EXPECT_EQ(Shared().Song.SongTitle, "Zumi");
}

TEST_F(SongFileCommandsTest, ARenamedSongIsSelectedUnderItsNewName)
{
    Put({"Rain", "Zumi"});
    Open(SongSelMode::Open);
    ClickRow(1);
    Rename(QStringLiteral("Ape"));
    EXPECT_THAT(Lines(), ElementsAre(QStringLiteral("Ape"), QStringLiteral("Rain")));
    EXPECT_EQ(Selected(), QStringLiteral("Ape"));
    EXPECT_EQ(ReadBytes(songFolder / "Ape.TqSng"), "Zumi");
    EXPECT_EQ(Shared().Song.SongTitle, "Zumi");
    Rename(QStringLiteral("Sky")); // sorted after the other one
    EXPECT_EQ(Selected(), QStringLiteral("Sky"));
}

TEST_F(SongFileCommandsTest, RenamingStartsWithTheOldNameAndAnEmptyAnswerEndsIt)
{
    Put({"Zumi"});
    Open(SongSelMode::Open);
    ClickRow(0);
    WithNextForm([](BandedForm& box) {
        auto* input = box.findChild<QLineEdit*>(QStringLiteral("InputTxt"));
        EXPECT_EQ(box.findChild<QLabel*>(QStringLiteral("NoteLbl1"))->text(), QStringLiteral("Enter the new name:"));
        EXPECT_EQ(input->text(), QStringLiteral("Zumi"));
        input->clear();
        Click(box, "OkBtn");
    });
    Click(form, "RenameBtn");
    EXPECT_THAT(Lines(), ElementsAre(QStringLiteral("Zumi")));
    EXPECT_THAT(services.messages.shown, IsEmpty());
}

TEST_F(SongFileCommandsTest, ANewNameHoldsWhatAFileNameMayHold)
{
    Put({"Zumi"});
    Open(SongSelMode::Open);
    ClickRow(0);
    Rename(QStringLiteral("a.b/c|d"));
    EXPECT_EQ(Selected(), QStringLiteral("a_b_c|d"));
    EXPECT_TRUE(HasSong("a_b_c|d"));
}

TEST_F(SongFileCommandsTest, RefusesTheNameOfAnySongTheOldOneToo)
{
    Put({"Rain", "Zumi"});
    Open(SongSelMode::Open);
    ClickRow(1);
    for (const char* taken : {"RAIN", "zumi", "Zumi"}) {
        Told told;
        WithNextForm([&told, taken](BandedForm& box) {
            auto* input = box.findChild<QLineEdit*>(QStringLiteral("InputTxt"));
            input->setText(QString::fromLatin1(taken));
            WithNextForm([&told](BandedForm& refusal) {
                told = {refusal.findChild<QLabel*>(QStringLiteral("CaptionLbl"))->text(),
                        refusal.findChild<QLabel*>(QStringLiteral("NoteLbl1"))->text(),
                        refusal.findChild<QLabel*>(QStringLiteral("NoteLbl2"))->text(),
                        {}};
                Click(refusal, "OkBtn");
            });
            Click(box, "OkBtn");
        });
        Click(form, "RenameBtn");
        EXPECT_EQ(told, (Told{QStringLiteral(" Rename Failed"),
                              QStringLiteral("A song with this name already exists"),
                              QString::fromLatin1(taken),
                              {}}));
    }
    EXPECT_TRUE(HasSong("Rain"));
    EXPECT_TRUE(HasSong("Zumi"));
}

TEST_F(SongFileCommandsTest, ANewNameThatAHiddenThingHasIsAnErrorAndReplacesNothing)
{
    Put({"Zumi"});
    fs::create_directory(songFolder / "Rain.TqSng");
    Open(SongSelMode::Open);
    ClickRow(0);
    Rename(QStringLiteral("Rain"));
    EXPECT_THAT(services.messages.shown,
                ElementsAre(FakeMessages::Shown{"", "Error Renaming file\r\nThere is another file with this name."}));
    EXPECT_TRUE(HasSong("Zumi"));
    EXPECT_TRUE(form.isVisible());
}

TEST_F(SongFileCommandsTest, ASongThatIsGoneIsToldAndLeavesTheList)
{
    Put({"Rain", "Zumi"});
    Open(SongSelMode::Open);
    ClickRow(0);
    fs::remove(songFolder / "Rain.TqSng");
    Click(form, "CopyBtn");
    ASSERT_EQ(services.messages.shown.size(), 1U);
    EXPECT_THAT(services.messages.shown.front().text, testing::StartsWith("Error Copying file\r\n"));
    EXPECT_THAT(Lines(), ElementsAre(QStringLiteral("Zumi")));
}

TEST_F(SongFileCommandsTest, ASongOfTheClassIsCopiedToTheOwnOnesAndStaysAsItIs)
{
    Shared().ClassRoot = songFolder.parent_path().parent_path() / "class" / "";
    const fs::path song = Shared().ClassRoot / "Songs" / "Rain.TqSng";
    fs::create_directories(song.parent_path());
    WriteBytes(song, "of all");
    Put({"Zumi"});
    Open(SongSelMode::Open);
    EXPECT_THAT(Lines(), ElementsAre(QStringLiteral("Rain"), QStringLiteral("Zumi")));
    ClickRow(0);
    EXPECT_FALSE(Part("DeleteBtn").isVisible());
    EXPECT_EQ(ClickAndAnswer("RenameBtn", "OkBtn"), (Told{kTitle,
                                                          QStringLiteral("This song is for the whole class."),
                                                          QStringLiteral("It can be copied, but not renamed."),
                                                          {}}));
    EXPECT_EQ(ClickAndAnswer("CopyBtn", "OkBtn"),
              (Told{kTitle, QStringLiteral("The song \"Rain\""), QStringLiteral("is copied to \"Rain1\""), {}}));
    EXPECT_EQ(ReadBytes(songFolder / "Rain1.TqSng"), "of all");
    EXPECT_EQ(ReadBytes(song), "of all");
    EXPECT_EQ(std::distance(fs::directory_iterator(song.parent_path()), fs::directory_iterator()), 1);
    ClickRow(1);
    EXPECT_TRUE(Part("DeleteBtn").isVisible());
}

} // namespace
} // namespace sprout
