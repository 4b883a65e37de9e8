// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/QtScreen.h"

#include <QApplication>
#include <QWindow>

#include <utility>

namespace sprout {

namespace {

constexpr int kBlinkMs = 50;

} // namespace

void QtScreen::ShowHourglass()
{
    if (WindowHasAppeared())
        QApplication::setOverrideCursor(Qt::WaitCursor);
    else
        ++waitingHourglasses;
}

void QtScreen::RestorePointer()
{
    if (waitingHourglasses > 0)
        --waitingHourglasses;
    else
        QApplication::restoreOverrideCursor();
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
    if (!processPic)
        return;
    if (sinceShown.isValid() && sinceShown.hasExpired(kBlinkMs))
        LetWindowAppear();
    processPic->ShowProgress(done, total);
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
    if (!WindowHasAppeared())
        return;
    for (; waitingHourglasses > 0; --waitingHourglasses)
        QApplication::setOverrideCursor(Qt::WaitCursor);
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
