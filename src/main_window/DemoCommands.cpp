// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/DemoCommands.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "main_window/TrackCommands.h"
#include "main_window/TransportCommands.h"
#include "ui/Windows.h"
#include "ui/forms/Dialogs.h"
#include "ui/forms/Guarded.h"
#include "ui/widgets/Hints.h"
#include "ui/widgets/NamesMenu.h"

namespace sprout {

void DemoCommands::DemoBtn(QWidget& button)
{
    ShowHint({});
    Guarded([this, &button] {
        const std::vector<std::string> names = TheWindows().DemoNames();
        if (names.empty())
            ShowMessage(Words::Text("There is no demo to watch yet."),
                        Words::Text("Click the Help button to read how to make a song."));
        else
            ChooseAndShow(button, names);
    });
}

void DemoCommands::ChooseAndShow(QWidget& button, const std::vector<std::string>& names)
{
    const TransportCommands::Timers transportTimers = transport.DisableTimers();
    const bool tracksBlinked = tracks.DisableTuneNotFilledTimer();
    NamesMenu menu("PopUpMenu1", "MenuPop", &button);
    const std::optional<std::size_t> chosen = menu.Choose(names, button.mapToGlobal(QPoint(0, button.height())));
    if (!chosen) {
        transport.EnableTimers(transportTimers);
        if (tracksBlinked)
            tracks.EnableTuneNotFilledTimer();
        return;
    }
    // Whatever happens in the demo, the main window is as before afterwards.
    Guarded([&] { TheWindows().ShowDemo(*button.window(), names[*chosen]); });
    transport.EndDemo();
    tracks.EnableTuneNotFilledTimer();
}

} // namespace sprout
