// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QWidget;

namespace sprout {

/// Sets the order in which Tab visits the controls of the main window, whose buttons were made in table order.
void SetMainTabOrder(const QWidget& window);

} // namespace sprout
