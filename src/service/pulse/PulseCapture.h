// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "service/CaptureSource.h"
#include "service/pulse/PulseCaptureStream.h"
#include "service/pulse/PulseConnection.h"
#include "service/pulse/PulseSources.h"

namespace sprout {

/// Capture from the sound server that the environment names, PulseAudio or PipeWire.
///
/// Never records what an output plays, even though a server without a microphone calls that the default source.
class PulseCapture : public CaptureSource {
public:
    PulseCapture() = default;
    ~PulseCapture() override;

    /// Whether there is a server; connects to it if so.
    [[nodiscard]] ServerAnswer AskServer();

    [[nodiscard]] CaptureOpening Open(CaptureSink& captureSink) override;
    void Close() override;
    [[nodiscard]] SourceState State() override;
    [[nodiscard]] std::optional<SoundSources> ListSources() override;
    [[nodiscard]] std::uint64_t SourceChanges() override;
    /// The current stream continues until the other one runs, and stays if the other one does not open.
    void SelectSource(std::int32_t index) override;
    void SetVolume(std::int32_t index, std::int32_t volume) override;

private:
    using Lock = PulseConnection::Lock;
    using Time = PulseConnection::Time;

    [[nodiscard]] ServerAnswer Connect(Lock& lock, Time deadline);
    void FollowSources();
    [[nodiscard]] CaptureOpening OpenOnce(CaptureSink& captureSink, Time deadline);
    [[nodiscard]] std::unique_ptr<PulseCaptureStream> OpenStream(const std::string& name, Lock& lock, Time deadline);
    [[nodiscard]] const PulseSource* Listed(std::int32_t index) const;

    PulseConnection connection;
    std::unique_ptr<PulseCaptureStream> stream;
    CaptureSink* sink = nullptr;
    std::string chosen; // name of the source that the user chose; blank: none yet
    std::vector<PulseSource> listed;
    bool isPipeWire = false;
    std::uint64_t changes = 0;
};

} // namespace sprout
