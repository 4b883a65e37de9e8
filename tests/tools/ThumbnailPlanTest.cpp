// SPDX-License-Identifier: GPL-3.0-or-later
#include "sprout-song/ThumbnailPlan.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <utility>
#include <vector>

#include "core/SongSizes.h"

namespace sprout {
namespace {

constexpr int kSides[] = {kThumbnailSmallestSide, 33, 64, 100, 128, 256, 512, 2048};

using Runs = std::vector<std::pair<std::int32_t, std::int32_t>>;

/// A song whose tracks are painted in these runs of cells, both ends included.
SongState PaintOf(const std::vector<Runs>& tracks)
{
    SongState song;
    ResizeTracks(song, static_cast<std::int32_t>(tracks.size()));
    for (std::size_t i = 0; i < tracks.size(); ++i) {
        std::vector<std::int32_t>& painted = song.Tracks[i + 1].Painted;
        painted.assign(kSongCells + 1, kUntouchedCell);
        for (const auto& [first, last] : tracks[i])
            for (std::int32_t cell = first; cell <= last; ++cell)
                At(painted, cell) = kPaintedCell;
    }
    return song;
}

TEST(ThumbnailPlan, LetsThePaintedPartFillTheWidth)
{
    for (const int side : kSides) {
        const ThumbnailPlan plan = PlanThumbnail(PaintOf({{{1, 100}}, {{301, 400}}}), side);
        EXPECT_EQ(plan.lanes[0].bars[0].left, plan.left);
        EXPECT_EQ(plan.lanes[1].bars[0].right, plan.right);
        EXPECT_EQ(plan.lanes[0].bars[0].right, plan.left + (plan.right - plan.left) / 4);
        EXPECT_EQ(plan.left, side - plan.right);
    }
}

TEST(ThumbnailPlan, LeavesRoomBehindAShortSong)
{
    const ThumbnailPlan plan = PlanThumbnail(PaintOf({{{1, kThumbnailLeastCells / 2}}}), 256);
    EXPECT_EQ(plan.lanes[0].bars, (std::vector<ThumbnailBar>{{plan.left, (plan.left + plan.right) / 2}}));
}

TEST(ThumbnailPlan, ShowsTheLastCellOfTheLongestSong)
{
    for (const int side : kSides) {
        const ThumbnailPlan plan = PlanThumbnail(PaintOf({{{kSongCells, kSongCells}}}), side);
        ASSERT_EQ(plan.lanes[0].bars.size(), 1U);
        EXPECT_EQ(plan.lanes[0].bars[0].right, plan.right);
        EXPECT_GT(plan.lanes[0].bars[0].right, plan.lanes[0].bars[0].left);
    }
}

TEST(ThumbnailPlan, JoinsWhatHasNoPixelInBetween)
{
    Runs everyOther;
    for (std::int32_t cell = 1; cell <= kSongCells; cell += 2)
        everyOther.push_back({cell, cell});
    const ThumbnailPlan plan = PlanThumbnail(PaintOf({everyOther, {{1, 10}, {12, 20}, {100, 128}}}), 64);
    EXPECT_EQ(plan.lanes[0].bars, (std::vector<ThumbnailBar>{{plan.left, plan.right}}));
    EXPECT_EQ(plan.lanes[1].bars.size(), 2U);
}

TEST(ThumbnailPlan, KeepsAllRowsInThePictureAndApart)
{
    for (const int side : kSides) {
        for (std::int32_t count = 1; count <= kThumbnailTracks + 5; ++count) {
            const ThumbnailPlan plan =
                PlanThumbnail(PaintOf(std::vector<Runs>(static_cast<std::size_t>(count), Runs{{1, 5}})), side);
            ASSERT_EQ(plan.lanes.size(), static_cast<std::size_t>(std::min(count, kThumbnailTracks)));
            EXPECT_GE(plan.rowHeight, 1);
            EXPECT_GE(plan.rowHeight - 2 * plan.barInset, 1);
            int end = 0;
            for (const ThumbnailLane& lane : plan.lanes) {
                EXPECT_GE(lane.top, end);
                end = lane.top + plan.rowHeight;
            }
            EXPECT_GT(plan.lanes.front().top, 0) << side << " " << count;
            EXPECT_LT(end, side) << side << " " << count;
        }
    }
}

TEST(ThumbnailPlan, FillsTheHeightOnceThereAreFiveTracks)
{
    const auto below = [](std::size_t tracks) {
        const ThumbnailPlan plan = PlanThumbnail(PaintOf(std::vector<Runs>(tracks)), 256);
        return 256 - (plan.lanes.back().top + plan.rowHeight) - plan.lanes.front().top;
    };
    EXPECT_GT(below(2), 60);
    for (std::size_t tracks = 5; tracks <= 24; ++tracks)
        EXPECT_LE(std::abs(below(tracks)), 1);
}

TEST(ThumbnailPlan, TakesCellsAsTheyAreStored)
{
    SongState song = PaintOf({{{1, 10}}, {}});
    song.Tracks[1].Painted[5] = kErasedCell;
    song.Tracks[2].Painted.resize(1); // a file may hold no cell at all
    const ThumbnailPlan plan = PlanThumbnail(song, 2048);
    EXPECT_EQ(plan.lanes[0].bars.size(), 2U);
    EXPECT_TRUE(plan.lanes[1].bars.empty());
    song.SongCells = 0;
    EXPECT_TRUE(PlanThumbnail(song, 256).lanes[0].bars.empty());
}

} // namespace
} // namespace sprout
