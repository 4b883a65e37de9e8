// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/CutTexts.h"

#include <QLabel>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>

namespace sprout {

namespace {

constexpr QChar kEllipsis(0x2026);
constexpr qreal kTolerance = 1; // letters may lean over their width by part of a pixel

/// Draws nothing, but notes every text that its clip cuts.
class CutWatch : public QPaintEngine {
public:
    CutWatch() : QPaintEngine(AllFeatures) {}

    bool begin(QPaintDevice* /*device*/) override { return true; }
    bool end() override { return true; }
    [[nodiscard]] Type type() const override { return User; }
    void drawPixmap(const QRectF& /*place*/, const QPixmap& /*pixmap*/, const QRectF& /*part*/) override {}
    void drawPath(const QPainterPath& /*path*/) override {}
    void drawPolygon(const QPointF* /*points*/, int /*count*/, PolygonDrawMode /*mode*/) override {}
    void updateState(const QPaintEngineState& changed) override
    {
        if (changed.state().testFlag(DirtyTransform))
            transform = changed.transform();
    }

    void drawTextItem(const QPointF& baseline, const QTextItem& item) override
    {
        const QRectF letters(baseline.x(), baseline.y() - item.ascent(), item.width(), item.ascent() + item.descent());
        const QRectF place = transform.mapRect(letters);
        const QRectF room = systemClip().boundingRect();
        const bool isCut = place.left() < room.left() - kTolerance || place.right() > room.right() + kTolerance ||
                           place.center().y() < room.top() || place.center().y() > room.bottom();
        if ((isCut || item.text().contains(kEllipsis)) && !cut.contains(item.text()))
            cut.append(item.text());
    }

    QStringList cut;

private:
    QTransform transform;
};

/// As large as the window, at its resolution.
class WatchedDevice : public QPaintDevice {
public:
    explicit WatchedDevice(QWidget& drawn) : window(drawn) {}

    [[nodiscard]] QPaintEngine* paintEngine() const override { return &watch; }
    [[nodiscard]] QStringList Cut() const { return watch.cut; }

protected:
    [[nodiscard]] int metric(PaintDeviceMetric metric) const override
    {
        switch (metric) {
        case PdmWidth:
            return window.width();
        case PdmHeight:
            return window.height();
        case PdmDpiX:
        case PdmPhysicalDpiX:
            return window.logicalDpiX();
        case PdmDpiY:
        case PdmPhysicalDpiY:
            return window.logicalDpiY();
        case PdmDepth:
            return 32;
        case PdmDevicePixelRatio:
            return 1;
        case PdmDevicePixelRatioScaled:
            return static_cast<int>(devicePixelRatioFScale());
        default:
            return QPaintDevice::metric(metric);
        }
    }

private:
    QWidget& window;
    mutable CutWatch watch;
};

/// Texts with more lines than their labels have room for: Qt does not draw lines outside of a label at all.
QStringList TooTallTexts(QWidget& window)
{
    QStringList tall;
    for (const QLabel* label : window.findChildren<QLabel*>())
        if (label->isVisible() && label->wordWrap() && label->heightForWidth(label->width()) > label->height())
            tall.append(label->text());
    return tall;
}

} // namespace

QStringList CutTexts(QWidget& window)
{
    WatchedDevice device(window);
    window.render(&device);
    return device.Cut() + TooTallTexts(window);
}

} // namespace sprout
