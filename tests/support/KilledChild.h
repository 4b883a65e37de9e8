// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <sys/ptrace.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

namespace sprout {

/// The step between the calls that are killed. A sanitizer makes calls of its own and slows down each call.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
inline constexpr int kKillStep = 11;
#else
inline constexpr int kKillStep = 1;
#endif

/// Runs `work` in a child process and kills it instead of its system call number `nth`, counted from 1. Returns false
/// if it ended before that call.
template <class Work>
bool KilledAtSystemCall(int nth, Work work)
{
    const pid_t child = ::fork();
    if (child == 0) {
        ::ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
        ::raise(SIGSTOP);
        work();
        ::_exit(0);
    }
    int status = 0;
    EXPECT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFSTOPPED(status)) << "the child cannot be traced";
    // A traced child stops before each call and again after it.
    for (int stop = 1; stop < 2 * nth; ++stop) {
        ::ptrace(PTRACE_SYSCALL, child, nullptr, nullptr);
        EXPECT_EQ(::waitpid(child, &status, 0), child);
        if (!WIFSTOPPED(status)) {
            EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << status;
            return false;
        }
    }
    ::kill(child, SIGKILL);
    EXPECT_EQ(::waitpid(child, &status, 0), child);
    return true;
}

/// Runs `work` in several child processes at the same time and waits until all have succeeded.
template <class Work>
void RunAtOnce(int count, Work work)
{
    int gate[2];
    ASSERT_EQ(::pipe(gate), 0);
    for (int number = 0; number < count; ++number) {
        if (::fork() != 0)
            continue;
        char start = 0;
        ::close(gate[1]);
        static_cast<void>(::read(gate[0], &start, 1)); // all begin when the pipe is closed
        work(number);
        ::_exit(testing::Test::HasFailure() ? 1 : 0);
    }
    ::close(gate[0]);
    ::close(gate[1]);
    for (int number = 0; number < count; ++number) {
        int status = 0;
        ASSERT_GT(::wait(&status), 0);
        EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << status;
    }
}

} // namespace sprout
