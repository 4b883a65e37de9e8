// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/forms/BandedForm.h"

#include <QApplication>
#include <QMouseEvent>

#include <gtest/gtest.h>

#include "ui/forms/MessageForms.h"

namespace sprout {
namespace {

void Send(QWidget& widget, QEvent::Type type, QPoint inside, QPoint onScreen)
{
    QMouseEvent event(type, inside, onScreen, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
}

// While the server is still moving the window, it reports positions relative to the old place.
TEST(BandedForm, FollowsThePointerWhileTheServerLagsBehind)
{
    Msg1BtnFrm form(nullptr, Words::AsIs("A note"));
    form.move(100, 100);
    form.show();
    Send(form, QEvent::MouseButtonPress, {60, 10}, {160, 110});
    Send(form, QEvent::MouseMove, {70, 10}, {170, 110});
    Send(form, QEvent::MouseMove, {80, 10}, {180, 110});
    EXPECT_EQ(form.pos(), QPoint(120, 100));
}

} // namespace
} // namespace sprout
