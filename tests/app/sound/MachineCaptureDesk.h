// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <future>
#include <string>
#include <vector>

#include "app/sound/MachineCapture.h"
#include "service/pulse/TestSoundServer.h"
#include "support/CaptureRamp.h"
#include "support/Comes.h"
#include "support/TestFolder.h"

namespace sprout {

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
    /// Asks until the server answers, as the window does: on a busy machine it may be silent for longer than a call
    /// waits.
    [[nodiscard]] SoundSources Listed()
    {
        std::optional<SoundSources> sources;
        EXPECT_TRUE(Comes([&] { return (sources = capture.ListSources()).has_value(); }));
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

} // namespace sprout
