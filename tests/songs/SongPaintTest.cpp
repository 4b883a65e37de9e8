// SPDX-License-Identifier: GPL-3.0-or-later
#include "songs/SongPaint.h"

#include <filesystem>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "base/Errors.h"
#include "songs/HandSongs.h"
#include "songs/SongFileMaker.h"
#include "support/AllocationWatch.h"

namespace sprout {
namespace {

using Elements = std::vector<std::int32_t>;

constexpr std::int32_t kMostTracks = 24;
constexpr std::size_t kLittleMemory = 20'000;
constexpr std::int32_t kFirstColour = 0x30;
constexpr std::int32_t kLastColour = 0x32;

class SongPaintTest : public SongFilesTest {
protected:
    static SongState PaintOf(const std::string& bytes)
    {
        std::filesystem::remove(Path());
        WriteBytes(Path(), bytes);
        return ReadSongPaint(Path(), kMostTracks);
    }

    /// Nothing if the paint cannot be read. Memory never follows what a file promises.
    static std::optional<SongState> TryPaint(const std::string& bytes)
    {
        std::filesystem::remove(Path());
        WriteBytes(Path(), bytes);
        const AllocationWatch watch;
        std::optional<SongState> paint;
        try {
            paint = ReadSongPaint(Path(), kMostTracks);
        } catch (const RunTimeError&) {
        }
        EXPECT_LT(watch.Largest(), kLittleMemory);
        if (paint && paint->TrackCount == 0)
            return std::nullopt;
        return paint;
    }

    /// The paint is that of the whole song; where the song cannot be read, neither can it.
    static void ExpectAgreement(const std::string& bytes)
    {
        const std::optional<SongState> paint = TryPaint(bytes);
        const SongState& song = LoadBytes(bytes);
        ASSERT_EQ(paint.has_value(), song.TrackCount != 0);
        if (!paint)
            return;
        EXPECT_EQ(paint->SongCells, song.SongCells);
        EXPECT_EQ(paint->Tempo, song.Tempo);
        ASSERT_EQ(paint->TrackCount, song.TrackCount);
        for (std::int32_t track = 1; track <= song.TrackCount; ++track) {
            EXPECT_EQ(At(paint->Tracks, track).TrackType, At(song.Tracks, track).TrackType);
            EXPECT_EQ(At(paint->Tracks, track).Painted, At(song.Tracks, track).Painted);
        }
    }

