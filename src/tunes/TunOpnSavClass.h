// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "base/Words.h"
#include "core/Song.h"
#include "service/Files.h"

namespace sprout {

/// How much of a tune file `Load_Tune` reads.
enum class TuneLoad {
    All = 0,
    List = 1,      ///< name, author and picture
    StepNames = 2, ///< also the steps with the names of their beats
    Beats = 3,     ///< also the beats, but not the stored sound
};

/// Why a file could not be read, in the words of the message.
struct ReadFailure {
    Words Title;
    Words Text;
};

/// What a tune file gave.
struct TuneReading {
    std::optional<Tune> Record; ///< what was read, even before a failure; nothing if the file could not be opened
    bool IsWhole = false;       ///< the record has everything that was requested
    std::optional<ReadFailure> Failure;
};

/// Reads a tune from a file of the current or the old form. Another version gives an empty record without a failure. No
/// record of the program changes; messages report beats and pictures outside the file that cannot be read.
///
/// `TuneLoad::List` only reads the head, whatever the file contains.
[[nodiscard]] TuneReading ReadTune(const std::filesystem::path& path, TuneLoad mode = TuneLoad::All);

/// Shows the failure of a reading, if there is one.
void TellFailure(const TuneReading& reading);

/// Tune files (.TqTun) and their cache files; docs/file-formats.md shows the layouts.
class TunOpnSavClass {
public:
    /// flush: whether a saved tune must already be on the disk when `Save_Tune` returns.
    explicit TunOpnSavClass(Flush flush = Flush::Yes) : saveFlush(flush) {}

    /// Replaces the file at `path` with `TuneClipboard`. Throws `RunTimeError`; the old file then stays.
    ///
    /// If songs and tunes do not contain their beats, the rendered sound goes to a cache file beside the tune; a
    /// failure there also throws, but the tune itself is saved.
    void Save_Tune(const std::filesystem::path& path);

    /// Fills `TuneClipboard` by `ReadTune`. Failures are shown in a message; the clipboard then has what was read so
    /// far. A missing file gives a blank tune. Returns whether the clipboard has everything that was requested.
    bool Load_Tune(const std::filesystem::path& path, TuneLoad mode = TuneLoad::All);

private:
    Flush saveFlush;
};

/// Fills a tune from the star file with its name in `UserStars`; without such a file it becomes 16 silent steps. Throws
/// `RunTimeError` if a number in the file is invalid.
void LoadStarFile(Tune& tune);

/// True if a tune came with the program: its author begins with the product family's name, in any letter case.
[[nodiscard]] bool IsOriginalTune(const Tune& tune);

} // namespace sprout
