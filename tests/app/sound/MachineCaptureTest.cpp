// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/sound/MachineCapture.h"

#include <gtest/gtest.h>

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <future>
#include <regex>
#include <string>
#include <utility>
#include <vector>

#include "service/pulse/TestSoundServer.h"
#include "support/CaptureRamp.h"
#include "support/Comes.h"
#include "support/TestFolder.h"

namespace sprout {
namespace {

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;

/// A capture, and a microphone at a private server.
class MachineCaptureTest : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(server.Start()); }

    void Plug(const std::string& name) { ASSERT_TRUE(server.AddMicrophone(name)); }

    /// Plays a ramp into the microphone until all of it is heard.
    std::future<std::string> Play(const std::string& sink, int frames, int firstLap = 1)
    {
        const fs::path file = folder.Path() / ("ramp" + sink);
        WriteBytes(file, RampBytes(frames, firstLap));
        return std::async(std::launch::async, [this, sink, file] { return server.Play(sink, file); });
    }

    [[nodiscard]] bool Start() { return capture.Start(left, right); }
    [[nodiscard]] bool Records()
    {
        return Comes([this] { return State() == CaptureState::Recording; });
    }
    [[nodiscard]] bool IsIn(CaptureState state)
    {
        return Comes([&] { return State() == state; });
    }
    [[nodiscard]] CaptureState State() { return capture.Status().State; }
    [[nodiscard]] bool KeepsBlocks(std::int64_t more)
    {
        const std::int64_t wanted = capture.Status().Blocks + more;
        return Comes([&] { return capture.Status().Blocks >= wanted; });
    }
    [[nodiscard]] CapturedRamp Files() const { return ReadCaptured(left, right); }
    [[nodiscard]] SoundSources Listed()
    {
        const std::optional<SoundSources> sources = capture.ListSources();
        EXPECT_TRUE(sources);
        return sources.value_or(SoundSources());
    }
    [[nodiscard]] std::int32_t IndexOf(const std::string& name)
    {
        const std::vector<SoundSource> sources = Listed().Sources;
        const auto found = std::find_if(sources.begin(), sources.end(),
                                        [&](const SoundSource& source) { return source.Name == name; });
        return found == sources.end() ? -1 : static_cast<std::int32_t>(found - sources.begin());
    }
    [[nodiscard]] std::int32_t Volume(const std::string& name)
    {
        return Listed().Sources.at(static_cast<std::size_t>(IndexOf(name))).Volume;
    }

    TestFolder folder;
    const fs::path left = folder.Path() / "TqkTmp1.WavL";
    const fs::path right = folder.Path() / "TqkTmp1.WavR";
    TestSoundServer server;
    MachineCapture capture;
};

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
    EXPECT_TRUE(IsGapless(heard));
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
    EXPECT_TRUE(IsGapless(heard));
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

TEST_F(MachineCaptureTest, AMutedSourceIsSilentAndAVolumeAboveZeroUnmutesIt)
{
    Plug("mic1");
    ASSERT_EQ(capture.Open(), CaptureOpening::Ready);
    ASSERT_TRUE(Start());
    ASSERT_TRUE(Records());
    EXPECT_EQ(Volume("mic1-for-people"), 65535);
    ASSERT_TRUE(server.Does({"set-source-mute", "mic1-mic", "1"}));
    EXPECT_TRUE(Comes([this] { return Volume("mic1-for-people") == 0; }));
    auto played = Play("mic1", 2 * 44100);
    EXPECT_TRUE(Comes([this] { return capture.Status().SilentSeconds > 1; }));
    EXPECT_TRUE(Records());
    capture.SetVolume(IndexOf("mic1-for-people"), 65535);
    EXPECT_TRUE(Comes([this] { return Volume("mic1-for-people") == 65535; }));
    EXPECT_EQ(played.get(), "");
    auto again = Play("mic1", 44100);
    EXPECT_TRUE(Comes([this] { return capture.Peaks().Left > 0; }));
    EXPECT_LT(capture.Status().SilentSeconds, 1);
}

