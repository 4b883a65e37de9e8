// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/rules/ControlBarPlaces.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace sprout {
namespace {

Box PlaceOf(const ControlBarPlaces& places, BarTool tool)
{
    return places.tools[static_cast<std::size_t>(tool)];
}

/// All places of a bar that are not empty, the tools first.
std::vector<Box> AllPlaces(const ControlBarPlaces& places)
{
    std::vector<Box> all(places.tools.begin(), places.tools.end());
    std::erase(all, Box());
    all.push_back(places.song);
    all.push_back(places.tempo);
    return all;
}

std::int32_t Gap(std::int32_t at, std::int32_t extent, std::int32_t otherAt, std::int32_t otherExtent)
{
    return at < otherAt ? otherAt - at - extent : at - otherAt - otherExtent;
}

/// The pixels between two places; negative if they overlap.
std::int32_t Apart(const Box& a, const Box& b)
{
    return std::max(Gap(a.left, a.width, b.left, b.width), Gap(a.top, a.height, b.top, b.height));
}

TEST(PlaceControlBar, StandsInOneRowWhereTitleAndTempoFindRoom)
{
    const ControlBarPlaces places = PlaceControlBar(1200);
    EXPECT_EQ(places.height, 72);
    EXPECT_EQ(PlaceOf(places, BarTool::PlayAll), (Box{8, 8, 56, 56}));
    EXPECT_EQ(PlaceOf(places, BarTool::PlayStop), (Box{70, 8, 56, 56}));
    EXPECT_EQ(PlaceOf(places, BarTool::Brush), (Box{138, 8, 56, 56}));
    EXPECT_EQ(PlaceOf(places, BarTool::PlayTool), (Box{262, 8, 56, 56}));
    EXPECT_EQ(places.song, (Box{330, 4, 348, 28}));
    EXPECT_TRUE(places.songInOneLine);
    EXPECT_EQ(places.tempo, (Box{330, 32, 312, 36}));
    EXPECT_EQ(PlaceOf(places, BarTool::SongTitleChg), (Box{690, 8, 56, 56}));
    EXPECT_EQ(PlaceOf(places, BarTool::New), (Box{758, 8, 56, 56}));
    EXPECT_EQ(PlaceOf(places, BarTool::Email), (Box{944, 8, 56, 56}));
    EXPECT_EQ(PlaceOf(places, BarTool::Help), (Box{1012, 8, 56, 56}));
    EXPECT_EQ(PlaceOf(places, BarTool::Demo), (Box{1136, 8, 56, 56}));
}

TEST(PlaceControlBar, KeepsOneTightRowInAWindowOfAThousandPixels)
{
    const ControlBarPlaces places = PlaceControlBar(988);
    EXPECT_EQ(places.height, 80);
    EXPECT_TRUE(places.songInOneLine);
    EXPECT_EQ(PlaceOf(places, BarTool::PlayAll), (Box{8, 12, 56, 56}));
    EXPECT_EQ(places.song, (Box{330, 0, 136, 28}));
    EXPECT_EQ(places.tempo, (Box{330, 25, 136, 53}));
    EXPECT_EQ(PlaceOf(places, BarTool::SongTitleChg), (Box{478, 12, 56, 56}));
    EXPECT_EQ(PlaceOf(places, BarTool::Demo), (Box{924, 12, 56, 56}));
    EXPECT_EQ(PlaceControlBar(978).height, 80);
    EXPECT_EQ(PlaceControlBar(977).height, 130);
    EXPECT_EQ(PlaceControlBar(1163).height, 80);
    EXPECT_EQ(PlaceControlBar(1164).height, 72);
}

TEST(PlaceControlBar, WrapsToTwoRows)
{
    const ControlBarPlaces places = PlaceControlBar(788);
    EXPECT_EQ(places.height, 130);
    EXPECT_FALSE(places.songInOneLine);
    EXPECT_EQ(PlaceOf(places, BarTool::PlayAll), (Box{8, 6, 56, 56}));
    EXPECT_EQ(places.song, (Box{330, 6, 382, 56}));
    EXPECT_EQ(PlaceOf(places, BarTool::SongTitleChg), (Box{724, 6, 56, 56}));
    EXPECT_EQ(PlaceOf(places, BarTool::New), (Box{8, 68, 56, 56}));
    EXPECT_EQ(PlaceOf(places, BarTool::Demo), (Box{386, 68, 56, 56}));
    EXPECT_EQ(places.tempo, (Box{468, 78, 312, 36}));
}

TEST(PlaceControlBar, KeepsLargeToolsAsLongAsAShortTempoFits)
{
    const ControlBarPlaces places = PlaceControlBar(588);
    EXPECT_EQ(places.height, 130);
    EXPECT_EQ(PlaceOf(places, BarTool::Demo), (Box{386, 68, 56, 56}));
    EXPECT_EQ(places.tempo, (Box{454, 69, 126, 53}));
    EXPECT_EQ(PlaceControlBar(587).height, 98);
}

TEST(PlaceControlBar, HasSmallerToolsInTheNarrowestWindow)
{
    const ControlBarPlaces places = PlaceControlBar(521);
    EXPECT_EQ(places.height, 98);
    EXPECT_EQ(PlaceOf(places, BarTool::PlayAll), (Box{8, 6, 40, 40}));
    EXPECT_EQ(PlaceOf(places, BarTool::Demo), (Box{290, 52, 40, 40}));
    EXPECT_EQ(places.tempo.left, 342);
    EXPECT_EQ(places.tempo.width, 171);
}

TEST(PlaceControlBar, ClosesUpWhereTheSongCannotBeMailed)
{
    const ControlBarPlaces one = PlaceControlBar(1200, EmailTool::Hidden);
    EXPECT_EQ(one.height, 72);
    EXPECT_EQ(PlaceOf(one, BarTool::Email), Box());
    EXPECT_EQ(PlaceOf(one, BarTool::SongTitleChg), (Box{752, 8, 56, 56}));
    EXPECT_EQ(PlaceOf(one, BarTool::New), (Box{820, 8, 56, 56}));
    EXPECT_EQ(PlaceOf(one, BarTool::Save), (Box{944, 8, 56, 56}));
    EXPECT_EQ(PlaceOf(one, BarTool::Help), (Box{1012, 8, 56, 56}));
    EXPECT_EQ(one.song.width, 410);

    const ControlBarPlaces two = PlaceControlBar(788, EmailTool::Hidden);
    EXPECT_EQ(two.height, 130);
    EXPECT_EQ(PlaceOf(two, BarTool::Email), Box());
    EXPECT_EQ(PlaceOf(two, BarTool::Save), (Box{132, 68, 56, 56}));
    EXPECT_EQ(PlaceOf(two, BarTool::Help), (Box{200, 68, 56, 56}));
    EXPECT_EQ(PlaceOf(two, BarTool::Demo), (Box{324, 68, 56, 56}));
}

TEST(PlaceControlBar, GivesTheRoomOfTheHiddenToolToTheOthers)
{
    const auto height = [](std::int32_t width) { return PlaceControlBar(width, EmailTool::Hidden).height; };
    EXPECT_EQ(height(1102), 72);
    EXPECT_EQ(height(1101), 80);
    EXPECT_EQ(height(916), 80);
    EXPECT_EQ(height(915), 130);
    EXPECT_EQ(height(526), 130);
    EXPECT_EQ(height(525), 98);
}

class ControlBarAtEveryWidth : public testing::TestWithParam<EmailTool> {};

TEST_P(ControlBarAtEveryWidth, KeepsTargetsApartAndInsideTheBar)
{
    const std::size_t tools = kBarTools - (GetParam() == EmailTool::Hidden ? 1 : 0);
    for (std::int32_t width = 521; width <= 2000; ++width) {
        const ControlBarPlaces places = PlaceControlBar(width, GetParam());
        const std::vector<Box> all = AllPlaces(places);
        ASSERT_EQ(all.size(), tools + 2) << width;
        for (std::size_t i = 0; i < all.size(); ++i) {
            ASSERT_GE(all[i].left, 8) << width;
            ASSERT_LE(all[i].left + all[i].width, width - 8) << width;
            ASSERT_GE(all[i].top, 0) << width;
            ASSERT_LE(all[i].top + all[i].height, places.height - 2) << width;
            for (std::size_t other = i + 1; other < tools; ++other)
                ASSERT_GE(Apart(all[i], all[other]), 6) << width << ", tools " << i << " and " << other;
        }
        for (std::size_t tool = 0; tool < tools; ++tool)
            for (const Box& label : {places.song, places.tempo})
                ASSERT_GE(Apart(all[tool], label), 6) << width << ", tool " << tool;
    }
}

INSTANTIATE_TEST_SUITE_P(WithAndWithoutMail, ControlBarAtEveryWidth,
                         testing::Values(EmailTool::Shown, EmailTool::Hidden));

constexpr SongLineNeeds kShortSong{42, 50, 24, 160};
constexpr SongLineNeeds kLongSong{42, 700, 24, 600};

TEST(FitSongLine, ShowsTitleAndAuthorWholeWhereTheyHaveRoom)
{
    const SongLine line = FitSongLine(kShortSong, 348);
    EXPECT_TRUE(line.hasCaption);
    EXPECT_TRUE(line.hasAuthorCaption);
    EXPECT_EQ(line.titleLeft, 42);
    EXPECT_EQ(line.titleWidth, 50);
    EXPECT_EQ(line.authorCaptionLeft, 108);
    EXPECT_EQ(line.authorLeft, 132);
    EXPECT_EQ(line.authorWidth, 216);
}

TEST(FitSongLine, CutsTheTitleBeforeTheAuthor)
{
    const SongLine line = FitSongLine(kLongSong, 348);
    EXPECT_TRUE(line.hasAuthorCaption);
    EXPECT_EQ(line.titleWidth, 120);
    EXPECT_EQ(line.authorLeft, 202);
    EXPECT_EQ(line.authorWidth, 146);
}

TEST(FitSongLine, LeavesTheTitlesCaptionOutOfAShortLine)
{
    EXPECT_TRUE(FitSongLine(kLongSong, 262).hasCaption);
    const SongLine line = FitSongLine(kLongSong, 261);
    EXPECT_FALSE(line.hasCaption);
    EXPECT_TRUE(line.hasAuthorCaption);
    EXPECT_EQ(line.titleLeft, 0);
    EXPECT_EQ(line.titleWidth, 120);
    EXPECT_EQ(line.authorLeft, 160);
    EXPECT_EQ(line.authorWidth, 101);
}

TEST(FitSongLine, SharesTheShortestLineBetweenTitleAndAuthor)
{
    EXPECT_TRUE(FitSongLine(kLongSong, 220).hasAuthorCaption);
    const SongLine longer = FitSongLine(kLongSong, 219);
    EXPECT_FALSE(longer.hasAuthorCaption);
    EXPECT_EQ(longer.titleWidth, 120);
    EXPECT_EQ(longer.authorLeft, 136);
    EXPECT_EQ(longer.authorWidth, 83);
    const SongLine shortest = FitSongLine(kLongSong, 126);
    EXPECT_EQ(shortest.titleWidth, 55);
    EXPECT_EQ(shortest.authorWidth, 55);
}

TEST(FitSongLine, StaysInsideItsRoom)
{
    for (const SongLineNeeds& needs : {kShortSong, kLongSong, SongLineNeeds{42, 2, 24, 2}})
        for (std::int32_t room = 126; room < 900; ++room) {
            const SongLine line = FitSongLine(needs, room);
            ASSERT_LE(line.titleLeft + line.titleWidth, room);
            ASSERT_GE(line.authorWidth, std::min(needs.author, 55)) << room; // visible at every width
            ASSERT_EQ(line.authorLeft + line.authorWidth, room);
        }
}

} // namespace
} // namespace sprout
