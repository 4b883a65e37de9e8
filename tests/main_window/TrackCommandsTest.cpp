// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/TrackCommands.h"

#include <utility>

#include "base/Errors.h"
#include "core/SongTime.h"
#include "main_window/CommandsTest.h"
#include "support/Flags.h"

namespace sprout {
namespace {

using testing::ElementsAre;

class TrackCommandsTest : public CommandsTest {
protected:
    TrackCommandsTest()
    {
        SetSongMixValid(song, true);
        for (Track& track : song.Tracks)
            SetTrackRenderValid(track, true);
    }

    void PlaySomething() { PlayWaveStatus(CountingWave(100), Words::Text("Playing"), Loop::No); }
    void HoverDeleteButton(std::int32_t number) const { Hover(number, 75); }
    /// What both surfaces show. The first drawing keeps nothing, so only a second one shows what is stale.
    [[nodiscard]] std::pair<QImage, QImage> Shown() const
    {
        const auto grab = [this](const char* name) {
            static_cast<void>(Part(name).grab());
            return Part(name).grab().toImage();
        };
        return {grab("TrackTitlePic"), grab("TrackPic")};
    }
    /// Returns true if redrawing everything changes nothing.
    [[nodiscard]] bool ShowsTheSongAsItIs() const
    {
        const auto shown = Shown();
        canvas->DrawTracksAll();
        return Shown() == shown;
    }
    [[nodiscard]] bool Marked() const { return !song.SongMixValid && song.SongChanged; }
    [[nodiscard]] bool Unmarked() const { return song.SongMixValid && !song.SongChanged; }
};

TEST_F(TrackCommandsTest, AddsATrackWithTheChosenTune)
{
    bool flagAtFirst = true;
    windows.tuneWindow = [&](Tune& tune, bool& newFlag) {
        EXPECT_EQ(song.TrackCount, 4);
        EXPECT_EQ(&tune, &song.Tracks[4].TrackTune);
        EXPECT_EQ(play.PlayState, PlayState::Stopped);
        flagAtFirst = newFlag;
        GiveTune(tune);
        return true;
    };
    PlaySomething();
    statusLbl.setText(QStringLiteral("Add Music track button."));
    QTest::mouseClick(&Part("TrackAddBtn"), Qt::LeftButton);
    EXPECT_TRUE(statusLbl.text().isEmpty());
    EXPECT_FALSE(flagAtFirst);
    EXPECT_EQ(song.TrackCount, 4);
    EXPECT_FALSE(song.Tracks[4].TrackRenderValid);
    EXPECT_TRUE(song.Tracks[3].TrackRenderValid);
    EXPECT_TRUE(Marked());
    EXPECT_EQ(Part("TrackAddBtn").y(), 4 * 46 + 30); // the rows were redrawn
}

TEST_F(TrackCommandsTest, ACancelledAddTakesTheTrackAwayAndMarksTheSong)
{
    tracks->TrackAddBtn();
    EXPECT_EQ(windows.tuneWindowsOpened, 1);
    EXPECT_EQ(song.TrackCount, 3);
    EXPECT_EQ(song.Tracks.size(), 4U);
    EXPECT_FALSE(song.Tracks[3].TrackRenderValid);
    EXPECT_TRUE(Marked());
    EXPECT_EQ(Part("TrackAddBtn").y(), 3 * 46 + 30);
}

TEST_F(TrackCommandsTest, TheAddedTrackAndTheButtonsBelowItComeIntoView)
{
    const auto isInView = [this](std::int32_t count) {
        return canvas->View().FirstTrack <= count &&
               Part("TrackAddBtn").geometry().bottom() < Part("TrackTitlePic").height();
    };
    windows.tuneWindow = [&](Tune& tune, bool&) {
        EXPECT_TRUE(isInView(song.TrackCount));
        GiveTune(tune);
        return true;
    };
    for (int i = 0; i < 12; ++i) {
        tracks->TrackAddBtn();
        EXPECT_TRUE(isInView(song.TrackCount)) << song.TrackCount;
    }
    EXPECT_GT(canvas->View().FirstTrack, 1);
}

TEST_F(TrackCommandsTest, NoMarkerStandsBehindTheTuneWindow)
{
    Paint(1, 5, 40);
    bool shown = true;
    windows.tuneWindow = [&](Tune&, bool&) {
        shown = MarkerShown("PlayPosImg0");
        PlaySomething(); // as the tune window does
        Tick("PlayPosTimer");
        shown = shown || MarkerShown("PlayPosImg0");
        return false;
    };
    for (const auto& open : {std::function<void()>([this] { tracks->TrackAddBtn(); }), std::function<void()>([this] {
                                 HoverPicture(1);
                                 tracks->TrackTuneBtn();
                             })}) {
        SetSongMixValid(song, false);
        transport.PlayAllBtn();
        Tick("PlayPosTimer");
        ASSERT_TRUE(MarkerShown("PlayPosImg0"));
        open();
        EXPECT_FALSE(shown);
    }
}

TEST_F(TrackCommandsTest, ATuneWindowThatFailsLeavesNoTrackBehind)
{
    windows.tuneWindow = [](Tune&, bool&) -> bool { throw RunTimeError(Words::AsIs("No window.")); };
    tracks->TrackAddBtn();
    EXPECT_EQ(song.TrackCount, 3);
    ASSERT_EQ(services.messages.shown.size(), 1U);
    EXPECT_EQ(services.messages.shown[0].text, "No window.");
}

TEST_F(TrackCommandsTest, AChosenTuneIsAChangeThoughItsCycleCannotBeRendered)
{
    class FailingScreen : public FakeScreen {
        void ShowHourglass() override { throw std::bad_alloc(); }
    } screen;
    windows.tuneWindow = [&screen](Tune& tune, bool&) {
        GiveTune(tune);
        TheServices().screen = &screen;
        return true;
    };
    HoverPicture(2);
    tracks->TrackTuneBtn();
    ASSERT_EQ(services.messages.shown.size(), 1U);
    EXPECT_EQ(services.messages.shown[0].text, "There is not enough memory.");
    EXPECT_TRUE(Marked());
    EXPECT_FALSE(song.Tracks[2].TrackRenderValid);
}

TEST_F(TrackCommandsTest, DeletesTheHoveredTrackAfterAQuestion)
{
    song.Tracks[3].TrackTune.Name = "Lila";
    Paint(3, 8, 9);
    canvas->DrawTracksAll();
    PlaySomething();
    HoverDeleteButton(2);
    const NextForm form("YesBtn");
    QTest::mouseClick(&Part("TrackDeleteBtn"), Qt::LeftButton);
    EXPECT_EQ(form.caption, "  Confirm Delete Track");
    EXPECT_THAT(form.lines, ElementsAre("Are you sure to delete this Track?", "Track No: 2"));
    EXPECT_EQ(song.TrackCount, 2);
    EXPECT_EQ(song.Tracks[2].TrackTune.Name, "Lila");
    EXPECT_EQ(song.Tracks[2].Painted[8], 1);
    EXPECT_TRUE(Marked());
    EXPECT_EQ(play.PlayState, PlayState::Stopped);
    EXPECT_EQ(Part("TrackAddBtn").y(), 2 * 46 + 30);
}

TEST_F(TrackCommandsTest, ANoKeepsTheTrackAndTheSound)
{
    PlaySomething();
    HoverDeleteButton(2);
    const NextForm form("NoBtn");
    statusLbl.setText(QStringLiteral("Delete button"));
    tracks->TrackDeleteBtn();
    EXPECT_TRUE(statusLbl.text().isEmpty());
    EXPECT_EQ(form.lines.size(), 2U);
    EXPECT_EQ(song.TrackCount, 3);
    EXPECT_TRUE(Unmarked());
    EXPECT_EQ(play.PlayState, PlayState::Playing);
}

TEST_F(TrackCommandsTest, TheOnlyTrackIsEmptiedWithoutAQuestion)
{
    song.TrackCount = 1;
    song.Tracks.resize(2);
    MakeAudio(1, 100);
    Paint(1, 3, 4);
    HoverDeleteButton(1);
    const NextForm form;
    tracks->TrackDeleteBtn();
    QCoreApplication::processEvents();
    EXPECT_TRUE(form.lines.empty());
    EXPECT_EQ(song.TrackCount, 1);
    EXPECT_EQ(song.Tracks[1].TrackType, 0);
    EXPECT_EQ(FindFirstPainted(song.Tracks[1], song.SongCells), 0);
    EXPECT_TRUE(Unmarked());
}

TEST_F(TrackCommandsTest, DeletesNothingWhereNoTrackIsHovered)
{
    const NextForm form("YesBtn");
    tracks->TrackDeleteBtn();
    QCoreApplication::processEvents();
    EXPECT_TRUE(form.lines.empty());
    EXPECT_EQ(song.TrackCount, 3);
}

TEST_F(TrackCommandsTest, AChosenTuneIsRenderedAndMakesItsTrackStale)
{
    SetTuneWaveValid(song.Tracks[2].TrackTune, true);
    windows.tuneWindow = [this](Tune& tune, bool& newFlag) {
        EXPECT_EQ(&tune, &song.Tracks[2].TrackTune);
        EXPECT_FALSE(newFlag);
        EXPECT_EQ(play.PlayState, PlayState::Stopped);
        EXPECT_FALSE(canvas->TrackTuneBtnVisible());
        newFlag = true;
        return true;
    };
    PlaySomething();
    HoverPicture(2);
    QTest::mouseClick(&Part("TrackTuneBtn"), Qt::LeftButton);
    EXPECT_EQ(windows.tuneWindowsOpened, 1);
    EXPECT_TRUE(song.Tracks[2].TrackTune.TuneWaveValid);
    EXPECT_GT(song.Tracks[2].TrackTune.TuneWave.Length, 0);
    EXPECT_FALSE(song.Tracks[2].TrackRenderValid);
    EXPECT_TRUE(song.Tracks[1].TrackRenderValid);
    EXPECT_TRUE(Marked());
}

TEST_F(TrackCommandsTest, TheRowShowsATuneThatWasChosen)
{
    Paint(2, 1, 40);
    canvas->DrawTracksAll();
    const auto before = Shown();
    windows.tuneWindow = [](Tune& tune, bool&) {
        tune.Picture = Shared().BlankStarPic;
        tune.StepCount = 8; // a different cycle
        return true;
    };
    HoverPicture(2);
    tracks->TrackTuneBtn();
    EXPECT_NE(Shown().first, before.first);
    EXPECT_NE(Shown().second, before.second);
    EXPECT_TRUE(ShowsTheSongAsItIs());
}

TEST_F(TrackCommandsTest, TheRowsBelowADeletedTrackMoveUp)
{
    song.Tracks[3].TrackTune.Picture = Shared().BlankStarPic;
    Paint(3, 8, 9);
    canvas->DrawTracksAll();
    const auto before = Shown();
    HoverDeleteButton(2);
    const NextForm form("YesBtn");
    tracks->TrackDeleteBtn();
    EXPECT_NE(Shown().first, before.first);
    EXPECT_NE(Shown().second, before.second);
    EXPECT_TRUE(ShowsTheSongAsItIs());
}

TEST_F(TrackCommandsTest, ACancelledTuneWindowRendersATuneThatIsNotRenderedAndMarksNothing)
{
    HoverPicture(2);
    tracks->TrackTuneBtn();
    EXPECT_TRUE(song.Tracks[2].TrackTune.TuneWaveValid);
    EXPECT_GT(song.Tracks[2].TrackTune.TuneWave.Length, 0);
    EXPECT_TRUE(song.Tracks[2].TrackRenderValid);
    EXPECT_TRUE(Unmarked());
    // A rendered one does not change.
    song.Tracks[2].TrackTune.TuneWave = WaveData();
    HoverPicture(2);
    tracks->TrackTuneBtn();
    EXPECT_EQ(song.Tracks[2].TrackTune.TuneWave.Length, 0);
}

TEST_F(TrackCommandsTest, OpensNoTuneWindowWhereNoTrackIsHovered)
{
    PlaySomething();
    statusLbl.setText(QStringLiteral("Tune button"));
    tracks->TrackTuneBtn();
    EXPECT_TRUE(statusLbl.text().isEmpty());
    EXPECT_EQ(windows.tuneWindowsOpened, 0);
    EXPECT_EQ(play.PlayState, PlayState::Playing);
}

TEST_F(TrackCommandsTest, TracksWithoutATuneBlinkOnceTheTimerIsOn)
{
    QTimer& timer = Timer("TuneNotFilledTimer");
    EXPECT_FALSE(timer.isActive());
    EXPECT_EQ(timer.interval(), 300);
    tracks->EnableTuneNotFilledTimer();
    EXPECT_TRUE(timer.isActive());

    song.Tracks[2].TrackTune.Picture = Shared().BlankPic;
    canvas->DrawTracksAll();
    const auto picture = [this] {
        const QImage strip = Part("TrackTitlePic").grab().toImage();
        return strip.pixelColor(24 + 16, RowTop(canvas->View(), 2) + 7 + 16);
    };
    const QColor blank = picture();
    Tick("TuneNotFilledTimer");
    EXPECT_TRUE(SamePicture(song.Tracks[2].TrackTune.Picture, Shared().BlankStarPic));
    EXPECT_NE(picture(), blank);
    Tick("TuneNotFilledTimer");
    EXPECT_EQ(picture(), blank);
    EXPECT_TRUE(timer.isActive());
}

TEST_F(TrackCommandsTest, NothingBlinksWhileASongIsChosen)
{
    song.Tracks[2].TrackTune.Picture = Shared().BlankPic;
    tracks->SetOpening(true);
    Tick("TuneNotFilledTimer");
    EXPECT_TRUE(SamePicture(song.Tracks[2].TrackTune.Picture, Shared().BlankPic));
    tracks->SetOpening(false);
    Tick("TuneNotFilledTimer");
    EXPECT_TRUE(SamePicture(song.Tracks[2].TrackTune.Picture, Shared().BlankStarPic));
}

TEST_F(TrackCommandsTest, TheTimerRunsOnWithNothingToBlink)
{
    tracks->EnableTuneNotFilledTimer();
    Tick("TuneNotFilledTimer");
    EXPECT_TRUE(Timer("TuneNotFilledTimer").isActive());
}

} // namespace
} // namespace sprout
