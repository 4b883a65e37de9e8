// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <string>
#include <string_view>

#include "base/Words.h"

namespace sprout {

/// The one context of all translations.
inline constexpr const char* kWordsContext = "Words";

/// Converts UTF-8 text to a Qt string.
[[nodiscard]] inline QString QtText(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// The words in the language of the windows.
[[nodiscard]] QString QtText(const Words& words);

/// The same for what leaves the windows, such as a mail: bytes that are no UTF-8 stay as they are.
[[nodiscard]] std::string ShownText(const Words& words);

} // namespace sprout
