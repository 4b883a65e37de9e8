// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/WelcomeCard.h"

#include <QAccessible>

#include <array>

#include "main_window/MainMouseTest.h"
#include "main_window/TrackCanvas.h"
#include "ui/look/Palette.h"

namespace sprout {
namespace {

constexpr std::array kSizes{QSize(533, 400), QSize(600, 400), QSize(800, 600), QSize(1000, 640), QSize(1280, 800)};

/// Also run at a scale of 2.
class WelcomeCardTest : public MainMouseTest {
protected:
    WelcomeCardTest()
    {
        window->resize(800, 600);
        canvasBefore = PlaceOf(Canvas());
        window->ShowWelcome();
    }

    [[nodiscard]] QWidget& Canvas() const { return *window->findChild<TrackCanvas*>(); }

    [[nodiscard]] bool IsShown(const char* name) const
    {
        const auto* control = window->findChild<QWidget*>(QString::fromLatin1(name));
        return control && control->isVisible();
    }

    /// Where a control is in the window.
    [[nodiscard]] QRect PlaceOf(const QWidget& control) const
    {
        return {control.mapTo(window.get(), QPoint(0, 0)), control.size()};
    }

    /// Clicks what is at a point of the window.
    void ClickAt(QPoint place) const
    {
        QWidget* under = window->childAt(place);
        ASSERT_TRUE(under);
        QTest::mouseClick(under, Qt::LeftButton, {}, under->mapFrom(window.get(), place));
    }

    void ExpectPutAway() const
    {
        EXPECT_FALSE(IsShown("WelcomeCard"));
        EXPECT_FALSE(IsShown("WelcomeHandPlayAllBtn"));
        EXPECT_FALSE(IsShown("WelcomeHandDemoBtn"));
        EXPECT_EQ(PlaceOf(Canvas()), canvasBefore);
        EXPECT_EQ(TextOf("StatusLbl"), "");
    }

    QRect canvasBefore;
};

TEST_F(WelcomeCardTest, PointsToPlayAllAndToTheDemos)
{
    EXPECT_TRUE(IsShown("WelcomeCard"));
    EXPECT_EQ(TextOf("StatusLbl"), "Click Play all to hear the song, or Demo to see how to make one");
    for (const QSize size : kSizes) {
        window->resize(size);
        for (const char* name : {"PlayAllBtn", "DemoBtn"}) {
            const QWidget& hand = Control((std::string("WelcomeHand") + name).c_str());
            EXPECT_TRUE(hand.isVisible());
            const QRect place = PlaceOf(hand);
            EXPECT_EQ(window->childAt(place.topLeft()), &Control(name)) << "the hand lets clicks through";
            for (const ImageButton* button : Control("ControlFramePic").findChildren<ImageButton*>())
                if (button != &Control(name) && button->isVisible()) {
                    EXPECT_FALSE(PlaceOf(*button).intersects(place)) << button->objectName().toStdString();
                }
        }
    }
}

TEST_F(WelcomeCardTest, CoversNothingOfTheWindow)
{
    for (const QSize size : kSizes) {
        window->resize(size);
        const QRect card = PlaceOf(Control("WelcomeCard"));
        EXPECT_TRUE(IsShown("WelcomeCard"));
        EXPECT_TRUE(window->rect().contains(card)) << size.width();
        for (const QWidget* part : {&Canvas(), &Control("ControlFramePic"), &Control("StatusFramePic"),
                                    &Control("MainTitlePic"), &Control("Corner3Pic"), &Control("Corner4Pic")})
            EXPECT_FALSE(PlaceOf(*part).intersects(card)) << part->objectName().toStdString() << " " << size.width();
    }
}

TEST_F(WelcomeCardTest, LeavesTheTracksWhereTheyWere)
{
    const QRect canvas = PlaceOf(Canvas());
    EXPECT_EQ(canvas.topLeft(), canvasBefore.topLeft());
    EXPECT_EQ(canvas.width(), canvasBefore.width());
    EXPECT_EQ(canvas.height(), canvasBefore.height() - 50);
}

TEST_F(WelcomeCardTest, IsLeftOutWithItsHandsWhereNoRowWouldBeSeen)
{
    window->resize(533, 200);
    EXPECT_FALSE(IsShown("WelcomeCard"));
    EXPECT_FALSE(IsShown("WelcomeHandPlayAllBtn"));
    window->resize(800, 600);
    EXPECT_TRUE(IsShown("WelcomeCard"));
    EXPECT_TRUE(IsShown("WelcomeHandPlayAllBtn"));
}

TEST_F(WelcomeCardTest, IsPutAwayByOneClickAnywhereOnIt)
{
    const QRect card = PlaceOf(Control("WelcomeCard"));
    for (const QPoint place : {card.center(), card.topLeft() + QPoint(14, 20), card.bottomRight() - QPoint(14, 20),
                               PlaceOf(Control("WelcomeCloseBtn")).center()}) {
        ClickAt(place);
        ExpectPutAway();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_FALSE(window->findChild<QWidget*>(QStringLiteral("WelcomeCard")));
        EXPECT_FALSE(window->findChild<QWidget*>(QStringLiteral("WelcomeHandDemoBtn")));
        window->ShowWelcome();
    }
}

TEST_F(WelcomeCardTest, StaysWhereAnotherButtonIsUsedOrTheMouseIsLetGoBesideIt)
{
    QWidget& card = Control("WelcomeCard");
    QTest::mouseClick(&card, Qt::RightButton);
    EXPECT_TRUE(IsShown("WelcomeCard"));
    QTest::mousePress(&card, Qt::LeftButton);
    QTest::mouseRelease(&card, Qt::LeftButton, {}, QPoint(50, -20));
    EXPECT_TRUE(IsShown("WelcomeCard"));
}

TEST_F(WelcomeCardTest, IsReachedByTheFirstTabAndPutAwayByKeys)
{
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape}) {
        ASSERT_EQ(window->focusWidget(), &Control("TrackPic")) << key;
        QTest::keyClick(window->focusWidget(), Qt::Key_Tab);
        ASSERT_EQ(window->focusWidget(), &Control("WelcomeCloseBtn")) << key;
        EXPECT_EQ(TextOf("StatusLbl"), "Click here to put this card away");
        QTest::keyClick(window->focusWidget(), key);
        ExpectPutAway();
        EXPECT_EQ(window->focusWidget(), &Control("TrackPic")) << key;
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        window->ShowWelcome();
    }
}

