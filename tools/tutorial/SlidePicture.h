// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QPoint>
#include <QRect>
#include <QString>

#include <optional>
#include <vector>

namespace sprout {

/// What is drawn on top of the windows. All places are on the screen.
struct SlideMarks {
    QString Text;                  ///< of the bubble
    QRect PointsAt;                ///< where the bubble's tail ends; nothing for a bubble without a tail
    std::vector<QRect> Others;     ///< what the bubble should not cover
    std::optional<QPoint> Finger;  ///< where the hand points
    std::optional<QPoint> ArrowTo; ///< where the hand drags to
};

/// All visible windows as they stand on the screen, in its pixels.
[[nodiscard]] QImage GrabScreen();

void DrawMarks(QImage& slide, const SlideMarks& marks);

/// Writes a PNG file that is as small as this can be made. most: its colours. Throws `RunTimeError`.
void SaveSlide(const QImage& slide, const QString& path, int most = 256);

} // namespace sprout
