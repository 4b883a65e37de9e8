// SPDX-License-Identifier: GPL-3.0-or-later
#include "recording/rules/WaveSelection.h"

#include <gmock/gmock.h>

namespace sprout {
namespace {

using testing::ElementsAre;

constexpr std::int32_t kWidth = 101;
constexpr std::int32_t kLength = 1000;

/// Samples 101 to 301, two per pixel.
WaveView View()
{
    WaveView view;
    view.First = 101;
    view.Span = 200;
    view.XScale = 0.5;
    return view;
}

std::vector<std::int32_t> SelectionOf(const WaveView& view)
{
    return {view.SelectionStart, view.SelectionEnd};
}

std::vector<std::int32_t> Dragged(double from, double to, std::int32_t length = kLength)
{
    WaveView view = View();
    PressWave(from, kWidth, length, view);
    ReleaseWave(to, kWidth, length, view);
    return SelectionOf(view);
}

bool IsValid(std::int32_t start, std::int32_t end, std::int32_t length)
{
    WaveView view;
    view.SelectionStart = start;
    view.SelectionEnd = end;
    return SelectionIsValid(view, length);
}

TEST(SelectionIsValid, NeedsTwoSamplesInTheWave)
{
    EXPECT_TRUE(IsValid(1, 2, 2));
    EXPECT_FALSE(IsValid(0, 0, 2));
    EXPECT_FALSE(IsValid(0, 2, 2));
    EXPECT_FALSE(IsValid(2, 2, 2));
    EXPECT_FALSE(IsValid(1, 3, 2));
    EXPECT_FALSE(IsValid(1, 2, 0));
}

TEST(PressWave, SelectsTheOneSampleThere)
{
    WaveView view = View();
    EXPECT_EQ(PressWave(10.4, kWidth, kLength, view).Anchor, 10);
    EXPECT_THAT(SelectionOf(view), ElementsAre(122, 122)); // 121.8
}

TEST(PressWave, CountsAsOnAnEdgeThatIsClose)
{
    WaveView view = View();
    EXPECT_EQ(PressWave(2.9, kWidth, kLength, view).Anchor, 0);
    EXPECT_THAT(SelectionOf(view), ElementsAre(101, 101));
    EXPECT_EQ(PressWave(3, kWidth, kLength, view).Anchor, 3);
    EXPECT_EQ(PressWave(98, kWidth, kLength, view).Anchor, 98);
    EXPECT_EQ(PressWave(98.5, kWidth, kLength, view).Anchor, kWidth);
    EXPECT_THAT(SelectionOf(view), ElementsAre(303, 303));
}

TEST(ReleaseWave, SelectsTheSameToTheLeftAsToTheRight)
{
    EXPECT_THAT(Dragged(10, 40), ElementsAre(121, 181));
    EXPECT_THAT(Dragged(40, 10), ElementsAre(121, 181));
}

TEST(ReleaseWave, SelectsTwoNeighboursToTheLeftAsToTheRight)
{
    WaveView view; // one pixel per sample
    for (const double x : {49, 51}) {
        PressWave(50, kWidth, 100, view);
        ReleaseWave(x, kWidth, 100, view);
        EXPECT_EQ(view.SelectionStart, x < 50 ? 50 : 51);
        EXPECT_EQ(view.SelectionEnd, x < 50 ? 51 : 52);
    }
}

TEST(ReleaseWave, LeavesOneSampleOfAClick)
{
    EXPECT_THAT(Dragged(10, 10), ElementsAre(121, 121));
}

TEST(ReleaseWave, HoldsTheSelectionToTheWave)
{
    EXPECT_THAT(Dragged(10, 5000), ElementsAre(121, 303)); // the right edge
    EXPECT_THAT(Dragged(10, -5000), ElementsAre(101, 121));
    EXPECT_THAT(Dragged(10, 5000, 200), ElementsAre(121, 200));
    EXPECT_THAT(Dragged(10, 20, 0), ElementsAre(0, 0));
}

TEST(PressedBand, IsOnePixelWideWhereTheMouseIs)
{
    EXPECT_EQ(PressedBand(10, kWidth).Left, 10);
    EXPECT_EQ(PressedBand(1, kWidth).Left, 0);
    EXPECT_EQ(PressedBand(100, kWidth).Left, kWidth);
    EXPECT_EQ(PressedBand(10, kWidth).Width, 1);
}

TEST(DraggedBand, ReachesFromTheAnchorToTheMouseAndIsOnePixelWideAtLeast)
{
    const auto band = [](double x) {
        const WaveBand dragged = DraggedBand({50}, x, kWidth);
        return std::vector<double>{dragged.Left, static_cast<double>(dragged.Width)};
    };
    EXPECT_THAT(band(70), ElementsAre(50, 20));
    EXPECT_THAT(band(30), ElementsAre(30, 20));
    EXPECT_THAT(band(50), ElementsAre(50, 1));
    EXPECT_THAT(band(52.5), ElementsAre(50, 2));
    EXPECT_THAT(band(-20), ElementsAre(0, 50));
    EXPECT_THAT(band(500), ElementsAre(50, 51));
}

/// A view and its cursor, moved by keys.
struct Keys {
    WaveView view = View();
    WaveCursor cursor;

