// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/posix/CaptureFiles.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <string>

#include "service/posix/CaptureWriter.h"
#include "support/TestFolder.h"

namespace sprout {
namespace {

namespace fs = std::filesystem;

using Samples = std::vector<std::int16_t>;

/// Frame n holds 2n and 2n + 1.
Samples Ramp(std::size_t frames)
{
    Samples samples(2 * frames);
    for (std::size_t i = 0; i < samples.size(); ++i)
        samples[i] = static_cast<std::int16_t>(i);
    return samples;
}

Samples Read(const fs::path& path)
{
    const std::string bytes = ReadBytes(path);
    Samples samples(bytes.size() / 2);
    for (std::size_t i = 0; i < samples.size(); ++i)
        samples[i] = static_cast<std::int16_t>(static_cast<unsigned char>(bytes[2 * i]) |
                                               static_cast<unsigned char>(bytes[2 * i + 1]) << 8);
    return samples;
}

/// Every second sample, beginning at `first`.
Samples Half(const Samples& samples, std::size_t first)
{
    Samples half;
    for (std::size_t i = first; i < samples.size(); i += 2)
        half.push_back(samples[i]);
    return half;
}

class CaptureFilesTest : public testing::Test {
protected:
    [[nodiscard]] std::unique_ptr<CaptureFiles> Make(const CaptureLimits& limits = {}) const
    {
        return CaptureFiles::Make(left, right, limits);
    }
    void ExpectHeld(const Samples& samples) const
    {
        EXPECT_EQ(Read(left), Half(samples, 0));
        EXPECT_EQ(Read(right), Half(samples, 1));
    }

