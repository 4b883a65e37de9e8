// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/xdg/MailCommand.h"

#include <gtest/gtest.h>

namespace sprout {
namespace {

using Words = std::vector<std::string>;

MailMessage PlainMessage()
{
    return {"", "S", "B", "/t/a.wma"};
}

Words CommandOf(std::string_view id, const std::string& exec)
{
    return MailCommand(id, {exec, {}}, PlainMessage());
}

TEST(PercentEncoded, KeepsWhatIsUnreserved)
{
    EXPECT_EQ(PercentEncoded("azAZ09-._~"), "azAZ09-._~");
    EXPECT_EQ(PercentEncoded(" \"',%&+/=@\r\n\\`$()é\x7F"),
              "%20%22%27%2C%25%26%2B%2F%3D%40%0D%0A%5C%60%24%28%29%C3%A9%7F");
    EXPECT_EQ(PercentEncoded(std::string(1, '\0')), "%00");
}

TEST(FileUri, KeepsTheSeparatorsAlone)
{
    EXPECT_EQ(FileUri("/tmp/It's 100%, \"a\"é.wma"), "file:///tmp/It%27s%20100%25%2C%20%22a%22%C3%A9.wma");
}

TEST(ComposeArgument, HoldsAllPartsOfTheMessage)
{
    EXPECT_EQ(ComposeArgument({"", "a, 'b'", "x\r\ny\nz", "/t/a,b.wma"}),
              "subject=a%2C%20%27b%27,body=x%0Ay%0Az,attachment='file:///t/a%2Cb.wma'");
    EXPECT_EQ(ComposeArgument({"a@b.example", "S", "B", "/t/a.wma"}),
              "to=a%40b.example,subject=S,body=B,attachment='file:///t/a.wma'");
}

TEST(MailCommand, CallsThunderbirdItself)
{
    const std::string argument = ComposeArgument(PlainMessage());
    EXPECT_EQ(CommandOf("thunderbird.desktop", "tb --a %u"), (Words{"tb", "--a", "-compose", argument}));
    EXPECT_EQ(CommandOf("userapp-Thunderbird-AB1.desktop", "tb"), (Words{"tb", "-compose", argument}));
    EXPECT_EQ(CommandOf("eu.betterbird.Betterbird.desktop", "bb"), (Words{"bb", "-compose", argument}));
    EXPECT_EQ(CommandOf("mail.desktop", "env A=b /usr/lib/icedove/icedove-bin %u"),
              (Words{"env", "A=b", "/usr/lib/icedove/icedove-bin", "-compose", argument}));
    EXPECT_EQ(CommandOf("x.desktop", "flatpak run org.mozilla.Thunderbird @@u %u @@"),
              (Words{"flatpak", "run", "org.mozilla.Thunderbird", "-compose", argument}));
}

TEST(MailCommand, LeavesOtherProgramsToTheDesktop)
{
    const Words others{"xdg-email", "--utf8", "--subject", "S", "--body", "B", "--attach", "/t/a.wma"};
    EXPECT_EQ(CommandOf("org.gnome.Evolution.desktop", "evolution %U"), others);
    EXPECT_EQ(CommandOf("mail.desktop", "/home/thunderbird/mail --like=thunderbird -thunderbird"), others);
    EXPECT_EQ(CommandOf("thunderbird.desktop", ""), others);
    EXPECT_EQ(MailCommand("mail.desktop", {"mail", {}}, {"a@b.example", "-x", "1\r\n2\r3\n", "/t/a.wma"}),
              (Words{"xdg-email", "--utf8", "--to", "a@b.example", "--subject", "-x", "--body", "1\n2\r3\n", "--attach",
                     "/t/a.wma"}));
}

TEST(MailCommand, LosesNothingBehindAZeroByte)
{
    MailMessage message = PlainMessage();
    message.Subject = std::string("a\0b", 3);
    EXPECT_EQ(MailCommand("mail.desktop", {"mail", {}}, message)[3], "ab");
}

} // namespace
} // namespace sprout
