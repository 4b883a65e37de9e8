// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/sound/CaptureIntake.h"

#include <gtest/gtest.h>

#include <vector>

#include "support/CaptureRamp.h"
#include "support/TestFolder.h"

namespace sprout {
namespace {

/// `count` frames that hold 100 and -200.
std::vector<std::byte> Frames(std::size_t count)
{
    std::vector<std::int16_t> samples;
    for (std::size_t i = 0; i < count; ++i)
        samples.insert(samples.end(), {100, -200});
    const std::span<const std::byte> bytes = std::as_bytes(std::span(samples));
    return {bytes.begin(), bytes.end()};
}

TEST(CaptureIntake, CountsPiecesAndMetersWithoutKeeping)
{
    CaptureIntake intake;
    intake.Take(Frames(882));
    intake.Take(Frames(881));
    EXPECT_EQ(intake.Counted().Pieces, 1);
    intake.Take(Frames(1));
    EXPECT_EQ(intake.Counted().Pieces, 2);
    EXPECT_EQ(intake.Counted().LostPieces, 0);
    EXPECT_EQ(intake.Peaks().Left, 100);
    EXPECT_EQ(intake.Peaks().Right, 200);
}

TEST(CaptureIntake, AHoleIsCountedAndSilenceStandsInItsPlace)
{
    TestFolder folder;
    const auto files = CaptureFiles::Make(folder.Path() / "l", folder.Path() / "r", {});
    ASSERT_TRUE(files);
    CaptureIntake intake;
    {
        CaptureWriter writer(*files);
        intake.Take(Frames(5)); // before it keeps anything
        intake.KeepIn(&writer);
        intake.Take(Frames(2));
        intake.TakeHole(3);
        intake.Take(Frames(1));
        intake.KeepIn(nullptr);
        intake.Take(Frames(7));
    }
    EXPECT_EQ(intake.Counted().LostPieces, 1);
    intake.TakeHole(880);
    EXPECT_EQ(intake.Counted().LostPieces, 2);
    const CapturedRamp kept = ReadCaptured(folder.Path() / "l", folder.Path() / "r");
    EXPECT_EQ(kept.left, (std::vector<std::int16_t>{100, 100, 0, 0, 0, 100}));
    EXPECT_EQ(kept.right, (std::vector<std::int16_t>{-200, -200, 0, 0, 0, -200}));
}

TEST(CaptureIntake, TellsWhenSomethingWasHeardLast)
{
    CaptureIntake intake;
    intake.Take(Frames(1));
    const auto heard = intake.Counted().LastSound;
    intake.Take(std::vector<std::byte>(400));
    EXPECT_EQ(intake.Counted().LastSound, heard);
    EXPECT_GE(intake.Counted().LastTaken, heard);
    intake.Take(Frames(1));
    EXPECT_GE(intake.Counted().LastSound, heard);
    EXPECT_EQ(intake.Counted().LastSound, intake.Counted().LastTaken);
}

TEST(CaptureIntake, AResetForgetsAll)
{
    CaptureIntake intake;
    intake.Take(Frames(1000));
    intake.TakeHole(1000);
    intake.Reset();
    EXPECT_EQ(intake.Counted().Pieces, 0);
    EXPECT_EQ(intake.Counted().LostPieces, 0);
    EXPECT_EQ(intake.Peaks().Right, 0);
}

} // namespace
} // namespace sprout
