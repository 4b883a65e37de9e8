// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/TransportCommands.h"

#include "main_window/CommandsTest.h"

namespace sprout {
namespace {

using testing::ElementsAre;

constexpr const char* kSelectTune = "Please select tune for track using tune button.";

class TransportTest : public CommandsTest {};

// The whole song

TEST_F(TransportTest, PlaysTheMixOfTheSong)
{
    Paint(1, 5, 6);
    Paint(2, 9, 9);
    statusLbl.setText(QStringLiteral("Play all button"));
    transport.PlayAllBtn();
    EXPECT_TRUE(song.SongMixValid);
    EXPECT_TRUE(SoundStarted());
    EXPECT_EQ(FramesPlayed(), song.SongMix.Length);
    EXPECT_EQ(play.PlayingTrack, kWholeSong);
    EXPECT_EQ(play.PlayStartPos, 5);
    EXPECT_EQ(play.PlayState, PlayState::Playing);
    EXPECT_EQ(Status(), "Playing All");
    EXPECT_TRUE(Timer("PlayPosTimer").isActive());
    EXPECT_EQ(Timer("PlayPosTimer").interval(), 40);
    EXPECT_TRUE(statusLbl.text().isEmpty());
}

TEST_F(TransportTest, AsksForPaintWhereATuneIsChosenAndPlaysNothing)
{
    const NextForm form;
    transport.PlayAllBtn();
    EXPECT_THAT(form.lines, ElementsAre("Please paint on the track.", "Use the paint button and draw on the track."));
    EXPECT_FALSE(song.SongMixValid);
    EXPECT_TRUE(sound.calls.empty());
}

TEST_F(TransportTest, AsksForATuneAndGoesOnToAMixOfNothing)
{
    NewSong();
    const NextForm form;
    transport.PlayAllBtn();
    EXPECT_THAT(form.lines, ElementsAre(kSelectTune));
    EXPECT_TRUE(song.SongMixValid);
    EXPECT_FALSE(SoundStarted());
    EXPECT_EQ(play.PlayState, PlayState::Stopped);
    EXPECT_EQ(play.PlayingTrack, 0);
    EXPECT_EQ(Status(), "Ready");
}

TEST_F(TransportTest, RendersNothingWhereTheMixIsStillValid)
{
    Paint(1, 1, 4);
    transport.PlayAllBtn();
    const int signs = services.screen.processPicsShown;
    transport.PlayAllBtn();
    EXPECT_EQ(services.screen.processPicsShown, signs);
    EXPECT_EQ(sound.objects, 2);
}

TEST_F(TransportTest, DoesNothingWithoutASoundDriver)
{
    SetSoundDriver(false);
    Paint(1, 1, 4);
    const NextForm form;
    transport.PlayAllBtn();
    EXPECT_TRUE(sound.calls.empty());
    EXPECT_EQ(Status(), "Ready");
    EXPECT_FALSE(Timer("PlayPosTimer").isActive());
}

TEST_F(TransportTest, ShowsNoIndicatorWhereNoDeviceOpens)
{
    sound.opens = false;
    Paint(1, 1, 4);
    const NextForm form;
    transport.PlayAllBtn();
    EXPECT_EQ(play.PlayingTrack, 0);
    EXPECT_EQ(Status(), "Ready");
    EXPECT_FALSE(Timer("PlayPosTimer").isActive());
    EXPECT_FALSE(MarkerShown("PlayPosImg0"));
    EXPECT_TRUE(services.messages.shown.empty());
}

TEST_F(TransportTest, TheFirstPlayWithoutASoundDeviceSaysWhatCanBeDone)
{
    sound.opens = false;
    Paint(1, 1, 4);
    const NextForm first;
    transport.PlayAllBtn();
    EXPECT_THAT(first.lines, ElementsAre("I cannot find a loudspeaker to play your music on.",
                                         "Plug in headphones or a loudspeaker and press play again. Or ask a "
                                         "grown-up."));
    transport.PlayAllBtn(); // once: a second message would wait here forever
    HoverPlayButton(1);
    transport.TrackPlayBtn();
    EXPECT_FALSE(MarkerShown("PlayPosImg0"));
    EXPECT_FALSE(MarkerShown("PlayPosImg1"));
    sound.opens = true;
    transport.PlayAllBtn();
    EXPECT_EQ(play.PlayState, PlayState::Playing);
}

TEST_F(TransportTest, TheSpaceBarPlaysAndStops)
{
    Paint(1, 1, 4);
    QTest::keyClick(canvas, Qt::Key_Space);
    EXPECT_EQ(play.PlayingTrack, kWholeSong);
    EXPECT_EQ(play.PlayState, PlayState::Playing);
    QTest::keyClick(canvas, Qt::Key_Space);
    EXPECT_EQ(play.PlayState, PlayState::Stopped);
}

TEST_F(TransportTest, StopsAndLetsTheTimerSeeIt)
{
    Paint(1, 1, 4);
    transport.PlayAllBtn();
    Tick("PlayPosTimer");
    statusLbl.setText(QStringLiteral("Stop play button"));
    transport.PlayStopBtn();
    EXPECT_TRUE(statusLbl.text().isEmpty());
    EXPECT_EQ(play.PlayState, PlayState::Stopped);
    EXPECT_TRUE(Timer("PlayPosTimer").isActive());
    EXPECT_TRUE(MarkerShown("PlayPosImg0"));
    Tick("PlayPosTimer");
    EXPECT_FALSE(Timer("PlayPosTimer").isActive());
    EXPECT_FALSE(MarkerShown("PlayPosImg0"));
    EXPECT_EQ(play.PlayingTrack, 0);
    EXPECT_EQ(play.PlayCursor, 0);
    EXPECT_EQ(Status(), "Done");
}

// The song from a cell

TEST_F(TransportTest, PlaysTheSongFromACellByAClickOnTheTimeBand)
{
    Paint(1, 5, 20);
    QTest::mouseClick(&Part("TrackPic"), Qt::LeftButton, {}, QPoint(CellLeft(canvas->View(), 6), 5));
    EXPECT_EQ(play.PlayStartPos, 6);
    EXPECT_EQ(play.PlayingTrack, kWholeSong);
    EXPECT_EQ(FramesPlayed(), song.SongMix.Length - 8269 + 1); // 0.1875 s, and the frame itself
    EXPECT_EQ(Status(), "Playing All");
}

TEST_F(TransportTest, PlaysTheSongFromItsFirstPaintForACellAheadOfIt)
{
    Paint(2, 5, 20);
    transport.PlaySongFrom(2);
    EXPECT_EQ(play.PlayStartPos, 5);
    EXPECT_EQ(FramesPlayed(), song.SongMix.Length);
}

TEST_F(TransportTest, PlaysNothingFromACellBehindTheSongsSoundOrOutsideTheSong)
{
    Paint(1, 5, 6);
    for (const std::int32_t cell : {1280, 0, -3, 1281})
        transport.PlaySongFrom(cell);
    EXPECT_TRUE(sound.calls.empty());
}

TEST_F(TransportTest, GoesOnFromACellAfterTheTuneMessageAndStopsAfterThePaintMessage)
{
    {
        const NextForm form;
        transport.PlaySongFrom(3);
        EXPECT_THAT(form.lines,
                    ElementsAre("Please paint on the track.", "Use the paint button and draw on the track."));
        EXPECT_FALSE(song.SongMixValid);
    }
    NewSong();
    const NextForm form;
    transport.PlaySongFrom(3);
    EXPECT_THAT(form.lines, ElementsAre(kSelectTune));
    EXPECT_TRUE(song.SongMixValid);
}

TEST_F(TransportTest, ChecksNothingFromACellOfFiveTracks)
{
    song.TrackCount = 5;
    song.Tracks.resize(6);
    for (const std::int32_t number : {4, 5})
        ResetTrack(number);
    const NextForm form;
    transport.PlaySongFrom(3);
    QCoreApplication::processEvents();
    EXPECT_TRUE(form.lines.empty());
    EXPECT_TRUE(song.SongMixValid);
    EXPECT_FALSE(SoundStarted());
}

// One track

TEST_F(TransportTest, PlaysTheHoveredTrack)
{
    Paint(2, 7, 8);
    HoverPlayButton(2);
    QTest::mouseClick(&Part("TrackPlayBtn"), Qt::LeftButton);
    EXPECT_EQ(play.PlayingTrack, 2);
    EXPECT_EQ(play.PlayStartPos, 7);
    EXPECT_EQ(FramesPlayed(), song.Tracks[2].TrackRender.Length);
    EXPECT_EQ(Status(), "Playing Track 2");
}

TEST_F(TransportTest, PlaysAnAudioTrackAlone)
{
    MakeAudio(2, 5000);
    Paint(2, 7, 8);
    HoverPlayButton(2);
    transport.TrackPlayBtn();
    EXPECT_EQ(FramesPlayed(), 8269 + 5000); // once per cell
}

TEST_F(TransportTest, AsksForAStepOrPaintAndPlaysNoTrack)
{
    HoverPlayButton(1);
    {
        const NextForm form;
        transport.TrackPlayBtn();
        EXPECT_THAT(form.lines,
                    ElementsAre("This track is not painted.", "Use the Brush button and paint on the track."));
    }
    song.Tracks[1].TrackTune.Steps[1].OnPos = 0;
    song.Tracks[1].TrackTune.Steps[2].OnPos = 0;
    Paint(1, 1, 4);
    const NextForm form;
    transport.TrackPlayBtn();
    EXPECT_THAT(form.lines, ElementsAre("Please select a tune or edit it.", "Use the first button on the left."));
    EXPECT_FALSE(song.Tracks[1].TrackRenderValid);
    EXPECT_TRUE(sound.calls.empty());
}

TEST_F(TransportTest, PlaysNoTrackWhereNoneIsHovered)
{
    Paint(1, 1, 4);
    transport.TrackPlayBtn();
    EXPECT_TRUE(sound.calls.empty());
}

TEST_F(TransportTest, PlaysATrackFromAnUnpaintedCellWithPaintToItsRight)
{
    Paint(2, 5, 6);
    Paint(2, 20, 21);
    canvas->SetCurrentTool(Tool::PlayTool);
    QTest::mouseClick(&Part("TrackPic"), Qt::LeftButton, {}, CellPlace(2, 10));
    EXPECT_EQ(play.PlayingTrack, 2);
    EXPECT_EQ(play.PlayStartPos, 10);
    EXPECT_EQ(FramesPlayed(), song.Tracks[2].TrackRender.Length - 41344 + 1); // 5 cells of 8268.75
}

TEST_F(TransportTest, PlaysATrackFromItsFirstPaintForACellAheadOfIt)
{
    Paint(2, 5, 6);
    transport.PlayTrackFrom(2, 3);
    EXPECT_EQ(play.PlayStartPos, 5);
    EXPECT_EQ(FramesPlayed(), song.Tracks[2].TrackRender.Length);
}

TEST_F(TransportTest, AsksForAClickOnThePaintFromACellBehindIt)
{
    Paint(2, 5, 6);
    const NextForm form;
    transport.PlayTrackFrom(2, 30);
    EXPECT_THAT(form.lines, ElementsAre("Please click on the painted area on the track to play from there."));
    EXPECT_TRUE(sound.calls.empty());
}

TEST_F(TransportTest, AsksForPaintOrAStepFromACell)
{
    {
        const NextForm form;
        transport.PlayTrackFrom(2, 30);
        EXPECT_THAT(form.lines, ElementsAre("Please paint on the track, after that you can play it.",
                                            "Use the paint button and draw on the track."));
    }
    song.Tracks[2].TrackTune.Steps[1].OnPos = 0;
    song.Tracks[2].TrackTune.Steps[2].OnPos = 0;
    const NextForm form;
    transport.PlayTrackFrom(2, 30);
    EXPECT_THAT(form.lines, ElementsAre("Please select a tune or edit it.", "Use the first button on the left."));
    EXPECT_TRUE(sound.calls.empty());
}

TEST_F(TransportTest, PlaysNoTrackOutsideTheRanges)
{
    Paint(1, 1, 1280);
    transport.PlayTrackFrom(0, 5);
    transport.PlayTrackFrom(4, 5);
    transport.PlayTrackFrom(1, 0);
    transport.PlayTrackFrom(1, 1281);
    EXPECT_TRUE(sound.calls.empty());
}

TEST_F(TransportTest, TellsOfAFailureInABoxAndLetsNothingOut)
{
    class FailingScreen : public FakeScreen {
        void ShowHourglass() override { throw std::bad_alloc(); }
    } screen;
    TheServices().screen = &screen;
    Paint(1, 1, 4);
    transport.PlayAllBtn();
    transport.PlaySongFrom(1);
    transport.PlayTrackFrom(1, 1);
    HoverPlayButton(1);
    transport.TrackPlayBtn();
    EXPECT_EQ(services.messages.shown.size(), 4U);
    HoverPicture(1);
    transport.EnableTrackTitlePlayTimer();
    Tick("TrackTitlePlayTimer");
    EXPECT_EQ(services.messages.shown.size(), 5U);
    EXPECT_FALSE(Timer("TrackTitlePlayTimer").isActive()); // once is enough
    EXPECT_TRUE(sound.calls.empty());
}

} // namespace
} // namespace sprout
