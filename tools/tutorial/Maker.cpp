// SPDX-License-Identifier: GPL-3.0-or-later
#include "tutorial/Maker.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include <string>

#include "base/Errors.h"

namespace sprout {

namespace {

constexpr int kLongestMs = 120'000;

constexpr const char* kScreen = R"({"synchronousWindowSystemEvents": false, "windowFrameMargins": false, "screens":
[{"name": "slide", "x": 0, "y": 0, "width": %1, "height": %2, "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": %3}]})";

[[noreturn]] void Fail(const std::string& text)
{
    throw RunTimeError(Words::AsIs(text));
}

QString WrittenScreen(const MakerScreen& screen, const QString& folder)
{
    QString path = folder + QStringLiteral("/screen.json");
    const QString text = QString::fromLatin1(kScreen).arg(screen.size.width()).arg(screen.size.height());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(text.arg(screen.pixelRatio).toLatin1()) < 0)
        Fail(path.toStdString() + " cannot be written.");
    return path;
}

QProcessEnvironment MakerEnvironment(const MakerScreen& screen, const QString& folder)
{
    QProcessEnvironment environment;
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"),
                       QStringLiteral("offscreen:configfile=") + WrittenScreen(screen, folder));
    environment.insert(QStringLiteral("HOME"), folder);
    environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), folder);
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    environment.insert(QStringLiteral("TZ"), QStringLiteral("UTC"));
    for (const char* kept : {"PATH", "LSAN_OPTIONS"})
        if (qEnvironmentVariableIsSet(kept))
            environment.insert(QString::fromLatin1(kept), qEnvironmentVariable(kept));
    return environment;
}

} // namespace

Maker::Maker(const MakerScreen& screen, const QStringList& words)
{
    QDir().mkpath(Made());
    process.setProcessEnvironment(MakerEnvironment(screen, folder.path()));
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(QCoreApplication::applicationFilePath(), words + QStringList(folder.path()));
}

void Maker::Wait()
{
    const bool ended = process.state() == QProcess::NotRunning || process.waitForFinished(kLongestMs);
    if (ended && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0)
        return;
    Fail(process.readAll().toStdString() + "The pictures were not made.");
}

void MoveFiles(const QString& names, const QString& from, const QString& to)
{
    for (const QString& name : QDir(from).entryList({names}, QDir::Files))
        if (!QFile::rename(from + u'/' + name, to + u'/' + name))
            Fail(name.toStdString() + " cannot be written.");
}

void EmptyFolder(const QString& folder, const QStringList& names)
{
    QDir().mkpath(folder);
    QDir old(folder);
    for (const QString& name : old.entryList(names, QDir::Files))
        old.remove(name);
}

std::string ScriptText(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        Fail(path.toStdString() + " cannot be read.");
    return file.readAll().toStdString();
}

} // namespace sprout
