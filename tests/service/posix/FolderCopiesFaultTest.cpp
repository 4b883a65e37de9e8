// SPDX-License-Identifier: GPL-3.0-or-later
// Each system call of a folder's copy fails here once or permanently.
#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>
#include <string>
#include <system_error>
#include <vector>

#include "support/Faults.h"
#include "support/InstalledBeats.h"

namespace sprout {
namespace {

namespace fs = std::filesystem;

using Names = std::vector<std::string>;

class FolderCopies : public testing::Test {
protected:
    ~FolderCopies() override { TheFaults() = Faults(); }

    /// The result of a copy with a fault.
    struct Outcome {
        bool refused = false;
        std::vector<LeftOutFile> leftOut;
    };

    [[nodiscard]] Outcome FillWith(const Faults& faults) const { return CopyWith(faults, &InstalledBeats::Fill); }

    [[nodiscard]] Outcome CopyWith(const Faults& faults, std::vector<LeftOutFile> (InstalledBeats::*copy)() const) const
    {
        Outcome outcome;
        TheFaults() = faults;
        try {
            outcome.leftOut = (beats.*copy)();
        } catch (const std::system_error&) {
            outcome.refused = true;
        }
        TheFaults() = Faults();
        return outcome;
    }

    /// The target is complete except for the reported files, or does not exist; the next copy is complete.
    void ExpectWholeOrNothing(const Outcome& outcome) const
    {
        auto wanted = beats.Installed();
        for (const LeftOutFile& file : outcome.leftOut)
            EXPECT_EQ(wanted.erase(file.Path.lexically_relative(beats.Source())), 1U);
        if (outcome.refused)
            wanted.clear();
        EXPECT_EQ(beats.Filled(), wanted);
        EXPECT_EQ(beats.NamesOfUser(), outcome.refused ? Names{} : Names{"Beats"});
        fs::remove_all(beats.Target());
        EXPECT_TRUE(beats.Fill().empty());
        EXPECT_EQ(beats.Filled(), beats.Installed());
        EXPECT_EQ(beats.NamesOfUser(), Names{"Beats"});
        fs::remove_all(beats.Target());
    }

    InstalledBeats beats;
};

TEST_F(FolderCopies, AreWholeOrNothingWhereACallFailsOnce)
{
    TheFaults() = Faults();
    static_cast<void>(beats.Fill());
    const auto calls = TheFaults().calls;
    fs::remove_all(beats.Target());
    for (const SystemCall call : {SystemCall::Open, SystemCall::Read, SystemCall::Write, SystemCall::Mkdir,
                                  SystemCall::Fsync, SystemCall::Close, SystemCall::Rename, SystemCall::Fstat}) {
        const auto number = static_cast<std::size_t>(call);
        EXPECT_GE(calls[number], 1) << kCallNames[number];
        for (int nth = 1; nth <= calls[number]; ++nth) {
            SCOPED_TRACE(std::string(kCallNames[number]) + " " + std::to_string(nth));
            ExpectWholeOrNothing(FillWith({call, nth, Fault::FailOnce, EIO}));
        }
    }
}

TEST_F(FolderCopies, AddFilesAtTheNextTryWhereACallFailsOnce)
{
    const auto begin = [this] {
        fs::remove_all(beats.Target());
        fs::create_directories(beats.Target());
        WriteBytes(beats.Target() / "mine.wav", "mine");
    };
    begin();
    TheFaults() = Faults();
    static_cast<void>(beats.Add());
    const auto whole = beats.Filled();
    const auto calls = TheFaults().calls;
    for (const SystemCall call : {SystemCall::Write, SystemCall::Mkdir, SystemCall::Fsync, SystemCall::Rename}) {
        const auto number = static_cast<std::size_t>(call);
        EXPECT_GE(calls[number], 1) << kCallNames[number];
        for (int nth = 1; nth <= calls[number]; ++nth) {
            SCOPED_TRACE(std::string(kCallNames[number]) + " " + std::to_string(nth));
            begin();
            static_cast<void>(CopyWith({call, nth, Fault::FailOnce, EIO}, &InstalledBeats::Add));
            EXPECT_EQ(beats.Filled()["mine.wav"], "mine");
            EXPECT_TRUE(beats.Add().empty());
            EXPECT_EQ(beats.Filled(), whole);
            EXPECT_EQ(beats.NamesOfUser(), Names{"Beats"});
        }
    }
}

TEST_F(FolderCopies, AreMadeWholeOnceAFullDiskHasRoom)
{
    for (const SystemCall call : {SystemCall::Write, SystemCall::Mkdir, SystemCall::Fsync}) {
        SCOPED_TRACE(kCallNames[static_cast<std::size_t>(call)]);
        const Outcome outcome = FillWith({call, 2, Fault::FailForGood, ENOSPC});
        EXPECT_TRUE(outcome.refused || call == SystemCall::Mkdir);
        ExpectWholeOrNothing(outcome);
    }
}

TEST_F(FolderCopies, LeaveOutTheFileThatFailsToBeRead)
{
    const Outcome outcome = FillWith({SystemCall::Read, 1, Fault::FailOnce, EIO});
    EXPECT_FALSE(outcome.refused);
    EXPECT_EQ(outcome.leftOut.size(), 1U);
    EXPECT_EQ(beats.Filled().size(), 2U);
}

TEST_F(FolderCopies, DoWithoutTimesThatCannotBeKept)
{
    const Outcome outcome = FillWith({SystemCall::Futimens, 1, Fault::FailForGood, EPERM});
    EXPECT_TRUE(outcome.leftOut.empty());
    EXPECT_EQ(beats.Filled(), beats.Installed());
}

TEST_F(FolderCopies, GoOnAfterInterruptedCalls)
{
    for (const SystemCall call : {SystemCall::Open, SystemCall::Read, SystemCall::Write, SystemCall::Fsync}) {
        const Outcome outcome = FillWith({call, 2, Fault::FailOnce, EINTR});
        EXPECT_FALSE(outcome.refused) << kCallNames[static_cast<std::size_t>(call)];
        EXPECT_TRUE(outcome.leftOut.empty());
        EXPECT_EQ(beats.Filled(), beats.Installed());
        fs::remove_all(beats.Target());
    }
}

} // namespace
} // namespace sprout
