// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/PictureGridPic.h"

#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QToolTip>
#include <QWheelEvent>

#include <algorithm>
#include <array>
#include <chrono>

#include "ui/Artwork.h"
#include "ui/Look.h"
#include "ui/Palette.h"
#include "ui/PictureGridAccessible.h"
#include "ui/QtText.h"
#include "ui/QtTip.h"

namespace sprout {

namespace {

constexpr int kSelectionSide = kPictureSide + 2 * kGridInset;
constexpr int kFrameOutOfSight = -kSelectionSide - kGridInset;
constexpr int kGridEdge = 2;   // makes the margins of the last column and row as wide as those of the first
constexpr int kGridAround = 5; // from the grid to the outer edge of its frame
constexpr int kGridScrollWidth = 18;
constexpr int kGridLineLeft = 10;
constexpr int kGridLineHeight = 28;
constexpr int kMostGridImageSide = 4 * kPictureSide; // enough for every screen
constexpr std::chrono::milliseconds kBlinkEvery{400};

QSize GridSize(int columns, int rows)
{
    return {columns * kGridCell + kGridEdge, rows * kGridCell + kGridEdge};
}

/// Shrinks a large picture once instead of at every drawing.
QImage GridImage(const Picture& picture)
{
    QImage image = ToImage(picture);
    if (image.width() <= kMostGridImageSide && image.height() <= kMostGridImageSide)
        return image;
    return image.scaled(kMostGridImageSide, kMostGridImageSide, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

/// The pixels of a small picture stay sharp if each of them covers whole screen pixels.
bool NeedsSmoothing(const QImage& image, qreal pixelRatio)
{
    const qreal side = kPictureSide * pixelRatio;
    const auto fits = [side](int pixels) { return pixels > 0 && side == qRound(side / pixels) * qreal(pixels); };
    return !fits(image.width()) || !fits(image.height());
}

} // namespace

SelectionFrame::SelectionFrame(QWidget* parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("BlinkSelectImg"));
    setGeometry(kFrameOutOfSight, kFrameOutOfSight, kSelectionSide, kSelectionSide);
}

void SelectionFrame::ShowPhase(int newPhase)
{
    phase = newPhase;
    update();
}

void SelectionFrame::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.drawPixmap(0, 0,
                       Artwork(QStringLiteral("pictures/BlinkSelectBakImg%1").arg(phase), size(), devicePixelRatioF()));
}

PictureGridPic::PictureGridPic(int columnCount, QWidget* parent)
    : QWidget(parent),
      columns(columnCount),
      frame(new QFrame(parent)),
      vScroll1(new QScrollBar(Qt::Vertical, parent)),
      blinkSelectImg(new SelectionFrame(this)),
      blinkSelectedTimer(new QTimer(this))
{
    InstallPictureGridAccessible();
    frame->setObjectName(QStringLiteral("ShowAllFrame"));
    raise();
    ShowFocus(false);
    vScroll1->setObjectName(QStringLiteral("VScroll1"));
    vScroll1->setAccessibleName(tr("Scroll the pictures"));
    vScroll1->setMinimum(1);
    connect(vScroll1, &QScrollBar::valueChanged, this, &PictureGridPic::ScrollTo);
    blinkSelectImg->installEventFilter(this);
    blinkSelectedTimer->setObjectName(QStringLiteral("BlinkSelectedTimer"));
    blinkSelectedTimer->setInterval(kBlinkEvery);
    connect(blinkSelectedTimer, &QTimer::timeout, this, &PictureGridPic::Blink);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
}

QSize PictureGridPic::FrameSize(int columnCount, int rows)
{
    return GridSize(columnCount, rows) + QSize(kGridScrollWidth + 3 * kGridAround, 2 * kGridAround);
}

QRect PictureGridPic::PlaceAt(QPoint frameAt, int rows)
{
    const QRect place(frameAt, FrameSize(columns, rows));
    frame->setGeometry(place);
    setGeometry({frameAt + QPoint(kGridAround, kGridAround), GridSize(columns, rows)});
    vScroll1->setGeometry(geometry().right() + 1 + kGridAround, y(), kGridScrollWidth, height());
    RefreshShowAllPic();
    return place;
}

void PictureGridPic::SetEntries(const std::vector<GridEntry>& newEntries)
{
    entries.clear();
    entries.reserve(newEntries.size());
    for (const GridEntry& entry : newEntries)
        entries.push_back({entry, {}});
    update();
}

void PictureGridPic::SetSelected(int index)
{
    const bool isNew = index != selected;
    selected = index;
    update();
    if (isNew)
        TellChosenPicture(*this);
}

void PictureGridPic::SetTopRow(int row)
{
    topRow = row;
    update();
}

void PictureGridPic::BringIntoView(int index)
{
    if (index >= 1 && index <= Count())
        vScroll1->setValue(TopRowShowing(Grid(), index));
}

void PictureGridPic::SetLines(const QStringList& newLines)
{
    lines = newLines;
    update();
}

PictureGrid PictureGridPic::Grid() const
{
    return {columns, Count(), topRow, height()};
}

bool PictureGridPic::HasChoice() const
{
    return selected >= 1 && selected <= Count();
}

void PictureGridPic::RefreshShowAllPic()
{
    SetScrollRange();
    PlaceFrame();
    update();
}

void PictureGridPic::SetScrollRange()
{
    const QScopedValueRollback guard(scrollGuard, true);
    const GridScroll range = GridScrollRange(Grid());
    topRow = std::clamp(topRow, 1, range.maximum);
    vScroll1->setMaximum(range.maximum);
    vScroll1->setPageStep(std::max(height() / kGridCell, 1));
    vScroll1->setValue(topRow);
    vScroll1->setEnabled(range.enabled);
    vScroll1->setVisible(range.enabled);
}

void PictureGridPic::PlaceFrame()
{
    blinkSelectImg->setToolTip(HasChoice() ? QtTip(Entry(selected).Name) : QString());
    if (!HasChoice() || !IsInGridView(Grid(), selected)) {
        blinkSelectImg->move(kFrameOutOfSight, kFrameOutOfSight);
        blinkSelectedTimer->stop();
        return;
    }
    const GridPlace place = PlaceInGrid(Grid(), selected);
    blinkSelectImg->move(place.x - kGridInset, place.y - kGridInset);
    blinkPhase = -1;
    blinkSelectImg->ShowPhase(0);
    blinkSelectedTimer->start();
}

void PictureGridPic::Blink()
{
    if (++blinkPhase > 1)
        blinkPhase = 0;
    blinkSelectImg->ShowPhase(blinkPhase);
}

void PictureGridPic::ScrollTo(int row)
{
    if (scrollGuard)
        return;
    topRow = row;
    RefreshShowAllPic();
    Q_EMIT Scrolled(row);
}

void PictureGridPic::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    painter.fillRect(event->rect(), Qt::white);
    if (entries.empty())
        PaintLines(painter);
    const PictureGrid grid = Grid();
    const int first = (topRow - 1) * columns + 1;
    for (int index = std::max(first, 1); index <= grid.count && IsInGridView(grid, index); ++index) {
        const GridPlace place = PlaceInGrid(grid, index);
        if (event->rect().intersects(QRect(place.x - 1, place.y - 1, kPictureSide + 2, kPictureSide + 2)))
            PaintEntry(painter, index);
    }
}

