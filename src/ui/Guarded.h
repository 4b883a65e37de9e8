// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <exception>

#include "base/Errors.h"
#include "service/Messages.h"
#include "service/Services.h"

namespace sprout {

/// Runs the operation of an event. Qt cannot carry an exception through its event loop, so the error is shown to the
/// user in a plain box and the event ends. Returns whether it succeeded.
///
/// beforeTold: stops whatever would trigger the same operation again while the box is open.
template <class Operation, class Preparation>
bool Guarded(Operation operation, Preparation beforeTold)
{
    try {
        operation();
        return true;
    } catch (const std::exception& error) {
        beforeTold();
        TheServices().messages->MessageBox("", ErrorText(error));
        return false;
    }
}

template <class Operation>
bool Guarded(Operation operation)
{
    return Guarded(operation, [] {});
}

} // namespace sprout
