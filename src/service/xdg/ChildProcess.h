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

/// A program started in its own session, without a terminal and without any of our files. If it still runs when this
/// object is destroyed, it keeps running and leaves no zombie when it ends.
class ChildProcess {
public:
    /// Starts a program, found on the PATH, without a shell. words: the program and its arguments, at least one.
    /// output: the descriptor for its standard output; below 0: discarded. Its standard error is discarded. Returns
    /// nothing if it cannot be started.
    [[nodiscard]] static std::optional<ChildProcess> Start(std::vector<std::string> words, int output = -1);

    ChildProcess(ChildProcess&& other) noexcept : id(std::exchange(other.id, 0)), status(other.status) {}
    ChildProcess& operator=(ChildProcess&&) = delete;
    ~ChildProcess();

    /// Waits until the program has ended; returns false if it has not within `limit`, or if `stop` asks to wait no
    /// longer.
    [[nodiscard]] bool EndsWithin(std::chrono::milliseconds limit, const std::stop_token& stop);

    /// True once the program has ended by itself and successfully.
    [[nodiscard]] bool Succeeded() const;

    /// Kills the program and those that it started.
    void Kill();

private:
    explicit ChildProcess(pid_t started) : id(started) {}
    bool HasEnded();

    pid_t id; ///< 0: it has ended
    std::optional<int> status;
};

} // namespace sprout
