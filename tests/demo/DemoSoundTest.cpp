// SPDX-License-Identifier: GPL-3.0-or-later
#include "demo/DemoFixture.h"

namespace sprout {
namespace {

using testing::SizeIs;

class DemoSoundTest : public DemoFixture {};

TEST_F(DemoSoundTest, PlaysTheSoundWithThePicturesName)
{
    PutSound("RED.Wav", 500);
    PutSound("other.wav", 900);
    Open({"red.bmp,20,20,10,10,click,0"});
    EXPECT_EQ(play.PlayState, PlayState::Playing);
    EXPECT_EQ(play.PlayLength, 500);
    EXPECT_FALSE(play.PlayLooping);
    EXPECT_TRUE(play.DemoPlaying);
    EXPECT_EQ(services.playDisplay.status, "Ready") << "the main window stays as it is";
    EXPECT_EQ(services.playDisplay.timersEnabled, 0);
}

TEST_F(DemoSoundTest, DropsAnyExtensionOfAPicture)
{
    PutPicture("one.two.png", Qt::green);
    PutSound("one.two.wav", 300);
    Open({"one.two.png,20,20,10,10,click,0"});
    EXPECT_EQ(play.PlayLength, 300);
}

TEST_F(DemoSoundTest, CutsASoundToOneMinute)
{
    SaveWaveFile(MonoWave(8, 11025, std::vector<std::int16_t>(61 * 11025)), folder / "red.wav");
    SaveWaveFile(MonoWave(8, 11025, std::vector<std::int16_t>(60 * 11025)), folder / "green.wav");
    Open({"red.bmp,20,20,10,10,click,0", "green.bmp,20,20,10,10,click,0"});
    EXPECT_EQ(play.PlayLength, 60 * 11025);
    ClickAt(kInside);
    EXPECT_EQ(play.PlayLength, 60 * 11025);
}

TEST_F(DemoSoundTest, IsSilentBesideAPictureWithoutASound)
{
    Open({"red.bmp,20,20,10,10,click,0"});
    EXPECT_EQ(play.PlayState, PlayState::Stopped);
    EXPECT_FALSE(play.DemoPlaying);
}

TEST_F(DemoSoundTest, StopsThePlayerForAClickButNotForATimedSlide)
{
    Open({"red.bmp,20,20,10,10,wait,1", "green.bmp,20,20,10,10,wait,1", "blue.bmp,20,20,10,10,click,1"});
    StartToPlay();
    Tick(Timer());
    EXPECT_EQ(play.PlayState, PlayState::Playing);
    Tick(Timer());
    EXPECT_EQ(play.PlayState, PlayState::Stopped);
}

TEST_F(DemoSoundTest, LetsTheSoundOfADragGoOnWhileItIsHeld)
{
    Open({"red.bmp,20,20,10,10,drag,0", "green.bmp,20,20,10,10,drag,0"});
    StartToPlay();
    Press(kInside);
    Drag(kInside);
    EXPECT_EQ(Shown(), "green");
    EXPECT_EQ(play.PlayState, PlayState::Playing);
}

TEST_F(DemoSoundTest, TellsADamagedSoundAndGoesOn)
{
    WriteBytes(folder / "red.wav", std::string(100, 'x'));
    Open({"red.bmp,20,20,10,10,click,3"});
    EXPECT_THAT(services.messages.shown, SizeIs(1));
    EXPECT_EQ(Shown(), "red");
    EXPECT_TRUE(Timer().isActive());
    EXPECT_EQ(Timer().interval(), 3000);
}

TEST_F(DemoSoundTest, IsSilentWithoutASoundDriver)
{
    PutSound("red.wav", 500);
    SetSoundDriver(false);
    Open({"red.bmp,20,20,10,10,click,0"});
    EXPECT_EQ(Shown(), "red");
    EXPECT_EQ(play.PlayState, PlayState::Stopped);
}

} // namespace
} // namespace sprout
