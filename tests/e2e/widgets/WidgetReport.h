// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QJsonArray>
#include <QJsonObject>

namespace sprout {

/// Reports all visible widgets of the application, with windows in the order in which they were made:
///     {"active": NAME, "widgets": [{"name", "kind", "window", "x", "y", "width", "height", "whole", "enabled",
///     "focus",
///      "text", "spoken", "items": [{"text", "x", "y", "width", "height"}]}]}
/// Places are on the screen, in pixels. "window" is the number of the widget's window in this report. A widget is whole
/// if its parents do not clip it. Only lists and menus have items: the visible rows. A window comes before its contents
/// and also has an "id", by which the X server knows it, the number of its "parent" or -1, and whether it is a "popup".
[[nodiscard]] QJsonObject WidgetReport();

} // namespace sprout
