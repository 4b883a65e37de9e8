// SPDX-License-Identifier: GPL-3.0-or-later
#include "recording/RecordingBird.h"

#include "recording/RecdFrmFixture.h"

namespace sprout {
namespace {

class RecordingBirdTest : public RecdFrmFixture {};

TEST_F(RecordingBirdTest, LetsTheBirdHopWhileItRecords)
{
    const auto up = [this] { return Control<QLabel>("AnimImg1").isVisible(); };
    Record([this, &up] {
        std::string poses;
        for (int tick = 0; tick < 10; ++tick) {
            Tick("AnimTimer");
            EXPECT_NE(up(), Control<QLabel>("AnimImg0").isVisible());
            poses += up() ? 'u' : 'd';
        }
        EXPECT_EQ(poses, "uuudduuudd");
        Tell(CaptureState::Recording, 1);
        EXPECT_TRUE(Control<QTimer>("AnimTimer").isActive());
        Tell(CaptureState::Stopped, 1, CaptureEnd::MicrophoneGone);
        EXPECT_FALSE(Control<QTimer>("AnimTimer").isActive());
    });
}

} // namespace
} // namespace sprout
