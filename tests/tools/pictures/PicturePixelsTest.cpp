// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/PicturePixels.h"

#include <gtest/gtest.h>

#include <QImage>

#include "support/TestFolder.h"

namespace sprout {
namespace {

class PixelsOfAPicture : public testing::Test {
protected:
    [[nodiscard]] std::optional<std::string> Saved(const QImage& image, const char* name) const
    {
        const QString path = QString::fromStdString(folder.Path() / name);
        EXPECT_TRUE(image.save(path));
        return PixelsOf(path);
    }

    static QImage Red(QSize size, QImage::Format format)
    {
        QImage image(size, format);
        image.fill(Qt::red);
        return image;
    }

    TestFolder folder;
};

TEST_F(PixelsOfAPicture, AreTheSameWhateverTheFile)
{
    const auto png = Saved(Red({3, 2}, QImage::Format_ARGB32), "one.png");
    ASSERT_TRUE(png);
    EXPECT_EQ(png->substr(64), " 3x2");
    EXPECT_EQ(Saved(Red({3, 2}, QImage::Format_RGB32), "one.bmp"), png);
}

TEST_F(PixelsOfAPicture, DifferByOnePixelAndBySize)
{
    QImage image = Red({6, 2}, QImage::Format_ARGB32);
    const auto red = Saved(image, "red.png");
    EXPECT_NE(Saved(Red({4, 3}, QImage::Format_ARGB32), "turned.png"), red);
    image.setPixelColor(5, 1, QColor(254, 0, 0));
    EXPECT_NE(Saved(image, "almost.png"), red);
}

TEST_F(PixelsOfAPicture, OfNoPictureAreNothing)
{
    EXPECT_FALSE(PixelsOf(QString::fromStdString(folder.Path() / "none.png")));
}

} // namespace
} // namespace sprout
