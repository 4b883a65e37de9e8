// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <thread>

#include "app/sound/CaptureIntake.h"
#include "service/SoundCapture.h"
#include "service/posix/CaptureFiles.h"
#include "service/posix/CaptureWriter.h"
#include "service/pulse/PulseCapture.h"
#include "service/sdl/SdlCapture.h"

namespace sprout {

/// The machine's sound capture: from the sound server where there is one, through SDL where there is none or where the
/// user named SDL's way to the device (see `MachineSound`). Nothing is loaded before the first question to it.
class MachineCapture : public SoundCapture {
public:
    explicit MachineCapture(const CaptureLimits& captureLimits = {}) : limits(captureLimits) {}
    ~MachineCapture() override;

    [[nodiscard]] CaptureOpening Open() override;
    [[nodiscard]] bool Start(const std::filesystem::path& left, const std::filesystem::path& right) override;
    void Stop() override;
    void Release() override;

    [[nodiscard]] CaptureStatus Status() override;
    [[nodiscard]] CapturePeaks Peaks() override { return intake.Peaks(); }

    [[nodiscard]] std::optional<SoundSources> ListSources() override;
    [[nodiscard]] std::uint64_t SourceChanges() override;
    void SelectSource(std::int32_t index) override;
    void SetVolume(std::int32_t index, std::int32_t volume) override;

    /// Works in a thread of its own, which this object's end stops.
    void DeleteLeftFiles(const std::filesystem::path& folder) override;

private:
    /// Null where a server is there and does not answer.
    [[nodiscard]] CaptureSource* ChooseSource();
    [[nodiscard]] CaptureState StateOf(SourceState sourceState, const CaptureIntake::Facts& facts) const;
    /// Notes where the source went while it was captured.
    SourceState LookAtSource();
    void LetFilesGo();
    void CloseFiles();

    const CaptureLimits limits;
    CaptureIntake intake;
    PulseCapture server;
    SdlCapture device;
    CaptureSource* source = nullptr; // the one asked last

    std::unique_ptr<CaptureFiles> files;
    std::unique_ptr<CaptureWriter> writer;
    CaptureIntake::Clock::time_point started;
    bool isStopped = true;
    bool isGone = false; // the source, while it was captured
    std::jthread cleaner;
    std::jthread closer;
};

} // namespace sprout
