// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/EditorSheets.h"

#include <QApplication>
#include <QKeyEvent>

#include <algorithm>
#include <cmath>
#include <numbers>

#include "core/Shared.h"
#include "pictures/SheetPicture.h"
#include "recording/AudioEditFrm.h"

namespace sprout {

namespace {

constexpr std::int32_t kSungSeconds = 6;
constexpr int kKeysToStart = 60;
constexpr int kKeysToEnd = 160;

/// Looks like singing: tones that swell and fade, some louder than others, the right channel softer.
WaveData SungSound()
{
    WaveData wave;
    wave.Length = kSungSeconds * wave.Rate;
    wave.WavL = Channel(wave.Length);
    wave.WavR = Channel(wave.Length);
    const auto left = wave.WavL.Change();
    const auto right = wave.WavR.Change();
    for (std::size_t i = 1; i < left.size(); ++i) {
        const double second = static_cast<double>(i) / wave.Rate;
        const double swell = std::max(std::sin(second * std::numbers::pi * 1.4), 0.0) * (0.4 + 0.08 * second);
        const double tone =
            std::sin(second * 2 * std::numbers::pi * 233) + 0.4 * std::sin(second * 2 * std::numbers::pi * 701);
        left[i] = static_cast<std::int16_t>(swell * tone * 26000);
        right[i] = static_cast<std::int16_t>(swell * tone * 12000);
    }
    return wave;
}

void PressKeys(AudioEditFrm& form, Qt::KeyboardModifiers modifiers, int times)
{
    for (int i = 0; i < times; ++i) {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Right, modifiers);
        QApplication::sendEvent(form.findChild<QWidget*>(QStringLiteral("WavePic")), &press);
    }
}

void DrawEditor(const QString& folder, QSize room, const QString& name)
{
    AudioEditFrm form(nullptr);
    form.FitTo(room);
    form.UpdateFormWithCurrentTrack(1);
    ShowAndSaveSheet(form, folder, name);
    PressKeys(form, Qt::NoModifier, kKeysToStart);
    ShowAndSaveSheet(form, folder, name + QStringLiteral("-place"));
    PressKeys(form, Qt::ShiftModifier, kKeysToEnd);
    form.findChild<QWidget*>(QStringLiteral("HScroll"))->setFocus();
    ShowAndSaveSheet(form, folder, name + QStringLiteral("-part"));
}

} // namespace

void DrawEditorSheets(const QString& folder)
{
    SongState& song = Shared().Song;
    song.TrackCount = 1;
    song.Tracks.resize(2);
    song.Tracks[1].TrackType = static_cast<std::int32_t>(TrackKind::Audio);
    song.Tracks[1].TrackAudio = SungSound();
    DrawEditor(folder, {800, 600}, QStringLiteral("editor"));
    DrawEditor(folder, {1920, 1080}, QStringLiteral("editor-large"));
    DrawEditor(folder, {400, 300}, QStringLiteral("editor-small"));
    song = SongState();
}

} // namespace sprout
