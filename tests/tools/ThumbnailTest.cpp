// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QColor>
#include <QImage>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include "core/SongSizes.h"
#include "main_window/rules/TrackGeometry.h"
#include "songs/HandSongs.h"
#include "sprout-song/ThumbnailPicture.h"
#include "sprout-song/ThumbnailPlan.h"
#include "support/TestFolder.h"
#include "tools/SproutSongRun.h"
#include "ui/look/Palette.h"

namespace sprout {
namespace {

namespace fs = std::filesystem;

constexpr int kSides[] = {kThumbnailSmallestSide, 64, 128, 256, 512};

/// Tracks of which every third is audio, painted in cells 11 to 30 and 51 to 80, and one in no cell at all.
SongState TwelveTracks()
{
    SongState song;
    ResizeTracks(song, 12);
    for (std::int32_t i = 1; i <= song.TrackCount; ++i) {
        Track& track = At(song.Tracks, i);
        track.TrackType = i % 3 == 0 ? 1 : 0;
        track.Painted.assign(kSongCells + 1, kUntouchedCell);
        if (i == song.TrackCount)
            continue;
        std::fill_n(track.Painted.begin() + 11, 20, kPaintedCell);
        std::fill_n(track.Painted.begin() + 51, 30, kPaintedCell);
    }
    return song;
}

QImage ImageOf(const std::vector<std::byte>& png)
{
    return QImage::fromData(reinterpret_cast<const uchar*>(png.data()), static_cast<int>(png.size()), "PNG")
        .convertToFormat(QImage::Format_ARGB32);
}

QColor MeanColour(const QImage& image, const QRect& place)
{
    int red = 0, green = 0, blue = 0;
    for (int y = place.top(); y <= place.bottom(); ++y) {
        for (int x = place.left(); x <= place.right(); ++x) {
            const QColor colour = image.pixelColor(x, y);
            red += colour.red();
            green += colour.green();
            blue += colour.blue();
        }
    }
    const int pixels = place.width() * place.height();
    return {red / pixels, green / pixels, blue / pixels};
}

int Difference(const QColor& a, const QColor& b)
{
    return std::max({std::abs(a.red() - b.red()), std::abs(a.green() - b.green()), std::abs(a.blue() - b.blue())});
}

/// The colour of a track's paint, seen from so far that its pattern blurs.
QColor PaintColour(bool isAudio, std::int32_t track)
{
    const QImage tile(QStringLiteral(SPROUT_TILES "/Tile%1.svg").arg(TileNumber(isAudio, track)));
    EXPECT_FALSE(tile.isNull());
    return MeanColour(tile, tile.rect());
}

/// The inside of a part of a row, away from outlines and round corners.
QRect Inside(const ThumbnailPlan& plan, const ThumbnailLane& lane, int left, int right)
{
    const int inset = plan.rowHeight / 4;
    return {left + inset, lane.top + inset, right - left - 2 * inset, std::max(plan.rowHeight - 2 * inset, 1)};
}

TEST(DrawThumbnail, PaintsCellsInTheColoursOfTheirTracks)
{
    constexpr int about = 28; // patterns are cut at the ends of a bar
    const SongState song = TwelveTracks();
    for (const int side : {64, 128, 256, 512, 1024}) {
        const QImage image = ImageOf(DrawThumbnail(song, side));
        const ThumbnailPlan plan = PlanThumbnail(song, side);
        for (const ThumbnailLane& lane : plan.lanes) {
            const bool isAudio = At(song.Tracks, lane.track).IsAudio();
            for (const ThumbnailBar& bar : lane.bars)
                EXPECT_LE(Difference(MeanColour(image, Inside(plan, lane, bar.left, bar.right)),
                                     PaintColour(isAudio, lane.track)),
                          about)
                    << side << " " << lane.track;
        }
    }
}

TEST(DrawThumbnail, LeavesUnpaintedCellsPale)
{
    const SongState song = TwelveTracks();
    for (const int side : {64, 128, 256, 512, 1024}) {
        const QImage image = ImageOf(DrawThumbnail(song, side));
        const ThumbnailPlan plan = PlanThumbnail(song, side);
        for (const ThumbnailLane& lane : plan.lanes) {
            const int right = lane.bars.empty() ? plan.right : lane.bars[0].left;
            const QColor ground = MeanColour(image, Inside(plan, lane, plan.left, right));
            EXPECT_GT(ground.lightness(), 225) << side << " " << lane.track;
            EXPECT_GT(Difference(ground, PaintColour(At(song.Tracks, lane.track).IsAudio(), lane.track)), 35);
        }
    }
}

TEST(DrawThumbnail, IsASheetOfPaperWithRoundCorners)
{
    for (const int side : kSides) {
        const QImage image = ImageOf(DrawThumbnail(TwelveTracks(), side));
        EXPECT_EQ(image.size(), QSize(side, side));
        for (const QPoint corner : {QPoint(0, 0), QPoint(side - 1, 0), QPoint(0, side - 1), QPoint(side - 1, side - 1)})
            EXPECT_LT(image.pixelColor(corner).alpha(), 128);
        EXPECT_EQ(image.pixelColor(side / 2, side / 2).alpha(), 255);
    }
    const QImage image = ImageOf(DrawThumbnail(TwelveTracks(), 256));
    EXPECT_EQ(image.pixelColor(0, 0).alpha(), 0);
    EXPECT_EQ(image.pixelColor(8, 128), kPaper);
    EXPECT_EQ(image.pixelColor(128, 5), kPaper);
}

TEST(DrawThumbnail, GrowsAMeadowBelowFewTracks)
{
    SongState song = TwelveTracks();
    ResizeTracks(song, 2);
    const QImage image = ImageOf(DrawThumbnail(song, 256));
    EXPECT_GT(Difference(image.pixelColor(40, 250), kPaper), 5);
    EXPECT_EQ(ImageOf(DrawThumbnail(TwelveTracks(), 256)).pixelColor(40, 250), kPaper);
}

TEST(DrawThumbnail, MakesTheSameBytesAgain)
{
    for (const int side : kSides)
        EXPECT_EQ(DrawThumbnail(TwelveTracks(), side), DrawThumbnail(TwelveTracks(), side));
}

class Thumbnail : public SproutSong {
protected:
    /// A song file of version 2 with tracks that are painted in their first cell.
    void WriteSong(const std::string& name, std::int32_t tracks) const
    {
        HandArray array;
        array.Add({tracks, 0, kSongCells, 320}).Text("Song").Text("Ann");
        for (std::int32_t track = 0; track < tracks; ++track)
            array.Add({0, 1}).Many(0, kSongCells - 1).Add({0});
        WriteBytes(At(name), FileOf("TqSng", "2", array.Elements()));
    }

