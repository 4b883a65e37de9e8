// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMenu>

#include <optional>

#include "core/Song.h"
#include "tune_window/rules/StepMenu.h"

namespace sprout {

/// The menu of a step, `StepPopMnu`.
class StepPopMenu : public QMenu {
    Q_OBJECT

public:
    explicit StepPopMenu(QWidget* parent);

    /// Opens at a point of the screen for a step and waits. Returns the chosen item; nothing if it was left.
    [[nodiscard]] std::optional<StepMoveMnu> Choose(const TuneStep& step, QPoint at);
};

} // namespace sprout
