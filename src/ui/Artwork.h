// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QImage>
#include <QPixmap>
#include <QSize>
#include <QString>

#include <vector>

#include "base/Picture.h"

namespace sprout {

/// An artwork at a size in logical pixels, drawn sharp for a screen's pixel ratio. Each is drawn once and kept.
///
/// name: path below art/ without its ending, "buttons/PlayAllBtn"; an unknown name gives an empty pixmap.
/// inPlaceOfDeepLeaf: takes the place of that one colour, for plates that come in several.
[[nodiscard]] QPixmap Artwork(const QString& name, QSize size, qreal pixelRatio, const QColor& inPlaceOfDeepLeaf = {});

/// What `Artwork` is asked for.
struct WantedArtwork {
    QString name;
    QSize size;
    qreal pixelRatio = 1;
    QColor inPlaceOfDeepLeaf{};
};
[[nodiscard]] QPixmap Artwork(const WantedArtwork& wanted);

/// Draws artworks in a thread of its own while the program goes on. `Artwork` takes what is drawn, waits for the one
/// that is just being drawn, and draws the others itself.
void DrawArtworkAhead(const std::vector<WantedArtwork>& wanted);

/// A 32 x 32 artwork as a picture of the song, opaque on white.
[[nodiscard]] Picture ArtworkPicture(const QString& name);

/// A picture of the song for drawing.
[[nodiscard]] QImage ToImage(const Picture& picture);

} // namespace sprout
