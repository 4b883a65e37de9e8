// SPDX-License-Identifier: GPL-3.0-or-later
#include "tune_window/BeatNames.h"

#include "tune_window/StepEditorTest.h"

namespace sprout {
namespace {

using BeatNamesTest = StepEditorTest;

TEST_F(BeatNamesTest, NamesABeatAsItsFileIsWrittenAndWithoutItsFamily)
{
    WriteBytes(Shared().UserBeats / "P_Piano High.wav", "");
    tune.Steps[1].StepBeat.Name = "p_piano high";
    editor.UpdateThisTune();
    MoveTo(In(1, 100, 12));
    EXPECT_EQ(Surface().toolTip(), QStringLiteral("Piano High"));
    EXPECT_EQ(StepButton(1).accessibleName(), QStringLiteral("Step 1, on, Piano High, pitch 0"));
}

TEST_F(BeatNamesTest, LooksANameUpOnceUntilItIsToldToForget)
{
    BeatNames names;
    EXPECT_EQ(names.NameForPeople("my drum"), "my drum");
    WriteBytes(Shared().UserBeats / "My Drum.wav", "");
    EXPECT_EQ(names.NameForPeople("my drum"), "my drum");
    names.Forget();
    EXPECT_EQ(names.NameForPeople("my drum"), "My Drum");
}

} // namespace
} // namespace sprout
