// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "service/Mail.h"
#include "service/xdg/DesktopFile.h"

namespace sprout {

/// `text` with every byte except letters, digits and "-._~" as a percent sign and two hex digits.
[[nodiscard]] std::string PercentEncoded(std::string_view text);

/// The address of a file.
[[nodiscard]] std::string FileUri(const std::filesystem::path& path);

/// The single argument after "-compose" with which Thunderbird and its relatives open a new message. They decode all of
/// it except the attachment, which is a quoted address. Line ends become LF.
[[nodiscard]] std::string ComposeArgument(const MailMessage& message);

/// The words that start a mail program with a new message. id: the name of its .desktop file.
///
/// Thunderbird and its relatives are called directly, because xdg-email loses their attachment on several desktops; all
/// others through xdg-email, with line ends of LF.
[[nodiscard]] std::vector<std::string> MailCommand(std::string_view id, const DesktopFile& program,
                                                   const MailMessage& message);

} // namespace sprout
