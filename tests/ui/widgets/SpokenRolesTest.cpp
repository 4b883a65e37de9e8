// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/SpokenRoles.h"

#include <QPushButton>

#include <gtest/gtest.h>

namespace sprout {
namespace {

TEST(SetSpokenRole, TellsWhatAnAreaIs)
{
    QWidget canvas;
    canvas.setAccessibleName(QStringLiteral("Tracks"));
    SetSpokenRole(canvas, QAccessible::Canvas);
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&canvas);
    EXPECT_EQ(spoken->role(), QAccessible::Canvas);
    EXPECT_EQ(spoken->text(QAccessible::Name), QStringLiteral("Tracks"));
}

TEST(SetSpokenRole, LeavesOtherWidgetsAlone)
{
    QWidget canvas;
    SetSpokenRole(canvas, QAccessible::Canvas);
    QPushButton button;
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&button)->role(), QAccessible::Button);
}

TEST(SetSpokenChoice, TellsWhetherTheButtonIsTheChosenOne)
{
    QPushButton brush;
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&brush)->role(), QAccessible::Button);
    SetSpokenChoice(brush, true);
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&brush);
    EXPECT_EQ(spoken->role(), QAccessible::RadioButton);
    EXPECT_TRUE(spoken->state().checkable);
    EXPECT_TRUE(spoken->state().checked);
    SetSpokenChoice(brush, false);
    EXPECT_TRUE(spoken->state().checkable);
    EXPECT_FALSE(spoken->state().checked);
}

TEST(SetSpokenChoice, IsPressedByAScreenReader)
{
    QPushButton brush;
    SetSpokenChoice(brush, false);
    int clicks = 0;
    QObject::connect(&brush, &QPushButton::clicked, [&clicks] { ++clicks; });
    QAccessible::queryAccessibleInterface(&brush)->actionInterface()->doAction(
        QAccessibleActionInterface::pressAction());
    EXPECT_EQ(clicks, 1);
}

} // namespace
} // namespace sprout
