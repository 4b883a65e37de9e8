// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace sprout {

// Text in memory is UTF-8. In files it is one byte per character in the code page Windows-1252; a text with a character
// outside that page is stored entirely as UTF-8, so names in any alphabet survive.

/// `text` without leading and trailing blanks.
[[nodiscard]] std::string_view Trim(std::string_view text);

/// `text` in lower case, for letters of all alphabets.
[[nodiscard]] std::string LowerCase(std::string_view text);

[[nodiscard]] bool EqualIgnoringCase(std::string_view a, std::string_view b);

/// True if `text` begins with `prefix`, ignoring case.
[[nodiscard]] bool BeginsIgnoringCase(std::string_view text, std::string_view prefix);

/// The bytes that represent `text` in a file.
///
/// A text whose single bytes would be valid UTF-8 is stored as UTF-8, so that it is read back unchanged.
/// A text that is not UTF-8 keeps its bytes.
[[nodiscard]] std::string StoredBytes(std::string_view text);

/// The text that stored bytes represent: UTF-8 if there is a byte of 0x80 or more and the whole is valid UTF-8,
/// otherwise Windows-1252, where the five unassigned bytes are the control characters of the same number.
[[nodiscard]] std::string TextFromStored(std::string_view bytes);

/// `text` as it is read back from a file. Two texts that are stored alike give the same result.
[[nodiscard]] std::string StoredText(std::string_view text);

/// The key for comparing names without regard to letter case: equal for names whose stored forms differ only in case.
[[nodiscard]] std::string NameKey(std::string_view name);

[[nodiscard]] bool IsUtf8(std::string_view bytes);

/// The parts of `text` between separators; an empty text has one empty part.
[[nodiscard]] std::vector<std::string> Split(std::string_view text, char separator);

/// At most `count` characters of a UTF-8 text.
[[nodiscard]] std::string_view FirstCharacters(std::string_view text, std::size_t count);

/// The characters of a UTF-8 text that fit completely into its first `bytes`.
[[nodiscard]] std::string_view CharactersInBytes(std::string_view text, std::size_t bytes);

} // namespace sprout
