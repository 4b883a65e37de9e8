// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "posix/Descriptor.h"

namespace sprout {

/// The signals with which a system asks a program to end: SIGTERM, SIGHUP and SIGINT. While this object lives, each of
/// them writes a byte into a pipe and does nothing else; a signal that was ignored before stays ignored. Only one of
/// these may exist in a program.
class EndSignals {
public:
    /// Without a pipe the signals end the program as usual.
    EndSignals();
    EndSignals(const EndSignals&) = delete;
    EndSignals& operator=(const EndSignals&) = delete;
    ~EndSignals();

    /// The end of the pipe that becomes readable on a signal; -1 without a pipe. It never blocks.
    [[nodiscard]] int Number() const { return readEnd.Number(); }

private:
    Descriptor readEnd{-1};
    Descriptor writeEnd{-1};
};

} // namespace sprout
