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

/// The machine's sound capture: from the sound server if there is one, otherwise through SDL, also if the user has
/// chosen SDL's way to the device (see `MachineSound`). Nothing is loaded before the first query.
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

    /// Works in a separate thread, which stops when this object is destroyed.
    void DeleteLeftFiles(const std::filesystem::path& folder) override;

private:
    /// Null if there is a server that does not answer.
    [[nodiscard]] CaptureSource* ChooseSource();
    [[nodiscard]] CaptureState StateOf(SourceState sourceState, const CaptureIntake::Facts& facts) const;
    /// Notes if the source disappeared during capture.
    SourceState LookAtSource();
    void LetFilesGo();
    void CloseFiles();

    const CaptureLimits limits;
    CaptureIntake intake;
    PulseCapture server;
    SdlCapture device;
    CaptureSource* source = nullptr; // the one last used

    std::unique_ptr<CaptureFiles> files;
    std::unique_ptr<CaptureWriter> writer;
    CaptureIntake::Clock::time_point started;
    bool isStopped = true;
    bool isGone = false; // the source, while it was captured
    std::jthread cleaner;
    std::jthread closer;
};

} // namespace sprout
