// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/TrackTitlePlay.h"

#include <QScopedValueRollback>

#include <chrono>

#include "core/Shared.h"
#include "core/TrackList.h"
#include "main_window/rules/Transport.h"
#include "sound/PlayMod.h"
#include "sound/TuneRender.h"
#include "ui/forms/Guarded.h"

namespace sprout {

namespace {

constexpr std::chrono::milliseconds kTitlePlayInterval{1000};

std::int32_t TuneInterval(const Tune& tune)
{
    return TuneHoverInterval(tune.TuneWave.Length, tune.StepCount, Shared().Song.Tempo);
}

int PlayHoveredTune(Tune& tune)
{
    if (!tune.TuneWaveValid)
        RenderStarCycle(tune);
    if (tune.TuneWaveValid)
        PlayWaveStatus(tune.TuneWave, Words::Text("Playing Star"), Loop::No);
    return TuneInterval(tune);
}

int PlayHoveredAudio(const Track* track)
{
    if (!track || !track->IsAudio() || track->TrackAudio.Length <= 0)
        return AudioHoverInterval({});
    PlayWaveStatus(track->TrackAudio, Words::Text("Playing Audio/Recording"), Loop::No);
    return AudioHoverInterval(track->TrackAudio);
}

/// A stroke renders nothing, so the brush never waits.
int PlayBrushedTune(const Tune& tune)
{
    if (tune.TuneWaveValid)
        PlayWaveStatus(tune.TuneWave, Words::Text("Playing Star"), Loop::No);
    else
        Player().StopPlay();
    return TuneInterval(tune);
}

} // namespace

TrackTitlePlay::TrackTitlePlay(QObject* parent) : QObject(parent), timer(this)
{
    timer.setObjectName(QStringLiteral("TrackTitlePlayTimer"));
    timer.setInterval(kTitlePlayInterval);
    connect(&timer, &QTimer::timeout, this, &TrackTitlePlay::Tick);
}

void TrackTitlePlay::Start(TrackCanvas& trackCanvas)
{
    canvas = &trackCanvas;
    timer.start();
}

void TrackTitlePlay::EnableTrackTitlePlayTimer()
{
    if (!timer.isActive())
        timer.start();
}

bool TrackTitlePlay::DisableTrackTitlePlayTimer()
{
    const bool wasRunning = timer.isActive();
    timer.stop();
    return wasRunning;
}

void TrackTitlePlay::Tick()
{
    if (isBusy || PlayShared().PlayingTrack != 0 || !canvas)
        return;
    const QScopedValueRollback busy(isBusy, true);
    // The new interval starts at the end of a render, not at its beginning. An error is shown once instead of again and
    // again.
    GuardedOnce([this] { timer.start(PlayHovered()); }, [this] { timer.stop(); });
}

int TrackTitlePlay::PlayHovered()
{
    Track* const hovered = TrackOfNumber(canvas->HoverTrack());
    if (canvas->TrackTuneBtnVisible() && hovered)
        return PlayHoveredTune(hovered->TrackTune);
    if (canvas->TrackAudioBtnVisible())
        return PlayHoveredAudio(hovered);
    if (const Track* const brushed = TrackOfNumber(canvas->BrushedTrack()))
        return PlayBrushedTune(brushed->TrackTune);
    return kHoverWaitInterval;
}

} // namespace sprout
