// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

#include <cstdint>
#include <optional>

#include "recording/rules/WaveEditor.h"

class QWidget;

namespace sprout {

class WavePic;
class WaveScrollBar;

/// The sound in the audio editor with its picture (`WavePic`) and scroll bar (`HScroll`): mouse, keys and bar change
/// the sound's view and selection, and the picture shows them.
class EditedSound : public QObject {
    Q_OBJECT

public:
    /// Adds picture and bar to a window, which owns them and this object.
    explicit EditedSound(QWidget* window);

    [[nodiscard]] WavePic& Picture() const { return *wavePic; }
    [[nodiscard]] WaveScrollBar& Bar() const { return *HScroll; }
    [[nodiscard]] const WaveEditor& Editor() const { return editor; }

    /// Starts to edit a sound and shows all of it.
    void Load(WaveData sound);
    /// Changes or cuts out the selection; see `WaveEditor`.
    void ChangeVolume(VolumeChange change);
    void Cut();
    void Zoom(WaveZoom which);

    /// Moves the play marker to a sample, or out of sight if none is played.
    void ShowPlayed(std::optional<std::int32_t> sample);

Q_SIGNALS:
    /// The picture shows another part, another selection or another sound.
    void Shown();

private:
    void ConnectMouse();
    void ConnectKeys();
    void Show();
    [[nodiscard]] std::int32_t PictureWidth() const;

    WaveEditor editor;
    WavePic* wavePic;
    WaveScrollBar* HScroll;
};

} // namespace sprout
