// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <string>
#include <string_view>

namespace sprout {

/// Text in memory is UTF-8; Qt shows it.
[[nodiscard]] inline QString QtText(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

} // namespace sprout
