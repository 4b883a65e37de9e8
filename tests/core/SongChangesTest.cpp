// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/SongChanges.h"

#include <gmock/gmock.h>

#include <ostream>
#include <string>
#include <type_traits>
#include <vector>

#include "core/rendered/Rendered.h"
#include "support/Flags.h"

namespace sprout {
namespace {

// A flag is copied with its record only; nothing else writes one.
static_assert(std::is_copy_assignable_v<TuneStep> && std::is_nothrow_move_constructible_v<TuneStep>);
static_assert(std::is_copy_assignable_v<SongState> && std::is_aggregate_v<SongState>);
static_assert(!std::is_assignable_v<RecordFlag<Tune>&, bool>);
static_assert(!std::is_assignable_v<RecordFlag<Tune>&, RecordFlag<Tune>>);
static_assert(!std::is_constructible_v<RecordFlag<Tune>, bool>);
static_assert(!std::is_copy_constructible_v<RecordFlag<Tune>>);

enum class Mark { Stays, IsSet, IsCleared };

/// What an operation on track 2, or on step 1 of its tune, does to the flags of a song where all are true.
struct Row {
    const char* operation;
    void (*happens)(SongState&);
    std::vector<std::string> cleared;
    Mark songChanged;

    friend std::ostream& operator<<(std::ostream& out, const Row& row) { return out << row.operation; }
};

Tune& TuneOf(SongState& song)
{
    return song.Tracks[2].TrackTune;
}

const Row kRows[] = {
    {"PaintPressed", [](SongState& song) { SongChanges::PaintPressed(song, 2); }, {"render 2", "mix"}, Mark::IsSet},
    {"PaintDragged", [](SongState& song) { SongChanges::PaintDragged(song.Tracks[2]); }, {"render 2"}, Mark::Stays},
    {"TuneReplaced",
     [](SongState& song) { SongChanges::TuneReplaced(song, 2); },
     {"tune 2", "render 2", "mix"},
     Mark::IsSet},
    {"AudioReplaced", [](SongState& song) { SongChanges::AudioReplaced(song, 2); }, {"render 2", "mix"}, Mark::IsSet},
    {"TrackAdded", [](SongState& song) { SongChanges::TrackAdded(song); }, {"render 3", "mix"}, Mark::IsSet},
    {"TrackDeleted", [](SongState& song) { SongChanges::TrackDeleted(song); }, {"mix"}, Mark::IsSet},
    {"TrackReset", [](SongState& song) { SongChanges::TrackReset(song.Tracks[2]); }, {"render 2"}, Mark::Stays},
    {"TempoChanged",
     [](SongState& song) { SongChanges::TempoChanged(song); },
     {"tune 1", "render 1", "tune 2", "render 2", "tune 3", "render 3", "mix"},
     Mark::IsSet},
    {"TitleChanged", [](SongState& song) { SongChanges::TitleChanged(song); }, {}, Mark::IsSet},
    {"SongReplaced", [](SongState& song) { SongChanges::SongReplaced(song); }, {"mix"}, Mark::Stays},
    {"SongOpened", [](SongState& song) { SongChanges::SongOpened(song); }, {}, Mark::IsCleared},
    {"SongSaved", [](SongState& song) { SongChanges::SongSaved(song); }, {}, Mark::IsCleared},
    {"StepChanged",
     [](SongState& song) { SongChanges::StepChanged(TuneOf(song), 1); },
     {"step 2.1", "tune 2"},
     Mark::Stays},
    {"StepsMoved", [](SongState& song) { SongChanges::StepsMoved(TuneOf(song)); }, {"tune 2"}, Mark::Stays},
    {"StepCountChanged", [](SongState& song) { SongChanges::StepCountChanged(TuneOf(song)); }, {"tune 2"}, Mark::Stays},
    {"StepsReplaced", [](SongState& song) { SongChanges::StepsReplaced(TuneOf(song)); }, {"tune 2"}, Mark::Stays},
    {"TuneEmptied", [](SongState& song) { SongChanges::TuneEmptied(TuneOf(song)); }, {"tune 2"}, Mark::Stays},
};

/// A song of three tracks with two steps each; all sounds are valid.
SongState ValidSong()
{
    Tune tune;
    tune.Steps.resize(3);
    tune.StepCount = 2;
    for (TuneStep& step : tune.Steps)
        SetStepWaveValid(step, true);
    SetTuneWaveValid(tune, true);
    Track track;
    track.TrackTune = tune;
    SetTrackRenderValid(track, true);
    SongState song;
    song.Tracks.assign(4, track);
    song.TrackCount = 3;
    SetSongMixValid(song, true);
    return song;
}

std::vector<std::string> ClearedIn(const SongState& song)
{
    std::vector<std::string> cleared;
    const auto note = [&cleared](bool valid, const std::string& name) {
        if (!valid)
            cleared.push_back(name);
    };
    for (std::int32_t number = 1; number <= song.TrackCount; ++number) {
        const Track& track = At(song.Tracks, number);
        const std::string name = std::to_string(number);
        note(track.TrackTune.Steps[1].StepWaveValid, "step " + name + ".1");
        note(track.TrackTune.Steps[2].StepWaveValid, "step " + name + ".2");
        note(track.TrackTune.TuneWaveValid, "tune " + name);
        note(track.TrackRenderValid, "render " + name);
    }
    note(song.SongMixValid, "mix");
    return cleared;
}

class SongChangesTest : public testing::TestWithParam<Row> {};

TEST_P(SongChangesTest, ClearsWhatItMakesStaleAndNothingElse)
{
    SongState song = ValidSong();
    GetParam().happens(song);
    EXPECT_EQ(ClearedIn(song), GetParam().cleared);
}

TEST_P(SongChangesTest, MarksTheSongOrLeavesItsMark)
{
    for (const bool before : {false, true}) {
        SongState song = ValidSong();
        SetSongChanged(song, before);
        GetParam().happens(song);
        const bool stays = GetParam().songChanged == Mark::Stays;
        EXPECT_EQ(song.SongChanged, stays ? before : GetParam().songChanged == Mark::IsSet);
    }
}

TEST_P(SongChangesTest, IsCounted)
{
    SongState song = ValidSong();
    const std::uint64_t before = SongChanges::Count();
    GetParam().happens(song);
    EXPECT_EQ(SongChanges::Count(), before + 1);
}

INSTANTIATE_TEST_SUITE_P(Operations, SongChangesTest, testing::ValuesIn(kRows),
                         [](const testing::TestParamInfo<Row>& row) { return row.param.operation; });

TEST(SongChanges, AnEmptiedTuneLosesItsSound)
{
    Tune tune;
    tune.TuneWave.Length = 3;
    SongChanges::TuneEmptied(tune);
    EXPECT_EQ(tune.TuneWave.Length, 0);
}

TEST(Rendered, StoresASoundWithItsFlagAndNothingElse)
{
    WaveData wave;
    wave.Length = 7;
    SongState song;
    song.Tracks.resize(2);
    song.TrackCount = 1;
    Track& track = song.Tracks[1];
    track.TrackTune.Steps.resize(3);
    EXPECT_EQ(ClearedIn(song).size(), 5U);
    Rendered::KeepStepWave(track.TrackTune.Steps[1], wave);
    EXPECT_THAT(ClearedIn(song), testing::ElementsAre("step 1.2", "tune 1", "render 1", "mix"));
    Rendered::KeepTuneWave(track.TrackTune, wave);
    EXPECT_THAT(ClearedIn(song), testing::ElementsAre("step 1.2", "render 1", "mix"));
    Rendered::KeepTrackRender(track, wave);
    EXPECT_THAT(ClearedIn(song), testing::ElementsAre("step 1.2", "mix"));
    Rendered::KeepSongMix(song, wave);
    EXPECT_THAT(ClearedIn(song), testing::ElementsAre("step 1.2"));
    EXPECT_EQ(track.TrackTune.Steps[1].StepWave.Length, 7);
    EXPECT_EQ(track.TrackTune.TuneWave.Length, 7);
    EXPECT_EQ(track.TrackRender.Length, 7);
    EXPECT_EQ(song.SongMix.Length, 7);
    EXPECT_FALSE(song.SongChanged);
}

} // namespace
} // namespace sprout
