// SPDX-License-Identifier: GPL-3.0-or-later
// What happens when the main window is closed.
#include <QSignalSpy>

#include "main_window/MainWindowTest.h"
#include "support/Flags.h"

namespace sprout {
namespace {

class MainClosingTest : public MainWindowTest {};

TEST_F(MainClosingTest, ShutsTheSoundWhenItCloses)
{
    SetSoundDriver(true);
    PlayWaveStatus(Shared().TestTone, Words::Text("Playing"), Loop::No);
    ASSERT_EQ(PlayShared().SoundDriver, 1);
    window->close();
    EXPECT_EQ(PlayShared().SoundDriver, 0);
    EXPECT_EQ(fake.sound.open, 0);
}

TEST_F(MainClosingTest, StaysWhereTheSaveQuestionIsCancelled)
{
    SetSongChanged(Song(), true);
    QSignalSpy unloaded(window.get(), &MainFrm::Unloaded);
    WithNextForm([](BandedForm& form) { Click(form, "Cancel_Btn"); });
    ClickButton("CloseImgBtn");
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(unloaded.count(), 0);
    EXPECT_TRUE(Song().SongChanged);
    EXPECT_EQ(Song().SongTitle, "Untitled");
}

TEST_F(MainClosingTest, ComesUpWithTheSaveQuestionWhereItIsClosedMinimized)
{
    SetSongChanged(Song(), true);
    window->showMinimized();
    WithNextForm([this](BandedForm& form) {
        EXPECT_FALSE(window->isMinimized());
        Click(form, "Cancel_Btn");
    });
    window->close();
    EXPECT_TRUE(window->isVisible());
    EXPECT_FALSE(window->isMinimized());
}

TEST_F(MainClosingTest, ClosesWithoutSavingWhereTheSaveQuestionIsAnsweredNo)
{
    SetSongChanged(Song(), true);
    WithNextForm([](BandedForm& form) { Click(form, "NoBtn"); });
    window->close();
    EXPECT_FALSE(window->isVisible());
    EXPECT_FALSE(std::filesystem::exists(SongPath("Untitled")));
}

TEST_F(MainClosingTest, SavesTheSongAndClosesWhereTheSaveQuestionIsAnsweredYes)
{
    SetSongChanged(Song(), true);
    WithNextForm([](BandedForm& form) { Click(form, "YesBtn"); });
    window->close();
    EXPECT_FALSE(window->isVisible());
    EXPECT_TRUE(std::filesystem::exists(SongPath("Untitled")));
}

TEST_F(MainClosingTest, StaysWhereTheSongCannotBeSaved)
{
    SetSongChanged(Song(), true);
    std::filesystem::remove_all(Shared().UserSongs);
    WriteBytes(Shared().UserSongs.parent_path(), "no folder, and none can be made here");
    ShownMessage message;
    WithNextForm([&message](BandedForm& form) {
        NoteNextMessage(message);
        Click(form, "YesBtn");
    });
    window->close();
    EXPECT_TRUE(window->isVisible());
    EXPECT_TRUE(Song().SongChanged);
    EXPECT_TRUE(message.line1.startsWith(QStringLiteral("Error Saving file\r\n"))) << qPrintable(message.line1);
}

} // namespace
} // namespace sprout
