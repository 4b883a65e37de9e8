// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <string_view>

namespace sprout {

/// A name as the tip of a control, letter by letter: names come from files of strangers, and a tip would read one that
/// looks like rich text as such, pictures and all.
[[nodiscard]] QString QtTip(std::string_view name);

} // namespace sprout
