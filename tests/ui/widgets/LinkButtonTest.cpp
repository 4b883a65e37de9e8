// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/LinkButton.h"

#include <gtest/gtest.h>

#include <QKeyEvent>
#include <QTest>

#include "ui/ModalSteps.h"

namespace sprout {
namespace {

/// A window that counts the arrow keys that its controls leave to it.
class ArrowWindow : public QWidget {
public:
    int arrows = 0;

protected:
    void keyPressEvent(QKeyEvent* /*event*/) override { ++arrows; }
};

class LinkButtonTest : public testing::Test {
protected:
    LinkButtonTest()
    {
        QObject::connect(&link, &QPushButton::clicked, &link, [this] { ++clicks; });
        window.show();
    }

    ArrowWindow window;
    LinkButton link{"TestLbl", Words::AsIs("More"), &window};
    int clicks = 0;
};

TEST_F(LinkButtonTest, IsClickedByMouseAndKeys)
{
    EXPECT_EQ(link.objectName(), QStringLiteral("TestLbl"));
    EXPECT_EQ(link.text(), QStringLiteral("More"));
    QTest::mouseClick(&link, Qt::LeftButton);
    QTest::keyClick(&link, Qt::Key_Space);
    EXPECT_EQ(clicks, 2);
}

TEST_F(LinkButtonTest, TakesAKeyThatIsHeldOnce)
{
    QTest::keyPress(&link, Qt::Key_Space);
    RepeatKey(link, Qt::Key_Space);
    RepeatKey(link, Qt::Key_Space);
    QTest::keyRelease(&link, Qt::Key_Space);
    EXPECT_EQ(clicks, 1);
}

TEST_F(LinkButtonTest, LeavesTheArrowsToItsWindow)
{
    for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down})
        QTest::keyClick(&link, key);
    EXPECT_EQ(window.arrows, 4);
}

} // namespace
} // namespace sprout
