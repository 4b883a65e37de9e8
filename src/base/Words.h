// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

namespace sprout {

/// The number of arguments that a pattern takes: the N of its highest place "%N"; -1 if a lower place is missing.
[[nodiscard]] constexpr int PlacesOf(std::string_view pattern)
{
    unsigned seen = 0;
    for (std::size_t i = 0; i + 1 < pattern.size(); ++i)
        if (pattern[i] == '%' && pattern[i + 1] >= '1' && pattern[i + 1] <= '9')
            seen |= 1U << (pattern[i + 1] - '1');
    int places = 0;
    for (; (seen & 1U) != 0; seen >>= 1U)
        ++places;
    return seen == 0 ? places : -1;
}

/// A pattern for `places` arguments. Only a literal becomes one, and only if it takes that many.
template <int places>
class Pattern {
public:
    template <std::size_t size>
    consteval Pattern(const char (&literal)[size]) : text(literal) // NOLINT(google-explicit-constructor)
    {
        if (PlacesOf({literal, size - 1}) != places)
            ThePatternTakesAnotherNumberOfArguments();
    }

    [[nodiscard]] constexpr const char* Text() const { return text; }

private:
    static void ThePatternTakesAnotherNumberOfArguments() {} // is not constexpr, so calling it does not compile

    const char* text;
};

class LaterWords;

/// A text for people: an English pattern and its arguments, or a text that is not the program's own. The windows look
/// its pattern up in the translation when they show it; tools print the English. Copies share nothing.
class Words {
public:
    /// No text.
    Words() = default;
    Words(const LaterWords& later); // NOLINT(google-explicit-constructor): tables hold words as well

    /// The words of a literal whose places %1 to %9 take the arguments: texts, whole numbers, other words. All places
    /// are filled in one pass, so an argument may itself contain "%1".
    template <class... Arguments>
    [[nodiscard]] static Words Text(std::type_identity_t<Pattern<static_cast<int>(sizeof...(Arguments))>> pattern,
                                    const Arguments&... arguments)
    {
        return Words(pattern.Text(), {Argument(arguments)...});
    }

    /// Words without arguments for a table.
    template <std::size_t size>
    [[nodiscard]] static consteval LaterWords Later(const char (&literal)[size]);

    /// A whole text that comes from outside: the name of a song or a file, a sentence of the operating system.
    [[nodiscard]] static Words AsIs(std::string_view text);

    /// All of `parts`, one after the other, with `separator` between them.
    [[nodiscard]] static Words Joined(std::vector<Words> parts, std::string_view separator);

    [[nodiscard]] std::string English() const;

    /// What `lookUp` gives for each pattern, filled with the arguments.
    using LookUp = std::function<std::string(const char* pattern)>;
    [[nodiscard]] std::string Filled(const LookUp& lookUp) const;

    /// True if there is nothing to show but blanks.
    [[nodiscard]] bool IsBlank() const;

    /// Equal patterns with equal arguments.
    friend bool operator==(const Words& a, const Words& b);

private:
    friend class LaterWords;

    Words(const char* englishPattern, std::vector<Words> patternArguments);

    [[nodiscard]] static Words Argument(const Words& words) { return words; }
    [[nodiscard]] static Words Argument(std::string_view text) { return AsIs(text); }
    template <class Number, std::enable_if_t<std::is_integral_v<Number>, int> = 0>
    [[nodiscard]] static Words Argument(Number number)
    {
        return AsIs(std::to_string(number));
    }

    const char* pattern = nullptr; ///< null: the arguments with `text` between them or, without any, `text` itself
    std::string text;
    std::vector<Words> arguments;
};

/// Words that a table holds: a literal, filled with its arguments when it is used.
class LaterWords {
public:
    /// No text.
    constexpr LaterWords() = default;

    [[nodiscard]] constexpr bool IsEmpty() const { return *pattern == '\0'; }
    [[nodiscard]] std::string English() const { return pattern; }

    /// The words with their arguments, as many as the literal has places.
    template <class... Arguments>
    [[nodiscard]] Words With(const Arguments&... arguments) const
    {
        return Words(pattern, {Words::Argument(arguments)...});
    }

    friend constexpr bool operator==(const LaterWords& a, const LaterWords& b)
    {
        return std::string_view(a.pattern) == std::string_view(b.pattern);
    }

private:
    friend class Words;
    explicit constexpr LaterWords(const char* literal) : pattern(literal) {}

    const char* pattern = "";
};

template <std::size_t size>
consteval LaterWords Words::Later(const char (&literal)[size])
{
    return LaterWords(literal);
}

} // namespace sprout
