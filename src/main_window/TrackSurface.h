// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <QWidget>

#include <functional>
#include <string_view>

namespace sprout {

/// Draws on a picture that is kept in device pixels, or on the screen. Positions are in logical pixels; every edge
/// falls on a whole device pixel, so neighbours meet without a seam at any pixel ratio.
class SurfacePainter {
public:
    SurfacePainter(QPaintDevice& device, qreal pixelRatio);

    void Fill(const QRect& place, const QColor& colour);
    /// Fills `place` with copies of an artwork drawn for the pixel ratio, starting at the top left.
    void Tile(const QRect& place, const QPixmap& artwork);
    /// Draws the top left of an artwork, cropped to `place`.
    void Lay(const QRect& place, const QPixmap& artwork);
    /// Draws a small bitmap; each of its pixels is as large as a logical pixel.
    void LayBitmap(const QRect& place, const QImage& bitmap);
    /// Draws `text` with its left edge at x and the top of its line at `top`.
    void Write(qreal x, int top, const QFont& font, const QString& text);

private:
    [[nodiscard]] QRect DeviceRect(const QRect& place) const;

    QPainter painter;
    qreal ratio;
};

/// A widget that keeps what was drawn on it and copies it to the screen.
class TrackSurface : public QWidget {
    Q_OBJECT

public:
    /// name: of the control. back: background colour of an empty surface.
    TrackSurface(const char* name, const QColor& back, QWidget* parent);

    /// Clears the surface, at its current size and the screen's current pixel ratio.
    void Clear();
    /// Makes the surface redraw everything when it is next shown.
    void Forget();

    /// Draws everything. Called when the surface must be shown but was forgotten, or was drawn at another size or pixel
    /// ratio.
    std::function<void()> Redraw;

protected:
    void paintEvent(QPaintEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

    /// Draws temporary things over the kept picture. Does nothing by default.
    virtual void PaintOver(QPainter& painter);

    /// The focus came from the keyboard and must be shown.
    [[nodiscard]] bool FocusByKey() const { return focusByKey; }
    [[nodiscard]] QColor BackColour() const { return back; }
    [[nodiscard]] qreal PixelRatio() const { return ratio; }
    /// True if drawing now is pointless, because `Redraw` runs before the result is seen.
    [[nodiscard]] bool IsStale() const;
    /// Returns a painter for the kept picture; call `Changed` after drawing.
    [[nodiscard]] SurfacePainter Painter();

    void Changed(const QRect& part);

    /// Frames `place` light next to dark, so that the frame is visible on any background.
    static void PaintFocusRing(QPainter& painter, const QRect& place);

private:
    [[nodiscard]] QSize DevicePixels() const;
    /// Draws directly on the screen the first time the surface is shown. Allocating a large picture takes several ms,
    /// and this way the window can appear earlier. The kept picture follows at once.
    void PaintStraight();
    /// Copies the kept picture to the screen, after a redraw if needed.
    void PaintKept(const QRegion& region);
    void UpdateFocusRing();

    QColor back;
    QImage kept;
    qreal ratio = 1;
    bool isDrawn = false;
    bool isPainting = false;
    bool isStraight = false;
    bool wasShown = false;
    bool focusByKey = false;
};

} // namespace sprout
