// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

#include "service/CaptureSource.h"

namespace sprout {

/// The machine's default microphone through SDL, which leaves out what an output plays. It lists no sources.
class SdlCapture : public CaptureSource {
public:
    SdlCapture() = default;
    ~SdlCapture() override;

    [[nodiscard]] CaptureOpening Open(CaptureSink& captureSink) override;
    void Close() override;
    [[nodiscard]] SourceState State() override;

    [[nodiscard]] std::optional<SoundSources> ListSources() override { return std::nullopt; }
    [[nodiscard]] std::uint64_t SourceChanges() override { return 0; }
    void SelectSource(std::int32_t /*index*/) override {}
    void SetVolume(std::int32_t /*index*/, std::int32_t /*volume*/) override {}

private:
    [[nodiscard]] CaptureOpening OpenDevice();
    [[nodiscard]] bool IsThere() const;
    static void OnFrames(void* self, std::uint8_t* frames, int bytes);

    CaptureSink* sink = nullptr;
    std::uint32_t device = 0; // SDL's number; 0 if none is open
    bool audioRuns = false;
};

} // namespace sprout