    std::vector<std::int32_t> Press(WaveMove move, WaveKeep keep = WaveKeep::Cursor)
    {
        MoveCursor(move, keep, kLength, cursor, view);
        return SelectionOf(view);
    }
};

TEST(MoveCursor, MovesByAPixelFromTheFirstSampleInView)
{
    Keys keys;
    EXPECT_THAT(keys.Press(WaveMove::Right), ElementsAre(103, 103));
    EXPECT_THAT(keys.Press(WaveMove::Right), ElementsAre(105, 105));
    EXPECT_THAT(keys.Press(WaveMove::Left), ElementsAre(103, 103));
    EXPECT_THAT(keys.Press(WaveMove::FarRight), ElementsAre(143, 143));
    EXPECT_THAT(keys.Press(WaveMove::FarLeft), ElementsAre(103, 103));
}

TEST(MoveCursor, SelectsFromWhereTheCursorStood)
{
    Keys keys;
    keys.Press(WaveMove::FarRight);
    EXPECT_THAT(keys.Press(WaveMove::Right, WaveKeep::Selection), ElementsAre(141, 143));
    EXPECT_THAT(keys.Press(WaveMove::FarLeft, WaveKeep::Selection), ElementsAre(103, 141));
    EXPECT_THAT(keys.Press(WaveMove::Home, WaveKeep::Selection), ElementsAre(1, 141));
    EXPECT_THAT(keys.Press(WaveMove::End, WaveKeep::Selection), ElementsAre(141, kLength));
    EXPECT_THAT(keys.Press(WaveMove::Left), ElementsAre(998, 998));
}

TEST(MoveCursor, StaysInTheWave)
{
    Keys keys;
    EXPECT_THAT(keys.Press(WaveMove::Home), ElementsAre(1, 1));
    EXPECT_THAT(keys.Press(WaveMove::FarLeft), ElementsAre(1, 1));
    EXPECT_THAT(keys.Press(WaveMove::End), ElementsAre(kLength, kLength));
    EXPECT_THAT(keys.Press(WaveMove::Right), ElementsAre(kLength, kLength));
}

TEST(MoveCursor, BringsTheCursorIntoView)
{
    Keys keys;
    keys.Press(WaveMove::Right);
    EXPECT_EQ(keys.view.First, 101);
    keys.Press(WaveMove::End);
    EXPECT_EQ(keys.view.First, 900);
    keys.Press(WaveMove::Home);
    EXPECT_EQ(keys.view.First, 1);
}

TEST(MoveCursor, DoesNothingInAnEmptyWave)
{
    WaveView view;
    WaveCursor cursor;
    for (const WaveMove move : {WaveMove::Right, WaveMove::End, WaveMove::Home})
        MoveCursor(move, WaveKeep::Selection, 0, cursor, view);
    SelectWave(0, cursor, view);
    EXPECT_THAT(SelectionOf(view), ElementsAre(0, 0));
    EXPECT_EQ(cursor.Place, 0);
}

TEST(SelectWave, SelectsEverySample)
{
    Keys keys;
    SelectWave(kLength, keys.cursor, keys.view);
    EXPECT_THAT(SelectionOf(keys.view), ElementsAre(1, kLength));
    EXPECT_EQ(keys.view.First, 101);
    EXPECT_THAT(keys.Press(WaveMove::Left, WaveKeep::Selection), ElementsAre(1, 998));
}

std::string Spoken(std::int32_t start, std::int32_t end, std::int32_t rate = 44100)
{
    WaveView view;
    view.SelectionStart = start;
    view.SelectionEnd = end;
    return SpokenSelection(view, rate).English();
}

TEST(SpokenSelection, TellsSecondsFromTheWavesBeginning)
{
    EXPECT_EQ(Spoken(52921, 149940), "1.2 to 3.4 seconds");
    EXPECT_EQ(Spoken(1, 441000), "0.0 to 10.0 seconds");
    EXPECT_EQ(Spoken(1, 11025, 11025), "0.0 to 1.0 seconds");
    EXPECT_EQ(Spoken(1, 10, 10), "0.0 to 1.0 seconds");
    EXPECT_EQ(Spoken(44101, 44101), "1.0 seconds");
    EXPECT_EQ(Spoken(0, 0), "Nothing is selected");
    EXPECT_EQ(Spoken(5, 10, 0), "0.0 to 0.0 seconds");
}

TEST(MoveCursor, LeavesTheViewWhereItsFirstAndItsLastSampleAreReached)
{
    for (const auto& [from, move] : {std::pair(103, WaveMove::Left), std::pair(299, WaveMove::Right)}) {
        Keys keys;
        keys.cursor = {from, from};
        keys.Press(move);
        EXPECT_EQ(keys.view.First, 101) << from;
    }
}

} // namespace
} // namespace sprout
