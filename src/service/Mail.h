// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <stop_token>
#include <string>

namespace sprout {

/// A message that the user reads, addresses and sends. Texts are UTF-8; lines end in CR LF or LF.
struct MailMessage {
    std::string Recipient; ///< empty: the user fills it in
    std::string Subject;
    std::string Body;
    std::filesystem::path Attachment; ///< absolute; mail programs read it when they send
};

/// The user's mail program.
class Mail {
public:
    Mail() = default;
    Mail(const Mail&) = delete;
    Mail& operator=(const Mail&) = delete;
    virtual ~Mail() = default;

    /// Opens the mail program with a new message. Returns true if it was started with the attachment; nobody learns
    /// whether the message is ever sent. Returns false if there is no mail program or it does not start.
    ///
    /// May take some seconds, on any thread, and ends at once when `stop` asks for it; the result then means nothing.
    [[nodiscard]] virtual bool HandOver(const MailMessage& message, std::stop_token stop) = 0;
};

} // namespace sprout
