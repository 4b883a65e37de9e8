// SPDX-License-Identifier: GPL-3.0-or-later
#include "beat_window/NameLabel.h"

#include <gtest/gtest.h>

#include <QImage>

namespace sprout {
namespace {

class NameLabelTest : public testing::Test {
protected:
    NameLabelTest() { label.resize(140, 48); }

    QImage Drawn(const char* name)
    {
        label.ShowName(Words::AsIs(name));
        return label.grab().toImage();
    }

    /// The part of the label that letters cover, in a range of its height.
    static QRect Ink(const QImage& image, int top, int height)
    {
        QRect ink;
        const QColor ground = image.pixelColor(0, 0);
        for (int y = top; y < top + height; ++y)
            for (int x = 0; x < image.width(); ++x)
                if (image.pixelColor(x, y) != ground)
                    ink |= QRect(x, y, 1, 1);
        return ink;
    }

    NameLabel label{nullptr};
};

TEST_F(NameLabelTest, CentresAShortName)
{
    const QRect ink = Ink(Drawn("bell"), 0, 48);
    EXPECT_NEAR(ink.center().x(), 70, 3);
    EXPECT_NEAR(ink.center().y(), 24, 5);
}

TEST_F(NameLabelTest, GoesOnInASecondLine)
{
    const QImage image = Drawn("acoustic guitar high");
    EXPECT_FALSE(Ink(image, 0, 22).isEmpty());
    EXPECT_FALSE(Ink(image, 26, 22).isEmpty());
}

TEST_F(NameLabelTest, BreaksAWordThatIsLongerThanALine)
{
    const QImage image = Drawn("Donaudampfschifffahrtsgesellschaft");
    EXPECT_FALSE(Ink(image, 26, 22).isEmpty());
    EXPECT_GE(Ink(image, 0, 48).left(), 0);
    EXPECT_NE(image, Drawn("Donaudampfschiff"));
}

TEST_F(NameLabelTest, EndsWithDotsWhereTwoLinesAreTooShort)
{
    EXPECT_EQ(Drawn("a name that is much too long for two lines of text"),
              Drawn("a name that is much too long for two lines of sound"));
}

TEST_F(NameLabelTest, ShowsNothingForNoName)
{
    EXPECT_TRUE(Ink(Drawn(""), 0, 48).isEmpty());
}

} // namespace
} // namespace sprout
