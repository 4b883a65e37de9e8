// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

namespace sprout {

/// How a program is started. It gets no other of our files than these, and signals as programs expect them.
struct ProgramStart {
    int Input = -1;             ///< its standard input; below 0: nothing comes
    int Output = -1;            ///< its standard output; below 0: discarded
    bool TellsErrors = false;   ///< its standard error is ours; otherwise discarded
    bool HasOwnSession = false; ///< it is in no terminal and not in our group
};

/// Starts a program, found on the PATH, without a shell. words: the program and its arguments, at least one. Returns
/// its process number, or 0 if it cannot be started.
[[nodiscard]] pid_t StartProgram(std::vector<std::string> words, const ProgramStart& how);

/// `waitpid`, repeated if a signal interrupts it.
pid_t WaitForProgram(pid_t program, int& status, int options = 0);

} // namespace sprout
