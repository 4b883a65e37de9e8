// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

#include "base/Words.h"

namespace sprout {

/// The subject of a mail with a song.
[[nodiscard]] Words MailSubject(std::string_view songTitle);

/// The text of a mail with a song, in lines that end in CR LF; the last line is the author.
[[nodiscard]] Words MailBody(std::string_view songTitle, std::string_view createdBy);

} // namespace sprout
