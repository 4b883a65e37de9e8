// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <filesystem>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace sprout {

/// Size limit for reading files of this form and tunes of the old form.
inline constexpr std::uint64_t kMostIniBytes = 4'194'304;

/// The section for everything that has none of its own.
inline constexpr std::string_view kGeneralSection = "General";

/// A text of sections in square brackets, with one key, an equals sign and a value per line.
///
/// Sections and keys are looked up regardless of case; if a key occurs twice, the first one wins, even across several
/// sections of the same name. Blanks around a value and one matching pair of quotes are dropped. Everything else that
/// is not understood is kept as it is.
class IniFile {
public:
    IniFile() = default;

    /// Parses the bytes of a file.
    explicit IniFile(std::string_view bytes);

    /// Reads the file that `path` finds, whatever its letter case; a missing file counts as empty. So does one that
    /// cannot be read or is larger than `kMostIniBytes`, but `Write` never replaces it.
    [[nodiscard]] static IniFile Read(const std::filesystem::path& path);

    [[nodiscard]] bool Has(std::string_view section, std::string_view key) const;
    [[nodiscard]] std::string Value(std::string_view section, std::string_view key, std::string_view fallback) const;

    void SetValue(std::string_view section, std::string_view key, std::string_view value);
    void RemoveSection(std::string_view section);

    /// The bytes of the file; lines end with CR LF.
    [[nodiscard]] std::string Bytes() const;

    /// Creates or completely replaces the file that `path` finds, whatever its letter case. Throws `RunTimeError`, also
    /// if the existing file could not be read.
    void Write(const std::filesystem::path& path) const;

private:
    struct Line {
        std::string bytes;   // as in the file
        std::string section; // lower case
        std::string key;     // lower case; empty if the line has no key and value
        bool heading = false;
    };

    void Index();

    bool unreadable = false; // the file has content that is not known here
    std::vector<Line> lines;
    std::unordered_map<std::string, std::size_t> places; // section, zero byte, key -> line
};

/// The value of `key`, or `fallback` if the file has none or the key is blank.
[[nodiscard]] std::string GetIniValue(std::string_view section, std::string_view key, std::string_view fallback,
                                      const std::filesystem::path& file);

struct IniValue {
    std::string_view key;
    std::string value;
};

/// Writes values. A blank section becomes "General"; a blank key deletes the section. The file is read again and
/// replaced once, while no other running program does the same, but not if it already has these values. Ignores
/// failures, for example in a read-only folder.
void PutIniValues(std::string_view section, std::span<const IniValue> values, const std::filesystem::path& file);

/// Writes one value, likewise.
void PutIniValue(std::string_view section, std::string_view key, std::string_view value,
                 const std::filesystem::path& file);

} // namespace sprout
