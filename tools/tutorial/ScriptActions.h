// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRect>

#include <functional>
#include <string>
#include <vector>

#include "tutorial/DemoScript.h"
#include "tutorial/Hand.h"

namespace sprout {

class DemoProgram;

/// Does what the steps of a script tell, as the user would do it.
class ScriptActions {
public:
    explicit ScriptActions(DemoProgram& demoProgram) : program(demoProgram) {}

    /// Moves the pointer over a place. Things can appear below it, so the place is looked up again.
    [[nodiscard]] QRect PointAt(const std::vector<std::string>& target);
    /// Clicks where the pointer is.
    void Click();
    /// Presses the button in the middle of a place, and drags from there to another one.
    void BeginDrag(const QRect& begin);
    void EndDrag(const QRect& begin, const QRect& end);

    /// Does a step that makes no picture.
    void Prepare(const ScriptStep& step);

private:
    void Tick(const std::string& name, int times);

    DemoProgram& program;
    Hand hand;
};

/// Does all steps in the application's event loops. Throws `RunTimeError` with `name` and the line of the first step
/// that cannot be done.
void DoSteps(const std::string& name, const std::vector<ScriptStep>& steps,
             const std::function<void(const ScriptStep&)>& doStep);

} // namespace sprout
