// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include <functional>
#include <string_view>

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

    /// Asks about unsaved changes and saves the song if that is wanted; under a name that the user chooses, where its
    /// title would take another file's place. Returns false where what is under way must not go on: a question was
    /// cancelled, or the song was not saved. What went wrong is told behind `errorLine`.
    [[nodiscard]] bool ConfirmSongSave(std::string_view errorLine = kErrorSaving);

    void NewBtn();
    void OpenBtn();
    void SaveBtn();
    void SongTitleChgBtn();

private:
    void OpenChosenSong();
    /// Both return whether the song was saved; they throw where it cannot be.
    [[nodiscard]] bool SaveUnderTitle();
    [[nodiscard]] bool SaveUnderChosenName();

    static constexpr std::string_view kErrorSaving = "Error Saving file";

    QWidget& window;
    SongCommandCalls calls;
};

} // namespace sprout
