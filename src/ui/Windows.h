// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/WaveData.h"
#include "core/Song.h"

class QWidget;

namespace sprout {

/// The sound file formats that a song can be saved as.
enum class SoundFileKind { Wav, Wma };

/// The windows that one window can open. The program provides them; this default opens nothing, as if the user
/// cancelled.
class Windows {
public:
    Windows() = default;
    Windows(const Windows&) = delete;
    Windows& operator=(const Windows&) = delete;
    virtual ~Windows() = default;

    /// Lets the user choose and edit a track's tune. newFlag: whether the window shows no choice at first; on return,
    /// whether the user left it with OK. Returns whether the tune or its picture was changed.
    [[nodiscard]] virtual bool OpenTuneWindow(Tune& /*tune*/, bool& /*newFlag*/) { return false; }
    /// If the tune window is open, makes it show the tune being edited.
    virtual void UpdateThisTune() {}

    /// Lets the user choose an instrument. name: the initial one; on return the chosen one. Returns false and keeps the
    /// name if none was chosen.
    [[nodiscard]] virtual bool ChooseBeat(std::string& /*name*/) { return false; }

    /// Records a sound; nothing if that was cancelled or could not start, which the window has already reported.
    [[nodiscard]] virtual std::optional<WaveData> RecordSound() { return std::nullopt; }
    /// Lets the user edit a track's sound. Returns whether it was changed.
    [[nodiscard]] virtual bool EditTrack(std::int32_t /*track*/) { return false; }
    /// If the audio editor is open, makes it show the play position.
    virtual void UpdatePlayPointer() {}

    /// The name of the song to open; nothing if the user left the window without OK.
    [[nodiscard]] virtual std::optional<std::string> ChooseSongToOpen(QWidget& /*owner*/) { return std::nullopt; }
    /// The name to save the song under, starting with `name`; nothing if the user left the window without OK.
    [[nodiscard]] virtual std::optional<std::string> ChooseNameToSave(QWidget& /*owner*/, std::string_view /*name*/)
    {
        return std::nullopt;
    }

    /// Asks for a file and saves the shared song there as a sound. Returns whether the song window should hide.
    [[nodiscard]] virtual bool SaveSongAsSound(SoundFileKind /*kind*/) { return false; }
    /// Mails the shared song and shows all related messages. A mail program starts while the windows stay responsive.
    virtual void EmailSong() {}
    /// The demos that can be watched, as a menu offers them; none if none is installed.
    [[nodiscard]] virtual std::vector<std::string> DemoNames() { return {}; }
    /// Shows the demo with this name modally. The user may go on to other demos.
    virtual void ShowDemo(QWidget& /*owner*/, std::string_view /*name*/) {}

    /// Opens the help book beside the other windows; if it is open, brings it to the front.
    virtual void ShowHelp() {}

    /// Called when the program ends: stops waiting for a mail program.
    virtual void StopEmailSong() {}
};

/// The program's windows.
[[nodiscard]] Windows& TheWindows();

/// Installs `windows` as the program's windows while this object lives.
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
