// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/sound/MachineCapture.h"

#include <gtest/gtest.h>

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <string>
#include <utility>
#include <vector>

#include "app/sound/MachineCaptureDesk.h"

namespace sprout {
namespace {

/// Another program that records.
class RecordingChild {
public:
    RecordingChild(const fs::path& left, const fs::path& right, int blocks)
    {
        std::vector<std::string> words{SPROUT_RECORD_CHILD, left, right, std::to_string(blocks)};
        std::vector<char*> arguments;
        for (std::string& word : words)
            arguments.push_back(word.data());
        arguments.push_back(nullptr);
        if (::posix_spawn(&process, SPROUT_RECORD_CHILD, nullptr, nullptr, arguments.data(), environ) != 0)
            process = 0;
    }
    RecordingChild(const RecordingChild&) = delete;
    RecordingChild& operator=(const RecordingChild&) = delete;
    ~RecordingChild() { Kill(); }

    void Kill()
    {
        if (process == 0)
            return;
        ::kill(process, SIGKILL);
        static_cast<void>(Answer());
    }
    [[nodiscard]] int Answer()
    {
        int status = 0;
        ::waitpid(std::exchange(process, 0), &status, 0);
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

private:
    pid_t process = 0;
};

TEST_F(MachineCaptureTest, TwoProgramsRecordAtOnce)
{
    Plug("mic1");
    const fs::path otherLeft = folder.Path() / "TqkTmp2.WavL";
    const fs::path otherRight = folder.Path() / "TqkTmp2.WavR";
    RecordingChild child(otherLeft, otherRight, 5);
    ASSERT_EQ(capture.Open(), CaptureOpening::Ready);
    ASSERT_TRUE(Start());
    EXPECT_TRUE(KeepsBlocks(5));
    EXPECT_EQ(child.Answer(), 0);
    capture.Stop();
    EXPECT_EQ(capture.Status().LostPieces, 0);
    EXPECT_GE(fs::file_size(left), 88200U);
    EXPECT_GE(fs::file_size(otherLeft), 88200U);
    EXPECT_EQ(fs::file_size(otherRight), fs::file_size(otherLeft));
}

TEST_F(MachineCaptureTest, WhatAKilledProgramRecordedIsDeletedByTheNextStart)
{
    Plug("mic1");
    RecordingChild child(left, right, 1000);
    const auto grows = [&] {
        std::error_code error;
        const std::uintmax_t size = fs::file_size(right, error);
        return !error && size > 0;
    };
    ASSERT_TRUE(Comes(grows));
    DeleteLeftCaptureFiles(folder.Path());
    EXPECT_TRUE(fs::exists(left)); // it runs
    child.Kill();
    EXPECT_TRUE(fs::exists(left));
    capture.DeleteLeftFiles(folder.Path());
    EXPECT_TRUE(Comes([&] { return !fs::exists(left) && !fs::exists(right); }));
}

} // namespace
} // namespace sprout
