// SPDX-License-Identifier: GPL-3.0-or-later
#include "songs/OpenSaveClass.h"

#include <filesystem>

#include "base/Errors.h"
#include "core/SongModel.h"
#include "songs/SongFileMaker.h"
#include "support/Flags.h"
#include "support/UnchangeableFolder.h"
#include "waves/WavOperations.h"

namespace sprout {
namespace {

namespace fs = std::filesystem;
using Texts = std::vector<std::string>;

/// A song with one audio track of two cells.
HandArray SmallArray()
{
    HandArray array;
    array.Add({1, 0, 2, 320}).Text("Title").Text("Ann").Add({1, 1, 2}).Add({4, 16, 2, 44100, 0});
    return array;
}

class OpenSaveClassTest : public SongFilesTest {
protected:
    OpenSaveClassTest()
    {
        NewSong();
        Shared().Song.SongTitle = "Before";
    }

    /// The open song stays, except for its tracks.
    static void ExpectFailed()
    {
        EXPECT_EQ(Shared().Song.TrackCount, 0);
        EXPECT_EQ(Shared().Song.SongTitle, "Before");
        EXPECT_EQ(Shared().Song.SongCells, 1280);
        EXPECT_EQ(Shared().Song.Tracks.size(), 3U);
    }
};

TEST_F(OpenSaveClassTest, ReplacesTheSharedSongWhole)
{
    SetSongMixValid(Shared().Song, true);
    Shared().Song.SongMix = WaveOf({1});
    const SongState& song = LoadArray(SmallArray());
    EXPECT_EQ(song.SongTitle, "Title");
    EXPECT_EQ(song.TrackCount, 1);
    EXPECT_EQ(song.SongCells, 2);
    EXPECT_FALSE(song.SongMixValid);
    EXPECT_EQ(song.SongMix.Length, 0);
    EXPECT_TRUE(Told().empty());
}

TEST_F(OpenSaveClassTest, ReadsVersionsByTheirNumber)
{
    for (const char* version : {"2", "2.0", " 2", "2,5", "2e0"}) {
        Shared().Song.TrackCount = 0;
        EXPECT_EQ(LoadArray(SmallArray(), version).TrackCount, 1) << version;
    }
    EXPECT_TRUE(Told().empty());
}

TEST_F(OpenSaveClassTest, RefusesVersionsThatItDoesNotKnow)
{
    for (const char* version : {"3", "0", "1.2", "1.11", "-2", "", "two", "2.1", "1e300"}) {
        services.messages.shown.clear();
        LoadArray(SmallArray(), version);
        ExpectFailed();
        EXPECT_EQ(Told(), Texts{"|Failed Loading"}) << version;
        NewSong();
        Shared().Song.SongTitle = "Before";
    }
}

TEST_F(OpenSaveClassTest, FindsItsKeysInAnyLetterCaseButNotOnTheFirstLine)
{
    const std::string array = BytesOf(SmallArray().Elements()) + std::string(9, '\0');
    EXPECT_EQ(LoadBytes("x\r\nFILE VERSION=2\r\ndATA=" + array).TrackCount, 1);
    LoadBytes("File Version=2\r\nData=" + array);
    EXPECT_EQ(Told(), Texts{"|Failed Loading"});
}

TEST_F(OpenSaveClassTest, TellsWhenTheDataAreMissing)
{
    LoadBytes("TqSng\r\nFile Version=2\r\n" + std::string(100, ' '));
    ExpectFailed();
    EXPECT_EQ(Told(), (Texts{"Error Loading File|Failed to find Data", "|Failed Loading"}));
}

TEST_F(OpenSaveClassTest, TellsOfAShortFileAndThenOfTheFailure)
{
    const std::string bytes = FileOf("TqSng", "2", SmallArray().Elements());
    LoadBytes(bytes.substr(0, bytes.size() - 10));
    ExpectFailed();
    ASSERT_EQ(Told().size(), 2U);
    EXPECT_EQ(Told()[0].rfind("Error Loading File|The file is damaged", 0), 0U);
    EXPECT_EQ(Told()[1], "|Failed Loading");
}

TEST_F(OpenSaveClassTest, TellsOnceOfAFileThatCannotBeOpened)
{
    fs::create_directory(Shared().UserSongs / "folder.TqSng");
    fs::create_symlink(Shared().UserSongs / "nowhere", Shared().UserSongs / "link.TqSng");
    for (const char* name : {"None.TqSng", "folder.TqSng", "link.TqSng"}) {
        services.messages.shown.clear();
        OpenSaveClass().Load_Song(Shared().UserSongs / name);
        ExpectFailed();
        ASSERT_EQ(Told().size(), 1U) << name;
        EXPECT_EQ(Told()[0].rfind("Error Opening File|The file ", 0), 0U);
    }
}

TEST_F(OpenSaveClassTest, AnEmptyFileIsOfNoKnownVersion)
{
    LoadBytes("");
    ExpectFailed();
    EXPECT_EQ(Told(), Texts{"|Failed Loading"});
}

TEST_F(OpenSaveClassTest, ASongWithoutTracksCountsAsFailed)
{
    HandArray array;
    array.Add({0, 0, 1280, 320}).Text("Title").Text("Ann");
    LoadArray(array);
    ExpectFailed();
    EXPECT_EQ(Told(), Texts{"|Failed Loading"});
}

TEST_F(OpenSaveClassTest, FindsAFileWhateverItsLetterCase)
{
    WriteBytes(Shared().UserSongs / "Rain.TqSng", FileOf("TqSng", "2", SmallArray().Elements()));
    OpenSaveClass().Load_Song(Shared().UserSongs / "rain.tqsng");
    EXPECT_EQ(Shared().Song.TrackCount, 1);
}

TEST_F(OpenSaveClassTest, ReadingASongChangesNoRecordOfTheProgram)
{
    Shared().TuneClipboard.Name = "Before";
    WriteBytes(Path(), FileOf("TqSng", "2", SmallArray().Elements()));
    const SongState song = ReadSong(Path());
    EXPECT_EQ(song.SongTitle, "Title");
    EXPECT_EQ(song.TrackCount, 1);
    EXPECT_EQ(Shared().Song.SongTitle, "Before");
    EXPECT_EQ(Shared().Song.TrackCount, 2);
    EXPECT_EQ(Shared().TuneClipboard.Name, "Before");
}

TEST_F(OpenSaveClassTest, ReadingThrowsWithoutAMessage)
{
    WriteBytes(Path(), FileOf("TqSng", "2", {1, 2, 3}));
    EXPECT_THROW(static_cast<void>(ReadSong(Path())), SongDataError);
    EXPECT_THROW(static_cast<void>(ReadSong(Shared().UserSongs / "Gone.TqSng")), RunTimeError);
    EXPECT_TRUE(Told().empty());
    EXPECT_EQ(Shared().Song.TrackCount, 2);
}

TEST_F(OpenSaveClassTest, ALoadedTrackWithoutATuneBlinks)
{
    SaveBytes();
    services.screen.tuneNotFilledTimer = false;
    LoadArray(SmallArray());
    EXPECT_FALSE(services.screen.tuneNotFilledTimer);
    NewSong();
    SaveBytes();
    services.screen.tuneNotFilledTimer = false;
    OpenSaveClass().Load_Song(Path());
    EXPECT_TRUE(services.screen.tuneNotFilledTimer);
}

TEST_F(OpenSaveClassTest, SavesHeadArrayAndTail)
{
    const std::string bytes = SaveBytes();
    EXPECT_EQ(bytes.substr(0, 53), "TqSng\r\nFile Description=Tonquill Sprout Song File\r\nSa");
    EXPECT_NE(bytes.find("\r\nFile Version=2\r\nTime="), std::string::npos);
    const std::size_t data = bytes.find("\r\nData=") + 7;
    EXPECT_EQ(bytes.substr(bytes.size() - 9), std::string("\0\0\0\0EOF\r\n", 9));
    EXPECT_EQ(ArrayOf(bytes).size() * 4, bytes.size() - 9 - data);
}

TEST_F(OpenSaveClassTest, SavingTwiceGivesEqualArrays)
{
    Shared().Song.SongBeats.resize(3);
    Shared().Song.SongBeatCount = 2;
    Shared().Song.SongBeats[2] = {"Drum", "stamp", WaveOf({1}), PlainPicture(1), true};
    Shared().Song.Tracks[1].TrackTune.Name = "Tune";
    Shared().Song.Tracks[1].TrackTune.Steps[1].BeatIndex = 2;
    const std::vector<std::int32_t> first = ArrayOf(SaveBytes());
    EXPECT_EQ(Shared().Song.SongBeatCount, 1);
    EXPECT_EQ(ArrayOf(SaveBytes()), first);
    EXPECT_EQ(first[2], 1);
}

TEST_F(OpenSaveClassTest, AFailedSaveThrowsAndLeavesFilesAndSongUsable)
{
    SaveBytes();
    const std::string before = ReadBytes(Path());
    EXPECT_THROW(OpenSaveClass().Save_Song(Shared().UserSongs / "no folder" / "in it" / "x.TqSng"), RunTimeError);
    EXPECT_THROW(OpenSaveClass().Save_Song(Shared().UserSongs), RunTimeError);
    EXPECT_EQ(ReadBytes(Path()), before);
    EXPECT_EQ(Shared().Song.TrackCount, 2);
    EXPECT_FALSE(fs::exists(Shared().UserSongs / "no folder"));
    EXPECT_EQ(ArrayOf(SaveBytes()), ArrayOf(before));
}

TEST_F(OpenSaveClassTest, TooMuchSoundForOneFileLeavesTheOldOne)
{
    SaveBytes();
    const std::string before = ReadBytes(Path());
    WaveData wave;
    wave.Channels = 1;
    wave.Length = 1 << 26;
    wave.WavL = Channel::Unfilled(wave.Length); // shared by all tracks and never read
    SongState& song = Shared().Song;
    song.TrackCount = 64;
    song.Tracks.assign(65, Track());
    for (std::int32_t i = 1; i <= 64; ++i) {
        ResetTrack(i);
        At(song.Tracks, i).TrackType = 1;
        At(song.Tracks, i).TrackAudio = wave;
    }
    EXPECT_THROW(OpenSaveClass().Save_Song(Path()), RunTimeError);
    EXPECT_EQ(ReadBytes(Path()), before);
}

TEST_F(OpenSaveClassTest, ASongKnowsTheFileThatItWasReadFrom)
{
    EXPECT_FALSE(MayReplaceUnasked(Path()) && fs::exists(Path()));
    LoadArray(SmallArray());
    EXPECT_TRUE(MayReplaceUnasked(Path()));
    EXPECT_EQ(Shared().Song.OwnFile, MarkOf(Path()));
    WriteBytes(Shared().UserSongs / "Other.TqSng", "x");
    EXPECT_FALSE(MayReplaceUnasked(Shared().UserSongs / "Other.TqSng"));
    EXPECT_TRUE(MayReplaceUnasked(Shared().UserSongs / "Free.TqSng"));
}

TEST_F(OpenSaveClassTest, AFileThatAnotherProgramChangedIsTheSongsNoMore)
{
    LoadArray(SmallArray());
    WriteBytes(Path(), ReadBytes(Path()) + "more");
    EXPECT_FALSE(MayReplaceUnasked(Path()));
}

TEST_F(OpenSaveClassTest, ASongThatFailedToLoadHasNoFileOfItsOwn)
{
    LoadArray(SmallArray());
    LoadBytes("This is no song.");
    EXPECT_FALSE(MayReplaceUnasked(Path()));
    LoadArray(SmallArray());
    LoadBytes("TqSng\r\nFile Version=2\r\n" + std::string(100, ' '));
    EXPECT_FALSE(MayReplaceUnasked(Path()));
    LoadArray(SmallArray());
    OpenSaveClass().Load_Song(Shared().UserSongs / "missing.TqSng");
    EXPECT_FALSE(MayReplaceUnasked(Path()));
}

TEST_F(OpenSaveClassTest, ASongThatWasReadWithAMessageHasNoFileOfItsOwn)
{
    Shared().SongBeatsInside = false;
    SaveWaveFile(WaveOf({1}), Shared().UserBeats / "Drum.wav");
    WriteBytes(Shared().UserBeats / "Drum.bmp", "bad picture");
    Shared().Song.SongBeats.push_back({"Drum", "", WaveOf({1}), PlainPicture(1), true});
    Shared().Song.SongBeatCount = 1;
    Shared().Song.Tracks[1].TrackTune.Name = "Tune";
    Shared().Song.Tracks[1].TrackTune.Steps[1].BeatIndex = 1;
    OpenSaveClass().Save_Song(Path());
    OpenSaveClass().Load_Song(Path());
    ASSERT_EQ(Shared().Song.TrackCount, 2);
    ASSERT_EQ(Told().size(), 1U);
    EXPECT_FALSE(MayReplaceUnasked(Path()));
}

TEST_F(OpenSaveClassTest, ASavedSongHasTheFileAndANewOneHasNone)
{
    SaveBytes();
    EXPECT_TRUE(MayReplaceUnasked(Path()));
    NewSong();
    EXPECT_FALSE(MayReplaceUnasked(Path()));
}

TEST_F(OpenSaveClassTest, ASongWithoutTracksIsNotSaved)
{
    SaveBytes();
    const std::string before = ReadBytes(Path());
    Shared().Song.TrackCount = 0;
    try {
        OpenSaveClass().Save_Song(Path());
        ADD_FAILURE() << "it was saved";
    } catch (const RunTimeError& error) {
        EXPECT_STREQ(error.what(), "This song has no tracks, so it is not saved.");
    }
    EXPECT_EQ(ReadBytes(Path()), before);
}

TEST_F(OpenSaveClassTest, AWriteProtectedSongIsNotReplaced)
{
    SaveBytes();
    const std::string before = ReadBytes(Path());
    fs::permissions(Path(), fs::perms::owner_read);
    fs::create_directory(services.folder.Path() / "other");
    {
        const UnchangeableFolder rightsLaidDown(services.folder.Path() / "other");
        Shared().Song.Tempo = 400;
        try {
            OpenSaveClass().Save_Song(Path());
            ADD_FAILURE() << "it was replaced";
        } catch (const RunTimeError& error) {
            EXPECT_EQ(error.what(), "The file " + Path().native() + " may not be changed.");
        }
        EXPECT_EQ(ReadBytes(Path()), before);
    }
}

TEST_F(OpenSaveClassTest, AFolderThatHasGoneIsMadeAgain)
{
    fs::remove_all(Shared().UserRoot);
    OpenSaveClass().Save_Song(Path());
    EXPECT_TRUE(fs::exists(Path()));
}

/// Keeps how it was asked to write, and writes nothing.
class NotedFiles : public Files {
public:
    void ReplaceFile(const fs::path&, std::span<const std::span<const std::byte>>, Flush flush) override
    {
        flushes.push_back(flush);
    }
    [[nodiscard]] std::unique_ptr<Replacement> BeginReplacement(const fs::path&) override { return nullptr; }
    [[nodiscard]] bool MayBeReplaced(const fs::path&) const override { return true; }
    void DeleteStaleFile(const fs::path&) override {}
    [[nodiscard]] bool WriteNewFile(const fs::path&, std::span<const std::span<const std::byte>>) override
    {
        return false;
    }

    std::vector<Flush> flushes;
};

TEST_F(OpenSaveClassTest, SavedSongsAreOnTheDiskUnlessToldOtherwise)
{
    NotedFiles files;
    TheServices().files = &files;
    OpenSaveClass().Save_Song(Path());
    OpenSaveClass(Flush::No).Save_Song(Path());
    EXPECT_EQ(files.flushes, (std::vector{Flush::Yes, Flush::No}));
}

TEST_F(OpenSaveClassTest, WritesAsManyCellsAsItTells)
{
    Shared().Song.Tracks[1].Painted = {0, 1};
    Shared().Song.Tracks[2].Painted.clear();
    OpenSaveClass(Flush::No).Save_Song(Path());
    OpenSaveClass().Load_Song(Path());
    ASSERT_EQ(Shared().Song.TrackCount, 2);
    EXPECT_EQ(Shared().Song.Tracks[1].Painted.size(), 1281U);
    EXPECT_EQ(Shared().Song.Tracks[1].Painted[1], 1);
    EXPECT_TRUE(Told().empty());
}

} // namespace
} // namespace sprout
