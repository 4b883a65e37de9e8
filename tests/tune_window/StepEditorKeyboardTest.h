// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tune_window/StepEditorTest.h"

namespace sprout {

/// A step editor whose steps are used by keys.
class StepEditorKeyboardTest : public StepEditorTest {
protected:
    void Press(std::int32_t step, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(&StepButton(step), key, modifiers);
    }

    /// The number of the step that has the focus, or 0.
    [[nodiscard]] std::int32_t FocusedStep() const
    {
        const QWidget* const focus = window.focusWidget();
        for (std::int32_t step = 1; step <= tune.StepCount; ++step)
            if (focus == &StepButton(step))
                return step;
        return 0;
    }
};

} // namespace sprout
