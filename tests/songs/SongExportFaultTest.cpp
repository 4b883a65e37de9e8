// SPDX-License-Identifier: GPL-3.0-or-later
// Whatever fails in an export, the target holds the old file or the new one, and the user is told the truth.
#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <array>
#include <cerrno>
#include <iterator>
#include <string>

#include "core/SongModel.h"
#include "service/ffmpeg/FfmpegWmaEncoder.h"
#include "songs/SongExport.h"
#include "sound/Waves.h"
#include "support/FakeServices.h"
#include "support/Faults.h"

namespace sprout {
namespace {

namespace fs = std::filesystem;

using WriteSound = ExportOutcome (*)(const WaveData& wave, const fs::path& path);

/// Both exports. The WMA file comes from the real encoder, which returns to the head at the end.
class ExportSong : public testing::TestWithParam<WriteSound> {
protected:
    ExportSong()
    {
        TheServices().wma = &encoder;
        NewSong();
        fs::create_directory(Path().parent_path());
        EXPECT_EQ(GetParam()(wave, Path()).End, ExportEnd::Written);
        newBytes = ReadBytes(Path());
        TheFaults() = Faults();
        EXPECT_EQ(Write(), ExportEnd::Written);
        calls = TheFaults().calls; // of an export over another file
    }
    ~ExportSong() override { TheFaults() = Faults(); }

    [[nodiscard]] fs::path Path() const { return fake.folder.Path() / "Out" / "song"; }
    [[nodiscard]] ExportEnd Write() const { return GetParam()(wave, Path()).End; }

    void ExpectNextExportToTidyUp() const
    {
        EXPECT_EQ(GetParam()(RampWave(100), Path()).End, ExportEnd::Written);
        EXPECT_FALSE(ReadBytes(Path()) == newBytes);
        EXPECT_EQ(std::distance(fs::directory_iterator(Path().parent_path()), fs::directory_iterator()), 1);
    }

    FakeServices fake;
    FfmpegWmaEncoder encoder;
    const WaveData wave = RampWave(5 * 44100);
    const std::string oldFile = "old";
    std::string newBytes;
    std::array<int, kSystemCalls> calls{};
};

TEST_P(ExportSong, LeavesOneOfTheFilesWholeWhereACallFails)
{
    for (std::size_t call = 0; call < kSystemCalls; ++call) {
        for (const Fault fault : {Fault::FailOnce, Fault::FailForGood}) {
            for (int nth = 1; nth <= calls[call]; ++nth) {
                SCOPED_TRACE(std::string(kCallNames[call]) + " " + std::to_string(nth));
                WriteBytes(Path(), oldFile);
                TheFaults() = {static_cast<SystemCall>(call), nth, fault, ENOSPC};
                const ExportEnd end = Write();
                TheFaults() = Faults();
                EXPECT_TRUE(ReadBytes(Path()) == (end == ExportEnd::Written ? newBytes : oldFile));
                ExpectNextExportToTidyUp();
            }
        }
    }
}

TEST_P(ExportSong, MakesTheCallsThatTheFaultsHit)
{
    for (std::size_t call = 0; call < kSystemCalls; ++call) {
        const auto kind = static_cast<SystemCall>(call);
        const bool isOfAFolder = kind > SystemCall::Fstat;
        const bool isMade = !isOfAFolder && (GetParam() == &WriteWmaFile || kind != SystemCall::Lseek);
        EXPECT_EQ(calls[call] > 0, isMade) << kCallNames[call];
    }
}

TEST_P(ExportSong, WritesTheWholeFileInPieces)
{
    WriteBytes(Path(), oldFile);
    TheFaults() = {SystemCall::Writev, 1, Fault::Short, 0};
    EXPECT_EQ(Write(), ExportEnd::Written);
    EXPECT_TRUE(ReadBytes(Path()) == newBytes);
}

TEST_P(ExportSong, EndsWhereTheDiskTakesNothing)
{
    WriteBytes(Path(), oldFile);
    TheFaults() = {SystemCall::Writev, 1, Fault::Nothing, 0};
    EXPECT_EQ(Write(), ExportEnd::Failed);
    EXPECT_EQ(ReadBytes(Path()), oldFile);
}

TEST_P(ExportSong, LeavesOneOfTheFilesWholeWhereTheProgramIsKilled)
{
    for (std::size_t call = 0; call < kSystemCalls; ++call) {
        for (int nth = 1; nth <= calls[call]; ++nth) {
            for (const Fault fault : {Fault::KillBefore, Fault::KillAfter}) {
                SCOPED_TRACE(std::string(kCallNames[call]) + " " + std::to_string(nth));
                WriteBytes(Path(), oldFile);
                const pid_t child = ::fork();
                if (child == 0) {
                    TheFaults() = {static_cast<SystemCall>(call), nth, fault, 0};
                    static_cast<void>(Write());
                    ::_exit(1);
                }
                int status = 0;
                ASSERT_EQ(::waitpid(child, &status, 0), child);
                ASSERT_EQ(WEXITSTATUS(status), kKilled);
                const std::string left = ReadBytes(Path());
                EXPECT_TRUE(left == oldFile || left == newBytes);
                ExpectNextExportToTidyUp();
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Wav, ExportSong, testing::Values(&WriteWavFile));
INSTANTIATE_TEST_SUITE_P(Wma, ExportSong, testing::Values(&WriteWmaFile));

} // namespace
} // namespace sprout
