// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>
#include <vector>

#include "sprout-song/Arguments.h"
#include "sprout-song/Session.h"

namespace sprout {

/// One command of the tool.
struct Command {
    std::string_view name;
    std::string_view words;                  ///< what follows the name
    std::string_view help;                   ///< one line
    std::vector<OptionRule> options;         ///< in addition to those of all commands
    bool (*run)(Session&, const Arguments&); ///< returns true if everything was done; throws `UsageError`
};

/// All commands, in the order of the help.
[[nodiscard]] const std::vector<Command>& AllCommands();

bool RunInfo(Session& session, const Arguments& arguments);
bool RunRender(Session& session, const Arguments& arguments);
bool RunExport(Session& session, const Arguments& arguments);
bool RunCycle(Session& session, const Arguments& arguments);
bool RunResave(Session& session, const Arguments& arguments);
bool RunThumbnail(Session& session, const Arguments& arguments);
bool RunConvert(Session& session, const Arguments& arguments);
bool RunStretch(Session& session, const Arguments& arguments);

} // namespace sprout
