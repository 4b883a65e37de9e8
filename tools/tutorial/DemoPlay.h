// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRect>

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "tutorial/DemoFiles.h"
#include "tutorial/DemoScript.h"
#include "tutorial/ScriptActions.h"

namespace sprout {

class DemoProgram;
struct SlideMarks;

/// Plays a script on the program and makes the slides of its demo: each picture shows the windows before the child does
/// what the slide asks for; then that is done, as the child would do it.
class DemoPlay {
public:
    /// folder: where the pictures and sounds of the slides go. number: of the demo, from 1.
    DemoPlay(DemoProgram& demoProgram, DemoScript demoScript, std::int32_t demoNumber, std::filesystem::path folder);

    /// Runs until the script ends. Throws `RunTimeError` if it cannot be played.
    [[nodiscard]] std::vector<MadeSlide> Play();

private:
    void Do(const ScriptStep& step);
    void Click(const ScriptStep& step);
    void Drag(const ScriptStep& step);
    void Look(const ScriptStep& step);
    void Shoot(const ScriptStep& step, const QRect& active, const char* action, SlideMarks marks);
    void KeepSound(double seconds);
    [[nodiscard]] std::string NameOf(const char* extension) const;

    DemoProgram& program;
    DemoScript script;
    std::int32_t number;
    std::filesystem::path folder;
    ScriptActions actions;
    std::vector<MadeSlide> slides;
};

} // namespace sprout
