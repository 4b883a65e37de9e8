// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing/rules/MailText.h"

#include "base/Product.h"

namespace sprout {

std::string MailSubject(std::string_view songTitle)
{
    return "Song i composed myself - " + std::string(songTitle);
}

std::string MailBody(std::string_view songTitle, std::string_view createdBy)
{
    std::string body = "Hi \r\n\r\nListen to this song \"";
    body.append(songTitle).append("\" I composed with ").append(kProductName).append("\r\n");
    body.append(kWebSite).append("\r\n\r\nTalk to you later\r\n").append(createdBy);
    return body;
}

} // namespace sprout
