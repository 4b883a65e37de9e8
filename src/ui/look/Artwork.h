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

/// An artwork at a size in logical pixels, drawn sharply for a screen's pixel ratio. Each one is drawn once and kept.
///
/// name: path below art/ without the file extension, e.g. "buttons/PlayAllBtn"; an unknown name gives an empty pixmap.
/// inPlaceOfDeepLeaf: replaces that one colour, for plates that come in several colours.
[[nodiscard]] QPixmap Artwork(const QString& name, QSize size, qreal pixelRatio, const QColor& inPlaceOfDeepLeaf = {});

/// The arguments of a call of `Artwork`.
struct WantedArtwork {
    QString name;
    QSize size;
    qreal pixelRatio = 1;
    QColor inPlaceOfDeepLeaf{};
};
[[nodiscard]] QPixmap Artwork(const WantedArtwork& wanted);

/// Draws artworks in a background thread. `Artwork` takes what is finished, waits for the one that is being drawn, and
/// draws the others itself.
void DrawArtworkAhead(const std::vector<WantedArtwork>& wanted);

/// A 32 x 32 artwork as a song picture, opaque on white.
[[nodiscard]] Picture ArtworkPicture(const QString& name);

/// A song picture, converted for drawing.
[[nodiscard]] QImage ToImage(const Picture& picture);

} // namespace sprout
