// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <string_view>

namespace sprout {

/// A name as a tool tip, always plain text: names come from untrusted files, and a tool tip would render one that looks
/// like rich text, including pictures.
[[nodiscard]] QString QtTip(std::string_view name);

} // namespace sprout
