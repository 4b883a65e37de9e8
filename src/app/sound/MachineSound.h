// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <future>

#include "service/SoundOutput.h"
#include "service/pulse/PulseSoundOutput.h"
#include "service/sdl/SdlSoundOutput.h"

namespace sprout {

/// True where the variable SDL_AUDIODRIVER, with which a user chooses SDL's way to the device, is set.
[[nodiscard]] bool UserChoseSdl();

/// The machine's sound output: the sound server where there is one, SDL where there is none.
///
/// A server is looked for with each question and each device that is opened, so that one that comes later is found. The
/// variable SDL_AUDIODRIVER, with which a user chooses SDL's way to the device, chooses SDL too.
class MachineSound : public SoundOutput {
public:
    /// restRound: see the two outputs.
    explicit MachineSound(std::chrono::milliseconds restRound = std::chrono::seconds(1));

    /// Counts the devices in a thread of its own, for the first `SoundDeviceCount`: the program starts meanwhile.
    void CountAhead();

    [[nodiscard]] std::int32_t SoundDeviceCount() override;
    [[nodiscard]] SoundHandle Open(SoundHandle old, std::int32_t windowHandle, const SoundFormat& format,
                                   std::int32_t bufferBytes) override;

private:
    [[nodiscard]] ServerAnswer AskServer();
    [[nodiscard]] std::int32_t CountDevices();

    PulseSoundOutput server;
    SdlSoundOutput device;
    std::future<std::int32_t> countAhead; // goes first: it uses both
};

} // namespace sprout
