// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/TransportCommands.h"

#include <chrono>
#include <exception>
#include <optional>
#include <utility>

#include "base/Guarded.h"
#include "base/Numbers.h"
#include "core/Settings.h"
#include "core/Shared.h"
#include "core/TrackList.h"
#include "main_window/rules/Transport.h"
#include "sound/PlayMod.h"
#include "sound/TrackRender.h"
#include "ui/Windows.h"
#include "ui/forms/Dialogs.h"
#include "ui/forms/Guarded.h"
#include "ui/widgets/Hints.h"
#include "ui/words/Texts.h"

namespace sprout {

namespace {

constexpr std::chrono::milliseconds kSongPosInterval{40};
constexpr std::int32_t kMainWindow = 1;

/// Shows the message of a check; returns whether the command continues.
bool Passes(const PlayCheck& check)
{
    if (!check.message.line1.IsEmpty())
        ShowMessage(check.message.line1, check.message.line2);
    return check.goesOn;
}

void RenderTrackOfNumber(std::int32_t number)
{
    if (At(Shared().Song.Tracks, number).IsAudio())
        RenderAudioTrack(number);
    else
        RenderTuneTrack(number);
}

bool IsFollowPlaySet()
{
    return NumberPrefix(GetSetting("MainWindow", "FollowPlay", "1")) == 1;
}

} // namespace

TransportCommands::TransportCommands(QObject* parent) : QObject(parent), playPosTimer(this), titlePlay(this)
{
    playPosTimer.setObjectName(QStringLiteral("PlayPosTimer"));
    playPosTimer.setInterval(kSongPosInterval);
    connect(&playPosTimer, &QTimer::timeout, this, &TransportCommands::PlayPosTimerTick);
}

void TransportCommands::SetWindow(TrackCanvas& trackCanvas, QLabel& statusLbl)
{
    canvas = &trackCanvas;
    soundStatusLbl = &statusLbl;
    titlePlay.Start(trackCanvas);
}

void TransportCommands::PlayAllBtn()
{
    ShowHint({});
    Guarded([this] {
        const SongState& song = Shared().Song;
        if (!Passes(CheckSong(song)))
            return;
        MixSong();
        if (song.SongMixValid)
            Play(song.SongMix, kWholeSong, song.SongFirstPos);
    });
}

void TransportCommands::PlayStopBtn()
{
    ShowHint({});
    Guarded([] { Player().StopPlay(); });
}

void TransportCommands::PlayOrStop()
{
    if (PlayShared().PlayState == PlayState::Stopped)
        PlayAllBtn();
    else
        PlayStopBtn();
}

void TransportCommands::TrackPlayBtn()
{
    ShowHint({});
    Guarded([this, number = canvas->HoverTrack()] {
        const Track* const track = TrackOfNumber(number);
        if (!track || !Passes(CheckTrack(*track, Shared().Song.SongCells)))
            return;
        RenderTrackOfNumber(number);
        if (track->TrackRenderValid)
            Play(track->TrackRender, number, track->FirstPainted);
    });
}

void TransportCommands::PlaySongFrom(std::int32_t cell)
{
    Guarded([this, cell] {
        const SongState& song = Shared().Song;
        if (cell < 1 || cell > song.SongCells || !Passes(CheckSongFromCell(song)))
            return;
        MixSong();
        if (song.SongMixValid)
            PlayFromCell(song.SongMix, song.SongFirstPos, kWholeSong, cell);
    });
}

void TransportCommands::PlayTrackFrom(std::int32_t number, std::int32_t cell)
{
    Guarded([this, number, cell] {
        const SongState& song = Shared().Song;
        const Track* const track = TrackOfNumber(number);
        if (!track || cell < 1 || cell > song.SongCells || !Passes(CheckTrackFromCell(*track, song.SongCells, cell)))
            return;
        RenderTrackOfNumber(number);
        if (track->TrackRenderValid)
            PlayFromCell(track->TrackRender, track->FirstPainted, number, cell);
    });
}

void TransportCommands::Play(const WaveData& wave, std::int32_t track, std::int32_t startCell)
{
    PlayWaveTrack(wave, track, startCell, Loop::No);
    if (PlayShared().PlayState == PlayState::Stopped) {
        if (wave.Length > 0)
            TellNoSound();
        return;
    }
    if (canvas && IsFollowPlaySet()) {
        canvas->BeginFollowing();
        canvas->FollowMarker(startCell);
    }
}

void TransportCommands::PlayFromCell(const WaveData& wave, std::int32_t origin, std::int32_t track, std::int32_t cell)
{
    if (const std::optional<PlayFrom> part = CutFromCell(wave, origin, cell, Shared().Song.Tempo))
        Play(part->Wave, track, part->StartCell);
}

/// Only once: after that the status line keeps saying that there is no sound.
void TransportCommands::TellNoSound()
{
    if (std::exchange(noSoundTold, true))
        return;
    ShowMessage(Words::Text("I cannot find a loudspeaker to play your music on."),
                Words::Text("Plug in headphones or a loudspeaker and press play again. Or ask a grown-up."));
}

TransportCommands::Timers TransportCommands::DisableTimers()
{
    const Timers wereRunning{playPosTimer.isActive(), titlePlay.DisableTrackTitlePlayTimer()};
    playPosTimer.stop();
    return wereRunning;
}

void TransportCommands::EnableTimers(const Timers& wereRunning)
{
    if (wereRunning.PlayPos)
        EnablePlayPosTimer();
    if (wereRunning.TrackTitlePlay)
        EnableTrackTitlePlayTimer();
}

void TransportCommands::EndDemo()
{
    Guarded([] { Player().StopPlay(); });
    PlayShared().DemoPlaying = false;
    PlayShared().PlayingTrack = 0;
    PlayIndicatorOff();
    static_cast<void>(DisableTimers());
}

void TransportCommands::ShutSound()
{
    // A driver that cannot be closed ends with the program.
    GuardedQuietly("Closing the sound driver", [] { SetSoundDriver(false); });
    ReleasePlayer();
}

std::int32_t TransportCommands::MainWindowHandle() const
{
    return kMainWindow;
}

void TransportCommands::ShowSoundStatus(const Words& text)
{
    if (soundStatusLbl)
        SetText(*soundStatusLbl, text);
}

void TransportCommands::EnablePlayPosTimer()
{
    if (!playPosTimer.isActive())
        playPosTimer.start();
}

void TransportCommands::UpdateThisTune()
{
    TheWindows().UpdateThisTune();
}

void TransportCommands::PlayPosTimerTick()
{
    const auto follow = [this] {
        switch (PlayShared().PlayState) {
        case PlayState::Stopped:
            Player().UpdatePlayPosition();
            playPosTimer.stop();
            PlayShared().PlayingTrack = 0;
            PlayIndicatorOff();
            TheWindows().UpdatePlayPointer();
            break;
        case PlayState::Playing:
        case PlayState::PlayingLoop:
            Player().UpdatePlayPosition();
            MovePlayIndicator();
            TheWindows().UpdatePlayPointer();
            break;
        case PlayState::Paused:
            break;
        }
    };
    // An error is shown once instead of again and again.
    GuardedOnce(follow, [this] { playPosTimer.stop(); });
}

void TransportCommands::MovePlayIndicator()
{
    const PlayModState& play = PlayShared();
    // A sound that has just ended has no position; its marker stays where it is until the next tick.
    if (!canvas || play.PlayKind != PlayKind::SongOrTrack || play.PlayState == PlayState::Stopped)
        return;
    const std::optional<std::int32_t> cell = MarkerCell(play);
    if (cell)
        canvas->FollowMarker(*cell);
    canvas->ShowPlayIndicator(sprout::MovePlayIndicator(play.PlayingTrack, cell, canvas->View()));
}

void TransportCommands::PlayIndicatorOff()
{
    if (canvas)
        canvas->ShowPlayIndicator({});
    ShowSoundStatus(Words::Text("Done"));
}

} // namespace sprout
