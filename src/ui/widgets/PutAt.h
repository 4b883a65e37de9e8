// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include "ui/rules/PlanBox.h"

namespace sprout {

/// Places a control where a window's plan has it.
inline void PutAt(QWidget& widget, const PlanBox& box)
{
    widget.setGeometry(box.x, box.y, box.width, box.height);
}

/// The current size of a control, for a plan.
[[nodiscard]] inline PlanSize SizeOf(const QWidget& widget)
{
    return {widget.width(), widget.height()};
}

} // namespace sprout
