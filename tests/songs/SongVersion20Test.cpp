// SPDX-License-Identifier: GPL-3.0-or-later
#include <filesystem>

#include "core/SongModel.h"
#include "songs/HandSongs.h"
#include "songs/SongFileMaker.h"
#include "support/AllocationWatch.h"
#include "tunes/TunOpnSavClass.h"
#include "waves/WavOperations.h"

namespace sprout {
namespace {

namespace fs = std::filesystem;
using Elements = std::vector<std::int32_t>;

class SongVersion20Test : public SongFilesTest {};

TEST_F(SongVersion20Test, ReadsEveryElementIntoItsField)
{
    const SongState& song = LoadArray(MakeArray20());
    ASSERT_EQ(song.TrackCount, 4);
    ASSERT_EQ(song.Tracks.size(), 5U);
    EXPECT_EQ(song.SongCells, 3);
    EXPECT_EQ(song.Tempo, 400);
    EXPECT_EQ(song.SongTitle, "My song");
    EXPECT_EQ(song.SongCreatedBy, "");
    ASSERT_EQ(song.SongBeatCount, 2);
    ASSERT_EQ(song.SongBeats.size(), 3U);
    EXPECT_EQ(song.SongBeats[1].Name, "Drum");
    EXPECT_EQ(song.SongBeats[1].DateStamp, "stamp");
    EXPECT_EQ(song.SongBeats[1].Sound.WavR[2], 4);
    EXPECT_EQ(song.SongBeats[1].Sound.Rate, 22050);
    EXPECT_EQ(song.SongBeats[1].Picture.Pixel(5, 5), 0x30U);
    EXPECT_TRUE(song.SongBeats[2].Loaded);
    EXPECT_EQ(song.SongBeats[2].Sound.Bits, 8);
    EXPECT_EQ(song.SongBeats[2].Sound.WavL[3], 7);

    EXPECT_EQ(song.Tracks[1].Painted, (Elements{0, 1, 2, 0}));
    const Tune& tune = song.Tracks[1].TrackTune;
    EXPECT_EQ(tune.Name, "Tune");
    EXPECT_EQ(tune.DateStamp, "tune stamp");
    EXPECT_EQ(tune.CreatedBy, "Ann");
    EXPECT_EQ(tune.Picture.Pixel(0, 0), 0x32U);
    ASSERT_EQ(tune.StepCount, 2);
    EXPECT_EQ(tune.Steps[1].OnPos, 1);
    EXPECT_EQ(tune.Steps[1].PitchShift, -3);
    EXPECT_EQ(tune.Steps[1].Duration, 50);
    EXPECT_EQ(tune.Steps[1].Volume, 120);
    EXPECT_EQ(tune.Steps[1].BeatIndex, 2);
    EXPECT_FALSE(tune.TuneWaveValid);

    EXPECT_EQ(song.Tracks[2].TrackTune.StepCount, 16);
    EXPECT_TRUE(SamePicture(song.Tracks[2].TrackTune.Picture, Shared().BlankPic));
    EXPECT_EQ(song.Tracks[3].TrackAudio, WaveOf({9, 10}));
    EXPECT_EQ(song.Tracks[4].TrackType, 7);
    EXPECT_EQ(song.Tracks[4].Painted, (Elements{0, 0, 1, 0}));
    EXPECT_FALSE(song.Tracks[1].TrackRenderValid);
    EXPECT_TRUE(Told().empty());
}

TEST_F(SongVersion20Test, WritesEveryElementInItsPlace)
{
    HandArray array = MakeArray20();
    LoadArray(array);
    EXPECT_EQ(ArrayOf(SaveBytes()), array.Elements());
}

TEST_F(SongVersion20Test, ASongWithoutBeatsGoesStraightToItsTracks)
{
    NewSong();
    SongState& song = Shared().Song;
    song.SongTitle = "";
    song.SongCreatedBy = "";
    song.Tracks[2].Painted[1] = 2;
    song.Tracks[2].Painted[0] = 99; // belongs to no cell and is never saved
    const Elements array = ArrayOf(SaveBytes());
    HandArray expected;
    expected.Add({2, 0, 1280, 320}).Add({1, 0}).Add({1, 0});
    expected.Add({0}).Many(0, 1280).Add({0}).Add({0, 2}).Many(0, 1279).Add({0});
    EXPECT_EQ(array, expected.Elements());
}

TEST_F(SongVersion20Test, NamesInAnyAlphabetComeBack)
{
    NewSong();
    Shared().Song.SongTitle = "\xE6\xAD\x8C";
    Shared().Song.SongCreatedBy = "Ren\xC3\xA9";
    Shared().Song.Tracks[1].TrackTune.Name = "\xD0\xB4\xD0\xBE\xD0\xB6\xD0\xB4\xD1\x8C";
    SaveBytes();
    NewSong();
    OpenSaveClass().Load_Song(Path());
    EXPECT_EQ(Shared().Song.SongTitle, "\xE6\xAD\x8C");
    EXPECT_EQ(Shared().Song.SongCreatedBy, "Ren\xC3\xA9");
    EXPECT_EQ(Shared().Song.Tracks[1].TrackTune.Name, "\xD0\xB4\xD0\xBE\xD0\xB6\xD0\xB4\xD1\x8C");
}

TEST_F(SongVersion20Test, BeatsStayOutsideOnlyWhereTheirWaveIsThere)
{
    LoadArray(MakeArray20());
    Shared().SongBeatsInside = false;
    SaveWaveFile(WaveOf({70}), Shared().UserBeats / "DRUM.WAV");
    Shared().Song.Tracks[1].TrackTune.Steps[2].BeatIndex = 1;
    const Elements array = ArrayOf(SaveBytes());
    HandArray head;
    head.Add({4, 2, 3, 400}).Text("My song").Text("").Text("Drum").Add({0}).Text("Bass").Add({1});
    const Elements expected = head.Elements();
    EXPECT_EQ(Elements(array.begin() + 1, array.begin() + static_cast<std::ptrdiff_t>(expected.size())),
              Elements(expected.begin() + 1, expected.end()));

    OpenSaveClass().Load_Song(Path());
    EXPECT_EQ(Shared().Song.SongBeats[1].Sound, WaveOf({70}));
    EXPECT_EQ(Shared().Song.SongBeats[2].Sound.WavL[3], 7);
}

TEST_F(SongVersion20Test, AnOutsideBeatThatIsNowhereComesOutEmpty)
{
    HandArray array;
    array.Add({1, 2, 1, 320}).Text("t").Text("a").Text("Gone").Add({0}).Text("../x").Add({2}).Add({7, 0});
    const SongState& song = LoadArray(array);
    ASSERT_EQ(song.SongBeatCount, 2);
    EXPECT_EQ(song.SongBeats[1].Name, "");
    EXPECT_FALSE(song.SongBeats[1].Loaded);
    EXPECT_EQ(song.SongBeats[2].Name, "");
    EXPECT_TRUE(Told().empty());
}

TEST_F(SongVersion20Test, OutsideBeatsOfOneNameShareTheirSamples)
{
    SaveWaveFile(WaveOf({70, 71}), Shared().UserBeats / "Drum.wav");
    HandArray array;
    array.Add({1, 2, 1, 320}).Text("t").Text("a").Text("Drum").Add({0}).Text("Drum").Add({0}).Add({7, 0});
    const SongState& song = LoadArray(array);
    EXPECT_TRUE(song.SongBeats[1].Sound.WavL.SharesBlockWith(song.SongBeats[2].Sound.WavL));
}

TEST_F(SongVersion20Test, TakesATuneFromItsFileAndMergesItsBeats)
{
    Tune& clipboard = Shared().TuneClipboard;
    clipboard = Tune();
    clipboard.CreatedBy = "Ann";
    clipboard.Steps.resize(3);
    clipboard.StepCount = 2;
    clipboard.Steps[2].OnPos = 1;
    clipboard.Steps[2].StepBeat = {"Drum", "stamp", WaveOf({5}), PlainPicture(1), true};
    TunOpnSavClass(Flush::No).Save_Tune(Shared().UserTunes / "Outside.TqTun");
    HandArray array;
    array.Add({3, 0, 1, 320}).Text("t").Text("a");
    array.Add({0, 1}).Add({1}).Text("Outside").Add({0});
    array.Add({0, 1}).Add({5}).Text("Outside").Add({2}); // any first flag but 0 is a tune, any second but 1 outside
    array.Add({0, 1}).Add({1}).Text("Missing").Add({0}); // nothing follows the flag
    const SongState& song = LoadArray(array);
    ASSERT_EQ(song.TrackCount, 3);
    for (const std::size_t track : {1U, 2U}) {
        const Tune& tune = song.Tracks[track].TrackTune;
        EXPECT_EQ(tune.Name, "Outside");
        EXPECT_EQ(tune.CreatedBy, "Ann");
        ASSERT_EQ(tune.StepCount, 2);
        EXPECT_EQ(tune.Steps[2].BeatIndex, 1);
        EXPECT_EQ(tune.Steps[2].StepBeat.Name, "");
    }
    ASSERT_EQ(song.SongBeatCount, 1);
    EXPECT_EQ(song.SongBeats[1].Sound, WaveOf({5}));
    EXPECT_TRUE(SamePicture(song.Tracks[3].TrackTune.Picture, Shared().BlankPic));
    EXPECT_TRUE(Told().empty());
}

TEST_F(SongVersion20Test, OddNumbersStayInTheDataAndBreakNothing)
{
    HandArray array;
    array.Add({1, 0, 0, -5}).Text("t").Text("a").Add({0}).Add({1}).Text("T").Add({1}).Text("").Text("").Picture(0);
    array.Add({1}).Add({9, 1000000, -1, 2147483647, -7}).Add({55});
    const SongState& song = LoadArray(array);
    ASSERT_EQ(song.TrackCount, 1);
    EXPECT_EQ(song.Tempo, -5);
    EXPECT_EQ(song.SongCells, 0);
    EXPECT_EQ(song.Tracks[1].Painted.size(), 1U);
    EXPECT_EQ(song.Tracks[1].TrackTune.Steps[1].BeatIndex, -7);
    const Elements first = ArrayOf(SaveBytes());
    EXPECT_EQ(first[3], 0);
}

TEST_F(SongVersion20Test, CountsBelowZeroAreErrors)
{
    for (const Elements& head : {Elements{-1, 0, 1, 320}, Elements{1, -1, 1, 320}, Elements{1, 0, -1, 320}}) {
        services.messages.shown.clear();
        HandArray array;
        array.Add(head).Text("t").Text("a").Add({7, 0});
        EXPECT_EQ(LoadArray(array).TrackCount, 0);
        ASSERT_EQ(Told().size(), 2U);
        EXPECT_EQ(Told()[0].rfind("Error Loading File|", 0), 0U);
    }
}

TEST_F(SongVersion20Test, ASmallFileCanAskForLittleMemoryOnly)
{
    constexpr std::int32_t most = 2147483647;
    for (const Elements& head : {Elements{most, 0, 1, 320}, Elements{1, most, 1, 320}, Elements{1, 0, most, 320},
                                 Elements{most, most, most, most}, Elements{20, 0, 0, 320}, Elements{1, 5, 0, 320}}) {
        HandArray array;
        array.Add(head).Text("t").Text("a").Many(0, 12);
        const AllocationWatch watch;
        LoadArray(array);
        EXPECT_LT(watch.Largest(), 1'000'000U);
    }
    HandArray steps;
    steps.Add({1, 0, 0, 320}).Text("t").Text("a").Add({0}).Add({1}).Text("T").Add({1}).Text("").Text("").Picture(0);
    steps.Add({most});
    const AllocationWatch watch;
    EXPECT_EQ(LoadArray(steps).TrackCount, 0);
    EXPECT_LT(watch.Largest(), 1'000'000U);
}

TEST_F(SongVersion20Test, AFileCutAnywhereFails)
{
    const std::string bytes = FileOf("TqSng", "2", MakeArray20().Elements());
    constexpr std::size_t stride = 13; // reaches every byte of an element; the head and the texts are cut at each byte
    for (std::size_t size = 0; size < bytes.size() - 9; size += size < 200 ? 1 : stride) {
        services.messages.shown.clear();
        EXPECT_EQ(LoadBytes(bytes.substr(0, size)).TrackCount, 0) << size;
        EXPECT_EQ(Told().back(), "|Failed Loading");
    }
}

TEST_F(SongVersion20Test, AnArrayThatEndsEarlyFails)
{
    const Elements array = MakeArray20().Elements();
    for (std::size_t count = 1; count < array.size(); count += count < 40 || count > 3150 ? 1 : 29) {
        Elements cut(array.begin(), array.begin() + static_cast<std::ptrdiff_t>(count));
        cut[0] = static_cast<std::int32_t>(count) - 1;
        EXPECT_EQ(LoadBytes(FileOf("TqSng", "2", cut)).TrackCount, 0) << count;
    }
}

TEST_F(SongVersion20Test, AnyElementMayLie)
{
    const Elements array = MakeArray20().Elements();
    const auto isColour = [&](std::size_t i) { return array[i] >= 0x30 && array[i] <= 0x32; };
    for (std::size_t place = 0; place < array.size(); ++place) {
        if (isColour(place) && place % 100 != 0)
            continue;
        for (const std::int32_t lie : {0, 1, -1, 3, 1000, 2147483647, -2147483647 - 1}) {
            Elements lying = array;
            lying[place] = lie;
            const std::string bytes = FileOf("TqSng", "2", lying);
            const AllocationWatch watch;
            const SongState& song = LoadBytes(bytes);
            EXPECT_LT(watch.Largest(), 1'000'000U) << place;
            if (song.TrackCount != 0) {
                EXPECT_EQ(song.Tracks.size(), static_cast<std::size_t>(song.TrackCount) + 1);
                EXPECT_EQ(song.SongBeats.size(), static_cast<std::size_t>(song.SongBeatCount) + 1);
                SaveBytes();
            }
        }
    }
}

TEST_F(SongVersion20Test, RefusesWhatTheFileCannotHoldBeforeItIsMade)
{
    HandArray beats, tracks, steps;
    beats.Add({1, 2, 0, 320}).Text("").Text("").Add({1, 0, 0, 1, 0}); // one of six is missing
    tracks.Add({2, 0, 2, 320}).Text("").Text("").Add({7, 0, 0, 7, 0});
    steps.Add({1, 0, 0, 320}).Text("").Text("").Add({0, 1}).Text("T").Add({1}).Text("").Text("").Picture(0);
    steps.Add({2}).Many(1, 9); // one of ten
    for (const HandArray& array : {beats, tracks, steps}) {
        services.messages.shown.clear();
        LoadArray(array);
        EXPECT_EQ(Told(), (std::vector<std::string>{"Error Loading File|The file is damaged: it promises more than it "
                                                    "holds.",
                                                    "|Failed Loading"}));
    }
}

TEST_F(SongVersion20Test, WritesCellsThatATrackLacksAsUnpainted)
{
    LoadArray(MakeArray20());
    Shared().Song.Tracks[4].Painted = {0, 1};
    OpenSaveClass(Flush::No).Save_Song(Path());
    OpenSaveClass().Load_Song(Path());
    EXPECT_EQ(Shared().Song.Tracks[4].Painted, (Elements{0, 1, 0, 0}));
}

} // namespace
} // namespace sprout
