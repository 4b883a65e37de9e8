// SPDX-License-Identifier: GPL-3.0-or-later
#include "recording/AudioEditFixture.h"
#include "recording/rules/WaveMaker.h"
#include "ui/FormAnswers.h"

namespace sprout {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kNoSelection = "Make a selection on the waveform|(by mouse drag) to adjust volume or delete.|";

class AudioEditCommandsTest : public AudioEditFixture {};

TEST_F(AudioEditCommandsTest, AsksForASelectionBeforeItEdits)
{
    FormAnswers answers(statusLbl, {"OkBtn", "OkBtn", "OkBtn"});
    for (const char* name : {"VolumeUpBtn", "VolumeDnBtn", "DeleteBtn"})
        Click(name);
    EXPECT_THAT(answers.seen, ElementsAre(kNoSelection, kNoSelection, kNoSelection));
    EXPECT_EQ(Taken(), CountingWave(16000));
    EXPECT_THAT(sound.calls, IsEmpty());
}

TEST_F(AudioEditCommandsTest, AsksForASelectionAfterAClickAndInAnEmptyWave)
{
    FormAnswers answers(statusLbl, {"OkBtn", "OkBtn"});
    QTest::mouseClick(&Pic(), Qt::LeftButton, {}, {150, 30});
    statusLbl.clear();
    Click("DeleteBtn");
    OpenWave(WaveData());
    Drag(10, 100);
    statusLbl.clear();
    Click("VolumeUpBtn");
    EXPECT_THAT(answers.seen, ElementsAre(kNoSelection, kNoSelection));
}

TEST_F(AudioEditCommandsTest, EndsADragWhereAKeyBringsAMessage)
{
    FormAnswers answers(statusLbl, {"OkBtn"});
    QTest::mousePress(&Pic(), Qt::LeftButton, {}, {100, 30});
    QTest::mouseMove(&Pic(), {200, 30});
    statusLbl.clear();
    QTest::keyClick(&Pic(), Qt::Key_Delete);
    EXPECT_THAT(answers.seen, ElementsAre(kNoSelection));
    EXPECT_FALSE(Part("SelectBandShp").isVisible());
    EXPECT_EQ(Boxed(), "100-200");
}

TEST_F(AudioEditCommandsTest, MakesTheSelectedPartLouderAndPlaysTheWholeWave)
{
    Drag(-5, 5000);
    Click("VolumeUpBtn");
    EXPECT_EQ(display.status, "Playing Recorded");
    EXPECT_EQ(play.PlayKind, PlayKind::Recording);
    EXPECT_EQ(play.PlayState, PlayState::Playing);
    EXPECT_EQ(play.PlayLength, 16000);
    EXPECT_EQ(Taken().WavL[1000], 1250);
    EXPECT_EQ(Audio().WavR[16000], -20000);
}

TEST_F(AudioEditCommandsTest, MakesTheSelectedPartSofterAndKeepsTheSelection)
{
    Drag(-5, 5000);
    Click("VolumeDnBtn");
    Click("VolumeDnBtn");
    EXPECT_EQ(Taken().WavL[1000], 640);
}

TEST_F(AudioEditCommandsTest, HoldsLoudSamplesToTheLimit)
{
    OpenWave(MonoOf({30000, -30000, 30000}));
    Drag(-5, 5000);
    Click("VolumeUpBtn");
    EXPECT_THAT(SamplesOf(Taken().WavL), ElementsAre(32767, -32768, 32767));
}

TEST_F(AudioEditCommandsTest, CutsTheSelectedPartOutAndSelectsNothing)
{
    Drag(-5, 368);
    Click("DeleteBtn");
    EXPECT_EQ(Spoken(), QStringLiteral("Nothing is selected"));
    EXPECT_TRUE(Part("SelectOkLbl").isVisible());
    EXPECT_EQ(play.PlayState, PlayState::Playing);
    const WaveData& left = Taken();
    EXPECT_EQ(play.PlayLength, left.Length);
    EXPECT_EQ(left.Length, 16000 - left.WavL[1] + 1); // the counting wave shows where the cut was
    EXPECT_NEAR(left.Length, 8000, 22);
    EXPECT_EQ(left.WavR[left.Length], -16000);
}

TEST_F(AudioEditCommandsTest, DoesNotDeleteAll)
{
    FormAnswers answers(statusLbl, {"OkBtn"});
    QTest::keyClick(&Pic(), Qt::Key_A, Qt::ControlModifier);
    Click("TestPlayBtn");
    Click("DeleteBtn");
    EXPECT_THAT(answers.seen, ElementsAre("Can not delete all,|Select a part and delete.|"));
    EXPECT_EQ(play.PlayState, PlayState::Stopped);
    EXPECT_EQ(Taken().Length, 16000);
}

TEST_F(AudioEditCommandsTest, LeavesOneSampleOfACutFromTheSecondToTheLast)
{
    OpenWave(MonoOf({1, 2, 3, 4, 5, 6, 7, 8, 9, 10}));
    QTest::keyClick(&Pic(), Qt::Key_Home);
    QTest::keyClick(&Pic(), Qt::Key_Right);
    QTest::keyClick(&Pic(), Qt::Key_End, Qt::ShiftModifier);
    Click("DeleteBtn");
    EXPECT_THAT(SamplesOf(Taken().WavL), ElementsAre(1));
}

TEST_F(AudioEditCommandsTest, WorksByKeysAlone)
{
    QTest::keyClick(&Pic(), Qt::Key_Home);
    QTest::keyClick(&Pic(), Qt::Key_Right, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(Boxed(), "0-20");
    QTest::keyClick(&Pic(), Qt::Key_Plus);
    EXPECT_EQ(Boxed(), "0-24");
    QTest::keyClick(&Pic(), Qt::Key_Minus);
    EXPECT_EQ(Boxed(), "0-20");
    QTest::keyClick(&Pic(), Qt::Key_Delete);
    EXPECT_EQ(play.PlayState, PlayState::Playing);
    Player().StopPlay();
    QTest::keyClick(&Pic(), Qt::Key_Space);
    EXPECT_EQ(play.PlayState, PlayState::Playing);
    QTest::keyClick(&Pic(), Qt::Key_Return);
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(Audio().Length, 16000 - Audio().WavL[1] + 1);
    EXPECT_GT(Audio().WavL[1], 1);
}

TEST_F(AudioEditCommandsTest, PlaysOnceForAKeyThatIsHeldDown)
{
    RepeatKey(Pic(), Qt::Key_Space);
    RepeatKey(Pic(), Qt::Key_Delete);
    EXPECT_THAT(sound.calls, IsEmpty());
}

TEST_F(AudioEditCommandsTest, PlaysWithoutASelection)
{
    Click("TestPlayBtn");
    EXPECT_EQ(play.PlayKind, PlayKind::Recording);
    EXPECT_EQ(play.PlayState, PlayState::Playing);
    EXPECT_EQ(display.status, "Playing Recorded");
}

} // namespace
} // namespace sprout
