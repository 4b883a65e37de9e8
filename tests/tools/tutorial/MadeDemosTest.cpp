// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>

#include <QImage>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <set>

#include "base/Text.h"
#include "demo/rules/DemoFile.h"
#include "support/FakeServices.h"
#include "tutorial/DemoScript.h"
#include "waves/WavOperations.h"

namespace sprout {
namespace {

namespace fs = std::filesystem;

using testing::ElementsAre;

/// The demos that the build has made.
class MadeDemosTest : public testing::Test {
protected:
    /// Calls `look` with each slide.
    void ForSlides(const std::function<void(const DemoSlide&)>& look) const
    {
        for (const DemoName& demo : names) {
            const std::vector<DemoSlide> slides = ReadDemoSlides(demos, texts, demo.Number);
            for (const DemoSlide& slide : slides) {
                SCOPED_TRACE(slide.Picture);
                look(slide);
            }
        }
    }

    FakeServices services;
    fs::path folder = fs::path(SPROUT_INSTALLED) / "DemoImages";
    IniFile demos = IniFile::Read(folder / "TqDemoImages.ini");
    IniFile texts = IniFile::Read(folder / "TqDemoTexts.ini");
    std::vector<DemoName> names = ReadDemoNames(demos);
};

TEST_F(MadeDemosTest, TeachWhatAChildDoesFirst)
{
    std::vector<std::string> all;
    for (const DemoName& demo : names)
        all.push_back(demo.Name);
    EXPECT_THAT(all, ElementsAre("Hear a song", "Paint your first song", "Choose and change a tune",
                                 "Make your own tune", "Record your voice", "Save and share"));
    for (const DemoName& demo : names) {
        const auto count = static_cast<std::int32_t>(ReadDemoSlides(demos, texts, demo.Number).size());
        EXPECT_GE(count, kFewestSlides) << demo.Name;
        EXPECT_LE(count, kMostSlides) << demo.Name;
    }
}

TEST_F(MadeDemosTest, HaveAPictureForEachSlide)
{
    ForSlides([this](const DemoSlide& slide) {
        const QImage picture(QString::fromStdString((folder / slide.Picture).string()));
        EXPECT_EQ(picture.size(), QSize(780, 540));
        EXPECT_GT(picture.colorCount(), 60) << "it shows windows";
    });
}

TEST_F(MadeDemosTest, HaveTheSamePictureForSmallPixels)
{
    ForSlides([this](const DemoSlide& slide) {
        const std::string name = fs::path(slide.Picture).stem().string() + "@2x.png";
        const QImage sharp(QString::fromStdString((folder / name).string()));
        ASSERT_EQ(sharp.size(), QSize(1560, 1080));
        const QImage picture(QString::fromStdString((folder / slide.Picture).string()));
        const QImage small = sharp.scaled(picture.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        int different = 0;
        for (int y = 0; y < picture.height(); ++y)
            for (int x = 0; x < picture.width(); ++x)
                different += std::abs(qGray(picture.pixel(x, y)) - qGray(small.pixel(x, y))) > 60 ? 1 : 0;
        EXPECT_LT(different, picture.width() * picture.height() / 50) << "of the pixels, all at edges";
    });
}

TEST_F(MadeDemosTest, HaveRectanglesInsideTheirPictures)
{
    ForSlides([](const DemoSlide& slide) {
        EXPECT_GE(slide.Rectangle.left, 0);
        EXPECT_GE(slide.Rectangle.top, 0);
        EXPECT_LT(slide.Rectangle.right, 780);
        EXPECT_LT(slide.Rectangle.bottom, 540);
        EXPECT_GE(slide.Rectangle.right - slide.Rectangle.left, 12) << "a child can hit it";
        EXPECT_GE(slide.Rectangle.bottom - slide.Rectangle.top, 12);
    });
}

TEST_F(MadeDemosTest, WaitForTheChildOrForATime)
{
    ForSlides([](const DemoSlide& slide) {
        EXPECT_EQ(slide.Action == DemoAction::Wait, DemoInterval(slide.Seconds) > 0);
        EXPECT_LE(slide.Seconds, 10);
    });
}

TEST_F(MadeDemosTest, SayAFewWordsOnEachSlide)
{
    ForSlides([](const DemoSlide& slide) {
        const auto words = std::count(slide.Text.begin(), slide.Text.end(), ' ') + 1;
        EXPECT_FALSE(slide.Text.empty());
        EXPECT_LE(words, kMostWords) << slide.Text;
        for (const std::string& word : Split(slide.Text, ' '))
            EXPECT_LE(word.size(), 12U) << word;
    });
}

TEST_F(MadeDemosTest, HaveSoundsOfTheirSlidesOnly)
{
    std::set<std::string> pictures;
    ForSlides([&pictures](const DemoSlide& slide) { pictures.insert(fs::path(slide.Picture).stem()); });
    int sounds = 0;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
        const std::string extension = entry.path().extension();
        const std::string slide = entry.path().stem().string();
        EXPECT_TRUE(extension == ".ini" || pictures.count(slide.substr(0, slide.find('@'))) > 0) << entry.path();
        if (extension != ".wav")
            continue;
        ++sounds;
        const WaveData sound = LoadWaveFile(entry.path());
        const auto samples = sound.WavL.Samples();
        EXPECT_GE(sound.Length, sound.Rate) << entry.path();
        EXPECT_LE(sound.Length, 10 * sound.Rate) << entry.path();
        EXPECT_GT(*std::max_element(samples.begin(), samples.end()), 1000) << entry.path() << " is silent";
    }
    EXPECT_GE(sounds, 6);
}

TEST_F(MadeDemosTest, AreTheSameEachTimeTheyAreMade)
{
    const QTemporaryDir again;
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    process.start(QStringLiteral(SPROUT_TUTORIAL),
                  {QStringLiteral(SPROUT_SCRIPTS), QStringLiteral(SPROUT_INSTALLED), again.path()});
    ASSERT_TRUE(process.waitForFinished(300'000));
    ASSERT_EQ(process.exitCode(), 0);
    std::size_t files = 0;
    for (const fs::directory_entry& entry : fs::directory_iterator(again.path().toStdString())) {
        ++files;
        EXPECT_TRUE(ReadBytes(entry.path()) == ReadBytes(folder / entry.path().filename())) << entry.path();
    }
    const auto made = std::distance(fs::directory_iterator(folder), fs::directory_iterator());
    EXPECT_EQ(files, static_cast<std::size_t>(made));
}

} // namespace
} // namespace sprout
