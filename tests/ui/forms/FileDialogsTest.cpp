// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/forms/FileDialogs.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QTimer>

#include <functional>
#include <utility>

#include "base/FilePaths.h"
#include "support/FakeServices.h"
#include "ui/ModalSteps.h"

namespace sprout {
namespace {

class ChooseFileToOpenTest : public testing::Test {
protected:
    ChooseFileToOpenTest() { QApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }
    ~ChooseFileToOpenTest() override { QApplication::setAttribute(Qt::AA_DontUseNativeDialogs, false); }

    /// Asks, and runs `steps` with the dialog that opens.
    static std::optional<std::filesystem::path> Ask(const FileQuestion& question,
                                                    std::function<void(QFileDialog&)> steps)
    {
        bool stood = false;
        QTimer::singleShot(0, qApp, [&stood, steps = std::move(steps)] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            stood = dialog != nullptr;
            if (dialog)
                steps(*dialog);
        });
        const auto answer = choose(question);
        EXPECT_TRUE(stood);
        return answer;
    }

    FileQuestion Question() const
    {
        return {Words::Text("Please select a .wav file to use"), services.folder.Path(), "", "wav",
                Words::Text("Wave files(*.wav)|*.wav|All files|*.*")};
    }

    static inline std::optional<std::filesystem::path> (*choose)(const FileQuestion&) = ChooseFileToOpen;
    FakeServices services;
};

/// The same for saving a file.
class ChooseFileToSaveTest : public ChooseFileToOpenTest {
protected:
    ChooseFileToSaveTest() { choose = ChooseFileToSave; }
    ~ChooseFileToSaveTest() override { choose = ChooseFileToOpen; }
};

TEST_F(ChooseFileToOpenTest, ReturnsTheChosenFile)
{
    const auto file = services.folder.Path() / "Glöckchen.wav";
    WriteBytes(file, "wave");
    const auto answer = Ask(Question(), [&file](QFileDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Please select a .wav file to use"));
        EXPECT_EQ(dialog.fileMode(), QFileDialog::ExistingFile);
        dialog.selectFile(QFile::decodeName(file.c_str()));
        static_cast<QDialog&>(dialog).accept();
    });
    EXPECT_EQ(answer, file);
}

TEST_F(ChooseFileToOpenTest, ReturnsNothingWhenItIsCancelled)
{
    EXPECT_EQ(Ask(Question(), [](QFileDialog& dialog) { dialog.reject(); }), std::nullopt);
}

TEST_F(ChooseFileToOpenTest, LetsNoFileBeDraggedAway)
{
    Ask(Question(), [](QFileDialog& dialog) {
        const auto lists = dialog.findChildren<QAbstractItemView*>();
        EXPECT_FALSE(lists.isEmpty());
        for (const QAbstractItemView* list : lists) {
            EXPECT_FALSE(list->dragEnabled()) << list->objectName().toStdString();
            EXPECT_FALSE(list->acceptDrops()) << list->objectName().toStdString();
        }
        dialog.reject();
    });
}

TEST_F(ChooseFileToOpenTest, RefusesAFileThatIsNotThere)
{
    const auto missing = QFile::decodeName((services.folder.Path() / "missing.wav").c_str());
    EXPECT_EQ(Ask(Question(),
                  [&missing](QFileDialog& dialog) {
                      dialog.selectFile(missing);
                      QTimer::singleShot(0, qApp, [] { // the dialog reports it in a box
                          if (auto* box = QApplication::activeModalWidget())
                              box->close();
                      });
                      static_cast<QDialog&>(dialog).accept();
                      EXPECT_TRUE(dialog.isVisible());
                      dialog.reject();
                  }),
              std::nullopt);
}

TEST_F(ChooseFileToOpenTest, BeginsInTheFolderAskedForElseInTheOneLastShown)
{
    const auto here = services.folder.Path() / "here";
    const auto there = services.folder.Path() / "there";
    std::filesystem::create_directories(here);
    std::filesystem::create_directories(there);
    FileQuestion question = Question();
    question.Folder = AsFolder(here);
    Ask(question, [&](QFileDialog& dialog) {
        EXPECT_EQ(dialog.directory().absolutePath(), QFile::decodeName(here.c_str()));
        dialog.setDirectory(QFile::decodeName(there.c_str()));
        dialog.reject();
    });
    for (const std::filesystem::path& none : {std::filesystem::path(), services.folder.Path() / "gone"}) {
        question.Folder = none;
        Ask(question, [&](QFileDialog& dialog) {
            EXPECT_EQ(dialog.directory().absolutePath(), QFile::decodeName(there.c_str()));
            dialog.reject();
        });
    }
}

TEST_F(ChooseFileToOpenTest, OffersTheKindsOfFilesInAnyLetterCase)
{
    FileQuestion question = Question();
    question.Filter = Words::AsIs("Picture files(*.bmp;*.gif)|*.bmp;*.gif|All files|*.*");
    Ask(question, [](QFileDialog& dialog) {
        EXPECT_EQ(dialog.nameFilters(),
                  (QStringList{QStringLiteral("Picture files(*.bmp;*.gif) (*.[bB][mM][pP] *.[gG][iI][fF])"),
                               QStringLiteral("All files (*)")}));
        EXPECT_TRUE(dialog.selectedNameFilter().startsWith(QStringLiteral("Picture files")));
        EXPECT_TRUE(dialog.testOption(QFileDialog::HideNameFilterDetails));
        EXPECT_EQ(dialog.defaultSuffix(), QStringLiteral("wav"));
        dialog.reject();
    });
    EXPECT_TRUE(QDir::match(QStringLiteral("*.[bB][mM][pP]"), QStringLiteral("Drum.BMP")));
    EXPECT_FALSE(QDir::match(QStringLiteral("*.[bB][mM][pP]"), QStringLiteral("Drum.wav")));
}

TEST_F(ChooseFileToOpenTest, SelectsTheFilterThatIsAskedFor)
{
    FileQuestion question = Question();
    question.Filter = Words::AsIs("Wave files|*.wav|All files|*.*|Other sounds|*.mp3;*.ogg");
    question.FilterIndex = 3;
    Ask(question, [](QFileDialog& dialog) {
        EXPECT_TRUE(dialog.selectedNameFilter().startsWith(QStringLiteral("Other sounds")));
        dialog.reject();
    });
}

TEST_F(ChooseFileToOpenTest, IsAnsweredByAStandInAsLongAsItLives)
{
    const FileChooserStandIn outer([](const FileQuestion& question) {
        EXPECT_EQ(question.DefaultExtension, "wav");
        return std::filesystem::path("/outer.wav");
    });
    {
        const FileChooserStandIn inner([](const FileQuestion&) { return std::nullopt; });
        EXPECT_EQ(ChooseFileToOpen(Question()), std::nullopt);
    }
    EXPECT_EQ(ChooseFileToOpen(Question()), std::filesystem::path("/outer.wav"));
}

TEST_F(ChooseFileToSaveTest, OffersANameAndReturnsWhatIsTyped)
{
    FileQuestion question = Question();
    question.FileName = "Zumi.wav";
    const auto answer = Ask(question, [](QFileDialog& dialog) {
        EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptSave);
        auto* name = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        EXPECT_EQ(name->text(), QStringLiteral("Zumi.wav"));
        name->setText(QStringLiteral("Mine"));
        static_cast<QDialog&>(dialog).accept();
    });
    EXPECT_EQ(answer, services.folder.Path() / "Mine.wav");
}

