// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QKeyEvent>
#include <QObject>

#include <cstdint>
#include <vector>

#include "core/Song.h"

class QWidget;

namespace sprout {

class BeatNames;
class StepFocus;

/// The steps of a tune as the keyboard and screen readers reach them: a `StepFocus` for each on the surface. The Tab
/// key stops at one of them only, the last one reached.
class StepFocusRow : public QObject {
    Q_OBJECT

public:
    /// before, after: the neighbours of the steps in the tab order.
    StepFocusRow(QWidget* ofSurface, QWidget* before, QWidget* after);

    /// Makes as many as the tune has steps, with their names, states and places. stepsLeft: left edge of step 1.
    void ShowTune(const Tune& tune, BeatNames& names, std::int32_t stepsLeft);

    /// The last step that the keyboard reaches; a file may contain more.
    [[nodiscard]] std::int32_t LastStep() const { return static_cast<std::int32_t>(steps.size()) - 1; }

    /// Gives a step the focus; a step that there is not changes nothing.
    void WalkTo(std::int32_t step);

Q_SIGNALS:
    void KeyPressed(std::int32_t step, QKeyEvent* event);
    void MenuWanted(std::int32_t step);
    void Clicked(std::int32_t step); ///< by a screen reader
    void Reached(std::int32_t step); ///< by the keyboard

private:
    [[nodiscard]] StepFocus* MakeStep(std::int32_t step);
    void SetTabStep(std::int32_t step);

    QWidget* surface;
    QWidget* tabBefore;
    QWidget* tabAfter;
    std::vector<StepFocus*> steps{nullptr}; ///< from 1
    std::int32_t tabStep = 1;               ///< the only step that the Tab key stops at
};

} // namespace sprout
