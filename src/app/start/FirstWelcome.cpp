// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/start/FirstWelcome.h"

#include "app/start/SampleSong.h"
#include "core/Settings.h"
#include "core/Shared.h"

namespace sprout {

bool TakeFirstWelcome()
{
    if (StartsSoFar() > 0 || IsSetToOne("WelcomeShown"))
        return false;
    PutSetting(kGeneralSection, "WelcomeShown", "1");
    return true;
}

} // namespace sprout
