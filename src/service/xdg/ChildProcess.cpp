// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/xdg/ChildProcess.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <condition_variable>
#include <csignal>
#include <cstdlib>
#include <mutex>
#include <system_error>
#include <thread>

namespace sprout {

namespace {

constexpr std::chrono::milliseconds kBetweenLooks{20};

/// Where a new program's standard streams go.
class StreamActions {
public:
    explicit StreamActions(int output)
    {
        ::posix_spawn_file_actions_init(&actions);
        // This comes first: if one of our own standard streams is closed, the output may have its number.
        if (output >= 0)
            ::posix_spawn_file_actions_adddup2(&actions, output, STDOUT_FILENO);
        else
            ::posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
        ::posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
        ::posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
        ::posix_spawn_file_actions_addclosefrom_np(&actions, STDERR_FILENO + 1);
    }
    StreamActions(const StreamActions&) = delete;
    StreamActions& operator=(const StreamActions&) = delete;
    ~StreamActions() { ::posix_spawn_file_actions_destroy(&actions); }

    posix_spawn_file_actions_t actions{};
};

/// A new session, and signals as a program expects them.
class SessionAttributes {
public:
    SessionAttributes()
    {
        ::posix_spawnattr_init(&attributes);
        sigset_t none;
        sigemptyset(&none);
        sigset_t all;
        sigfillset(&all);
        ::posix_spawnattr_setsigmask(&attributes, &none);
        ::posix_spawnattr_setsigdefault(&attributes, &all);
        ::posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSID | POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
    }
    SessionAttributes(const SessionAttributes&) = delete;
    SessionAttributes& operator=(const SessionAttributes&) = delete;
    ~SessionAttributes() { ::posix_spawnattr_destroy(&attributes); }

    posix_spawnattr_t attributes{};
};

int WaitForEnd(pid_t id)
{
    int status = 0;
    while (::waitpid(id, &status, 0) < 0 && errno == EINTR) {
    }
    return status;
}

} // namespace

std::optional<ChildProcess> ChildProcess::Start(std::vector<std::string> words, int output)
{
    std::vector<char*> arguments;
    arguments.reserve(words.size() + 1);
    for (std::string& word : words)
        arguments.push_back(word.data());
    arguments.push_back(nullptr);
    const StreamActions streams(output);
    const SessionAttributes session;
    pid_t id = 0;
    if (::posix_spawnp(&id, arguments.front(), &streams.actions, &session.attributes, arguments.data(), environ) != 0)
        return std::nullopt;
    return ChildProcess(id);
}

ChildProcess::~ChildProcess()
{
    if (id == 0 || HasEnded())
        return;
    try {
        std::thread([id = id] { WaitForEnd(id); }).detach(); // a mail program may outlive this one
    } catch (const std::system_error&) {
        return; // without a thread the ended program is reaped when this one ends
    }
}

bool ChildProcess::HasEnded()
{
    int ended = 0;
    if (id != 0 && ::waitpid(id, &ended, WNOHANG) == id) {
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
