// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QElapsedTimer>
#include <QPointer>

#include <functional>
#include <memory>
#include <string>

#include "base/Words.h"
#include "service/Screen.h"
#include "ui/forms/WorkFrm.h"
#include "ui/widgets/ProcessPic.h"

namespace sprout {

/// The hourglass, the busy sign and the blinking of tracks without a tune. Until the main window has passed its sign
/// and its timer, calls are only counted.
///
/// A `WorkFrm` shows the progress of long stoppable work. It handles its events whenever the work reports progress. The
/// timers of other windows wait meanwhile, because they would meet a song that is being rendered.
///
/// If work takes longer than the blink of an eye before the desktop has shown the new main window, it lets the window
/// appear. Until then there is nothing to point at, and the hourglass waits.
class QtScreen : public Screen {
public:
    void ShowHourglass() override;
    void RestorePointer() override;
    void ShowProcessPic() override;
    void HideProcessPic() override;
    void ShowProgress(std::size_t done, std::size_t total) override;
    void BeginStoppable(const Words& what) override;
    void NextStage(const Words& what) override;
    void EndStoppable() override;
    void EnableTuneNotFilledTimer() override;

    /// Sets the main window's busy sign; it may be destroyed before the screen.
    void SetProcessPic(ProcessPic* sign);
    /// Sets what enables the main window's `TuneNotFilledTimer`. An earlier request is carried out at once.
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
    Words stage;
    std::unique_ptr<WorkFrm> workFrm;
    int shown = 0;
    int hourglasses = 0;
    bool hourglassShown = false;
    bool windowHasAppeared = false;
    bool tuneNotFilledWanted = false;
};

} // namespace sprout
