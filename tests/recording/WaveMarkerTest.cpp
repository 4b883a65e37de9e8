// SPDX-License-Identifier: GPL-3.0-or-later
#include "recording/WaveMarker.h"

#include <gtest/gtest.h>

#include <QImage>

namespace sprout {
namespace {

TEST(WaveMarker, IsAShapeOfOneColourThatLetsTheMouseThrough)
{
    QWidget under;
    under.resize(20, 20);
    WaveMarker marker("PlayPosShp", QColor(10, 20, 30), &under);
    marker.setGeometry(5, 0, 2, 20);
    const QImage shown = under.grab().toImage();
    EXPECT_EQ(shown.pixelColor(5, 0), QColor(10, 20, 30));
    EXPECT_EQ(shown.pixelColor(6, 19), QColor(10, 20, 30));
    EXPECT_NE(shown.pixelColor(7, 10), QColor(10, 20, 30));
    EXPECT_TRUE(marker.testAttribute(Qt::WA_TransparentForMouseEvents));
    EXPECT_EQ(marker.objectName(), QStringLiteral("PlayPosShp"));
}

} // namespace
} // namespace sprout
