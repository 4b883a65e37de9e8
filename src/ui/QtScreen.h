// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QElapsedTimer>
#include <QPointer>

#include <functional>
#include <memory>
#include <string>

#include "service/Screen.h"
#include "ui/ProcessPic.h"
#include "ui/WorkFrm.h"

namespace sprout {

/// Hourglass, working sign and the blinking of tracks without a tune. Before the main window has given its sign and its
/// timer, their calls do nothing but are counted.
///
/// Of stoppable work that lasts, a `WorkFrm` shows the progress. It has its events while the work tells how far it is;
/// the timers of the other windows wait meanwhile, since they would meet a song that is being rendered.
///
/// Work that goes on while the desktop has not yet put the new main window on the screen lets it appear, if the work is
/// not done in the blink of an eye. Before it has appeared there is nothing to point at, and the hourglass waits.
class QtScreen : public Screen {
public:
    void ShowHourglass() override;
    void RestorePointer() override;
    void ShowProcessPic() override;
    void HideProcessPic() override;
    void ShowProgress(std::size_t done, std::size_t total) override;
    void BeginStoppable(std::string_view what) override;
    void NextStage(std::string_view what) override;
    void EndStoppable() override;
    void EnableTuneNotFilledTimer() override;

    /// The main window's working sign; it may go before the screen does.
    void SetProcessPic(ProcessPic* sign);
    /// What enables the main window's `TuneNotFilledTimer`. A request that came before is met at once.
    void SetTuneNotFilledTimer(std::function<void()> enableTimer);

private:
    bool WindowHasAppeared();
    void LetWindowAppear();
    void UpdateHourglass();
    void ShowWork(std::size_t done, std::size_t total);

    QPointer<ProcessPic> processPic;
    std::function<void()> enableTuneNotFilled;
    QElapsedTimer sinceShown;
    QElapsedTimer sinceWorkBegan; // valid during stoppable work
    QElapsedTimer sinceEvents;
    std::string stage;
    std::unique_ptr<WorkFrm> workFrm;
    int shown = 0;
    int hourglasses = 0;
    bool hourglassShown = false;
    bool windowHasAppeared = false;
    bool tuneNotFilledWanted = false;
};

} // namespace sprout
