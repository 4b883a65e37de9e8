// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/xdg/ChildProcess.h"
#include "base/Log.h"

#include <sys/wait.h>

#include <algorithm>
#include <condition_variable>
#include <csignal>
#include <cstdlib>
#include <mutex>
#include <system_error>
#include <thread>

#include "posix/StartProgram.h"

namespace sprout {

namespace {

constexpr std::chrono::milliseconds kBetweenLooks{20};

int WaitForEnd(pid_t id)
{
    int status = 0;
    WaitForProgram(id, status);
    return status;
}

} // namespace

std::optional<ChildProcess> ChildProcess::Start(std::vector<std::string> words, int output)
{
    ProgramStart how;
    how.Output = output;
    how.HasOwnSession = true;
    const pid_t id = StartProgram(std::move(words), how);
    if (id == 0)
        return std::nullopt;
    return ChildProcess(id);
}

ChildProcess::~ChildProcess()
{
    if (id == 0 || HasEnded())
        return;
    try {
        std::thread([id = id] { WaitForEnd(id); }).detach(); // a mail program may outlive this one
    } catch (const std::system_error& error) {
        LogFailure("Waiting for a program", error);
        return; // without a thread the ended program is reaped when this one ends
    }
}

bool ChildProcess::HasEnded()
{
    int ended = 0;
    if (id != 0 && WaitForProgram(id, ended, WNOHANG) == id) {
        status = ended;
        id = 0;
    }
    return id == 0;
}

bool ChildProcess::EndsWithin(std::chrono::milliseconds limit, const std::stop_token& stop)
{
    const auto end = std::chrono::steady_clock::now() + limit;
    std::mutex mutex;
    std::unique_lock lock(mutex);
    std::condition_variable_any stopped;
    while (!HasEnded()) {
        const auto now = std::chrono::steady_clock::now();
        if (stop.stop_requested() || now >= end)
            return false;
        stopped.wait_until(lock, stop, std::min(end, now + kBetweenLooks), [] { return false; });
    }
    return true;
}

bool ChildProcess::Succeeded() const
{
    return status && WIFEXITED(*status) && WEXITSTATUS(*status) == EXIT_SUCCESS;
}

void ChildProcess::Kill()
{
    if (id == 0)
        return;
    ::kill(-id, SIGKILL); // the session's process group has this number
    status = WaitForEnd(std::exchange(id, 0));
}

} // namespace sprout