    /// Reads the array truncated after each element, and with a wrong value in each element.
    static void ExpectAgreementHoweverDamaged(const HandArray& array, const std::string& version)
    {
        const Elements elements = array.Elements();
        ExpectAgreement(FileOf("TqSng", version, elements));
        for (std::size_t place = 0; place < elements.size(); ++place) {
            const bool isColour = elements[place] >= kFirstColour && elements[place] <= kLastColour;
            if (isColour && place % 100 != 0)
                continue;
            SCOPED_TRACE(place);
            Elements cut(elements.begin(), elements.begin() + static_cast<std::ptrdiff_t>(place) + 1);
            cut[0] = static_cast<std::int32_t>(place);
            ExpectAgreement(FileOf("TqSng", version, cut));
            for (const std::int32_t lie :
                 {0, 1, 2, -1, 3, 1000, 2'000'000'000, -2'000'000'000, 2147483647, -2147483647 - 1}) {
                Elements lying = elements;
                lying[place] = lie;
                ExpectAgreement(FileOf("TqSng", version, lying));
            }
        }
    }
};

TEST_F(SongPaintTest, IsTypeAndCellsOfEachTrackAndNothingElse)
{
    const SongState paint = PaintOf(FileOf("TqSng", "2", MakeArray20().Elements()));
    EXPECT_EQ(paint.SongCells, 3);
    EXPECT_EQ(paint.Tempo, 400);
    EXPECT_EQ(paint.SongTitle, "");
    EXPECT_EQ(paint.SongBeatCount, 0);
    ASSERT_EQ(paint.TrackCount, 4);
    const std::vector<std::pair<std::int32_t, Elements>> expected{
        {0, {0, 1, 2, 0}}, {0, {0, 0, 0, 1}}, {1, {0, 1, 1, 1}}, {7, {0, 0, 1, 0}}};
    for (std::int32_t i = 1; i <= 4; ++i) {
        const Track& track = At(paint.Tracks, i);
        EXPECT_EQ(std::pair(track.TrackType, track.Painted), expected[static_cast<std::size_t>(i) - 1]);
        EXPECT_EQ(track.TrackTune.Name, "");
        EXPECT_EQ(track.TrackTune.StepCount, 0);
        EXPECT_EQ(track.TrackAudio, WaveData());
    }
}

TEST_F(SongPaintTest, IsThatOfTheSongHoweverVersion2IsDamaged)
{
    ExpectAgreementHoweverDamaged(MakeArray20(), "2");
}

TEST_F(SongPaintTest, IsThatOfTheSongHoweverVersion11IsDamaged)
{
    ExpectAgreementHoweverDamaged(MakeArray11(), "1.1");
}

TEST_F(SongPaintTest, IsThatOfTheSongHoweverVersion1IsDamaged)
{
    ExpectAgreementHoweverDamaged(MakeArray10(), "1");
}

TEST_F(SongPaintTest, FailsForAFileCutAtAnyByte)
{
    for (const auto& [array, version] : {std::pair{MakeArray20(), "2"}, {MakeArray11(), "1.1"}, {MakeArray10(), "1"}}) {
        const std::string bytes = FileOf("TqSng", version, array.Elements());
        const std::size_t arrayEnd = bytes.find("Data=") + 5 + array.Elements().size() * 4;
        constexpr std::size_t stride = 13; // reaches every byte of an element
        for (std::size_t size = 0; size < arrayEnd; size += size < 400 ? 1 : stride)
            EXPECT_FALSE(TryPaint(bytes.substr(0, size))) << size;
        EXPECT_TRUE(TryPaint(bytes.substr(0, arrayEnd)));
    }
}

TEST_F(SongPaintTest, LooksAtNoOtherFile)
{
    WriteBytes(Shared().UserStars / "Star.TqSta", "[StepCycle]\r\nNumberOfSteps=1e99\r\n"); // ends a load
    EXPECT_EQ(PaintOf(FileOf("TqSng", "1", MakeArray10().Elements())).TrackCount, 4);
    EXPECT_TRUE(Told().empty());
}

TEST_F(SongPaintTest, KeepsTheFirstTracksAndTheFirstCells)
{
    const std::int32_t cells = kSongCells + 500;
    HandArray array;
    array.Add({kMostTracks + 2, 0, cells, 320}).Text("").Text("");
    for (std::int32_t track = 1; track <= kMostTracks; ++track)
        array.Add({track}).Many(1, kSongCells).Many(2, 500).Add(track == 1 ? Elements{0} : Elements{});
    array.Many(1, 2 * (1 + cells)); // audio tracks without the sound that they need: nobody looks
    const SongState paint = PaintOf(FileOf("TqSng", "2", array.Elements()));
    ASSERT_EQ(paint.TrackCount, kMostTracks);
    for (std::int32_t track = 2; track <= kMostTracks; ++track) {
        EXPECT_EQ(At(paint.Tracks, track).TrackType, track);
        EXPECT_EQ(At(paint.Tracks, track).Painted.size(), static_cast<std::size_t>(kSongCells) + 1);
        EXPECT_TRUE(At(paint.Tracks, track).IsPainted(kSongCells));
    }
}

TEST_F(SongPaintTest, TakesLittleMemoryForMuchOfAnything)
{
    constexpr int much = 400'000;
    HandArray text, beats, steps, sound, cells;
    text.Add({1, 0, 1, 320}).Text(std::string(much, 'x')).Text("").Add({7, 1});
    beats.Add({1, much, 1, 320}).Text("").Text("");
    for (int beat = 0; beat < much; ++beat)
        beats.Text("").Add({0});
    beats.Add({7, 1});
    steps.Add({1, 0, 1, 320}).Text("").Text("").Add({0, 1, 1}).Text("T").Add({1}).Text("").Text("").Picture(0);
    steps.Add({much}).Many(1, 5 * much).Add({0});
    sound.Add({1, 0, 1, 320}).Text("").Text("").Add({1, 1}).Add({4 + much / 2 + 1, 16, 1, 44100, much});
    sound.Many(1, much / 2 + 1);
    cells.Add({1, 0, much, 320}).Text("").Text("").Add({7}).Many(1, much);
    for (const HandArray& array : {text, beats, steps, sound, cells}) {
        const std::optional<SongState> paint = TryPaint(FileOf("TqSng", "2", array.Elements()));
        ASSERT_TRUE(paint);
        EXPECT_TRUE(At(paint->Tracks, 1).IsPainted(1));
    }
}

TEST_F(SongPaintTest, AnUnknownVersionHasNoTracks)
{
    EXPECT_EQ(PaintOf(FileOf("TqSng", "3", MakeArray20().Elements())).TrackCount, 0);
    EXPECT_EQ(PaintOf("").TrackCount, 0);
    EXPECT_EQ(PaintOf("GIF89a").TrackCount, 0);
    std::filesystem::remove(Path());
    EXPECT_THROW(static_cast<void>(ReadSongPaint(Path(), 1)), RunTimeError);
}

} // namespace
} // namespace sprout
