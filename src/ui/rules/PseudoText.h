// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace sprout {

/// An English text as a translation could look: readable, but with marks on its letters, at least a third longer, and
/// in brackets, so that text which was not looked up, is cut or glued together can be seen. Places such as %1, blanks
/// at the ends, line ends and the file patterns of dialogs (`*.wav`) stay. Empty texts stay empty.
///
/// english: UTF-8. Returns UTF-8.
[[nodiscard]] std::string PseudoText(std::string_view english);

} // namespace sprout
