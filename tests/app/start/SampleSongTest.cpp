// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/start/SampleSong.h"

#include <gtest/gtest.h>

#include "core/Settings.h"
#include "core/SongModel.h"
#include "songs/OpenSaveClass.h"
#include "support/FakeServices.h"

namespace sprout {
namespace {

namespace fs = std::filesystem;

constexpr std::int32_t kSampleTempo = 400;

class SampleSong : public testing::Test {
protected:
    SampleSong()
    {
        NewSong();
        Shared().Song.Tempo = kSampleTempo;
        OpenSaveClass(Flush::No).Save_Song(Shared().UserSongs / "Zumi.TqSng");
        NewSong();
    }

    [[nodiscard]] static fs::path CountFile() { return Shared().UserRoot / ".SproutStarts"; }

    FakeServices fake;
};

TEST_F(SampleSong, IsOpenedOnTheFirstThreeStarts)
{
    for (int start = 1; start <= 3; ++start) {
        NewSong();
        EXPECT_TRUE(OpenSampleSong()) << start;
        EXPECT_EQ(Shared().Song.SongTitle, "Zumi");
        EXPECT_EQ(Shared().Song.Tempo, kSampleTempo);
    }
    NewSong();
    EXPECT_FALSE(OpenSampleSong());
    EXPECT_EQ(Shared().Song.SongTitle, "Untitled");
    EXPECT_EQ(Shared().Song.Tempo, kReferenceTempo);
}

TEST_F(SampleSong, IsCountedInAHiddenFile)
{
    EXPECT_TRUE(OpenSampleSong());
    EXPECT_EQ(ReadBytes(CountFile()), "1");
    EXPECT_TRUE(OpenSampleSong());
    EXPECT_EQ(ReadBytes(CountFile()), "2");
}

TEST_F(SampleSong, IsNotMissedWhereTheUserHasDeletedIt)
{
    fs::remove(Shared().UserSongs / "Zumi.TqSng");
    EXPECT_FALSE(OpenSampleSong());
    EXPECT_EQ(Shared().Song.SongTitle, "Untitled");
    EXPECT_EQ(ReadBytes(CountFile()), "1");
}

TEST_F(SampleSong, IsOpenedAgainWhereTheCountIsDamaged)
{
    for (const char* damaged : {"", "starts", "-5", "-1e300"}) {
        WriteBytes(CountFile(), damaged);
        EXPECT_TRUE(OpenSampleSong()) << damaged;
        EXPECT_EQ(ReadBytes(CountFile()), "1");
    }
    WriteBytes(CountFile(), "1e300");
    EXPECT_FALSE(OpenSampleSong());
}

TEST_F(SampleSong, IsOpenedWhereStartsCannotBeCounted)
{
    fs::create_directory(CountFile());
    EXPECT_TRUE(OpenSampleSong());
    EXPECT_EQ(Shared().Song.Tempo, kSampleTempo);
}

class StartSong : public SampleSong {
protected:
    static void PutSong(const fs::path& path, std::int32_t tempo)
    {
        NewSong();
        Shared().Song.Tempo = tempo;
        OpenSaveClass(Flush::No).Save_Song(path);
        NewSong();
    }
};

TEST_F(StartSong, IsOpenedAtEachStartByItsName)
{
    PutSong(Shared().UserSongs / "Rain.TqSng", kSampleTempo / 2);
    PutSetting("General", "StartSong", " Rain ");
    for (int start = 1; start <= kFirstStarts + 1; ++start) {
        NewSong();
        EXPECT_TRUE(OpenSampleSong()) << start;
        EXPECT_EQ(Shared().Song.SongTitle, "Rain");
        EXPECT_EQ(Shared().Song.Tempo, kSampleTempo / 2);
    }
    EXPECT_EQ(ReadBytes(CountFile()), "3");
}

TEST_F(StartSong, IsOpenedFromWhereItLies)
{
    const fs::path file = fake.folder.Path() / "Monday.TqSng";
    PutSong(file, kSampleTempo / 2);
    PutSetting("General", "StartSong", file.native());
    EXPECT_TRUE(OpenSampleSong());
    EXPECT_EQ(Shared().Song.SongTitle, "Monday");
    EXPECT_EQ(Shared().Song.Tempo, kSampleTempo / 2);
}

TEST_F(StartSong, IsTheNewSongWhereItCannotBeOpened)
{
    for (const char* missing : {"Gone", "/gone/Rain.TqSng", "../Songs/Zumi"}) {
        PutSetting("General", "StartSong", missing);
        EXPECT_FALSE(OpenSampleSong()) << missing;
        EXPECT_EQ(Shared().Song.SongTitle, "Untitled");
    }
    EXPECT_TRUE(fake.messages.shown.empty());
}

TEST_F(SampleSong, LeavesTheNewSongWithoutAMessageWhereItCannotBeRead)
{
    const std::int32_t tracks = Shared().Song.TrackCount;
    WriteBytes(Shared().UserSongs / "Zumi.TqSng", "This is no song.");
    EXPECT_FALSE(OpenSampleSong());
    EXPECT_EQ(Shared().Song.TrackCount, tracks);
    EXPECT_EQ(Shared().Song.SongTitle, "Untitled");
    EXPECT_TRUE(fake.messages.shown.empty());
    EXPECT_EQ(TheServices().messages, &fake.messages);
}

TEST_F(StartSong, MayBeOneOfTheClass)
{
    const fs::path folder = fake.folder.Path() / "class" / "";
    fs::create_directories(folder / "Songs");
    PutSong(folder / "Songs" / "Rain.TqSng", kSampleTempo / 2);
    Shared().ClassRoot = folder;
    PutSetting("General", "StartSong", "Rain");
    EXPECT_TRUE(OpenSampleSong());
    EXPECT_EQ(Shared().Song.SongTitle, "Rain");
    EXPECT_EQ(Shared().Song.Tempo, kSampleTempo / 2);
}

} // namespace
} // namespace sprout
