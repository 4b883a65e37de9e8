// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/rules/TimeBand.h"

#include <gmock/gmock.h>

namespace sprout {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

SongState EmptySong(std::int32_t trackCount)
{
    SongState song;
    song.TrackCount = trackCount;
    song.Tracks.resize(static_cast<std::size_t>(trackCount) + 1);
    for (Track& track : song.Tracks)
        track.Painted.assign(kSongCells + 1, 0);
    return song;
}

TEST(BusyMarks, ShowsACellPaintedOnAnyTrackOnce)
{
    SongState song = EmptySong(2);
    At(song.Tracks[1].Painted, 3) = 1;
    At(song.Tracks[2].Painted, 3) = 1;
    At(song.Tracks[2].Painted, 5) = 1;
    At(song.Tracks[1].Painted, 6) = 2;
    EXPECT_THAT(BusyMarks(song, {1, 1, 60, 300, 300}), ElementsAre(BusyMark{6, 1}, BusyMark{12, 1}));
}

TEST(BusyMarks, LeavesTrack0Alone)
{
    SongState song = EmptySong(1);
    At(song.Tracks[0].Painted, 3) = 1;
    EXPECT_THAT(BusyMarks(song, {1, 1, 60, 300, 300}), IsEmpty());
}

TEST(BusyMarks, ChangesItsPictureEveryEightCells)
{
    SongState song = EmptySong(1);
    for (const std::int32_t cell : {1, 8, 9, 16, 17})
        At(song.Tracks[1].Painted, cell) = 1;
    EXPECT_THAT(BusyMarks(song, {1, 1, 60, 300, 300}),
                ElementsAre(BusyMark{0, 1}, BusyMark{21, 1}, BusyMark{24, 0}, BusyMark{45, 0}, BusyMark{48, 1}));
}

TEST(BusyMarks, BeginsAtTheViewAndEndsWithTheSong)
{
    SongState song = EmptySong(1);
    for (const std::int32_t cell : {1269, 1270, 1280})
        At(song.Tracks[1].Painted, cell) = 1;
    EXPECT_THAT(BusyMarks(song, {1, 1270, 60, 300, 300}), ElementsAre(BusyMark{0, 1}, BusyMark{30, 0}));
}

TEST(SecondsLabels, CountsInFivesAtTheSongsTempo)
{
    const SongState song = EmptySong(1); // a cell lasts 0.1875 s, five seconds are 80 pixels
    const auto labels = SecondsLabels(song, {1, 1, 160, 300, 300});
    ASSERT_EQ(labels.size(), 3u);
    EXPECT_EQ(labels[0].seconds, 0);
    EXPECT_DOUBLE_EQ(labels[0].x, 0);
    EXPECT_EQ(labels[2].seconds, 10);
    EXPECT_DOUBLE_EQ(labels[2].x, 160);
}

TEST(SecondsLabels, KeepsALabelThatBeginsLessThan5PixelsBeforeTheBand)
{
    const SongState song = EmptySong(1);
    EXPECT_EQ(SecondsLabels(song, {1, 2, 60, 300, 300}).front().seconds, 0); // x = -3
    EXPECT_EQ(SecondsLabels(song, {1, 3, 80, 300, 300}).front().seconds, 5); // 0 would be at -6
}

TEST(SecondsLabels, RunTo480AtHalfTheTempo)
{
    SongState song = EmptySong(1);
    song.Tempo = 160;
    TrackView view{1, 1, 600, 300, 300};
    view.FirstCell = CellScrollRange(view, song.SongCells).maximum;
    EXPECT_EQ(SecondsLabels(song, view).back().seconds, 480);
}

TEST(SecondsLabels, GoFiveSecondsBeyondTheWholeLengthWhereTheBandHasRoom)
{
    SongState song = EmptySong(1);
    const TrackView wide{1, 1, 5000, 300, 300};
    for (const auto& [tempo, last] : {std::pair(320, 245), std::pair(160, 485), std::pair(321, 240), // 239.25 s
                                      std::pair(327, 240)}) {                                        // 234.86 s
        song.Tempo = tempo;
        const auto labels = SecondsLabels(song, wide);
        EXPECT_EQ(labels.back().seconds, last) << tempo;
        EXPECT_EQ(labels.size(), static_cast<std::size_t>(last / 5 + 1)) << tempo;
    }
}

TEST(SecondsLabels, BeginAtTheViewInASongOfAnyLength)
{
    SongState song = EmptySong(0);
    song.Tempo = 1; // a cell lasts a minute
    song.SongCells = 2'000'000'000;
    const auto labels = SecondsLabels(song, {1, 1'000'000'001, 6, 300, 300});
    ASSERT_FALSE(labels.empty());
    EXPECT_LE(labels.size(), 45U); // one every quarter of a pixel from -5 to 6
    EXPECT_NEAR(static_cast<double>(labels.front().seconds), 59'999'999'905.0, 5);
    EXPECT_DOUBLE_EQ(labels.back().x, 6);
}

TEST(SecondsLabels, AreNoneAtATempoThatIsNone)
{
    SongState song = EmptySong(1);
    for (const std::int32_t tempo : {0, -5}) {
        song.Tempo = tempo;
        EXPECT_TRUE(SecondsLabels(song, {1, 1, 600, 300, 300}).empty());
    }
}

} // namespace
} // namespace sprout
