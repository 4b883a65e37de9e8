// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <exception>

#include "base/Errors.h"
#include "base/Guarded.h"
#include "base/Words.h"
#include "service/Messages.h"
#include "service/Services.h"

namespace sprout {

/// Runs the operation of an event. Qt cannot carry an exception through its event loop, so the error is shown to the
/// user in a plain box and the event ends. Returns whether it succeeded.
///
/// failed: the text of the box; "%1" takes the error's sentence.
template <class Operation>
bool Guarded(const LaterWords& failed, Operation operation)
{
    return GuardedBy(
        [&failed](const std::exception& error) {
            TheServices().messages->MessageBox({}, failed.With(ErrorWords(error)));
        },
        operation);
}

/// The same with the error's sentence alone.
///
/// beforeTold: stops whatever would trigger the same operation again while the box is open.
template <class Operation, class Preparation>
bool GuardedOnce(Operation operation, Preparation beforeTold)
{
    return GuardedBy(
        [&beforeTold](const std::exception& error) {
            beforeTold();
            TheServices().messages->MessageBox({}, ErrorWords(error));
        },
        operation);
}

template <class Operation>
bool Guarded(Operation operation)
{
    return GuardedOnce(operation, [] {});
}

} // namespace sprout
