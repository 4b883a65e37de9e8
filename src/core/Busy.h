// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

#include "service/Screen.h"
#include "service/Services.h"

namespace sprout {

/// The hourglass, as long as it lives.
class Hourglass {
public:
    Hourglass() { TheServices().screen->ShowHourglass(); }
    Hourglass(const Hourglass&) = delete;
    Hourglass& operator=(const Hourglass&) = delete;
    ~Hourglass() { TheServices().screen->RestorePointer(); }
};

/// The hourglass and the working sign, as long as it lives.
class WorkingSign {
public:
    WorkingSign() { TheServices().screen->ShowProcessPic(); }
    WorkingSign(const WorkingSign&) = delete;
    WorkingSign& operator=(const WorkingSign&) = delete;
    ~WorkingSign() { TheServices().screen->HideProcessPic(); }

private:
    Hourglass hourglass;
};

/// Work that its user may stop, as long as it lives: `Screen::ShowProgress` then throws `WorkStopped`.
class StoppableWork {
public:
    /// what: a short sentence that tells what is being done.
    explicit StoppableWork(std::string_view what) { TheServices().screen->BeginStoppable(what); }
    StoppableWork(const StoppableWork&) = delete;
    StoppableWork& operator=(const StoppableWork&) = delete;
    ~StoppableWork() { TheServices().screen->EndStoppable(); }

    void GoOnWith(std::string_view what) { TheServices().screen->NextStage(what); }
};

} // namespace sprout
