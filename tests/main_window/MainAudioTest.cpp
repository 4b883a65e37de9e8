// SPDX-License-Identifier: GPL-3.0-or-later
// The windows for the child's own sound, opened from the main window.
#include "main_window/MainWindowTest.h"
#include "sound/PlayTest.h"

namespace sprout {
namespace {

class MainAudioTest : public MainWindowTest {};

TEST_F(MainAudioTest, AsksWhereAnAudioTrackComesFrom)
{
    WithNextForm([](BandedForm& form) {
        EXPECT_EQ(form.objectName(), QStringLiteral("Msg3BtnFrm"));
        Click(form, "CancelBtn");
    });
    ClickButton("TrackAddRecBtn");
    EXPECT_FALSE(Song().SongChanged);
}

TEST_F(MainAudioTest, MakesATrackOfARecordingThatIsFinishedAndOfNoOther)
{
    fake.capture.leftSamples = {1, 2, 3};
    fake.capture.rightSamples = {4, 5, 6};
    const std::int32_t before = Song().TrackCount;
    const auto record = [this](const char* button) {
        WithNextForm([this, button](BandedForm& question) {
            WithNextForm([button](BandedForm& form) {
                EXPECT_EQ(form.objectName(), QStringLiteral("Recd_Frm"));
                Click(form, button);
            });
            Click(question, "StartRecordingBtn");
        });
        ClickButton("TrackAddRecBtn");
        EXPECT_EQ(fake.capture.calls.back(), "Release");
    };
    record("Cancel_Btn");
    EXPECT_EQ(Song().TrackCount, before);
    EXPECT_FALSE(Song().SongChanged);
    record("RecFinishBtn");
    ASSERT_EQ(Song().TrackCount, before + 1);
    const Track& track = At(Song().Tracks, before + 1);
    EXPECT_TRUE(track.IsAudio());
    EXPECT_EQ(track.TrackAudio.Length, 2);
    EXPECT_EQ(track.TrackAudio.WavL[1], 2) << "the first sample is lost";
    EXPECT_EQ(track.TrackAudio.WavR[2], 6);
    EXPECT_TRUE(Song().SongChanged);
    EXPECT_TRUE(std::filesystem::is_empty(Shared().TempFolder)) << "no voice is left";
}

TEST_F(MainAudioTest, HasNoRecordingWhereItIsSwitchedOff)
{
    const QRect both = Control("TrackAddBtn").geometry() | Control("TrackAddRecBtn").geometry();
    PutSetting("General", "HideRecord", "1");
    Open();
    EXPECT_FALSE(Control("TrackAddRecBtn").isVisible());
    EXPECT_EQ(Control("TrackAddBtn").geometry().center().x(), both.center().x());
    PutSetting("General", "HideRecord", "0");
    Open();
    EXPECT_TRUE(Control("TrackAddRecBtn").isVisible());
    EXPECT_EQ(Control("TrackAddBtn").geometry().left(), both.left());
}

TEST_F(MainAudioTest, RecordsNothingWhereTheMicrophoneCannotBeOpened)
{
    fake.capture.opening = CaptureOpening::NoMicrophone;
    const std::int32_t before = Song().TrackCount;
    std::string told;
    WithNextForm([&told](BandedForm& question) {
        WithNextForm([&told](BandedForm& form) {
            told = form.findChild<QLabel*>(QStringLiteral("NoteLbl2"))->text().toStdString();
            Click(form, "OkBtn");
        });
        Click(question, "StartRecordingBtn");
    });
    ClickButton("TrackAddRecBtn");
    EXPECT_EQ(told, "Please plug in a microphone.");
    EXPECT_EQ(Song().TrackCount, before);
    EXPECT_EQ(fake.capture.calls, (std::vector<std::string>{"ListSources", "Open", "Release"}));
}

TEST_F(MainAudioTest, EditsTheSoundOfAnAudioTrack)
{
    Track& track = At(Song().Tracks, 1);
    track.TrackType = static_cast<std::int32_t>(TrackKind::Audio);
    track.TrackAudio = CountingWave(1000);
    window->DrawTracksAll();
    QTest::mouseMove(&Control("TrackTitlePic"), QPoint(1, 1));
    QTest::mouseMove(&Control("TrackTitlePic"), QPoint(30, 40));
    WithNextForm([](BandedForm& form) {
        EXPECT_EQ(form.objectName(), QStringLiteral("AudioEditFrm"));
        Click(form, "CancelBtn");
    });
    ClickButton("TrackAudioBtn");
    EXPECT_FALSE(Song().SongChanged);
}

} // namespace
} // namespace sprout
