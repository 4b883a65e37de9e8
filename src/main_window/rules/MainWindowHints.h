// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

#include "base/Words.h"

namespace sprout {

/// The main window's hint for a control; empty if it has none.
[[nodiscard]] LaterWords MainWindowHint(std::string_view name);

/// The hint of the status frame itself.
inline constexpr LaterWords kStatusFrameHint = Words::Later("Move the mouse over any button to read help clue here");

/// What the status line says on the very first start.
inline constexpr LaterWords kWelcomeHint =
    Words::Later("Click Play all to hear the song, or Demo to see how to make one");

} // namespace sprout
