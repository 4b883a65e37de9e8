// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>

#include <QImage>
#include <QProcess>
#include <QTemporaryDir>

#include <filesystem>
#include <regex>
#include <set>
#include <string>

#include "support/TestFolder.h"
#include "tutorial/HelpPictures.h"

namespace sprout {
namespace {

namespace fs = std::filesystem;

constexpr std::uintmax_t kMostBytes = 8'000'000; ///< installed: demos and pictures of the help

const fs::path kMade = fs::path(SPROUT_INSTALLED) / "HelpImages";

std::set<std::string> MadePictures()
{
    std::set<std::string> names;
    for (const fs::directory_entry& entry : fs::directory_iterator(kMade))
        names.insert(entry.path().filename());
    return names;
}

TEST(MadeHelpPictures, AreThoseThatThePagesShow)
{
    static const std::regex source("src=\"window:(\\w+)\"");
    std::set<std::string> shown;
    for (const fs::directory_entry& entry : fs::directory_iterator(SPROUT_HELP)) {
        const std::string page = entry.path().extension() == ".html" ? ReadBytes(entry.path()) : "";
        for (std::sregex_iterator match(page.begin(), page.end(), source), end; match != end; ++match)
            shown.insert((*match)[1].str() + ".png");
    }
    EXPECT_GE(shown.size(), 11U);
    EXPECT_EQ(MadePictures(), shown);
}

TEST(MadeHelpPictures, ShowWindowsAtTwiceTheirSizeOnThePage)
{
    for (const std::string& name : MadePictures()) {
        const QImage picture(QString::fromStdString((kMade / name).string()));
        EXPECT_LE(picture.width(), 2 * kMostHelpPicture.width) << name;
        EXPECT_LE(picture.height(), 2 * kMostHelpPicture.height) << name;
        EXPECT_GE(picture.width(), kMostHelpPicture.width) << name;
        EXPECT_GT(picture.colorCount(), 60) << name;
    }
}

TEST(MadeHelpPictures, NeedLittleRoomTogetherWithTheDemos)
{
    std::uintmax_t bytes = 0;
    for (const fs::path& folder : {kMade, fs::path(SPROUT_INSTALLED) / "DemoImages"})
        for (const fs::directory_entry& entry : fs::directory_iterator(folder))
            bytes += entry.file_size();
    EXPECT_LE(bytes, kMostBytes);
}

TEST(MadeHelpPictures, AreTheSameEachTimeTheyAreMade)
{
    const QTemporaryDir again;
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    process.start(QStringLiteral(SPROUT_TUTORIAL),
                  {QStringLiteral("--help-pictures"), QStringLiteral(SPROUT_HELP "/pictures.txt"),
                   QStringLiteral(SPROUT_INSTALLED), again.path()});
    ASSERT_TRUE(process.waitForFinished(120'000));
    ASSERT_EQ(process.exitCode(), 0);
    const fs::path folder = again.path().toStdString();
    for (const std::string& name : MadePictures())
        EXPECT_TRUE(ReadBytes(folder / name) == ReadBytes(kMade / name)) << name;
    const auto made = std::distance(fs::directory_iterator(folder), fs::directory_iterator());
    EXPECT_EQ(static_cast<std::size_t>(made), MadePictures().size());
}

} // namespace
} // namespace sprout
