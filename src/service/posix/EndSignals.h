// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "service/posix/Descriptor.h"

namespace sprout {

/// The signals by which a system asks a program to end: SIGTERM, SIGHUP and SIGINT. As long as it lives each of them
/// writes a byte into a pipe and does nothing else; a signal that was ignored before stays ignored. There may be one of
/// these in a program.
class EndSignals {
public:
    /// Without a pipe the signals end the program as they always do.
    EndSignals();
    EndSignals(const EndSignals&) = delete;
    EndSignals& operator=(const EndSignals&) = delete;
    ~EndSignals();

    /// The end of the pipe that becomes readable with a signal; -1 without a pipe. It never blocks.
    [[nodiscard]] int Number() const { return readEnd.Number(); }

private:
    Descriptor readEnd{-1};
    Descriptor writeEnd{-1};
};

} // namespace sprout
