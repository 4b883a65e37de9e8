// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <string_view>

namespace sprout {

/// Shows a plain message box; an empty title leaves it untitled. Returns when the user has read it. Interface thread
/// only.
void Tell(std::string_view title, std::string_view text);

/// The number of messages that `Tell` has shown since the program started: compare two counts to see if one appeared in
/// between.
[[nodiscard]] std::size_t MessagesTold();

} // namespace sprout
