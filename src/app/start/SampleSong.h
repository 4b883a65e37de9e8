// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace sprout {

/// Number of program starts that open the sample song.
inline constexpr int kFirstStarts = 3;

/// The number of starts that were counted so far, up to `kFirstStarts`; 0 if they cannot be counted.
[[nodiscard]] int StartsSoFar();

/// Opens the sample song of `UserSongs` instead of the new one, if this is one of the first starts. They are counted in
/// a small hidden file in `UserRoot`; if it cannot be written, every start counts as a first one.
///
/// If the setting `StartSong` names a song, every start opens that one: a path is opened from where it is, any other
/// name from `UserSongs`.
///
/// Returns whether the shared song was replaced. If the file cannot be read, the new song stays, without a message.
/// Never throws.
bool OpenSampleSong();

} // namespace sprout
