// SPDX-License-Identifier: GPL-3.0-or-later
#include "tutorial/DemoScript.h"

#include <gmock/gmock.h>

#include "base/Errors.h"

namespace sprout {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kLooks = "look 1\n  One.\nlook 1\n  Two.\nlook 1\n  Three.\nlook 1\n  Four.\nlook 1\n  Five.\n";

DemoScript ReadSteps(const std::string& steps)
{
    return ReadDemoScript("# About painting\ndemo Paint\n\n" + steps + kLooks);
}

std::string ReasonAgainst(const std::string& text)
{
    try {
        static_cast<void>(ReadDemoScript(text));
    } catch (const RunTimeError& error) {
        return error.what();
    }
    return {};
}

TEST(DemoScript, HasANameAndSteps)
{
    const DemoScript script = ReadSteps("click row 1 tune\n    Click\n    the picture.\n");
    EXPECT_EQ(script.Name, "Paint");
    ASSERT_EQ(script.Steps.size(), 6U);
    const ScriptStep& step = script.Steps[0];
    EXPECT_EQ(step.Verb, ScriptVerb::Click);
    EXPECT_THAT(step.Target, ElementsAre("row", "1", "tune"));
    EXPECT_EQ(step.Text, "Click the picture.");
    EXPECT_EQ(step.Line, 4);
    EXPECT_EQ(SlideCount(script), 6);
}

TEST(DemoScript, KeepsNamesWithBlanksTogether)
{
    const DemoScript script = ReadSteps("click line \"Toy Shop\"\n  Click.\ntype My song\n");
    EXPECT_THAT(script.Steps[0].Target, ElementsAre("line", "Toy Shop"));
    EXPECT_THAT(script.Steps[1].Target, ElementsAre("My", "song"));
}

TEST(DemoScript, ShowsAndHearsForSomeSeconds)
{
    const DemoScript script = ReadSteps("look 4.5 StatusLbl\n  hear 3\n  Listen!\n");
    EXPECT_DOUBLE_EQ(script.Steps[0].Seconds, 4.5);
    EXPECT_DOUBLE_EQ(script.Steps[0].HeardFor, 3);
    EXPECT_THAT(script.Steps[0].Target, ElementsAre("StatusLbl"));
    EXPECT_EQ(script.Steps[0].Text, "Listen!");
    EXPECT_DOUBLE_EQ(script.Steps[1].HeardFor, 0);
}

TEST(DemoScript, MakesTwoSlidesOfADrag)
{
    const DemoScript script = ReadSteps("drag cell 1 1 to cell 1 9\n  Here\n  then\n  and there.\n");
    EXPECT_THAT(script.Steps[0].Target, ElementsAre("cell", "1", "1"));
    EXPECT_THAT(script.Steps[0].EndOfDrag, ElementsAre("cell", "1", "9"));
    EXPECT_EQ(script.Steps[0].Text, "Here");
    EXPECT_EQ(script.Steps[0].EndText, "and there.");
    EXPECT_EQ(SlideCount(script), 7);
}

TEST(DemoScript, PreparesSlidesWithoutMakingOne)
{
    const DemoScript script =
        ReadSteps("point OkBtn\npress Delete\ntype a\ntick BlinkTimer 2\nsing 3\nlook 1\n  Six.\n");
    EXPECT_EQ(SlideCount(script), 6);
    EXPECT_THAT(script.Steps[3].Target, ElementsAre("BlinkTimer", "2"));
    EXPECT_DOUBLE_EQ(script.Steps[4].Seconds, 3);
    EXPECT_THAT(script.Steps[4].Target, IsEmpty());
}

TEST(DemoScript, NamesTheLineThatIsWrong)
{
    const std::string name = "demo Paint\n";
    EXPECT_EQ(ReasonAgainst("click OkBtn\n"), "Line 1: a script begins with the demo's name.");
    EXPECT_EQ(ReasonAgainst(name + "  Click.\n"), "Line 2: a script begins with the demo's name.");
    EXPECT_EQ(ReasonAgainst(name + "clik OkBtn\n"), "Line 2: \"clik\" is no verb.");
    EXPECT_EQ(ReasonAgainst(name + "click\n"), "Line 2: something is missing behind the verb.");
    EXPECT_EQ(ReasonAgainst(name + "look soon\n"), "Line 2: the seconds are missing.");
    EXPECT_EQ(ReasonAgainst(name + "drag cell 1 1\n"), "Line 2: a drag goes from one place to another.");
    EXPECT_EQ(ReasonAgainst(name + "click OkBtn\n"), "Line 2: slides have words, other steps have none.");
    EXPECT_EQ(ReasonAgainst(name + "type a\n  Type!\n"), "Line 2: slides have words, other steps have none.");
    EXPECT_EQ(ReasonAgainst(name + "drag a to b\n  Here.\n"), "Line 2: slides have words, other steps have none.");
    EXPECT_EQ(ReasonAgainst(name + "drag a to b\n  a\n  then\n  b\ndrag b to c\n  b\n  then\n  c\n"),
              "Line 6: a drag does not follow another.");
}

TEST(DemoScript, RefusesLongTextsAndLongDemos)
{
    const std::string twelve = "a b c d e f g h i j k l";
    EXPECT_EQ(ReadSteps("click OkBtn\n  " + twelve + "\n").Steps[0].Text, twelve);
    EXPECT_EQ(ReasonAgainst("demo Paint\nclick OkBtn\n  " + twelve + "\n  m\n"),
              "Line 4: a bubble has at most 12 words.");
    EXPECT_EQ(ReasonAgainst(std::string("demo Paint\n") + kLooks), "The demo Paint has 5 slides.");
    EXPECT_EQ(SlideCount(ReadDemoScript(std::string("demo Paint\n") + kLooks + kLooks + kLooks)), 15);
    EXPECT_EQ(ReasonAgainst(std::string("demo Paint\n") + kLooks + kLooks + kLooks + "look 1\n  More.\n"),
              "The demo Paint has 16 slides.");
}

TEST(PictureScript, HasStepsWithoutWords)
{
    const std::vector<ScriptStep> steps =
        ReadPictureScript("# The windows\nclick OpenBtn\n\nkeep songs SongSelFrm\nkeep list SngNmLst 0 0 9 5\n");
    ASSERT_EQ(steps.size(), 3U);
    EXPECT_EQ(steps[0].Verb, ScriptVerb::Click);
    EXPECT_EQ(steps[1].Verb, ScriptVerb::Keep);
    EXPECT_THAT(steps[1].Target, ElementsAre("songs", "SongSelFrm"));
    EXPECT_EQ(steps[1].Line, 4);
    EXPECT_THAT(steps[2].Target, ElementsAre("list", "SngNmLst", "0", "0", "9", "5"));
}

TEST(PictureScript, NamesTheLineThatIsWrong)
{
    const auto reason = [](const char* text) -> std::string {
        try {
            static_cast<void>(ReadPictureScript(text));
        } catch (const RunTimeError& error) {
            return error.what();
        }
        return {};
    };
    const std::string whole = "a picture has a name, a window and perhaps the place and the size of a part.";
    EXPECT_EQ(reason("keep songs\n"), "Line 1: " + whole);
    EXPECT_EQ(reason("\nkeep list SngNmLst 0 0 9\n"), "Line 2: " + whole);
    EXPECT_EQ(reason("look 3\n"), "Line 1: here pictures are kept.");
    EXPECT_EQ(reason("clik OkBtn\n"), "Line 1: \"clik\" is no verb.");
    EXPECT_EQ(ReasonAgainst("demo Paint\nkeep songs SongSelFrm\n"), "Line 2: a demo keeps slides only.");
}

} // namespace
} // namespace sprout
