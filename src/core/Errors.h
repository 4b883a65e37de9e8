// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <stdexcept>

namespace sprout {

/// A run-time error of the program's own; `what()` is a plain sentence that may be shown to the user.
class RunTimeError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

} // namespace sprout