    [[nodiscard]] QImage Picture(const std::string& name) const { return QImage(QString::fromStdString(At(name))); }

    [[nodiscard]] std::vector<std::string> Names() const
    {
        std::vector<std::string> names;
        for (const fs::directory_entry& entry : fs::directory_iterator(files.Path()))
            if (entry.path() != Folder())
                names.push_back(entry.path().filename().native());
        std::sort(names.begin(), names.end());
        return names;
    }
};

TEST_F(Thumbnail, WritesAPictureOfTheSizeThatIsAskedFor)
{
    SaveAudioSong("a.TqSng");
    EXPECT_EQ(Run({"thumbnail", At("a.TqSng"), At("a.png")}), kDone);
    EXPECT_EQ(out.str() + err.str(), "");
    EXPECT_EQ(Picture("a.png").size(), QSize(256, 256));
    for (const int side : {32, 64, 2048}) {
        EXPECT_EQ(Run({"thumbnail", At("a.TqSng"), At("a.png"), "--size", std::to_string(side)}), kDone);
        EXPECT_EQ(Picture("a.png").size(), QSize(side, side));
    }
    for (const char* size : {"31", "2049", "-1", "64x64", ""})
        EXPECT_EQ(Run({"thumbnail", At("a.TqSng"), At("b.png"), "--size", size}), kWrongUsage);
    EXPECT_EQ(Run({"thumbnail", At("a.TqSng")}), kWrongUsage);
    EXPECT_EQ(Names(), (std::vector<std::string>{"a.TqSng", "a.png"}));
}

TEST_F(Thumbnail, ShowsEveryVersionOfTheFile)
{
    for (const auto& [array, version] :
         {std::pair{MakeArray20(), "2"}, std::pair{MakeArray11(), "1.1"}, std::pair{MakeArray10(), "1"}}) {
        WriteBytes(At("a.TqSng"), FileOf("TqSng", version, array.Elements()));
        EXPECT_EQ(Run({"thumbnail", At("a.TqSng"), At("a.png")}), kDone) << version;
        EXPECT_EQ(out.str() + err.str(), "");
    }
}

TEST_F(Thumbnail, IsTheSamePictureEachTime)
{
    SaveAudioSong("a.TqSng");
    EXPECT_EQ(Run({"thumbnail", At("a.TqSng"), At("1.png")}), kDone);
    EXPECT_EQ(Run({"thumbnail", At("a.TqSng"), At("2.png")}), kDone);
    EXPECT_EQ(ReadBytes(At("1.png")), ReadBytes(At("2.png")));
}

TEST_F(Thumbnail, ShowsManyTracksAndThoseOfAnySongThatHasSome)
{
    for (const std::int32_t tracks : {1, 20, kThumbnailTracks, 200}) {
        WriteSong("a.TqSng", tracks);
        EXPECT_EQ(Run({"thumbnail", At("a.TqSng"), At("a.png"), "--size", "64"}), kDone) << tracks;
        EXPECT_EQ(Picture("a.png").size(), QSize(64, 64));
    }
}

TEST_F(Thumbnail, LeavesNothingBehindWhereThereIsNoSong)
{
    WriteSong("a.TqSng", 2);
    const std::string song = ReadBytes(At("a.TqSng"));
    WriteSong("none.TqSng", 0);
    const std::string noTracks = ReadBytes(At("none.TqSng"));
    fs::remove(At("none.TqSng"));
    for (const std::string& bytes :
         {std::string(), std::string("GIF89a"), std::string(5000, 'x'), noTracks, song.substr(0, song.size() / 2),
          song.substr(0, song.find("Data=")), song.substr(0, song.find("File Version"))}) {
        WriteBytes(At("a.TqSng"), bytes);
        EXPECT_EQ(Run({"thumbnail", At("a.TqSng"), At("a.png")}), kFailed);
        EXPECT_EQ(err.str().rfind("Error Opening File: ", 0), 0U) << err.str();
        EXPECT_EQ(Names(), std::vector<std::string>{"a.TqSng"});
    }
    EXPECT_EQ(Run({"thumbnail", At("missing.TqSng"), At("a.png")}), kFailed);
    EXPECT_EQ(Run({"thumbnail", Folder().native(), At("a.png")}), kFailed);
    EXPECT_EQ(Names(), std::vector<std::string>{"a.TqSng"});
}

TEST_F(Thumbnail, ReplacesAnEmptyFileButNeverTheSong)
{
    WriteSong("a.TqSng", 2);
    WriteBytes(At("a.png"), ""); // file managers make the file first
    EXPECT_EQ(Run({"thumbnail", At("a.TqSng"), At("a.png")}), kDone);
    EXPECT_FALSE(Picture("a.png").isNull());
    const std::string song = ReadBytes(At("a.TqSng"));
    EXPECT_EQ(Run({"thumbnail", At("a.TqSng"), At("./a.TqSng")}), kFailed);
    EXPECT_EQ(ReadBytes(At("a.TqSng")), song);
}

TEST_F(Thumbnail, TellsWhereNothingCanBeWritten)
{
    WriteSong("a.TqSng", 2);
    WriteBytes(At("file"), "");
    EXPECT_EQ(Run({"thumbnail", At("a.TqSng"), At("file/a.png")}), kFailed);
    EXPECT_EQ(err.str().rfind("Error Saving File: ", 0), 0U) << err.str();
    EXPECT_EQ(Names(), (std::vector<std::string>{"a.TqSng", "file"}));
}

} // namespace
} // namespace sprout
