// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <exception>

#include "core/Errors.h"
#include "service/Messages.h"
#include "service/Services.h"

namespace sprout {

/// Runs a command of the step editor; what fails is told in a plain box.
template <class Command>
void RunEditorCommand(Command command)
{
    try {
        command();
    } catch (const std::exception& error) {
        TheServices().messages->MessageBox("", ErrorText(error));
    }
}

/// Silence before a tune that an edit plays, in seconds.
inline constexpr float kEditLeadIn = 0.75F;

} // namespace sprout
