// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "base/Words.h"
#include "core/Song.h"

namespace sprout {

/// Longest sound of a beat in the beat window, in seconds. It may be longer in a tune.
inline constexpr std::int32_t kLongestShownSeconds = 3;

/// `SelectedBeat` if the next load must find `RefindBeatName`.
inline constexpr std::int32_t kRefindBeat = -1;

/// The beats of `BeatFolders` as the beat window shows them.
struct BeatTable {
    std::vector<Beat> BeatList = std::vector<Beat>(1); ///< from 1; names in lower case, sounds on demand
    std::map<std::string, std::string> NamesForPeople; ///< by the names in the list
    std::vector<bool> BeatProtected = std::vector<bool>(1);
    std::int32_t BeatListCount = 0;
    std::int32_t SelectedBeat = 0; ///< 0 for none, or `kRefindBeat`
    std::string RefindBeatName;    ///< to find after a command that changed the folder
};

/// True if the selection is a beat in the list.
[[nodiscard]] bool HasSelection(const BeatTable& table);

/// The selected beat; there must be one.
[[nodiscard]] const Beat& SelectedEntry(const BeatTable& table);
[[nodiscard]] bool IsSelectedProtected(const BeatTable& table);

/// Builds the list from the folder: names, pictures, originals and order, but no sounds. When a folder is first used,
/// all its beats become originals. wanted: the beat to select if the selection is no longer in the list; if that is
/// missing too, the first one is selected. If a picture cannot be read, a message says so.
void LoadBeatFiles(BeatTable& table, std::string_view wanted);

/// Reads up to 3 seconds of a beat's sound. The beat counts as loaded even if its file has no sound, which a message
/// reports.
void LoadBeatSound(BeatTable& table, std::int32_t index);

/// Loads the selected beat's sound if it is not loaded yet.
void LoadSelectedSound(BeatTable& table);

/// Writes the order of the list to the folder's index.
void SaveBeatOrder(const BeatTable& table);

/// Swaps the selected beat with the one at `target`, a place in the list; the selection follows it.
void MoveBeatTo(BeatTable& table, std::int32_t target);

/// Duration for `DurLbl`, "0.8 Sec".
[[nodiscard]] Words DurationText(const WaveData& sound);

/// Duration of a sound in seconds; 0 if it has no rate.
[[nodiscard]] double BeatSeconds(const WaveData& sound);

} // namespace sprout
