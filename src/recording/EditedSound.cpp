// SPDX-License-Identifier: GPL-3.0-or-later
#include "recording/EditedSound.h"

#include <QSignalBlocker>

#include <utility>

#include "recording/WavePic.h"
#include "recording/WaveScrollBar.h"
#include "ui/forms/Guarded.h"

namespace sprout {

EditedSound::EditedSound(QWidget* window)
    : QObject(window), wavePic(new WavePic(window)), HScroll(new WaveScrollBar(window))
{
    wavePic->setObjectName(QStringLiteral("WavePic"));
    ConnectMouse();
    ConnectKeys();
    connect(wavePic, &WavePic::Resized, this, [this] { Guarded([this] { Show(); }); });
    connect(HScroll, &QScrollBar::valueChanged, this, [this](int value) {
        Guarded([this, value] {
            editor.Scroll(value);
            Show();
        });
    });
}

void EditedSound::ConnectMouse()
{
    connect(wavePic, &WavePic::Pressed, this,
            [this](double x) { Guarded([&] { wavePic->ShowBand(editor.Press(x, PictureWidth())); }); });
    connect(wavePic, &WavePic::Moved, this,
            [this](double x) { Guarded([&] { wavePic->ShowBand(editor.Drag(x, PictureWidth())); }); });
    connect(wavePic, &WavePic::Released, this, [this](double x) {
        Guarded([&] {
            editor.Release(x, PictureWidth());
            wavePic->HideBand();
            Show();
        });
    });
}

void EditedSound::ConnectKeys()
{
    connect(wavePic, &WavePic::CursorMoved, this, [this](WaveMove move, WaveKeep keep) {
        Guarded([&] {
            editor.Move(move, keep);
            Show();
        });
    });
    connect(wavePic, &WavePic::AllWanted, this, [this] {
        Guarded([this] {
            editor.SelectAll();
            Show();
        });
    });
}

void EditedSound::Load(WaveData sound)
{
    editor.Load(std::move(sound));
    {
        const QSignalBlocker quiet(*HScroll); // the bar goes back, which is no scroll
        HScroll->setValue(0);
    }
    ShowPlayed(std::nullopt);
    Show();
}

void EditedSound::Show()
{
    wavePic->Show(editor.Draw(wavePic->ScaleSize()));
    wavePic->Speak(editor.Spoken());
    Q_EMIT Shown();
}

void EditedSound::ChangeVolume(VolumeChange change)
{
    editor.ChangeVolume(change);
    Show();
}

void EditedSound::Cut()
{
    editor.Cut();
    Show();
}

void EditedSound::Zoom(WaveZoom which)
{
    editor.Zoom(which, PictureWidth(), HScroll->value());
    Show();
}

void EditedSound::ShowPlayed(std::optional<std::int32_t> sample)
{
    wavePic->MovePlayMarker(sample ? editor.MarkerLeft(*sample, PictureWidth()) : kMarkerOutOfSight);
}

std::int32_t EditedSound::PictureWidth() const
{
    return wavePic->ScaleSize().Width;
}

} // namespace sprout
