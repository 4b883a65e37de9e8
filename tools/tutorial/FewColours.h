// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>

namespace sprout {

/// The picture in at most 256 colours: a third of the bytes. The colours are the most frequent ones that differ from
/// each other; every pixel gets the closest. Edges stay as smooth as they look, and the windows' plain colours exact.
/// most: the greatest number of colours, 1 to 256.
[[nodiscard]] QImage WithFewColours(const QImage& picture, int most = 256);

} // namespace sprout
