// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/posix/ThreadPriority.h"

#include <gtest/gtest.h>

#include <sys/resource.h>

#include <thread>

namespace sprout {
namespace {

int OwnPriority()
{
    return ::getpriority(PRIO_PROCESS, 0);
}

TEST(LowerThreadPriority, HoldsForTheThreadAndThoseItStarts)
{
    const int before = OwnPriority();
    int lowered = 0;
    int inherited = 0;
    std::thread([&] {
        LowerThreadPriority();
        lowered = OwnPriority();
        std::thread([&] { inherited = OwnPriority(); }).join();
    }).join();
    EXPECT_GT(lowered, before);
    EXPECT_EQ(inherited, lowered);
    EXPECT_EQ(OwnPriority(), before) << "the others keep theirs";
}

} // namespace
} // namespace sprout
