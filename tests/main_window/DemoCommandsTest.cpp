// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/DemoCommands.h"

#include <QMenu>

#include "base/Errors.h"
#include "main_window/CommandsTest.h"

namespace sprout {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kTimers[] = {"PlayPosTimer", "TrackTitlePlayTimer", "TuneNotFilledTimer"};

class DemoCommandsTest : public CommandsTest {
protected:
    DemoCommandsTest()
    {
        windows.demoNames = {"Hear a song", "Paint"};
        windows.demo = [this](std::string_view name) {
            shown.emplace_back(name);
            timersInDemo = RunningTimers();
        };
    }

    [[nodiscard]] std::string RunningTimers()
    {
        std::string running;
        for (const char* name : kTimers)
            running += Timer(name).isActive() ? 'y' : 'n';
        return running;
    }

    /// Clicks the button; the menu that opens is given to `steps` and then closed.
    void DemoBtn(const std::function<void(QMenu&)>& steps)
    {
        QTimer::singleShot(0, &window, [this, steps] {
            auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            ASSERT_NE(menu, nullptr);
            timersInMenu = RunningTimers();
            steps(*menu);
            menu->close();
        });
        DemoCommands(transport, *tracks).DemoBtn(window);
    }
    static void Pick(QMenu& menu, int entry)
    {
        menu.setActiveAction(menu.actions().at(entry));
        QTest::keyClick(&menu, Qt::Key_Return);
    }
    void PickFirst()
    {
        DemoBtn([](QMenu& menu) { Pick(menu, 0); });
    }

    std::vector<std::string> shown;
    std::string timersInMenu;
    std::string timersInDemo;
};

TEST_F(DemoCommandsTest, ShowsTheDemoThatIsPicked)
{
    std::vector<std::string> entries;
    DemoBtn([&entries](QMenu& menu) {
        EXPECT_EQ(menu.objectName(), QStringLiteral("PopUpMenu1"));
        for (const QAction* const entry : menu.actions())
            entries.push_back(entry->objectName().toStdString() + " " + entry->text().toStdString());
        Pick(menu, 1);
    });
    EXPECT_THAT(entries, ElementsAre("MenuPop1 Hear a song", "MenuPop2 Paint"));
    EXPECT_THAT(shown, ElementsAre("Paint"));
}

TEST_F(DemoCommandsTest, ClearsTheHint)
{
    ShowHint(Words::AsIs("A hint"));
    DemoBtn([this](QMenu&) { EXPECT_EQ(statusLbl.text(), QString()); });
}

TEST_F(DemoCommandsTest, SwitchesAllTimersOffUntilTheDemoIsOver)
{
    transport.EnablePlayPosTimer();
    transport.EnableTrackTitlePlayTimer();
    tracks->EnableTuneNotFilledTimer();
    PickFirst();
    EXPECT_EQ(timersInMenu, "nnn");
    EXPECT_EQ(timersInDemo, "nnn");
    EXPECT_EQ(RunningTimers(), "nny");
}

TEST_F(DemoCommandsTest, BlinksAfterADemoWhateverWasBefore)
{
    PickFirst();
    EXPECT_EQ(RunningTimers(), "nny");
}

TEST_F(DemoCommandsTest, GivesTheTimersBackAsTheyRanWhereNothingIsPicked)
{
    for (const std::string ran : {"yyy", "nnn", "ynn", "nyn", "nny"}) {
        for (std::size_t i = 0; i < 3; ++i)
            ran[i] == 'y' ? Timer(kTimers[i]).start() : Timer(kTimers[i]).stop();
        DemoBtn([](QMenu&) {});
        EXPECT_EQ(timersInMenu, "nnn");
        EXPECT_EQ(RunningTimers(), ran);
    }
    EXPECT_THAT(shown, IsEmpty());
}

TEST_F(DemoCommandsTest, LetsASongGoOnWhereNothingIsPicked)
{
    Paint(1, 1, 4);
    transport.PlayAllBtn();
    ASSERT_EQ(play.PlayState, PlayState::Playing);
    DemoBtn([](QMenu&) {});
    EXPECT_EQ(play.PlayState, PlayState::Playing);
    EXPECT_EQ(play.PlayingTrack, kWholeSong);
    EXPECT_EQ(RunningTimers(), "ynn");
}

TEST_F(DemoCommandsTest, EndsWhatTheDemoHasPlayed)
{
    Paint(1, 1, 4);
    transport.PlayAllBtn();
    windows.demo = [this](std::string_view) { play.DemoPlaying = true; };
    PickFirst();
    EXPECT_EQ(play.PlayState, PlayState::Stopped);
    EXPECT_FALSE(play.DemoPlaying);
    EXPECT_EQ(play.PlayingTrack, 0) << "or hover play would wait for ever";
    EXPECT_EQ(Status(), "Done");
    EXPECT_EQ(RunningTimers(), "nny");
}

TEST_F(DemoCommandsTest, PlaysOnHoverAfterADemoAsBefore)
{
    const auto hoverPlay = [this] {
        HoverPicture(2);
        QTest::mouseMove(&Part("TrackTuneBtn"), QPoint(5, 5));
        QTest::mouseMove(&Part("TrackTuneBtn"), QPoint(7, 7));
        EXPECT_TRUE(Timer("TrackTitlePlayTimer").isActive());
        sound.calls.clear();
        Tick("TrackTitlePlayTimer");
        EXPECT_TRUE(SoundStarted());
        EXPECT_EQ(FramesPlayed(), song.Tracks[2].TrackTune.TuneWave.Length);
        return Status() + " " + std::to_string(Timer("TrackTitlePlayTimer").interval());
    };
    const std::string before = hoverPlay();
    EXPECT_EQ(before, "Playing Star 4000");
    Paint(1, 1, 4);
    transport.PlayAllBtn();
    windows.demo = [this](std::string_view) {
        play.DemoPlaying = true;
        PlayWaveStatus(CountingWave(300), Words::Text("Playing Tune"), Loop::No);
    };
    PickFirst();
    EXPECT_FALSE(Timer("TrackTitlePlayTimer").isActive()) << "the next move of the mouse starts it";
    EXPECT_EQ(hoverPlay(), before);
    Timer("TrackTitlePlayTimer").stop();
    QTest::mousePress(&Part("TrackPic"), Qt::LeftButton, {}, CellPlace(2, 10));
    EXPECT_TRUE(Timer("TrackTitlePlayTimer").isActive()) << "or a stroke";
    QTest::mouseRelease(&Part("TrackPic"), Qt::LeftButton, {}, CellPlace(2, 10));
}

TEST_F(DemoCommandsTest, EndsADemoThatFailsToo)
{
    windows.demo = [this](std::string_view) {
        play.DemoPlaying = true;
        throw RunTimeError(Words::AsIs("The demo is torn."));
    };
    PickFirst();
    ASSERT_EQ(services.messages.shown.size(), 1U);
    EXPECT_EQ(services.messages.shown[0].text, "The demo is torn.");
    EXPECT_FALSE(play.DemoPlaying);
    EXPECT_EQ(RunningTimers(), "nny");
}

TEST_F(DemoCommandsTest, TellsThatThereIsNoDemo)
{
    windows.demoNames.clear();
    tracks->EnableTuneNotFilledTimer();
    const NextForm message;
    DemoCommands(transport, *tracks).DemoBtn(window);
    EXPECT_THAT(message.lines,
                ElementsAre("There is no demo to watch yet.", "Click the Help button to read how to make a song."));
    EXPECT_EQ(RunningTimers(), "nny");
}

} // namespace
} // namespace sprout
