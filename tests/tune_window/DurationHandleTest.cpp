// SPDX-License-Identifier: GPL-3.0-or-later
#include "tune_window/DurationHandle.h"

#include <QMouseEvent>

#include "tune_window/StepEditorTest.h"

namespace sprout {
namespace {

using BarTest = StepEditorTest;

/// A point on a bar's handle.
QPoint HandleOf(const DurationBar& bar)
{
    return {bar.handleX + 3, bar.handleY + 3};
}

TEST_F(BarTest, OffersItsHandleUnderThePointer)
{
    EXPECT_TRUE(Handle().isHidden());
    const DurationBar bar = Surface().DurationBars()[2];
    MoveTo(QPoint(bar.left + 2, bar.top + 2));
    EXPECT_FALSE(Handle().isHidden());
    EXPECT_EQ(Handle().pos(), QPoint(bar.handleX, bar.handleY));
    MoveTo(HandleOf(bar));
    EXPECT_EQ(Surface().cursor().shape(), Qt::SizeHorCursor);
    EXPECT_EQ(Hint(), "Click on a piano key to change pitch");
    editor.UpdateThisTune();
    EXPECT_TRUE(Handle().isHidden());
}

TEST_F(BarTest, OffersItsHandleInTheGapBehindItsColumnToo)
{
    const DurationBar bar = Surface().DurationBars()[2];
    MoveTo(QPoint(bar.right, bar.bottom));
    EXPECT_FALSE(Handle().isHidden());
}

TEST_F(BarTest, IsDrawnOutByItsEndAndKeepsWhatIsRendered)
{
    const DurationBar bar = Surface().DurationBars()[1];
    MoveTo(HandleOf(bar));
    QTest::mousePress(&Surface(), Qt::LeftButton, Qt::NoModifier, HandleOf(bar));
    EXPECT_TRUE(Handle().isHidden());
    EXPECT_FALSE(HasPlayed());
    MoveTo(HandleOf(bar) + QPoint(3, 40));
    EXPECT_EQ(tune.Steps[1].Duration, 115);
    EXPECT_EQ(Played(), 601) << "as it was rendered last";
    EXPECT_EQ(Surface().DurationBars()[1].handleX, bar.handleX + 3);
    MoveTo(HandleOf(bar) + QPoint(5, 40));
    EXPECT_EQ(tune.Steps[1].Duration, 125);
    MoveTo(HandleOf(bar) + QPoint(300, 0));
    EXPECT_EQ(tune.Steps[1].Duration, 200);
    MoveTo(HandleOf(bar) + QPoint(310, 0));
    MoveTo(HandleOf(bar) + QPoint(295, 0));
    EXPECT_EQ(tune.Steps[1].Duration, 175) << "counted from where it last changed";
    MoveTo(QPoint(-500, 0));
    EXPECT_EQ(tune.Steps[1].Duration, 0);
    QTest::mouseRelease(&Surface(), Qt::LeftButton, Qt::NoModifier, QPoint(0, 0));
    MoveTo(HandleOf(bar));
    EXPECT_EQ(tune.Steps[1].Duration, 0) << "the drag has ended";
    EXPECT_EQ(edits, 0);
    EXPECT_TRUE(tune.Steps[1].StepWaveValid);
    EXPECT_TRUE(tune.TuneWaveValid);
}

TEST_F(BarTest, IsLetGoWhenTheReleaseWentElsewhere)
{
    const auto send = [this](QEvent::Type type, QPoint place, Qt::MouseButton held) {
        QMouseEvent event(type, place, Surface().mapToGlobal(place), Qt::LeftButton, held, Qt::NoModifier);
        QApplication::sendEvent(&Surface(), &event);
    };
    const QPoint handle = HandleOf(Surface().DurationBars()[1]);
    send(QEvent::MouseMove, handle, Qt::NoButton);
    ASSERT_FALSE(Handle().isHidden());
    send(QEvent::MouseButtonPress, handle, Qt::LeftButton);
    send(QEvent::MouseMove, handle + QPoint(5, 0), Qt::NoButton);
    EXPECT_EQ(tune.Steps[1].Duration, 100) << "no button is down any more";
    ClickAt(In(2, 100));
    EXPECT_EQ(chooserGot.size(), 1U);
}

TEST_F(BarTest, CanBeDrawnOutFromADurationOf0)
{
    tune.Steps[1].Duration = 0;
    editor.UpdateThisTune();
    const DurationBar bar = Surface().DurationBars()[1];
    EXPECT_EQ(bar.right - bar.left, kDurationLeftWidth + kDurationRightWidth);
    MoveTo(HandleOf(bar));
    QTest::mousePress(&Surface(), Qt::LeftButton, Qt::NoModifier, HandleOf(bar));
    MoveTo(HandleOf(bar) + QPoint(10, 0));
    EXPECT_EQ(tune.Steps[1].Duration, 50);
    QTest::mouseRelease(&Surface(), Qt::LeftButton, Qt::NoModifier, HandleOf(bar));
}

TEST_F(BarTest, OfTheEarlierStepComesFirstWhereTwoLieOverEachOther)
{
    tune.Steps[1].Duration = 200;
    editor.UpdateThisTune();
    const DurationBar first = Surface().DurationBars()[1];
    const DurationBar second = Surface().DurationBars()[2];
    MoveTo(QPoint(second.left + 2, second.top + 3));
    EXPECT_EQ(Handle().pos(), QPoint(first.handleX, first.handleY));
}

TEST_F(BarTest, HandleCountsADragFromWhereTheBarLastChanged)
{
    QWidget parent;
    DurationHandle handle(&parent);
    const std::vector<DurationBar> bars{{}, BarOfStep(1, kStepsLeftAtStart, 0, 100)};
    handle.OfferAt({bars[1].left + 2, 30}, bars, tune);
    EXPECT_TRUE(handle.isHidden()) << "the lamps have no bars";
    handle.OfferAt({bars[1].left + 2, bars[1].top + 2}, bars, tune);
    ASSERT_FALSE(handle.isHidden());
    EXPECT_EQ(handle.Step(), 1);
    EXPECT_TRUE(handle.IsAt({bars[1].handleX + 1, bars[1].handleY + 1}));
    EXPECT_FALSE(handle.IsAt({bars[1].handleX - 1, bars[1].handleY + 1}));
    EXPECT_FALSE(handle.EndDrag());
    handle.BeginDrag({100, 50});
    EXPECT_FALSE(handle.IsAt({bars[1].handleX + 1, bars[1].handleY + 1}));
    EXPECT_EQ(handle.DraggedBy({104, 0}), 4);
    handle.HoldAt({104, 0});
    EXPECT_EQ(handle.DraggedBy({101, 0}), -3);
    EXPECT_TRUE(handle.IsDragged());
    EXPECT_TRUE(handle.EndDrag());
    EXPECT_FALSE(handle.IsDragged());
}

} // namespace
} // namespace sprout
