// SPDX-License-Identifier: GPL-3.0-or-later
#include "demo/Demo_frm.h"

#include <QScreen>

#include "demo/DemoFixture.h"
#include "ui/ModalSteps.h"

namespace sprout {
namespace {

using testing::SizeIs;

class DemoFrmTest : public DemoFixture {};

TEST_F(DemoFrmTest, ShowsSharpSlidesWhereThePixelsAreSmall)
{
    PutPicture("red@2x.bmp", Qt::blue, {400, 200});
    Open({"red.bmp,20,20,10,10,click,0"});
    EXPECT_EQ(Shown(), form->devicePixelRatioF() > 1 ? "blue" : "red");
    EXPECT_EQ(Pic().size(), QSize(200, 100));
}

TEST_F(DemoFrmTest, LoadsTheNextSlideWhileThePresentOneIsLookedAt)
{
    Open({"red.bmp,20,20,10,10,click,0", "green.bmp,20,20,10,10,click,0", "blue.bmp,20,20,10,10,click,0"});
    Tick(AheadTimer());
    PutPicture("green.bmp", Qt::blue);
    ClickAt(kInside);
    EXPECT_EQ(Shown(), "green");
    QTest::keyClick(&Pic(), Qt::Key_Left);
    QTest::keyClick(&Pic(), Qt::Key_Right);
    EXPECT_EQ(Shown(), "blue") << "it was not kept for longer";
}

TEST_F(DemoFrmTest, LoadsASlideThatWasMissingWhenItIsShown)
{
    Open({"red.bmp,20,20,10,10,click,0", "late.bmp,20,20,10,10,click,0"});
    Tick(AheadTimer());
    PutPicture("late.bmp", Qt::blue);
    ClickAt(kInside);
    EXPECT_EQ(Shown(), "blue");
    Tick(AheadTimer());
}

TEST_F(DemoFrmTest, ShowsTheFirstSlideOfTheDemoWithThatName)
{
    PutDemos({{"Hear", {"red.bmp,20,20,10,10,click,0"}}, {"Paint it", {"green.bmp,20,20,10,10,click,0"}}});
    OpenDemo("PAINT IT");
    EXPECT_EQ(Shown(), "green");
    EXPECT_EQ(form->objectName(), QStringLiteral("Demo_frm"));
    OpenDemo("Hear");
    EXPECT_EQ(Shown(), "red");
    EXPECT_EQ(form->windowTitle(), QStringLiteral("Demo: Hear"));
}

TEST_F(DemoFrmTest, IsAsLargeAsThePictureAndItsMargins)
{
    Open({"red.bmp,20,20,10,10,click,0", "large.png,20,20,10,10,click,0", "blue.bmp,20,20,10,10,click,0"});
    PutPicture("large.png", Qt::white, {600, 400});
    ClickAt(kInside);
    EXPECT_EQ(Pic().size(), QSize(600, 400));
    EXPECT_EQ(form->size(), QSize(604, 435 + kBandHeight));
    EXPECT_EQ(Pic().pos(), QPoint(2, kBandHeight));
}

TEST_F(DemoFrmTest, KeepsItsMiddleWhereASlideHasAnotherSize)
{
    PutPicture("large.png", Qt::white, {600, 400});
    Open({"red.bmp,20,20,10,10,click,0", "large.png,20,20,10,10,click,0"});
    form->move(300, 300);
    const QPoint middle = form->geometry().center();
    ClickAt(kInside);
    EXPECT_LE((form->geometry().center() - middle).manhattanLength(), 2);
    form->move(0, 0);
    QTest::keyClick(&Pic(), Qt::Key_Left);
    QTest::keyClick(&Pic(), Qt::Key_Right);
    EXPECT_TRUE(form->screen()->availableGeometry().contains(form->geometry()));
}

TEST_F(DemoFrmTest, GoesOnByAClickInTheRectangle)
{
    Open({"red.bmp,20,20,10,10,click,0", "green.bmp,20,20,10,10,click,0", "blue.bmp,0,0,1,1,click,0"});
    ClickAt(kOutside);
    EXPECT_EQ(Shown(), "red");
    QTest::mouseClick(&Pic(), Qt::RightButton, {}, kInside);
    EXPECT_EQ(Shown(), "red");
    ClickAt({20, 20});
    EXPECT_EQ(Shown(), "green");
    ClickAt({31, 30});
    EXPECT_EQ(Shown(), "green");
    ClickAt({30, 30});
    EXPECT_EQ(Shown(), "blue");
}

TEST_F(DemoFrmTest, GoesOnByADrag)
{
    Open({"red.bmp,20,20,10,10,drag,0", "green.bmp,80,20,10,10,drag,0", "blue.bmp,140,20,10,10,click,0"});
    Drag(kInside);
    EXPECT_EQ(Shown(), "red") << "nothing is held";
    Press(kInside);
    EXPECT_EQ(Shown(), "red");
    Drag({22, 22});
    EXPECT_EQ(Shown(), "green");
    Drag({40, 22});
    EXPECT_EQ(Shown(), "green");
    Drag({85, 22});
    EXPECT_EQ(Shown(), "blue");
    Release({85, 22});
    Drag({145, 22});
    EXPECT_EQ(Shown(), "blue");
}

TEST_F(DemoFrmTest, EndsADragWhereTheButtonIsReleased)
{
    Open({"red.bmp,20,20,10,10,drag,0", "green.bmp,20,20,10,10,click,0"});
    Press(kInside);
    Release(kInside);
    Drag({22, 22});
    EXPECT_EQ(Shown(), "red");
}

TEST_F(DemoFrmTest, EndsADragWhoseReleaseGotLost)
{
    Open({"red.bmp,20,20,10,10,drag,0", "green.bmp,20,20,10,10,click,0"});
    Press(kInside);
    Send(QEvent::MouseMove, {22, 22}, Qt::NoButton);
    Drag({22, 22});
    EXPECT_EQ(Shown(), "red");
}

TEST_F(DemoFrmTest, GoesOnByTime)
{
    Open({"red.bmp,20,20,10,10,wait,2.5", "green.bmp,20,20,10,10,click,1", "blue.bmp,20,20,10,10,click,0"});
    EXPECT_EQ(Timer().interval(), 2500);
    Tick(Timer());
    EXPECT_EQ(Shown(), "green");
    EXPECT_EQ(Timer().interval(), 1000);
    Tick(Timer());
    EXPECT_EQ(Shown(), "blue");
    EXPECT_FALSE(Timer().isActive()) << "a time of 0 does not fire";
}

TEST_F(DemoFrmTest, HasATimerOfOneSecondThatIsOffAtFirst)
{
    Open({"missing.bmp,20,20,10,10,click,3"});
    EXPECT_FALSE(Timer().isActive());
    EXPECT_EQ(Timer().interval(), 1000);
}

TEST_F(DemoFrmTest, MovesADragThatWasLetGoOnByTime)
{
    PutSound("blue.wav", 100);
    Open({"red.bmp,20,20,10,10,drag,1", "green.bmp,20,20,10,10,drag,1", "blue.bmp,20,20,10,10,drag,1"});
    Press(kInside);
    Drag({22, 22});
    EXPECT_EQ(Shown(), "green");
    Release({22, 22});
    StartToPlay();
    Tick(Timer());
    EXPECT_EQ(Shown(), "blue");
    EXPECT_EQ(play.PlayState, PlayState::Stopped) << "the drag on its way has no sound";
    EXPECT_TRUE(Timer().isActive());
}

TEST_F(DemoFrmTest, HoldsAbsurdTimes)
{
    Open({"red.bmp,20,20,10,10,wait,1e300", "green.bmp,20,20,10,10,wait,-1e300", "blue.bmp,20,20,10,10,wait,nan"});
    EXPECT_TRUE(Timer().isActive());
    Tick(Timer());
    EXPECT_EQ(Shown(), "green");
    EXPECT_FALSE(Timer().isActive());
    ClickAt(kInside);
    EXPECT_EQ(Shown(), "blue");
    EXPECT_FALSE(Timer().isActive());
}

TEST_F(DemoFrmTest, ShowsTheLinkOnTheLastSlide)
{
    Open({"red.bmp,20,20,10,10,click,0", "green.bmp,20,20,10,10,click,5"});
    EXPECT_FALSE(Link().isVisible());
    ClickAt(kInside);
    EXPECT_TRUE(Link().isVisible());
    EXPECT_EQ(Link().text(), QStringLiteral("Click to view other Demo"));
    EXPECT_TRUE(form->rect().contains(Link().geometry()));
    EXPECT_GE(Link().y(), Pic().geometry().bottom());
}

TEST_F(DemoFrmTest, EndsBehindTheLastSlide)
{
    Open({"red.bmp,20,20,10,10,click,5"});
    StartToPlay();
    ClickAt(kInside);
    EXPECT_EQ(play.PlayState, PlayState::Stopped);
    EXPECT_FALSE(Timer().isActive());
    EXPECT_EQ(Shown(), "red");
    EXPECT_TRUE(Link().hasFocus()) << "the next key opens the other demos";
    ClickAt(kInside);
    EXPECT_EQ(Shown(), "red");
    EXPECT_TRUE(form->isVisible());
}

TEST_F(DemoFrmTest, IsOverAtOnceForAnUnknownDemoAndForOneWithoutSlides)
{
    PutDemos({{"Empty", {}}});
    for (const char* name : {"Empty", "Nobody"}) {
        OpenDemo(name);
        EXPECT_TRUE(Link().isVisible()) << name;
        EXPECT_FALSE(Timer().isActive());
        EXPECT_EQ(Spoken(), "This is the end of the demo.");
    }
}

TEST_F(DemoFrmTest, OpensTheOtherDemosByTheLink)
{
    PutDemos({{"Hear & see", {"red.bmp,20,20,10,10,click,0"}},
              {"Paint", {"green.bmp,20,20,10,10,drag,4", "blue.bmp,20,20,10,10,click,0"}}});
    OpenDemo("Hear & see");
    ClickAt(kInside);
    std::string entries;
    WithNextMenu([&entries](QMenu& menu) {
        for (const QAction* const entry : menu.actions())
            entries += entry->text().toStdString() + "|" + entry->objectName().toStdString() + "|";
        EXPECT_EQ(menu.objectName(), QStringLiteral("MenuPop2"));
        Pick(menu, 1);
    });
    QTest::mouseClick(&Link(), Qt::LeftButton);
    EXPECT_EQ(entries, "Hear && see|MenuPop2_1|Paint|MenuPop2_2|");
    EXPECT_EQ(Shown(), "green");
    EXPECT_FALSE(Link().isVisible());
    EXPECT_EQ(form->windowTitle(), QStringLiteral("Demo: Paint"));
    EXPECT_EQ(Timer().interval(), 4000);
    Press(kInside);
    Drag(kInside);
    EXPECT_EQ(Shown(), "blue");
}

TEST_F(DemoFrmTest, StaysWhereTheMenuOfTheOtherDemosIsLeft)
{
    Open({"red.bmp,20,20,10,10,click,0"});
    ClickAt(kInside);
    WithNextMenu([](QMenu&) {});
    QTest::keyClick(&Link(), Qt::Key_Space);
    EXPECT_TRUE(Link().isVisible());
    EXPECT_EQ(Shown(), "red");
}

TEST_F(DemoFrmTest, ShowsTheFirstOfTwoDemosOfOneName)
{
    PutDemos({{"Twice", {"red.bmp,20,20,10,10,click,0"}}, {"twice", {"green.bmp,20,20,10,10,click,0"}}});
    OpenDemo("twice");
    EXPECT_EQ(Shown(), "red");
}

TEST_F(DemoFrmTest, ShowsALargePictureSmallerAndScalesThePointerBack)
{
    const QSize room = QApplication::primaryScreen()->availableGeometry().size();
    const int side = room.width() * 2;
    PutPicture("huge.png", Qt::red, {side, 100});
    const std::string at = std::to_string(side - 100);
    Open({"huge.png," + at + ",40,20,20,click,0", "green.bmp,20,20,10,10,click,0"});
    EXPECT_LE(form->width(), room.width());
    const double scale = static_cast<double>(Pic().width()) / side;
    ClickAt({static_cast<int>((side - 130) * scale), static_cast<int>(50 * scale)});
    EXPECT_EQ(Shown(), "red");
    ClickAt({static_cast<int>((side - 90) * scale), static_cast<int>(50 * scale)});
    EXPECT_EQ(Shown(), "green");
}

TEST_F(DemoFrmTest, GoesOnAnywhereWhereAPictureCannotBeLoaded)
{
    PutPicture("wide.png", Qt::red, {4097, 1});
    WriteBytes(folder / "damaged.bmp", "no picture");
    PutPicture("../secret.bmp", Qt::red);
    const std::string absolute = (services.folder.Path() / "secret.bmp").string();
    for (const std::string& name : {std::string("missing.bmp"), std::string("damaged.bmp"), std::string("wide.png"),
                                    std::string("../secret.bmp"), std::string(".."), absolute, std::string()}) {
        Open({"green.bmp,20,20,10,10,click,2", name + ",20,20,10,10,drag,1", "blue.bmp,20,20,10,10,click,0"});
        ClickAt(kInside);
        EXPECT_EQ(Shown(), "green") << name << ": the slide stays as it was";
        EXPECT_EQ(Timer().interval(), 2000);
        EXPECT_TRUE(Timer().isActive());
        EXPECT_FALSE(Link().isVisible());
        ClickAt(kOutside);
        EXPECT_EQ(Shown(), "blue") << name;
    }
    EXPECT_THAT(services.messages.shown, SizeIs(0));
}

TEST_F(DemoFrmTest, GoesOnWhereTheVeryFirstPictureIsMissing)
{
    Open({"missing.bmp,20,20,10,10,click,0", "blue.bmp,20,20,10,10,click,0"});
    EXPECT_EQ(Pic().size(), QSize(480, 320));
    EXPECT_EQ(Spoken(), "Press Space to go on. Picture 1 of 2");
    ClickAt(kOutside);
    EXPECT_EQ(Shown(), "blue");
}

TEST_F(DemoFrmTest, FindsPicturesInAnyLetterCase)
{
    Open({"RED.BMP,20,20,10,10,click,0"});
    EXPECT_EQ(Shown(), "red");
}

TEST_F(DemoFrmTest, StopsItsTimersWhenItCloses)
{
    Open({"red.bmp,20,20,10,10,click,5"});
    EXPECT_TRUE(Timer().isActive());
    EXPECT_TRUE(PulseTimer().isActive());
    form->close();
    EXPECT_FALSE(Timer().isActive());
    EXPECT_FALSE(AheadTimer().isActive());
    EXPECT_FALSE(PulseTimer().isActive());
}

TEST_F(DemoFrmTest, IsShownModally)
{
    PutDemos({{"Paint", {"red.bmp,20,20,10,10,click,0", "green.bmp,20,20,10,10,click,0"}}});
    form = std::make_unique<Demo_frm>(nullptr, "Paint");
    bool isModal = false;
    WithNextForm([this, &isModal](BandedForm& shown) {
        isModal = &shown == form.get();
        ClickAt(kInside);
        EXPECT_EQ(Shown(), "green");
        Click(shown, "CloseImgBtn");
    });
    form->ShowModal();
    EXPECT_TRUE(isModal);
}

} // namespace
} // namespace sprout
