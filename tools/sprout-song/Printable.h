// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace sprout {

/// UTF-8 text that a terminal only shows and does not obey: each control character (C0, DEL and C1) as `\u00XX`, each
/// byte that is no UTF-8 as `\xXX`.
[[nodiscard]] std::string Printable(std::string_view text);

/// The text of a message likewise; its line ends, CR LF, become those of a terminal.
[[nodiscard]] std::string PrintableLines(std::string_view text);

/// A JSON text in which DEL and C1 are escaped as JSON does with the other control characters. json: valid JSON in
/// UTF-8.
[[nodiscard]] std::string PrintableJson(std::string_view json);

} // namespace sprout
