// SPDX-License-Identifier: GPL-3.0-or-later
#include "tune_window/DurationHandle.h"

#include <utility>

namespace sprout {

DurationHandle::DurationHandle(QWidget* surface)
    : ArtImage("DummyDuration", QSize(kDurationRightWidth, kBarHeight), surface)
{
    hide();
}

void DurationHandle::OfferAt(QPoint place, std::span<const DurationBar> bars, const Tune& tune)
{
    if (!IsOctave(StepZoneAt(place.y())))
        return;
    const std::int32_t found = BarAt(bars, tune, place.x(), place.y());
    if (found == 0)
        return;
    step = found;
    const DurationBar& bar = bars[static_cast<std::size_t>(found)];
    move(bar.handleX, bar.handleY);
    show();
}

void DurationHandle::BeginDrag(QPoint place)
{
    DurationDragging = true;
    DragStartX = place.x();
    hide();
}

bool DurationHandle::EndDrag()
{
    return std::exchange(DurationDragging, false);
}

} // namespace sprout
