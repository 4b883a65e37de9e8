// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "base/FolderFiles.h"
#include "base/Words.h"

namespace sprout {

struct LibraryFolder;

/// What came into the installed library after the user's folders were filled from it, for example with a later version
/// of the program: tunes, songs, beats and stars.
///
/// A hidden list in `UserRoot` names everything that the library had when it was looked at, so that each thing is
/// offered once, and never again if the user does not want it or has deleted it.
class LibraryNews {
public:
    /// Compares the library with the list. Nothing is new if there is no list yet, or if the user has something of that
    /// name; both are noted in the list at once. Nothing is looked at if a setting keeps the library out of the user's
    /// folders or if nothing can be kept there.
    [[nodiscard]] static LibraryNews Find();

    [[nodiscard]] bool IsEmpty() const { return things.empty(); }

    /// One line for each kind, with the first names.
    [[nodiscard]] Words Names() const;

    /// Copies everything into the user's folders and notes what arrived; the rest is offered again. Replaces no file.
    /// Shows failed copies. If the user stops it, the rest is left out.
    void Add() const;

    /// Notes that everything was offered.
    void Decline() const;

private:
    struct Thing {
        const LibraryFolder* Folder = nullptr;
        FolderFile File;
    };

    static void Note(const std::vector<Thing>& seen);
    [[nodiscard]] std::vector<FolderFile> NewIn(const LibraryFolder& folder) const;

    std::vector<Thing> things;
};

} // namespace sprout
