// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QPixmap>

#include <cstdint>
#include <vector>

#include "core/Song.h"
#include "main_window/rules/TrackGeometry.h"
#include "ui/Artwork.h"

namespace sprout {

// The pictures of the track canvas, drawn sharp for a pixel ratio.

inline constexpr int kTileWidth = 64;
inline constexpr int kBusyMarkWidth = 3;
/// Of `TimeSlide`: the whole of a song's cells and a margin.
inline constexpr QSize kTimeSlideSize{3850, 15};
inline constexpr QSize kDeleteButtonPicSize{14, 16};
inline constexpr QSize kPlayPicSize{32, 32};
inline constexpr QSize kMeadowTileSize{512, kMeadowHeight};
inline constexpr QSize kHillsTileSize{1024, kHillsHeight};

/// The background of a row by the kind of its track; of kinds that do not exist, that of music.
[[nodiscard]] QPixmap TrackBlankPic(std::int32_t trackType, qreal pixelRatio);
/// The same without a drawing, for words to stand on.
[[nodiscard]] QPixmap TrackPlainPic(std::int32_t trackType, qreal pixelRatio);
/// What paints a track, 64 x 32. tile: 0 for audio, 1 to 10 for music.
[[nodiscard]] QPixmap TrackDrawnPic(std::int32_t tile, qreal pixelRatio);
/// A cell of the time band in which some track is painted, 3 x 17. picture: 0 or 1.
[[nodiscard]] QPixmap BusyMarkPic(std::int32_t picture, qreal pixelRatio);
/// A picture of `art/pictures`.
[[nodiscard]] QPixmap CanvasPicture(const char* name, QSize size, qreal pixelRatio);

/// What a song of music tracks is drawn with.
[[nodiscard]] std::vector<WantedArtwork> CanvasArtworks(qreal pixelRatio);

/// The tune's picture with a raised edge.
[[nodiscard]] QImage RaisedTunePicture(const Picture& picture);

} // namespace sprout