TEST_F(WelcomeCardTest, LeavesTheOrderOfTabAsItWas)
{
    ClickButton("WelcomeCloseBtn");
    QTest::keyClick(window->focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(window->focusWidget(), &Control("PlayAllBtn"));
}

TEST_F(WelcomeCardTest, LeavesTheFocusWhereItIsWhenItIsClicked)
{
    Control("SaveBtn").setFocus();
    ClickButton("WelcomeCard");
    EXPECT_EQ(window->focusWidget(), &Control("SaveBtn"));
}

TEST_F(WelcomeCardTest, TellsOnTheStatusLineHowToPutItAway)
{
    for (const char* name : {"WelcomeCard", "WelcomeCloseBtn"}) {
        ShowHint({});
        EXPECT_EQ(HintOver(name), "Click here to put this card away") << name;
    }
}

TEST_F(WelcomeCardTest, IsAnAlertForScreenReaders)
{
    const auto spoken = [this](const char* name) { return QAccessible::queryAccessibleInterface(&Control(name)); };
    EXPECT_EQ(spoken("WelcomeCard")->role(), QAccessible::AlertMessage);
    EXPECT_EQ(spoken("WelcomeCard")->text(QAccessible::Name).toStdString(),
              "Welcome! Play all plays the song, Demo shows you how to make one.");
    EXPECT_EQ(spoken("WelcomeCloseBtn")->text(QAccessible::Name).toStdString(), "Put away");
    for (const char* name : {"WelcomeCard", "WelcomeCloseBtn"})
        EXPECT_EQ(spoken(name)->text(QAccessible::Description).toStdString(), "Click here to put this card away");
}

TEST_F(WelcomeCardTest, IsDrawnOnSunWithTheGlyphsOfTheButtons)
{
    for (const QSize size : kSizes) {
        window->resize(size);
        const QPixmap drawn = Control("WelcomeCard").grab();
        const QImage picture = drawn.toImage();
        const auto at = [&](int x, int y) {
            return picture.pixelColor(QPointF(x, y).toPoint() * drawn.devicePixelRatio());
        };
        EXPECT_EQ(at(30, 2), kSun) << size.width();
        EXPECT_EQ(at(5, 22), kSun) << size.width();
        bool hasLeaf = false;
        for (int x = 12; x < 240; ++x)
            hasLeaf = hasLeaf || at(x, 22) == kLeaf;
        EXPECT_TRUE(hasLeaf) << "the triangle of Play all " << size.width();
    }
}

TEST_F(WelcomeCardTest, LeavesTheSongAlone)
{
    ClickButton("WelcomeCard");
    EXPECT_FALSE(Song().SongChanged);
    EXPECT_EQ(PlayShared().PlayState, PlayState::Stopped);
}

} // namespace
} // namespace sprout
