// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

#include "base/WaveData.h"
#include "base/Words.h"
#include "service/SoundOutput.h"
#include "sound/PlayDx9Class.h"

namespace sprout {

enum class PlayNow { No, Yes };

/// The outcome for a wave given to the player.
enum class PlayResult {
    Started,
    Kept,     ///< it is in the play buffer; no play was requested
    NoDevice, ///< it is in the play buffer, but no device accepted it
    Refused   ///< empty, in an unknown format, or damaged
};

/// The player: fills the shared play buffer with a wave as a complete WAV file and plays it.
///
/// A failure raises `MsgBoxOb` with its text and a title, and ends the operation. No operation throws, except
/// `WriteWaveMemo` if memory runs out. All calls come from the interface thread.
class PlayDllClass {
public:
    PlayDllClass() = default;
    PlayDllClass(const PlayDllClass&) = delete;
    PlayDllClass& operator=(const PlayDllClass&) = delete;
    ~PlayDllClass() = default;

    /// Statuses (prompt "S2"), the end of every play call (prompt "S1") and failures; a listener is optional.
    MsgBoxObEvent MsgBoxOb;

    /// Releases the sound output. If the window handle is above 0, prepares the output again and sets the argument to
    /// 1.
    void DxObj(std::int32_t& windowHandle);
    /// The last wave played, as the 32-bit words of a WAV file, the last word padded with zero bytes; a single 0 if
    /// nothing was played.
    [[nodiscard]] std::vector<std::int32_t> GetLastPlayedStream() const;
    void StopPlay();
    void PlayContinue();
    void SetLooping(Loop loop);
    void PlayReplay();
    void UpdatePlayPosition();
    void PlayPause();
    /// Fills the play buffer with `wave` and plays it. A wave that does not loop is followed by another 50 ms, with
    /// whatever an earlier, longer play left there. Throws std::bad_alloc after the event and the status of a failure.
    PlayResult WriteWaveMemo(const WaveData& wave, PlayNow playNow, Loop loop);

    /// Raised by the sound output: the prompt "S2" needs no action, any other one is shown with its title.
    void PlayDx9Cls_MsgBoxOb(const Words& prompt, const Words& title) const;

private:
    PlayResult WriteAndPlay(const WaveData& wave, PlayNow playNow, Loop loop);
    PlayResult Refuse(const Words& prompt, PlayNow playNow);
    PlayResult PlayWritten(Loop loop);
    template <class Operation>
    void Guarded(const Words& errorTitle, Operation operation) const;
    void Raise(const Words& prompt, const Words& title) const;
    void SendStatus(const Words& status) const { Raise(kStatusPrompt, status); }

    std::int32_t Driver = 0; // as `SoundDriver`
    std::unique_ptr<PlayDx9Class> PlayDx9Cls;
};

} // namespace sprout
