// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

#include "core/Song.h"
#include "main_window/TrackSurface.h"

namespace sprout {

/// Paints the row of a track on the title strip: its background across the strip, its picture, its number, and what its
/// delete and play buttons look like while they do not float.
///
/// rowTop: top of the row. pixelRatio: that of the painter.
void PaintTitleRow(SurfacePainter& painter, const Track& track, std::int32_t number, std::int32_t rowTop,
                   qreal pixelRatio);

} // namespace sprout
