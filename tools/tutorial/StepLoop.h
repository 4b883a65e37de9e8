// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

#include <functional>
#include <string>
#include <utility>

namespace sprout {

/// Runs steps one after the other in the application's event loops. A step may open a window that waits for an answer;
/// the next ones then run in that window's own loop.
class StepLoop : public QObject {
public:
    /// step: does one step; returns false if there was none left.
    explicit StepLoop(std::function<bool()> doStep) : step(std::move(doStep)) {}

    /// Returns when all steps are done. Throws `RunTimeError` with what the first failing one has thrown.
    void Run();

    /// Lets everything happen that waits.
    static void Settle();

private:
    void QueueStep();
    void DoStep();

    std::function<bool()> step;
    std::string failure;
    bool isQueued = false;
};

} // namespace sprout
