// SPDX-License-Identifier: GPL-3.0-or-later
#include "demo/DemoFixture.h"

#include <QAccessible>

#include "ui/ModalSteps.h"

namespace sprout {
namespace {

class DemoKeysTest : public DemoFixture {
protected:
    void Type(Qt::Key key) const { QTest::keyClick(QApplication::focusWidget(), key); }
};

TEST_F(DemoKeysTest, TakesSpaceAndEnterForTheClick)
{
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
        Open({"red.bmp,20,20,10,10,click,0", "green.bmp,20,20,10,10,click,0"});
        Type(key);
        EXPECT_EQ(Shown(), "green");
    }
}

TEST_F(DemoKeysTest, TakesSpaceForThePressAndTheMoveOfADrag)
{
    Open({"red.bmp,20,20,10,10,drag,0", "green.bmp,20,20,10,10,drag,0", "blue.bmp,20,20,10,10,click,0"});
    Type(Qt::Key_Space);
    EXPECT_EQ(Shown(), "green");
    Drag(kInside);
    EXPECT_EQ(Shown(), "green") << "the key holds no button";
    Type(Qt::Key_Space);
    EXPECT_EQ(Shown(), "blue");
}

TEST_F(DemoKeysTest, TakesAKeyThatIsHeldOnce)
{
    Open({"red.bmp,20,20,10,10,click,0", "green.bmp,20,20,10,10,click,0", "blue.bmp,20,20,10,10,click,0"});
    QTest::keyPress(&Pic(), Qt::Key_Space);
    RepeatKey(Pic(), Qt::Key_Space);
    RepeatKey(Pic(), Qt::Key_Return);
    EXPECT_EQ(Shown(), "green");
}

TEST_F(DemoKeysTest, StepsByTheArrows)
{
    Open({"red.bmp,20,20,10,10,click,0", "green.bmp,20,20,10,10,wait,3", "blue.bmp,20,20,10,10,click,0"});
    Type(Qt::Key_Left);
    EXPECT_EQ(Shown(), "red");
    Type(Qt::Key_Right);
    EXPECT_EQ(Shown(), "green");
    EXPECT_TRUE(Timer().isActive());
    Type(Qt::Key_Right);
    EXPECT_EQ(Shown(), "blue");
    EXPECT_FALSE(Timer().isActive());
    EXPECT_TRUE(Link().isVisible());
    Type(Qt::Key_Right);
    EXPECT_TRUE(Link().hasFocus());
    EXPECT_EQ(Shown(), "blue");
    Type(Qt::Key_Left);
    EXPECT_EQ(Shown(), "green") << "from the link too";
    EXPECT_FALSE(Link().isVisible());
    EXPECT_TRUE(Pic().hasFocus());
}

TEST_F(DemoKeysTest, ClosesByEscapeAndOpensTheHelpByF1)
{
    Open({"red.bmp,20,20,10,10,click,0"});
    Type(Qt::Key_F1);
    EXPECT_EQ(windows.helpsOpened, 1);
    EXPECT_TRUE(form->isVisible());
    Type(Qt::Key_Escape);
    EXPECT_FALSE(form->isVisible());
}

TEST_F(DemoKeysTest, TellsScreenReadersWhatToDo)
{
    WriteBytes(folder / "TqDemoTexts.ini", "[Section]\r\nImage11=Click the flower, please.\r\n");
    Open({"red.bmp,20,20,10,10,click,0", "green.bmp,20,20,10,10,drag,0", "blue.bmp,20,20,10,10,wait,1",
          "red.bmp,20,20,10,10,click,0"});
    EXPECT_EQ(Spoken(), "Click the flower, please. Picture 1 of 4");
    Type(Qt::Key_Right);
    EXPECT_EQ(Spoken(), "Press Space to drag. Picture 2 of 4");
    Type(Qt::Key_Right);
    EXPECT_EQ(Spoken(), "Look what happens. Picture 3 of 4");
    Type(Qt::Key_Right);
    EXPECT_EQ(Spoken(), "Press Space to click. Picture 4 of 4");
    Type(Qt::Key_Right);
    EXPECT_EQ(Spoken(), "This is the end of the demo.");
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&Pic())->role(), QAccessible::Graphic);
    EXPECT_FALSE(Pic().accessibleDescription().isEmpty());
    EXPECT_FALSE(Link().accessibleDescription().isEmpty());
}

TEST_F(DemoKeysTest, BeginsToPulseAfterFiveSecondsWithoutTheExpectedClick)
{
    Open({"red.bmp,20,20,10,10,click,0", "green.bmp,100,20,10,10,drag,0", "blue.bmp,20,20,10,10,wait,1"});
    auto& ring = Part<QWidget>("DemoPulseShp");
    EXPECT_FALSE(ring.isVisible());
    EXPECT_EQ(PulseTimer().interval(), 5000);
    Tick(PulseTimer());
    EXPECT_TRUE(ring.isVisible());
    EXPECT_EQ(ring.geometry().center(), QPoint(25, 25));
    EXPECT_TRUE(ring.geometry().contains(QRect(20, 20, 11, 11)));
    ClickAt(kOutside);
    EXPECT_TRUE(ring.isVisible()) << "that is not the expected click";
    ClickAt(kInside);
    EXPECT_EQ(Shown(), "green") << "the ring lets the click through";
    EXPECT_FALSE(ring.isVisible());
    EXPECT_EQ(PulseTimer().interval(), 5000);
    EXPECT_TRUE(PulseTimer().isActive());
    Type(Qt::Key_Right);
    EXPECT_FALSE(PulseTimer().isActive()) << "a timed slide expects no click";
}

} // namespace
} // namespace sprout
