// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "ui/Windows.h"

namespace sprout {

/// Windows that do what the test says, as if the user had done it; without a word they are cancelled.
class FakeWindows : public Windows {
public:
    [[nodiscard]] bool OpenTuneWindow(Tune& tune, bool& newFlag) override
    {
        ++tuneWindowsOpened;
        return tuneWindow && tuneWindow(tune, newFlag);
    }
    [[nodiscard]] bool ChooseBeat(std::string& name) override { return beatWindow && beatWindow(name); }
    [[nodiscard]] std::optional<WaveData> RecordSound() override
    {
        return recordingWindow ? recordingWindow() : std::nullopt;
    }
    [[nodiscard]] bool EditTrack(std::int32_t track) override { return audioEditor && audioEditor(track); }
    [[nodiscard]] std::vector<std::string> DemoNames() override { return demoNames; }
    void ShowDemo(QWidget& /*owner*/, std::string_view name) override
    {
        if (demo)
            demo(name);
    }

    std::function<bool(Tune& tune, bool& newFlag)> tuneWindow;
    int tuneWindowsOpened = 0;
    std::function<bool(std::string& name)> beatWindow;
    std::function<std::optional<WaveData>()> recordingWindow;
    std::function<bool(std::int32_t track)> audioEditor;
    std::vector<std::string> demoNames;
    std::function<void(std::string_view name)> demo;
};

} // namespace sprout
