// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <exception>
#include <string_view>

namespace sprout {

/// Writes a line to standard error if the environment variable SPROUT_LOG is "1". Every failure that the screen does
/// not show gets one. Any thread; lines of different threads do not mix. Control characters are escaped.
void Log(std::string_view line);

/// Logs a failure. work: what failed, such as "Reading the table of tunes".
void LogFailure(std::string_view work, const std::exception& error);

} // namespace sprout
