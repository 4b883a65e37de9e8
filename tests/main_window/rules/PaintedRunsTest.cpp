// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/rules/PaintedRuns.h"

#include <gmock/gmock.h>

namespace sprout {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TrackView NarrowView(std::int32_t firstCell = 1)
{
    return {1, firstCell, 60, 300, 300};
}

Track PaintedTrack(std::initializer_list<PaintedRun> runs)
{
    Track track;
    track.Painted.assign(kSongCells + 1, 0);
    for (const PaintedRun& run : runs)
        for (std::int32_t cell = run.firstCell; cell <= run.lastCell; ++cell)
            At(track.Painted, cell) = 1;
    return track;
}

TEST(VisibleRuns, FindsEachMaximalStretchOfOnes)
{
    Track track = PaintedTrack({{2, 4}, {8, 8}});
    for (const std::int32_t erased : {5, 6}) // looks as if never touched, beside a run and alone
        At(track.Painted, erased) = 2;
    EXPECT_THAT(VisibleRuns(track, kSongCells, NarrowView()), ElementsAre(PaintedRun{2, 4}, PaintedRun{8, 8}));
}

TEST(VisibleRuns, ReadsNothingInElement0)
{
    Track track = PaintedTrack({});
    At(track.Painted, 0) = 1;
    EXPECT_THAT(VisibleRuns(track, kSongCells, NarrowView()), IsEmpty());
}

TEST(VisibleRuns, SkipsWhatEndsBeforeTheViewAndKeepsWhatReachesIntoIt)
{
    const Track track = PaintedTrack({{1, 9}, {12, 20}});
    EXPECT_THAT(VisibleRuns(track, kSongCells, NarrowView(10)), ElementsAre(PaintedRun{12, 20}));
    EXPECT_THAT(VisibleRuns(track, kSongCells, NarrowView(9)), ElementsAre(PaintedRun{1, 9}, PaintedRun{12, 20}));
}

TEST(VisibleRuns, CutsAtTheLastVisibleCell)
{
    // 60 pixels: cells 1 to 21.
    const Track track = PaintedTrack({{15, 40}, {50, 60}});
    EXPECT_THAT(VisibleRuns(track, kSongCells, NarrowView()), ElementsAre(PaintedRun{15, 21}));
}

TEST(VisibleRuns, EndsWithTheSong)
{
    EXPECT_THAT(VisibleRuns(PaintedTrack({{1270, 1280}}), kSongCells, NarrowView(1275)),
                ElementsAre(PaintedRun{1270, 1280}));
}

TEST(CycleCells, IsTheTunesLengthOrThatOfTheAudioAtTheReferenceTempo)
{
    Track track;
    track.TrackTune.StepCount = 16;
    EXPECT_EQ(CycleCells(track), 16);
    track.TrackTune.StepCount = 0;
    EXPECT_EQ(CycleCells(track), 1);
    track.TrackType = 1;
    track.TrackAudio.Length = 44100 * 3;
    EXPECT_EQ(CycleCells(track), 16);
    track.TrackAudio.Length = 10;
    EXPECT_EQ(CycleCells(track), 1);
    track.TrackAudio.Rate = 0;
    EXPECT_GE(CycleCells(track), 1);
}

TEST(RunTiles, LaysTilesEdgeToEdgeAndCutsTheLast)
{
    EXPECT_THAT(RunTiles({1, 50}, NarrowView(), 64),
                ElementsAre(TilePlace{0, 64}, TilePlace{64, 64}, TilePlace{128, 22}));
}

TEST(RunTiles, BeginsLeftOfTheViewAndLeavesOutWhatEndsThere)
{
    // From -90 on: the first tile ends at -26.
    EXPECT_THAT(RunTiles({1, 40}, NarrowView(31), 64), ElementsAre(TilePlace{-26, 56}));
    EXPECT_THAT(RunTiles({1, 40}, NarrowView(31), 90), ElementsAre(TilePlace{0, 30}));
}

TEST(RunMarks, DrawsEdgesCyclesAndTheEndOfAWholeNumberOfCycles)
{
    EXPECT_THAT(RunMarks({3, 10}, 4, NarrowView(), 20), ElementsAre(PixelRect{6, 27, 24, 1},  // top
                                                                    PixelRect{6, 59, 24, 1},  // bottom
                                                                    PixelRect{6, 27, 1, 33},  // first cell
                                                                    PixelRect{18, 27, 1, 5},  // second cycle
                                                                    PixelRect{18, 55, 1, 5},  //
                                                                    PixelRect{29, 27, 1, 33}) // last pixel of cell 10
    );
}

TEST(RunMarks, PutsTheEndOfABrokenCycleAtBTimes3WhereverTheViewIs)
{
    EXPECT_EQ(RunMarks({3, 5}, 16, NarrowView(), 20).back(), (PixelRect{15, 27, 1, 33}));
    EXPECT_EQ(RunMarks({3, 5}, 16, NarrowView(2), 20).back(), (PixelRect{15, 27, 1, 33}));
}

TEST(RunMarks, ShowsOneCellOfALongCycleAsItsStartAndTheOddEnd)
{
    EXPECT_THAT(RunMarks({7, 7}, 16, NarrowView(), 20),
                ElementsAre(PixelRect{18, 27, 3, 1}, PixelRect{18, 59, 3, 1}, PixelRect{18, 27, 1, 33},
                            PixelRect{21, 27, 1, 33}));
}

TEST(RunMarks, CountsTheCellsBehindTheCut)
{
    // Cells 1 to 32 are two cycles of 16; the view of 60 pixels cuts the run at 21, inside a cycle.
    const auto runs = VisibleRuns(PaintedTrack({{1, 32}}), kSongCells, NarrowView());
    ASSERT_EQ(runs.size(), 1u);
    EXPECT_EQ(RunMarks(runs[0], 16, NarrowView(), 20).back(), (PixelRect{63, 27, 1, 33}));
}

TEST(RunMarks, TicksOnlyTheCyclesInViewOfARunOfAnyLength)
{
    const auto ticks = [](std::int32_t firstCell) {
        const auto marks = RunMarks({1, 19}, 4, NarrowView(firstCell), 20); // cycles start at 5, 9, 13, 17
        std::vector<std::int32_t> left;
        for (std::size_t i = 3; i + 1 < marks.size(); i += 2)
            left.push_back(marks[i].x);
        return left;
    };
    EXPECT_THAT(ticks(1), ElementsAre(12, 24, 36, 48));
    EXPECT_THAT(ticks(8), ElementsAre(3, 15, 27));
    EXPECT_THAT(ticks(9), ElementsAre(0, 12, 24));
    EXPECT_THAT(ticks(10), ElementsAre(9, 21));
    EXPECT_THAT(ticks(19), IsEmpty());
    EXPECT_LT(RunMarks({1, 100'000'021}, 1, NarrowView(100'000'001), 20).size(), 50U);
}

TEST(RunMarks, CountsCyclesFromTheStartOfEachRun)
{
    const auto ticks = [](const PaintedRun& run) { return RunMarks(run, 4, NarrowView(), 20)[3].x; };
    EXPECT_EQ(ticks({1, 8}), 12);
    EXPECT_EQ(ticks({10, 17}), 39);
}

TEST(VisibleRuns, EndsWhereTheSongOrTheTracksCellsEnd)
{
    Track track = PaintedTrack({{1, 20}});
    EXPECT_THAT(VisibleRuns(track, 10, NarrowView()), ElementsAre(PaintedRun{1, 10}));
    track.Painted = {0, 1, 1, 1};
    EXPECT_THAT(VisibleRuns(track, kSongCells, NarrowView()), ElementsAre(PaintedRun{1, 3}));
}

} // namespace
} // namespace sprout
