// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

#include "base/WaveData.h"
#include "service/SoundOutput.h"
#include "sound/PlayDx9Class.h"

namespace sprout {

enum class PlayNow { No, Yes };

/// What became of a wave given to the player.
enum class PlayResult {
    Started,
    Kept,     ///< it stands in the play buffer and was not to be played
    NoDevice, ///< it stands in the play buffer, and no device took it
    Refused   ///< empty, of an unknown format, or spoiled
};

/// The player: fills the shared play buffer with a wave as a whole WAV file and plays it.
///
/// A failure raises `MsgBoxOb` with its words and a title, and the operation ends. No operation throws, except
/// `WriteWaveMemo` where memory runs out. All calls come from the interface thread.
class PlayDllClass {
public:
    PlayDllClass() = default;
    PlayDllClass(const PlayDllClass&) = delete;
    PlayDllClass& operator=(const PlayDllClass&) = delete;
    ~PlayDllClass() = default;

    /// Statuses (prompt "S2"), the end of every play call (prompt "S1") and failures; nobody has to listen.
    MsgBoxObEvent MsgBoxOb;

    /// Releases the sound output and, for a window handle above 0, readies it anew and sets the argument to 1.
    void DxObj(std::int32_t& windowHandle);
    /// The last wave played, as the 32-bit words of a WAV file, the last of them filled up with zero bytes; a single 0
    /// where nothing was played.
    [[nodiscard]] std::vector<std::int32_t> GetLastPlayedStream() const;
    void StopPlay();
    void PlayContinue();
    void SetLooping(Loop loop);
    void PlayReplay();
    void UpdatePlayPosition();
    void PlayPause();
    /// Fills the play buffer with `wave` and plays it. Behind a wave that does not loop stand 50 ms more, which hold
    /// what an earlier, longer play left there. Throws std::bad_alloc behind the event and the status of a failure.
    PlayResult WriteWaveMemo(const WaveData& wave, PlayNow playNow, Loop loop);

    /// What the sound output raises: a prompt of "S2" needs nothing, any other one is shown with its title.
    void PlayDx9Cls_MsgBoxOb(std::string_view prompt, std::string_view title) const;

private:
    PlayResult WriteAndPlay(const WaveData& wave, PlayNow playNow, Loop loop);
    PlayResult Refuse(std::string_view prompt, PlayNow playNow);
    PlayResult PlayWritten(Loop loop);
    template <class Operation>
    void Guarded(std::string_view errorTitle, Operation operation) const;
    void Raise(std::string_view prompt, std::string_view title) const;
    void SendStatus(std::string_view status) const { Raise("S2", status); }

    std::int32_t Driver = 0; // as `SoundDriver`
    std::unique_ptr<PlayDx9Class> PlayDx9Cls;
};

} // namespace sprout
