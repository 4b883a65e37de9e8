// SPDX-License-Identifier: GPL-3.0-or-later
#include "song_window/SongSelFrmTest.h"

#include "core/Settings.h"
#include "support/Flags.h"
#include "ui/forms/FileDialogs.h"
#include "ui/help/OpenedHelp.h"
#include "waves/WavOperations.h"

namespace sprout {
namespace {

using testing::ElementsAre;

TEST_F(SongSelFrmTest, ShowsTheListAloneToOpenASong)
{
    Put({"Rain", "apple", "Zumi"});
    Open(SongSelMode::Open);
    EXPECT_EQ(LabelText("CaptionLbl"), QStringLiteral(" Open song"));
    EXPECT_EQ(LabelText("ListTitleLbl"), QStringLiteral(" Select a song and click OK to open"));
    EXPECT_THAT(Lines(), ElementsAre(QStringLiteral("apple"), QStringLiteral("Rain"), QStringLiteral("Zumi")));
    for (const char* hidden : {"TextTitleLbl", "SongNmLbl", "SongNameTxt", "SavWavBtn", "SavWmaBtn"})
        EXPECT_FALSE(Part(hidden).isVisible()) << hidden;
    EXPECT_EQ(List().height(), 257);
    EXPECT_EQ(List().y() - kBandHeight, 56);
    EXPECT_EQ(Part("ListTitleLbl").y() - kBandHeight, 32);
}

TEST_F(SongSelFrmTest, ShowsANameBoxAndTheSoundFilesToSaveASong)
{
    Open(SongSelMode::Save);
    EXPECT_EQ(LabelText("CaptionLbl"), QStringLiteral(" Save song"));
    EXPECT_EQ(LabelText("ListTitleLbl"), QStringLiteral(" List of available songs"));
    EXPECT_EQ(LabelText("TextTitleLbl"), QStringLiteral(" Check the song name and Click OK to save"));
    for (const char* shown : {"TextTitleLbl", "SongNmLbl", "SongNameTxt", "SavWavBtn", "SavWmaBtn"})
        EXPECT_TRUE(Part(shown).isVisible()) << shown;
    EXPECT_EQ(NameBox().text(), QStringLiteral("Zumi"));
    EXPECT_TRUE(NameBox().hasFocus());
    EXPECT_EQ(List().height(), 211);
    EXPECT_EQ(List().y() - kBandHeight, 44);
    EXPECT_EQ(Part("ListTitleLbl").y() - kBandHeight, 20);
}

TEST_F(SongSelFrmTest, HasNoSoundFilesWhereTheyAreSwitchedOff)
{
    PutSetting("General", "HideExport", "1");
    Open(SongSelMode::Save);
    EXPECT_FALSE(Part("SavWavBtn").isVisible());
    EXPECT_FALSE(Part("SavWmaBtn").isVisible());
    PutSetting("General", "HideExport", "0");
    Open(SongSelMode::Save);
    EXPECT_TRUE(Part("SavWavBtn").isVisible());
}

TEST_F(SongSelFrmTest, HasNoDeleteForASuppliedSongWhereThatIsSwitchedOff)
{
    Put({"Mine", "Zumi"});
    Shared().InstallSongs = songFolder.parent_path() / "installed" / "";
    std::filesystem::create_directories(Shared().InstallSongs);
    WriteBytes(Shared().InstallSongs / "zumi.TqSng", "supplied");
    for (const bool isHidden : {true, false}) {
        PutSetting("General", "HideDeleteSupplied", isHidden ? "1" : "0");
        Open(SongSelMode::Open);
        EXPECT_TRUE(Part("DeleteBtn").isVisible());
        List().setCurrentRow(1);
        EXPECT_EQ(Part("DeleteBtn").isVisible(), !isHidden);
        List().setCurrentRow(0);
        EXPECT_TRUE(Part("DeleteBtn").isVisible());
    }
}

TEST_F(SongSelFrmTest, HasNoDeleteForTheSuppliedSongBehindADeletedOne)
{
    Put({"Mine", "Zumi"});
    Shared().InstallSongs = songFolder.parent_path() / "installed" / "";
    std::filesystem::create_directories(Shared().InstallSongs);
    WriteBytes(Shared().InstallSongs / "Zumi.TqSng", "supplied");
    PutSetting("General", "HideDeleteSupplied", "1");
    Open(SongSelMode::Open);
    List().setCurrentRow(0);
    ClickAndAnswer("DeleteBtn", "YesBtn");
    EXPECT_EQ(Selected(), QStringLiteral("Zumi"));
    EXPECT_FALSE(Part("DeleteBtn").isVisible());
}

TEST_F(SongSelFrmTest, ShowsANameBoxWithoutSoundFilesForANewSong)
{
    Open(SongSelMode::New);
    EXPECT_EQ(LabelText("CaptionLbl"), QStringLiteral(" New song"));
    EXPECT_EQ(LabelText("ListTitleLbl"), QStringLiteral(" List of available songs"));
    EXPECT_EQ(LabelText("TextTitleLbl"), QStringLiteral(" Type the song name here and click OK"));
    EXPECT_TRUE(NameBox().isVisible());
    EXPECT_FALSE(Part("SavWavBtn").isVisible());
    EXPECT_FALSE(Part("SavWmaBtn").isVisible());
    EXPECT_EQ(List().height(), 211);
    EXPECT_EQ(List().y() - kBandHeight, 44);
}

TEST_F(SongSelFrmTest, NoControlLiesOnAnotherInAnyMode)
{
    for (const SongSelMode mode : {SongSelMode::Open, SongSelMode::Save, SongSelMode::New}) {
        Open(mode);
        QList<QWidget*> controls{&List(), &NameBox(), &Part("ListTitleLbl"), &Part("TextTitleLbl"), &Part("SongNmLbl")};
        for (ImageButton* button : form.findChildren<ImageButton*>())
            controls.push_back(button);
        for (const QWidget* a : controls) {
            EXPECT_TRUE(!a->isVisible() || form.rect().contains(a->geometry())) << a->objectName().toStdString();
            for (const QWidget* b : controls)
                EXPECT_FALSE(a != b && a->isVisible() && b->isVisible() && a->geometry().intersects(b->geometry()))
                    << a->objectName().toStdString() << " and " << b->objectName().toStdString();
        }
    }
}

TEST_F(SongSelFrmTest, CancelCloseBoxEscapeAndTheSystemCloseWithoutOk)
{
    const auto closes = [this](const std::function<void()>& close) {
        Open(SongSelMode::Save);
        ShowHint(Words::AsIs("A hint"));
        close();
        return !form.isVisible() && !form.Ok && statusLbl.text().isEmpty();
    };
    EXPECT_TRUE(closes([this] { Click(form, "CancelBtn"); }));
    EXPECT_TRUE(closes([this] { Click(form, "CloseImgBtn"); }));
    EXPECT_TRUE(closes([this] { QTest::keyClick(&NameBox(), Qt::Key_Escape); }));
    EXPECT_TRUE(closes([this] { form.close(); }));
}

TEST_F(SongSelFrmTest, ShowsTheHintsOfItsControls)
{
    struct Row {
        SongSelMode mode;
        const char* control;
        const char* hint;
    };
    constexpr auto open = SongSelMode::Open;
    constexpr auto save = SongSelMode::Save;
    for (const Row& row : std::initializer_list<Row>{
             {open, "CopyBtn", "Copy button, select a song and use this button to copy it to make one more"},
             {open, "DeleteBtn", "Delete button, select a song and use this button to delete it"},
             {open, "RenameBtn", "Rename button, select a song and use this button to change it's name"},
             {open, "OkBtn", "Click Ok to open the selected song"},
             {save, "OkBtn", "Click Ok to save the song to the name entered"},
             {SongSelMode::New, "OkBtn", "Click Ok to create a new song with the name entered"},
             {save, "SongNameTxt", "Type your song name here"},
             {save, "SavWavBtn", "Select wav file name to save the song as audio (.wav) file"},
             {save, "SavWmaBtn", "Select wma file name to save the song as audio (.wma) file"},
             {save, "CancelBtn", ""},
             {save, "HelpBtn", ""},
             {save, "ModePic", ""},
             {save, "ListTitleLbl", ""},
             {save, "TextTitleLbl", ""},
             {save, "SongNmLbl", ""}}) {
        Open(row.mode);
        statusLbl.setText(QStringLiteral("before"));
        QTest::mouseMove(&Part(row.control), QPoint(20, 12));
        EXPECT_EQ(statusLbl.text(), QString::fromLatin1(row.hint));
        EXPECT_EQ(Part(row.control).accessibleDescription(), QString::fromLatin1(row.hint));
        QTest::mouseMove(&form, QPoint(3, 200));
        EXPECT_EQ(statusLbl.text(), QString());
    }
}

TEST_F(SongSelFrmTest, ASoundFileHidesTheWindowWithoutSavingASong)
{
    Shared().Song.SongMix = EmptyWave();
    SetSongMixValid(Shared().Song, true);
    const FileChooserStandIn dialog([this](const FileQuestion&) { return services.folder.Path() / "Mine"; });
    for (const char* button : {"SavWavBtn", "SavWmaBtn"}) {
        Open(SongSelMode::Save);
        const Told told = ClickAndAnswer(button, "OkBtn");
        EXPECT_THAT(told.line1.toStdString(), testing::StartsWith("Failed to save the song as audio")) << button;
        EXPECT_FALSE(form.isVisible());
        EXPECT_FALSE(form.Ok);
        EXPECT_EQ(statusLbl.text(), QString());
    }
}

TEST_F(SongSelFrmTest, ACancelledSoundFileLeavesTheWindowOpen)
{
    Open(SongSelMode::Save);
    const FileChooserStandIn dialog([](const FileQuestion&) { return std::nullopt; });
    Click(form, "SavWavBtn");
    Click(form, "SavWmaBtn");
    EXPECT_TRUE(form.isVisible());
}

TEST_F(SongSelFrmTest, HelpAndF1OpenTheHelp)
{
    Open(SongSelMode::Save);
    EXPECT_EQ(HelpPageOpenedBy(form, [this] { Click(form, "HelpBtn"); }), "Your songs");
    EXPECT_EQ(HelpPageOpenedBy(form, [this] { QTest::keyClick(&NameBox(), Qt::Key_F1); }), "Your songs");
}

TEST_F(SongSelFrmTest, TabGoesThroughAllItsControls)
{
    Open(SongSelMode::Save);
    QStringList order;
    QWidget* start = form.focusWidget();
    do {
        order.push_back(form.focusWidget()->objectName());
        QTest::keyClick(form.focusWidget(), Qt::Key_Tab);
    } while (form.focusWidget() != start && order.size() < 20);
    EXPECT_EQ(order.join(QLatin1Char(' ')),
              QStringLiteral("SongNameTxt OkBtn CancelBtn CopyBtn DeleteBtn RenameBtn HelpBtn SavWavBtn SavWmaBtn "
                             "SngNmLst"));
}

TEST_F(SongSelFrmTest, ArrowsPassOverButtonsThatAreHidden)
{
    Open(SongSelMode::Open);
    List().clearFocus();
    QTest::keyClick(&form, Qt::Key_Left);
    EXPECT_EQ(form.focusWidget(), &Part("HelpBtn"));
}

} // namespace
} // namespace sprout
