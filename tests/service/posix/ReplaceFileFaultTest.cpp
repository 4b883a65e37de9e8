// SPDX-License-Identifier: GPL-3.0-or-later
// Each system call of a file's replacement fails here once, permanently or halfway, or is the program's last one.
#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <array>
#include <cerrno>
#include <filesystem>
#include <span>
#include <string>
#include <vector>

#include "base/Errors.h"
#include "service/posix/PosixFiles.h"
#include "support/Faults.h"
#include "support/TestFolder.h"

namespace sprout {
namespace {

namespace fs = std::filesystem;

const std::string kOld(3000, 'o');
const std::string kNew(200000, 'n');
constexpr std::size_t kCallsOfASave = 6; // the first ones in the list

class ReplaceFile : public testing::Test {
protected:
    ReplaceFile() { WriteBytes(Target(), kOld); }
    ~ReplaceFile() override { TheFaults() = Faults(); }

    [[nodiscard]] fs::path Target() const { return folder.Path() / "song.TqSng"; }

    /// Returns false if the caller got an error.
    bool Save(Flush flush = Flush::Yes)
    {
        const auto bytes = std::as_bytes(std::span(kNew));
        const std::array pieces = {bytes.first(7), bytes.subspan(7, 0), bytes.subspan(7)};
        try {
            PosixFiles().ReplaceFile(Target(), pieces, flush);
            return true;
        } catch (const RunTimeError& error) {
            EXPECT_NE(std::string(error.what()).find(Target().native()), std::string::npos) << error.what();
            return false;
        }
    }

    [[nodiscard]] std::size_t FilesBeside() const
    {
        std::size_t files = 0;
        for ([[maybe_unused]] const auto& entry : fs::directory_iterator(folder.Path()))
            ++files;
        return files - 1;
    }

