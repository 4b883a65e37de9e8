// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace sprout {

/// UTF-8 text that a terminal shows but does not interpret: control characters (C0, DEL and C1) become `\u00XX`, bytes
/// that are not UTF-8 become `\xXX`.
[[nodiscard]] std::string Printable(std::string_view text);

/// The same for the text of a message; its line ends, CR LF, become those of a terminal.
[[nodiscard]] std::string PrintableLines(std::string_view text);

/// A JSON text with DEL and C1 escaped in the way JSON escapes the other control characters. json: valid JSON in
/// UTF-8.
[[nodiscard]] std::string PrintableJson(std::string_view json);

} // namespace sprout
