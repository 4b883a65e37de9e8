// SPDX-License-Identifier: GPL-3.0-or-later
#include "tune_window/ArtImage.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>

#include "ui/look/Artwork.h"

namespace sprout {
namespace {

TEST(ArtImage, ShowsTheArtworkOfItsName)
{
    QWidget window;
    ArtImage image("PlayingStepImg", QSize(30, 16), &window);
    EXPECT_EQ(image.size(), QSize(30, 16));
    EXPECT_EQ(window.findChild<QWidget*>(QStringLiteral("PlayingStepImg")), &image);
    EXPECT_TRUE(image.testAttribute(Qt::WA_TransparentForMouseEvents));
    QImage expected(image.size(), QImage::Format_ARGB32_Premultiplied);
    expected.fill(Qt::transparent);
    const QImage blank = expected;
    QImage drawn = expected;
    const QPixmap artwork = Artwork(QStringLiteral("pictures/PlayingStepImg"), image.size(), 1);
    QPainter(&expected).drawPixmap(0, 0, artwork);
    image.render(&drawn, {}, {}, QWidget::RenderFlags());
    EXPECT_EQ(drawn, expected);
    EXPECT_NE(drawn, blank);
}

} // namespace
} // namespace sprout
