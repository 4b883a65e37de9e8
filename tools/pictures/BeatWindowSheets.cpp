// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/BeatWindowSheets.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <array>
#include <filesystem>

#include "base/FilePaths.h"
#include "beat_window/BeatWindow.h"
#include "core/Shared.h"
#include "pictures/SheetPicture.h"
#include "service/Services.h"
#include "service/posix/PosixFiles.h"
#include "service/qt/QtPictureFiles.h"
#include "ui/forms/QtMessages.h"
#include "ui/forms/QtScreen.h"
#include "ui/look/Artwork.h"
#include "ui/look/ProgramPictures.h"

namespace sprout {

namespace fs = std::filesystem;

namespace {

constexpr int kManyBeats = 300;
constexpr std::array kArtworks{"PlayAllBtn", "BrushBtn", "EraserBtn", "NewBtn", "OpenBtn", "SaveBtn", "DemoBtn"};

/// A silent wave, 0.5 s at 11,025 Hz.
void WriteQuietWave(const QString& path)
{
    constexpr int bytes = 11025 / 2;
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return;
    file.write(QByteArray::fromHex("52494646ad15000057415645666d7420100000000100010011 2b0000112b00000100080064617461"
                                   "89150000"));
    file.write(QByteArray(bytes, '\x80'));
}

void MakeBeats(const QString& folder, int count)
{
    for (int i = 0; i < count; ++i) {
        const auto artwork = static_cast<std::size_t>(i) % kArtworks.size();
        const QString name = QStringLiteral("%1/beat %2 that the user made").arg(folder).arg(i + 1, 3, 10, QChar(u'0'));
        WriteQuietWave(name + QStringLiteral(".wav"));
        const Picture picture = ArtworkPicture(QStringLiteral("buttons/") + QString::fromLatin1(kArtworks[artwork]));
        TheServices().pictures->SavePicture(picture, fs::path(name.toStdString() + ".bmp"));
    }
}

void DrawBeats(const QString& folder, const QString& name, const QString& chosen)
{
    BeatWindow window(nullptr);
    window.ChosenBeatName = chosen.toStdString();
    window.LoadBeatFiles();
    ShowAndSaveSheet(window, folder, name);
}

} // namespace

void DrawBeatWindowSheets(const QString& folder)
{
    QtMessages messages;
    QtScreen screen;
    PosixFiles files;
    QtPictureFiles pictures;
    const Services before = TheServices();
    TheServices().messages = &messages;
    TheServices().screen = &screen;
    TheServices().files = &files;
    TheServices().pictures = &pictures;
    MakeProgramPictures();

    Shared().UserBeats = AsFolder("/home/child/Documents/Tonquill Sprout Painter/Beats");
    DrawBeats(folder, QStringLiteral("beats-none"), {});
    const QTemporaryDir beats;
    Shared().UserBeats = AsFolder(beats.path().toStdString());
    const fs::path library = fs::path(QApplication::applicationDirPath().toStdString()) / "Sprout" / "Beats";
    if (fs::is_directory(library))
        fs::copy(library, fs::path(beats.path().toStdString()));
    fs::remove(Shared().UserBeats / "TqBeats.ini");
    DrawBeats(folder, QStringLiteral("beats-library"), QStringLiteral("g_acoustic guitar high"));
    MakeBeats(beats.path(), kManyBeats);
    DrawBeats(folder, QStringLiteral("beats-many"), QStringLiteral("beat 003 that the user made"));
    TheServices() = before;
}

} // namespace sprout
