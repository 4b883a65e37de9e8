// SPDX-License-Identifier: GPL-3.0-or-later
#include "tune_window/ChosenTuneView.h"

#include "tune_window/TuneFrm2Test.h"

namespace sprout {
namespace {

using ChosenTuneViewTest = TuneFrm2Test;

TEST_F(ChosenTuneViewTest, ShowsNamesOfAllAlphabetsAndShortensLongOnes)
{
    const std::string name = "\xE9\x9B\xA8 \xD0\x94\xD0\xBE\xD0\xB6\xD0\xB4\xD1\x8C";
    const std::string longName(120, 'm');
    MakeTuneFile(PlainTune(name, "\xC3\x85sa"));
    MakeTuneFile(PlainTune(longName, "Ann"));
    WriteBytes(TuneIndexFile(), "[SortOrder]\r\n" + name + "=1\r\n");
    Open([&](TuneFrm2& window) {
        EXPECT_EQ(TextOf(window, "TuneNameLbl"), name);
        EXPECT_EQ(TextOf(window, "CreatedByLbl"), "By: \xC3\x85sa");
        PressTune(window, 2);
        EXPECT_LT(TextOf(window, "TuneNameLbl").size(), 100U);
        EXPECT_EQ(PartOf(window, "TuneNameLbl").toolTip().toStdString(), longName);
    });
}

TEST_F(ChosenTuneViewTest, NamesThePictureButKeepsItsNameWhenOnlyTheNamesChange)
{
    QWidget window;
    TunePicture picture(&window);
    QLabel name(&window);
    QLabel author(&window);
    name.resize(300, 30);
    author.resize(300, 30);
    const ChosenTuneView view{&picture, &name, &author};
    view.ShowTune(Words::AsIs("Rain"), Words::AsIs("By: Ann"), PlainPicture(7));
    EXPECT_EQ(name.text(), QStringLiteral("Rain"));
    EXPECT_EQ(author.accessibleName(), QStringLiteral("By: Ann"));
    EXPECT_EQ(picture.Picture().Pixel(0, 0), 7U);
    view.ShowNames(Words::AsIs("Sun"), Words::AsIs("Bob"));
    EXPECT_EQ(name.text(), QStringLiteral("Sun"));
    EXPECT_EQ(name.toolTip(), QString());
    EXPECT_EQ(picture.accessibleName(), QStringLiteral("Rain"));
    EXPECT_EQ(picture.Picture().Pixel(0, 0), 7U);
}

} // namespace
} // namespace sprout
