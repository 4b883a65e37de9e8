// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/forms/WorkFrm.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QTest>
#include <QTimer>

#include "base/Errors.h"
#include "ui/ModalSteps.h"
#include "ui/forms/QtScreen.h"

namespace sprout {
namespace {

WorkFrm* ShownWork()
{
    return qobject_cast<WorkFrm*>(QApplication::activeModalWidget());
}

TEST(WorkFrm, ShowsWhatIsDoneAndHowFarItIs)
{
    WorkFrm form(nullptr, Words::Text("Mixing your song"));
    form.Appear();
    auto* label = form.findChild<QLabel*>(QStringLiteral("WorkLbl"));
    auto* bar = form.findChild<QProgressBar*>(QStringLiteral("WorkBar"));
    EXPECT_EQ(form.findChild<QLabel*>(QStringLiteral("CaptionLbl"))->text(),
              QStringLiteral(" Tonquill Sprout Painter"));
    EXPECT_EQ(label->text(), QStringLiteral("Mixing your song"));
    EXPECT_EQ(bar->value(), 0);
    form.ShowShare(1, 4);
    EXPECT_EQ(bar->value(), bar->maximum() / 4);
    form.ShowShare(0, 0);
    EXPECT_EQ(bar->value(), bar->maximum() / 4);
    form.ShowStage(Words::Text("Writing the wav file"));
    EXPECT_EQ(label->text(), QStringLiteral("Writing the wav file"));
    EXPECT_EQ(bar->value(), 0);
}

TEST(WorkFrm, StopsByItsButtonItsCloseBoxAndEscape)
{
    for (const char* button : {"StopBtn", "CloseImgBtn"}) {
        WorkFrm form(nullptr, Words::AsIs("Mixing"));
        form.Appear();
        EXPECT_FALSE(form.StopWanted());
        Click(form, button);
        EXPECT_TRUE(form.StopWanted()) << button;
        EXPECT_TRUE(form.isVisible()) << "until the work has ended";
    }
    WorkFrm form(nullptr, Words::AsIs("Mixing"));
    form.Appear();
    QTest::keyClick(&form, Qt::Key_Escape);
    EXPECT_TRUE(form.StopWanted());
}

TEST(WorkFrm, DoesNotTakeTheKeyThatBeganTheWorkForAStop)
{
    WorkFrm form(nullptr, Words::AsIs("Mixing"));
    form.Appear();
    QTest::keyClick(&form, Qt::Key_Return);
    QTest::keyClick(&form, Qt::Key_Enter);
    QTest::keyClick(&form, Qt::Key_Space);
    EXPECT_FALSE(form.StopWanted());
    QTest::keyClick(&form, Qt::Key_Tab);
    QTest::keyClick(form.focusWidget(), Qt::Key_Space);
    EXPECT_TRUE(form.StopWanted());
}

/// Stoppable work on a screen, which goes on until a condition holds or far too much time has passed.
class StoppableWorkTest : public testing::Test {
protected:
    template <class Done>
    bool WorkUntil(Done done)
    {
        QElapsedTimer working;
        working.start();
        while (!done() && !working.hasExpired(30'000))
            screen.ShowProgress(1, 2);
        return done();
    }

    QtScreen screen;
};

TEST_F(StoppableWorkTest, ShowsAFormOnceItHasLasted)
{
    QElapsedTimer working;
    working.start();
    screen.BeginStoppable(Words::Text("Mixing your song"));
    screen.ShowProgress(1, 2);
    EXPECT_EQ(ShownWork(), nullptr) << "short work shows none";
    ASSERT_TRUE(WorkUntil([] { return ShownWork() != nullptr; }));
    EXPECT_GE(working.elapsed(), 500);
    EXPECT_EQ(ShownWork()->findChild<QLabel*>(QStringLiteral("WorkLbl"))->text(), QStringLiteral("Mixing your song"));
    screen.NextStage(Words::AsIs("Writing"));
    EXPECT_EQ(ShownWork()->findChild<QLabel*>(QStringLiteral("WorkLbl"))->text(), QStringLiteral("Writing"));
    screen.EndStoppable();
    EXPECT_EQ(ShownWork(), nullptr);
}

TEST_F(StoppableWorkTest, EndsWhenTheButtonIsClicked)
{
    screen.BeginStoppable(Words::AsIs("Mixing"));
    ASSERT_TRUE(WorkUntil([] { return ShownWork() != nullptr; }));
    Click(*ShownWork(), "StopBtn");
    EXPECT_THROW(screen.ShowProgress(1, 2), WorkStopped);
    screen.EndStoppable();
    screen.ShowProgress(1, 2); // later work was not stopped
}

TEST_F(StoppableWorkTest, LetsNoOtherTimerTick)
{
    QTimer blinking;
    int ticks = 0;
    QObject::connect(&blinking, &QTimer::timeout, [&ticks] { ++ticks; });
    blinking.start(0);
    screen.BeginStoppable(Words::AsIs("Mixing"));
    ASSERT_TRUE(WorkUntil([] { return ShownWork() != nullptr; }));
    QElapsedTimer shown;
    shown.start();
    ASSERT_TRUE(WorkUntil([&shown] { return shown.hasExpired(100); }));
    EXPECT_EQ(ticks, 0);
    screen.EndStoppable();
    QCoreApplication::processEvents();
    EXPECT_GT(ticks, 0) << "they go on behind it";
}

TEST_F(StoppableWorkTest, ThePointerIsNoHourglassOverItsButton)
{
    screen.ShowHourglass();
    screen.BeginStoppable(Words::AsIs("Mixing"));
    EXPECT_NE(QApplication::overrideCursor(), nullptr);
    ASSERT_TRUE(WorkUntil([] { return ShownWork() != nullptr; }));
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    screen.ShowHourglass();
    screen.RestorePointer();
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    screen.EndStoppable();
    EXPECT_NE(QApplication::overrideCursor(), nullptr);
    screen.RestorePointer();
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

} // namespace
} // namespace sprout
