// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/TrackSurface.h"

#include <QCoreApplication>
#include <QEventLoop>

#include <gtest/gtest.h>

#include "ui/look/Artwork.h"

namespace sprout {
namespace {

QImage Canvas(int width, int height)
{
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(Qt::white);
    return image;
}

int BlackColumns(const QImage& image, int y)
{
    int count = 0;
    for (int x = 0; x < image.width(); ++x)
        count += image.pixelColor(x, y) == QColor(Qt::black);
    return count;
}

TEST(SurfacePainter, FillsWholeDevicePixelsAtAnyRatio)
{
    for (const auto& [ratio, columns] : {std::pair{1.0, 3}, std::pair{2.0, 6}, std::pair{1.5, 4}}) {
        QImage canvas = Canvas(40, 20);
        SurfacePainter(canvas, ratio).Fill(QRect(1, 0, 3, 4), Qt::black); // 1.5 and 6 round to 2 and 6
        EXPECT_EQ(BlackColumns(canvas, 0), columns) << ratio;
    }
}

TEST(SurfacePainter, LeavesNoSeamBetweenNeighbours)
{
    for (const qreal ratio : {1.25, 1.5, 1.75, 2.0}) {
        QImage canvas = Canvas(200, 10);
        SurfacePainter painter(canvas, ratio);
        for (int x = 0; x < 90; x += 3)
            painter.Fill(QRect(x, 0, 3, 4), Qt::black);
        EXPECT_EQ(BlackColumns(canvas, 0), qRound(90 * ratio)) << ratio;
    }
}

TEST(SurfacePainter, CopiesAnArtworkPixelByPixelAtTwiceTheSize)
{
    const QPixmap tile = Artwork(QStringLiteral("tiles/Tile3"), QSize(64, 32), 2);
    ASSERT_EQ(tile.size(), QSize(128, 64));
    QImage canvas = Canvas(300, 80);
    SurfacePainter(canvas, 2).Lay(QRect(10, 4, 64, 32), tile);
    QImage expected = tile.toImage().convertToFormat(QImage::Format_RGB32);
    expected.setDevicePixelRatio(1);
    EXPECT_EQ(canvas.copy(20, 8, 128, 64), expected);
}

TEST(SurfacePainter, CutsALaidArtworkAndTheLastTile)
{
    QPixmap black(8, 8);
    black.fill(Qt::black);
    QImage canvas = Canvas(40, 10);
    SurfacePainter(canvas, 1).Lay(QRect(0, 0, 5, 8), black);
    EXPECT_EQ(BlackColumns(canvas, 7), 5);
    SurfacePainter(canvas, 1).Tile(QRect(0, 0, 21, 8), black);
    EXPECT_EQ(BlackColumns(canvas, 7), 21);
    EXPECT_EQ(BlackColumns(canvas, 8), 0);
}

TEST(SurfacePainter, RepeatsTheBitsOfAPictureAtTwiceTheSize)
{
    QImage bitmap(2, 1, QImage::Format_RGB32);
    bitmap.setPixelColor(0, 0, Qt::white);
    bitmap.setPixelColor(1, 0, Qt::black);
    QImage canvas = Canvas(4, 2);
    SurfacePainter(canvas, 2).LayBitmap(QRect(0, 0, 2, 1), bitmap);
    EXPECT_EQ(BlackColumns(canvas, 1), 2);
    EXPECT_EQ(canvas.pixelColor(1, 0), QColor(Qt::white));
}

/// A surface with a dot in a corner; counts how often it is drawn.
class DottedSurface : public TrackSurface {
public:
    DottedSurface() : TrackSurface("Surface", Qt::green, nullptr)
    {
        Redraw = [this] {
            ++redraws;
            Clear();
            Painter().Fill(QRect(1, 2, 3, 4), Qt::black);
        };
        resize(30, 20);
    }

    QImage Shown() { return grab().toImage(); }

    int redraws = 0;
};

TEST(TrackSurface, LooksTheSameDrawnOnTheScreenAndKept)
{
    DottedSurface surface;
    const QImage straight = surface.Shown();
    EXPECT_EQ(straight.pixelColor(29, 19), QColor(Qt::green));
    EXPECT_EQ(straight.pixelColor(3, 5), QColor(Qt::black));
    EXPECT_EQ(straight.pixelColor(4, 5), QColor(Qt::green));
    EXPECT_EQ(surface.Shown(), straight);
    EXPECT_EQ(surface.redraws, 2);
    EXPECT_EQ(surface.Shown(), straight);
    EXPECT_EQ(surface.redraws, 2);
}

TEST(TrackSurface, KeepsItsPictureSoonAfterItIsFirstShown)
{
    DottedSurface surface;
    surface.show();
    while (surface.redraws < 2)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    const QImage shown = surface.Shown();
    EXPECT_EQ(shown.pixelColor(3, 5), QColor(Qt::black));
    EXPECT_EQ(surface.redraws, 2);
}

TEST(TrackSurface, AsksToBeDrawnWhereItsSizeChanged)
{
    DottedSurface surface;
    static_cast<void>(surface.Shown());
    static_cast<void>(surface.Shown());
    EXPECT_EQ(surface.redraws, 2);
    surface.resize(31, 20);
    EXPECT_EQ(surface.Shown().pixelColor(30, 19), QColor(Qt::green));
    EXPECT_EQ(surface.redraws, 3);
}

TEST(TrackSurface, IsDrawnOnceHoweverOftenItWasForgotten)
{
    DottedSurface surface;
    static_cast<void>(surface.Shown());
    static_cast<void>(surface.Shown());
    surface.Forget();
    surface.Forget();
    EXPECT_EQ(surface.redraws, 2);
    static_cast<void>(surface.Shown());
    EXPECT_EQ(surface.redraws, 3);
    static_cast<void>(surface.Shown());
    EXPECT_EQ(surface.redraws, 3);
}

TEST(TrackSurface, KeepsALargePictureWholeWhenItChangesItsSize)
{
    TrackSurface surface("Surface", Qt::green, nullptr);
    surface.Redraw = [&surface] { surface.Clear(); };
    for (const QSize size : {QSize(1600, 1000), QSize(30, 20), QSize(2000, 1200)}) {
        surface.resize(size);
        const QImage shown = surface.grab().toImage();
        EXPECT_EQ(shown.size(), size);
        EXPECT_EQ(shown.pixelColor(size.width() - 1, size.height() - 1), QColor(Qt::green));
    }
}

} // namespace
} // namespace sprout
