// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QComboBox>

namespace sprout {

/// Makes the list of a combo box consume the keys that close it.
///
/// Qt closes the list while it still looks for a shortcut for the key. If the window below keeps the keyboard, as under
/// Wayland, the same Enter or Escape then also closes that window.
void KeepClosingKeys(QComboBox& box);

} // namespace sprout
