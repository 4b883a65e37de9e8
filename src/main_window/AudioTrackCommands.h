// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QUrl>

#include <cstdint>
#include <filesystem>

#include "base/WaveData.h"
#include "main_window/TrackCanvas.h"

namespace sprout {

/// Maximum length of a sound file that becomes an audio track, in seconds.
inline constexpr std::int32_t kLongestAudioSeconds = 120;

/// The commands that add the child's own sound to a song (recorded, from a file, or dropped on the window) and the one
/// that edits it. Each reports its own failures and then leaves the song unchanged; none throws.
class AudioTrackCommands {
public:
    explicit AudioTrackCommands(TrackCanvas& canvas);

    void TrackAddRecBtn();
    void TrackAudioBtn();

    /// Adds the sound file that was dropped on the window, with the same checks and messages as for a chosen file.
    void AddDropped(const QList<QUrl>& places);

private:
    void AddRecording();
    void AddChosenFile();
    void AddFile(const std::filesystem::path& file);
    void AddTrack(WaveData wave);

    TrackCanvas& canvas;
};

} // namespace sprout
