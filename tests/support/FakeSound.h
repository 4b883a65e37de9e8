// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "service/PlayDisplay.h"
#include "service/SoundOutput.h"

namespace sprout {

/// A sound output that logs every call and answers as the test has set.
class FakeSoundOutput : public SoundOutput {
public:
    [[nodiscard]] std::int32_t SoundDeviceCount() override { return deviceCount; }
    [[nodiscard]] SoundHandle Open(SoundHandle old, std::int32_t windowHandle, const SoundFormat& format,
                                   std::int32_t bufferBytes) override;

    std::int32_t deviceCount = 1;
    bool opens = true;        // `Open` returns a handle
    bool memoryFails = false; // `Load` throws
    bool driverFails = false; // `Stop`, `Start` and `Place` throw
    SoundPlace place;         // what `Place` returns

    std::vector<std::string> calls; // such as "Start 2 Beginning loop", with the number of the object
    std::vector<std::byte> pcm;     // what the last `Load` got
    SoundFormat format;             // what the last `Open` got
    std::int32_t windowHandle = 0;
    std::int32_t bufferBytes = 0;
    int objects = 0; // made so far
    int open = 0;    // alive now
};

/// Keeps what the windows would show.
class FakePlayDisplay : public PlayDisplay {
public:
    [[nodiscard]] std::int32_t MainWindowHandle() const override;
    void ShowSoundStatus(const Words& text) override { status = text.English(); }
    void EnablePlayPosTimer() override { ++timersEnabled; }
    void UpdateThisTune() override { ++tunesShown; }

    std::int32_t mainWindow = 77; // below -1: asking for it throws
    std::string status = "Ready";
    int timersEnabled = 0;
    int tunesShown = 0;
};

} // namespace sprout
