// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace sprout {

/// The result of opening a capture.
enum class CaptureOpening {
    Ready,        ///< the level can be read; nothing is kept yet
    NoMicrophone, ///< the only source is what an output plays
    Failed
};

enum class CaptureState : std::int32_t {
    Stopped = 1,   ///< before the first kept frame, after the stop, and if the capture ended by itself
    Recording = 2, ///< frames arrive and are kept
    Paused = 3     ///< the source is suspended, or no frame came for half a second
};

/// Why a capture ended by itself.
enum class CaptureEnd { None, DiskFull, MicrophoneGone, TooLong };

struct CaptureStatus {
    CaptureState State = CaptureState::Stopped;
    std::int64_t Pieces = 0;     ///< of 20 ms that came since opening
    std::int64_t LostPieces = 0; ///< of 20 ms that the source left out; replaced by silence
    std::int64_t Blocks = 0;     ///< full blocks of 0.2 s that were kept
    double SilentSeconds = 0;    ///< since the last sample that is not exactly zero, or the last data
    CaptureEnd End = CaptureEnd::None;
};

/// The highest samples of the last 0.2 s, 0 to 32767, and whether three in a row were at full scale since the capture
/// was opened.
struct CapturePeaks {
    std::int32_t Left = 0;
    std::int32_t Right = 0;
    bool LeftOverloaded = false;
    bool RightOverloaded = false;
};

/// The volume of a source at 100 %.
inline constexpr std::int32_t kFullVolume = 65535;

/// A microphone or another source that can be recorded.
struct SoundSource {
    std::string Name;        ///< for display, UTF-8
    std::int32_t Volume = 0; ///< 0 to `kFullVolume`; 0 if it is muted
};

struct SoundSources {
    std::vector<SoundSource> Sources; ///< none of them is an output's own sound
    std::int32_t Selected = -1;       ///< index of the one that is captured, or would be; -1 if there is none
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
