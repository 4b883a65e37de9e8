// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/start/GivenSong.h"

#include <gtest/gtest.h>

#include <vector>

namespace sprout {
namespace {

std::filesystem::path Given(std::vector<const char*> arguments)
{
    return GivenSong(arguments);
}

TEST(GivenSong, IsTheFirstThatIsNoOption)
{
    EXPECT_EQ(Given({"sprout-painter", "/a/Rain.TqSng", "/a/Snow.TqSng"}), "/a/Rain.TqSng");
    EXPECT_EQ(Given({"sprout-painter", "", "-x", "--", "/a/Élan 2.TqSng"}), "/a/Élan 2.TqSng");
}

TEST(GivenSong, IsFoundFromTheCurrentFolder)
{
    EXPECT_EQ(Given({"sprout-painter", "Rain.TqSng"}), std::filesystem::current_path() / "Rain.TqSng");
    EXPECT_EQ(Given({"sprout-painter", "./-Rain.TqSng"}).filename(), "-Rain.TqSng");
}

TEST(GivenSong, IsNoneWhereNoneIsNamed)
{
    EXPECT_TRUE(Given({}).empty());
    EXPECT_TRUE(Given({"sprout-painter"}).empty());
    EXPECT_TRUE(Given({"sprout-painter", "--help", "-"}).empty());
}

} // namespace
} // namespace sprout
