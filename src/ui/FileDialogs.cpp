// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/FileDialogs.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>

#include <utility>
#include <vector>

#include "core/Shared.h"
#include "core/Text.h"
#include "ui/Dialogs.h"
#include "ui/QtText.h"

namespace sprout {

namespace fs = std::filesystem;

namespace {

/// Those that stand for the dialog now; the last one answers.
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

/// The dialogs of some desktops tell letter case: each letter stands for both.
QString InAnyCase(std::string_view pattern)
{
    if (pattern == "*.*")
        return QStringLiteral("*"); // names without a dot too
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

/// The folder to begin in: the one asked for, else the one last shown, else the user's documents.
QString FirstShownFolder(const fs::path& wanted)
{
    QString folder = QFile::decodeName(wanted.c_str());
    if (!folder.isEmpty() && QDir(folder).exists())
        return folder;
    if (!LastShownFolder().isEmpty())
        return LastShownFolder();
    const QString documents = QFile::decodeName(Shared().DocumentsFolder.c_str());
    return documents.isEmpty() ? QDir::homePath() : documents;
}

void FillFileDialog(QFileDialog& dialog, const FileQuestion& question)
{
    dialog.setObjectName(QStringLiteral("CommonDialog"));
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    dialog.setOption(QFileDialog::HideNameFilterDetails);
    const QStringList filters = FileNameFilters(question.Filter);
    dialog.setNameFilters(filters);
    dialog.selectNameFilter(filters.value(question.FilterIndex - 1));
    dialog.setDefaultSuffix(QtText(question.DefaultExtension));
    if (!question.FileName.empty())
        dialog.selectFile(QtText(question.FileName));
}

} // namespace

std::optional<fs::path> ChooseFileToOpen(const FileQuestion& question)
{
    if (!StandIns().empty())
        return StandIns().back()(question);
    QFileDialog dialog(WindowInFront(), QtText(question.Title), FirstShownFolder(question.Folder));
    FillFileDialog(dialog, question);
    const bool chosen = dialog.exec() == QDialog::Accepted && !dialog.selectedFiles().isEmpty();
    LastShownFolder() = dialog.directory().absolutePath();
    if (!chosen)
        return std::nullopt;
    return fs::path(QFile::encodeName(dialog.selectedFiles().constFirst()).toStdString());
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
