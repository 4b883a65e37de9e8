// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <functional>

#include "base/Words.h"
#include "service/SoundOutput.h"

namespace sprout {

/// Reports on a play: a message and its title. The prompt "S2" marks the title as just a status.
using MsgBoxObEvent = std::function<void(const Words& prompt, const Words& title)>;

/// The prompts that are no messages: the end of a play call, and a status.
inline const Words kPlayCallEnded = Words::AsIs("S1");
inline const Words kStatusPrompt = Words::AsIs("S2");

/// Plays the shared play buffer on the machine's sound output and maintains the shared play state.
class PlayDx9Class {
public:
    /// msgBoxOb: receives the statuses.
    explicit PlayDx9Class(MsgBoxObEvent msgBoxOb);
    PlayDx9Class(const PlayDx9Class&) = delete;
    PlayDx9Class& operator=(const PlayDx9Class&) = delete;
    /// Stops the sound, without a status.
    ~PlayDx9Class();

    /// Stops the current sound and plays the buffer from its beginning. False if no device could be opened. Throws
    /// std::bad_alloc.
    [[nodiscard]] bool PlayMe(Loop loop);
    /// Resumes where `PlayPause` stopped, looping as requested by the last play.
    void PlayContinue();
    /// Does nothing: only a new play fills the device's copy of the buffer.
    void PlayReplay();
    /// Changes looping; a stopped state becomes a playing one until the next `UpdatePlayPosition`.
    void LetLooping(Loop loop);
    /// Asks the device for its position; a sound that has ended or was stopped sets `PlayState` and `PlayCursor` to 0.
    void UpdatePlayPosition();
    void PlayPause();
    void StopPlay();
    /// Stores the window that sounds belong to. The first play opens the device, and so does each play after a failure,
    /// so a device plugged in later is found.
    void PutONDx9Ds(std::int32_t windowHandle);

private:
    bool PlayBufferOnDevice(Loop loop);
    void Stop();
    void SendStatus(const Words& status) const;

    MsgBoxObEvent MsgBoxOb;
    SoundHandle WaveDriverHandle; // empty before the first play
    std::int32_t LoopCount = 0;
    std::int32_t WindowHandle = 0;
};

} // namespace sprout
