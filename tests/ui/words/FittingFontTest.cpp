// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/words/FittingFont.h"

#include <gtest/gtest.h>

#include <QFontMetrics>

#include "ui/look/Look.h"

namespace sprout {
namespace {

const QString kText = QStringLiteral("Save this song");

TEST(FittingFont, StaysIfTheTextHasRoom)
{
    const int width = QFontMetrics(LabelFont()).horizontalAdvance(kText);
    EXPECT_EQ(FittingFont(LabelFont(), kText, width), LabelFont());
}

TEST(FittingFont, IsTheLargestThatFits)
{
    const int width = QFontMetrics(LabelFont()).horizontalAdvance(kText) - 1;
    QFont font = FittingFont(LabelFont(), kText, width);
    EXPECT_EQ(font.pixelSize(), 14);
    EXPECT_LE(QFontMetrics(font).horizontalAdvance(kText), width);
}

TEST(FittingFont, CanAlwaysBeRead)
{
    QFont least = ButtonFont();
    least.setPixelSize(9);
    const int width = QFontMetrics(least).horizontalAdvance(kText);
    EXPECT_EQ(FittingFont(ButtonFont(), kText, width), least);
    EXPECT_EQ(FittingFont(ButtonFont(), kText, width - 1), ButtonFont()) << "the text is to be cut";
}

} // namespace
} // namespace sprout
