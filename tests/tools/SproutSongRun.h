// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include <sstream>
#include <string>
#include <vector>

#include "songs/OpenSaveClass.h"
#include "sprout-song/Session.h"
#include "sprout-song/SproutSong.h"
#include "support/FakeServices.h"
#include "support/ScratchDevice.h"
#include "tunes/TunOpnSavClass.h"
#include "waves/WavOperations.h"

namespace sprout {

using nlohmann::json;

inline constexpr std::int32_t kAudioFrames = 8000; // slightly less than a cell at the reference tempo

inline WaveData Ramp(std::int32_t frames)
{
    WaveData wave;
    wave.Channels = 1;
    wave.Length = frames;
    wave.WavL = Channel(frames);
    for (std::int32_t i = 1; i <= frames; ++i)
        wave.WavL.Change()[static_cast<std::size_t>(i)] = static_cast<std::int16_t>(i);
    return wave;
}

class SproutSong : public testing::Test {
protected:
    SproutSong() { std::filesystem::create_directories(Folder()); }

    [[nodiscard]] std::filesystem::path Folder() const { return files.Path() / "user"; }
    [[nodiscard]] std::string At(const std::string& name) const { return (files.Path() / name).native(); }

    int Run(std::vector<std::string> words)
    {
        out.str("");
        err.str("");
        words.insert(words.end(), {"--user-root", Folder().native()});
        return RunSproutSong(words, out, err);
    }

    [[nodiscard]] json Info(const std::string& file)
    {
        static_cast<void>(Run({"info", "--json", file}));
        return json::parse(out.str());
    }

    /// Runs `work` with its own services and shared state.
    template <class Work>
    static void WithEngine(Work work)
    {
        FakeServices services;
        work();
        EXPECT_TRUE(services.messages.shown.empty());
    }

    void SaveRamp(const std::string& name, std::int32_t frames) const
    {
        WithEngine([&] { SaveWaveFile(Ramp(frames), At(name)); });
    }

    /// A song with one audio track, painted in two cells with a gap between them.
    void SaveAudioSong(const std::string& name) const
    {
        WithEngine([&] {
            SongState& song = Shared().Song;
            song.SongTitle = "Stored title";
            song.SongCreatedBy = "Ada";
            Track track;
            track.TrackType = 1;
            track.Painted.assign(kSongCells + 1, 0);
            track.Painted[5] = track.Painted[7] = 1;
            track.Painted[9] = 2;
            track.TrackAudio = Ramp(kAudioFrames);
            song.Tracks.push_back(track);
            song.TrackCount = 1;
            OpenSaveClass().Save_Song(At(name));
        });
    }

    WaveData LoadWave(const std::string& name) const
    {
        WaveData wave;
        WithEngine([&] { wave = LoadWaveFile(At(name)); });
        return wave;
    }

    TestFolder files;
    std::ostringstream out;
    std::ostringstream err;
};

} // namespace sprout
