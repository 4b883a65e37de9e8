// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/PopupKeys.h"

#include <QAbstractItemView>
#include <QTest>
#include <QWindow>

#include <gtest/gtest.h>

#include "ui/forms/MessageForms.h"

namespace sprout {
namespace {

/// A box with three entries in a form, with its list open; the form has the keyboard, as under Wayland.
struct OpenList {
    Msg1BtnFrm form{nullptr, Words::AsIs("A note")};
    QComboBox box{&form};

    OpenList()
    {
        box.addItems({QStringLiteral("8"), QStringLiteral("16"), QStringLiteral("32")});
        KeepClosingKeys(box);
        form.show();
        box.showPopup();
    }

    void Press(Qt::Key key) { QTest::keyClick(form.windowHandle(), key); }
};

TEST(KeepClosingKeys, EscapeClosesTheListAndNotTheForm)
{
    OpenList open;
    open.Press(Qt::Key_Escape);
    EXPECT_FALSE(open.box.view()->isVisible());
    EXPECT_TRUE(open.form.isVisible());
    EXPECT_EQ(open.box.currentIndex(), 0);
}

TEST(KeepClosingKeys, EnterChoosesFromTheListAndAnswersNothing)
{
    OpenList open;
    open.Press(Qt::Key_Down);
    open.Press(Qt::Key_Return);
    EXPECT_FALSE(open.box.view()->isVisible());
    EXPECT_EQ(open.box.currentIndex(), 1);
    EXPECT_TRUE(open.form.isVisible());
    EXPECT_EQ(open.form.Result, 0);
}

TEST(KeepClosingKeys, LeavesTheOtherKeysToTheForm)
{
    OpenList open;
    open.Press(Qt::Key_Escape);
    open.Press(Qt::Key_Escape);
    EXPECT_FALSE(open.form.isVisible());
}

} // namespace
} // namespace sprout
