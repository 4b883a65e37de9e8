// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

#include "songs/SongVersions.h"

namespace sprout {
namespace {

using Numbers = std::vector<std::int32_t>;

/// A song with the given beats (name, stamp) and one music track whose steps use the given beat numbers.
SongState MakeSong(std::initializer_list<std::pair<const char*, const char*>> beats, const Numbers& used)
{
    SongState song;
    for (const auto& [name, stamp] : beats) {
        Beat beat;
        beat.Name = name;
        beat.DateStamp = stamp;
        song.SongBeats.push_back(beat);
    }
    song.SongBeatCount = static_cast<std::int32_t>(beats.size());
    song.Tracks.resize(2);
    song.TrackCount = 1;
    Tune& tune = song.Tracks[1].TrackTune;
    tune.Steps.resize(used.size() + 1);
    tune.StepCount = static_cast<std::int32_t>(used.size());
    for (std::size_t i = 0; i < used.size(); ++i)
        tune.Steps[i + 1].BeatIndex = used[i];
    return song;
}

Numbers Used(const SongState& song)
{
    Numbers used;
    for (std::int32_t i = 1; i <= song.Tracks[1].TrackTune.StepCount; ++i)
        used.push_back(At(song.Tracks[1].TrackTune.Steps, i).BeatIndex);
    return used;
}

std::vector<std::string> Names(const SongState& song)
{
    EXPECT_EQ(song.SongBeats.size(), static_cast<std::size_t>(song.SongBeatCount) + 1);
    std::vector<std::string> names;
    for (std::int32_t i = 1; i <= song.SongBeatCount; ++i)
        names.push_back(At(song.SongBeats, i).Name);
    return names;
}

TEST(CompactSongBeats, MakesBeatsOfOneNameAndStampOne)
{
    SongState song = MakeSong({{"Drum", "x"}, {"Bass", "x"}, {"DRUM", "x"}, {"drum", "x"}}, {4, 3, 2, 1});
    Compact_Song_Beats(song);
    EXPECT_EQ(Names(song), (std::vector<std::string>{"Drum", "Bass"}));
    EXPECT_EQ(Used(song), (Numbers{1, 1, 2, 1}));
}

TEST(CompactSongBeats, KeepsBeatsOfDifferentStampsApart)
{
    SongState song = MakeSong({{"Drum", "x"}, {"Drum", "y"}, {"Drum", "X"}}, {1, 2, 3});
    Compact_Song_Beats(song);
    EXPECT_EQ(song.SongBeatCount, 3);
    EXPECT_EQ(Used(song), (Numbers{1, 2, 3}));
}

TEST(CompactSongBeats, DropsBeatsThatNoStepUsesAndKeepsTheOrder)
{
    SongState song = MakeSong({{"A", ""}, {"B", ""}, {"C", ""}, {"D", ""}}, {4, 2});
    Compact_Song_Beats(song);
    EXPECT_EQ(Names(song), (std::vector<std::string>{"B", "D"}));
    EXPECT_EQ(Used(song), (Numbers{2, 1}));
}

TEST(CompactSongBeats, CountsStepsThatAreOffAsUsers)
{
    SongState song = MakeSong({{"A", ""}}, {1});
    song.Tracks[1].TrackTune.Steps[1].OnPos = 0;
    Compact_Song_Beats(song);
    EXPECT_EQ(song.SongBeatCount, 1);
}

TEST(CompactSongBeats, DoesNotAskTracksThatAreNotMusic)
{
    for (const std::int32_t type : {1, 7}) {
        SongState song = MakeSong({{"A", ""}}, {1});
        song.Tracks[1].TrackType = type;
        Compact_Song_Beats(song);
        EXPECT_EQ(song.SongBeatCount, 0);
        EXPECT_EQ(Used(song), (Numbers{1})); // its steps are not music and stay
    }
}

TEST(CompactSongBeats, AStepOfANamelessBeatPointsAtNoneAfterwards)
{
    SongState song = MakeSong({{"A", ""}, {"", ""}, {"C", ""}}, {2, 3, 1});
    Compact_Song_Beats(song);
    EXPECT_EQ(Names(song), (std::vector<std::string>{"A", "C"}));
    EXPECT_EQ(Used(song), (Numbers{0, 2, 1}));
}

TEST(CompactSongBeats, LeavesNumbersBeyondTheListAlone)
{
    SongState song = MakeSong({{"A", ""}, {"B", ""}}, {2, 0, -1, 3, 99});
    Compact_Song_Beats(song);
    EXPECT_EQ(Used(song), (Numbers{1, 0, -1, 3, 99}));
}

TEST(CompactSongBeats, LeavesACompactListAsItIs)
{
    SongState song = MakeSong({{"A", ""}, {"B", ""}}, {2, 1});
    const Beat* before = song.SongBeats.data();
    Compact_Song_Beats(song);
    EXPECT_EQ(song.SongBeats.data(), before);
    EXPECT_EQ(Used(song), (Numbers{2, 1}));
}

TEST(CompactSongBeats, TakesASongWithoutBeatsAndTracks)
{
    SongState song;
    Compact_Song_Beats(song);
    EXPECT_EQ(song.SongBeatCount, 0);
}

TEST(CompactSongBeats, NeverLooksAtElement0)
{
    SongState song = MakeSong({{"A", ""}, {"B", ""}}, {2, 1});
    song.SongBeats[0].Name = "none";
    Compact_Song_Beats(song);
    EXPECT_EQ(song.SongBeats[0].Name, "none");
    EXPECT_EQ(Names(song), (std::vector<std::string>{"A", "B"}));
}

} // namespace
} // namespace sprout