void PictureGridPic::PaintEntry(QPainter& painter, int index)
{
    Shown& shown = entries[static_cast<std::size_t>(index - 1)];
    if (shown.image.isNull())
        shown.image = GridImage(shown.entry.Picture);
    const GridPlace at = PlaceInGrid(Grid(), index);
    const QRect place(at.x, at.y, kPictureSide, kPictureSide);
    if (index != selected)
        painter.fillRect(place.adjusted(-1, -1, 1, 1), shown.entry.Original ? kOriginalBorder : kUserBorder);
    painter.fillRect(place, Qt::white);
    painter.setRenderHint(QPainter::SmoothPixmapTransform, NeedsSmoothing(shown.image, devicePixelRatioF()));
    painter.drawImage(place, shown.image);
}

void PictureGridPic::PaintLines(QPainter& painter) const
{
    painter.setFont(LabelFont());
    painter.setPen(kBark);
    const int room = width() - 2 * kGridLineLeft;
    const int inset = kGridInset / 2;
    const int lineHeight =
        std::min(kGridLineHeight, (height() - 2 * inset) / std::max(1, static_cast<int>(lines.size())));
    int top = inset;
    for (const QString& line : lines) {
        painter.drawText(QRect(kGridLineLeft, top, room, lineHeight), Qt::AlignLeft | Qt::AlignVCenter,
                         painter.fontMetrics().elidedText(line, Qt::ElideMiddle, room));
        top += lineHeight;
    }
}

bool PictureGridPic::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip && toolTip().isEmpty()) {
        QToolTip::hideText();
        return true;
    }
    return QWidget::event(event);
}

void PictureGridPic::mousePressEvent(QMouseEvent* event)
{
    const QPoint at = event->position().toPoint();
    Q_EMIT Pressed(HitTestGrid(Grid(), at.x(), at.y()), event->button(), event->globalPosition().toPoint());
}

