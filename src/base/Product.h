// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

namespace sprout {

inline constexpr std::string_view kAppVersionDate = "Dec 2010";
inline constexpr std::string_view kProductName = "Tonquill Sprout Painter";
inline constexpr std::string_view kProductFamily = "Tonquill";
inline constexpr std::string_view kWebSite = "https://tonquill.example/";

} // namespace sprout
