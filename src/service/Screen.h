// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <string_view>

namespace sprout {

/// What the engine shows while it works. All calls come from the interface thread.
class Screen {
public:
    Screen() = default;
    Screen(const Screen&) = delete;
    Screen& operator=(const Screen&) = delete;
    virtual ~Screen() = default;

    /// Saves the pointer's shape and shows the hourglass; `RestorePointer` brings the saved shape back. Calls nest.
    virtual void ShowHourglass() = 0;
    virtual void RestorePointer() = 0;

    /// The working sign of the main window. Calls nest.
    virtual void ShowProcessPic() = 0;
    virtual void HideProcessPic() = 0;

    /// Long work tells how far it is: `done` of `total` pieces. Throws `WorkStopped` where the work may be stopped and
    /// its user asked for that.
    virtual void ShowProgress(std::size_t done, std::size_t total) = 0;

    /// From here to `EndStoppable` the user may stop the work: if it lasts, a window shows its progress and `what` is
    /// being done, a short sentence. Calls do not nest. Where there are no windows nothing can be stopped.
    virtual void BeginStoppable(std::string_view /*what*/) {}
    /// The work goes on with something else.
    virtual void NextStage(std::string_view /*what*/) {}
    virtual void EndStoppable() {}

    /// Lets tracks without a chosen tune blink.
    virtual void EnableTuneNotFilledTimer() = 0;
};

} // namespace sprout
