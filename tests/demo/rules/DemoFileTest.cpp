// SPDX-License-Identifier: GPL-3.0-or-later
#include "demo/rules/DemoFile.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>
#include <string>

namespace sprout {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

IniFile Ini(const std::string& lines)
{
    return IniFile("[Section]\r\n" + lines);
}

DemoSlide SlideOf(const std::string& line)
{
    const auto slides = ReadDemoSlides(Ini("ImageCount1=1\r\nImage11=" + line + "\r\n"), IniFile(), 1);
    return slides.empty() ? DemoSlide() : slides.front();
}

std::string PicturesOf(const std::vector<DemoSlide>& slides)
{
    std::string pictures;
    for (const DemoSlide& slide : slides)
        pictures += slide.Picture + " ";
    return pictures;
}

TEST(ReadDemoNames, ListsTheDemosInTheirOrder)
{
    EXPECT_THAT(ReadDemoNames(Ini("SectionCount=2\r\nSection1=Hear a song\r\nSection2=Paint\r\n")),
                ElementsAre(DemoName{1, "Hear a song"}, DemoName{2, "Paint"}));
}

TEST(ReadDemoNames, FindsNoneInAnEmptyFile)
{
    EXPECT_THAT(ReadDemoNames(IniFile()), IsEmpty());
    EXPECT_THAT(ReadDemoNames(Ini("Section1=Hear a song\r\n")), IsEmpty()) << "no number is promised";
    EXPECT_THAT(ReadDemoNames(Ini("SectionCount=-3\r\nSection1=Hear a song\r\n")), IsEmpty());
}

TEST(ReadDemoNames, ListsNoMoreThanPromised)
{
    EXPECT_THAT(ReadDemoNames(Ini("SectionCount=1\r\nSection1=A\r\nSection2=B\r\n")), ElementsAre(DemoName{1, "A"}));
}

TEST(ReadDemoNames, BelievesAPromiseOnlyAsFarAsThereAreKeys)
{
    for (const char* promise : {"2000000000", "2147483647", "1e300", "1e999"})
        EXPECT_THAT(ReadDemoNames(Ini("SectionCount=" + std::string(promise) + "\r\nSection1=A\r\nSection3=C\r\n")),
                    ElementsAre(DemoName{1, "A"}, DemoName{3, "C"}))
            << promise;
}

TEST(ReadDemoNames, LeavesOutADemoWithoutAName)
{
    EXPECT_THAT(ReadDemoNames(Ini("SectionCount=2\r\nSection1=  \r\nSection2=B\r\n")), ElementsAre(DemoName{2, "B"}));
}

TEST(FindDemo, ComparesInLowerCase)
{
    const std::vector<DemoName> names{{1, "Hear a Song"}, {2, "Écoute"}};
    EXPECT_EQ(FindDemo(names, "HEAR A SONG"), 1);
    EXPECT_EQ(FindDemo(names, "éCOUTE"), 2);
    EXPECT_EQ(FindDemo(names, "Hear a Son"), std::nullopt);
}

TEST(FindDemo, TakesTheFirstOfTwoDemosOfOneName)
{
    const std::vector<DemoName> names{{1, "A"}, {4, "Twice"}, {5, "twice"}};
    EXPECT_EQ(FindDemo(names, "twice"), 4);
}

TEST(ReadDemoSlides, ReadsTheSevenFields)
{
    const DemoSlide slide = SlideOf("first.bmp,10,20,30,40,click,2.5");
    EXPECT_EQ(slide, (DemoSlide{"first.bmp", {10, 20, 40, 60}, DemoAction::Click, 2.5, ""}));
    EXPECT_EQ(SlideOf("a.bmp,1,2,3,4,drag,0").Action, DemoAction::Drag);
    EXPECT_EQ(SlideOf("a.bmp,1,2,3,4,wait,1").Action, DemoAction::Wait);
    EXPECT_EQ(SlideOf(" a.bmp , 1, 2, 3, 4, click , 1").Action, DemoAction::Click);
    EXPECT_EQ(SlideOf(" a.bmp , 1, 2, 3, 4, click , 1").Picture, "a.bmp");
}

TEST(ReadDemoSlides, HasInclusiveRectangles)
{
    const DemoRectangle rectangle = SlideOf("a.bmp,10,20,30,40,click,0").Rectangle;
    for (const DemoPoint inside : {DemoPoint{10, 20}, {40, 60}, {10, 60}, {40, 20}, {25, 40}})
        EXPECT_TRUE(rectangle.Contains(inside)) << inside.x << " " << inside.y;
    for (const DemoPoint outside : {DemoPoint{9, 20}, {41, 60}, {10, 19}, {40, 61}})
        EXPECT_FALSE(rectangle.Contains(outside)) << outside.x << " " << outside.y;
    EXPECT_TRUE(SlideOf("a.bmp,5,6,0,0,click,0").Rectangle.Contains({5, 6}));
}

TEST(ReadDemoSlides, HasNoPointInARectangleThatIsMissingOrNegative)
{
    for (const char* line : {"a.bmp,1,2,-1,4,click,0", "a.bmp,1,2,3,-4,click,0", "a.bmp,1,2,3", "a.bmp", ""}) {
        const DemoRectangle rectangle = SlideOf(line).Rectangle;
        EXPECT_FALSE(rectangle.Reaches({4096, 4096})) << line;
        EXPECT_FALSE(rectangle.Contains({0, 0})) << line;
        EXPECT_FALSE(rectangle.Contains({1, 2})) << line;
    }
}

TEST(ReadDemoSlides, HoldsAbsurdRectangles)
{
    const DemoRectangle all = SlideOf("a.bmp,-1e300,-2147483648,1e300,4e9,click,0").Rectangle;
    EXPECT_EQ(all.left, std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(all.right, -1);
    const DemoRectangle far = SlideOf("a.bmp,2147483647,1,2147483647,1,click,0").Rectangle;
    EXPECT_EQ(far.right, 4294967294);
    EXPECT_FALSE(far.Reaches({4096, 4096}));
}

TEST(ReadDemoSlides, ReadsTheSlidesOfTheWantedDemo)
{
    const IniFile demos = Ini("ImageCount1=1\r\nImage11=a.bmp\r\nImageCount2=2\r\nImage21=b.bmp\r\nImage22=c.bmp\r\n");
    EXPECT_EQ(PicturesOf(ReadDemoSlides(demos, IniFile(), 1)), "a.bmp ");
    EXPECT_EQ(PicturesOf(ReadDemoSlides(demos, IniFile(), 2)), "b.bmp c.bmp ");
    EXPECT_THAT(ReadDemoSlides(demos, IniFile(), 3), IsEmpty());
}

TEST(ReadDemoSlides, BelievesAPromiseOnlyAsFarAsThereAreKeys)
{
    for (const char* promise : {"2000000000", "2147483647", "1e300"})
        EXPECT_THAT(
            ReadDemoSlides(Ini("ImageCount1=" + std::string(promise) + "\r\nImage11=a\r\nImage12=b\r\n"), IniFile(), 1),
            SizeIs(2))
            << promise;
    EXPECT_THAT(ReadDemoSlides(Ini("ImageCount1=-2\r\nImage11=a\r\n"), IniFile(), 1), IsEmpty());
}

TEST(ReadDemoSlides, KeepsThePlaceOfAMissingKey)
{
    const auto slides = ReadDemoSlides(Ini("ImageCount1=3\r\nImage11=a\r\nImage13=c\r\n"), IniFile(), 1);
    EXPECT_EQ(PicturesOf(slides), "a 0 c ");
}

TEST(ReadDemoSlides, TakesTheTextsFromTheirOwnFile)
{
    const IniFile demos = Ini("ImageCount1=2\r\nImage11=a.bmp,1,2,3,4,click,0\r\nImage12=b.bmp\r\n");
    const auto slides = ReadDemoSlides(demos, Ini("Image11=Click the flower, please.\r\n"), 1);
    ASSERT_THAT(slides, SizeIs(2));
    EXPECT_EQ(slides[0].Text, "Click the flower, please.");
    EXPECT_EQ(slides[1].Text, "");
}

TEST(ReadDemoSlides, IgnoresFieldsBehindTheSeventh)
{
    EXPECT_EQ(SlideOf("a.bmp,1,2,3,4,click,5,more,and more"), SlideOf("a.bmp,1,2,3,4,click,5"));
}

TEST(DemoInterval, IsInMilliseconds)
{
    EXPECT_EQ(DemoInterval(1), 1000);
    EXPECT_EQ(DemoInterval(0.25), 250);
}

TEST(DemoInterval, IsZeroWhereTheTimerMustNotRun)
{
    for (const double seconds : {0.0, -1.0, -1e300, std::nan(""), 0.0004})
        EXPECT_EQ(DemoInterval(seconds), 0) << seconds;
}

TEST(DemoInterval, HoldsAbsurdTimes)
{
    for (const double seconds : {1e300, std::numeric_limits<double>::infinity(), 2147484.0})
        EXPECT_EQ(DemoInterval(seconds), std::numeric_limits<std::int32_t>::max()) << seconds;
}

TEST(DemoInterval, OfATimeThatIsNoNumberIsZero)
{
    EXPECT_EQ(DemoInterval(SlideOf("a.bmp,1,2,3,4,click,soon").Seconds), 0);
    EXPECT_EQ(DemoInterval(SlideOf("a.bmp,1,2,3,4,click,nan").Seconds), 0);
    EXPECT_EQ(DemoInterval(SlideOf("a.bmp,1,2,3,4,click,-5").Seconds), 0);
    EXPECT_EQ(DemoInterval(SlideOf("a.bmp,1,2,3,4,click,1e300").Seconds), std::numeric_limits<std::int32_t>::max());
}

} // namespace
} // namespace sprout
