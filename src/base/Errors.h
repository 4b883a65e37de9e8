// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <exception>
#include <memory>
#include <stdexcept>

#include "base/Words.h"

namespace sprout {

/// One of the program's own run-time errors: a plain sentence that may be shown to the user. `what()` is its English.
class RunTimeError : public std::runtime_error {
public:
    explicit RunTimeError(const Words& sentence);

    [[nodiscard]] const Words& Sentence() const { return *words; }

private:
    std::shared_ptr<const Words> words; ///< copying an error must not throw another
};

/// Thrown when the user stops long work. It is not a failure, so code that reports failures does not report it.
class WorkStopped {};

/// The sentence that describes an exception to the user: its own, or plain words for those of the standard library.
[[nodiscard]] Words ErrorWords(const std::exception& error);

} // namespace sprout
