// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>

#include "base/Words.h"

namespace sprout {

/// What the engine shows while it works. All calls come from the interface thread.
class Screen {
public:
    Screen() = default;
    Screen(const Screen&) = delete;
    Screen& operator=(const Screen&) = delete;
    virtual ~Screen() = default;

    /// Saves the pointer's shape and shows the hourglass; `RestorePointer` restores the saved shape. Calls nest.
    virtual void ShowHourglass() = 0;
    virtual void RestorePointer() = 0;

    /// The working sign of the main window. Calls nest.
    virtual void ShowProcessPic() = 0;
    virtual void HideProcessPic() = 0;

    /// Reports the progress of long work: `done` of `total` pieces. Throws `WorkStopped` if the work may be stopped and
    /// the user asked for that.
    virtual void ShowProgress(std::size_t done, std::size_t total) = 0;

    /// From here to `EndStoppable` the user may stop the work. If it takes long, a window shows its progress and
    /// `what`, a short sentence about what is being done. Calls do not nest. Without windows nothing can be stopped.
    virtual void BeginStoppable(const Words& /*what*/) {}
    /// The work continues with another stage.
    virtual void NextStage(const Words& /*what*/) {}
    virtual void EndStoppable() {}

    /// Makes tracks without a chosen tune blink.
    virtual void EnableTuneNotFilledTimer() = 0;
};

} // namespace sprout
