// SPDX-License-Identifier: GPL-3.0-or-later
#include "tutorial/SlidePicture.h"

#include <QApplication>
#include <QFontMetrics>
#include <QImageWriter>
#include <QPainter>
#include <QPainterPath>
#include <QSvgRenderer>
#include <QWidget>

#include <algorithm>
#include <cmath>
#include <tuple>
#include <utility>

#include "base/Errors.h"
#include "tutorial/FewColours.h"
#include "tutorial/SlideLayout.h"
#include "ui/look/Look.h"
#include "ui/look/Palette.h"

namespace sprout {

namespace {

constexpr Box kMiddle{kSlideSize.width / 2, kSlideSize.height / 2, 0, 0};
constexpr int kTextPixels = 19;
constexpr int kTextWidth = 270;
constexpr int kAroundText = 14;
constexpr int kBubbleCorner = 16;
constexpr int kOutline = 3;
constexpr int kTailBreadth = 22;
constexpr int kTailBefore = 4; ///< the tail ends so far from what it points at
constexpr double kArrowBreadth = 7;
constexpr double kArrowHead = 22;
constexpr QColor kShadow{0x4A, 0x2F, 0x22, 0x50};

Box BoxOf(const QRect& rect)
{
    return {rect.x(), rect.y(), rect.width(), rect.height()};
}

QRect RectOfBox(const Box& box)
{
    return {box.left, box.top, box.width, box.height};
}

QFont BubbleFont()
{
    QFont font = ButtonFont();
    font.setPixelSize(kTextPixels);
    return font;
}

/// The narrowest width that needs no more lines than the widest one: lines of about the same length.
QSize TextSize(const QString& text)
{
    const QFontMetrics metrics(BubbleFont());
    const auto sizeIn = [&](int width) {
        return metrics.boundingRect(QRect(0, 0, width, kSlideSize.height), Qt::TextWordWrap, text).size();
    };
    const int height = sizeIn(kTextWidth).height();
    int width = kTextWidth;
    while (width > kTailBreadth && sizeIn(width - 1).height() == height && sizeIn(width - 1).width() <= width - 1)
        --width;
    return {width, height};
}

void DrawOutlined(QPainter& painter, const QPainterPath& path, const QColor& fill)
{
    painter.translate(2, 3);
    painter.fillPath(path, kShadow);
    painter.translate(-2, -3);
    painter.setPen(QPen(kBark, kOutline, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(fill);
    painter.drawPath(path);
}

/// A tail from the bubble to a place: not to its very edge, where its neighbour may be meant.
QPainterPath TailTo(const QRect& target, const QRect& bubble)
{
    const SlidePoint middle{bubble.center().x(), bubble.center().y()};
    const QRect aim =
        target.adjusted(target.width() / 4, target.height() / 4, -target.width() / 4, -target.height() / 4);
    const SlidePoint end = ClosestPoint(BoxOf(aim), middle);
    const Box inside = BoxOf(bubble.adjusted(kBubbleCorner, kBubbleCorner, -kBubbleCorner, -kBubbleCorner));
    const SlidePoint begin = ClosestPoint(inside, end);
    const QPointF from(begin.x, begin.y);
    const QPointF way = QPointF(end.x, end.y) - from;
    const double length = std::hypot(way.x(), way.y());
    QPainterPath tail;
    if (length < 1)
        return tail;
    const QPointF along = way / length;
    const QPointF aside(-along.y() * kTailBreadth / 2, along.x() * kTailBreadth / 2);
    tail.moveTo(from + aside);
    tail.lineTo(from + along * (length - kTailBefore));
    tail.lineTo(from - aside);
    tail.closeSubpath();
    return tail;
}

void DrawBubble(QPainter& painter, const SlideMarks& marks, const std::vector<Box>& free)
{
    const QSize text = TextSize(marks.Text);
    const BoxSize size{text.width() + 2 * kAroundText, text.height() + 2 * kAroundText};
    std::vector<Box> others;
    for (const QRect& other : marks.Others)
        others.push_back(BoxOf(other));
    const Box pointsAt = marks.PointsAt.isEmpty() ? kMiddle : BoxOf(marks.PointsAt);
    const QRect bubble = RectOfBox(PlaceBubble(size, pointsAt, free, others));
    QPainterPath shape;
    shape.addRoundedRect(bubble, kBubbleCorner, kBubbleCorner);
    if (!marks.PointsAt.isEmpty())
        shape = shape.united(TailTo(marks.PointsAt, bubble));
    DrawOutlined(painter, shape, kPaper);
    painter.setFont(BubbleFont());
    painter.setPen(kBark);
    painter.drawText(bubble.adjusted(kAroundText, kAroundText, -kAroundText, -kAroundText),
                     Qt::AlignCenter | Qt::TextWordWrap, marks.Text);
}

void DrawArrow(QPainter& painter, QPointF from, QPointF to)
{
    const double length = std::hypot(to.x() - from.x(), to.y() - from.y());
    painter.save();
    painter.translate(from);
    painter.rotate(std::atan2(to.y() - from.y(), to.x() - from.x()) * 180 / M_PI);
    QPainterPath arrow;
    arrow.moveTo(0, -kArrowBreadth / 2);
    arrow.lineTo(length - kArrowHead, -kArrowBreadth / 2);
    arrow.lineTo(length - kArrowHead, -kArrowHead / 2);
    arrow.lineTo(length, 0);
    arrow.lineTo(length - kArrowHead, kArrowHead / 2);
    arrow.lineTo(length - kArrowHead, kArrowBreadth / 2);
    arrow.lineTo(0, kArrowBreadth / 2);
    arrow.closeSubpath();
    DrawOutlined(painter, arrow, kSun);
    painter.restore();
}

void DrawHand(QPainter& painter, const HandPlace& hand)
{
    QSvgRenderer picture(QStringLiteral(":/tutorial/Hand.svg"));
    painter.save();
    painter.translate(RectOfBox(hand.box).center());
    painter.scale(hand.isMirrored ? -1 : 1, hand.isUpsideDown ? -1 : 1);
    picture.render(&painter, QRectF(-kHandSide / 2.0, -kHandSide / 2.0, kHandSide, kHandSide));
    painter.restore();
}

/// How far in front a window is: first menus, then the window that waits for an answer, then the later one of those
/// behind it.
std::tuple<int, int, WId> StackingOf(const QWidget& window)
{
    const int front = &window == QApplication::activePopupWidget()   ? 2
                      : &window == QApplication::activeModalWidget() ? 1
                                                                     : 0;
    return {front, window.isModal() ? 1 : 0, window.internalWinId()};
}

} // namespace

QImage GrabScreen()
{
    const qreal pixelRatio = qApp->devicePixelRatio();
    QImage screen(QSize(kSlideSize.width, kSlideSize.height) * pixelRatio, QImage::Format_RGB32);
    screen.setDevicePixelRatio(pixelRatio);
    screen.fill(kSand);
    QPainter painter(&screen);
    QWidgetList windows = QApplication::topLevelWidgets();
    windows.removeIf([](const QWidget* window) { return !window->isVisible() || window->inherits("QTipLabel"); });
    std::sort(windows.begin(), windows.end(),
              [](const QWidget* a, const QWidget* b) { return StackingOf(*a) < StackingOf(*b); });
    for (QWidget* window : windows)
        painter.drawPixmap(window->geometry().topLeft(), window->grab());
    return screen;
}

void DrawMarks(QImage& slide, const SlideMarks& marks)
{
    QPainter painter(&slide);
    painter.setRenderHint(QPainter::Antialiasing);
    std::vector<Box> free;
    if (marks.Finger && marks.ArrowTo) {
        DrawArrow(painter, *marks.Finger, *marks.ArrowTo);
        const QRect way = QRect(*marks.Finger, *marks.ArrowTo).normalized().adjusted(-12, -12, 12, 12);
        free.push_back(BoxOf(way));
    }
    if (marks.Finger) {
        const HandPlace hand = PlaceHand(marks.Finger->x(), marks.Finger->y());
        free.push_back(hand.box);
        DrawHand(painter, hand);
    }
    DrawBubble(painter, marks, free);
}

void SaveSlide(const QImage& slide, const QString& path, int most)
{
    QImageWriter writer(path, "png");
    writer.setCompression(100);
    if (!writer.write(WithFewColours(slide, most)))
        throw RunTimeError(Words::AsIs(path.toStdString() + " cannot be written."));
}

} // namespace sprout
