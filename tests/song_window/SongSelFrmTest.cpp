// SPDX-License-Identifier: GPL-3.0-or-later
#include "song_window/SongSelFrm.h"

#include <gmock/gmock.h>

#include <QClipboard>

#include "core/Shared.h"
#include "service/Services.h"
#include "support/FakeServices.h"
#include "support/Flags.h"
#include "support/FullDisk.h"
#include "support/TestFolder.h"
#include "support/UnchangeableFolder.h"
#include "ui/FileDialogs.h"
#include "ui/HelpFrm.h"
#include "ui/ModalSteps.h"
#include "waves/WavOperations.h"

namespace sprout {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

namespace fs = std::filesystem;

/// What a message or a question showed.
struct Told {
    QString caption, line1, line2, hint;
    friend bool operator==(const Told&, const Told&) = default;
    friend std::ostream& operator<<(std::ostream& out, const Told& told)
    {
        return out << QStringList{told.caption, told.line1, told.line2, told.hint}.join(QLatin1Char('/')).toStdString();
    }
};

/// Songs in their own folder, with "Zumi" open, and a status line.
class SongSelFrmTest : public testing::Test {
protected:
    SongSelFrmTest()
    {
        fs::create_directory(songFolder);
        Shared().UserSongs = songFolder / "";
        Shared().Song.SongTitle = "Zumi";
        SetStatusLbl(&statusLbl);
    }

    void Put(std::initializer_list<const char*> names)
    {
        for (const char* name : names)
            WriteBytes(songFolder / (std::string(name) + ".TqSng"), name);
    }

    void Open(SongSelMode mode)
    {
        form.InitilizeThisWindow(mode);
        form.Ok = false;
        if (mode == SongSelMode::Save)
            form.SetSongName(Shared().Song.SongTitle);
        form.show();
        QApplication::setActiveWindow(&form);
    }

    template <class Control = QWidget>
    Control& Part(const char* name)
    {
        return *form.findChild<Control*>(QString::fromLatin1(name));
    }

    QListWidget& List() { return Part<QListWidget>("SngNmLst"); }
    QLineEdit& NameBox() { return Part<QLineEdit>("SongNameTxt"); }
    QString LabelText(const char* name) { return Part<QLabel>(name).text(); }

    QStringList Lines()
    {
        QStringList lines;
        for (int row = 0; row < List().count(); ++row)
            lines.push_back(List().item(row)->text());
        return lines;
    }

    QPoint MiddleOf(int row) { return List().visualItemRect(List().item(row)).center(); }
    void ClickRow(int row) { QTest::mouseClick(List().viewport(), Qt::LeftButton, {}, MiddleOf(row)); }

    QString Selected()
    {
        const QList<QListWidgetItem*> selected = List().selectedItems();
        return selected.isEmpty() ? QString() : selected.front()->text();
    }

    /// Clicks a button of the window, and another one of the message or question that follows.
    Told ClickAndAnswer(const char* button, const char* answer)
    {
        Told told;
        WithNextForm([&told, answer, this](BandedForm& box) {
            const auto text = [&box](const char* label) {
                const auto* found = box.findChild<QLabel*>(QString::fromLatin1(label));
                return found ? found->text() : QString();
            };
            told = {text("CaptionLbl"), text("NoteLbl1").isEmpty() ? text("NoteLbl") : text("NoteLbl1"),
                    text("NoteLbl2"), statusLbl.text()};
            sprout::Click(box, answer);
        });
        sprout::Click(form, button);
        return told;
    }

    /// Clicks `RenameBtn` and types a name into the question.
    void Rename(const QString& newName)
    {
        WithNextForm([newName](BandedForm& box) {
            auto* input = box.findChild<QLineEdit*>(QStringLiteral("InputTxt"));
            input->clear();
            QTest::keyClicks(input, newName);
            sprout::Click(box, "OkBtn");
        });
        sprout::Click(form, "RenameBtn");
    }

    [[nodiscard]] bool HasSong(const char* name) const
    {
        return fs::exists(songFolder / (std::string(name) + ".TqSng"));
    }

