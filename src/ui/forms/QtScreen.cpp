// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/forms/QtScreen.h"

#include <QApplication>
#include <QTimer>
#include <QWindow>

#include <utility>

#include "base/Errors.h"
#include "ui/forms/Dialogs.h"

namespace sprout {

namespace {

constexpr int kBlinkMs = 50;
constexpr int kWorkFormAfterMs = 500;
constexpr int kEventsEveryMs = 20;

/// Suppresses timer ticks of other windows while it lives.
class TimersWait : public QObject {
public:
    TimersWait() { qApp->installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        return event->type() == QEvent::Timer && qobject_cast<QTimer*>(watched);
    }
};

} // namespace

void QtScreen::ShowHourglass()
{
    ++hourglasses;
    UpdateHourglass();
}

void QtScreen::RestorePointer()
{
    --hourglasses;
    UpdateHourglass();
}

/// The hourglass waits for the window to appear, and hides for a work form, whose button needs a normal pointer.
void QtScreen::UpdateHourglass()
{
    const bool wanted = hourglasses > 0 && !workFrm && WindowHasAppeared();
    if (wanted && !hourglassShown)
        QApplication::setOverrideCursor(Qt::WaitCursor);
    if (!wanted && hourglassShown)
        QApplication::restoreOverrideCursor();
    hourglassShown = wanted;
}

void QtScreen::ShowProcessPic()
{
    if (++shown != 1 || !processPic)
        return;
    sinceShown.start();
    processPic->Appear();
}

void QtScreen::HideProcessPic()
{
    if (--shown == 0 && processPic)
        processPic->hide();
}

void QtScreen::ShowProgress(std::size_t done, std::size_t total)
{
    if (processPic) {
        if (sinceShown.isValid() && sinceShown.hasExpired(kBlinkMs))
            LetWindowAppear();
        processPic->ShowProgress(done, total);
    }
    if (sinceWorkBegan.isValid())
        ShowWork(done, total);
}

void QtScreen::BeginStoppable(const Words& what)
{
    stage = what;
    sinceWorkBegan.start();
}

void QtScreen::NextStage(const Words& what)
{
    stage = what;
    if (workFrm)
        workFrm->ShowStage(stage);
}

void QtScreen::EndStoppable()
{
    sinceWorkBegan.invalidate();
    workFrm.reset();
    UpdateHourglass();
}

void QtScreen::ShowWork(std::size_t done, std::size_t total)
{
    if (!workFrm) {
        if (!sinceWorkBegan.hasExpired(kWorkFormAfterMs))
            return;
        workFrm = std::make_unique<WorkFrm>(WindowInFront(), stage);
        workFrm->Appear();
        UpdateHourglass();
        sinceEvents.invalidate();
    }
    workFrm->ShowShare(done, total);
    if (!sinceEvents.isValid() || sinceEvents.hasExpired(kEventsEveryMs)) {
        const TimersWait wait;
        QCoreApplication::processEvents();
        sinceEvents.start();
    }
    if (workFrm->StopWanted())
        throw WorkStopped();
}

bool QtScreen::WindowHasAppeared()
{
    if (!windowHasAppeared && processPic) {
        const QWindow* const window = processPic->window()->windowHandle();
        windowHasAppeared = window && window->isExposed();
    }
    return windowHasAppeared || !processPic;
}

void QtScreen::LetWindowAppear()
{
    if (!WindowHasAppeared() && processPic->window()->windowHandle())
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    UpdateHourglass();
}

void QtScreen::EnableTuneNotFilledTimer()
{
    tuneNotFilledWanted = true;
    if (enableTuneNotFilled)
        enableTuneNotFilled();
}

void QtScreen::SetProcessPic(ProcessPic* sign)
{
    processPic = sign;
}

void QtScreen::SetTuneNotFilledTimer(std::function<void()> enableTimer)
{
    enableTuneNotFilled = std::move(enableTimer);
    if (tuneNotFilledWanted && enableTuneNotFilled)
        enableTuneNotFilled();
}

} // namespace sprout
