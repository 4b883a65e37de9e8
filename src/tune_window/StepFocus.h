// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractButton>

#include <cstdint>
#include <string_view>

#include "core/Song.h"

namespace sprout {

/// A step as the keyboard and screen readers see it: a button that is checked while the step is on. The mouse passes
/// through to the surface below, which draws the step; only the focus ring is drawn here.
class StepFocus : public QAbstractButton {
    Q_OBJECT

public:
    StepFocus(std::int32_t step, QWidget* surface);

    /// Updates the step's name, state and position. beat: display name of its beat. stepsLeft: left edge of step 1.
    void ShowStep(const TuneStep& step, std::string_view beat, std::int32_t stepsLeft);
    /// Makes it the only step that the Tab key stops at, or one that only the arrow keys reach.
    void SetTabStop(bool isTabStop) { setFocusPolicy(isTabStop ? Qt::TabFocus : Qt::ClickFocus); }

Q_SIGNALS:
    void KeyPressed(QKeyEvent* event);
    void MenuWanted();
    void Reached(); ///< by the keyboard

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void nextCheckState() override {} // it follows the tune

private:
    std::int32_t number;
};

} // namespace sprout
