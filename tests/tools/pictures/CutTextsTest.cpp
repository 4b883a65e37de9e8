// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/CutTexts.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>

namespace sprout {
namespace {

class CutTextsTest : public testing::Test {
protected:
    QLabel& Add(const QString& text, QRect place)
    {
        auto* label = new QLabel(text, &window);
        label->setGeometry(place);
        return *label;
    }

    QStringList Cut()
    {
        window.resize(300, 200);
        window.show();
        QApplication::processEvents();
        return CutTexts(window);
    }

    QWidget window;
};

TEST_F(CutTextsTest, TextsWithRoomAreNotTold)
{
    Add(QStringLiteral("Save song"), {10, 10, 200, 30});
    Add(QStringLiteral("Save this song under another name, if you like"), {10, 50, 150, 100}).setWordWrap(true);
    EXPECT_EQ(Cut(), QStringList());
}

TEST_F(CutTextsTest, ATextWiderThanItsWidgetIsTold)
{
    Add(QStringLiteral("Save song"), {10, 10, 30, 30});
    EXPECT_EQ(Cut(), QStringList(QStringLiteral("Save song")));
}

TEST_F(CutTextsTest, ALineBelowItsWidgetIsTold)
{
    Add(QStringLiteral("Save this song under another name, if you like"), {10, 10, 100, 24}).setWordWrap(true);
    EXPECT_FALSE(Cut().isEmpty());
}

TEST_F(CutTextsTest, AnElidedTextIsTold)
{
    Add(QStringLiteral("Save so…"), {10, 10, 200, 30});
    EXPECT_EQ(Cut(), QStringList(QStringLiteral("Save so…")));
}

TEST_F(CutTextsTest, AHiddenWidgetIsNotLookedAt)
{
    Add(QStringLiteral("Save song"), {10, 10, 30, 30}).hide();
    EXPECT_EQ(Cut(), QStringList());
}

} // namespace
} // namespace sprout
