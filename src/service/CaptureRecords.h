// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace sprout {

// What a capture of sound tells about itself.

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

} // namespace sprout
