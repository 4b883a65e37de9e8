// SPDX-License-Identifier: GPL-3.0-or-later
#include "beat_window/ChooseBeat.h"

#include "beat_window/BeatWindow.h"
#include "ui/forms/Dialogs.h"

namespace sprout {

bool ChooseBeat(std::string& name)
{
    BeatWindow window(WindowInFront());
    window.ChosenBeatName = name;
    window.LoadBeatFiles();
    window.ShowModal();
    if (window.OkPressed)
        name = window.ChosenBeatName;
    return window.OkPressed;
}

} // namespace sprout
