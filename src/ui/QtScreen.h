// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPointer>

#include <functional>

#include "service/Screen.h"
#include "ui/ProcessPic.h"

namespace sprout {

/// Hourglass, working sign and the blinking of tracks without a tune. Before the main window has given its sign and its
/// timer, their calls do nothing but are counted.
class QtScreen : public Screen {
public:
    void ShowHourglass() override;
    void RestorePointer() override;
    void ShowProcessPic() override;
    void HideProcessPic() override;
    void ShowProgress(std::size_t done, std::size_t total) override;
    void EnableTuneNotFilledTimer() override;

    /// The main window's working sign; it may go before the screen does.
    void SetProcessPic(ProcessPic* sign);
    /// What enables the main window's `TuneNotFilledTimer`. A request that came before is met at once.
    void SetTuneNotFilledTimer(std::function<void()> enableTimer);

private:
    QPointer<ProcessPic> processPic;
    std::function<void()> enableTuneNotFilled;
    int shown = 0;
    bool tuneNotFilledWanted = false;
};

} // namespace sprout
