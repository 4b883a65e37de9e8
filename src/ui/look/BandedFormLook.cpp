// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/look/BandedFormLook.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>

#include "ui/look/Artwork.h"
#include "ui/look/Palette.h"

namespace sprout {

namespace {

constexpr int kLogoSide = 20;
constexpr int kLogoLeft = 9;
constexpr int kVineSide = 44;

QPainterPath Outline(const QRectF& rect)
{
    QPainterPath path;
    path.addRoundedRect(rect, kFormCorner, kFormCorner);
    return path;
}

void PaintVine(QPainter& painter, const QWidget& form)
{
    const QRect vine(form.width() - kVineSide - 2, form.height() - kVineSide - 2, kVineSide, kVineSide);
    const QRect leaves = vine.adjusted(kVineSide / 4, 0, 0, 0);
    const auto parts = form.findChildren<const QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    const bool isCovered = std::any_of(parts.begin(), parts.end(), [&leaves](const QWidget* part) {
        return !part->isWindow() && !part->isHidden() && part->geometry().intersects(leaves);
    });
    if (!isCovered)
        painter.drawPixmap(vine.topLeft(),
                           Artwork(QStringLiteral("pictures/FormVine"), vine.size(), form.devicePixelRatioF()));
}

void PaintBand(QPainter& painter, const QWidget& form)
{
    painter.fillRect(QRect(0, 0, form.width(), kBandHeight), kDeepLeaf);
    painter.fillRect(QRect(0, kBandHeight - 2, form.width(), 2), kBark);
    painter.drawPixmap(
        kLogoLeft, (kBandHeight - kLogoSide) / 2,
        Artwork(QStringLiteral("pictures/SproutPaper"), QSize(kLogoSide, kLogoSide), form.devicePixelRatioF()));
}

} // namespace

bool FormCornersNeedMask()
{
    return QGuiApplication::platformName() == QStringLiteral("xcb");
}

QRegion FormMask(const QRect& form)
{
    return Outline(form).toFillPolygon().toPolygon();
}

int CaptionLeft()
{
    return kLogoLeft + kLogoSide + 2;
}

void PaintBandedForm(QWidget& form)
{
    QPainter painter(&form);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF inside = QRectF(form.rect()).adjusted(1, 1, -1, -1);
    if (FormCornersNeedMask())
        painter.fillRect(form.rect(), kBark);
    painter.setClipPath(Outline(inside));
    painter.fillRect(form.rect(), kPaper);
    PaintVine(painter, form);
    PaintBand(painter, form);
    painter.setClipping(false);
    painter.setPen(QPen(kBark, 2));
    painter.drawPath(Outline(inside));
}

} // namespace sprout
