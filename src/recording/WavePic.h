// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QImage>
#include <QWidget>

#include <cstdint>

#include "recording/rules/WavePoints.h"
#include "recording/rules/WaveSelection.h"

namespace sprout {

/// A shape of one colour that lies over the picture of a wave and moves without drawing the wave anew. The mouse goes
/// through it.
class WaveMarker : public QWidget {
    Q_OBJECT

public:
    WaveMarker(const char* name, const QColor& fill, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QColor colour;
};

/// The picture of a wave, made in the window that it stays in: it draws what it is told, in the colours of the
/// settings, and reports mouse and keys. Over it lie a thin selection band (`SelectBandShp`) and a thin play marker
/// (`PlayPosShp`).
class WavePic : public QWidget {
    Q_OBJECT

public:
    explicit WavePic(QWidget* parent);

    /// Its scale size, in logical pixels.
    [[nodiscard]] WavePicSize ScaleSize() const { return {width(), height()}; }

    /// Shows a drawing from now on.
    void Show(WaveDrawing newDrawing);

    void ShowBand(const WaveBand& band);
    void HideBand();
    /// left: `kMarkerOutOfSight` puts the marker out of sight.
    void MovePlayMarker(std::int32_t left);

    /// Tells screen readers what is selected.
    void Speak(const QString& selection);

    /// The drawing in device pixels, as it is shown on a screen of a ratio.
    [[nodiscard]] QImage Draw(double ratio) const;

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    // The left mouse button, x in logical pixels. A button that the picture loses while it is held counts as up.
    void Pressed(double x);
    void Moved(double x);
    void Released(double x);
    /// A key that moves the cursor.
    void CursorMoved(sprout::WaveMove move, sprout::WaveKeep keep);
    void AllWanted();
    /// It got or lost the focus; the frame that shows it is its window's.
    void FocusChanged();
    /// Its size is another one.
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
    void PaintSelection(QPainter& painter, double ratio) const;
    void PaintPass(QPainter& painter, const std::vector<WavePoint>& points, std::int32_t colour, double ratio) const;

    WaveDrawing drawing;
    QImage picture; ///< of the drawing; made when it is first painted
    WaveMarker* band;
    WaveMarker* marker;
    bool mouseDown = false;
    double mouseX = 0; ///< where it was last
};

} // namespace sprout
