// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "core/Song.h"

namespace sprout {

/// Longest sound of a beat in the beat window, in seconds. In a tune it may be longer.
inline constexpr std::int32_t kLongestShownSeconds = 3;

/// `SelectedBeat` where the next load is to find `RefindBeatName`.
inline constexpr std::int32_t kRefindBeat = -1;

/// The beats of `UserBeats` as the beat window shows them.
struct BeatTable {
    std::vector<Beat> BeatList = std::vector<Beat>(1); ///< from 1; names in lower case, sounds on demand
    std::map<std::string, std::string> NamesForPeople; ///< by the names of the list
    std::vector<bool> BeatProtected = std::vector<bool>(1);
    std::int32_t BeatListCount = 0;
    std::int32_t SelectedBeat = 0; ///< 0 = none, or `kRefindBeat`
    std::string RefindBeatName;    ///< to be found after a command that changed the folder
};

/// True where the selection is a beat of the list.
[[nodiscard]] bool HasSelection(const BeatTable& table);

/// The selected beat; there must be one.
[[nodiscard]] const Beat& SelectedEntry(const BeatTable& table);
[[nodiscard]] bool IsSelectedProtected(const BeatTable& table);

/// Builds the list from the folder: names, pictures, originals and order, no sounds. At the first use of a folder all
/// its beats become originals. wanted: the beat to select where the selection is none of the list any more; the first
/// one where that is not there. A picture that cannot be read is told in a message.
void LoadBeatFiles(BeatTable& table, std::string_view wanted);

/// Reads a beat's sound, at most 3 seconds of it. The beat counts as loaded even where its file gave no sound, of which
/// a message tells.
void LoadBeatSound(BeatTable& table, std::int32_t index);

/// Loads the selected beat's sound if that was not done yet.
void LoadSelectedSound(BeatTable& table);

/// Writes the order of the list to the folder's index.
void SaveBeatOrder(const BeatTable& table);

/// Swaps the selected beat with the one at `target`, a place of the list; the selection follows it.
void MoveBeatTo(BeatTable& table, std::int32_t target);

/// Duration for `DurLbl`, "0.8 Sec".
[[nodiscard]] std::string DurationText(const WaveData& sound);

/// Seconds that a sound lasts; 0 for one without a rate.
[[nodiscard]] double BeatSeconds(const WaveData& sound);

} // namespace sprout
