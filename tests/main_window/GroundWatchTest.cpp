// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/GroundWatch.h"

#include "main_window/MainMouseTest.h"

namespace sprout {
namespace {

class GroundWatchTest : public MainMouseTest {};

TEST_F(GroundWatchTest, HidesTheButtonsOfATrackOverThreePartsOfItsBackground)
{
    QWidget& bar = Control("ControlFramePic");
    QWidget& corner = Control("Corner3Pic");
    for (QWidget* ground : {static_cast<QWidget*>(window.get()), &bar, &corner}) {
        MoveInStrip(QPoint(110, 40));
        ASSERT_TRUE(Control("TrackPlayBtn").isVisible());
        MoveOverGround(*ground);
        EXPECT_FALSE(Control("TrackPlayBtn").isVisible()) << ground->objectName().toStdString();
    }
    MoveInStrip(QPoint(110, 40));
    EXPECT_EQ(HintOver("Corner4Pic"), "");
    EXPECT_TRUE(Control("TrackPlayBtn").isVisible());
    EXPECT_EQ(HintOver("TrackPlayBtn"), "Track play button, use it to test play this track");
    EXPECT_TRUE(Control("TrackPlayBtn").isVisible());
}

TEST(GroundWatch, TellsOfMovesBesideTheControlsAlone)
{
    QWidget ground;
    ground.resize(100, 50);
    ground.setMouseTracking(true);
    QWidget control(&ground);
    control.setGeometry(10, 10, 20, 20);
    ground.show();
    GroundWatch watch(nullptr);
    int moves = 0;
    QObject::connect(&watch, &GroundWatch::MovedOver, [&moves] { ++moves; });
    const auto move = [&ground](QPointF at) {
        QMouseEvent event(QEvent::MouseMove, at, ground.mapToGlobal(at), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(&ground, &event);
    };
    move({50, 20});
    EXPECT_EQ(moves, 0);
    watch.Watch(ground);
    move({50, 20});
    EXPECT_EQ(moves, 1);
    move({15, 15});
    EXPECT_EQ(moves, 1);
}

} // namespace
} // namespace sprout
