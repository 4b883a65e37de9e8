// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

#include "base/Words.h"

namespace sprout {

/// What the windows show during playback. All calls come from the interface thread.
class PlayDisplay {
public:
    PlayDisplay() = default;
    PlayDisplay(const PlayDisplay&) = delete;
    PlayDisplay& operator=(const PlayDisplay&) = delete;
    virtual ~PlayDisplay() = default;

    /// A number above 0 that identifies the main window.
    [[nodiscard]] virtual std::int32_t MainWindowHandle() const = 0;
    /// Shows a text in the main window's `SoundStatusLbl`.
    virtual void ShowSoundStatus(const Words& text) = 0;
    /// Starts the main window's `PlayPosTimer`, which follows the playback and detects its end.
    virtual void EnablePlayPosTimer() = 0;
    /// Makes the tune window show the tune whose sound has begun.
    virtual void UpdateThisTune() = 0;
};

} // namespace sprout