    TestFolder folder;
};

/// The number of calls of each kind in a save.
std::vector<int> CallsOfASave()
{
    const TestFolder folder;
    WriteBytes(folder.Path() / "song.TqSng", kOld);
    TheFaults() = Faults();
    const auto bytes = std::as_bytes(std::span(kNew));
    PosixFiles().ReplaceFile(folder.Path() / "song.TqSng", {&bytes, 1}, Flush::Yes);
    const std::vector<int> calls(TheFaults().calls.begin(), TheFaults().calls.end());
    TheFaults() = Faults();
    return calls;
}

TEST_F(ReplaceFile, MakesEveryCallThatTheFaultsHit)
{
    const std::vector<int> calls = CallsOfASave();
    for (std::size_t call = 0; call < kCallsOfASave; ++call)
        EXPECT_GE(calls[call], 1) << kCallNames[call];
}

TEST_F(ReplaceFile, LeavesTheOldOrTheNewFileWholeWhereACallFailsOnce)
{
    const std::vector<int> calls = CallsOfASave();
    for (std::size_t call = 0; call < kSystemCalls; ++call) {
        for (int nth = 1; nth <= calls[call]; ++nth) {
            SCOPED_TRACE(std::string(kCallNames[call]) + " " + std::to_string(nth));
            WriteBytes(Target(), kOld);
            TheFaults() = {static_cast<SystemCall>(call), nth, Fault::FailOnce, EIO};
            const bool saved = Save();
            TheFaults() = Faults();
            EXPECT_TRUE(ReadBytes(Target()) == (saved ? kNew : kOld));
            EXPECT_EQ(FilesBeside(), 0U);
            EXPECT_TRUE(Save());
            EXPECT_EQ(FilesBeside(), 0U);
        }
    }
}

TEST_F(ReplaceFile, LeavesTheOldFileAndTellsWhereACallFailsForGood)
{
    for (const SystemCall needed :
         {SystemCall::Open, SystemCall::Writev, SystemCall::Fsync, SystemCall::Close, SystemCall::Rename}) {
        const auto call = static_cast<std::size_t>(needed);
        for (const int error : {EIO, ENOSPC, EACCES}) {
            SCOPED_TRACE(std::string(kCallNames[call]) + " " + std::to_string(error));
            WriteBytes(Target(), kOld);
            TheFaults() = {needed, 1, Fault::FailForGood, error};
            const bool saved = Save();
            TheFaults() = Faults();
            EXPECT_FALSE(saved);
            EXPECT_EQ(ReadBytes(Target()), kOld);
            EXPECT_EQ(FilesBeside(), 0U);
        }
    }
}

TEST_F(ReplaceFile, GoesOnAfterInterruptedCalls)
{
    for (const SystemCall call :
         {SystemCall::Open, SystemCall::Writev, SystemCall::Fchmod, SystemCall::Fsync, SystemCall::Rename}) {
        WriteBytes(Target(), kOld);
        TheFaults() = {call, 1, Fault::FailOnce, EINTR};
        EXPECT_TRUE(Save()) << kCallNames[static_cast<std::size_t>(call)];
        TheFaults() = Faults();
        EXPECT_TRUE(ReadBytes(Target()) == kNew);
        EXPECT_EQ(FilesBeside(), 0U);
    }
}

TEST_F(ReplaceFile, GoesOnAfterShortWrites)
{
    TheFaults() = {SystemCall::Writev, 1, Fault::Short, 0};
    EXPECT_TRUE(Save());
    EXPECT_GT(TheFaults().calls[static_cast<std::size_t>(SystemCall::Writev)], 100);
    TheFaults() = Faults();
    EXPECT_TRUE(ReadBytes(Target()) == kNew);
}

TEST_F(ReplaceFile, TellsADiskThatTakesNothing)
{
    TheFaults() = {SystemCall::Writev, 1, Fault::Nothing, 0};
    EXPECT_FALSE(Save());
    TheFaults() = Faults();
    EXPECT_EQ(ReadBytes(Target()), kOld);
    EXPECT_EQ(FilesBeside(), 0U);
}

TEST_F(ReplaceFile, LeavesTheOldOrTheNewFileWholeWhereTheProgramIsKilled)
{
    const std::vector<int> calls = CallsOfASave();
    for (std::size_t call = 0; call < kSystemCalls; ++call) {
        for (const Fault fault : {Fault::KillBefore, Fault::KillAfter}) {
            for (int nth = 1; nth <= calls[call]; ++nth) {
                SCOPED_TRACE(std::string(kCallNames[call]) + " " + std::to_string(nth));
                WriteBytes(Target(), kOld);
                const pid_t child = ::fork();
                if (child == 0) {
                    TheFaults() = {static_cast<SystemCall>(call), nth, fault, 0};
                    Save();
                    ::_exit(1);
                }
                int status = 0;
                ASSERT_EQ(::waitpid(child, &status, 0), child);
                ASSERT_EQ(WEXITSTATUS(status), kKilled);
                const std::string left = ReadBytes(Target());
                EXPECT_TRUE(left == kOld || left == kNew);
                EXPECT_LE(FilesBeside(), 1U);
                EXPECT_TRUE(Save());
                EXPECT_TRUE(ReadBytes(Target()) == kNew);
                EXPECT_EQ(FilesBeside(), 0U);
            }
        }
    }
}

TEST_F(ReplaceFile, FlushesNothingWhereThatIsNotAskedFor)
{
    TheFaults() = {SystemCall::Fsync, 1, Fault::FailForGood, EIO};
    EXPECT_TRUE(Save(Flush::No));
    EXPECT_EQ(TheFaults().calls[static_cast<std::size_t>(SystemCall::Fsync)], 0);
}

TEST_F(ReplaceFile, SavesWhereModesAndFactsFail)
{
    for (const SystemCall call : {SystemCall::Fchmod, SystemCall::Fstat}) {
        for (const int error : {EPERM, EIO, ENOSYS}) {
            SCOPED_TRACE(std::string(kCallNames[static_cast<std::size_t>(call)]) + " " + std::to_string(error));
            WriteBytes(Target(), kOld);
            TheFaults() = {call, 1, Fault::FailForGood, error};
            EXPECT_TRUE(Save());
            TheFaults() = Faults();
            EXPECT_TRUE(ReadBytes(Target()) == kNew);
            EXPECT_EQ(FilesBeside(), 0U);
        }
    }
}

} // namespace
} // namespace sprout
