// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>

#include "service/CaptureRecords.h"

namespace sprout {

/// The result of opening a capture.
enum class CaptureOpening {
    Ready,        ///< the level can be read; nothing is kept yet
    NoMicrophone, ///< the only source is what an output plays
    Failed
};

/// Captures 44,100 Hz, 16 bits, stereo from one of the machine's sources.
///
/// The capture's own thread takes the frames and writes them; it never waits for the interface thread. All calls come
/// from the interface thread, and none waits longer than a second for the source. Nothing throws except std::bad_alloc.
class SoundCapture {
public:
    SoundCapture() = default;
    SoundCapture(const SoundCapture&) = delete;
    SoundCapture& operator=(const SoundCapture&) = delete;
    virtual ~SoundCapture() = default;

    /// Opens the source and releases any previous one. From here on the peaks can be read.
    [[nodiscard]] virtual CaptureOpening Open() = 0;
    /// Starts keeping the samples of each channel in its own file: raw, 16 bits, low byte first. Both files are created
    /// exclusively, private to the user, and locked. Returns false if they cannot be created, if less than 64 MB of
    /// disk space is free, or if the source is gone.
    [[nodiscard]] virtual bool Start(const std::filesystem::path& left, const std::filesystem::path& right) = 0;
    /// Stops keeping; every frame is then in the files. The caller owns them. They stay locked until the next start or
    /// the release, so no other program takes them for leftovers before they are read.
    virtual void Stop() = 0;
    /// Releases the source. Files of a capture that was not stopped are deleted.
    virtual void Release() = 0;

    [[nodiscard]] virtual CaptureStatus Status() = 0;
    [[nodiscard]] virtual CapturePeaks Peaks() = 0;

    /// The sources; nothing if they are unknown.
    [[nodiscard]] virtual std::optional<SoundSources> ListSources() = 0;
    /// A number that changes whenever a source appears, disappears, or changes its volume.
    [[nodiscard]] virtual std::uint64_t SourceChanges() = 0;
    /// Captures from another source, by its index in the last list, and continues in the same files. The choice lasts
    /// for the run of the program; the desktop's own choice is left alone.
    virtual void SelectSource(std::int32_t index) = 0;
    /// The source's own volume; a volume above 0 unmutes it.
    virtual void SetVolume(std::int32_t index, std::int32_t volume) = 0;

    /// Deletes the capture files in `folder` that earlier runs left. May continue after the call returns. What cannot
    /// be deleted stays, silently.
    virtual void DeleteLeftFiles(const std::filesystem::path& folder) = 0;
};

} // namespace sprout
