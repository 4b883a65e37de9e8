// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/GridKeys.h"

#include <gtest/gtest.h>

namespace sprout {
namespace {

using Asks = GridKey::Asks;

GridKey Pressed(int key, Qt::KeyboardModifiers modifiers = {}, bool isRepeat = false)
{
    return GridKeyOf(QKeyEvent(QEvent::KeyPress, key, modifiers, QString(), isRepeat));
}

TEST(GridKeyOf, StepsAlsoWhileAKeyIsHeld)
{
    const std::pair<int, GridStep> steps[]{
        {Qt::Key_Left, GridStep::Left}, {Qt::Key_Right, GridStep::Right},       {Qt::Key_Up, GridStep::Up},
        {Qt::Key_Down, GridStep::Down}, {Qt::Key_PageUp, GridStep::PageUp},     {Qt::Key_Home, GridStep::First},
        {Qt::Key_End, GridStep::Last},  {Qt::Key_PageDown, GridStep::PageDown},
    };
    for (const auto& [key, step] : steps)
        for (const bool isRepeat : {false, true}) {
            const GridKey asked = Pressed(key, {}, isRepeat);
            EXPECT_EQ(asked.asks, Asks::Step) << key;
            EXPECT_EQ(asked.step, step) << key;
        }
}

TEST(GridKeyOf, OtherKeysActOnlyWhenPressedAnew)
{
    EXPECT_EQ(Pressed(Qt::Key_Space).asks, Asks::Choice);
    EXPECT_EQ(Pressed(Qt::Key_Delete).asks, Asks::Deletion);
    EXPECT_EQ(Pressed(Qt::Key_Menu).asks, Asks::Menu);
    EXPECT_EQ(Pressed(Qt::Key_F10, Qt::ShiftModifier).asks, Asks::Menu);
    for (const int key : {Qt::Key_Space, Qt::Key_Delete, Qt::Key_Menu})
        EXPECT_EQ(Pressed(key, {}, true).asks, Asks::NoRepeats) << key;
}

TEST(GridKeyOf, LeavesAllOtherKeysToTheWindow)
{
    for (const int key : {Qt::Key_F10, Qt::Key_Return, Qt::Key_A, Qt::Key_Escape})
        for (const bool isRepeat : {false, true})
            EXPECT_EQ(Pressed(key, {}, isRepeat).asks, Asks::Nothing) << key;
}

} // namespace
} // namespace sprout
