// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>

#include "service/SoundOutput.h"

namespace sprout {

/// Sound output through SDL: PipeWire, PulseAudio or ALSA, whichever the machine has.
///
/// SDL's audio is started at first use. If no device opens it is restarted, so a sound server or a device that came
/// later is found.
class SdlSoundOutput : public SoundOutput {
public:
    /// restRound: a device unused for three to four of these is closed until the next play.
    explicit SdlSoundOutput(std::chrono::milliseconds restRound = std::chrono::seconds(1));
    ~SdlSoundOutput() override;

    [[nodiscard]] std::int32_t SoundDeviceCount() override;
    /// Keeps the device of `old` if it is alive and has the same format.
    [[nodiscard]] SoundHandle Open(SoundHandle old, std::int32_t windowHandle, const SoundFormat& format,
                                   std::int32_t bufferBytes) override;

private:
    bool StartAudio();
    void StopAudio();

    const std::chrono::milliseconds restRound;
    bool audioRuns = false;
};

} // namespace sprout
