// SPDX-License-Identifier: GPL-3.0-or-later
#include "posix/StartProgram.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <csignal>
#include <fstream>
#include <iterator>

#include "posix/Descriptor.h"
#include "support/TestFolder.h"

namespace sprout {
namespace {

namespace fs = std::filesystem;

class StartProgramTest : public testing::Test {
protected:
    /// Runs a shell script to its end; returns the exit status, below 0 if it was killed.
    [[nodiscard]] static int Run(const std::string& script, const ProgramStart& how)
    {
        const pid_t program = StartProgram({"sh", "-c", script}, how);
        int status = 0;
        EXPECT_GT(program, 0);
        EXPECT_EQ(WaitForProgram(program, status), program);
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

    /// What a script writes to its standard output.
    [[nodiscard]] std::string Told(const std::string& script, ProgramStart how = {}) const
    {
        const fs::path path = folder.Path() / "told";
        {
            const Descriptor file(::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, kOwnerOnly));
            how.Output = file.Number();
            EXPECT_EQ(Run(script, how), 0);
        }
        std::ifstream told(path);
        return {std::istreambuf_iterator<char>(told), {}};
    }

    TestFolder folder;
};

TEST_F(StartProgramTest, PassesTheWordsAsTheyAre)
{
    int status = 0;
    const pid_t program = StartProgram({"test", "a b\"$HOME", "=", "a b\"$HOME"}, {});
    ASSERT_EQ(WaitForProgram(program, status), program);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
}

TEST_F(StartProgramTest, AMissingProgramIsNotStarted)
{
    EXPECT_EQ(StartProgram({folder.Path() / "none"}, {}), 0);
}

TEST_F(StartProgramTest, GivesTheInputOrNone)
{
    const fs::path path = folder.Path() / "input";
    std::ofstream(path) << "words";
    const Descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
    EXPECT_EQ(Told("cat", {file.Number()}), "words");
    EXPECT_EQ(Told("cat"), "");
}

TEST_F(StartProgramTest, GivesNoneOfOurOtherFiles)
{
    const Descriptor inheritable(::open("/dev/null", O_RDONLY));
    const std::string open = "[ -e /proc/self/fd/" + std::to_string(inheritable.Number()) + " ]";
    ASSERT_GT(inheritable.Number(), 2);
    EXPECT_NE(Run(open, {}), 0);
}

TEST_F(StartProgramTest, DiscardsErrorsUnlessTheyAreWanted)
{
    const auto errors = Told("readlink /proc/self/fd/2");
    EXPECT_EQ(errors, "/dev/null\n");
    ProgramStart told;
    told.TellsErrors = true;
    char ours[4096] = {};
    ASSERT_GT(::readlink("/proc/self/fd/2", ours, sizeof ours - 1), 0);
    EXPECT_EQ(Told("readlink /proc/self/fd/2", told), std::string(ours) + "\n");
}

TEST_F(StartProgramTest, SignalsAreAsProgramsExpectThem)
{
    ::signal(SIGTERM, SIG_IGN);
    const int status = Run("kill -TERM $$; exit 0", {});
    ::signal(SIGTERM, SIG_DFL);
    EXPECT_EQ(status, -1);
}

TEST_F(StartProgramTest, TheSessionIsOursOrItsOwn)
{
    const std::string session = "cut -d ' ' -f 6 /proc/$$/stat";
    const std::string ours = std::to_string(::getsid(0)) + "\n";
    EXPECT_EQ(Told(session), ours);
    ProgramStart own;
    own.HasOwnSession = true;
    EXPECT_NE(Told(session, own), ours);
}

TEST_F(StartProgramTest, WaitingWithoutPatienceReturnsAtOnce)
{
    const pid_t program = StartProgram({"sleep", "60"}, {});
    int status = 0;
    EXPECT_EQ(WaitForProgram(program, status, WNOHANG), 0);
    ::kill(program, SIGKILL);
    EXPECT_EQ(WaitForProgram(program, status), program);
    EXPECT_TRUE(WIFSIGNALED(status));
    EXPECT_LT(WaitForProgram(program, status), 0);
}

} // namespace
} // namespace sprout
