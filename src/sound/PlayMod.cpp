// SPDX-License-Identifier: GPL-3.0-or-later
#include "sound/PlayMod.h"

#include <algorithm>
#include <cmath>
#include <exception>
#include <memory>
#include <new>
#include <string>

#include "base/Errors.h"
#include "base/Guarded.h"
#include "base/Numbers.h"
#include "core/Shared.h"
#include "core/SongTime.h"
#include "core/Tell.h"
#include "service/PlayDisplay.h"
#include "service/Services.h"

namespace sprout {

namespace {

constexpr LaterWords kDriverFailed = Words::Later(
    "There is an error initializing Sound Driver\n"
    "Check whether another application is using sound driver exclusively.\n"
    "If yes, put that off and then and then run this program again.\n\n"
    "Other wise, if this problem persists you may need to reinstall DirectX9 or Sound Card's Driver\r\n\r\n%1");

constexpr std::int32_t kFarthestCell = 1'000'000;

std::unique_ptr<PlayDllClass>& PlayerInstance()
{
    static std::unique_ptr<PlayDllClass> player;
    return player;
}

void TellDriverFailed(const Words& description)
{
    Tell({}, kDriverFailed.With(description));
}

void EnableSoundDriver()
{
    PlayModState& play = PlayShared();
    const auto tell = [&play](const std::exception& error) {
        play.SoundDriver = 0;
        TellDriverFailed(ErrorWords(error));
    };
    GuardedBy(tell, [&play] {
        std::int32_t driver = TheServices().playDisplay->MainWindowHandle();
        Player().DxObj(driver);
        play.SoundDriver = driver;
        if (driver == 0 || driver == -1)
            TellDriverFailed({});
    });
}

PlayResult Play(const WaveData& wave, PlayKind kind, std::int32_t track, Loop loop)
{
    PlayModState& play = PlayShared();
    play.PlayKind = kind;
    play.PlayingTrack = track;
    play.PlayOffset = 1;
    play.PlayLength = wave.Length;
    play.PlayLooping = loop == Loop::Yes;
    return Player().WriteWaveMemo(wave, PlayNow::Yes, loop);
}

bool HasBegun()
{
    return PlayShared().PlayState != PlayState::Stopped;
}

/// Sets status and timer for a play that has begun.
void ShowOnMainWindow(const Words& status)
{
    if (!HasBegun())
        return;
    TheServices().playDisplay->ShowSoundStatus(status);
    TheServices().playDisplay->EnablePlayPosTimer();
}

Channel BehindSilence(const Channel& channel, std::int32_t delayFrames, std::int32_t length)
{
    Channel delayed(length);
    const auto samples = channel.Samples();
    const auto room = delayed.Change().subspan(1 + static_cast<std::size_t>(delayFrames));
    std::copy_n(samples.begin(), std::min(samples.size(), room.size()), room.begin());
    return delayed;
}

WaveData BehindSilence(const WaveData& wave, float delaySeconds)
{
    const std::int32_t delayFrames = std::max(0, RoundHalfEven(static_cast<double>(delaySeconds) * wave.Rate));
    WaveData delayed = wave;
    delayed.Length = RoundHalfEven(static_cast<double>(wave.Length) + delayFrames);
    delayed.WavL = BehindSilence(wave.WavL, delayFrames, delayed.Length);
    if (wave.Channels == 2)
        delayed.WavR = BehindSilence(wave.WavR, delayFrames, delayed.Length);
    return delayed;
}

double SecondsInPlay(const PlayModState& play)
{
    return static_cast<double>(play.PlayCursor) / play.PlayBufRate;
}

} // namespace

PlayDllClass& Player()
{
    std::unique_ptr<PlayDllClass>& player = PlayerInstance();
    if (!player)
        player = std::make_unique<PlayDllClass>();
    return *player;
}

void ReleasePlayer()
{
    PlayerInstance().reset();
}

void SetSoundDriver(bool enable)
{
    if (enable)
        return EnableSoundDriver();
    std::int32_t off = 0;
    Player().DxObj(off);
    PlayShared().SoundDriver = 0;
}

void PlayWaveStatus(const WaveData& wave, const Words& status, Loop loop)
{
    if (PlayShared().SoundDriver < 1)
        return;
    Play(wave, PlayKind::Other, 0, loop);
    if (!PlayShared().DemoPlaying)
        ShowOnMainWindow(status);
}

void PlayWaveKind(const WaveData& wave, PlayKind kind, Loop loop)
{
    if (PlayShared().SoundDriver < 1)
        return;
    Play(wave, kind, 0, loop);
    ShowOnMainWindow(kind == PlayKind::Recording ? Words::Text("Playing Recorded") : Words::Text("Playing"));
}

void PlayWaveTrack(const WaveData& wave, std::int32_t track, std::int32_t startCell, Loop loop)
{
    PlayModState& play = PlayShared();
    if (play.SoundDriver < 1)
        return;
    play.PlayStartPos = startCell;
    play.PlayTempo = Shared().Song.Tempo;
    // No timer detects the end of a play that has not begun, and hover play waits for the 0.
    const auto settle = [&play] { play.PlayingTrack = HasBegun() ? play.PlayingTrack : 0; };
    try {
        Play(wave, PlayKind::SongOrTrack, track, loop);
    } catch (const std::bad_alloc&) {
        settle();
        throw;
    }
    settle();
    ShowOnMainWindow(track == kWholeSong ? Words::Text("Playing All") : Words::Text("Playing Track %1", track));
}

void PlayWaveDelayed(const WaveData& wave, float delaySeconds, const Words& status, Loop loop)
{
    bool showTune = true;
    if (PlayShared().SoundDriver >= 1) {
        const PlayResult result = Play(BehindSilence(wave, delaySeconds), PlayKind::Other, 0, loop);
        ShowOnMainWindow(status);
        showTune = HasBegun() || result == PlayResult::NoDevice;
    }
    // A chosen tune is also shown on a machine without a sound device.
    if (showTune)
        TheServices().playDisplay->UpdateThisTune();
}

std::int32_t CellInPlay(const PlayModState& play)
{
    return RoundHalfEven(SecondsInPlay(play) / CellSeconds(play.PlayTempo) + play.PlayStartPos);
}

std::optional<std::int32_t> MarkerCell(const PlayModState& play)
{
    if (play.PlayingTrack == 0)
        return std::nullopt;
    try {
        return std::min(CellInPlay(play), kFarthestCell);
    } catch (const RunTimeError&) {
        return std::nullopt;
    }
}

std::int32_t StepInPlay(const PlayModState& play, std::int32_t tempo, std::int32_t stepCount)
{
    const double step = std::floor(SecondsInPlay(play) / CellSeconds(tempo)) + 1;
    // Written so that NaN, from a tempo of 0, gives the first step.
    return step > 1 ? static_cast<std::int32_t>(std::min(step, static_cast<double>(stepCount))) : 1;
}

} // namespace sprout
