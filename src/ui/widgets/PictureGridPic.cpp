// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/PictureGridPic.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <QWheelEvent>

#include "ui/widgets/GridKeys.h"
#include "ui/widgets/PictureGridAccessible.h"
#include "ui/words/QtText.h"
#include "ui/words/QtTip.h"

namespace sprout {

PictureGridPic::PictureGridPic(int columnCount, QWidget* parent)
    : QWidget(parent),
      columns(columnCount),
      frame(new GridFrame(parent)),
      vScroll1(new GridScrollBar(parent)),
      blinkSelectImg(new SelectionFrame(this))
{
    InstallPictureGridAccessible();
    raise();
    connect(vScroll1, &GridScrollBar::Scrolled, this, &PictureGridPic::ScrollTo);
    blinkSelectImg->installEventFilter(this);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    // The menu key also arrives as a key press, the right mouse button as a mouse press.
    setContextMenuPolicy(Qt::PreventContextMenu);
}

QRect PictureGridPic::PlaceAt(QPoint frameAt, int rows)
{
    const GridPlaces places = GridPlacesAt(frameAt, columns, rows);
    frame->setGeometry(places.frame);
    setGeometry(places.grid);
    vScroll1->setGeometry(places.scroll);
    RefreshShowAllPic();
    return places.frame;
}

void PictureGridPic::SetEntries(const std::vector<GridEntry>& newEntries)
{
    entries.Set(newEntries);
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

void PictureGridPic::SetLines(const std::vector<Words>& newLines)
{
    lines.clear();
    for (const Words& line : newLines)
        lines << QtText(line);
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

int PictureGridPic::IndexAt(QPoint point) const
{
    return HitTestGrid(Grid(), point.x(), point.y());
}

void PictureGridPic::RefreshShowAllPic()
{
    topRow = vScroll1->Fit(Grid());
    PlaceFrame();
    update();
}

void PictureGridPic::PlaceFrame()
{
    blinkSelectImg->setToolTip(HasChoice() ? QtTip(Entry(selected).Name) : QString());
    if (!HasChoice() || !IsInGridView(Grid(), selected))
        return blinkSelectImg->Leave();
    const GridPlace place = PlaceInGrid(Grid(), selected);
    blinkSelectImg->Surround({place.x, place.y});
}

void PictureGridPic::ScrollTo(int row)
{
    topRow = row;
    RefreshShowAllPic();
    Q_EMIT Scrolled(row);
}

void PictureGridPic::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    painter.fillRect(event->rect(), Qt::white);
    if (Count() == 0)
        PaintEmptyGrid(painter, size(), lines);
    entries.Paint(painter, Grid(), selected, event->rect());
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
    Q_EMIT Pressed(IndexAt(event->position().toPoint()), event->button(), event->globalPosition().toPoint());
}

/// Between the two presses the selection frame appears over the picture.
void PictureGridPic::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && HasChoice() && IndexAt(event->position().toPoint()) == selected)
        Q_EMIT DoubleClicked();
    else
        mousePressEvent(event);
}

void PictureGridPic::mouseMoveEvent(QMouseEvent* event)
{
    const int index = IndexAt(event->position().toPoint());
    setToolTip(index == 0 ? QString() : QtTip(Entry(index).Name));
    Q_EMIT Hovered(index);
}

/// A press on the selection frame counts as a press on its middle.
bool PictureGridPic::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != blinkSelectImg)
        return QWidget::eventFilter(watched, event);
    if (event->type() == QEvent::MouseButtonPress) {
        const auto& press = *static_cast<QMouseEvent*>(event);
        setFocus(Qt::MouseFocusReason);
        Q_EMIT Pressed(IndexAt(blinkSelectImg->geometry().center()), press.button(), press.globalPosition().toPoint());
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
    const GridKey key = GridKeyOf(*event);
    switch (key.asks) {
    case GridKey::Asks::Nothing:
        return QWidget::keyPressEvent(event);
    case GridKey::Asks::NoRepeats:
        return;
    case GridKey::Asks::Step:
        return StepTo(key.step);
    case GridKey::Asks::Choice:
        return PressSelected(Qt::LeftButton);
    case GridKey::Asks::Menu:
        return PressSelected(Qt::RightButton);
    case GridKey::Asks::Deletion:
        if (HasChoice())
            Q_EMIT DeleteWanted();
    }
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
    frame->ShowFocus(true);
    QWidget::focusInEvent(event);
    TellChosenPicture(*this);
}

void PictureGridPic::focusOutEvent(QFocusEvent* event)
{
    frame->ShowFocus(false);
    QWidget::focusOutEvent(event);
}

} // namespace sprout
