// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/xdg/DesktopFile.h"

#include <gtest/gtest.h>

namespace sprout {
namespace {

using Words = std::vector<std::string>;

TEST(ParseDesktopFile, ReadsTheGroupOfTheProgram)
{
    const DesktopFile file = ParseDesktopFile("# Exec=comment\n[Other]\nExec=other\n[Desktop Entry]\r\nName=Mail\n"
                                              "Exec = mailer %u\r\nExec=second\nCategories=Network;Email;\n"
                                              "#Exec=no\n[Desktop Action new]\nExec=mailer --new\n");
    EXPECT_EQ(file.Exec, "mailer %u");
    EXPECT_EQ(file.Categories, (Words{"Network", "Email", ""}));
    EXPECT_FALSE(IsWebBrowser(file));
}

TEST(ParseDesktopFile, ResolvesEscapes)
{
    EXPECT_EQ(ParseDesktopFile("[Desktop Entry]\nExec=a\\sb\\\\c\\td\\q\\\n").Exec, "a b\\c\td\\q\\");
}

TEST(ParseDesktopFile, FindsNothingInOtherFiles)
{
    for (const char* text : {"", "Exec=a", "[Desktop Entry]\nExec", "[Desktop Entry", "\n\n=\n[]"})
        EXPECT_EQ(ParseDesktopFile(text).Exec, "") << text;
}

TEST(IsWebBrowser, GoesByTheCategory)
{
    EXPECT_TRUE(IsWebBrowser(ParseDesktopFile("[Desktop Entry]\nCategories=Network;WebBrowser;\n")));
    EXPECT_TRUE(IsWebBrowser(ParseDesktopFile("[Desktop Entry]\nCategories=WebBrowser\n")));
    EXPECT_FALSE(IsWebBrowser(ParseDesktopFile("[Desktop Entry]\nCategories=X-WebBrowser;Email\n")));
}

TEST(ExecWords, PartsAtBlanks)
{
    EXPECT_EQ(ExecWords("  a  b\tc "), (Words{"a", "b", "c"}));
    EXPECT_EQ(ExecWords(""), Words());
}

TEST(ExecWords, HoldsQuotedWordsTogether)
{
    EXPECT_EQ(ExecWords("\"/opt/My Mail/mail\" \"a\\\"b\\`c\\$d\\\\e\\f\" x\"y z\"w \"\""),
              (Words{"/opt/My Mail/mail", "a\"b`c$d\\e\\f", "xy zw", ""}));
    EXPECT_EQ(ExecWords("a \"b c"), (Words{"a", "b c"}));
    EXPECT_EQ(ExecWords("a \"b\\"), (Words{"a", "b\\"}));
}

TEST(ExecWords, DropsCodes)
{
    EXPECT_EQ(ExecWords("mail %u --x=%f %U %i 100%% %"), (Words{"mail", "--x=", "100%"}));
    EXPECT_EQ(ExecWords("flatpak run --command=thunderbird --file-forwarding org.mozilla.Thunderbird @@u %u @@"),
              (Words{"flatpak", "run", "--command=thunderbird", "--file-forwarding", "org.mozilla.Thunderbird"}));
}

} // namespace
} // namespace sprout
