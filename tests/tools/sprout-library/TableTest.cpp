// SPDX-License-Identifier: GPL-3.0-or-later
#include "sprout-library/Table.h"

#include <gtest/gtest.h>

#include "base/Errors.h"
#include "sprout-library/BeatTable.h"
#include "sprout-library/SongText.h"
#include "support/TestFolder.h"

namespace sprout {
namespace {

class Tables : public testing::Test {
protected:
    std::filesystem::path Write(std::string_view text)
    {
        const std::filesystem::path file = folder.Path() / "Some.txt";
        WriteBytes(file, text);
        return file;
    }

    TestFolder folder;
};

TEST_F(Tables, LeaveOutRemarksAndEmptyLinesAndBlanksAroundCells)
{
    const auto rows = ReadTable(Write("# words\n\n  a |b c|  d\n"), 3, 3);
    ASSERT_EQ(rows.size(), 1U);
    EXPECT_EQ(rows[0].cells, (std::vector<std::string>{"a", "b c", "d"}));
    EXPECT_EQ(rows[0].Place(), "Some.txt:3: ");
}

TEST_F(Tables, RefuseRowsOfAnotherWidthAndMissingFiles)
{
    EXPECT_THROW(static_cast<void>(ReadTable(Write("a | b\n"), 3, 3)), RunTimeError);
    EXPECT_THROW(static_cast<void>(ReadTable(Write("a | b | c\n"), 1, 2)), RunTimeError);
    EXPECT_THROW(static_cast<void>(ReadTable(folder.Path() / "None.txt", 1, 1)), RunTimeError);
}

TEST_F(Tables, RefuseNumbersOutOfRangeOrWithMoreBehindThem)
{
    const auto rows = ReadTable(Write("5 | 5x | \n"), 3, 3);
    EXPECT_DOUBLE_EQ(CellNumber(rows[0], 0, 1, 5), 5);
    EXPECT_THROW(static_cast<void>(CellNumber(rows[0], 0, 1, 4)), RunTimeError);
    EXPECT_THROW(static_cast<void>(CellNumber(rows[0], 1, 1, 5)), RunTimeError);
    EXPECT_THROW(static_cast<void>(CellNumber(rows[0], 2, 1, 5)), RunTimeError);
}

TEST(KeyOfNote, CountsMiddleCAs60)
{
    EXPECT_EQ(KeyOfNote("C4"), 60);
    EXPECT_EQ(KeyOfNote("A4"), 69);
    EXPECT_EQ(KeyOfNote("F#3"), 54);
    EXPECT_THROW(static_cast<void>(KeyOfNote("H4")), RunTimeError);
    EXPECT_THROW(static_cast<void>(KeyOfNote("C")), RunTimeError);
    EXPECT_THROW(static_cast<void>(KeyOfNote("C99")), RunTimeError);
}

TEST_F(Tables, TellPitchedBeatsByTheirNote)
{
    const auto beats = ReadBeatTable(Write("M_Bell High | 0:9 | C6 | 100 | 0.7 | 0.9 | bell\n"
                                           "D_Kick | 128:0 | 36 | 110 | 0.2 | 0.4 | kick\n"));
    ASSERT_EQ(beats.size(), 2U);
    EXPECT_TRUE(beats[0].Pitched);
    EXPECT_EQ(beats[0].Key, 84);
    EXPECT_EQ(beats[0].Family(), 'M');
    EXPECT_FALSE(beats[1].Pitched);
    EXPECT_EQ(beats[1].Key, 36);
}

TEST_F(Tables, RefuseTwoBeatsWhoseNamesDifferInCaseOnly)
{
    EXPECT_THROW(static_cast<void>(ReadBeatTable(Write("D_Kick | 128:0 | 36 | 110 | 0.2 | 0.4 | kick\n"
                                                       "D_kick | 128:0 | 36 | 110 | 0.2 | 0.4 | kick\n"))),
                 RunTimeError);
}

TEST_F(Tables, OfSongsPaintWholeBars)
{
    const SongText song = ReadSongText(Write("Author | Somebody\nTempo | 125\nBar | 16\nTrack | Lumo | 1-2, 5\n"));
    EXPECT_EQ(song.Title, "Some");
    EXPECT_EQ(song.CreatedBy, "Somebody");
    EXPECT_EQ(song.Tempo, 400);
    ASSERT_EQ(song.Tracks.size(), 1U);
    ASSERT_EQ(song.Tracks[0].Runs.size(), 2U);
    EXPECT_EQ(song.Tracks[0].Runs[0].First, 1);
    EXPECT_EQ(song.Tracks[0].Runs[0].Last, 32);
    EXPECT_EQ(song.Tracks[0].Runs[1].First, 65);
    EXPECT_EQ(song.Tracks[0].Runs[1].Last, 80);
}

TEST_F(Tables, OfSongsRefuseBarsBeyondTheGridAndRunsBackwards)
{
    EXPECT_THROW(static_cast<void>(ReadSongText(Write("Bar | 16\nTrack | Lumo | 80-81\n"))), RunTimeError);
    EXPECT_THROW(static_cast<void>(ReadSongText(Write("Bar | 16\nTrack | Lumo | 4-2\n"))), RunTimeError);
    EXPECT_THROW(static_cast<void>(ReadSongText(Write("Bar | 16\nTrack | Lumo | 1-2-3\n"))), RunTimeError);
    EXPECT_THROW(static_cast<void>(ReadSongText(Write("Speed | 16\n"))), RunTimeError);
}

} // namespace
} // namespace sprout
