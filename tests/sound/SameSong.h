// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include "core/Song.h"

namespace sprout {

/// Expects that all that a mix can change is the same in both songs.
inline void ExpectSame(const SongState& song, const SongState& expected)
{
    EXPECT_EQ(song.SongMix, expected.SongMix);
    EXPECT_EQ(song.SongMixValid, expected.SongMixValid);
    EXPECT_EQ(song.SongFirstPos, expected.SongFirstPos);
    EXPECT_EQ(song.SongChanged, expected.SongChanged);
    ASSERT_EQ(song.SongBeats.size(), expected.SongBeats.size());
    for (std::size_t i = 0; i < song.SongBeats.size(); ++i) {
        EXPECT_EQ(song.SongBeats[i].Loaded, expected.SongBeats[i].Loaded) << i;
        EXPECT_EQ(song.SongBeats[i].Sound, expected.SongBeats[i].Sound) << i;
    }
    ASSERT_EQ(song.Tracks.size(), expected.Tracks.size());
    for (std::size_t i = 0; i < song.Tracks.size(); ++i) {
        const Track& track = song.Tracks[i];
        const Track& other = expected.Tracks[i];
        EXPECT_EQ(track.FirstPainted, other.FirstPainted) << i;
        EXPECT_EQ(track.TrackRender, other.TrackRender) << i;
        EXPECT_EQ(track.TrackRenderValid, other.TrackRenderValid) << i;
        EXPECT_EQ(track.TrackTune.TuneWaveValid, other.TrackTune.TuneWaveValid) << i;
        ASSERT_EQ(track.TrackTune.Steps.size(), other.TrackTune.Steps.size()) << i;
        for (std::size_t k = 0; k < track.TrackTune.Steps.size(); ++k) {
            EXPECT_EQ(track.TrackTune.Steps[k].StepWave, other.TrackTune.Steps[k].StepWave) << i << ' ' << k;
            EXPECT_EQ(track.TrackTune.Steps[k].StepWaveValid, other.TrackTune.Steps[k].StepWaveValid) << i << ' ' << k;
        }
    }
}

} // namespace sprout
