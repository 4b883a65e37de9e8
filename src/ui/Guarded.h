// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <exception>

#include "base/Errors.h"
#include "service/Messages.h"
#include "service/Services.h"

namespace sprout {

/// Runs what an event asks for. Qt cannot carry an exception through its event loop: the user is told of it in a plain
/// box, and the event ends. Returns whether it went well.
///
/// beforeTold: ends what would ask for the same again while the box is open.
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
