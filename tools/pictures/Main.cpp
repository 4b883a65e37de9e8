// SPDX-License-Identifier: GPL-3.0-or-later
// Draws sheets of all buttons, artworks and dialogs as they look on a screen with a given scale.
#include <QApplication>
#include <QDir>
#include <QFile>

#include <algorithm>
#include <cstdio>
#include <stdexcept>
#include <string_view>

#include "pictures/ArtSheet.h"
#include "pictures/BeatWindowSheets.h"
#include "pictures/ButtonSheets.h"
#include "pictures/DemoSheets.h"
#include "pictures/EditorSheets.h"
#include "pictures/FormSheet.h"
#include "pictures/MainWindowSheets.h"
#include "pictures/PicturePixels.h"
#include "pictures/RecordingSheets.h"
#include "pictures/SheetPicture.h"
#include "pictures/SongWindowSheets.h"
#include "pictures/StepEditorSheets.h"
#include "pictures/TuneWindowSheets.h"
#include "ui/look/Look.h"
#include "ui/words/PseudoLanguage.h"

namespace {

constexpr const char* kUsage = "usage: sprout-pictures [--pseudo] SCALE FOLDER [SONG]\n"
                               "       sprout-pictures --window PICTURE SONG\n"
                               "       sprout-pictures --pixels PICTURE...\n"
                               "Draws buttons, artworks, dialogs and, with a song, the main window, for example at the "
                               "scale 2; or the\nmain window alone; or tells a hash of each picture's pixels, its size "
                               "and its name.\n--pseudo: with longer texts, as a translation would have; prints those "
                               "that do not fit.\n";

/// Prints a line about the picture; returns false if it cannot be read.
bool TellPixels(const char* path)
{
    const auto pixels = sprout::PixelsOf(QFile::decodeName(path));
    if (!pixels)
        std::fprintf(stderr, "%s is no picture.\n", path);
    else
        std::printf("%s %s\n", pixels->c_str(), path);
    return pixels.has_value();
}

void StartOffscreen(const char* scale)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_SCALE_FACTOR", scale);
}

void DrawAllSheets(const QString& folder)
{
    sprout::DrawButtonSheets(folder);
    sprout::DrawArtSheet(folder);
    sprout::DrawFormSheet(folder);
    sprout::DrawSongWindowSheets(folder);
    sprout::DrawTuneWindowSheets(folder);
    sprout::DrawStepEditorSheets(folder);
    sprout::DrawBeatWindowSheets(folder);
    sprout::DrawEditorSheets(folder);
    sprout::DrawRecordingSheets(folder);
    sprout::DrawDemoSheets(folder);
}

} // namespace

int main(int argc, char** argv)
{
    if (argc > 2 && std::string_view(argv[1]) == "--pixels")
        return std::all_of(argv + 2, argv + argc, TellPixels) ? 0 : 1;
    const bool isPseudo = argc > 1 && std::string_view(argv[1]) == "--pseudo";
    if (isPseudo) {
        ++argv;
        --argc;
    }
    const bool windowAlone = argc == 4 && std::string_view(argv[1]) == "--window";
    if (argc != 3 && argc != 4) {
        std::fputs(kUsage, stderr);
        return 2;
    }
    StartOffscreen(windowAlone ? "1" : argv[1]);
    QApplication application(argc, argv);
    sprout::PseudoLanguage pseudoLanguage;
    if (isPseudo) {
        QCoreApplication::installTranslator(&pseudoLanguage);
        sprout::WatchTexts();
    }
    sprout::ApplyLook(application);
    try {
        if (windowAlone)
            return sprout::DrawMainWindow(QFile::decodeName(argv[3]), QFile::decodeName(argv[2])) ? 0 : 1;
        const QString folder = QFile::decodeName(argv[2]);
        if (!QDir().mkpath(folder))
            throw std::runtime_error("The folder " + folder.toStdString() + " cannot be made.");
        DrawAllSheets(folder);
        if (argc == 4)
            sprout::DrawMainWindowSheets(QFile::decodeName(argv[3]), folder);
        return 0;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
}
