// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <exception>
#include <stdexcept>
#include <string>

namespace sprout {

/// A run-time error of the program's own; `what()` is a plain sentence that may be shown to the user.
class RunTimeError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Thrown where the user ended long work. No failure, so that nothing that tells of failures takes it for one.
class WorkStopped {};

/// The sentence that tells the user of any exception: its own words, or plain ones for those of the standard library.
[[nodiscard]] std::string ErrorText(const std::exception& error);

} // namespace sprout
