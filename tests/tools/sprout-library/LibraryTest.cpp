// SPDX-License-Identifier: GPL-3.0-or-later
#include "sprout-library/Library.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <map>
#include <sstream>

#include "core/Paths.h"
#include "core/Shared.h"
#include "core/SongModel.h"
#include "songs/OpenSaveClass.h"
#include "sound/TuneRender.h"
#include "sprout-library/Check.h"
#include "sprout-library/Tool.h"
#include "support/TestFolder.h"
#include "tunes/TunOpnSavClass.h"

namespace sprout {
namespace {

namespace fs = std::filesystem;

/// Every file of a tree with its bytes and its time.
std::map<std::string, std::pair<std::string, fs::file_time_type>> Tree(const fs::path& root)
{
    std::map<std::string, std::pair<std::string, fs::file_time_type>> tree;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(root))
        if (entry.is_regular_file() && entry.path().filename().native().front() != '.')
            tree[fs::relative(entry.path(), root).native()] = {ReadBytes(entry.path()), entry.last_write_time()};
    return tree;
}

/// The project's own library, made once for all tests.
class MadeLibrary : public testing::Test {
protected:
    static void SetUpTestSuite()
    {
        folder = new TestFolder();
        Make(folder->Path() / "Sprout");
    }

    static void TearDownTestSuite()
    {
        delete folder;
        folder = nullptr;
    }

    static void Make(const fs::path& output)
    {
        ::setenv("SOURCE_DATE_EPOCH", "1600000000", 1);
        std::ostringstream out, err;
        ASSERT_EQ(RunTool({SPROUT_SOURCE, output.native()}, out, err), 0) << out.str() << err.str();
    }

    [[nodiscard]] static fs::path Made() { return folder->Path() / "Sprout"; }

