// SPDX-License-Identifier: GPL-3.0-or-later
#include "tutorial/StepLoop.h"

#include <gmock/gmock.h>

#include <QCoreApplication>
#include <QDialog>

#include <vector>

#include "base/Errors.h"

namespace sprout {
namespace {

using testing::ElementsAre;

TEST(StepLoop, DoesOneStepAfterTheOther)
{
    int steps = 0;
    StepLoop([&steps] { return ++steps < 4; }).Run();
    EXPECT_EQ(steps, 4);
}

TEST(StepLoop, GoesOnInsideAWindowThatWaits)
{
    QDialog dialog;
    std::vector<std::string> log;
    int steps = 0;
    StepLoop([&] {
        switch (++steps) {
        case 1:
            log.emplace_back("open");
            dialog.exec();
            log.emplace_back("closed");
            return true;
        case 2:
            log.emplace_back(dialog.isVisible() ? "inside" : "outside");
            dialog.accept();
            return true;
        default:
            return false;
        }
    }).Run();
    EXPECT_THAT(log, ElementsAre("open", "inside", "closed"));
}

TEST(StepLoop, DoesNoStepWhileAStepLooksForEvents)
{
    int depth = 0;
    int steps = 0;
    StepLoop([&] {
        EXPECT_EQ(depth++, 0);
        for (int i = 0; i < 3; ++i)
            QCoreApplication::processEvents();
        --depth;
        return ++steps < 3;
    }).Run();
    EXPECT_EQ(steps, 3);
}

TEST(StepLoop, TellsWhyAStepFailed)
{
    int steps = 0;
    StepLoop loop([&steps]() -> bool {
        ++steps;
        throw RunTimeError(Words::AsIs("No window is open."));
    });
    try {
        loop.Run();
        FAIL();
    } catch (const RunTimeError& error) {
        EXPECT_STREQ(error.what(), "No window is open.");
    }
    EXPECT_EQ(steps, 1);
}

} // namespace
} // namespace sprout
