// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing/rules/MailText.h"

#include <gtest/gtest.h>

namespace sprout {
namespace {

TEST(MailSubject, NamesTheSong)
{
    EXPECT_EQ(MailSubject("Zumi").English(), "Song i composed myself - Zumi");
    EXPECT_EQ(MailSubject("\"a\", 100 %").English(), "Song i composed myself - \"a\", 100 %");
}

TEST(MailBody, TellsTheSongTheProgramAndTheAuthor)
{
    EXPECT_EQ(MailBody("Zumi", "Lina").English(),
              "Hi \r\n"
              "\r\n"
              "Listen to this song \"Zumi\" I composed with Tonquill Sprout Painter\r\n"
              "https://tonquill.example/\r\n"
              "\r\n"
              "Talk to you later\r\n"
              "Lina");
}

} // namespace
} // namespace sprout
