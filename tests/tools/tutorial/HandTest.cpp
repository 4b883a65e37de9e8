// SPDX-License-Identifier: GPL-3.0-or-later
#include "tutorial/Hand.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>

#include "base/Errors.h"

namespace sprout {
namespace {

/// A window in the main window's place, with a button and a text.
class HandTest : public testing::Test {
protected:
    HandTest()
    {
        window.setObjectName(QStringLiteral("MainFrm"));
        window.setGeometry(100, 50, 300, 200);
        button.setGeometry(20, 30, 80, 40);
        text.setGeometry(20, 100, 80, 30);
        window.show();
        QApplication::processEvents();
    }

    QWidget window;
    QPushButton button{&window};
    QLineEdit text{&window};
    Hand hand;
};

TEST_F(HandTest, ClicksWhereItPoints)
{
    int clicks = 0;
    QObject::connect(&button, &QPushButton::clicked, &window, [&clicks] { ++clicks; });
    hand.MoveTo(QPoint(130, 90));
    hand.Press();
    EXPECT_TRUE(button.isDown());
    hand.Release();
    EXPECT_EQ(clicks, 1);
    hand.MoveTo(QPoint(300, 200));
    hand.Press();
    hand.Release();
    EXPECT_EQ(clicks, 1);
}

TEST_F(HandTest, TypesIntoWhatHasTheFocus)
{
    text.setText(QStringLiteral("Old"));
    text.selectAll();
    text.setFocus();
    Hand::Type(QStringLiteral("My song"));
    EXPECT_EQ(text.text(), QStringLiteral("My song"));
    Hand::PressKey(QStringLiteral("Backspace"));
    EXPECT_EQ(text.text(), QStringLiteral("My son"));
}

TEST_F(HandTest, UsesTheWindowThatWaitsForAnAnswer)
{
    EXPECT_EQ(&FrontWindow(), &window);
    QDialog dialog(&window);
    dialog.setModal(true);
    dialog.show();
    EXPECT_EQ(&FrontWindow(), &dialog);
    dialog.hide();
    window.hide();
    EXPECT_THROW(static_cast<void>(FrontWindow()), RunTimeError);
}

} // namespace
} // namespace sprout
