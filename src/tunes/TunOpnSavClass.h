// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>

#include "core/Song.h"
#include "service/Files.h"

namespace sprout {

/// How much of a tune file `Load_Tune` reads.
enum class TuneLoad {
    All = 0,
    List = 1,      ///< name, author and picture
    StepNames = 2, ///< and the steps with the names of their beats
    Beats = 3,     ///< and the beats, but not the stored sound
};

/// Tune files (.TqTun) and their cache files; docs/file-formats.md draws the layouts.
class TunOpnSavClass {
public:
    /// flush: whether a saved tune is on the disk, and not only on its way there, when `Save_Tune` returns.
    explicit TunOpnSavClass(Flush flush = Flush::Yes) : saveFlush(flush) {}

    /// Writes `TuneClipboard` to `path`, which is replaced whole. Throws `RunTimeError`; the old file stands then.
    ///
    /// While songs and tunes do not carry their beats, the rendered sound goes to a cache file beside the tune; a
    /// failure there throws too, with the tune itself saved.
    void Save_Tune(const std::filesystem::path& path);

    /// Fills `TuneClipboard` from a file of the current or the old form. Failures are told in a message; the clipboard
    /// then holds what was read so far. A missing file gives a blank tune, one of another version an empty record.
    /// Returns whether the clipboard holds all that was asked for.
    ///
    /// `TuneLoad::List` costs the reading of the head, whatever the file holds.
    bool Load_Tune(const std::filesystem::path& path, TuneLoad mode = TuneLoad::All);

private:
    Flush saveFlush;
};

/// Fills a tune from the star file of its name in `UserStars`; without such a file it becomes 16 silent steps.
/// Throws `RunTimeError` for a number in the file that is none.
void LoadStarFile(Tune& tune);

/// True for a tune that came with the program: its author begins with the product family's name, in any letter case.
[[nodiscard]] bool IsOriginalTune(const Tune& tune);

} // namespace sprout
