// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "core/IniFile.h"
#include "core/Shared.h"
#include "core/SongModel.h"
#include "demo/rules/DemoFile.h"
#include "songs/OpenSaveClass.h"
#include "support/TestFolder.h"
#include "tutorial/DemoProgram.h"
#include "tutorial/Hand.h"
#include "tutorial/HeldTimers.h"
#include "tutorial/StepLoop.h"

namespace sprout {
namespace {

namespace fs = std::filesystem;

/// Does in the program what the slides of a demo ask for, at the same places; knows nothing but their list.
class Follower {
public:
    explicit Follower(std::string_view demo)
    {
        const IniFile demos = IniFile::Read(fs::path(SPROUT_INSTALLED) / "DemoImages" / "TqDemoImages.ini");
        const std::vector<DemoName> names = ReadDemoNames(demos);
        slides = ReadDemoSlides(demos, {}, FindDemo(names, demo).value_or(0));
    }

    [[nodiscard]] std::size_t SlideCount() const { return slides.size(); }

    bool FollowNext()
    {
        if (place == slides.size())
            return false;
        const DemoSlide& slide = slides[place++];
        const QPoint middle(static_cast<int>((slide.Rectangle.left + slide.Rectangle.right) / 2),
                            static_cast<int>((slide.Rectangle.top + slide.Rectangle.bottom) / 2));
        if (slide.Action == DemoAction::Click)
            Click(middle);
        else if (slide.Action == DemoAction::Drag)
            Drag(middle);
        return true;
    }

private:
    void Point(QPoint at)
    {
        hand.MoveTo(at - QPoint(2, 2));
        hand.MoveTo(at);
        StepLoop::Settle();
    }
    void Click(QPoint at)
    {
        Point(at);
        hand.Press();
        hand.Release();
    }
    void Drag(QPoint at)
    {
        Point(at);
        if (!isHeld)
            hand.Press();
        isHeld = place < slides.size() && slides[place].Action == DemoAction::Drag;
        if (!isHeld)
            hand.Release();
    }

    std::vector<DemoSlide> slides;
    Hand hand;
    std::size_t place = 0;
    bool isHeld = false;
};

/// Also while the card of the very first start is shown, which no slide has.
class LiveDemo : public testing::TestWithParam<Welcome> {};

TEST_P(LiveDemo, EndsWithASavedSongOfTwoPaintedTracks)
{
    const TestFolder folder;
    const HeldTimers timers;
    DemoProgram program(SPROUT_INSTALLED, folder.Path(), GetParam());
    Follower follower("Paint your first song");
    ASSERT_GT(follower.SlideCount(), 0U);
    StepLoop([&follower] { return follower.FollowNext(); }).Run();
    const fs::path saved = Shared().UserSongs / "Untitled.TqSng";
    ASSERT_TRUE(fs::exists(saved));
    NewSong();
    OpenSaveClass().Load_Song(saved);
    const SongState& song = Shared().Song;
    ASSERT_EQ(song.TrackCount, 2);
    for (const std::size_t number : {1U, 2U}) {
        const Track& track = song.Tracks[number];
        EXPECT_GT(std::count(track.Painted.begin(), track.Painted.end(), kPaintedCell), 100) << number;
        EXPECT_FALSE(track.TrackTune.Name.empty()) << number;
    }
    EXPECT_NE(song.Tracks[1].TrackTune.Name, song.Tracks[2].TrackTune.Name);
}

INSTANTIATE_TEST_SUITE_P(WithAndWithoutWelcome, LiveDemo, testing::Values(Welcome::LeftOut, Welcome::Shown));

} // namespace
} // namespace sprout
