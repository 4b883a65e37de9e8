// SPDX-License-Identifier: GPL-3.0-or-later
#include "tutorial/DemoPlay.h"

#include <gmock/gmock.h>

#include <filesystem>

#include "base/Errors.h"
#include "core/Shared.h"
#include "support/TestFolder.h"
#include "tutorial/DemoProgram.h"
#include "tutorial/HeldTimers.h"
#include "tutorial/Places.h"
#include "waves/WavOperations.h"

namespace sprout {
namespace {

namespace fs = std::filesystem;

/// The program as on its first start, which opens the song Zumi.
class DemoPlayTest : public testing::Test {
protected:
    /// Plays these steps, and some that only look.
    std::vector<MadeSlide> Play(const std::string& steps)
    {
        std::string script = "demo Try\n" + steps;
        for (int i = 0; i < 5; ++i)
            script += "look 1\n  Look.\n";
        return DemoPlay(program, ReadDemoScript(script), 3, folder.Path()).Play();
    }

    std::string ReasonAgainst(const std::string& steps)
    {
        try {
            static_cast<void>(Play(steps));
        } catch (const RunTimeError& error) {
            return error.what();
        }
        return {};
    }

    TestFolder folder;
    HeldTimers timers;
    DemoProgram program{SPROUT_INSTALLED, folder.Path()};
};

TEST_F(DemoPlayTest, MakesASlideOfAClickAndThenClicks)
{
    const QRect button = FindPlace({"PlayAllBtn"});
    const std::vector<MadeSlide> slides = Play("click PlayAllBtn\n  Click here.\nlook 4\n  hear 2\n  Listen!\n");
    ASSERT_EQ(slides.size(), 7U);
    EXPECT_EQ(slides[0].Picture, "Demo3-01.png");
    EXPECT_EQ(slides[0].Action, "click");
    EXPECT_EQ(slides[0].Rectangle, (Box{button.x(), button.y(), button.width(), button.height()}));
    EXPECT_EQ(slides[0].Text, "Click here.");
    EXPECT_EQ(slides[1].Action, "wait");
    EXPECT_EQ(slides[1].Rectangle, (Box{0, 0, 780, 540}));
    EXPECT_DOUBLE_EQ(slides[1].Seconds, 4);
    for (const MadeSlide& slide : slides)
        EXPECT_TRUE(fs::exists(folder.Path() / slide.Picture)) << slide.Picture;
    EXPECT_FALSE(fs::exists(folder.Path() / "Demo3-01.wav"));
    EXPECT_EQ(LoadWaveFile(folder.Path() / "Demo3-02.wav").Length, 2 * 22050);
}

TEST_F(DemoPlayTest, MakesTwoSlidesOfADragAndThenDrags)
{
    Track& track = At(Shared().Song.Tracks, 2);
    track.Painted.assign(track.Painted.size(), 0);
    const std::vector<MadeSlide> slides = Play("drag cell 2 10 to cell 2 60\n  Here\n  then\n  to there.\n");
    EXPECT_EQ(slides[0].Action, "drag");
    EXPECT_EQ(slides[1].Action, "drag");
    EXPECT_EQ(slides[1].Text, "to there.");
    EXPECT_LT(slides[0].Rectangle.left, slides[1].Rectangle.left);
    for (const std::int32_t cell : {10, 11, 35, 59, 60})
        EXPECT_TRUE(track.IsPainted(cell)) << cell;
    EXPECT_FALSE(track.IsPainted(61));
}

TEST_F(DemoPlayTest, GoesOnInTheWindowsThatItOpens)
{
    const std::vector<MadeSlide> slides = Play("click SongTitleChgBtn\n  Click.\ntype My best song\n"
                                               "click OkBtn\n  Click OK.\n");
    EXPECT_EQ(slides.size(), 7U);
    EXPECT_EQ(Shared().Song.SongTitle, "My best song");
}

TEST_F(DemoPlayTest, NamesTheLineThatCannotBePlayed)
{
    EXPECT_EQ(ReasonAgainst("click NoSuchBtn\n  Click.\n"), "Try, line 2: In MainFrm there is no NoSuchBtn.");
    EXPECT_EQ(ReasonAgainst("look 1\n  hear 2\n  Listen!\n"), "Try, line 2: Nothing is to be heard.");
    EXPECT_EQ(ReasonAgainst("tick NoSuchTimer\nlook 1\n  Look.\n"), "Try, line 2: No timer NoSuchTimer runs.");
}

} // namespace
} // namespace sprout
