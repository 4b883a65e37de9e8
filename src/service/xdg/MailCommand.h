// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "service/Mail.h"
#include "service/xdg/DesktopFile.h"

namespace sprout {

/// `text` with every byte but letters, digits and "-._~" as a percent sign and two digits.
[[nodiscard]] std::string PercentEncoded(std::string_view text);

/// The address of a file.
[[nodiscard]] std::string FileUri(const std::filesystem::path& path);

/// The one argument behind "-compose" with which Thunderbird and its kin open a new message. They decode all of it but
/// the attachment, which is in quotes and is an address. Line ends become LF.
[[nodiscard]] std::string ComposeArgument(const MailMessage& message);

/// The words that start a mail program with a new message. id: the name of its .desktop file.
///
/// Thunderbird and its kin are called themselves, for xdg-email loses their attachment under several desktops; all
/// others through xdg-email, with line ends of LF.
[[nodiscard]] std::vector<std::string> MailCommand(std::string_view id, const DesktopFile& program,
                                                   const MailMessage& message);

} // namespace sprout
