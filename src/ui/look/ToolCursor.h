// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCursor>

#include <string_view>

namespace sprout {

/// The mouse pointer of a tool: the tool button's picture without its plate, 32 pixels, with the hot spot at the tip.
/// button: `BrushBtn`, `EraserBtn` or `PlayToolBtn`; any other gives the default pointer.
[[nodiscard]] QCursor ToolCursor(std::string_view button, qreal pixelRatio);

} // namespace sprout
