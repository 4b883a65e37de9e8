// SPDX-License-Identifier: GPL-3.0-or-later
#include "tutorial/MakeDemos.h"

#include <QApplication>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>

#include <algorithm>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "base/Errors.h"
#include "service/Services.h"
#include "tutorial/DemoFiles.h"
#include "tutorial/DemoPlay.h"
#include "tutorial/DemoProgram.h"
#include "tutorial/DemoScript.h"
#include "tutorial/HeldTimers.h"
#include "ui/look/Look.h"

namespace sprout {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t kMostDemos = 9; ///< the keys of a tenth one would be those of others
constexpr int kLongestMs = 120'000;

/// The screen has the size of a slide, so every window fits into the pictures.
constexpr const char* kScreen = R"({"synchronousWindowSystemEvents": false, "windowFrameMargins": false, "screens":
[{"name": "slide", "x": 0, "y": 0, "width": 780, "height": 540, "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})";

[[noreturn]] void Fail(const std::string& text)
{
    throw RunTimeError(Words::AsIs(text));
}

void WriteText(const QString& path, const char* text)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(text) < 0)
        Fail(path.toStdString() + " cannot be written.");
}

/// Nothing of the machine on which the demos are made shows in them.
QProcessEnvironment DemoEnvironment(const QString& folder)
{
    const QString screen = folder + QStringLiteral("/screen.json");
    WriteText(screen, kScreen);
    QProcessEnvironment environment;
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen:configfile=") + screen);
    environment.insert(QStringLiteral("HOME"), folder);
    environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), folder);
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    environment.insert(QStringLiteral("TZ"), QStringLiteral("UTC"));
    for (const char* kept : {"PATH", "LSAN_OPTIONS"})
        if (qEnvironmentVariableIsSet(kept))
            environment.insert(QString::fromLatin1(kept), qEnvironmentVariable(kept));
    return environment;
}

/// A demo that is being made, and its folder.
struct Maker {
    [[nodiscard]] QString Made() const { return folder.filePath(QStringLiteral("made")); }

    QTemporaryDir folder;
    QProcess process;
};

std::unique_ptr<Maker> StartMaker(std::size_t number, const QString& script, const QStringList& words)
{
    auto maker = std::make_unique<Maker>();
    QDir().mkpath(maker->Made());
    maker->process.setProcessEnvironment(DemoEnvironment(maker->folder.path()));
    maker->process.setProcessChannelMode(QProcess::MergedChannels);
    maker->process.start(QCoreApplication::applicationFilePath(),
                         {QStringLiteral("--one"), QString::number(number), script, words[2], maker->folder.path()});
    return maker;
}

void WaitFor(Maker& maker)
{
    const bool ended = maker.process.state() == QProcess::NotRunning || maker.process.waitForFinished(kLongestMs);
    if (ended && maker.process.exitStatus() == QProcess::NormalExit && maker.process.exitCode() == 0)
        return;
    Fail(maker.process.readAll().toStdString() + "A demo was not made.");
}

/// Moves the pictures and sounds of a demo to those of the others.
void MoveSlides(const QString& from, const QString& to)
{
    for (const QString& name : QDir(from).entryList({QStringLiteral("Demo*")}, QDir::Files))
        if (!QFile::rename(from + u'/' + name, to + u'/' + name))
            Fail(name.toStdString() + " cannot be written.");
}

void RemoveOldDemos(const QString& folder)
{
    QDir demos(folder);
    for (const QString& name : demos.entryList({QStringLiteral("Demo*"), QStringLiteral("TqDemo*")}, QDir::Files))
        demos.remove(name);
}

DemoScript ScriptIn(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        Fail(path.toStdString() + " cannot be read.");
    return ReadDemoScript(file.readAll().toStdString());
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
    QDir().mkpath(words[3]);
    RemoveOldDemos(words[3]);
    std::vector<std::unique_ptr<Maker>> makers;
    const auto atOnce = static_cast<std::size_t>(std::max(QThread::idealThreadCount(), 1));
    for (const QString& name : names) {
        if (makers.size() >= atOnce)
            WaitFor(*makers[makers.size() - atOnce]);
        makers.push_back(StartMaker(makers.size() + 1, scripts.absoluteFilePath(name), words));
    }
    DemoFiles files;
    for (std::size_t i = 0; i < makers.size(); ++i) {
        WaitFor(*makers[i]);
        files.Read(makers[i]->Made().toStdString(), static_cast<std::int32_t>(i + 1));
        MoveSlides(makers[i]->Made(), words[3]);
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
    const DemoScript script = ScriptIn(words[3]);
    const HeldTimers timers;
    DemoProgram program(words[4].toStdString(), folder);
    DemoPlay play(program, script, number, folder / "made");
    DemoFiles files;
    files.Add(number, script.Name, play.Play());
    files.Write(folder / "made");
    return 0;
}

} // namespace sprout
