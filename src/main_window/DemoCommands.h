// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include <string>
#include <vector>

namespace sprout {

class TrackCommands;
class TransportCommands;

/// The command that shows the demos. While the user chooses and watches one, nothing else plays or blinks.
class DemoCommands {
public:
    DemoCommands(TransportCommands& transportCommands, TrackCommands& trackCommands)
        : transport(transportCommands), tracks(trackCommands)
    {
    }

    /// Lets the user choose a demo in the menu `PopUpMenu1`, which opens below `button`, and shows it modally. Reports
    /// its own failures.
    void DemoBtn(QWidget& button);

private:
    void ChooseAndShow(QWidget& button, const std::vector<std::string>& names);

    TransportCommands& transport;
    TrackCommands& tracks;
};

} // namespace sprout
