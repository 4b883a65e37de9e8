// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/sound/MachineCapture.h"

#include <gtest/gtest.h>

#include <chrono>
#include <regex>
#include <vector>

#include "app/sound/MachineCaptureDesk.h"

namespace sprout {
namespace {

TEST_F(MachineCaptureTest, ARampArrivesWithoutALostADoubledOrAForeignFrame)
{
    Plug("mic1");
    ASSERT_EQ(capture.Open(), CaptureOpening::Ready);
    ASSERT_TRUE(Start());
    ASSERT_TRUE(Records());
    constexpr int kFrames = 3 * 44100 + 7;
    auto played = Play("mic1", kFrames);
    EXPECT_EQ(played.get(), "");
    EXPECT_TRUE(KeepsBlocks(2));
    capture.Stop();
    const std::vector<int> heard = Sounded(Files().Numbers());
    EXPECT_EQ(heard.size(), kFrames);
    EXPECT_EQ(GapsOf(heard), "");
    EXPECT_EQ(heard.empty() ? -1 : heard.front(), 0);
    const CaptureStatus status = capture.Status();
    EXPECT_EQ(status.LostPieces, 0);
    EXPECT_EQ(status.State, CaptureState::Stopped);
    EXPECT_EQ(status.End, CaptureEnd::None);
    EXPECT_EQ(status.Blocks, static_cast<std::int64_t>(Files().left.size() / 8820));
    EXPECT_GE(status.Pieces, 150);
}

TEST_F(MachineCaptureTest, TheLevelIsToldBeforeTheStartAndNothingIsKept)
{
    Plug("mic1");
    ASSERT_EQ(capture.Open(), CaptureOpening::Ready);
    EXPECT_EQ(State(), CaptureState::Stopped);
    auto played = Play("mic1", 44100);
    EXPECT_TRUE(Comes([this] { return capture.Peaks().Left > 20000 && capture.Peaks().Right > 0; }));
    EXPECT_EQ(capture.Status().Blocks, 0);
    EXPECT_LT(capture.Status().SilentSeconds, 1);
    EXPECT_FALSE(capture.Peaks().LeftOverloaded);
    EXPECT_TRUE(Comes([this] { return capture.Peaks().Left == 0; }));
}

TEST_F(MachineCaptureTest, WithoutAMicrophoneTheComputersOwnSoundIsNotRecorded)
{
    EXPECT_EQ(capture.Open(), CaptureOpening::NoMicrophone);
    EXPECT_TRUE(Listed().Sources.empty());
    EXPECT_EQ(Listed().Selected, -1);
    EXPECT_FALSE(Start());
    EXPECT_FALSE(fs::exists(left));
}

TEST_F(MachineCaptureTest, AMonitorThatIsTheDefaultIsPassedOver)
{
    Plug("mic1");
    ASSERT_TRUE(server.Does({"set-default-source", "out.monitor"}));
    ASSERT_EQ(capture.Open(), CaptureOpening::Ready);
    EXPECT_EQ(Listed().Sources.size(), 1U);
    EXPECT_EQ(Listed().Selected, IndexOf("mic1-for-people"));
}

TEST_F(MachineCaptureTest, AMicrophoneThatIsPulledOutEndsItAndNothingForeignIsRecorded)
{
    Plug("mic1");
    ASSERT_EQ(capture.Open(), CaptureOpening::Ready);
    ASSERT_TRUE(Start());
    ASSERT_TRUE(Records());
    auto computer = Play("out", 3 * 44100, 20000);
    auto played = Play("mic1", 3 * 44100);
    EXPECT_TRUE(Comes([this] { return capture.Peaks().Left > 0; }));
    EXPECT_TRUE(KeepsBlocks(2));
    const std::uint64_t changes = capture.SourceChanges();
    ASSERT_TRUE(server.PullOut("mic1"));
    EXPECT_TRUE(IsIn(CaptureState::Stopped));
    EXPECT_EQ(capture.Status().End, CaptureEnd::MicrophoneGone);
    EXPECT_NE(capture.SourceChanges(), changes);
    EXPECT_EQ(Listed().Selected, -1);
    const std::int64_t blocks = capture.Status().Blocks;
    ASSERT_TRUE(server.PutBack("mic1"));
    EXPECT_EQ(computer.get(), "");
    EXPECT_EQ(capture.Status().Blocks, blocks);
    EXPECT_EQ(State(), CaptureState::Stopped);
    capture.Stop();
    EXPECT_EQ(capture.Status().End, CaptureEnd::MicrophoneGone);
    const std::vector<int> heard = Sounded(Files().Numbers());
    EXPECT_EQ(GapsOf(heard), "");
    EXPECT_GT(heard.size(), 8820U);
    EXPECT_EQ(heard.empty() ? -1 : heard.front(), 0);
    ASSERT_EQ(capture.Open(), CaptureOpening::Ready);
}

TEST_F(MachineCaptureTest, AServerThatDiesEndsIt)
{
    Plug("mic1");
    ASSERT_EQ(capture.Open(), CaptureOpening::Ready);
    ASSERT_TRUE(Start());
    ASSERT_TRUE(Records());
    EXPECT_TRUE(KeepsBlocks(1));
    const std::uint64_t changes = capture.SourceChanges();
    server.Kill();
    EXPECT_TRUE(IsIn(CaptureState::Stopped));
    EXPECT_EQ(capture.Status().End, CaptureEnd::MicrophoneGone);
    EXPECT_NE(capture.SourceChanges(), changes);
    EXPECT_FALSE(capture.ListSources());
    capture.Stop();
    EXPECT_GE(Files().left.size(), 8820U);
    EXPECT_EQ(Files().left.size(), Files().right.size());
    ASSERT_TRUE(server.Start());
    Plug("mic2");
    EXPECT_EQ(capture.Open(), CaptureOpening::Ready);
}

TEST_F(MachineCaptureTest, ASuspendedSourceIsAPause)
{
    Plug("mic1");
    ASSERT_EQ(capture.Open(), CaptureOpening::Ready);
    ASSERT_TRUE(Start());
    ASSERT_TRUE(Records());
    ASSERT_TRUE(server.Does({"suspend-source", "mic1-mic", "1"}));
    const std::regex suspended("mic1-mic\t.*SUSPENDED");
    if (!std::regex_search(server.Told({"pactl", "list", "short", "sources"}), suspended))
        GTEST_SKIP() << "This server suspends nothing that is recorded.";
    EXPECT_TRUE(IsIn(CaptureState::Paused));
    EXPECT_EQ(capture.Status().End, CaptureEnd::None);
    ASSERT_TRUE(server.Does({"suspend-source", "mic1-mic", "0"}));
    EXPECT_TRUE(Records());
    EXPECT_TRUE(KeepsBlocks(1));
}

TEST_F(MachineCaptureTest, AServerThatStandsStillIsAPauseAndNothingIsLost)
{
    Plug("mic1");
    ASSERT_EQ(capture.Open(), CaptureOpening::Ready);
    ASSERT_TRUE(Start());
    ASSERT_TRUE(Records());
    server.Freeze();
    EXPECT_TRUE(IsIn(CaptureState::Paused));
    const auto begun = Clock::now();
    EXPECT_FALSE(capture.ListSources());
    EXPECT_LT(Clock::now() - begun, std::chrono::seconds(1));
    server.Thaw();
    EXPECT_TRUE(Records());
}

TEST_F(MachineCaptureTest, AServerThatDoesNotAnswerFailsInTime)
{
    Plug("mic1");
    server.Freeze();
    const auto begun = Clock::now();
    EXPECT_EQ(capture.Open(), CaptureOpening::Failed);
    EXPECT_LT(Clock::now() - begun, std::chrono::seconds(1));
    server.Thaw();
    EXPECT_TRUE(Comes([this] { return capture.Open() == CaptureOpening::Ready; }));
}

TEST_F(MachineCaptureTest, AReleaseDeletesWhatWasNotFinished)
{
    Plug("mic1");
    ASSERT_EQ(capture.Open(), CaptureOpening::Ready);
    ASSERT_TRUE(Start());
    ASSERT_TRUE(Records());
    capture.Release();
    EXPECT_FALSE(fs::exists(left));
    EXPECT_FALSE(fs::exists(right));
    EXPECT_EQ(State(), CaptureState::Stopped);
    EXPECT_FALSE(Start());
}

TEST_F(MachineCaptureTest, AStoppedCaptureIsTheCallersAndAnotherCanStart)
{
    Plug("mic1");
    ASSERT_EQ(capture.Open(), CaptureOpening::Ready);
    ASSERT_TRUE(Start());
    ASSERT_TRUE(KeepsBlocks(1));
    capture.Stop();
    const std::uintmax_t size = fs::file_size(left);
    const fs::path other = folder.Path() / "TqkTmp2.WavL";
    ASSERT_TRUE(capture.Start(other, folder.Path() / "TqkTmp2.WavR"));
    EXPECT_LT(capture.Status().Blocks, 1);
    EXPECT_TRUE(KeepsBlocks(1));
    EXPECT_EQ(fs::file_size(left), size);
    capture.Release();
    EXPECT_TRUE(fs::exists(left));
    EXPECT_TRUE(fs::exists(right));
    EXPECT_FALSE(fs::exists(other));
}

TEST_F(MachineCaptureTest, AStoppedCaptureIsLockedUntilTheRelease)
{
    Plug("mic1");
    ASSERT_EQ(capture.Open(), CaptureOpening::Ready);
    ASSERT_TRUE(Start());
    capture.Stop();
    DeleteLeftCaptureFiles(folder.Path());
    EXPECT_TRUE(fs::exists(left));
    EXPECT_TRUE(fs::exists(right));
    capture.Release();
    EXPECT_TRUE(Comes([this] { // the files are closed after the call
        DeleteLeftCaptureFiles(folder.Path());
        return !fs::exists(left) && !fs::exists(right);
    }));
}

TEST_F(MachineCaptureTest, AStopBeforeTheFirstFrameLeavesFilesOfOneLength)
{
    Plug("mic1");
    ASSERT_EQ(capture.Open(), CaptureOpening::Ready);
    ASSERT_TRUE(Start());
    capture.Stop();
    EXPECT_EQ(Files().left.size(), Files().right.size());
    EXPECT_LT(Files().left.size(), 8820U);
}

TEST_F(MachineCaptureTest, AFolderThatIsNotThereFailsTheStart)
{
    Plug("mic1");
    ASSERT_EQ(capture.Open(), CaptureOpening::Ready);
    EXPECT_FALSE(capture.Start(folder.Path() / "gone" / "l", folder.Path() / "gone" / "r"));
    EXPECT_EQ(State(), CaptureState::Stopped);
    EXPECT_TRUE(Start());
}

TEST_F(MachineCaptureTest, ACaptureThatEndedByItselfCanBeFinished)
{
    Plug("mic1");
    CaptureLimits limits;
    limits.mostFrames = 20000;
    MachineCapture limited(limits);
    ASSERT_EQ(limited.Open(), CaptureOpening::Ready);
    ASSERT_TRUE(limited.Start(left, right));
    EXPECT_TRUE(Comes([&] { return limited.Status().End == CaptureEnd::TooLong; }));
    EXPECT_EQ(limited.Status().State, CaptureState::Stopped);
    EXPECT_EQ(limited.Status().Blocks, 2);
    limited.Stop();
    EXPECT_EQ(Files().left.size(), 20000U);
    EXPECT_EQ(Files().right.size(), 20000U);
}

} // namespace
} // namespace sprout
