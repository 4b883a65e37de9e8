// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/forms/FileDialogs.h"

#include <QAbstractItemView>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QStandardPaths>

#include <system_error>
#include <utility>
#include <vector>

#include "base/FilePaths.h"
#include "base/Text.h"
#include "core/Shared.h"
#include "ui/forms/Dialogs.h"
#include "ui/words/QtText.h"

namespace sprout {

namespace fs = std::filesystem;

namespace {

/// The current stand-ins for the dialog; the last one answers.
std::vector<FileChooserStandIn::Answer>& StandIns()
{
    static std::vector<FileChooserStandIn::Answer> answers;
    return answers;
}

QString& LastShownFolder()
{
    static QString folder;
    return folder;
}

/// Some desktops' dialogs are case-sensitive, so each letter matches both cases.
QString InAnyCase(std::string_view pattern)
{
    if (pattern == "*.*")
        return QStringLiteral("*"); // also names without a dot
    QString any;
    for (const QChar letter : QtText(pattern)) {
        if (letter.isLetter())
            any += QStringLiteral("[%1%2]").arg(letter.toLower(), letter.toUpper());
        else
            any += letter;
    }
    return any;
}

QString FileNameFilter(const std::string& name, const std::string& patterns)
{
    QStringList list;
    for (const std::string& pattern : Split(patterns, ';'))
        list << InAnyCase(Trim(pattern));
    return QStringLiteral("%1 (%2)").arg(QtText(name), list.join(QLatin1Char(' ')));
}

QStringList FileNameFilters(const std::string& filter)
{
    const std::vector<std::string> parts = Split(filter, '|');
    QStringList filters;
    for (std::size_t i = 0; i + 1 < parts.size(); i += 2)
        filters << FileNameFilter(parts[i], parts[i + 1]);
    return filters;
}

QString DocumentsFolderShown()
{
    const QString documents = QFile::decodeName(Shared().DocumentsFolder.c_str());
    return documents.isEmpty() ? QDir::homePath() : documents;
}

QString MusicFolderShown()
{
    const QString music = QStandardPaths::writableLocation(QStandardPaths::MusicLocation);
    return QDir(music).exists() ? music : DocumentsFolderShown();
}

/// The initial folder: the requested one, else the last one shown, else `otherwise`.
QString FirstShownFolder(const fs::path& wanted, const QString& otherwise)
{
    QString folder = QFile::decodeName(wanted.c_str());
    if (!folder.isEmpty() && QDir(folder).exists())
        return folder;
    return LastShownFolder().isEmpty() ? otherwise : LastShownFolder();
}

void FillFileDialog(QFileDialog& dialog, const FileQuestion& question)
{
    dialog.setObjectName(QStringLiteral("CommonDialog"));
    dialog.setOption(QFileDialog::HideNameFilterDetails);
    const QStringList filters = FileNameFilters(ShownText(question.Filter));
    dialog.setNameFilters(filters);
    dialog.selectNameFilter(filters.value(question.FilterIndex - 1));
    dialog.setDefaultSuffix(QtText(question.DefaultExtension));
    if (!question.FileName.empty())
        dialog.selectFile(QtText(question.FileName));
}

/// Dragging from a list onto a folder would move a file, which nobody wants when choosing one.
void ForbidDrags(const QFileDialog& dialog)
{
    for (auto* list : dialog.findChildren<QAbstractItemView*>()) {
        list->setDragEnabled(false);
        list->setAcceptDrops(false);
    }
}

std::optional<fs::path> AnswerOf(QFileDialog& dialog)
{
    ForbidDrags(dialog);
    const bool chosen = dialog.exec() == QDialog::Accepted && !dialog.selectedFiles().isEmpty();
    LastShownFolder() = dialog.directory().absolutePath();
    if (!chosen)
        return std::nullopt;
    return fs::path(QFile::encodeName(dialog.selectedFiles().constFirst()).toStdString());
}

std::optional<fs::path> AskWhereToSave(const FileQuestion& question)
{
    if (!StandIns().empty())
        return StandIns().back()(question);
    QFileDialog dialog(WindowInFront(), QtText(question.Title), FirstShownFolder(question.Folder, MusicFolderShown()));
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    FillFileDialog(dialog, question);
    return AnswerOf(dialog);
}

} // namespace

std::optional<fs::path> ChooseFileToOpen(const FileQuestion& question)
{
    if (!StandIns().empty())
        return StandIns().back()(question);
    QFileDialog dialog(WindowInFront(), QtText(question.Title),
                       FirstShownFolder(question.Folder, DocumentsFolderShown()));
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    FillFileDialog(dialog, question);
    return AnswerOf(dialog);
}

std::optional<fs::path> ChooseFileToSave(const FileQuestion& question)
{
    FileQuestion asked = question;
    for (;;) {
        std::optional<fs::path> answer = AskWhereToSave(asked);
        std::error_code error;
        if (!answer || !answer->has_parent_path() || fs::is_directory(answer->parent_path(), error))
            return answer;
        ShowMessage(Words::Text("This folder is not there."), Words::AsIs(PathText(answer->parent_path())));
        asked.FileName = PathText(answer->filename());
    }
}

FileChooserStandIn::FileChooserStandIn(Answer answer)
{
    StandIns().push_back(std::move(answer));
}

FileChooserStandIn::~FileChooserStandIn()
{
    StandIns().pop_back();
}

} // namespace sprout
