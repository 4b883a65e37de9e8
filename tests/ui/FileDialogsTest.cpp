// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/FileDialogs.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QTimer>

#include <functional>
#include <utility>

#include "core/Paths.h"
#include "support/FakeServices.h"

namespace sprout {
namespace {

class ChooseFileToOpenTest : public testing::Test {
protected:
    ChooseFileToOpenTest() { QApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }
    ~ChooseFileToOpenTest() override { QApplication::setAttribute(Qt::AA_DontUseNativeDialogs, false); }

    /// Asks, and runs `steps` with the dialog that stands then.
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
        const auto answer = ChooseFileToOpen(question);
        EXPECT_TRUE(stood);
        return answer;
    }

    FileQuestion Question() const
    {
        return {"Please select a .wav file to use", services.folder.Path(), "", "wav",
                "Wave files(*.wav)|*.wav|All files|*.*"};
    }

    FakeServices services;
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

TEST_F(ChooseFileToOpenTest, RefusesAFileThatIsNotThere)
{
    const auto missing = QFile::decodeName((services.folder.Path() / "missing.wav").c_str());
    EXPECT_EQ(Ask(Question(),
                  [&missing](QFileDialog& dialog) {
                      dialog.selectFile(missing);
                      QTimer::singleShot(0, qApp, [] { // the dialog tells of it in a box
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
    question.Filter = "Picture files(*.bmp;*.gif)|*.bmp;*.gif|All files|*.*";
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
    question.Filter = "Wave files|*.wav|All files|*.*|Other sounds|*.mp3;*.ogg";
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

} // namespace
} // namespace sprout
