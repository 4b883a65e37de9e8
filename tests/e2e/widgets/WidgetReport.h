// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QJsonArray>
#include <QJsonObject>

namespace sprout {

/// Tells of all widgets of the application that can be seen, windows in the order of their making:
///     {"active": NAME, "widgets": [{"name", "kind", "window", "x", "y", "width", "height", "whole", "enabled",
///     "focus",
///      "text", "spoken", "items": [{"text", "x", "y", "width", "height"}]}]}
/// Places are on the screen, in pixels. "window" is the number of the widget's window in this report. A widget is whole
/// if its parents cut off nothing of it. Only lists and menus have items: the rows that can be seen. A window comes
/// before what is in it, and has an "id" too, the one that the X server knows it by.
[[nodiscard]] QJsonObject WidgetReport();

} // namespace sprout
