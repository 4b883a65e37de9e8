// SPDX-License-Identifier: GPL-3.0-or-later
#include "fuzz/FuzzSupport.h"

#include <algorithm>

#include "sound/TrackRender.h"
#include "sound/WavOperations.h"

namespace sprout {

namespace {

constexpr std::int32_t kSlowestRendered = 100; // cells a minute; slower songs are long, not odd
constexpr std::int32_t kMostTracks = 4;

} // namespace

FuzzRun::FuzzRun()
{
    Shared().TestTone = MakeTestTone();
    WaveData sound;
    sound.Channels = 1;
    sound.Length = 600;
    sound.WavL = Channel(sound.Length);
    SaveWaveFile(sound, Shared().UserBeats / "a.wav");
    WriteBytes(Shared().UserBeats / "a.bmp", "picture");
}

std::filesystem::path FuzzRun::Write(const std::filesystem::path& path, const std::uint8_t* data,
                                     std::size_t size) const
{
    WriteBytes(path, {reinterpret_cast<const char*>(data), size});
    return path;
}

void RenderLoadedSong()
{
    SongState& song = Shared().Song;
    if (song.Tempo > 0 && song.Tempo < kSlowestRendered)
        return;
    MixSong();
    for (std::int32_t track = 1; track <= std::min(song.TrackCount, kMostTracks); ++track) {
        if (At(song.Tracks, track).IsAudio())
            RenderAudioTrack(track);
        else if (At(song.Tracks, track).IsMusic())
            RenderTuneTrack(track);
    }
}

} // namespace sprout
