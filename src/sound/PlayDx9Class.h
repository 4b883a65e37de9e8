// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <functional>
#include <string_view>

#include "service/SoundOutput.h"

namespace sprout {

/// Tells of a play: a message and its title. The prompt "S2" marks the title as a mere status.
using MsgBoxObEvent = std::function<void(std::string_view prompt, std::string_view title)>;

/// Plays the shared play buffer through the machine's sound output and keeps the shared play state.
class PlayDx9Class {
public:
    /// msgBoxOb: receives the statuses.
    explicit PlayDx9Class(MsgBoxObEvent msgBoxOb);
    PlayDx9Class(const PlayDx9Class&) = delete;
    PlayDx9Class& operator=(const PlayDx9Class&) = delete;
    /// Stops the sound, without a status.
    ~PlayDx9Class();

    /// Stops the sound in play and plays the buffer from its beginning. False where no device could be opened. Throws
    /// std::bad_alloc.
    [[nodiscard]] bool PlayMe(Loop loop);
    /// Goes on where `PlayPause` stopped, looping as the last play was asked to.
    void PlayContinue();
    /// Does nothing: only a new play fills the device's copy of the buffer.
    void PlayReplay();
    /// Changes looping; a stopped state becomes a playing one until the next `UpdatePlayPosition`.
    void LetLooping(Loop loop);
    /// Asks the device where it is; a sound that has ended or was stopped gives `PlayState` 0 and `PlayCursor` 0.
    void UpdatePlayPosition();
    void PlayPause();
    void StopPlay();
    /// Keeps the window that sounds belong to. The device itself is opened by the first play, and again by the play
    /// that follows a failure, so that a device plugged in later sounds.
    void PutONDx9Ds(std::int32_t windowHandle);

private:
    bool PlayBufferOnDevice(Loop loop);
    void Stop();
    void SendStatus(std::string_view status) const;

    MsgBoxObEvent MsgBoxOb;
    SoundHandle WaveDriverHandle; // empty before the first play
    std::int32_t LoopCount = 0;
    std::int32_t WindowHandle = 0;
};

} // namespace sprout
