// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing/rules/MailText.h"

#include "base/Product.h"

namespace sprout {

Words MailSubject(std::string_view songTitle)
{
    return Words::Text("Song i composed myself - %1", songTitle);
}

Words MailBody(std::string_view songTitle, std::string_view createdBy)
{
    return Words::Text("Hi \r\n\r\nListen to this song \"%1\" I composed with %2\r\n%3\r\n\r\nTalk to you later\r\n%4",
                       songTitle, kProductName, kWebSite, createdBy);
}

} // namespace sprout
