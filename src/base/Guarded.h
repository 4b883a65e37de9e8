// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <exception>
#include <string_view>

#include "base/Log.h"

namespace sprout {

/// The one guard around what may fail: runs the operation and passes its error on to `tell(const std::exception&)`,
/// which may throw it again by `throw;`. Returns whether the operation succeeded.
template <class Operation, class Teller>
bool GuardedBy(Teller tell, Operation operation)
{
    try {
        operation();
        return true;
    } catch (const std::exception& error) {
        tell(error);
        return false;
    }
}

/// The same for work whose failure stays quiet on the screen: the log gets a line.
template <class Operation>
bool GuardedQuietly(std::string_view work, Operation operation)
{
    return GuardedBy([work](const std::exception& error) { LogFailure(work, error); }, operation);
}

} // namespace sprout
