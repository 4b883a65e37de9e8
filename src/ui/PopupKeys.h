// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QComboBox>

namespace sprout {

/// Lets the list of a combo box use up the keys that close it.
///
/// Qt closes the list while it still looks for a shortcut of the key. Where the keyboard stays with the window below,
/// as it does under Wayland, the same Enter or Escape then also closes that window.
void KeepClosingKeys(QComboBox& box);

} // namespace sprout
