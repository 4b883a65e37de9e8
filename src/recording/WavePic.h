// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QWidget>

#include <cstdint>

#include "base/Words.h"
#include "recording/rules/WavePoints.h"
#include "recording/rules/WaveSelection.h"

namespace sprout {

class WaveMarker;

/// The picture of a wave, created in its final window. It draws what it is given, in the colours of the settings, and
/// reports mouse and keys. A thin selection band (`SelectBandShp`) and a thin play marker (`PlayPosShp`) lie over it.
class WavePic : public QWidget {
    Q_OBJECT

public:
    explicit WavePic(QWidget* parent);

    /// Its scale size, in logical pixels.
    [[nodiscard]] WavePicSize ScaleSize() const { return {width(), height()}; }

    /// Shows this drawing from now on.
    void Show(WaveDrawing newDrawing);

    void ShowBand(const WaveBand& band);
    void HideBand();
    /// left: `kMarkerOutOfSight` puts the marker out of sight.
    void MovePlayMarker(std::int32_t left);

    /// Tells screen readers what is selected.
    void Speak(const Words& selection);

    /// The drawing in device pixels, as shown on a screen of this pixel ratio.
    [[nodiscard]] QImage Draw(double ratio) const;

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    // The left mouse button, x in logical pixels. If the picture loses the button while it is held, it counts as
    // released.
    void Pressed(double x);
    void Moved(double x);
    void Released(double x);
    /// A key that moves the cursor.
    void CursorMoved(sprout::WaveMove move, sprout::WaveKeep keep);
    void AllWanted();
    /// It got or lost the focus; its window draws the focus frame.
    void FocusChanged();
    /// Its size has changed.
    void Resized();

protected:
    void hideEvent(QHideEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void LetGo();

    WaveDrawing drawing;
    QImage picture; ///< of the drawing; made at the first paint
    WaveMarker* band;
    WaveMarker* marker;
    bool mouseDown = false;
    double mouseX = 0; ///< last position
};

} // namespace sprout
