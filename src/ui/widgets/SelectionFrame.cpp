// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/SelectionFrame.h"

#include <QPainter>

#include <chrono>

#include "base/Picture.h"
#include "ui/look/Artwork.h"
#include "ui/rules/PictureGrid.h"

namespace sprout {

namespace {

constexpr int kSelectionSide = kPictureSide + 2 * kGridInset;
constexpr int kFrameOutOfSight = -kSelectionSide - kGridInset;
constexpr std::chrono::milliseconds kBlinkEvery{400};

} // namespace

SelectionFrame::SelectionFrame(QWidget* parent) : QWidget(parent), blinkSelectedTimer(new QTimer(this))
{
    setObjectName(QStringLiteral("BlinkSelectImg"));
    setGeometry(kFrameOutOfSight, kFrameOutOfSight, kSelectionSide, kSelectionSide);
    blinkSelectedTimer->setObjectName(QStringLiteral("BlinkSelectedTimer"));
    blinkSelectedTimer->setInterval(kBlinkEvery);
    connect(blinkSelectedTimer, &QTimer::timeout, this, &SelectionFrame::Blink);
}

void SelectionFrame::Surround(QPoint picture)
{
    move(picture - QPoint(kGridInset, kGridInset));
    ticks = 0;
    ShowPhase(0);
    blinkSelectedTimer->start();
}

void SelectionFrame::Leave()
{
    move(kFrameOutOfSight, kFrameOutOfSight);
    blinkSelectedTimer->stop();
}

/// The first artwork stays for two ticks at first.
void SelectionFrame::Blink()
{
    ShowPhase(ticks++ % 2);
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

} // namespace sprout
