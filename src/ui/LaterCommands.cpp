// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/LaterCommands.h"

#include <algorithm>
#include <array>

#include "base/Words.h"
#include "ui/Dialogs.h"

namespace sprout {

namespace {

struct LaterCommand {
    std::string_view button;
    LaterWords line1;
    LaterWords line2;
};

constexpr std::array kLaterCommands{
    LaterCommand{"DemoBtn", Words::Later("There is no demo to watch yet."),
                 Words::Later("Click the Help button to read how to make a song.")},
};

} // namespace

void ShowLaterCommand(std::string_view buttonName)
{
    const auto* row =
        std::find_if(kLaterCommands.begin(), kLaterCommands.end(),
                     [buttonName](const LaterCommand& candidate) { return candidate.button == buttonName; });
    if (row != kLaterCommands.end())
        ShowMessage(row->line1, row->line2);
}

} // namespace sprout
