// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace sprout {

// Text in memory is UTF-8. In files it is one byte a character in the code page Windows-1252; a text with a character
// outside that page is stored as UTF-8 whole, so that no name in any alphabet is lost.

/// `text` without blanks at its ends.
[[nodiscard]] std::string_view Trim(std::string_view text);

/// `text` in lower case, letters of all alphabets.
[[nodiscard]] std::string LowerCase(std::string_view text);

[[nodiscard]] bool EqualIgnoringCase(std::string_view a, std::string_view b);

/// True when `text` begins with `prefix`, ignoring case.
[[nodiscard]] bool BeginsIgnoringCase(std::string_view text, std::string_view prefix);

/// The bytes that stand for `text` in a file.
///
/// A text whose single bytes would themselves read as UTF-8 is stored as UTF-8, so that it comes back as it was.
/// A text that is no UTF-8 keeps its bytes.
[[nodiscard]] std::string StoredBytes(std::string_view text);

/// The text that stored bytes stand for: UTF-8 if a byte of 0x80 or more occurs and the whole is valid UTF-8, else
/// Windows-1252, in which the five unassigned bytes stand for the control characters of the same number.
[[nodiscard]] std::string TextFromStored(std::string_view bytes);

/// `text` as it comes back from a file. Two texts that are written alike give the same.
[[nodiscard]] std::string StoredText(std::string_view text);

/// What names are compared by where letter case does not count: equal for names that files tell apart by case only.
[[nodiscard]] std::string NameKey(std::string_view name);

[[nodiscard]] bool IsUtf8(std::string_view bytes);

/// The parts of `text` between separators; an empty text has one empty part.
[[nodiscard]] std::vector<std::string> Split(std::string_view text, char separator);

/// At most `count` characters of a UTF-8 text.
[[nodiscard]] std::string_view FirstCharacters(std::string_view text, std::size_t count);

/// The characters of a UTF-8 text that fit whole into its first `bytes`.
[[nodiscard]] std::string_view CharactersInBytes(std::string_view text, std::size_t bytes);

} // namespace sprout
