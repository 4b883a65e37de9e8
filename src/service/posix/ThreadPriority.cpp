// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/posix/ThreadPriority.h"

#include <sys/resource.h>

namespace sprout {

namespace {

constexpr int kLowPriority = 10; // of 19: a machine that is busy otherwise still lets it go on

}

void LowerThreadPriority()
{
    // In Linux, 0 means the calling thread alone. If the system refuses, the work is done all the same.
    static_cast<void>(::setpriority(PRIO_PROCESS, 0, kLowPriority));
}

} // namespace sprout
