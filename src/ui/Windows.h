// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "base/WaveData.h"
#include "core/Song.h"

class QWidget;

namespace sprout {

/// The sound files that a song can be saved as.
enum class SoundFileKind { Wav, Wma };

/// What one window opens of another. The program fills it; this one opens nothing, as if the user cancelled everything.
class Windows {
public:
    Windows() = default;
    Windows(const Windows&) = delete;
    Windows& operator=(const Windows&) = delete;
    virtual ~Windows() = default;

    /// Lets the user choose and edit the tune of a track. newFlag: whether the window shows no choice at first; on
    /// return, whether it was left with OK. Returns whether the tune or its picture was changed.
    [[nodiscard]] virtual bool OpenTuneWindow(Tune& /*tune*/, bool& /*newFlag*/) { return false; }
    /// Lets the tune window, if it is open, show the tune under edit.
    virtual void UpdateThisTune() {}

    /// Lets the user choose an instrument. name: the one to start from, the chosen one on return. Returns false, with
    /// the name as it was, where none was chosen.
    [[nodiscard]] virtual bool ChooseBeat(std::string& /*name*/) { return false; }

    /// Records; nothing where that was cancelled or could not begin, which the window has told.
    [[nodiscard]] virtual std::optional<WaveData> RecordSound() { return std::nullopt; }
    /// Lets the user edit the sound of a track. Returns whether it was changed.
    [[nodiscard]] virtual bool EditTrack(std::int32_t /*track*/) { return false; }
    /// Lets the audio editor, if it is open, show what is heard.
    virtual void UpdatePlayPointer() {}

    /// The name of the song that the user wants to open; nothing where the window was left without OK.
    [[nodiscard]] virtual std::optional<std::string> ChooseSongToOpen(QWidget& /*owner*/) { return std::nullopt; }
    /// The name to save the song under, which is offered at first; nothing where the window was left without OK.
    [[nodiscard]] virtual std::optional<std::string> ChooseNameToSave(QWidget& /*owner*/, std::string_view /*name*/)
    {
        return std::nullopt;
    }

    /// Asks for a file and saves the shared song there as a sound. Returns whether the song window is to hide.
    [[nodiscard]] virtual bool SaveSongAsSound(SoundFileKind /*kind*/) { return false; }
    /// Mails the shared song, with all its messages. A mail program starts while the windows live on.
    virtual void EmailSong() {}
    /// The program ends: nobody waits for a mail program any more.
    virtual void StopEmailSong() {}
};

/// The program's windows.
[[nodiscard]] Windows& TheWindows();

/// Makes `windows` the program's, as long as this lives.
class ProvidedWindows {
public:
    explicit ProvidedWindows(Windows& windows);
    ProvidedWindows(const ProvidedWindows&) = delete;
    ProvidedWindows& operator=(const ProvidedWindows&) = delete;
    ~ProvidedWindows();

private:
    Windows* before;
};

} // namespace sprout
