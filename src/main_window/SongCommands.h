// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include <functional>

namespace sprout {

/// What the commands on the song ask of the main window.
struct SongCommandCalls {
    std::function<void()> ShowNewSong;         ///< draws all that tells of the song
    std::function<void()> UpdateSongTitle;     ///< shows title and author
    std::function<void(bool opening)> Opening; ///< a song is being chosen, or no more
};

/// The commands on the song as a whole. Each clears the hint and tells its own failures; none throws.
class SongCommands {
public:
    /// window: the parent of the questions.
    SongCommands(QWidget& window, SongCommandCalls calls);

    /// Asks about unsaved changes and saves the song if that is wanted. Returns false where what is under way must not
    /// go on: the question was cancelled. Throws `RunTimeError` where the song cannot be saved.
    [[nodiscard]] bool ConfirmSongSave();

    /// The same for a window that wants to close. A song that cannot be saved is told, and gives false.
    [[nodiscard]] bool ConfirmClose();

    void NewBtn();
    void OpenBtn();
    void SaveBtn();
    void SongTitleChgBtn();

private:
    void OpenChosenSong();
    void SaveUnderChosenName();

    QWidget& window;
    SongCommandCalls calls;
};

} // namespace sprout
