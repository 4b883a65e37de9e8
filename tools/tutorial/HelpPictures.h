// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QRect>
#include <QString>
#include <QWidget>

#include <filesystem>
#include <vector>

#include "tutorial/DemoScript.h"
#include "tutorial/ScriptActions.h"
#include "ui/rules/Box.h"

namespace sprout {

class DemoProgram;

/// Largest size at which the help shows a picture, in logical pixels. A larger window is made smaller.
inline constexpr BoxSize kMostHelpPicture{440, 260};

/// A picture of a widget or of a part of it, on the white of a page, twice as large as the help shows it. The screen's
/// pixel ratio must be 2.
[[nodiscard]] QImage HelpPicture(QWidget& widget, const QRect& part);

/// Plays a script on the program and keeps the pictures of windows that the pages of the help show.
class HelpPictures {
public:
    /// name: of the script, for what goes wrong. folder: where the pictures go.
    HelpPictures(DemoProgram& program, QString name, std::filesystem::path folder);

    /// Runs until the script ends. Throws `RunTimeError` if it cannot be played.
    void Make(const std::vector<ScriptStep>& steps);

private:
    void Do(const ScriptStep& step);
    void Keep(const ScriptStep& step) const;

    QString name;
    std::filesystem::path folder;
    ScriptActions actions;
};

} // namespace sprout
