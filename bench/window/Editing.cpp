// SPDX-License-Identifier: GPL-3.0-or-later
// sprout_edit_bench: measures the milliseconds to open and use the audio editor on 240 s of stereo sound.
#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <functional>
#include <vector>

#include "core/Shared.h"
#include "recording/AudioEditFrm.h"
#include "recording/WavePic.h"
#include "ui/look/Look.h"
#include "ui/look/Palette.h"

namespace sprout {
namespace {

constexpr std::int32_t kFrames = 240 * 44100;
constexpr WavePicSize kPicture{1280, 480};
constexpr int kOpenings = 20;
constexpr int kDrawings = 200;
constexpr int kEvents = 200;

double Milliseconds(const std::function<void()>& work)
{
    QElapsedTimer clock;
    clock.start();
    work();
    return static_cast<double>(clock.nsecsElapsed()) / 1e6;
}

double Share(std::vector<double> times, std::size_t percent)
{
    std::sort(times.begin(), times.end());
    return times[std::min(times.size() * percent / 100, times.size() - 1)];
}

void Print(const char* name, double measured, double limit, const char* what)
{
    std::printf("%-14s %7.2f    %9.2f      %s\n", name, measured, limit, what);
    std::fflush(stdout);
}

Channel Tones(double pitch)
{
    Channel channel(kFrames);
    const auto samples = channel.Change();
    for (std::size_t i = 1; i < samples.size(); ++i) {
        const auto place = static_cast<double>(i);
        samples[i] = static_cast<std::int16_t>(30000 * std::sin(place * pitch) * std::sin(place * 3e-6));
    }
    return channel;
}

void MakeSong()
{
    SongState& song = Shared().Song;
    song.TrackCount = 1;
    song.Tracks.resize(2);
    Track& track = song.Tracks[1];
    track.TrackType = static_cast<std::int32_t>(TrackKind::Audio);
    track.TrackAudio.Length = kFrames;
    track.TrackAudio.WavL = Tones(0.031);
    track.TrackAudio.WavR = Tones(0.047);
}

/// Makes a window draw pending changes at once; otherwise it would wait for the screen's next refresh.
void DrawNow(QWidget& window)
{
    QEvent request(QEvent::UpdateRequest);
    QApplication::sendEvent(&window, &request);
}

void MeasureOpening()
{
    std::vector<double> times;
    bool copied = false;
    for (int i = 0; i < kOpenings; ++i) {
        const Channel before = Shared().Song.Tracks[1].TrackAudio.WavL;
        times.push_back(Milliseconds([] {
            AudioEditFrm form(nullptr);
            form.UpdateFormWithCurrentTrack(1);
            form.show();
            QApplication::processEvents();
        }));
        copied = copied || !before.SharesBlockWith(Shared().Song.Tracks[1].TrackAudio.WavL);
    }
    Print("edit-first", times.front(), 16, "ms: the window opened and drawn for the first time");
    Print("edit-open", Share(times, 50), 16, copied ? "SAMPLES WERE COPIED" : "ms: the same later");
}

/// The lines of a drawing of a wave, ready for the painter.
std::vector<QLine> LinesOf(const std::vector<WavePoint>& points)
{
    std::vector<QLine> lines;
    QPoint before(DevicePixel(points.front().X, 1), DevicePixel(points.front().Y, 1));
    for (const WavePoint& point : points) {
        const QPoint place(DevicePixel(point.X, 1), DevicePixel(point.Y, 1));
        lines.emplace_back(before, place);
        before = place;
    }
    return lines;
}

void MeasureRedraw()
{
    const WaveData& wave = Shared().Song.Tracks[1].TrackAudio;
    WavePic pic(nullptr);
    pic.resize(kPicture.Width, kPicture.Height);
    WaveView view;
    view.FitAll = true;
    const WaveDrawing drawing = DrawWaveform(wave, kPicture, view);
    const std::vector<QLine> left = LinesOf(drawing.Left);
    const std::vector<QLine> right = LinesOf(drawing.Right);
    std::vector<double> ours;
    std::vector<double> bare;
    for (int i = 0; i < kDrawings; ++i) {
        ours.push_back(Milliseconds([&] {
            pic.Show(DrawWaveform(wave, kPicture, view));
            static_cast<void>(pic.Draw(1));
        }));
        bare.push_back(Milliseconds([&] {
            QImage image(kPicture.Width, kPicture.Height, QImage::Format_RGB32);
            image.fill(ColourOf(Shared().WaveColours.NormalBackColor));
            QPainter painter(&image);
            painter.setPen(ColourOf(Shared().WaveColours.WaveFormNormalColorL));
            painter.drawLines(left.data(), static_cast<int>(left.size()));
            painter.setPen(ColourOf(Shared().WaveColours.WaveFormNormalColorR));
            painter.drawLines(right.data(), static_cast<int>(right.size()));
        }));
    }
    Print("edit-redraw", Share(ours, 50), 5, "ms: the wave drawn at 1280 x 480");
    Print("edit-bare", Share(ours, 50) / Share(bare, 50), 1.3, "times the bare drawing of the same lines");
}

void MeasureUse()
{
    AudioEditFrm form(nullptr);
    form.UpdateFormWithCurrentTrack(1);
    form.show();
    QApplication::processEvents();
    auto& pic = *form.findChild<WavePic*>(QStringLiteral("WavePic"));
    auto& bar = *form.findChild<QScrollBar*>(QStringLiteral("HScroll"));
    form.findChild<QAbstractButton*>(QStringLiteral("ZoomInBtn"))->click();
    std::vector<double> times;
    for (int i = 0; i < kEvents; ++i)
        times.push_back(Milliseconds([&] {
            if (i % 2 == 0) {
                bar.setValue(i % 100);
            } else {
                QKeyEvent press(QEvent::KeyPress, Qt::Key_Right, Qt::ShiftModifier);
                QApplication::sendEvent(&pic, &press);
            }
            DrawNow(form);
        }));
    Print("edit-use", Share(times, 95), 16, "ms: 95 of 100 of 200 scrolls and selection moves are drawn within");
}

} // namespace
} // namespace sprout

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    sprout::ApplyLook(application);
    sprout::MakeSong();
    sprout::MeasureOpening();
    sprout::MeasureRedraw();
    sprout::MeasureUse();
    return 0;
}
