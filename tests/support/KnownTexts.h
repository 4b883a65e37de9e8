// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <set>
#include <string>
#include <string_view>
#include <utility>

#include "base/Words.h"

namespace sprout {

/// The texts that the translation source file lists, each with its context. Whatever a test shows must be among them,
/// otherwise it would stay English in every language.
class KnownTexts {
public:
    /// translationSource: what the file says.
    explicit KnownTexts(std::string_view translationSource);

    /// Those of the program.
    [[nodiscard]] static const KnownTexts& OfProgram();

    [[nodiscard]] bool Has(std::string_view context, std::string_view text) const;
    [[nodiscard]] std::size_t Count() const { return texts.size(); }

    /// Fails the current test unless `text` is listed in `context`.
    void Expect(std::string_view context, std::string_view text) const;

private:
    std::set<std::pair<std::string, std::string>, std::less<>> texts;
};

/// The English of words that a test shows; fails the test for a pattern that translators do not get.
[[nodiscard]] std::string ShownEnglish(const Words& words);

} // namespace sprout
