// SPDX-License-Identifier: GPL-3.0-or-later
#include "fuzz/FuzzSupport.h"

#include <algorithm>

#include "sound/StepCache.h"
#include "sound/TrackRender.h"
#include "waves/WavOperations.h"

namespace sprout {

namespace {

constexpr std::int32_t kSlowestRendered = 100; // cells a minute; slower songs are only long, not unusual
constexpr std::int32_t kMostTracks = 4;

SharedState StateWithOneBeat()
{
    Shared().TestTone = MakeTestTone();
    WaveData sound;
    sound.Channels = 1;
    sound.Length = 600;
    sound.WavL = Channel(sound.Length);
    SaveWaveFile(sound, Shared().UserBeats / "a.wav");
    WriteBytes(Shared().UserBeats / "a.bmp", "picture");
    return Shared();
}

} // namespace

FuzzRun::FuzzRun()
{
    static FakeServices services;
    static const SharedState fresh = StateWithOneBeat();
    Shared() = fresh;
    TheStepCache().Clear();
    services.messages.shown.clear();
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
