// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/AheadOfPlay.h"

#include <gmock/gmock.h>

#include <QDialog>
#include <QEventLoop>
#include <QTest>

#include <string>
#include <thread>
#include <vector>

#include "base/Errors.h"
#include "core/SongChanges.h"
#include "support/FakeServices.h"

namespace sprout {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Notes what it is asked for.
class NotedWork : public AheadWork {
public:
    void Begin() override
    {
        calls.emplace_back("Begin");
        interrupted = false;
        if (fails)
            throw RunTimeError(Words::AsIs("No memory"));
    }
    void AllowMix() override { calls.emplace_back("AllowMix"); }
    void TakeResults() override { calls.emplace_back("TakeResults"); }
    void Interrupt() override { calls.emplace_back("Interrupt"); }
    [[nodiscard]] bool WasInterrupted() const override { return interrupted; }

    std::vector<std::string> calls;
    bool interrupted = false;
    bool fails = false;
};

class AheadOfPlayTest : public testing::Test {
protected:
    AheadOfPlayTest()
        : ahead([this](std::function<void()> tell) {
              auto made = std::make_unique<NotedWork>();
              work = made.get();
              tellResult = std::move(tell);
              return made;
          })
    {
        Sleep(); // it has looked at the song of the start
    }

    /// Handles all events, goes to sleep and is woken by a timer.
    static void Sleep()
    {
        QEventLoop loop;
        QTimer::singleShot(1, &loop, &QEventLoop::quit);
        loop.exec();
    }

    [[nodiscard]] std::vector<std::string> Calls() const { return std::exchange(work->calls, {}); }

    [[nodiscard]] QTimer& MixTimer() const { return *ahead.findChild<QTimer*>(); }

    /// As if half a second had passed.
    void PassMixTime() const { QMetaObject::invokeMethod(&MixTimer(), "timeout"); }

    static void Change() { SongChanges::TitleChanged(Shared().Song); }

    FakeServices fake;
    NotedWork* work = nullptr;
    std::function<void()> tellResult;
    AheadOfPlay ahead;
};

TEST_F(AheadOfPlayTest, LooksAtTheSongOfTheStartAndThenRests)
{
    EXPECT_THAT(Calls(), ElementsAre("Begin"));
    Sleep();
    Sleep();
    EXPECT_THAT(Calls(), IsEmpty());
}

TEST_F(AheadOfPlayTest, BeginsAnewAfterEveryChange)
{
    static_cast<void>(Calls());
    Change();
    Change();
    EXPECT_THAT(Calls(), IsEmpty()) << "not in the middle of the command";
    Sleep();
    EXPECT_THAT(Calls(), ElementsAre("Begin"));
    Change();
    Sleep();
    EXPECT_THAT(Calls(), ElementsAre("Begin"));
}

TEST_F(AheadOfPlayTest, AllowsTheMixHalfASecondAfterTheLastChange)
{
    EXPECT_TRUE(MixTimer().isActive());
    EXPECT_TRUE(MixTimer().isSingleShot());
    EXPECT_EQ(MixTimer().interval(), 500);
    static_cast<void>(Calls());
    PassMixTime();
    EXPECT_THAT(Calls(), ElementsAre("AllowMix"));
    Change();
    PassMixTime();
    EXPECT_THAT(Calls(), IsEmpty()) << "the song has just changed";
    MixTimer().stop();
    Sleep();
    EXPECT_TRUE(MixTimer().isActive());
}

TEST_F(AheadOfPlayTest, WaitsForTheEndOfAStroke)
{
    static_cast<void>(Calls());
    QWidget canvas;
    canvas.show();
    QTest::mousePress(&canvas, Qt::LeftButton);
    Sleep();
    EXPECT_THAT(Calls(), IsEmpty()) << "a press alone stops nothing: it may be on the play button";
    Change();
    Sleep();
    EXPECT_THAT(Calls(), ElementsAre("Interrupt"));
    EXPECT_FALSE(MixTimer().isActive());
    QTest::mouseRelease(&canvas, Qt::LeftButton);
    Sleep();
    EXPECT_THAT(Calls(), ElementsAre("Begin"));
    EXPECT_TRUE(MixTimer().isActive());
}

TEST_F(AheadOfPlayTest, WaitsUntilNoWindowIsOpenAboveTheMainWindow)
{
    static_cast<void>(Calls());
    QDialog dialog;
    dialog.setModal(true);
    dialog.show();
    Change();
    Sleep();
    EXPECT_THAT(Calls(), ElementsAre("Interrupt"));
    dialog.close();
    Sleep();
    EXPECT_THAT(Calls(), ElementsAre("Begin"));
}

TEST_F(AheadOfPlayTest, TakesUpWhatAPlayInterrupted)
{
    static_cast<void>(Calls());
    work->interrupted = true;
    Sleep();
    EXPECT_THAT(Calls(), ElementsAre("Begin"));
    Sleep();
    EXPECT_THAT(Calls(), IsEmpty());
}

TEST_F(AheadOfPlayTest, TakesResultsOfAnyThreadOnceOnItsOwn)
{
    static_cast<void>(Calls());
    std::thread([this] {
        tellResult();
        tellResult();
    }).join();
    EXPECT_THAT(Calls(), IsEmpty());
    Sleep();
    EXPECT_THAT(Calls(), ElementsAre("TakeResults"));
    tellResult();
    Sleep();
    EXPECT_THAT(Calls(), ElementsAre("TakeResults"));
}

TEST_F(AheadOfPlayTest, AFailureStaysQuietAndIsNotRepeated)
{
    static_cast<void>(Calls());
    work->fails = true;
    Change();
    Sleep();
    Sleep();
    EXPECT_THAT(Calls(), ElementsAre("Begin"));
    EXPECT_TRUE(fake.messages.shown.empty());
}

} // namespace
} // namespace sprout
