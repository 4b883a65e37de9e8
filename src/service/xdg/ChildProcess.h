// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <sys/types.h>

#include <chrono>
#include <optional>
#include <stop_token>
#include <string>
#include <utility>
#include <vector>

namespace sprout {

/// A program that was started in a session of its own, without a terminal and with none of our files. One that still
/// runs when the object goes runs on, and leaves no zombie when it ends.
class ChildProcess {
public:
    /// Starts a program, looked for on the PATH, without a shell. words: the program and its arguments, at least one.
    /// output: the descriptor that takes what it writes to its standard output; below 0: nobody does. What it writes to
    /// its standard error is lost. Nothing where it cannot be started.
    [[nodiscard]] static std::optional<ChildProcess> Start(std::vector<std::string> words, int output = -1);

    ChildProcess(ChildProcess&& other) noexcept : id(std::exchange(other.id, 0)), status(other.status) {}
    ChildProcess& operator=(ChildProcess&&) = delete;
    ~ChildProcess();

    /// Waits until the program has ended; false where it has not within `limit`, or where `stop` asks to wait no
    /// longer.
    [[nodiscard]] bool EndsWithin(std::chrono::milliseconds limit, const std::stop_token& stop);

    /// True once the program has ended by itself and without a complaint.
    [[nodiscard]] bool Succeeded() const;

    /// Ends the program and those that it started.
    void Kill();

private:
    explicit ChildProcess(pid_t started) : id(started) {}
    bool HasEnded();

    pid_t id; ///< 0: it has ended
    std::optional<int> status;
};

} // namespace sprout
