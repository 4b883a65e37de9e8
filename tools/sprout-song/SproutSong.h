// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace sprout {

/// The exit status of a command, as the shell sees it.
enum ExitCode : int { kDone = 0, kFailed = 1, kWrongUsage = 2 };

/// Runs one command of the companion tool. arguments: without the program's name. Facts go to `out`, every message to
/// `err` as "TITLE: TEXT". Returns an `ExitCode`.
int RunSproutSong(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err);

} // namespace sprout
