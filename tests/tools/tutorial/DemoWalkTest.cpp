// SPDX-License-Identifier: GPL-3.0-or-later
#include "demo/DemoFixture.h"
#include "demo/DemoFolder.h"
#include "demo/DemoPic.h"
#include "demo/rules/DemoPlaces.h"
#include "ui/widgets/PutAt.h"

namespace sprout {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

/// Walks through the demos that the build has made, as a child does.
class DemoWalkTest : public DemoFixture {
protected:
    DemoWalkTest() { Shared().DemoImages = std::filesystem::path(SPROUT_INSTALLED) / "DemoImages" / ""; }

    [[nodiscard]] QPoint MiddleOf(const DemoSlide& slide) const
    {
        const BoxSize size = Part<DemoPic>("DemoImages").PictureSize();
        const Box place = ShownRectangle(slide.Rectangle, size, SizeOf(Pic()));
        return {place.left + place.width / 2, place.top + place.height / 2};
    }

    void ExpectShown(const DemoSlide& slide, std::size_t number, std::size_t count)
    {
        EXPECT_EQ(Spoken(), slide.Text + " Picture " + std::to_string(number) + " of " + std::to_string(count));
        EXPECT_EQ(Part<DemoPic>("DemoImages").PictureSize(), (BoxSize{780, 540}));
        const bool isLast = number == count;
        EXPECT_EQ(Link().isHidden(), !isLast);
        if (DemoSoundOf(slide.Picture).empty())
            return;
        EXPECT_EQ(play.PlayState, PlayState::Playing);
        EXPECT_TRUE(play.DemoPlaying);
    }

    void Leave(const DemoSlide& slide)
    {
        const QPoint middle = MiddleOf(slide);
        switch (slide.Action) {
        case DemoAction::Wait:
            Tick(Timer());
            break;
        case DemoAction::Click:
            ClickAt(QPoint(Pic().width() - 2, 2));
            ClickAt(middle);
            break;
        case DemoAction::Drag:
            if (!isHeld)
                Press(middle);
            isHeld = true;
            Drag(middle);
            break;
        }
    }

    void LetGoUnlessItDrags(const DemoSlide* next)
    {
        if (!isHeld || (next && next->Action == DemoAction::Drag))
            return;
        Release(QPoint(5, 5));
        isHeld = false;
    }

    void Walk(const DemoName& demo)
    {
        SCOPED_TRACE(demo.Name);
        OpenDemo(demo.Name);
        const std::vector<DemoSlide> slides = ReadDemoSlides(ReadDemoFile(), ReadDemoTexts(), demo.Number);
        for (std::size_t i = 0; i < slides.size(); ++i) {
            SCOPED_TRACE(slides[i].Picture);
            ExpectShown(slides[i], i + 1, slides.size());
            Leave(slides[i]);
            LetGoUnlessItDrags(i + 1 < slides.size() ? &slides[i + 1] : nullptr);
        }
        EXPECT_THAT(Spoken(), StartsWith("This is the end of the demo."));
        EXPECT_FALSE(Link().isHidden());
        EXPECT_FALSE(Timer().isActive());
        EXPECT_EQ(play.PlayState, PlayState::Stopped);
    }

    bool isHeld = false;
};

TEST_F(DemoWalkTest, GoesThroughEachSlideOfEachDemo)
{
    const std::vector<DemoName> demos = ReadDemoNames(ReadDemoFile());
    ASSERT_FALSE(demos.empty());
    for (const DemoName& demo : demos)
        Walk(demo);
}

TEST_F(DemoWalkTest, ShowsTheWindowWholeOnItsScreen)
{
    OpenDemo(DemoNames().front());
    EXPECT_TRUE(form->screen()->geometry().contains(form->geometry()));
}

} // namespace
} // namespace sprout