    FakeServices services;
    fs::path songFolder = services.folder.Path() / "Songs";
    QLabel statusLbl;
    SongSelFrm form{nullptr};
};

const QString kTitle = QStringLiteral(" Tonquill Sprout Painter");
const QString kSelectOne = QStringLiteral("Click on the song name in the list to select one");

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

TEST_F(SongSelFrmTest, ShowsOnlyWholeLinesOfALongList)
{
    for (int i = 0; i < 60; ++i)
        Put({("Song " + std::to_string(i)).c_str()});
    Open(SongSelMode::Open);
    const int line = List().visualItemRect(List().item(0)).height();
    EXPECT_GT(List().viewport()->height(), 2 * line);
    EXPECT_EQ(List().viewport()->height() % line, 0);
    List().scrollToBottom();
    EXPECT_EQ(List().visualItemRect(List().item(59)).bottom() + 1, List().viewport()->height());
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

TEST_F(SongSelFrmTest, WithoutSongsTellsSoAndOpensNothing)
{
    Open(SongSelMode::Open);
    EXPECT_THAT(Lines(), ElementsAre(QStringLiteral("No song found")));
    ClickRow(0);
    EXPECT_EQ(Selected(), QString());
    EXPECT_EQ(ClickAndAnswer("OkBtn", "OkBtn"), (Told{kTitle, QStringLiteral("Song not selected."), {}, kSelectOne}));
    EXPECT_EQ(statusLbl.text(), QString());
    EXPECT_TRUE(form.isVisible());
    EXPECT_FALSE(form.Ok);
}

TEST_F(SongSelFrmTest, WithoutSongsShowsABlankLineToSaveOrToNameOne)
{
    for (const SongSelMode mode : {SongSelMode::Save, SongSelMode::New}) {
        Open(mode);
        EXPECT_THAT(Lines(), ElementsAre(QStringLiteral(" ")));
        const QString name = NameBox().text();
        ClickRow(0);
        QTest::keyClick(&List(), Qt::Key_Down);
        EXPECT_EQ(Selected(), QString());
        EXPECT_EQ(NameBox().text(), name);
    }
}

TEST_F(SongSelFrmTest, OpensTheSelectedSongOnly)
{
    Put({"Rain", "Zumi"});
    Open(SongSelMode::Open);
    EXPECT_EQ(ClickAndAnswer("OkBtn", "OkBtn").line1, QStringLiteral("Song not selected."));
    ClickRow(1);
    ShowHint(QStringLiteral("A hint"));
    QTest::keyClick(&List(), Qt::Key_Return);
    EXPECT_EQ(statusLbl.text(), QString());
    EXPECT_FALSE(form.isVisible());
    EXPECT_TRUE(form.Ok);
    EXPECT_EQ(form.ChosenName, "Zumi");
}

TEST_F(SongSelFrmTest, ADoubleClickOpensTheSong)
{
    Put({"Rain", "Zumi"});
    Open(SongSelMode::Open);
    ClickRow(0);
    QTest::mouseDClick(List().viewport(), Qt::LeftButton, {}, MiddleOf(0));
    EXPECT_TRUE(form.Ok);
    EXPECT_EQ(form.ChosenName, "Rain");
}

TEST_F(SongSelFrmTest, ArrowsTypingAndEnterOpenASong)
{
    Put({"Apple", "Rain", "Zumi"});
    Open(SongSelMode::Open);
    ASSERT_TRUE(List().hasFocus());
    QTest::keyClick(&List(), Qt::Key_Down);
    EXPECT_EQ(Selected(), QStringLiteral("Apple"));
    QTest::keyClick(&List(), Qt::Key_Down);
    EXPECT_EQ(Selected(), QStringLiteral("Rain"));
    QTest::keyClicks(&List(), QStringLiteral("zu"));
    EXPECT_EQ(Selected(), QStringLiteral("Zumi"));
    QTest::keyClick(&List(), Qt::Key_Down); // the last line keeps the selection and the focus
    EXPECT_EQ(Selected(), QStringLiteral("Zumi"));
    EXPECT_TRUE(List().hasFocus());
    QTest::keyClick(&List(), Qt::Key_Return);
    EXPECT_TRUE(form.Ok);
    EXPECT_EQ(form.ChosenName, "Zumi");
}

TEST_F(SongSelFrmTest, KeepsTheBytesOfANameThatIsNoUtf8)
{
    WriteBytes(songFolder / "caf\xE9.TqSng", "x");
    Open(SongSelMode::Open);
    ClickRow(0);
    Click(form, "OkBtn");
    EXPECT_EQ(form.ChosenName, "caf\xE9");
}

TEST_F(SongSelFrmTest, TypedCharactersThatNoFileNameMayHoldBecomeUnderscoresAtOnce)
{
    Open(SongSelMode::Save);
    NameBox().clear();
    QTest::keyClicks(&NameBox(), QStringLiteral("a.b"));
    EXPECT_EQ(NameBox().text(), QStringLiteral("a_b"));
    NameBox().clear();
    QTest::keyClicks(&NameBox(), QStringLiteral("./\\:*?\"<>,|'"));
    EXPECT_EQ(NameBox().text(), QStringLiteral("_________,|'"));
}

TEST_F(SongSelFrmTest, TheCaretStaysWhereItWasTyped)
{
    Open(SongSelMode::Save);
    NameBox().setText(QStringLiteral("Zumi"));
    NameBox().setCursorPosition(2);
    QTest::keyClicks(&NameBox(), QStringLiteral("?"));
    EXPECT_EQ(NameBox().text(), QStringLiteral("Zu_mi"));
    EXPECT_EQ(NameBox().cursorPosition(), 3);
    QApplication::clipboard()->setText(QStringLiteral("a:b"));
    NameBox().paste();
    EXPECT_EQ(NameBox().text(), QStringLiteral("Zu_a_bmi"));
    EXPECT_EQ(NameBox().cursorPosition(), 6);
}

TEST_F(SongSelFrmTest, ANameHasNoLengthLimit)
{
    Open(SongSelMode::New);
    NameBox().setText(QString(40'000, QLatin1Char('a')));
    EXPECT_EQ(NameBox().text().size(), 40'000);
}

TEST_F(SongSelFrmTest, AClickOnALinePutsItsNameIntoTheBox)
{
    Put({"Rain", "Zumi"});
    Open(SongSelMode::Save);
    ClickRow(0);
    EXPECT_EQ(NameBox().text(), QStringLiteral("Rain"));
    QTest::keyClicks(&NameBox(), QStringLiteral(" 2"));
    ClickRow(0); // the same line again
    EXPECT_EQ(NameBox().text(), QStringLiteral("Rain"));
}

TEST_F(SongSelFrmTest, ArrowsInTheNameBoxGoThroughTheList)
{
    Put({"Rain", "Zumi"});
    Open(SongSelMode::Save);
    QTest::keyClick(&NameBox(), Qt::Key_Down);
    QTest::keyClick(&NameBox(), Qt::Key_Down);
    EXPECT_EQ(Selected(), QStringLiteral("Zumi"));
    EXPECT_EQ(NameBox().text(), QStringLiteral("Zumi"));
    QTest::keyClick(&NameBox(), Qt::Key_Up);
    EXPECT_EQ(NameBox().text(), QStringLiteral("Rain"));
    EXPECT_TRUE(NameBox().hasFocus());
}

TEST_F(SongSelFrmTest, ABlankNameIsAskedForAgain)
{
    Open(SongSelMode::Save);
    NameBox().setText(QStringLiteral("  "));
    EXPECT_EQ(ClickAndAnswer("OkBtn", "OkBtn"), (Told{kTitle,
                                                      QStringLiteral("Please enter a song name."),
                                                      {},
                                                      QStringLiteral("Type a name in song name text box")}));
    EXPECT_EQ(statusLbl.text(), QString());
    EXPECT_TRUE(form.isVisible());
    Open(SongSelMode::New);
    NameBox().clear();
    EXPECT_EQ(ClickAndAnswer("OkBtn", "OkBtn"), (Told{kTitle, QStringLiteral("Please enter a song name."), {}, {}}));
    EXPECT_FALSE(form.Ok);
}

TEST_F(SongSelFrmTest, SavingOverTheOwnFileInAnotherCaseAsksNothing)
{
    Put({"Zumi"});
    Shared().Song.OwnFile = MarkOf(songFolder / "Zumi.TqSng");
    Open(SongSelMode::Save);
    NameBox().setText(QStringLiteral("ZUMI"));
    Click(form, "OkBtn");
    EXPECT_TRUE(form.Ok);
    EXPECT_EQ(form.ChosenName, "ZUMI");
}

TEST_F(SongSelFrmTest, SavingOverAFileThatTheSongIsNotFromAsksUnderItsTitleTooAndEnterSaysNo)
{
    Put({"Zumi"});
    Open(SongSelMode::Save);
    QString asked;
    WithNextForm([&asked](BandedForm& question) {
        asked = question.findChild<QLabel*>(QStringLiteral("NoteLbl1"))->text();
        QTest::keyClick(question.focusWidget(), Qt::Key_Return);
    });
    QTest::keyClick(&NameBox(), Qt::Key_Return);
    EXPECT_EQ(asked, QStringLiteral("A song with this name already exists: Zumi"));
    EXPECT_TRUE(form.isVisible());
    EXPECT_FALSE(form.Ok);
}

TEST_F(SongSelFrmTest, EnterKeepsASongThatIsAskedAbout)
{
    Put({"Rain"});
    Open(SongSelMode::Open);
    ClickRow(0);
    WithNextForm([](BandedForm& question) { QTest::keyClick(question.focusWidget(), Qt::Key_Return); });
    Click(form, "DeleteBtn");
    EXPECT_TRUE(HasSong("Rain"));
}

TEST_F(SongSelFrmTest, SavingOverAnotherSongAsksFirst)
{
    Put({"Rain", "Zumi"});
    Open(SongSelMode::Save);
    NameBox().setText(QStringLiteral("rain"));
    EXPECT_EQ(ClickAndAnswer("OkBtn", "NoBtn"),
              (Told{kTitle, QStringLiteral("A song with this name already exists: rain"),
                    QStringLiteral("Do you wish to overwrite?"),
                    QStringLiteral("Recommended to click 'No' and then save with another name")}));
    EXPECT_EQ(statusLbl.text(), QString());
    EXPECT_TRUE(form.isVisible());
    EXPECT_FALSE(form.Ok);
    ClickAndAnswer("OkBtn", "CloseImgBtn");
    EXPECT_TRUE(form.isVisible());
    ClickAndAnswer("OkBtn", "YesBtn");
    EXPECT_TRUE(form.Ok);
    EXPECT_EQ(form.ChosenName, "rain");
}

TEST_F(SongSelFrmTest, AFreeNameIsTakenAsItWasTyped)
{
    Put({"Rain"});
    Open(SongSelMode::Save);
    NameBox().setText(QStringLiteral(" Snow "));
    QTest::keyClick(&NameBox(), Qt::Key_Return);
    EXPECT_TRUE(form.Ok);
    EXPECT_EQ(form.ChosenName, " Snow ");
}

TEST_F(SongSelFrmTest, ANewSongOfTheOpenTitleAsksIfThereIsAFileOfThatName)
{
    Put({"Zumi"});
    Open(SongSelMode::New);
    NameBox().setText(QStringLiteral("Zumi"));
    EXPECT_EQ(ClickAndAnswer("OkBtn", "NoBtn"), (Told{kTitle,
                                                      QStringLiteral("A song with this name already exists: Zumi"),
                                                      QStringLiteral("Do you wish to overwrite?"),
                                                      {}}));
    EXPECT_FALSE(form.Ok);
}

TEST_F(SongSelFrmTest, ANewSongOfTheOpenTitleAsksNothingIfThereIsNoFile)
{
    Put({"Rain"});
    Open(SongSelMode::New);
    NameBox().setText(QStringLiteral("Zumi"));
    Click(form, "OkBtn");
    EXPECT_TRUE(form.Ok);
    EXPECT_EQ(form.ChosenName, "Zumi");
}

TEST_F(SongSelFrmTest, CancelCloseBoxEscapeAndTheSystemCloseWithoutOk)
{
    const auto closes = [this](const std::function<void()>& close) {
        Open(SongSelMode::Save);
        ShowHint(QStringLiteral("A hint"));
        close();
        return !form.isVisible() && !form.Ok && statusLbl.text().isEmpty();
    };
    EXPECT_TRUE(closes([this] { Click(form, "CancelBtn"); }));
    EXPECT_TRUE(closes([this] { Click(form, "CloseImgBtn"); }));
    EXPECT_TRUE(closes([this] { QTest::keyClick(&NameBox(), Qt::Key_Escape); }));
    EXPECT_TRUE(closes([this] { form.close(); }));
}

TEST_F(SongSelFrmTest, ACopyIsNumberedBehindThoseThatAreThere)
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

TEST_F(SongSelFrmTest, ACopyLeavesTheTypedNameAndSelectsTheSameLine)
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

TEST_F(SongSelFrmTest, CopyDeleteAndRenameNeedASelection)
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

TEST_F(SongSelFrmTest, ACopyThatFailsIsToldAndLeavesNothing)
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

TEST_F(SongSelFrmTest, DeletingAsksFirst)
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

TEST_F(SongSelFrmTest, ADeleteThatFailsIsToldAndLeavesTheSong)
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

TEST_F(SongSelFrmTest, AfterTheLastLineIsDeletedTheNewLastOneIsSelected)
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

TEST_F(SongSelFrmTest, TheOpenSongsFileCanBeDeletedAndItsTitleStays)
{
    Put({"Zumi"});
    Open(SongSelMode::Open);
    ClickRow(0);
    ClickAndAnswer("DeleteBtn", "YesBtn");
    EXPECT_FALSE(HasSong("Zumi"));
    EXPECT_EQ(Shared().Song.SongTitle, "Zumi");
}

TEST_F(SongSelFrmTest, ARenamedSongIsSelectedUnderItsNewName)
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

TEST_F(SongSelFrmTest, RenamingStartsWithTheOldNameAndAnEmptyAnswerEndsIt)
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

TEST_F(SongSelFrmTest, ANewNameHoldsWhatAFileNameMayHold)
{
    Put({"Zumi"});
    Open(SongSelMode::Open);
    ClickRow(0);
    Rename(QStringLiteral("a.b/c|d"));
    EXPECT_EQ(Selected(), QStringLiteral("a_b_c|d"));
    EXPECT_TRUE(HasSong("a_b_c|d"));
}

TEST_F(SongSelFrmTest, RefusesTheNameOfAnySongTheOldOneToo)
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

TEST_F(SongSelFrmTest, ANewNameThatAHiddenThingHasIsAnErrorAndReplacesNothing)
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

TEST_F(SongSelFrmTest, ASongThatIsGoneIsToldAndLeavesTheList)
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

TEST_F(SongSelFrmTest, ShowsTheHintOfTheListByItsMode)
{
    for (const auto& [mode, hint] : {std::pair{SongSelMode::Open, "Click on a song name to select"},
                                     std::pair{SongSelMode::Save, "List of available songs"},
                                     std::pair{SongSelMode::New, "List of available songs"}}) {
        Open(mode);
        QTest::mouseMove(List().viewport(), QPoint(30, 40));
        EXPECT_EQ(statusLbl.text(), QString::fromLatin1(hint));
        EXPECT_EQ(List().accessibleDescription(), QString::fromLatin1(hint));
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
    const auto help = [] {
        for (QWidget* window : QApplication::topLevelWidgets())
            if (auto* found = qobject_cast<HelpFrm*>(window); found && found->isVisible())
                return found;
        return static_cast<HelpFrm*>(nullptr);
    };
    EXPECT_EQ(help(), nullptr);
    Click(form, "HelpBtn");
    ASSERT_NE(help(), nullptr);
    delete help();
    QTest::keyClick(&NameBox(), Qt::Key_F1);
    ASSERT_NE(help(), nullptr);
    delete help();
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
