// SPDX-License-Identifier: GPL-3.0-or-later
// A child's song survives every failure of its save.
#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <array>
#include <cerrno>
#include <iterator>
#include <string>

#include "base/Errors.h"
#include "core/SongModel.h"
#include "songs/OpenSaveClass.h"
#include "support/FakeServices.h"
#include "support/Faults.h"

namespace sprout {
namespace {

namespace fs = std::filesystem;

/// An audio track of `length` frames makes the old and the new song differ in every part.
void MakeSong(const std::string& author, std::int32_t length)
{
    NewSong();
    SongState& song = Shared().Song;
    song.SongCreatedBy = author;
    Track& track = song.Tracks[2];
    track.TrackType = static_cast<std::int32_t>(TrackKind::Audio);
    track.TrackAudio.Length = length;
    track.TrackAudio.WavL = track.TrackAudio.WavR = Channel(length);
}

/// A song file without the time of its save, which its head contains.
std::string WithoutTime(std::string bytes)
{
    const auto time = bytes.find("Time=");
    bytes.erase(time, bytes.find("\r\n", time) - time);
    return bytes;
}

class SaveSong : public testing::Test {
protected:
    SaveSong()
    {
        MakeSong("New", 40000);
        OpenSaveClass().Save_Song(Path());
        newBytes = WithoutTime(ReadBytes(Path()));
        TheFaults() = Faults();
        OpenSaveClass().Save_Song(Path());
        calls = TheFaults().calls; // of a save over another song
        MakeSong("Old", 5);
        OpenSaveClass().Save_Song(Path());
        oldFile = ReadBytes(Path());
    }
    ~SaveSong() override { TheFaults() = Faults(); }

    [[nodiscard]] fs::path Path() const { return Shared().UserSongs / "Mine.TqSng"; }

    /// Returns false if the caller got an error.
    bool Save()
    {
        MakeSong("New", 40000);
        TheFaults().calls = {};
        try {
            OpenSaveClass().Save_Song(Path());
            return true;
        } catch (const RunTimeError&) {
            return false;
        }
    }

    void ExpectNextSaveToTidyUp()
    {
        EXPECT_TRUE(Save());
        EXPECT_TRUE(WithoutTime(ReadBytes(Path())) == newBytes);
        EXPECT_EQ(std::distance(fs::directory_iterator(Path().parent_path()), fs::directory_iterator()), 1);
    }

    FakeServices fake;
    std::string oldFile;
    std::string newBytes; // without the time
    std::array<int, kSystemCalls> calls{};
};

TEST_F(SaveSong, LeavesOneOfTheSongsWholeWhereACallFails)
{
    for (std::size_t call = 0; call < kSystemCalls; ++call) {
        for (const Fault fault : {Fault::FailOnce, Fault::FailForGood}) {
            for (int nth = 1; nth <= calls[call]; ++nth) {
                SCOPED_TRACE(std::string(kCallNames[call]) + " " + std::to_string(nth));
                WriteBytes(Path(), oldFile);
                TheFaults() = {static_cast<SystemCall>(call), nth, fault, ENOSPC};
                const bool saved = Save();
                TheFaults() = Faults();
                const std::string left = ReadBytes(Path());
                EXPECT_TRUE(saved ? WithoutTime(left) == newBytes : left == oldFile);
                ExpectNextSaveToTidyUp();
            }
        }
    }
}

TEST_F(SaveSong, LeavesOneOfTheSongsWholeWhereTheProgramIsKilled)
{
    for (std::size_t call = 0; call < kSystemCalls; ++call) {
        for (int nth = 1; nth <= calls[call]; ++nth) {
            SCOPED_TRACE(std::string(kCallNames[call]) + " " + std::to_string(nth));
            WriteBytes(Path(), oldFile);
            const pid_t child = ::fork();
            if (child == 0) {
                TheFaults() = {static_cast<SystemCall>(call), nth, Fault::KillBefore, 0};
                Save();
                ::_exit(1);
            }
            int status = 0;
            ASSERT_EQ(::waitpid(child, &status, 0), child);
            ASSERT_EQ(WEXITSTATUS(status), kKilled);
            const std::string left = ReadBytes(Path());
            EXPECT_TRUE(left == oldFile || WithoutTime(left) == newBytes);
            ExpectNextSaveToTidyUp();
        }
    }
}

} // namespace
} // namespace sprout
