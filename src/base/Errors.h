// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <exception>
#include <stdexcept>
#include <string>

namespace sprout {

/// One of the program's own run-time errors; `what()` is a plain sentence that may be shown to the user.
class RunTimeError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Thrown when the user stops long work. It is not a failure, so code that reports failures does not report it.
class WorkStopped {};

/// The sentence that describes an exception to the user: its own text, or plain words for those of the standard
/// library.
[[nodiscard]] std::string ErrorText(const std::exception& error);

} // namespace sprout
