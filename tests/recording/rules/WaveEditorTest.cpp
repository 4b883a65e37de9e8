// SPDX-License-Identifier: GPL-3.0-or-later
#include "recording/rules/WaveEditor.h"

#include <gmock/gmock.h>

#include "recording/rules/WaveMaker.h"

namespace sprout {
namespace {

using testing::ElementsAre;

constexpr WavePicSize kSize{101, 65};

/// An editor that shows a sound of ten samples, ten pixels each.
class WaveEditorTest : public testing::Test {
protected:
    WaveEditorTest()
    {
        editor.Load(MonoOf({1, 2, 3, 4, 5, 6, 7, 8, 9, 10}));
        static_cast<void>(editor.Draw(kSize));
    }

    void Select(double from, double to)
    {
        static_cast<void>(editor.Press(from, kSize.Width));
        editor.Release(to, kSize.Width);
    }

    WaveEditor editor;
};

TEST_F(WaveEditorTest, SharesTheSamplesUntilItChangesThem)
{
    const WaveData sound = MonoOf({1, 2, 3, 4});
    editor.Load(sound);
    EXPECT_EQ(editor.Wave().WavL.Identity(), sound.WavL.Identity());
    editor.SelectAll();
    editor.ChangeVolume(VolumeChange::Up);
    EXPECT_EQ(sound, MonoOf({1, 2, 3, 4}));
}

TEST_F(WaveEditorTest, ForgetsTheSoundBeforeAndShowsAllOfTheNext)
{
    Select(20, 60);
    editor.ChangeVolume(VolumeChange::Up);
    editor.Zoom(WaveZoom::In, kSize.Width, 0);
    editor.Load(SilenceOf(400));
    EXPECT_FALSE(editor.IsChanged());
    EXPECT_FALSE(editor.HasSelection());
    const WaveDrawing drawing = editor.Draw(kSize);
    EXPECT_NEAR(drawing.Left.back().X, 100, 1);
    EXPECT_EQ(drawing.Mark, SelectionMark::None);
}

TEST_F(WaveEditorTest, ShowsAllOnlyInItsFirstDrawing)
{
    editor.Load(SilenceOf(4000));
    static_cast<void>(editor.Draw(kSize));
    const std::int32_t before = editor.MarkerLeft(1000, kSize.Width);
    editor.Zoom(WaveZoom::In, kSize.Width, 0);
    static_cast<void>(editor.Draw(kSize));
    EXPECT_GT(editor.MarkerLeft(1000, kSize.Width), before);
}

TEST_F(WaveEditorTest, SelectsByAPressAndARelease)
{
    const WaveBand pressed = editor.Press(20, kSize.Width);
    EXPECT_EQ(pressed.Left, 20);
    EXPECT_FALSE(editor.HasSelection());
    const WaveBand dragged = editor.Drag(60, kSize.Width);
    EXPECT_EQ(dragged.Left, 20);
    EXPECT_EQ(dragged.Width, 40);
    editor.Release(60, kSize.Width);
    EXPECT_TRUE(editor.HasSelection());
    EXPECT_EQ(editor.Draw(kSize).Mark, SelectionMark::Box);
}

TEST_F(WaveEditorTest, GoesOnByKeyFromWhereTheMouseBegan)
{
    Select(60, 20);
    const double right = editor.Draw(kSize).MarkRight;
    editor.Move(WaveMove::Home, WaveKeep::Selection);
    const WaveDrawing drawing = editor.Draw(kSize);
    EXPECT_EQ(drawing.MarkLeft, 0);
    EXPECT_EQ(drawing.MarkRight, right);
}

TEST_F(WaveEditorTest, ChangesTheVolumeOfTheSelectionAlone)
{
    editor.Load(MonoOf({100, 100, 100, 100, 100, 100, 100, 100, 100, 100}));
    static_cast<void>(editor.Draw(kSize));
    Select(-5, 50);
    ASSERT_TRUE(editor.HasSelection());
    editor.ChangeVolume(VolumeChange::Up);
    EXPECT_TRUE(editor.IsChanged());
    EXPECT_EQ(editor.Wave().WavL[1], 125);
    EXPECT_EQ(editor.Wave().WavL[10], 100);
    EXPECT_TRUE(editor.HasSelection()) << "it can be made louder again";
}

TEST_F(WaveEditorTest, CutsTheSelectionOutAndSelectsNothing)
{
    Select(-5, 50);
    ASSERT_FALSE(editor.SelectsAll());
    editor.Cut();
    EXPECT_TRUE(editor.IsChanged());
    EXPECT_FALSE(editor.HasSelection());
    EXPECT_LT(editor.Wave().Length, 10);
    EXPECT_EQ(editor.Wave().WavL[editor.Wave().Length], 10);
    editor.Move(WaveMove::End, WaveKeep::Selection); // the cursor stands where the cut was
    EXPECT_TRUE(editor.SelectsAll());
}

TEST_F(WaveEditorTest, TellsWhatIsSelected)
{
    EXPECT_EQ(editor.Spoken().English(), "Nothing is selected");
    EXPECT_FALSE(editor.SelectsAll());
    editor.SelectAll();
    EXPECT_EQ(editor.Spoken().English(), "0.0 to 0.0 seconds");
    EXPECT_TRUE(editor.SelectsAll());
}

TEST_F(WaveEditorTest, ScrollsByTheBar)
{
    editor.Load(SilenceOf(4000));
    static_cast<void>(editor.Draw(kSize));
    for (int i = 0; i < 10; ++i)
        editor.Zoom(WaveZoom::In, kSize.Width, 0);
    static_cast<void>(editor.Draw(kSize));
    const std::int32_t before = editor.MarkerLeft(200, kSize.Width);
    editor.Scroll(1);
    static_cast<void>(editor.Draw(kSize));
    EXPECT_LT(editor.MarkerLeft(200, kSize.Width), before);
}

} // namespace
} // namespace sprout
