// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace sprout {

/// The command line is wrong; `what()` says how.
class UsageError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// An option that a command knows.
struct OptionRule {
    std::string_view name; ///< with its dashes
    bool takesValue = false;
};

/// The words after a command, sorted into options and the rest.
class Arguments {
public:
    /// Throws `UsageError` if an option is unknown, is given twice or lacks its value. "--" ends the options.
    Arguments(const std::vector<std::string>& words, const std::vector<OptionRule>& rules);

    [[nodiscard]] const std::vector<std::string>& Words() const { return words; }
    [[nodiscard]] bool Has(std::string_view option) const { return options.contains(std::string(option)); }
    [[nodiscard]] std::optional<std::string> Text(std::string_view option) const;
    /// A whole number from `least` to `most`. Throws `UsageError` for anything else.
    [[nodiscard]] std::optional<std::int32_t> Number(std::string_view option, std::int32_t least,
                                                     std::int32_t most) const;
    /// Throws `UsageError` unless there are exactly `count` words.
    void RequireWords(std::size_t count, std::string_view names) const;

private:
    std::vector<std::string> words;
    std::map<std::string, std::string> options;
};

/// A factor from 0.5 to 2, or nothing.
[[nodiscard]] std::optional<float> ParseFactor(std::string_view text);

} // namespace sprout
