// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRect>
#include <QRegion>
#include <QWidget>

namespace sprout {

/// Height of a window's title band. Positions inside a form count from its lower edge.
inline constexpr int kBandHeight = 26;
/// Radius of a form's corners.
inline constexpr int kFormCorner = 12;

/// An X server without a compositor shows transparent parts of a window as black, so its corners are cut off instead.
[[nodiscard]] bool FormCornersNeedMask();
/// What is left of a form without its corners.
[[nodiscard]] QRegion FormMask(const QRect& form);

/// Where the caption begins in the band: behind the logo.
[[nodiscard]] int CaptionLeft();

/// Draws a form's paper, its band with the logo, and its outline; and in its lower right corner a vine, unless a child
/// lies there.
void PaintBandedForm(QWidget& form);

} // namespace sprout
