// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace sprout {

/// The file name under which a friend gets a song: its title and ".wma". Characters that other file systems refuse
/// become "_" or, at the ends, are dropped. A title of more than 200 bytes is cut between two characters; a title of
/// only dots and blanks becomes "Song".
[[nodiscard]] std::string AttachmentName(std::string_view songTitle);

} // namespace sprout
