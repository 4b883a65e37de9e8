// SPDX-License-Identifier: GPL-3.0-or-later
#include "sound/RenderSetting.h"

#include "core/Shared.h"
#include "service/Screen.h"
#include "service/Services.h"
#include "sound/RenderAhead.h"

namespace sprout {

RenderSetting SharedSetting()
{
    RenderAhead::LetPlayRender();
    const auto show = [](std::size_t done, std::size_t total) { TheServices().screen->ShowProgress(done, total); };
    return {Shared().Song, TheStepCache(), UnloadedBeats::AreRead, show, {}};
}

} // namespace sprout