    TestFolder folder;
    const fs::path left = folder.Path() / "TqkTmp1.WavL";
    const fs::path right = folder.Path() / "TqkTmp1.WavR";
};

TEST_F(CaptureFilesTest, EachChannelGetsItsSamplesLowByteFirst)
{
    const auto files = Make();
    ASSERT_TRUE(files);
    EXPECT_EQ(files->Write(Samples{0x0102, 0x0304, -2, -1}), CaptureEnd::None);
    EXPECT_EQ(files->Write(Samples{5, 6}), CaptureEnd::None);
    EXPECT_EQ(ReadBytes(left), std::string("\x02\x01\xFE\xFF\x05\x00", 6));
    EXPECT_EQ(ReadBytes(right), std::string("\x04\x03\xFF\xFF\x06\x00", 6));
    EXPECT_EQ(files->Frames(), 3);
}

TEST_F(CaptureFilesTest, TheFilesAreForTheirUserAlone)
{
    const mode_t before = ::umask(0);
    const auto files = Make();
    ::umask(before);
    ASSERT_TRUE(files);
    for (const fs::path& path : {left, right})
        EXPECT_EQ(fs::status(path).permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

TEST_F(CaptureFilesTest, AFileThatExistsOrALinkIsNeverWritten)
{
    WriteBytes(right, "mine");
    EXPECT_FALSE(Make());
    EXPECT_EQ(ReadBytes(right), "mine");
    EXPECT_FALSE(fs::exists(left));
    fs::remove(right);
    fs::create_symlink(folder.Path() / "elsewhere", left);
    EXPECT_FALSE(Make());
    EXPECT_FALSE(fs::exists(folder.Path() / "elsewhere"));
    EXPECT_FALSE(fs::exists(right));
}

TEST_F(CaptureFilesTest, WithoutTheFolderNothingIsMade)
{
    EXPECT_FALSE(CaptureFiles::Make(folder.Path() / "gone" / "l", folder.Path() / "gone" / "r", {}));
}

TEST_F(CaptureFilesTest, WithTooLittleDiskNothingIsMade)
{
    CaptureLimits limits;
    limits.leastFreeBytes = ~std::uint64_t{0};
    EXPECT_FALSE(Make(limits));
    EXPECT_TRUE(fs::is_empty(folder.Path()));
}

TEST_F(CaptureFilesTest, TheLastFrameThatAReaderCanHoldEndsIt)
{
    EXPECT_EQ(CaptureLimits().mostFrames, 536870901);
    CaptureLimits limits;
    limits.mostFrames = 5;
    const auto files = Make(limits);
    ASSERT_TRUE(files);
    EXPECT_EQ(files->Write(Ramp(3)), CaptureEnd::None);
    EXPECT_EQ(files->Write(Samples{6, 7, 8, 9, 10, 11}), CaptureEnd::TooLong);
    EXPECT_EQ(files->Frames(), 5);
    ExpectHeld(Ramp(5));
}

TEST_F(CaptureFilesTest, DeletesItsOwnFilesAlone)
{
    const auto files = Make();
    ASSERT_TRUE(files);
    fs::remove(right);
    WriteBytes(right, "another's");
    files->Delete();
    EXPECT_FALSE(fs::exists(left));
    EXPECT_EQ(ReadBytes(right), "another's");
}

TEST_F(CaptureFilesTest, WhatEarlierRunsLeftIsDeletedAndWhatRunsIsNot)
{
    const auto files = Make();
    ASSERT_TRUE(files);
    const fs::path target = folder.Path() / "target";
    WriteBytes(target, "mine");
    for (const char* name : {"TqkTmp2.WavL", "TqkTmp2.WavR", "TqkTmp30.WavL"})
        WriteBytes(folder.Path() / name, "left");
    for (const char* name : {"TqkTmp.WavL", "TqkTmp2.wavl", "TqkTmpx.WavL", "TqkTmp2.TqSng", "XTqkTmp2.WavL"})
        WriteBytes(folder.Path() / name, "other");
    fs::create_symlink(target, folder.Path() / "TqkTmp3.WavL");
    fs::create_directory(folder.Path() / "TqkTmp4.WavL");
    ASSERT_EQ(::mkfifo((folder.Path() / "TqkTmp5.WavR").c_str(), 0600), 0);
    DeleteLeftCaptureFiles(folder.Path());
    for (const char* name : {"TqkTmp2.WavL", "TqkTmp2.WavR", "TqkTmp30.WavL"})
        EXPECT_FALSE(fs::exists(folder.Path() / name)) << name;
    for (const char* name : {"TqkTmp1.WavL", "TqkTmp1.WavR", "TqkTmp.WavL", "TqkTmp2.wavl", "TqkTmpx.WavL",
                             "TqkTmp2.TqSng", "XTqkTmp2.WavL", "TqkTmp3.WavL", "TqkTmp4.WavL", "TqkTmp5.WavR"})
        EXPECT_TRUE(fs::exists(folder.Path() / name)) << name;
    EXPECT_EQ(ReadBytes(target), "mine");
}

TEST_F(CaptureFilesTest, AnothersFilesAreLeftAlone)
{
    if (::geteuid() != 0)
        GTEST_SKIP() << "Only root can give a file away.";
    WriteBytes(left, "another's");
    ASSERT_EQ(::chown(left.c_str(), 12345, 12345), 0);
    DeleteLeftCaptureFiles(folder.Path());
    EXPECT_TRUE(fs::exists(left));
}

TEST_F(CaptureFilesTest, AFolderThatIsNotThereHasNothingLeft)
{
    DeleteLeftCaptureFiles(folder.Path() / "gone");
    EXPECT_TRUE(fs::is_empty(folder.Path()));
}

using CaptureWriterTest = CaptureFilesTest;

TEST_F(CaptureWriterTest, EveryFrameIsInTheFilesAtTheEnd)
{
    const auto files = Make();
    ASSERT_TRUE(files);
    const Samples ramp = Ramp(200000);
    CaptureWriter writer(*files);
    for (std::size_t place = 0; place < ramp.size(); place += 1764)
        EXPECT_EQ(writer.Put(std::span(ramp).subspan(place, std::min<std::size_t>(1764, ramp.size() - place))), 0);
    EXPECT_EQ(writer.Frames(), 200000);
    writer.Finish();
    EXPECT_EQ(writer.End(), CaptureEnd::None);
    ExpectHeld(ramp);
}

TEST_F(CaptureWriterTest, SilenceStandsWhereFramesAreMissing)
{
    const auto files = Make();
    ASSERT_TRUE(files);
    CaptureWriter writer(*files);
    EXPECT_EQ(writer.Put(Samples{1, 2}), 0);
    writer.PutSilence(2);
    EXPECT_EQ(writer.Put(Samples{3, 4}), 0);
    writer.Finish();
    ExpectHeld({1, 2, 0, 0, 0, 0, 3, 4});
}

TEST_F(CaptureWriterTest, FramesWithoutRoomAreTold)
{
    const auto files = Make();
    ASSERT_TRUE(files);
    CaptureWriter writer(*files, 10);
    EXPECT_EQ(writer.Put(Ramp(11)), 11);
    writer.PutSilence(0); // there is room for some of it
    writer.Finish();
    EXPECT_GT(files->Frames(), 0);
    EXPECT_EQ(Read(left), Samples(static_cast<std::size_t>(files->Frames())));
}

TEST_F(CaptureWriterTest, AnEndByItselfIsToldAndNothingIsKeptBehindIt)
{
    CaptureLimits limits;
    limits.mostFrames = 100;
    const auto files = Make(limits);
    ASSERT_TRUE(files);
    CaptureWriter writer(*files);
    EXPECT_EQ(writer.Put(Ramp(150)), 0);
    writer.Finish();
    EXPECT_EQ(writer.End(), CaptureEnd::TooLong);
    EXPECT_EQ(writer.Put(Ramp(10)), 0);
    EXPECT_EQ(writer.Frames(), 100);
    ExpectHeld(Ramp(100));
}

/// The exit code of a child process, which may ruin its own limits. 99: it did not exit by itself.
template <class Work>
int AnswerOfChild(Work work)
{
    const pid_t child = ::fork();
    if (child == 0)
        ::_exit(work());
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : 99;
}

TEST_F(CaptureWriterTest, ADiskThatTakesNoMoreEndsItWithWholeFrames)
{
    constexpr rlim_t kMost = 40001; // an odd number: half a sample
    const int answer = AnswerOfChild([&] {
        const rlimit most{kMost, kMost};
        ::setrlimit(RLIMIT_FSIZE, &most);
        const auto files = Make();
        CaptureWriter writer(*files);
        for (int i = 0; i < 100; ++i)
            static_cast<void>(writer.Put(Ramp(1000)));
        writer.Finish();
        return writer.End() == CaptureEnd::DiskFull ? 0 : 1;
    });
    EXPECT_EQ(answer, 0);
    EXPECT_EQ(fs::file_size(left), fs::file_size(right));
    EXPECT_EQ(fs::file_size(left) % 2, 0U);
    EXPECT_LE(fs::file_size(left), kMost);
    EXPECT_GT(fs::file_size(left), 0U);
}

TEST_F(CaptureFilesTest, ADiskWithLessThanTheLeastSpaceEndsIt)
{
    if (::mount("tmpfs", folder.Path().c_str(), "tmpfs", 0, "size=70m") != 0)
        GTEST_SKIP() << "No small disk can be made here.";
    const auto files = Make();
    EXPECT_TRUE(files);
    CaptureEnd end = CaptureEnd::None;
    for (int i = 0; files && i < 300 && end == CaptureEnd::None; ++i)
        end = files->Write(Ramp(10000));
    ::umount2(folder.Path().c_str(), MNT_DETACH); // the files are still open
    ASSERT_TRUE(files);
    EXPECT_EQ(end, CaptureEnd::DiskFull);
    EXPECT_GT(files->Frames(), 1000000);
    EXPECT_LT(files->Frames(), 2500000);
}

} // namespace
} // namespace sprout
