// SPDX-License-Identifier: GPL-3.0-or-later
// Measures how long the canvas takes to draw on a screen of 1920 x 1080 with all rows filled, from the event until the
// picture is in the window, for a brush move by one cell and for a scroll, which redraws everything.
#include <QApplication>
#include <QElapsedTimer>
#include <QMouseEvent>
#include <QScrollBar>
#include <QWidget>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <vector>

#include "core/Shared.h"
#include "core/SongModel.h"
#include "main_window/TrackCanvas.h"
#include "main_window/rules/TrackGeometry.h"
#include "ui/look/Look.h"
#include "ui/look/ProgramPictures.h"
#include "ui/widgets/ButtonScheme.h"

namespace sprout {
namespace {

constexpr QSize kScreen{1920, 1080};
constexpr int kTracks = 24;
constexpr int kBrushedTrack = 12;
constexpr int kHoleBegin = 100;
constexpr int kMoves = 300;
constexpr int kScrolls = 100;

void FillSong()
{
    SongState& song = Shared().Song;
    song.SongCells = 1280;
    song.Tempo = 320;
    song.Tracks.resize(kTracks + 1);
    song.TrackCount = kTracks;
    for (int number = 1; number <= kTracks; ++number) {
        Track& track = song.Tracks[static_cast<std::size_t>(number)];
        track.TrackTune.Name = "Tune";
        track.TrackTune.Picture = Shared().NewTunePicture;
        track.TrackTune.StepCount = kBlankTuneSteps;
        track.Painted.assign(static_cast<std::size_t>(song.SongCells) + 1, 1);
    }
    std::vector<std::int32_t>& brushed = song.Tracks[kBrushedTrack].Painted;
    std::fill_n(brushed.begin() + kHoleBegin, kMoves + 1, 0);
}

void Send(QWidget& surface, QEvent::Type type, int cell)
{
    constexpr int rowTop = 20 + (kBrushedTrack - 1) * 46;
    const QPointF at((cell - 1) * 3, rowTop + 20);
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, at, surface.mapToGlobal(at), button, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&surface, &event);
}

/// Makes the window paint pending changes at once; otherwise it would wait for the screen's next refresh.
double Milliseconds(QWidget& surface, const std::function<void()>& change)
{
    QApplication::processEvents();
    QElapsedTimer clock;
    clock.start();
    change();
    QEvent request(QEvent::UpdateRequest);
    QApplication::sendEvent(surface.window(), &request);
    return static_cast<double>(clock.nsecsElapsed()) / 1e6;
}

void Print(const char* name, std::vector<double> times, double limit, const char* what)
{
    std::sort(times.begin(), times.end());
    const double median = times[times.size() / 2];
    const double nearlyAll = times[times.size() * 95 / 100];
    std::printf("%-14s %7.2f ms %9.0f ms   %s; 95 of 100 within %.2f ms\n", name, median, limit, what, nearlyAll);
    std::fflush(stdout);
}

void MeasureBrush(QWidget& surface)
{
    std::vector<double> times;
    Send(surface, QEvent::MouseButtonPress, kHoleBegin - 1);
    QApplication::processEvents();
    for (int cell = kHoleBegin; cell < kHoleBegin + kMoves; ++cell)
        times.push_back(Milliseconds(surface, [&surface, cell] { Send(surface, QEvent::MouseMove, cell); }));
    Send(surface, QEvent::MouseButtonRelease, kHoleBegin + kMoves);
    const bool painted = Shared().Song.Tracks[kBrushedTrack].IsPainted(kHoleBegin + kMoves / 2);
    Print("brush-move", times, 4, painted ? "a cell painted" : "NOTHING WAS PAINTED");
}

void MeasureScroll(QScrollBar& bar)
{
    std::vector<double> times;
    for (int i = 0; i < kScrolls; ++i)
        times.push_back(Milliseconds(bar, [&bar, i] { bar.setValue(i % 2 == 0 ? 40 : 1); }));
    Print("canvas", times, 25, "all rows drawn anew");
}

void Measure()
{
    MakeProgramPictures();
    FillSong();
    QWidget window;
    window.resize(kScreen);
    ButtonScheme buttons(window, AllOffTimer::OffAtFirst);
    const auto nothing = [] {};
    TrackCanvas canvas(&window, buttons,
                       {[](std::int32_t) {}, [](std::int32_t, std::int32_t) {}, nothing, nothing,
                        [](std::string_view) {}, nothing, nothing, nothing, nothing, nothing, nothing});
    canvas.setGeometry(window.rect());
    window.show();
    canvas.DrawTracksAll();
    QApplication::processEvents();
    MeasureBrush(*canvas.findChild<QWidget*>(QStringLiteral("TrackPic")));
    MeasureScroll(*canvas.findChild<QScrollBar*>(QStringLiteral("TrackHScroll")));
}

} // namespace
} // namespace sprout

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    sprout::ApplyLook(application);
    sprout::Measure();
    return 0;
}