TEST_F(ChooseFileToSaveTest, LeavesTheQuestionOfOverwritingToItsCaller)
{
    const auto file = services.folder.Path() / "Zumi.wav";
    WriteBytes(file, "wave");
    FileQuestion question = Question();
    question.FileName = "Zumi.wav";
    EXPECT_EQ(Ask(question, [](QFileDialog& dialog) { static_cast<QDialog&>(dialog).accept(); }), file);
}

TEST_F(ChooseFileToSaveTest, AsksAgainWhereTheFolderIsNotThere)
{
    int asked = 0;
    const FileChooserStandIn dialog([&](const FileQuestion& question) -> std::optional<std::filesystem::path> {
        if (asked++ == 0)
            return services.folder.Path() / "gone" / "Zumi.wav";
        EXPECT_EQ(question.FileName, "Zumi.wav");
        return std::nullopt;
    });
    QString note;
    WithNextForm([&note](BandedForm& form) {
        note = form.findChild<QLabel*>(QStringLiteral("NoteLbl1"))->text();
        Click(form, "OkBtn");
    });
    EXPECT_EQ(ChooseFileToSave(Question()), std::nullopt);
    EXPECT_EQ(note, QStringLiteral("This folder is not there."));
    EXPECT_EQ(asked, 2);
}

TEST_F(ChooseFileToSaveTest, TakesABareName)
{
    const FileChooserStandIn dialog([](const FileQuestion&) { return std::filesystem::path("bare.wav"); });
    EXPECT_EQ(ChooseFileToSave(Question()), std::filesystem::path("bare.wav"));
}

} // namespace
} // namespace sprout
