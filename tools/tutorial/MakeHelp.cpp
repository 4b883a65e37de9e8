// SPDX-License-Identifier: GPL-3.0-or-later
#include "tutorial/MakeHelp.h"

#include <QApplication>
#include <QCoreApplication>

#include <filesystem>
#include <vector>

#include "tutorial/DemoProgram.h"
#include "tutorial/DemoScript.h"
#include "tutorial/HeldTimers.h"
#include "tutorial/HelpPictures.h"
#include "tutorial/Maker.h"
#include "ui/look/Look.h"

namespace sprout {

namespace fs = std::filesystem;

namespace {

const MakerScreen kHelpScreen{{800, 640}, 2}; ///< has room for the window of the demos
constexpr BoxSize kMainWindow{600, 400};      ///< smaller than usual, so its letters can be read in a page

} // namespace

int MakeHelpPictures(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList words = QCoreApplication::arguments();
    const QString pictures = QStringLiteral("*.png");
    Maker maker(kHelpScreen, {QStringLiteral("--help-here"), words[2], words[3]});
    maker.Wait();
    EmptyFolder(words[4], {pictures});
    MoveFiles(pictures, maker.Made(), words[4]);
    return 0;
}

int MakeHelpPicturesHere(int argc, char** argv)
{
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setCursorFlashTime(0);
    ApplyLook(application);
    const QStringList words = QCoreApplication::arguments();
    const fs::path folder = words[4].toStdString();
    const std::vector<ScriptStep> steps = ReadPictureScript(ScriptText(words[2]));
    const HeldTimers timers;
    DemoProgram program(words[3].toStdString(), folder, Welcome::LeftOut, kMainWindow);
    HelpPictures(program, words[2], folder / "made").Make(steps);
    return 0;
}

} // namespace sprout
