// SPDX-License-Identifier: GPL-3.0-or-later
#include "demo/DemoFolder.h"

#include "demo/DemoFixture.h"

namespace sprout {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class DemoFolderTest : public DemoFixture {};

TEST_F(DemoFolderTest, ListsTheInstalledDemos)
{
    EXPECT_THAT(DemoNames(), IsEmpty()) << "there is no file";
    PutDemos({{"Hear a song", {}}, {"Paint", {}}});
    EXPECT_THAT(DemoNames(), ElementsAre("Hear a song", "Paint"));
}

TEST_F(DemoFolderTest, LoadsAPictureOfTheFolderInAnyLetterCase)
{
    const Picture picture = LoadDemoPicture("Red.BMP");
    EXPECT_EQ(picture.Width(), 200);
    EXPECT_EQ(picture.Height(), 100);
    EXPECT_EQ(picture.Pixel(0, 0), 0x0000FFU);
}

TEST_F(DemoFolderTest, LoadsNothingFromOutside)
{
    PutPicture("../secret.bmp", Qt::red);
    std::filesystem::create_directory(folder / "below");
    PutPicture("below/hidden.bmp", Qt::red);
    const std::string absolute = (folder / "red.bmp").string();
    for (const std::string_view name :
         {std::string_view("../secret.bmp"), std::string_view("below/hidden.bmp"), std::string_view(absolute),
          std::string_view("."), std::string_view(".."), std::string_view(""), std::string_view("red.bmp\0", 8)})
        EXPECT_TRUE(LoadDemoPicture(name).IsNothing()) << name;
}

TEST_F(DemoFolderTest, LoadsNoDamagedPicture)
{
    WriteBytes(folder / "damaged.bmp", "BM and nothing else");
    EXPECT_TRUE(LoadDemoPicture("damaged.bmp").IsNothing());
    EXPECT_TRUE(LoadDemoPicture("missing.bmp").IsNothing());
    EXPECT_THAT(services.messages.shown, IsEmpty());
}

TEST_F(DemoFolderTest, LoadsTheSharpPictureBesideAPicture)
{
    EXPECT_TRUE(LoadSharpDemoPicture("red.bmp").IsNothing());
    PutPicture("red@2x.bmp", Qt::red, {400, 200});
    EXPECT_EQ(LoadSharpDemoPicture("Red.bmp").Width(), 400);
    WriteBytes(folder / "blue@2x.bmp", "BM and nothing else");
    EXPECT_TRUE(LoadSharpDemoPicture("blue.bmp").IsNothing());
}

TEST_F(DemoFolderTest, FindsTheSoundOfAPicture)
{
    PutSound("Red.WAV", 10);
    PutSound("red2.wav", 10);
    EXPECT_EQ(DemoSoundOf("RED.bmp"), folder / "Red.WAV");
    EXPECT_EQ(DemoSoundOf("red.png"), folder / "Red.WAV");
    EXPECT_EQ(DemoSoundOf("blue.bmp"), std::filesystem::path());
}

} // namespace
} // namespace sprout
