// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/TrackScroll.h"

#include <QGuiApplication>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QWheelEvent>

#include <algorithm>
#include <array>

#include "main_window/rules/CellValues.h"
#include "ui/words/Texts.h"

namespace sprout {

namespace {

constexpr int kWheelNotch = 120;

struct ScrollKey {
    int key;
    Qt::Orientation bar;
    QAbstractSlider::SliderAction action;
};

constexpr std::array kScrollKeys{
    ScrollKey{Qt::Key_Up, Qt::Vertical, QAbstractSlider::SliderSingleStepSub},
    ScrollKey{Qt::Key_Down, Qt::Vertical, QAbstractSlider::SliderSingleStepAdd},
    ScrollKey{Qt::Key_PageUp, Qt::Vertical, QAbstractSlider::SliderPageStepSub},
    ScrollKey{Qt::Key_PageDown, Qt::Vertical, QAbstractSlider::SliderPageStepAdd},
    ScrollKey{Qt::Key_Left, Qt::Horizontal, QAbstractSlider::SliderSingleStepSub},
    ScrollKey{Qt::Key_Right, Qt::Horizontal, QAbstractSlider::SliderSingleStepAdd},
    ScrollKey{Qt::Key_Home, Qt::Horizontal, QAbstractSlider::SliderToMinimum},
    ScrollKey{Qt::Key_End, Qt::Horizontal, QAbstractSlider::SliderToMaximum},
};

/// Sets a scroll bar's range and value without signals, and returns the value.
std::int32_t FitScrollBar(QScrollBar& bar, const ScrollRange& range, std::int32_t first, int pageStep)
{
    const QSignalBlocker quiet(bar);
    bar.setEnabled(range.enabled);
    bar.setRange(1, range.maximum);
    bar.setPageStep(std::max(pageStep, 1));
    bar.setValue(first);
    return bar.value();
}

} // namespace

void TrackScroll::MakeBars(QWidget& canvas)
{
    vScroll = MakeBar(canvas, Qt::Vertical, &TrackView::FirstTrack);
    vScroll->setObjectName(QStringLiteral("TrackVScroll"));
    SetSpokenName(*vScroll, Words::Text("Scroll the tracks"));
    hScroll = MakeBar(canvas, Qt::Horizontal, &TrackView::FirstCell);
    hScroll->setObjectName(QStringLiteral("TrackHScroll"));
    SetSpokenName(*hScroll, Words::Text("Scroll through the song"));
    hScroll->setSingleStep(kCellsOfAGroup);
}

QScrollBar* TrackScroll::MakeBar(QWidget& canvas, Qt::Orientation orientation, std::int32_t TrackView::*first)
{
    auto* bar = new QScrollBar(orientation, &canvas);
    connect(bar, &QScrollBar::valueChanged, this, [this, orientation, first](int value) {
        view.*first = value;
        if (orientation == Qt::Horizontal)
            EndFollowing();
        Q_EMIT Scrolled();
    });
    return bar;
}

void TrackScroll::PlaceBars(const QRect& surface)
{
    vScroll->setGeometry(surface.x() + surface.width(), surface.y(), kScrollBarBreadth, surface.height());
    hScroll->setGeometry(surface.x(), surface.y() + surface.height(), surface.width(), kScrollBarBreadth);
    view.trackPicWidth = surface.width();
    view.trackPicHeight = surface.height();
    view.titlePicHeight = surface.height();
}

void TrackScroll::FitSong(std::int32_t trackCount, std::int32_t songCells)
{
    view = ClampedView(view, trackCount);
    const int rowsInView = (view.trackPicHeight - kFirstRowTop) / kRowHeight;
    const int cellsInView = view.trackPicWidth / kCellWidth;
    view.FirstTrack = FitScrollBar(*vScroll, TrackScrollRange(view, trackCount), view.FirstTrack, rowsInView - 1);
    view.FirstCell =
        FitScrollBar(*hScroll, CellScrollRange(view, songCells), view.FirstCell, cellsInView - kCellsOfAGroup);
}

void TrackScroll::GoToStart()
{
    view.FirstTrack = 1;
    view.FirstCell = 1;
}

void TrackScroll::GoToAdded(std::int32_t trackCount)
{
    view.FirstTrack = FirstTrackForAdded(view, trackCount);
}

void TrackScroll::ShowRow(std::int32_t track)
{
    const std::int32_t rowsInView = (view.trackPicHeight - kFirstRowTop) / kRowHeight;
    if (track < view.FirstTrack)
        vScroll->setValue(track);
    else if (track >= view.FirstTrack + rowsInView)
        vScroll->setValue(track - std::max(rowsInView, 1) + 1);
}

void TrackScroll::ShowCell(std::int32_t cell)
{
    const std::int32_t cellsInView = view.trackPicWidth / kCellWidth;
    if (cell < view.FirstCell)
        hScroll->setValue(cell - kCellsOfAGroup);
    else if (cell >= view.FirstCell + cellsInView)
        hScroll->setValue(cell - std::max(cellsInView - kCellsOfAGroup, 0));
}

void TrackScroll::BeginFollowing()
{
    followed = FollowedEdges::Both;
}

void TrackScroll::EndFollowing()
{
    followed.reset();
}

void TrackScroll::FollowMarker(std::int32_t cell)
{
    if (!followed || QGuiApplication::mouseButtons() != Qt::NoButton)
        return;
    const std::int32_t first = FollowingFirstCell(view, cell, *followed, hScroll->maximum());
    followed = FollowedEdges::Right;
    if (first == view.FirstCell)
        return;
    view.FirstCell = first;
    Q_EMIT Scrolled();
}

void TrackScroll::TurnWheel(QWheelEvent& event)
{
    QPoint turned = event.angleDelta();
    if (event.modifiers() & Qt::ShiftModifier)
        turned = QPoint(turned.x() + turned.y(), 0);
    wheelRest += turned;
    const QPoint notches(wheelRest.x() / kWheelNotch, wheelRest.y() / kWheelNotch);
    wheelRest -= QPoint(notches.x() * kWheelNotch, notches.y() * kWheelNotch);
    vScroll->setValue(vScroll->value() - notches.y());
    hScroll->setValue(hScroll->value() - notches.x() * kCellsOfAGroup);
    event.accept();
}

bool TrackScroll::PressKey(int key)
{
    const auto* row = std::find_if(kScrollKeys.begin(), kScrollKeys.end(),
                                   [key](const ScrollKey& candidate) { return candidate.key == key; });
    if (row == kScrollKeys.end())
        return false;
    (row->bar == Qt::Vertical ? vScroll : hScroll)->triggerAction(row->action);
    return true;
}

} // namespace sprout
