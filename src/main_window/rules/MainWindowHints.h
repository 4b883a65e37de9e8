// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

#include "base/Words.h"

namespace sprout {

/// The main window's hint for a control; empty if it has none.
[[nodiscard]] LaterWords MainWindowHint(std::string_view name);

/// The hint of the status frame itself.
inline constexpr LaterWords kStatusFrameHint = Words::Later("Move the mouse over any button to read help clue here");

} // namespace sprout