TEST_F(MachineCaptureTest, OnlyAVolumeAboveZeroUnmutesASource)
{
    Plug("mic1");
    const auto isMuted = [this] {
        return server.Told({"env", "LC_ALL=C", "pactl", "get-source-mute", "mic1-mic"}).find("yes") !=
               std::string::npos;
    };
    ASSERT_TRUE(server.Does({"set-source-mute", "mic1-mic", "1"}));
    const auto turnsTo = [this](std::int32_t volume) {
        return Comes([&] { return Volume("mic1-for-people") == volume; }); // a server may report it later
    };
    capture.SetVolume(IndexOf("mic1-for-people"), 0);
    EXPECT_TRUE(turnsTo(0));
    EXPECT_TRUE(isMuted());
    capture.SetVolume(IndexOf("mic1-for-people"), 656); // one percent
    EXPECT_TRUE(turnsTo(656));
    EXPECT_FALSE(isMuted());
    capture.SetVolume(IndexOf("mic1-for-people"), 0);
    EXPECT_TRUE(turnsTo(0));
    EXPECT_FALSE(isMuted()) << "silent by its volume, and not muted by this program";
}

TEST_F(MachineCaptureTest, AVolumeChangedFromOutsideIsSeen)
{
    Plug("mic1");
    EXPECT_EQ(Volume("mic1-for-people"), 65535); // the list is available before the opening
    const std::uint64_t changes = capture.SourceChanges();
    ASSERT_TRUE(server.Does({"set-source-volume", "mic1-mic", "50%"}));
    EXPECT_TRUE(Comes([&] { return capture.SourceChanges() != changes; }));
    EXPECT_EQ(Volume("mic1-for-people"), 32768);
    ASSERT_TRUE(server.Does({"set-source-volume", "mic1-mic", "150%"}));
    EXPECT_TRUE(Comes([this] { return Volume("mic1-for-people") == 65535; }));
    capture.SetVolume(IndexOf("mic1-for-people"), 16384);
    EXPECT_TRUE(Comes([this] { return Volume("mic1-for-people") == 16384; }));
    EXPECT_NE(server.Told({"env", "LC_ALL=C", "pactl", "get-source-volume", "mic1-mic"}).find("25%"),
              std::string::npos);
}

TEST_F(MachineCaptureTest, AMicrophoneThatComesIsSeen)
{
    EXPECT_TRUE(Listed().Sources.empty());
    const std::uint64_t changes = capture.SourceChanges();
    Plug("mic1");
    EXPECT_TRUE(Comes([&] { return capture.SourceChanges() != changes; }));
    EXPECT_TRUE(Comes([this] { return Listed().Selected == 0; }));
}

TEST_F(MachineCaptureTest, AnotherSourceGoesOnInTheSameFilesAndIsRemembered)
{
    Plug("mic1");
    Plug("mic2");
    ASSERT_TRUE(server.Does({"set-default-source", "mic1-mic"}));
    ASSERT_EQ(capture.Open(), CaptureOpening::Ready);
    ASSERT_TRUE(Start());
    ASSERT_TRUE(Records());
    auto first = Play("mic1", 4 * 44100);
    EXPECT_TRUE(Comes([this] { return capture.Peaks().Right > 0; }));
    EXPECT_TRUE(KeepsBlocks(3));
    capture.SelectSource(IndexOf("mic2-for-people"));
    auto second = Play("mic2", 4 * 44100, 1000);
    EXPECT_TRUE(Comes([this] { return capture.Peaks().Right >= 1000; }));
    EXPECT_TRUE(KeepsBlocks(3));
    EXPECT_TRUE(Records());
    capture.Stop();
    const CapturedRamp taken = Files();
    const auto turn = std::find_if(taken.right.begin(), taken.right.end(), [](int lap) { return lap >= 1000; });
    const auto before = static_cast<std::ptrdiff_t>(turn - taken.right.begin());
    ASSERT_NE(turn, taken.right.end());
    std::vector<int> numbers = taken.Numbers();
    EXPECT_TRUE(IsGapless(Sounded({numbers.begin(), numbers.begin() + before})));
    numbers = taken.Numbers(1000);
    EXPECT_TRUE(IsGapless(Sounded({numbers.begin() + before, numbers.end()})));
    capture.Release();
    ASSERT_EQ(capture.Open(), CaptureOpening::Ready);
    EXPECT_EQ(Listed().Selected, IndexOf("mic2-for-people"));
    EXPECT_NE(server.Told({"pactl", "get-default-source"}).find("mic1-mic"), std::string::npos);
}

