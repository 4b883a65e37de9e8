// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace sprout {

/// Starts of the program that open the sample song.
inline constexpr int kFirstStarts = 3;

/// Opens the sample song of `UserSongs` in place of the new one, if this is one of the first starts. They are counted
/// in a small hidden file of `UserRoot`; where it cannot be written, every start is a first one.
///
/// Returns whether the shared song was replaced. A file that cannot be read leaves the new song, without a message.
/// Never throws.
bool OpenSampleSong();

} // namespace sprout
