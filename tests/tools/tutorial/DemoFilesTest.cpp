// SPDX-License-Identifier: GPL-3.0-or-later
#include "tutorial/DemoFiles.h"

#include <gmock/gmock.h>

#include "support/FakeServices.h"

namespace sprout {
namespace {

class DemoFilesTest : public testing::Test {
protected:
    static std::vector<MadeSlide> Slides()
    {
        return {{"Demo1-01.png", {10, 20, 30, 40}, "click", 0, "Click here."},
                {"Demo1-02.png", {0, 0, 780, 540}, "wait", 4.5, "Look!"}};
    }

    FakeServices services;
    std::filesystem::path folder = services.folder.Path();
};

TEST_F(DemoFilesTest, ListDemosAsTheProgramReadsThem)
{
    DemoFiles files;
    files.Add(1, "Paint", Slides());
    files.Write(folder);
    EXPECT_EQ(ReadBytes(folder / "TqDemoImages.ini"),
              "[Section]\r\nSectionCount=1\r\nSection1=Paint\r\nImageCount1=2\r\n"
              "Image11=Demo1-01.png,10,20,29,39,click,0\r\nImage12=Demo1-02.png,0,0,779,539,wait,4.5\r\n");
    EXPECT_EQ(ReadBytes(folder / "TqDemoTexts.ini"), "[Section]\r\nImage11=Click here.\r\nImage12=Look!\r\n");
}

TEST_F(DemoFilesTest, TakeWhatOthersHaveWritten)
{
    for (const int number : {1, 2}) {
        DemoFiles files;
        files.Add(number, number == 1 ? "Paint" : "Save", Slides());
        std::filesystem::create_directory(folder / std::to_string(number));
        files.Write(folder / std::to_string(number));
    }
    DemoFiles all;
    all.Read(folder / "1", 1);
    all.Read(folder / "2", 2);
    all.Write(folder);
    const IniFile demos = IniFile::Read(folder / "TqDemoImages.ini");
    EXPECT_EQ(demos.Value("Section", "SectionCount", {}), "2");
    EXPECT_EQ(demos.Value("Section", "Section1", {}), "Paint");
    EXPECT_EQ(demos.Value("Section", "Section2", {}), "Save");
    EXPECT_EQ(demos.Value("Section", "ImageCount2", {}), "2");
    EXPECT_EQ(demos.Value("Section", "Image22", {}), "Demo1-02.png,0,0,779,539,wait,4.5");
    EXPECT_EQ(IniFile::Read(folder / "TqDemoTexts.ini").Value("Section", "Image21", {}), "Click here.");
}

} // namespace
} // namespace sprout
