// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QUrl>

#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>

#include "base/WaveData.h"
#include "main_window/TrackCanvas.h"

namespace sprout {

/// Longest sound that becomes an audio track from a file, in seconds.
inline constexpr std::int32_t kLongestAudioSeconds = 120;

/// The windows that the commands open.
struct AudioWindows {
    /// Records; nothing where that was cancelled or could not begin, which the window has told.
    std::function<std::optional<WaveData>()> Record;
    /// Edits the sound of a track. Returns whether it was changed.
    std::function<bool(std::int32_t track)> Edit;
};

/// The commands that bring sound of the child's own into a song: recorded, from a file, or dropped on the window; and
/// the one that edits it. Each tells its own failures and leaves the song as it was then; none throws.
class AudioTrackCommands {
public:
    AudioTrackCommands(TrackCanvas& canvas, AudioWindows windows);

    void TrackAddRecBtn();
    void TrackAudioBtn();

    /// Adds the sound file that was dropped on the window, with the checks and messages of one that is chosen.
    void AddDropped(const QList<QUrl>& places);

private:
    void AddRecording();
    void AddChosenFile();
    void AddFile(const std::filesystem::path& file);
    void AddTrack(WaveData wave);

    TrackCanvas& canvas;
    AudioWindows windows;
};

} // namespace sprout
