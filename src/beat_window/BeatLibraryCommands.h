// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string_view>

#include "base/Words.h"
#include "beats/BeatTable.h"

namespace sprout {

/// The buttons of the beat window that change the folder of beats: add a beat, rename or delete the selected one. They
/// ask, explain and refuse in messages. If a command fails, a message says why.
class BeatLibraryCommands {
public:
    /// ofWindow: the list and its selection; outlives the commands. onChange: called after every change of the folder
    /// and after a failure; builds the list anew and shows it.
    BeatLibraryCommands(BeatTable& ofWindow, std::function<void()> onChange);

    void AddBeat();
    void RenameBeat();
    void DeleteBeat();

    /// A beat was added since the program started: the messages that explain it are no longer shown.
    static inline bool AddHelpShown = false;

private:
    void TryToAdd();
    void TryToRename();
    void TryToDelete();
    void Try(const LaterWords& failed, void (BeatLibraryCommands::*command)());

    BeatTable& table;
    std::function<void()> reload;
};

} // namespace sprout
