// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QPixmap>

#include <cstdint>
#include <vector>

#include "core/Song.h"
#include "main_window/rules/TrackGeometry.h"
#include "ui/look/Artwork.h"

namespace sprout {

// The pictures of the track canvas, drawn sharply for a pixel ratio.

inline constexpr int kTileWidth = 64;
inline constexpr int kBusyMarkWidth = 3;
/// Size of `TimeSlide`: all cells of a song plus a margin.
inline constexpr QSize kTimeSlideSize{3850, 15};
inline constexpr QSize kDeleteButtonPicSize{14, 16};
inline constexpr QSize kPlayPicSize{32, 32};
inline constexpr QSize kMeadowTileSize{512, kMeadowHeight};
inline constexpr QSize kHillsTileSize{1024, kHillsHeight};

/// The background of a row, by track type; unknown types look like music.
[[nodiscard]] QPixmap TrackBlankPic(std::int32_t trackType, qreal pixelRatio);
/// The same without a drawing, as a background for text.
[[nodiscard]] QPixmap TrackPlainPic(std::int32_t trackType, qreal pixelRatio);
/// The tile that paints a track, 64 x 32. tile: 0 for audio, 1 to 10 for music.
[[nodiscard]] QPixmap TrackDrawnPic(std::int32_t tile, qreal pixelRatio);
/// A time band cell in which some track is painted, 3 x 17. picture: 0 or 1.
[[nodiscard]] QPixmap BusyMarkPic(std::int32_t picture, qreal pixelRatio);
/// A picture of `art/pictures`.
[[nodiscard]] QPixmap CanvasPicture(const char* name, QSize size, qreal pixelRatio);

/// The artworks needed to draw a song of music tracks.
[[nodiscard]] std::vector<WantedArtwork> CanvasArtworks(qreal pixelRatio);

/// The tune's picture with a raised edge.
[[nodiscard]] QImage RaisedTunePicture(const Picture& picture);

} // namespace sprout
