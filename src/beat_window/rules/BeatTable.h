// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "core/Song.h"

namespace sprout {

/// Longest sound of a beat in the beat window, in seconds. In a tune it may be longer.
inline constexpr std::int32_t kLongestShownSeconds = 3;

/// Columns of the grid of beats.
inline constexpr std::int32_t kBeatColumns = 12;

/// Rows of the grid that show `beats` without scrolling, as far as a height has room for them; at least eight. The last
/// one stays free: a grid that is filled to its last row can be scrolled.
[[nodiscard]] std::int32_t BeatGridRows(std::int32_t beats, std::int32_t roomPx);

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

/// The items of the menu `MoveMnu`.
enum class BeatMove : std::int32_t { Up = 0, Down = 1, Left = 2, Right = 3 };
inline constexpr std::array<std::string_view, 4> kBeatMoveCaptions{"Move Up", "Move Down", "Move Left", "Move Right"};

/// The place that the selected beat would move to; 0 where it cannot.
[[nodiscard]] std::int32_t MoveTarget(const BeatTable& table, BeatMove move);

/// Swaps the selected beat with the one at its target; the selection follows it. Returns whether it could.
bool MoveBeat(BeatTable& table, BeatMove move);

/// Duration for `DurLbl`, "0.8 Sec".
[[nodiscard]] std::string DurationText(const WaveData& sound);

/// BeatSeconds that a sound lasts; 0 for one without a rate.
[[nodiscard]] double BeatSeconds(const WaveData& sound);

} // namespace sprout
