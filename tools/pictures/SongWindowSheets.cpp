// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/SongWindowSheets.h"

#include <QCoreApplication>
#include <QFile>
#include <QLineEdit>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTextBrowser>
#include <QTextDocument>

#include <array>

#include "base/FilePaths.h"
#include "core/Shared.h"
#include "main_window/About_Frm.h"
#include "pictures/SheetPicture.h"
#include "song_window/SongSelFrm.h"
#include "ui/forms/MessageForms.h"
#include "ui/help/HelpFrm.h"
#include "ui/words/QtText.h"

namespace sprout {

namespace {

constexpr std::array kSongNames{"Zumi",
                                "Rain on the roof",
                                "My first song",
                                "Äpfel und Birnen",
                                "Kolibri",
                                "Drum train",
                                "The very long song that Grandmother and I made together on a rainy Sunday in autumn"};
constexpr int kManySongs = 200;

void MakeSongs(const QString& folder, int count)
{
    for (int i = 0; i < count; ++i) {
        const auto index = static_cast<std::size_t>(i);
        const QString name = index < kSongNames.size() ? QString::fromUtf8(kSongNames[index])
                                                       : QStringLiteral("Song number %1").arg(i + 1);
        QFile file(QStringLiteral("%1/%2.TqSng").arg(folder, name));
        static_cast<void>(file.open(QIODevice::WriteOnly));
    }
}

void DrawSongWindows(const QString& folder, int songs)
{
    constexpr std::array modes{SongSelMode::Open, SongSelMode::Save, SongSelMode::New};
    const QTemporaryDir songFolder;
    MakeSongs(songFolder.path(), songs);
    Shared().UserSongs = AsFolder(songFolder.path().toStdString());
    for (const SongSelMode mode : modes) {
        SongSelFrm form(nullptr);
        form.InitilizeThisWindow(mode);
        if (mode == SongSelMode::Save)
            form.SetSongName("Zumi");
        if (songs > 0)
            form.findChild<QListWidget*>(QStringLiteral("SngNmLst"))->setCurrentRow(2);
        ShowAndSaveSheet(form, folder, QStringLiteral("songs-mode%1-%2").arg(static_cast<int>(mode)).arg(songs));
    }
}

/// With the pictures of windows, if the build has made them beside this program.
void DrawHelp(const QString& folder)
{
    Shared().InstallRoot = QCoreApplication::applicationDirPath().toStdString() + "/Sprout";
    HelpFrm help;
    auto* book = help.findChild<QTextBrowser*>(QStringLiteral("BookTxt"));
    auto* pages = help.findChild<QListWidget*>(QStringLiteral("PagesLst"));
    for (int page = 0; page < pages->count(); ++page) {
        pages->setCurrentRow(page);
        static_cast<void>(book->document()->pageCount()); // lays a long page out to its end, which else takes its time
        ShowAndSaveSheet(help, folder, QStringLiteral("help%1").arg(page + 1));
        book->verticalScrollBar()->triggerAction(QAbstractSlider::SliderPageStepAdd);
        ShowAndSaveSheet(help, folder, QStringLiteral("help%1-further").arg(page + 1));
        book->verticalScrollBar()->triggerAction(QAbstractSlider::SliderToMaximum);
        ShowAndSaveSheet(help, folder, QStringLiteral("help%1-end").arg(page + 1));
    }
    auto* box = help.findChild<QLineEdit*>(QStringLiteral("SearchTxt"));
    box->setText(QStringLiteral("microphone"));
    ShowAndSaveSheet(help, folder, QStringLiteral("help-found"));
    box->setText(QStringLiteral("trombone"));
    ShowAndSaveSheet(help, folder, QStringLiteral("help-nothing"));
    help.setAttribute(Qt::WA_DeleteOnClose, false);
    Shared().InstallRoot.clear();
}

} // namespace

void DrawSongWindowSheets(const QString& folder)
{
    for (const int songs : {0, static_cast<int>(kSongNames.size()), kManySongs})
        DrawSongWindows(folder, songs);
    PlainBoxFrm error(nullptr, Words::AsIs("Error Copying file\r\nNo space left on device."), MessageIcon::None);
    ShowAndSaveSheet(error, folder, QStringLiteral("songs-error"));
    About_Frm about(nullptr);
    ShowAndSaveSheet(about, folder, QStringLiteral("about"));
    DrawHelp(folder);
}

} // namespace sprout
