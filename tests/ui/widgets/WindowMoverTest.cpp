// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/WindowMover.h"

#include <QApplication>

#include <gtest/gtest.h>

namespace sprout {
namespace {

QMouseEvent At(QEvent::Type type, QPoint onScreen, Qt::MouseButton button = Qt::LeftButton)
{
    return {type, onScreen, onScreen, button, button, Qt::NoModifier};
}

/// A mover for a desktop that places windows itself; counts how often that was requested.
struct AskingMover {
    int asked = 0;
    bool willing = true;
    QWidget window;
    WindowMover mover{true, [this](QWidget& moved) {
                          EXPECT_EQ(&moved, &window);
                          ++asked;
                          return willing;
                      }};

    void Press(QPoint onScreen, Qt::MouseButton button = Qt::LeftButton)
    {
        mover.Press(window, At(QEvent::MouseButtonPress, onScreen, button));
    }
    void MoveTo(QPoint onScreen) { mover.Move(window, At(QEvent::MouseMove, onScreen)); }
};

TEST(WindowMover, LeavesAClickAndATremblingHandToTheWindow)
{
    AskingMover held;
    held.Press({300, 20});
    held.MoveTo({301, 21});
    EXPECT_EQ(held.asked, 0);
    held.mover.Release();
    held.MoveTo({400, 80});
    EXPECT_EQ(held.asked, 0);
}

TEST(WindowMover, AsksTheDesktopOnceADrag)
{
    AskingMover held;
    held.Press({300, 20});
    held.MoveTo({300 + QApplication::startDragDistance(), 20});
    held.MoveTo({400, 80});
    EXPECT_EQ(held.asked, 1);
}

TEST(WindowMover, AsksAgainWhereTheDesktopDidNotListen)
{
    AskingMover held;
    held.willing = false;
    held.Press({300, 20});
    held.MoveTo({340, 20});
    held.MoveTo({400, 80});
    EXPECT_EQ(held.asked, 2);
}

TEST(WindowMover, IsHeldByTheLeftButtonOnly)
{
    AskingMover held;
    held.Press({300, 20}, Qt::RightButton);
    held.MoveTo({400, 80});
    EXPECT_EQ(held.asked, 0);
}

} // namespace
} // namespace sprout
