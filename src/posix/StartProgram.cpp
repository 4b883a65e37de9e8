// SPDX-License-Identifier: GPL-3.0-or-later
#include "posix/StartProgram.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

#include "posix/Descriptor.h"

namespace sprout {

namespace {

/// Where a new program's standard streams go.
class StreamActions {
public:
    explicit StreamActions(const ProgramStart& how)
    {
        ::posix_spawn_file_actions_init(&actions);
        // Ours come first: if one of our own standard streams is closed, one of them may have its number.
        Give(how.Input, STDIN_FILENO);
        Give(how.Output, STDOUT_FILENO);
        if (how.Input < 0)
            ::posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, kNowhere, O_RDONLY, 0);
        if (how.Output < 0)
            ::posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, kNowhere, O_WRONLY, 0);
        if (!how.TellsErrors)
            ::posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, kNowhere, O_WRONLY, 0);
        ::posix_spawn_file_actions_addclosefrom_np(&actions, STDERR_FILENO + 1);
    }
    StreamActions(const StreamActions&) = delete;
    StreamActions& operator=(const StreamActions&) = delete;
    ~StreamActions() { ::posix_spawn_file_actions_destroy(&actions); }

    posix_spawn_file_actions_t actions{};

private:
    static constexpr const char* kNowhere = "/dev/null";

    void Give(int ours, int stream)
    {
        if (ours >= 0)
            ::posix_spawn_file_actions_adddup2(&actions, ours, stream);
    }
};

/// A new program's session and signals.
class ProcessAttributes {
public:
    explicit ProcessAttributes(const ProgramStart& how)
    {
        ::posix_spawnattr_init(&attributes);
        sigset_t signals;
        ::sigemptyset(&signals);
        ::posix_spawnattr_setsigmask(&attributes, &signals);
        ::sigfillset(&signals);
        ::posix_spawnattr_setsigdefault(&attributes, &signals);
        const int session = how.HasOwnSession ? POSIX_SPAWN_SETSID : 0;
        ::posix_spawnattr_setflags(&attributes,
                                   static_cast<short>(POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF | session));
    }
    ProcessAttributes(const ProcessAttributes&) = delete;
    ProcessAttributes& operator=(const ProcessAttributes&) = delete;
    ~ProcessAttributes() { ::posix_spawnattr_destroy(&attributes); }

    posix_spawnattr_t attributes{};
};

} // namespace

pid_t StartProgram(std::vector<std::string> words, const ProgramStart& how)
{
    std::vector<char*> arguments;
    arguments.reserve(words.size() + 1);
    for (std::string& word : words)
        arguments.push_back(word.data());
    arguments.push_back(nullptr);
    const StreamActions streams(how);
    const ProcessAttributes process(how);
    pid_t program = 0;
    const int error =
        ::posix_spawnp(&program, arguments.front(), &streams.actions, &process.attributes, arguments.data(), environ);
    return error == 0 ? program : 0;
}

pid_t WaitForProgram(pid_t program, int& status, int options)
{
    return Uninterrupted([&] { return ::waitpid(program, &status, options); });
}

} // namespace sprout
