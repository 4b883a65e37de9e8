// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPoint>

#include <cstdint>
#include <span>

#include "core/Song.h"
#include "tune_window/ArtImage.h"
#include "tune_window/rules/StepLayout.h"

namespace sprout {

/// The handle at the end of a step's bar, `DummyDuration`: appears when the pointer is over the bar, and drags its end.
class DurationHandle : public ArtImage {
    Q_OBJECT

public:
    explicit DurationHandle(QWidget* surface);

    /// Appears at the end of the bar at a point of the surface, if there is one. bars: from 1.
    void OfferAt(QPoint place, std::span<const DurationBar> bars, const Tune& tune);

    /// True if the point of the surface is on the handle.
    [[nodiscard]] bool IsAt(QPoint place) const { return !isHidden() && geometry().contains(place); }

    /// The step whose bar it is on.
    [[nodiscard]] std::int32_t Step() const { return step; }

    /// Starts a drag; the handle itself disappears.
    void BeginDrag(QPoint place);
    [[nodiscard]] bool IsDragged() const { return DurationDragging; }
    /// Returns whether it was dragged.
    bool EndDrag();

    /// Pixels from where the bar last changed.
    [[nodiscard]] std::int32_t DraggedBy(QPoint place) const { return place.x() - DragStartX; }
    /// The bar has changed here.
    void HoldAt(QPoint place) { DragStartX = place.x(); }

private:
    std::int32_t step = 0;
    std::int32_t DragStartX = 0;
    bool DurationDragging = false;
};

} // namespace sprout
