// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/GridPictures.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <vector>

namespace sprout {
namespace {

constexpr QColor kInside{0x00, 0xA0, 0x00};

/// A picture of one colour.
GridEntry Entry(bool original)
{
    constexpr int side = kPictureSide;
    return {{side, side, std::vector<std::uint32_t>(side * side, 0x00A000)}, "one", original};
}

class GridPicturesTest : public testing::Test {
protected:
    GridPicturesTest() { pictures.Set({Entry(true), Entry(false), Entry(true), Entry(false)}); }

    /// What two columns and `rows` rows look like from `topRow` on.
    QImage Painted(int topRow, int rows, int selected = 0, QRect exposed = {0, 0, 80, 160})
    {
        QImage image(80, 160, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        pictures.Paint(painter, {2, pictures.Count(), topRow, rows * kGridCell}, selected, exposed);
        return image;
    }

    GridPictures pictures;
};

TEST_F(GridPicturesTest, CountFromOne)
{
    EXPECT_EQ(pictures.Count(), 4);
    EXPECT_TRUE(pictures.Entry(1).Original);
    EXPECT_FALSE(pictures.Entry(2).Original);
    pictures.Set({});
    EXPECT_EQ(pictures.Count(), 0);
}

TEST_F(GridPicturesTest, TheBorderTellsWhoseAPictureIsAndTheSelectedOneHasNone)
{
    const QImage image = Painted(1, 2, 4);
    EXPECT_EQ(image.pixelColor(4, 20), kOriginalBorder);
    EXPECT_EQ(image.pixelColor(44, 20), kUserBorder);
    EXPECT_EQ(image.pixelColor(44, 60), QColor(Qt::white));
    EXPECT_EQ(image.pixelColor(45, 60), kInside);
}

TEST_F(GridPicturesTest, OnlyRowsInViewArePainted)
{
    const QImage image = Painted(2, 1);
    EXPECT_EQ(image.pixelColor(20, 20), kInside);
    EXPECT_EQ(image.pixelColor(20, 60), QColor(Qt::white));
    EXPECT_EQ(Painted(1, 1).pixelColor(20, 60), QColor(Qt::white));
}

TEST_F(GridPicturesTest, OnlyWhatIsExposedIsPainted)
{
    const QImage image = Painted(1, 2, 0, QRect(38, 10, 2, 2)); // touches no border
    EXPECT_EQ(image.pixelColor(20, 20), QColor(Qt::white));
    const QImage touched = Painted(1, 2, 0, QRect(37, 10, 2, 2));
    EXPECT_EQ(touched.pixelColor(20, 20), kInside);
    EXPECT_EQ(touched.pixelColor(60, 20), QColor(Qt::white));
}

TEST_F(GridPicturesTest, ALargePictureIsShownWhole)
{
    constexpr int side = 400;
    std::vector<std::uint32_t> pixels(side * side, 0x00A000);
    std::fill_n(pixels.begin(), side * side / 2, 0x0000FFU);
    GridEntry large;
    large.Picture = {side, side, pixels};
    pictures.Set({large});
    const QImage image = Painted(1, 1);
    EXPECT_EQ(image.pixelColor(20, 10), QColor(0xFF, 0, 0));
    EXPECT_EQ(image.pixelColor(20, 32), kInside);
}

TEST(PaintEmptyGrid, ManyLinesMoveTogetherAndLongOnesEndWithinTheGrid)
{
    const auto painted = [](const QStringList& lines) {
        QImage image(200, 100, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        PaintEmptyGrid(painter, image.size(), lines);
        painter.end();
        QRect ink;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                if (image.pixelColor(x, y) != QColor(Qt::white))
                    ink |= QRect(x, y, 1, 1);
        return ink;
    };
    EXPECT_TRUE(painted({}).isNull());
    const QRect one = painted({QStringLiteral("nothing")});
    EXPECT_GE(one.left(), 10);
    EXPECT_LT(one.bottom(), 32);
    const QStringList many(8, QString(60, QLatin1Char('w')));
    const QRect all = painted(many);
    EXPECT_LT(all.right(), 190);
    EXPECT_LT(all.bottom(), 99);
    EXPECT_GT(all.bottom(), 70);
}

} // namespace
} // namespace sprout
