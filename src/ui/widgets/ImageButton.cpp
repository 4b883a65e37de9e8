// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/ImageButton.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>

#include "ui/look/Look.h"
#include "ui/look/Palette.h"
#include "ui/widgets/ButtonScheme.h"
#include "ui/widgets/Hints.h"
#include "ui/words/FittingFont.h"
#include "ui/words/QtText.h"

namespace sprout {

namespace {

constexpr QSize kToolSize{56, 56};
constexpr QSize kTitleSize{22, 22};
constexpr QSize kLeastWordSize{96, 44};
constexpr int kBesideTheWord = 22;
constexpr int kGlyphSide = 26; ///< on a word plate
constexpr int kGlyphGap = 6;
constexpr qreal kGlyphShareOfTool = 0.86;

QString PlateName(Plate plate, ButtonFace face)
{
    const char* shape = plate == Plate::Tool ? "Tool" : plate == Plate::Word ? "Word" : "Title";
    return QStringLiteral("plates/%1%2").arg(QLatin1String(shape), QtText(FaceName(face)));
}

/// A word plate of any width: the left and right halves of the square artwork at the ends, with its middle column
/// stretched between them. Composed in whole device pixels, which avoids seams at any scale.
QPixmap WordPlate(const QPixmap& square, QSize size)
{
    const qreal ratio = square.devicePixelRatio();
    const int side = square.height();
    const int width = std::max(qRound(size.width() * ratio), side);
    const int half = side / 2;
    QPixmap source = square;
    source.setDevicePixelRatio(1);
    QPixmap plate(width, side);
    plate.fill(Qt::transparent);
    QPainter painter(&plate);
    painter.drawPixmap(QRect(0, 0, half, side), source, QRect(0, 0, half, side));
    painter.drawPixmap(QRect(half, 0, width - side, side), source, QRect(half, 0, 1, side));
    painter.drawPixmap(QRect(width - side + half, 0, side - half, side), source, QRect(half, 0, side - half, side));
    painter.end();
    plate.setDevicePixelRatio(ratio);
    return plate;
}

} // namespace

ImageButton::ImageButton(const ButtonRow& row, ButtonScheme& owner, int ordinal, QWidget* parent)
    : QAbstractButton(parent), scheme(owner), number(ordinal), plate(row.plate), plateColour(row.plateColour)
{
    setObjectName(QString::fromLatin1(row.name));
    setText(QtText(Words(row.spokenName)));
    setAccessibleName(text());
    SetHint(row.hint);
    if (row.glyph)
        glyph = QStringLiteral("buttons/") + QString::fromLatin1(row.glyph);
    else if (plate != Plate::Word)
        glyph = QStringLiteral("buttons/") + objectName();
    if (plate != Plate::Word)
        setToolTip(text());
    setFont(ButtonFont());
    setMouseTracking(true);
    // The pointer does not move the focus: a text box keeps the caret while a button is clicked.
    setFocusPolicy(Qt::TabFocus);
    setAttribute(Qt::WA_Hover, false);
    resize(ImageButton::sizeHint());
}

void ImageButton::SetHint(const Words& hint)
{
    SetHintOf(*this, hint);
}

void ImageButton::SetFace(ButtonFace newFace)
{
    face = newFace;
    update();
}

QSize ImageButton::sizeHint() const
{
    if (plate != Plate::Word)
        return plate == Plate::Tool ? kToolSize : kTitleSize;
    const int wordWidth = fontMetrics().horizontalAdvance(text());
    return {std::max(kLeastWordSize.width(), wordWidth + GlyphRoom() + 2 * kBesideTheWord), kLeastWordSize.height()};
}

int ImageButton::GlyphRoom() const
{
    return glyph.isEmpty() ? 0 : kGlyphSide + kGlyphGap;
}

int ImageButton::Lift() const
{
    const int step = height() >= 40 ? 2 : 1;
    if (face == ButtonFace::Raised)
        return -step;
    return face == ButtonFace::Pressed || face == ButtonFace::PressedOn ? step : 0;
}

void ImageButton::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (!isEnabled())
        painter.setOpacity(0.4);
    PaintPlate(painter);
    if (plate == Plate::Word)
        PaintWord(painter);
    else
        PaintGlyph(painter);
    if (hasFocus())
        PaintFocus(painter);
}

