// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <filesystem>
#include <utility>

#include "base/WaveData.h"
#include "service/SoundCapture.h"

namespace sprout {

/// A microphone that hears a voice sing as long as it is told to.
class SungVoice : public SoundCapture {
public:
    /// The voice repeats this sound, which is in the program's format.
    void SetVoice(WaveData sound) { voice = std::move(sound); }

    /// The voice sings for some seconds more. It does not wait for them.
    void Sing(double seconds) { sungSeconds += seconds; }

    [[nodiscard]] CaptureOpening Open() override { return CaptureOpening::Ready; }
    [[nodiscard]] bool Start(const std::filesystem::path& left, const std::filesystem::path& right) override;
    void Stop() override;
    void Release() override;
    [[nodiscard]] CaptureStatus Status() override;
    [[nodiscard]] CapturePeaks Peaks() override;
    [[nodiscard]] std::optional<SoundSources> ListSources() override;
    [[nodiscard]] std::uint64_t SourceChanges() override { return 0; }
    void SelectSource(std::int32_t /*index*/) override {}
    void SetVolume(std::int32_t /*index*/, std::int32_t /*volume*/) override {}
    void DeleteLeftFiles(const std::filesystem::path& /*folder*/) override {}

private:
    WaveData voice;
    std::pair<std::filesystem::path, std::filesystem::path> files; ///< empty unless it records
    double sungSeconds = 0;
};

} // namespace sprout
