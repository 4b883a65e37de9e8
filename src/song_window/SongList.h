// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QListWidget>

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/Words.h"
#include "songs/SongFiles.h"

namespace sprout {

/// The songs of `SongFolders` as a list with single selection. Its arrow keys stay inside it.
class SongList : public QListWidget {
    Q_OBJECT

public:
    explicit SongList(QWidget* parent);

    /// Sets the line that a list without songs shows from the next load on; it cannot be selected.
    void SetNothingFound(const Words& line) { nothingFound = line; }

    /// Lists what the folder contains now, with nothing selected. Emits no signals.
    void LoadSongNames();

    /// In list order.
    [[nodiscard]] std::span<const SongFile> Songs() const { return songs; }
    /// Null if none is selected. Valid until the next load.
    [[nodiscard]] const SongFile* SelectedSong() const;
    /// -1 if none is selected.
    [[nodiscard]] int SelectedRow() const;
    /// Selects a row without a signal: a selection by the program does not change the typed name. -1 selects none.
    void SelectRow(int row);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    /// Leaves room at the bottom to avoid half a line at the end.
    void updateGeometries() override;

private:
    [[nodiscard]] bool SelectFirst(int key);

    std::vector<SongFile> songs;
    Words nothingFound;
};

} // namespace sprout
