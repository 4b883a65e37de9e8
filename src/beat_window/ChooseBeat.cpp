// SPDX-License-Identifier: GPL-3.0-or-later
#include "beat_window/ChooseBeat.h"

#include <QApplication>

#include "beat_window/BeatWindow.h"

namespace sprout {

bool ChooseBeat(std::string& name)
{
    BeatWindow window(QApplication::activeWindow());
    window.ChosenBeatName = name;
    window.LoadBeatFiles();
    window.ShowModal();
    if (window.OkPressed)
        name = window.ChosenBeatName;
    return window.OkPressed;
}

} // namespace sprout
