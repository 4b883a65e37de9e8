// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

namespace sprout {

/// The extensions of the program's files.
inline constexpr std::string_view kSongExtension = ".TqSng";
inline constexpr std::string_view kTuneExtension = ".TqTun";
inline constexpr std::string_view kStarExtension = ".TqSta";
inline constexpr std::string_view kWaveExtension = ".wav";
inline constexpr std::string_view kPictureExtension = ".bmp";
inline constexpr std::string_view kWmaExtension = ".wma";

} // namespace sprout
