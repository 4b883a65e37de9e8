// SPDX-License-Identifier: GPL-3.0-or-later
#include "sprout-song/Arguments.h"

#include <algorithm>
#include <charconv>

namespace sprout {

Arguments::Arguments(const std::vector<std::string>& given, const std::vector<OptionRule>& rules)
{
    for (std::size_t i = 0; i < given.size(); ++i) {
        const std::string& word = given[i];
        if (word == "--") {
            words.insert(words.end(), given.begin() + static_cast<std::ptrdiff_t>(i) + 1, given.end());
            return;
        }
        if (!word.starts_with("--")) {
            words.push_back(word);
            continue;
        }
        const auto equals = word.find('=');
        const std::string name = word.substr(0, equals);
        const auto rule =
            std::find_if(rules.begin(), rules.end(), [&](const OptionRule& known) { return known.name == name; });
        if (rule == rules.end())
            throw UsageError("The option " + name + " is not known here.");
        if (rule->takesValue == (equals == std::string::npos) && (!rule->takesValue || i + 1 == given.size()))
            throw UsageError("The option " + name + (rule->takesValue ? " needs a value." : " takes no value."));
        std::string value;
        if (rule->takesValue)
            value = equals == std::string::npos ? given[++i] : word.substr(equals + 1);
        if (!options.emplace(name, value).second)
            throw UsageError("The option " + name + " is given twice.");
    }
}

std::optional<std::string> Arguments::Text(std::string_view option) const
{
    const auto found = options.find(std::string(option));
    return found == options.end() ? std::nullopt : std::optional(found->second);
}

std::optional<std::int32_t> Arguments::Number(std::string_view option, std::int32_t least, std::int32_t most) const
{
    const std::optional<std::string> text = Text(option);
    if (!text)
        return std::nullopt;
    std::int32_t number = 0;
    const char* end = text->data() + text->size();
    const auto result = std::from_chars(text->data(), end, number);
    if (result.ec != std::errc() || result.ptr != end || number < least || number > most)
        throw UsageError("The option " + std::string(option) + " takes a whole number from " + std::to_string(least) +
                         " to " + std::to_string(most) + ".");
    return number;
}

void Arguments::RequireWords(std::size_t count, std::string_view names) const
{
    if (words.size() != count)
        throw UsageError("Expected: " + std::string(names) + ".");
}

std::optional<float> ParseFactor(std::string_view text)
{
    float factor = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), factor);
    const bool whole = result.ec == std::errc() && result.ptr == text.data() + text.size();
    return whole && factor >= 0.5F && factor <= 2.0F ? std::optional(factor) : std::nullopt;
}

} // namespace sprout
