// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>

#include "service/SoundOutput.h"
#include "service/pulse/PulseConnection.h"

namespace sprout {

/// Sound output through the sound server that the environment names, PulseAudio or PipeWire.
///
/// It connects at first use, and reconnects if the connection is gone, so a server that started later is found. No call
/// waits longer than `kServerPatience` for a server that does not answer.
class PulseSoundOutput : public SoundOutput {
public:
    /// restRound: a stream unused for three to four of these is closed until the next play. tail: how long the stream
    /// runs on after the end of a sound; less than what is queued, which is silence.
    explicit PulseSoundOutput(std::chrono::milliseconds restRound = std::chrono::seconds(1),
                              std::chrono::milliseconds tail = std::chrono::milliseconds(100));

    /// Whether there is a server; connects to it if so.
    [[nodiscard]] ServerAnswer AskServer();

    [[nodiscard]] std::int32_t SoundDeviceCount() override;
    /// Keeps the stream of `old`, which must come from here, if it is alive and has the same format.
    [[nodiscard]] SoundHandle Open(SoundHandle old, std::int32_t windowHandle, const SoundFormat& format,
                                   std::int32_t bufferBytes) override;

private:
    const std::chrono::milliseconds restRound;
    const std::chrono::milliseconds tail;
    PulseConnection connection;
};

} // namespace sprout
