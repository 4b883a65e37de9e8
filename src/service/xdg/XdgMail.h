// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <filesystem>
#include <span>
#include <string_view>

#include "service/Mail.h"

namespace sprout {

/// How long the programs of the desktop may take.
struct XdgMailLimits {
    std::chrono::milliseconds Answer{10000}; ///< to name the mail program
    std::chrono::milliseconds Failure{3000}; ///< to end with an error; one that still runs then counts as started
};

/// `Mail` on the desktop's own choice of programs, which xdg-mime reports. A web browser that also opens mail addresses
/// is not a mail program. xdg-email alone is not enough: its success does not tell whether a program was started.
class XdgMail : public Mail {
public:
    explicit XdgMail(XdgMailLimits waits = {}) : limits(waits) {}
    [[nodiscard]] bool HandOver(const MailMessage& message, std::stop_token stop) override;

private:
    XdgMailLimits limits;
};

/// The .desktop file of an id in the first of `dataFolders` that has it; empty if none has. A "-" in an id may stand
/// for the separator of a folder below "applications".
[[nodiscard]] std::filesystem::path FindDesktopFile(std::string_view id,
                                                    std::span<const std::filesystem::path> dataFolders);

} // namespace sprout
