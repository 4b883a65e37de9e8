// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Words.h"
#include "service/Screen.h"
#include "service/Services.h"

namespace sprout {

/// Shows the hourglass during its lifetime.
class Hourglass {
public:
    Hourglass() { TheServices().screen->ShowHourglass(); }
    Hourglass(const Hourglass&) = delete;
    Hourglass& operator=(const Hourglass&) = delete;
    ~Hourglass() { TheServices().screen->RestorePointer(); }
};

/// Shows the hourglass and the working sign during its lifetime.
class WorkingSign {
public:
    WorkingSign() { TheServices().screen->ShowProcessPic(); }
    WorkingSign(const WorkingSign&) = delete;
    WorkingSign& operator=(const WorkingSign&) = delete;
    ~WorkingSign() { TheServices().screen->HideProcessPic(); }

private:
    Hourglass hourglass;
};

/// Work that the user may stop during its lifetime: `Screen::ShowProgress` then throws `WorkStopped`.
class StoppableWork {
public:
    /// what: a short sentence that says what is being done.
    explicit StoppableWork(const Words& what) { TheServices().screen->BeginStoppable(what); }
    StoppableWork(const StoppableWork&) = delete;
    StoppableWork& operator=(const StoppableWork&) = delete;
    ~StoppableWork() { TheServices().screen->EndStoppable(); }

    void GoOnWith(const Words& what) { TheServices().screen->NextStage(what); }
};

} // namespace sprout