/// Between the two presses the selection frame appears over the picture.
void PictureGridPic::mouseDoubleClickEvent(QMouseEvent* event)
{
    const QPoint at = event->position().toPoint();
    if (event->button() == Qt::LeftButton && HasChoice() && HitTestGrid(Grid(), at.x(), at.y()) == selected)
        Q_EMIT DoubleClicked();
    else
        mousePressEvent(event);
}

void PictureGridPic::mouseMoveEvent(QMouseEvent* event)
{
    const QPoint at = event->position().toPoint();
    const int index = HitTestGrid(Grid(), at.x(), at.y());
    setToolTip(index == 0 ? QString() : QtTip(Entry(index).Name));
    Q_EMIT Hovered(index);
}

/// A press on the selection frame counts as a press on its middle.
bool PictureGridPic::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != blinkSelectImg)
        return QWidget::eventFilter(watched, event);
    if (event->type() == QEvent::MouseButtonPress) {
        const QPoint middle = blinkSelectImg->geometry().center();
        const auto& press = *static_cast<QMouseEvent*>(event);
        setFocus(Qt::MouseFocusReason);
        Q_EMIT Pressed(HitTestGrid(Grid(), middle.x(), middle.y()), press.button(), press.globalPosition().toPoint());
        return true;
    }
    if (event->type() == QEvent::MouseButtonDblClick) {
        const bool isLeft = static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton;
        if (isLeft)
            Q_EMIT DoubleClicked();
        return isLeft;
    }
    return false;
}

void PictureGridPic::wheelEvent(QWheelEvent* event)
{
    vScroll1->event(event);
    event->accept();
}

void PictureGridPic::keyPressEvent(QKeyEvent* event)
{
    static constexpr std::array<std::pair<Qt::Key, GridStep>, 8> steps{{{Qt::Key_Left, GridStep::Left},
                                                                        {Qt::Key_Right, GridStep::Right},
                                                                        {Qt::Key_Up, GridStep::Up},
                                                                        {Qt::Key_Down, GridStep::Down},
                                                                        {Qt::Key_PageUp, GridStep::PageUp},
                                                                        {Qt::Key_PageDown, GridStep::PageDown},
                                                                        {Qt::Key_Home, GridStep::First},
                                                                        {Qt::Key_End, GridStep::Last}}};
    for (const auto& [key, step] : steps)
        if (event->key() == key)
            return StepTo(step);
    if (event->key() == Qt::Key_Delete) {
        if (HasChoice() && !event->isAutoRepeat())
            Q_EMIT DeleteWanted();
        return;
    }
    const bool asksForMenu =
        event->key() == Qt::Key_Menu || (event->key() == Qt::Key_F10 && event->modifiers().testFlag(Qt::ShiftModifier));
    if (event->key() != Qt::Key_Space && !asksForMenu)
        return QWidget::keyPressEvent(event);
    if (!event->isAutoRepeat()) // holding the key must not restart the sound again and again
        PressSelected(asksForMenu ? Qt::RightButton : Qt::LeftButton);
}

/// The menu key also arrives as a key press, the right mouse button as a mouse press.
void PictureGridPic::contextMenuEvent(QContextMenuEvent* event)
{
    event->accept();
}

void PictureGridPic::StepTo(GridStep step)
{
    const int index = NeighbourInGrid(Grid(), HasChoice() ? selected : 0, step);
    if (index == 0)
        return;
    BringIntoView(index);
    if (index != selected)
        Q_EMIT Pressed(index, Qt::LeftButton, MiddleOf(index));
}

void PictureGridPic::PressSelected(Qt::MouseButton button)
{
    if (!HasChoice())
        return;
    BringIntoView(selected);
    Q_EMIT Pressed(selected, button, MiddleOf(selected));
}

QPoint PictureGridPic::MiddleOf(int index) const
{
    const GridPlace place = PlaceInGrid(Grid(), index);
    return mapToGlobal(QPoint(place.x + kPictureSide / 2, place.y + kPictureSide / 2));
}

void PictureGridPic::focusInEvent(QFocusEvent* event)
{
    ShowFocus(true);
    QWidget::focusInEvent(event);
    TellChosenPicture(*this);
}

void PictureGridPic::focusOutEvent(QFocusEvent* event)
{
    ShowFocus(false);
    QWidget::focusOutEvent(event);
}

void PictureGridPic::ShowFocus(bool focused)
{
    frame->setStyleSheet(QStringLiteral("#ShowAllFrame { background: white; border: 2px solid %1; border-radius: 8px }")
                             .arg((focused ? kLink : kStone).name()));
}

} // namespace sprout
