// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>

#include "recording/rules/WavePoints.h"

namespace sprout {

/// Paints the drawing of a wave in the colours of the settings. Positions are rounded to whole device pixels, so lines
/// are sharp on every screen.
///
/// size: in logical pixels. ratio: device pixels per logical pixel.
[[nodiscard]] QImage PaintWave(const WaveDrawing& drawing, QSize size, double ratio);

} // namespace sprout
