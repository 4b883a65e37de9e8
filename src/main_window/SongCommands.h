// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

#include "base/Words.h"

namespace sprout {

/// What the song commands need from the main window.
struct SongCommandCalls {
    std::function<void()> ShowNewSong;         ///< redraws everything that depends on the song
    std::function<void()> UpdateSongTitle;     ///< shows title and author
    std::function<void(bool opening)> Opening; ///< whether a song is being chosen
};

/// The commands on the whole song. Each clears the hint and reports its own failures; none throws.
class SongCommands {
public:
    /// window: the parent of the questions.
    SongCommands(QWidget& window, SongCommandCalls calls);

    /// Asks about unsaved changes and saves the song if the user wants that. The user chooses another name if saving
    /// under the title would overwrite another file. Returns false if the current action must not continue because a
    /// question was cancelled or the song was not saved. Errors are reported after `errorLine`.
    [[nodiscard]] bool ConfirmSongSave(const LaterWords& failed = kErrorSaving);

    void NewBtn();
    void OpenBtn();
    /// As `OpenBtn`, with a song that is already chosen: it is opened from where it lies.
    void OpenSong(const std::filesystem::path& file);
    void SaveBtn();
    void SongTitleChgBtn();

private:
    /// Asks about unsaved changes and stops the play before `open` runs.
    void Open(const std::function<void()>& open);
    void OpenChosenSong();
    void OpenFile(const std::filesystem::path& file, const std::string& name);
    /// Both return whether the song was saved; they throw if saving fails.
    [[nodiscard]] bool SaveUnderTitle();
    [[nodiscard]] bool SaveUnderChosenName();

    static constexpr LaterWords kErrorSaving = Words::Later("Error Saving file\r\n%1");

    QWidget& window;
    SongCommandCalls calls;
};

} // namespace sprout
