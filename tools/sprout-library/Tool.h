// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace sprout {

/// Runs the tool with the arguments after its name. Returns the exit status: 0, 1 if something failed or a rule is
/// broken, 2 for wrong arguments.
int RunTool(const std::vector<std::string>& words, std::ostream& out, std::ostream& err);

} // namespace sprout
