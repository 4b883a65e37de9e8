// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <future>

#include "service/SoundOutput.h"
#include "service/pulse/PulseSoundOutput.h"
#include "service/sdl/SdlSoundOutput.h"

namespace sprout {

/// True if the variable SDL_AUDIODRIVER, which selects SDL's way to the device, is set by the user.
[[nodiscard]] bool UserChoseSdl();

/// The machine's sound output: the sound server if there is one, otherwise SDL.
///
/// Each query and each opening of a device looks for a server, so one that starts later is found. If the user sets the
/// variable SDL_AUDIODRIVER, which selects SDL's way to the device, SDL is used.
class MachineSound : public SoundOutput {
public:
    /// restRound: see the two outputs.
    explicit MachineSound(std::chrono::milliseconds restRound = std::chrono::seconds(1));

    /// Counts the devices in a separate thread for the first `SoundDeviceCount`, while the program starts.
    void CountAhead();

    [[nodiscard]] std::int32_t SoundDeviceCount() override;
    [[nodiscard]] SoundHandle Open(SoundHandle old, std::int32_t windowHandle, const SoundFormat& format,
                                   std::int32_t bufferBytes) override;

private:
    [[nodiscard]] ServerAnswer AskServer();
    [[nodiscard]] std::int32_t CountDevices();

    PulseSoundOutput server;
    SdlSoundOutput device;
    std::future<std::int32_t> countAhead; // declared last, so destroyed first: it uses both
};

} // namespace sprout