    static TestFolder* folder;
};

TestFolder* MadeLibrary::folder = nullptr;

TEST_F(MadeLibrary, IsTheSameWhenMadeAgain)
{
    const TestFolder second;
    Make(second.Path() / "Sprout");
    const auto a = Tree(Made()), b = Tree(second.Path() / "Sprout");
    ASSERT_EQ(a.size(), b.size());
    for (const auto& [name, file] : a) {
        ASSERT_TRUE(b.contains(name)) << name;
        EXPECT_TRUE(file.first == b.at(name).first) << name << " has other bytes";
        EXPECT_EQ(file.second, b.at(name).second) << name;
    }
}

TEST_F(MadeLibrary, IsLeftAloneWhenNothingChanged)
{
    const fs::path mark = Made() / "Beats" / "G_Acoustic Guitar High.wav";
    const std::string bytes = ReadBytes(mark);
    WriteBytes(mark, "touched");
    Make(Made());
    EXPECT_EQ(ReadBytes(mark), "touched");
    WriteBytes(mark, bytes);
    fs::last_write_time(mark, fs::last_write_time(Made() / "Beats" / "G_Acoustic Guitar Low.wav"));
}

TEST_F(MadeLibrary, KeepsItsRules)
{
    std::ostringstream out, err;
    EXPECT_EQ(RunTool({"--check", Made().native()}, out, err), 0) << out.str() << err.str();
}

TEST_F(MadeLibrary, HoldsWhatTheProgramAsksForAtItsStart)
{
    EXPECT_TRUE(FileExists(Made() / "Beats" / "G_Acoustic Guitar High.wav"));
    EXPECT_TRUE(FileExists(Made() / "Songs" / "Zumi.TqSng"));
    EXPECT_TRUE(FileExists(Made() / "Tunes" / "Lumo.TqTun"));
    EXPECT_TRUE(ReadBytes(Made() / "Tunes" / "TqTunes.ini").starts_with("[SortOrder]\r\nLumo=1\r\n"));
}

TEST_F(MadeLibrary, TakesAtMost20MegabytesOfEachUser)
{
    std::size_t bytes = 0;
    for (const auto& [name, file] : Tree(Made()))
        bytes += file.first.size();
    EXPECT_LE(bytes, 20'000'000U);
}

TEST_F(MadeLibrary, HasTunesThatCarryNeitherBeatsNorSound)
{
    std::ostringstream out, err;
    Session session(out, err, Made(), false, Watched::No);
    int tunes = 0;
    for (const fs::directory_entry& entry : fs::directory_iterator(Made() / "Tunes")) {
        EXPECT_NE(entry.path().extension(), ".TqTunCache");
        if (entry.path().extension() != ".TqTun")
            continue;
        ++tunes;
        EXPECT_LT(entry.file_size(), 10'000U) << entry.path();
        TunOpnSavClass().Load_Tune(entry.path());
        const Tune& tune = Shared().TuneClipboard;
        EXPECT_FALSE(tune.TuneWaveValid) << tune.Name;
        for (const TuneStep& step : tune.Steps)
            EXPECT_EQ(step.IsOn(), step.StepBeat.Sound.Length > 0) << tune.Name;
    }
    EXPECT_EQ(tunes, 66);
    EXPECT_TRUE(session.NoMessageSince(0));
}

TEST_F(MadeLibrary, IsNotWithinItsRulesWhenATuneCarriesItsSound)
{
    const TestFolder second;
    const fs::path library = second.Path() / "Sprout";
    fs::copy(Made(), library, fs::copy_options::recursive);
    {
        std::ostringstream out, err;
        Session session(out, err, library, false, Watched::No);
        TunOpnSavClass files(Flush::No);
        files.Load_Tune(library / "Tunes" / "Lumo.TqTun");
        RenderTuneCycle(Shared().TuneClipboard);
        files.Save_Tune(library / "Tunes" / "Lumo.TqTun");
    }
    std::ostringstream out, err;
    EXPECT_EQ(RunTool({"--check", library.native()}, out, err), 1);
    EXPECT_NE(out.str().find("BROKEN  Lumo: carries sounds"), std::string::npos);
}

TEST_F(MadeLibrary, HasSongsWhoseBeatsAreThoseOfTheFolder)
{
    std::ostringstream out, err;
    Session session(out, err, Made(), false, Watched::No);
    OpenSaveClass().Load_Song(Made() / "Songs" / "Zumi.TqSng");
    const SongState& song = Shared().Song;
    ASSERT_GE(song.TrackCount, 6);
    EXPECT_EQ(song.SongTitle, "Zumi");
    for (std::int32_t i = 1; i <= song.SongBeatCount; ++i) {
        const Beat& beat = song.SongBeats[static_cast<std::size_t>(i)];
        EXPECT_EQ(beat.DateStamp, FileStamp(Shared().UserBeats / (beat.Name + ".wav"))) << beat.Name;
    }
}

/// A song with two tracks that sound together, the second one `semitones` above the first.
SongState TwoNotes(std::int32_t semitones, const std::string& beat)
{
    SongState song;
    song.SongBeats.push_back({beat, {}, {}, {}, true});
    song.SongBeatCount = 1;
    song.TrackCount = 2;
    song.Tracks.assign(3, Track());
    for (std::size_t t = 1; t <= 2; ++t) {
        TuneStep step;
        step.OnPos = 1;
        step.BeatIndex = 1;
        step.PitchShift = t == 2 ? semitones : 0;
        step.StepWave.Length = 4410;
        song.Tracks[t].TrackTune.Steps.push_back(step);
        song.Tracks[t].TrackTune.StepCount = 1;
        song.Tracks[t].Painted.assign(kSongCells + 1, 0);
        song.Tracks[t].Painted[1] = 1;
    }
    return song;
}

TEST(ClashShare, CountsSecondsSeventhsAndTheTritone)
{
    for (const std::int32_t semitones : {1, 2, 6, 10, 11, -1, 13, 14})
        EXPECT_DOUBLE_EQ(ClashShare(TwoNotes(semitones, "K_Piano High")), 1) << semitones;
    for (const std::int32_t semitones : {0, 3, 4, 5, 7, 8, 9, 12, -12})
        EXPECT_DOUBLE_EQ(ClashShare(TwoNotes(semitones, "K_Piano High")), 0) << semitones;
}

TEST(ClashShare, DoesNotHearDrums)
{
    EXPECT_DOUBLE_EQ(ClashShare(TwoNotes(1, "d_kick")), 0);
    EXPECT_DOUBLE_EQ(ClashShare(TwoNotes(1, "F_Zap")), 0);
}

TEST(RunTool, TellsWrongWords)
{
    std::ostringstream out, err;
    EXPECT_EQ(RunTool({}, out, err), 2);
    EXPECT_EQ(RunTool({"--nonsense"}, out, err), 2);
    EXPECT_EQ(RunTool({"--help"}, out, err), 0);
    EXPECT_EQ(RunTool({"/nowhere", (fs::temp_directory_path() / "SproutNowhere").native()}, out, err), 1);
    EXPECT_NE(err.str().find("cannot be read"), std::string::npos);
    fs::remove_all(fs::temp_directory_path() / "SproutNowhere");
}

} // namespace
} // namespace sprout
