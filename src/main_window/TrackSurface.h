// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <QWidget>

#include <functional>
#include <string_view>

namespace sprout {

/// Draws on a picture that is kept in device pixels, or on the screen. Places are logical pixels; every edge falls on a
/// whole device pixel, so that neighbours meet without a seam at any pixel ratio.
class SurfacePainter {
public:
    SurfacePainter(QPaintDevice& device, qreal pixelRatio);

    void Fill(const QRect& place, const QColor& colour);
    /// Fills `place` with copies of an artwork that was drawn for the pixel ratio, from its top left on.
    void Tile(const QRect& place, const QPixmap& artwork);
    /// Lays the top left of an artwork, cut to `place`.
    void Lay(const QRect& place, const QPixmap& artwork);
    /// Lays a small bitmap, each of its pixels as large as a logical one.
    void LayBitmap(const QRect& place, const QImage& bitmap);
    /// Writes `text` with its left edge at x and the top of its line at `top`.
    void Write(qreal x, int top, const QFont& font, const QString& text);

private:
    [[nodiscard]] QRect DeviceRect(const QRect& place) const;

    QPainter painter;
    qreal ratio;
};

/// A widget that keeps what was drawn on it, and copies it to the screen.
class TrackSurface : public QWidget {
    Q_OBJECT

public:
    /// name: of the control. back: the colour of an empty surface.
    TrackSurface(const char* name, const QColor& back, QWidget* parent);

    /// Empties the surface, at its size and the screen's pixel ratio of this moment.
    void Clear();
    /// Everything is drawn anew when the surface has to be shown next.
    void Forget();

    /// Draws everything. Called where the surface has to be shown and was not drawn at its size and the screen's pixel
    /// ratio, or was forgotten.
    std::function<void()> Redraw;

protected:
    void paintEvent(QPaintEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

    /// Draws what lies on the kept picture for the moment. Nothing by default.
    virtual void PaintOver(QPainter& painter);

    /// The focus came by key, so that it has to be shown.
    [[nodiscard]] bool FocusByKey() const { return focusByKey; }
    [[nodiscard]] QColor BackColour() const { return back; }
    [[nodiscard]] qreal PixelRatio() const { return ratio; }
    /// What is drawn now is thrown away: `Redraw` comes before it is seen.
    [[nodiscard]] bool IsStale() const;
    /// A painter on the kept picture; whoever draws calls `Changed` for it.
    [[nodiscard]] SurfacePainter Painter();

    void Changed(const QRect& part);

    /// Frames `place` light beside dark, so that the frame stands out on every ground.
    static void PaintFocusRing(QPainter& painter, const QRect& place);

private:
    [[nodiscard]] QSize DevicePixels() const;
    /// Draws on the screen itself, for the first time that the surface is shown: the memory of a large picture takes
    /// several ms, and the window can be there before. The picture that is kept follows at once.
    void PaintStraight();
    /// Copies what is kept, drawn anew where it has to be.
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
