// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QProcess>
#include <QSize>
#include <QStringList>
#include <QTemporaryDir>

#include <string>

namespace sprout {

/// The screen on which windows are shown while their pictures are taken, in logical pixels.
struct MakerScreen {
    QSize size;
    int pixelRatio = 1; ///< of a logical pixel's side
};

/// Another process of this tool, which makes some of the pictures. It has a home and a screen of its own, so nothing of
/// the machine on which the pictures are made shows in them.
class Maker {
public:
    /// Starts it. words: its arguments; its home comes behind them. Throws `RunTimeError`.
    Maker(const MakerScreen& screen, const QStringList& words);

    /// Waits until it has ended. Throws `RunTimeError` with what it has printed if it failed.
    void Wait();

    /// The folder "made" in its home, for what it makes.
    [[nodiscard]] QString Made() const { return folder.filePath(QStringLiteral("made")); }

private:
    QTemporaryDir folder;
    QProcess process;
};

/// Moves the files with a name like this, which may hold wildcards, from one folder to another. Throws `RunTimeError`.
void MoveFiles(const QString& names, const QString& from, const QString& to);

/// Makes a folder, or deletes the files with names like these in it.
void EmptyFolder(const QString& folder, const QStringList& names);

/// What a script's file holds. Throws `RunTimeError` if it cannot be read.
[[nodiscard]] std::string ScriptText(const QString& path);

} // namespace sprout