WantedArtwork ImageButton::PlateArtwork() const
{
    const QSize plateSize = plate == Plate::Word ? QSize(height(), height()) : size();
    return {PlateName(plate, face), plateSize, devicePixelRatioF(), plateColour};
}

WantedArtwork ImageButton::GlyphArtwork() const
{
    if (plate == Plate::Word)
        return {glyph, QSize(kGlyphSide, kGlyphSide), devicePixelRatioF()};
    // The rim of the tool plates stays free, so the ring of an active button is visible all around.
    const qreal share = plate == Plate::Tool ? kGlyphShareOfTool : 1;
    return {glyph, (QSizeF(size()) * share).toSize(), devicePixelRatioF()};
}

std::vector<WantedArtwork> ImageButton::Artworks() const
{
    std::vector<WantedArtwork> artworks{PlateArtwork()};
    if (!glyph.isEmpty())
        artworks.push_back(GlyphArtwork());
    return artworks;
}

void ImageButton::PaintPlate(QPainter& painter) const
{
    const QPixmap picture = Artwork(PlateArtwork());
    painter.drawPixmap(0, 0, plate == Plate::Word ? WordPlate(picture, size()) : picture);
}

void ImageButton::PaintGlyph(QPainter& painter) const
{
    const WantedArtwork artwork = GlyphArtwork();
    painter.drawPixmap((width() - artwork.size.width()) / 2, (height() - artwork.size.height()) / 2 + Lift(),
                       Artwork(artwork));
}

void ImageButton::PaintWord(QPainter& painter) const
{
    const QFont wordFont = FittingFont(font(), text(), width() - GlyphRoom() - kBesideTheWord);
    const int wordWidth = QFontMetrics(wordFont).horizontalAdvance(text());
    const int left = (width() - wordWidth - GlyphRoom()) / 2;
    if (!glyph.isEmpty())
        painter.drawPixmap(left, (height() - kGlyphSide) / 2 + Lift(), Artwork(GlyphArtwork()));
    painter.setPen(Qt::white);
    painter.setFont(wordFont);
    painter.drawText(QRect(left + GlyphRoom(), Lift(), wordWidth + 1, height()), Qt::AlignLeft | Qt::AlignVCenter,
                     text());
}

void ImageButton::PaintFocus(QPainter& painter) const
{
    painter.setBrush(Qt::NoBrush);
    if (plate == Plate::Word) {
        const QRectF inside = QRectF(rect()).adjusted(5, 6, -5, -6).translated(0, Lift());
        painter.setPen(QPen(kPaper, 2));
        painter.drawRoundedRect(inside, 9, 9);
        return;
    }
    // Light next to dark, so that one of them is visible on any background.
    const QRectF edge = QRectF(rect()).adjusted(1.5, 1.5, -1.5, -1.5);
    const qreal corner = std::min(edge.width(), edge.height()) / 4;
    painter.setPen(QPen(Qt::white, 3));
    painter.drawRoundedRect(edge, corner, corner);
    painter.setPen(QPen(kLink, 2));
    painter.drawRoundedRect(edge, corner, corner);
}

void ImageButton::enterEvent(QEnterEvent* event)
{
    scheme.ButtonHover(*this);
    QAbstractButton::enterEvent(event);
}

void ImageButton::mouseMoveEvent(QMouseEvent* event)
{
    scheme.ButtonHover(*this);
    QAbstractButton::mouseMoveEvent(event);
    event->accept(); // the widget below has a hint of its own
}

void ImageButton::mousePressEvent(QMouseEvent* event)
{
    scheme.ButtonPress(*this);
    QAbstractButton::mousePressEvent(event);
}

void ImageButton::mouseReleaseEvent(QMouseEvent* event)
{
    scheme.ButtonRelease(*this);
    QAbstractButton::mouseReleaseEvent(event);
}

void ImageButton::keyPressEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter)
        QAbstractButton::keyPressEvent(event);
    else if (!event->isAutoRepeat()) // a held key would answer the question that its first press opens
        click();
}

void ImageButton::focusInEvent(QFocusEvent* event)
{
    ShowHintOfFocus(*this, *event);
    QAbstractButton::focusInEvent(event);
}

void ImageButton::focusOutEvent(QFocusEvent* event)
{
    ShowHintOfFocus(*this, *event);
    QAbstractButton::focusOutEvent(event);
}

} // namespace sprout
