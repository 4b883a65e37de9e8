// SPDX-License-Identifier: GPL-3.0-or-later
#include "recording/RecordingSources.h"

#include "recording/RecdFrmFixture.h"

namespace sprout {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::Not;

class RecordingSourcesTest : public RecdFrmFixture {};

TEST_F(RecordingSourcesTest, ListsTheSources)
{
    EXPECT_EQ(Sources().count(), 2);
    EXPECT_EQ(Sources().currentText(), QStringLiteral("Microphone"));
    EXPECT_EQ(Text("VolumeLbl"), "100%");
    EXPECT_THAT(capture.calls, ElementsAre("ListSources")) << "filling the list selects nothing";
}

TEST_F(RecordingSourcesTest, SaysFailedWhereThereIsNoMixerAndRecordsAllTheSame)
{
    capture.sources.reset();
    form = std::make_unique<Recd_Frm>(nullptr);
    EXPECT_EQ(Sources().count(), 1);
    EXPECT_EQ(Sources().currentText(), QStringLiteral("Failed"));
    EXPECT_FALSE(Sources().isEnabled());
    EXPECT_FALSE(Pointer().isEnabled());
    capture.leftSamples = {1, 2, 3};
    Record([this] { Click(*form, "RecFinishBtn"); });
    EXPECT_TRUE(form->Ok);
    EXPECT_EQ(Recd().RecdLength, 2);
}

TEST_F(RecordingSourcesTest, SelectsTheSourceThatIsChosen)
{
    capture.sources->Sources.insert(capture.sources->Sources.begin(), {" ", 1}); // it gets no line
    capture.sources->Selected = 1;
    form = std::make_unique<Recd_Frm>(nullptr);
    capture.calls.clear();
    Record([this] {
        Sources().setFocus();
        QTest::keyClick(&Sources(), Qt::Key_Down);
        EXPECT_THAT(capture.calls, Contains("SelectSource 2"));
        EXPECT_EQ(Sources().currentText(), QStringLiteral("Headset"));
        EXPECT_EQ(Text("VolumeLbl"), "50%");
        EXPECT_EQ(capture.calls.back(), "ListSources");
    });
}

TEST_F(RecordingSourcesTest, FollowsSourcesThatComeAndGo)
{
    Record([this] {
        capture.sources->Sources.push_back({"Webcam", 100});
        Tell(CaptureState::Recording, 1);
        EXPECT_EQ(Sources().count(), 2) << "nobody said that there is a change";
        ++capture.sourceChanges;
        Tell(CaptureState::Recording, 1);
        EXPECT_EQ(Sources().count(), 3);
        EXPECT_EQ(Sources().currentText(), QStringLiteral("Microphone"));
        capture.sources = SoundSources{};
        ++capture.sourceChanges;
        Tick("CaptureTimer"); // although the capture has nothing new
        EXPECT_EQ(Sources().currentText(), QStringLiteral("Failed"));
        EXPECT_FALSE(Sources().isEnabled());
        capture.sources = SoundSources{{{"Webcam", 6554}}, 0};
        ++capture.sourceChanges;
        Tick("CaptureTimer");
        EXPECT_EQ(Sources().count(), 1);
        EXPECT_EQ(Sources().currentText(), QStringLiteral("Webcam"));
        EXPECT_TRUE(Sources().isEnabled());
        EXPECT_TRUE(Pointer().isEnabled());
        EXPECT_EQ(Text("VolumeLbl"), "10%");
        EXPECT_THAT(capture.calls, Not(Contains(testing::StartsWith("SelectSource"))));
    });
}

TEST_F(RecordingSourcesTest, DragsTheVolume)
{
    const QRect slot = Control<QWidget>("VolumeSliderImg").geometry();
    Record([this, slot] {
        EXPECT_EQ(Pointer().geometry().right(), slot.right());
        QTest::mousePress(&Pointer(), Qt::LeftButton, {}, QPoint(10, 10));
        const int room = slot.width() - Pointer().width();
        QTest::mouseMove(&Pointer(), QPoint(10 - room / 2, 10));
        EXPECT_EQ(Text("VolumeLbl"), "50%");
        EXPECT_THAT(capture.calls, Not(Contains(testing::StartsWith("SetVolume")))) << "before the release";
        capture.sources->Sources[0].Volume = 0;
        ++capture.sourceChanges;
        Tick("CaptureTimer");
        EXPECT_EQ(Text("VolumeLbl"), "50%") << "the pointer stays in the hand";
        QTest::mouseMove(&Pointer(), QPoint(-2000, 10));
        EXPECT_EQ(Pointer().x(), slot.left());
        QTest::mouseMove(&Pointer(), QPoint(10 + room * 3 / 4, 10));
        QTest::mouseRelease(&Pointer(), Qt::LeftButton, {}, QPoint(10, 10));
        EXPECT_EQ(Text("VolumeLbl"), "75%");
        EXPECT_THAT(capture.calls, Contains("SetVolume 0 49151"));
        EXPECT_EQ(capture.calls.back(), "ListSources");
    });
}

TEST_F(RecordingSourcesTest, ChangesTheVolumeByKeys)
{
    capture.sources->Selected = 1;
    form = std::make_unique<Recd_Frm>(nullptr);
    Record([this] {
        QTest::keyClick(&Pointer(), Qt::Key_Right);
        EXPECT_THAT(capture.calls, Contains("SetVolume 1 33423")); // 51 %
        EXPECT_EQ(Text("VolumeLbl"), "51%");
        QTest::keyClick(&Pointer(), Qt::Key_PageUp);
        EXPECT_EQ(Text("VolumeLbl"), "61%");
        QTest::keyClick(&Pointer(), Qt::Key_Home);
        EXPECT_EQ(Text("VolumeLbl"), "0%");
    });
}

TEST_F(RecordingSourcesTest, AVolumeBeyondAHundredStaysUntilTheSliderIsTouched)
{
    capture.sources->Sources[0].Volume = 98304;
    form = std::make_unique<Recd_Frm>(nullptr);
    Record([this] {
        EXPECT_EQ(Text("VolumeLbl"), "100%");
        EXPECT_EQ(capture.sources->Sources[0].Volume, 98304);
    });
}

} // namespace
} // namespace sprout
