// SPDX-License-Identifier: GPL-3.0-or-later
#include "recording/rules/WaveEditor.h"

#include <algorithm>
#include <utility>

namespace sprout {

void WaveEditor::Load(WaveData sound)
{
    wave = std::move(sound);
    view = WaveView();
    view.FitAll = true;
    cursor = {};
    changed = false;
}

WaveDrawing WaveEditor::Draw(WavePicSize size)
{
    WaveDrawing drawing = DrawWaveform(wave, size, view);
    view.FitAll = false;
    return drawing;
}

std::int32_t WaveEditor::MarkerLeft(std::int32_t sample, std::int32_t width) const
{
    return PlayMarkerLeft(view, sample, width);
}

bool WaveEditor::HasSelection() const
{
    return SelectionIsValid(view, wave.Length);
}

bool WaveEditor::SelectsAll() const
{
    return view.SelectionEnd - view.SelectionStart + 1 >= wave.Length;
}

Words WaveEditor::Spoken() const
{
    return SpokenSelection(view, wave.Rate);
}

WaveBand WaveEditor::Press(double x, std::int32_t width)
{
    drag = PressWave(x, width, wave.Length, view);
    return PressedBand(x, width);
}

WaveBand WaveEditor::Drag(double x, std::int32_t width) const
{
    return DraggedBand(drag, x, width);
}

void WaveEditor::Release(double x, std::int32_t width)
{
    const std::int32_t pressed = view.SelectionStart;
    ReleaseWave(x, width, wave.Length, view);
    cursor = {view.SelectionStart == pressed ? view.SelectionEnd : view.SelectionStart, pressed};
}

void WaveEditor::Move(WaveMove move, WaveKeep keep)
{
    MoveCursor(move, keep, wave.Length, cursor, view);
}

void WaveEditor::SelectAll()
{
    SelectWave(wave.Length, cursor, view);
}

void WaveEditor::Scroll(std::int32_t scroll)
{
    ScrollWave(wave.Length, scroll, view);
}

void WaveEditor::Zoom(WaveZoom which, std::int32_t width, std::int32_t scroll)
{
    ZoomWave(which, wave.Length, width, scroll, view);
}

void WaveEditor::ChangeVolume(VolumeChange change)
{
    sprout::ChangeVolume(change, view.SelectionStart, view.SelectionEnd, wave);
    changed = true;
}

void WaveEditor::Cut()
{
    wave = CutSamples(wave, view.SelectionStart, view.SelectionEnd);
    cursor.Place = cursor.Other = std::min(view.SelectionStart, wave.Length);
    view.SelectionStart = view.SelectionEnd = 0;
    changed = true;
}

} // namespace sprout
