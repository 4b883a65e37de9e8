// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing/rules/ExportName.h"

#include <gtest/gtest.h>

namespace sprout {
namespace {

TEST(WithExtension, AddsWhatIsMissing)
{
    EXPECT_EQ(WithExtension("/music/Zumi", ".wav"), "/music/Zumi.wav");
    EXPECT_EQ(WithExtension("/music/Zumi.wma", ".wav"), "/music/Zumi.wma.wav");
    EXPECT_EQ(WithExtension("/music/Zumi.", ".wav"), "/music/Zumi..wav");
    EXPECT_EQ(WithExtension("wav", ".wav"), "wav.wav");
}

TEST(WithExtension, LeavesAnExtensionInAnyLetterCase)
{
    EXPECT_EQ(WithExtension("/music/Zumi.wav", ".wav"), "/music/Zumi.wav");
    EXPECT_EQ(WithExtension("/music/ZUMI.WAV", ".wav"), "/music/ZUMI.WAV");
    EXPECT_EQ(WithExtension("Zumi.WmA", ".wma"), "Zumi.WmA");
}

TEST(WithExtension, LeavesANameThatIsTheExtensionAlone)
{
    EXPECT_EQ(WithExtension(".wav", ".WAV"), ".wav");
}

TEST(OfferedName, IsTheTitleWithTheExtension)
{
    EXPECT_EQ(OfferedName("Zumi", ".wav"), "Zumi.wav");
    EXPECT_EQ(OfferedName("Mein Lied ä", ".wma"), "Mein Lied ä.wma");
    EXPECT_EQ(OfferedName("", ".wav"), ".wav");
}

TEST(OfferedName, HoldsNoSeparator)
{
    EXPECT_EQ(OfferedName("../a/b", ".wav"), "___a_b.wav");
}

TEST(OfferedName, IsNoLongerThanFileSystemsTake)
{
    const std::string offered = OfferedName(std::string(300, 'a'), ".wav");
    EXPECT_EQ(offered, std::string(251, 'a') + ".wav");
    std::string umlauts;
    for (int i = 0; i < 150; ++i)
        umlauts += "ä";
    EXPECT_EQ(OfferedName(umlauts, ".wav"), umlauts.substr(0, 250) + ".wav");
}

} // namespace
} // namespace sprout