TEST_F(MachineCaptureTest, ASourceThatDoesNotOpenLeavesTheOneBefore)
{
    Plug("mic1");
    Plug("mic2");
    ASSERT_TRUE(server.Does({"set-default-source", "mic1-mic"}));
    ASSERT_EQ(capture.Open(), CaptureOpening::Ready);
    ASSERT_TRUE(Start());
    ASSERT_TRUE(Records());
    const std::int32_t gone = IndexOf("mic2-for-people");
    ASSERT_TRUE(server.PullOut("mic2"));
    capture.SelectSource(gone);
    capture.SelectSource(-1);
    capture.SelectSource(77);
    capture.SetVolume(77, 5);
    EXPECT_TRUE(KeepsBlocks(1));
    EXPECT_TRUE(Records());
    EXPECT_EQ(Listed().Selected, IndexOf("mic1-for-people"));
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

TEST_F(MachineCaptureTest, SixtySourcesWithLongNamesAreListedAsFarAsThereIsRoom)
{
    for (int i = 0; i < 60; ++i)
        ASSERT_TRUE(server.Does({"load-module", "module-remap-source", "master=out.monitor",
                                 "source_name=mic" + std::to_string(i),
                                 "source_properties=device.description=" + std::string(60, 'x') + std::to_string(i)}));
    ASSERT_TRUE(server.Does({"set-default-source", "mic59"}));
    ASSERT_TRUE(Comes([this] { return server.Told({"pactl", "get-default-source"}) == "mic59\n"; }));
    const SoundSources sources = Listed();
    std::size_t bytes = 0;
    for (const SoundSource& source : sources.Sources)
        bytes += source.Name.size() + 1;
    EXPECT_EQ(sources.Sources.size(), 50U);
    EXPECT_LE(bytes, 3200U);
    ASSERT_GE(sources.Selected, 0);
    EXPECT_EQ(sources.Sources[static_cast<std::size_t>(sources.Selected)].Name, std::string(60, 'x') + "59");
    ASSERT_EQ(capture.Open(), CaptureOpening::Ready);
}

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

/// A machine without a server, where SDL captures the contents of a file.
class SdlMachineCaptureTest : public ::testing::Test {
protected:
    SdlMachineCaptureTest()
    {
        WriteBytes(input, RampBytes(30 * 44100, 1));
        setenv("SDL_AUDIODRIVER", "disk", 1);
        setenv("SDL_DISKAUDIOFILEIN", input.c_str(), 1);
    }
    ~SdlMachineCaptureTest() override
    {
        unsetenv("SDL_AUDIODRIVER");
        unsetenv("SDL_DISKAUDIOFILEIN");
    }

    TestFolder folder;
    const std::string input = folder.Path() / "in.raw";
    const fs::path left = folder.Path() / "TqkTmp1.WavL";
    const fs::path right = folder.Path() / "TqkTmp1.WavR";
    MachineCapture capture;
};

TEST_F(SdlMachineCaptureTest, WhatSdlGivesArrivesWithoutALostFrame)
{
    for (int round = 0; round < 2; ++round) {
        ASSERT_EQ(capture.Open(), CaptureOpening::Ready);
        ASSERT_TRUE(capture.Start(left, right));
        ASSERT_TRUE(Comes([this] { return capture.Status().Blocks >= 5; }));
        EXPECT_EQ(capture.Status().State, CaptureState::Recording);
        EXPECT_GT(capture.Peaks().Left, 0);
        capture.Stop();
        const std::vector<int> numbers = ReadCaptured(left, right).Numbers();
        EXPECT_GE(numbers.size(), 44100U);
        EXPECT_TRUE(IsGapless(numbers));
        EXPECT_GE(numbers.front(), 0);
        capture.Release();
        fs::remove(left);
        fs::remove(right);
    }
}

TEST_F(SdlMachineCaptureTest, ItTellsNoSources)
{
    ASSERT_EQ(capture.Open(), CaptureOpening::Ready);
    EXPECT_FALSE(capture.ListSources());
    EXPECT_EQ(capture.SourceChanges(), 0U);
    capture.SelectSource(0);
    capture.SetVolume(0, 1);
}

TEST_F(SdlMachineCaptureTest, WithoutSoundNothingOpens)
{
    setenv("SDL_AUDIODRIVER", "none of SDL's", 1);
    EXPECT_EQ(capture.Open(), CaptureOpening::Failed);
    EXPECT_FALSE(capture.Start(left, right));
    EXPECT_EQ(capture.Status().State, CaptureState::Stopped);
}

} // namespace
} // namespace sprout
