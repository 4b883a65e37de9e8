// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

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

} // namespace sprout
