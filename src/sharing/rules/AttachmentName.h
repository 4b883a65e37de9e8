// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace sprout {

/// The file name under which a friend gets a song: its title and ".wma". What the file systems of other machines refuse
/// becomes "_" or, at the ends, is dropped. A title of more than 200 bytes is cut between two characters; one that
/// names nothing becomes "Song".
[[nodiscard]] std::string AttachmentName(std::string_view songTitle);

} // namespace sprout
