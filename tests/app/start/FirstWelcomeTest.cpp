// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/start/FirstWelcome.h"

#include <gtest/gtest.h>

#include "app/start/SampleSong.h"
#include "core/Settings.h"
#include "core/SongModel.h"
#include "support/FakeServices.h"

namespace sprout {
namespace {

namespace fs = std::filesystem;

class FirstWelcome : public testing::Test {
protected:
    FirstWelcome() { NewSong(); }

    /// Forgets the counted starts, as if they could not be counted.
    static void LoseTheCount() { fs::remove(Shared().UserRoot / ".SproutStarts"); }

    FakeServices fake;
};

TEST_F(FirstWelcome, IsTakenOnTheVeryFirstStartAlone)
{
    for (int start = 1; start <= kFirstStarts + 2; ++start) {
        EXPECT_EQ(TakeFirstWelcome(), start == 1) << start;
        static_cast<void>(OpenSampleSong());
    }
}

TEST_F(FirstWelcome, IsNotedInASetting)
{
    EXPECT_TRUE(TakeFirstWelcome());
    EXPECT_EQ(GetSetting("General", "WelcomeShown", ""), "1");
    LoseTheCount();
    EXPECT_FALSE(TakeFirstWelcome());
}

TEST_F(FirstWelcome, DoesNotReturnWhenTheSettingIsLost)
{
    EXPECT_TRUE(TakeFirstWelcome());
    static_cast<void>(OpenSampleSong());
    PutSetting("General", "WelcomeShown", "0");
    EXPECT_FALSE(TakeFirstWelcome());
}

TEST_F(FirstWelcome, IsPreventedByAnAdministrator)
{
    Shared().MachineSettingsFile = fake.folder.Path() / "etc.ini";
    WriteBytes(Shared().MachineSettingsFile, "[General]\nWelcomeShown=1\n");
    EXPECT_FALSE(TakeFirstWelcome());
}

} // namespace
} // namespace sprout
