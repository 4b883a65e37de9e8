// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/WelcomeHand.h"

#include <gtest/gtest.h>

#include <QTest>

namespace sprout {
namespace {

class WelcomeHandTest : public testing::Test {
protected:
    WelcomeHandTest()
    {
        bar.resize(300, 100);
        button.setObjectName(QStringLiteral("PlayAllBtn"));
        button.setGeometry(8, 6, 56, 56);
    }

    QWidget bar;
    QWidget button{&bar};
};

TEST_F(WelcomeHandTest, IsASiblingOfItsButtonAndNamedAfterIt)
{
    const WelcomeHand hand(button);
    EXPECT_EQ(hand.parentWidget(), &bar);
    EXPECT_EQ(hand.objectName(), QStringLiteral("WelcomeHandPlayAllBtn"));
}

TEST_F(WelcomeHandTest, StaysWithItsButton)
{
    const WelcomeHand hand(button);
    bar.show();
    EXPECT_EQ(hand.geometry(), QRect(41, 39, 28, 28));
    button.move(100, 20);
    EXPECT_EQ(hand.geometry(), QRect(133, 53, 28, 28));
    button.resize(40, 40);
    EXPECT_EQ(hand.geometry(), QRect(125, 45, 20, 20));
}

TEST_F(WelcomeHandTest, IsWhiteAndLetsTheBarBeSeenAroundIt)
{
    WelcomeHand hand(button);
    QImage picture(hand.size(), QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    hand.render(&picture, {}, {}, QWidget::DrawChildren);
    EXPECT_EQ(picture.pixelColor(17, 20), QColor(Qt::white));
    EXPECT_EQ(picture.pixelColor(1, 26).alpha(), 0);
}

} // namespace
} // namespace sprout
