// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include "ui/rules/Box.h"

namespace sprout {

[[nodiscard]] inline QRect RectOf(const Box& box)
{
    return {box.left, box.top, box.width, box.height};
}

/// Places a control, or a window, where a plan has it.
inline void PutAt(QWidget& widget, const Box& box)
{
    widget.setGeometry(RectOf(box));
}

/// The current size of a control, for a plan.
[[nodiscard]] inline BoxSize SizeOf(const QWidget& widget)
{
    return {widget.width(), widget.height()};
}

} // namespace sprout
