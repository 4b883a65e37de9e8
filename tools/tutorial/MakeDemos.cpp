// SPDX-License-Identifier: GPL-3.0-or-later
#include "tutorial/MakeDemos.h"

#include <QApplication>
#include <QCoreApplication>
#include <QDir>
#include <QThread>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <filesystem>
#include <string>

#include "base/Errors.h"
#include "service/Services.h"
#include "tutorial/DemoFiles.h"
#include "tutorial/DemoPlay.h"
#include "tutorial/DemoProgram.h"
#include "tutorial/DemoScript.h"
#include "tutorial/HeldTimers.h"
#include "tutorial/Maker.h"
#include "tutorial/SlideLayout.h"
#include "ui/look/Look.h"

namespace sprout {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t kMostDemos = 9; ///< the keys of a tenth one would be those of others
/// The screens have the size of a slide, so every window fits into the pictures.
constexpr std::array kPixelRatios{1, 2};

[[noreturn]] void Fail(const std::string& text)
{
    throw RunTimeError(Words::AsIs(text));
}

/// Starts the makers of a demo, one for each pixel ratio, as soon as one of those before has ended.
void StartMakers(std::deque<Maker>& makers, const QString& script, const QString& sprout)
{
    const auto atOnce = static_cast<std::size_t>(std::max(QThread::idealThreadCount(), 1));
    const std::size_t number = makers.size() / kPixelRatios.size() + 1;
    for (const int pixelRatio : kPixelRatios) {
        if (makers.size() >= atOnce)
            makers[makers.size() - atOnce].Wait();
        makers.emplace_back(MakerScreen{{kSlideSize.width, kSlideSize.height}, pixelRatio},
                            QStringList{QStringLiteral("--one"), QString::number(number), script, sprout});
    }
}

} // namespace

int MakeAllDemos(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList words = QCoreApplication::arguments();
    const QDir scripts(words[1]);
    const QStringList names = scripts.entryList({QStringLiteral("*.txt")}, QDir::Files, QDir::Name);
    if (names.isEmpty() || static_cast<std::size_t>(names.size()) > kMostDemos)
        Fail(words[1].toStdString() + " must hold one to nine scripts.");
    const QString slides = QStringLiteral("Demo*");
    EmptyFolder(words[3], {slides, QStringLiteral("TqDemo*")});
    std::deque<Maker> makers;
    for (const QString& name : names)
        StartMakers(makers, scripts.absoluteFilePath(name), words[2]);
    DemoFiles files;
    for (std::size_t i = 0; i < makers.size(); ++i) {
        makers[i].Wait();
        if (i % kPixelRatios.size() == 0)
            files.Read(makers[i].Made().toStdString(), static_cast<std::int32_t>(i / kPixelRatios.size() + 1));
        MoveFiles(slides, makers[i].Made(), words[3]);
    }
    PosixFiles machineFiles;
    TheServices().files = &machineFiles;
    files.Write(words[3].toStdString());
    return 0;
}

int MakeOneDemo(int argc, char** argv)
{
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setCursorFlashTime(0);
    ApplyLook(application);
    const QStringList words = QCoreApplication::arguments();
    const std::int32_t number = words[2].toInt();
    const fs::path folder = words[5].toStdString();
    const DemoScript script = ReadDemoScript(ScriptText(words[3]));
    const HeldTimers timers;
    DemoProgram program(words[4].toStdString(), folder);
    DemoPlay play(program, script, number, folder / "made");
    DemoFiles files;
    files.Add(number, script.Name, play.Play());
    files.Write(folder / "made");
    return 0;
}

} // namespace sprout
