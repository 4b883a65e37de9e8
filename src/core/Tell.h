// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <string_view>

namespace sprout {

/// Shows a plain message box; an empty title leaves it untitled. Returns when the user has read it. Interface thread
/// only.
void Tell(std::string_view title, std::string_view text);

/// How many messages `Tell` has shown since the program began: two counts tell whether there was one between them.
[[nodiscard]] std::size_t MessagesTold();

} // namespace sprout
