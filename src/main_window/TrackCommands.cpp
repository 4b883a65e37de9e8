// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/TrackCommands.h"

#include <chrono>
#include <string>

#include "core/Shared.h"
#include "core/SongChanges.h"
#include "core/TrackList.h"
#include "sound/TuneRender.h"
#include "ui/Windows.h"
#include "ui/forms/Dialogs.h"
#include "ui/forms/Guarded.h"
#include "ui/widgets/Hints.h"

namespace sprout {

namespace {

constexpr std::chrono::milliseconds kTuneNotFilledInterval{300};

bool IsTrackNumber(std::int32_t number)
{
    return number >= 1 && number <= Shared().Song.TrackCount;
}

bool MayDelete(std::int32_t number)
{
    return AskYesNo(Words::Text("Are you sure to delete this Track?"), Words::Text("Track No: %1", number),
                    Words::Text(" Confirm Delete Track")) == 1;
}

} // namespace

TrackCommands::TrackCommands(TrackCanvas& trackCanvas, QObject* parent)
    : QObject(parent), canvas(trackCanvas), tuneNotFilledTimer(this)
{
    tuneNotFilledTimer.setObjectName(QStringLiteral("TuneNotFilledTimer"));
    tuneNotFilledTimer.setInterval(kTuneNotFilledInterval);
    connect(&tuneNotFilledTimer, &QTimer::timeout, this, &TrackCommands::TuneNotFilledTimerTick);
}

void TrackCommands::TrackAddBtn()
{
    ShowHint({});
    Guarded([this] {
        StopPlay(canvas);
        const std::int32_t track = AddMusicTrack();
        // The new row blinks behind the tune window, so the buttons below the rows make room now.
        canvas.ShowAddedTrack();
        // Whatever happens in the window, a track without a tune is removed.
        Guarded([this, track] { ChooseTuneOf(track); });
        EndAddMusicTrack();
        canvas.DrawTracksAll();
    });
}

void TrackCommands::TrackDeleteBtn()
{
    ShowHint({});
    Guarded([this] {
        const std::int32_t track = canvas.HoverTrack();
        if (!IsTrackNumber(track))
            return;
        if (Shared().Song.TrackCount > 1) {
            if (!MayDelete(track))
                return;
            StopPlay(canvas);
        }
        DeleteTrack(track);
        canvas.DrawTracksAll();
    });
}

void TrackCommands::TrackTuneBtn()
{
    ShowHint({});
    Guarded([this] {
        const std::int32_t track = canvas.HoverTrack();
        canvas.HideTrackButtons();
        if (!IsTrackNumber(track))
            return;
        StopPlay(canvas);
        const bool changed = ChooseTuneOf(track);
        Tune& tune = At(Shared().Song.Tracks, track).TrackTune;
        if (changed) { // stays true if the cycle cannot be rendered
            SongChanges::TuneReplaced(Shared().Song, track);
            canvas.DrawTrackOne(track);
            canvas.window()->update();
        }
        if (!tune.TuneWaveValid)
            RenderStarCycle(tune);
    });
}

bool TrackCommands::ChooseTuneOf(std::int32_t track)
{
    bool newFlag = false;
    return TheWindows().OpenTuneWindow(At(Shared().Song.Tracks, track).TrackTune, newFlag);
}

void TrackCommands::EnableTuneNotFilledTimer()
{
    if (!tuneNotFilledTimer.isActive())
        tuneNotFilledTimer.start();
}

bool TrackCommands::DisableTuneNotFilledTimer()
{
    const bool wasRunning = tuneNotFilledTimer.isActive();
    tuneNotFilledTimer.stop();
    return wasRunning;
}

void TrackCommands::SetOpening(bool opening)
{
    songIsOpening = opening;
}

void TrackCommands::TuneNotFilledTimerTick()
{
    if (songIsOpening)
        return;
    // Once started, the timer keeps running: the next song or track may have no tune again.
    const auto blink = [this] {
        for (const std::int32_t track : BlinkTunesNotFilled())
            canvas.DrawTrackOne(track);
    };
    GuardedOnce(blink, [this] { tuneNotFilledTimer.stop(); });
}

} // namespace sprout
