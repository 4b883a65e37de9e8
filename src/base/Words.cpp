// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/Words.h"

#include <cassert>
#include <utility>

#include "base/Text.h"

namespace sprout {

Words::Words(const LaterWords& later) : Words(later.pattern, {}) {}

Words::Words(const char* englishPattern, std::vector<Words> patternArguments)
    : pattern(*englishPattern == '\0' ? nullptr : englishPattern), arguments(std::move(patternArguments))
{
    assert(PlacesOf(englishPattern) == static_cast<int>(arguments.size()));
}

Words Words::AsIs(std::string_view text)
{
    Words words;
    words.text = text;
    return words;
}

Words Words::Joined(std::vector<Words> parts, std::string_view separator)
{
    if (parts.empty())
        return {};
    Words words = AsIs(separator);
    words.arguments = std::move(parts);
    return words;
}

std::string Words::English() const
{
    return Filled([](const char* english) { return std::string(english); });
}

std::string Words::Filled(const LookUp& lookUp) const
{
    if (!pattern && arguments.empty())
        return text;
    std::string filled;
    if (!pattern) {
        for (const Words& part : arguments)
            filled += (&part == &arguments.front() ? "" : text) + part.Filled(lookUp);
        return filled;
    }
    const std::string found = lookUp(pattern);
    for (std::size_t i = 0; i < found.size(); ++i) {
        const std::size_t place =
            i + 1 < found.size() ? static_cast<std::size_t>(found[i + 1] - '1') : arguments.size();
        if (found[i] != '%' || place >= arguments.size()) {
            filled += found[i];
            continue;
        }
        filled += arguments[place].Filled(lookUp);
        ++i;
    }
    return filled;
}

bool Words::IsBlank() const
{
    return Trim(English()).empty();
}

bool operator==(const Words& a, const Words& b)
{
    const bool samePattern = a.pattern && b.pattern ? std::string_view(a.pattern) == b.pattern : a.pattern == b.pattern;
    return samePattern && a.text == b.text && a.arguments == b.arguments;
}

} // namespace sprout
