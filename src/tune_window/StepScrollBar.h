// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QScrollBar>

#include <cstdint>

#include "tune_window/rules/StepLayout.h"
#include "ui/widgets/Hints.h"

namespace sprout {

/// The scroll bar of the steps, `TunFramHScroll`: knows where the first step is.
class StepScrollBar : public QScrollBar {
    Q_OBJECT

public:
    explicit StepScrollBar(QWidget* parent);

    /// Sets the range for a tune on a surface and returns to step 1, without a signal.
    void SetStepScroll(std::int32_t stepCount, std::int32_t surfaceWidth);

    /// Left edge of step 1 on the surface.
    [[nodiscard]] std::int32_t StepsLeft() const { return stepsLeft; }

    /// Scrolls as little as needed to show the whole step.
    void BringIntoView(std::int32_t step, std::int32_t surfaceWidth);

Q_SIGNALS:
    void Scrolled();

private:
    std::int32_t stepsLeft = kStepsLeftAtStart;
    bool ScrollGuard2 = false; ///< the program is setting the range
    HintWatcher hints{this};
};

} // namespace sprout
