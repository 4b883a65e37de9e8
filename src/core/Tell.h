// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <exception>

#include "base/Errors.h"
#include "base/Guarded.h"
#include "base/Words.h"

namespace sprout {

/// Shows a plain message box; a blank title leaves it untitled. Returns when the user has read it. Interface thread
/// only.
void Tell(const Words& title, const Words& text);

/// The number of messages that `Tell` has shown since the program started: compare two counts to see if one appeared in
/// between.
[[nodiscard]] std::size_t MessagesTold();

/// Runs an operation and tells its error under `title`. Returns whether it succeeded.
template <class Operation>
bool GuardedTelling(const Words& title, Operation operation)
{
    return GuardedBy([&title](const std::exception& error) { Tell(title, ErrorWords(error)); }, operation);
}

} // namespace sprout
