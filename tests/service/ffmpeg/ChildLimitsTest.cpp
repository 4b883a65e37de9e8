// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/ffmpeg/ChildLimits.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <poll.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstddef>
#include <functional>

#include "support/TestFolder.h"

namespace sprout {
namespace {

constexpr std::size_t kMegabyte = std::size_t{1} << 20;

bool CanHave(std::size_t bytes)
{
    void* memory = ::mmap(nullptr, bytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED)
        return false;
    ::munmap(memory, bytes);
    return true;
}

/// Returns true if the question is true in a process with limits.
bool HoldsInAChild(const std::function<bool()>& question)
{
    const pid_t child = ::fork();
    if (child == 0)
        ::_exit(LimitChild(1000) && question() ? 0 : 1);
    int status = -1;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

TEST(ChildLimits, LeaveMemoryForASoundAndNotMuchMore)
{
    EXPECT_TRUE(HoldsInAChild([] { return CanHave(48 * kMegabyte); }));
    EXPECT_TRUE(HoldsInAChild([] { return !CanHave(80 * kMegabyte); }));
}

TEST(ChildLimits, OpenNoOtherFile)
{
    EXPECT_TRUE(HoldsInAChild([] { return ::open("/dev/null", O_RDONLY) < 0 && errno == EMFILE; }));
}

TEST(ChildLimits, LetNoFileGrowBeyondTheirLimit)
{
    const TestFolder folder;
    const int file = ::open((folder.Path() / "file").c_str(), O_WRONLY | O_CREAT, 0600);
    ASSERT_GE(file, 0);
    EXPECT_TRUE(HoldsInAChild([file] {
        const std::array<char, 1000> bytes{};
        return ::write(file, bytes.data(), bytes.size()) == 1000 && ::write(file, bytes.data(), 1) < 0 &&
               errno == EFBIG;
    }));
    ::close(file);
}

TEST(ChildLimits, EndTheChildWithItsParent)
{
    std::array<int, 2> pipe{};
    ASSERT_EQ(::pipe(pipe.data()), 0);
    const pid_t parent = ::fork();
    if (parent == 0) {
        if (::fork() == 0) {
            ::alarm(60); // in case it is not ended
            const bool isLimited = LimitChild(1000) && ::write(pipe[1], "x", 1) == 1;
            while (isLimited)
                ::pause();
            ::_exit(1);
        }
        char byte = 0;
        ::_exit(::read(pipe[0], &byte, 1) == 1 ? 0 : 1); // as soon as its own child is limited
    }
    ::close(pipe[1]);
    int status = -1;
    ::waitpid(parent, &status, 0);
    EXPECT_EQ(status, 0);
    pollfd end = {pipe[0], POLLIN, 0};
    EXPECT_EQ(::poll(&end, 1, 10000), 1) << "the child lives on and holds the pipe";
    ::close(pipe[0]);
}

} // namespace
} // namespace sprout
