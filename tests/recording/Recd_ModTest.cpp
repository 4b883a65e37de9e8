// SPDX-License-Identifier: GPL-3.0-or-later
#include "recording/Recd_Mod.h"

#include <gtest/gtest.h>

#include <vector>

#include "base/Errors.h"
#include "support/AllocationWatch.h"
#include "support/FakeServices.h"
#include "support/MemoryWatch.h"

namespace sprout {
namespace {

namespace fs = std::filesystem;

using Samples = std::vector<std::int16_t>;

/// The elements of a channel, starting at 0.
Samples Elements(const Channel& channel)
{
    Samples elements;
    for (std::int32_t i = 0; i <= channel.UpperBound(); ++i)
        elements.push_back(channel[i]);
    return elements;
}

class RecdModTest : public testing::Test {
protected:
    RecdModTest() { Recd() = {}; }
    ~RecdModTest() override { Recd() = {}; }

    void Load() const { LoadRecordedFiles(left, right); }

    FakeServices services;
    fs::path left = Shared().TempFolder / "TqkTmp1.WavL";
    fs::path right = Shared().TempFolder / "TqkTmp1.WavR";
};

TEST_F(RecdModTest, ReadsBothFilesFromElementZeroAndDeletesThem)
{
    WriteBytes(left, std::string("\x01\x00\xFF\xFF\x00\x80", 6));
    WriteBytes(right, std::string("\x05\x00\x06\x00\xFF\x7F", 6));
    Load();
    EXPECT_EQ(Recd().RecdLength, 2);
    EXPECT_EQ(Elements(Recd().RecdWavL), (Samples{1, -1, -32768}));
    EXPECT_EQ(Elements(Recd().RecdWavR), (Samples{5, 6, 32767}));
    EXPECT_FALSE(fs::exists(left));
    EXPECT_FALSE(fs::exists(right));
}

TEST_F(RecdModTest, LeavesTheArraysWhereTheLeftFileHoldsNoSample)
{
    Recd().RecdWavL = Channel(3);
    for (const char* bytes : {"", "x"}) {
        WriteBytes(left, bytes);
        WriteBytes(right, "abcd");
        Load();
        EXPECT_EQ(Recd().RecdLength, 0);
        EXPECT_EQ(Recd().RecdWavL.UpperBound(), 3);
        EXPECT_FALSE(fs::exists(left)) << "nothing of a voice stays";
        EXPECT_FALSE(fs::exists(right));
    }
    Load(); // both are missing
    LoadRecordedFiles("", "");
    EXPECT_EQ(Recd().RecdWavL.UpperBound(), 3);
}

TEST_F(RecdModTest, TakesTheLeftForTheRightWhereThatHoldsNoSample)
{
    for (const bool isThere : {false, true}) {
        WriteBytes(left, "abcdef");
        if (isThere)
            WriteBytes(right, "x");
        Load();
        EXPECT_EQ(Elements(Recd().RecdWavR), Elements(Recd().RecdWavL));
        EXPECT_TRUE(Recd().RecdWavR.SharesBlockWith(Recd().RecdWavL)) << "without a copy";
    }
}

TEST_F(RecdModTest, EndsAShorterRightFileWithSilence)
{
    WriteBytes(left, std::string("\1\0\2\0\3\0\4\0", 8));
    WriteBytes(right, std::string("\7\0\x8\0", 4));
    Load();
    EXPECT_EQ(Recd().RecdLength, 3);
    EXPECT_EQ(Elements(Recd().RecdWavR), (Samples{7, 8, 0, 0}));
}

TEST_F(RecdModTest, ReadsNoMoreOfALongerRightFile)
{
    WriteBytes(left, std::string("\1\0\2\0", 4));
    WriteBytes(right, std::string("\7\0\x8\0\x9\0", 6));
    Load();
    EXPECT_EQ(Elements(Recd().RecdWavR), (Samples{7, 8}));
}

TEST_F(RecdModTest, LeavesOutHalfASampleAtTheEnd)
{
    WriteBytes(left, std::string("\1\0\2\0\3", 5));
    WriteBytes(right, std::string("\7\0\x8", 3));
    Load();
    EXPECT_EQ(Elements(Recd().RecdWavL), (Samples{1, 2}));
    EXPECT_EQ(Elements(Recd().RecdWavR), (Samples{7, 0}));
}

TEST_F(RecdModTest, ReadsNoFolderAndNothingThatIsNoFile)
{
    fs::create_directories(left);
    Load();
    EXPECT_EQ(Recd().RecdLength, 0);
    WriteBytes(Shared().TempFolder / "TqkTmp2.WavL", "abcd");
    fs::create_directories(right);
    LoadRecordedFiles(Shared().TempFolder / "TqkTmp2.WavL", right);
    EXPECT_EQ(Recd().RecdLength, 1);
}

TEST_F(RecdModTest, KeepsArraysAndFilesWhereTheRightFileCannotBeRead)
{
    Recd().RecdWavL = Channel(3);
    WriteBytes(left, "abcdef");
    // It looks like a regular file, but its bytes cannot be read.
    fs::create_symlink("/proc/self/mem", right);
    EXPECT_THROW(Load(), RunTimeError);
    EXPECT_EQ(Recd().RecdWavL.UpperBound(), 3);
    EXPECT_EQ(Recd().RecdLength, 0);
    EXPECT_TRUE(fs::exists(left));
}

/// Resizes a file when memory for a long sound is allocated: after its length is known, before it is read.
class ResizingMemory : public MemoryWatch {
public:
    ResizingMemory(const fs::path& file, std::uintmax_t newSize)
        : MemoryWatch([file, newSize] { fs::resize_file(file, newSize); })
    {
    }
};

TEST_F(RecdModTest, KeepsArraysAndFilesWhereAFileShrinksWhileItIsRead)
{
    Recd().RecdWavL = Channel(3);
    for (const fs::path& file : {left, right}) {
        WriteBytes(left, std::string(5'000'000, 'a'));
        WriteBytes(right, std::string(5'000'000, 'b'));
        const ResizingMemory memory(file, 1000);
        EXPECT_THROW(Load(), RunTimeError);
        EXPECT_EQ(Recd().RecdWavL.UpperBound(), 3);
        EXPECT_EQ(Recd().RecdWavR.UpperBound(), 0);
        EXPECT_EQ(Recd().RecdLength, 0);
        EXPECT_TRUE(fs::exists(left));
        EXPECT_TRUE(fs::exists(right));
    }
}

TEST_F(RecdModTest, ReadsNoMoreOfAFileThatGrowsWhileItIsRead)
{
    WriteBytes(left, std::string(5'000'000, 'a'));
    const ResizingMemory memory(left, 9'000'000);
    Load();
    EXPECT_EQ(Recd().RecdLength, 2'499'999);
    EXPECT_EQ(Recd().RecdWavL.UpperBound(), 2'499'999);
    EXPECT_EQ(Recd().RecdWavL[2'499'999], 0x6161);
    Recd() = {}; // returns its memory to where it came from
}

TEST_F(RecdModTest, AllocatesNoMoreThanTheSamples)
{
    WriteBytes(left, std::string(200'000, 'a'));
    WriteBytes(right, std::string(400'000, 'b'));
    const AllocationWatch watch;
    Load();
    EXPECT_LE(watch.Largest(), 200'100U);
}

TEST_F(RecdModTest, HandsOverAWaveThatHasLostItsFirstSample)
{
    WriteBytes(left, std::string("\1\0\2\0\3\0", 6));
    WriteBytes(right, std::string("\7\0\x8\0\x9\0", 6));
    Load();
    const void* samples = Recd().RecdWavL.Identity();
    const WaveData wave = TakeRecordedWave();
    EXPECT_EQ(wave.Length, 2);
    EXPECT_EQ(wave.Bits, 16);
    EXPECT_EQ(wave.Channels, 2);
    EXPECT_EQ(wave.Rate, 44100);
    EXPECT_EQ(Elements(wave.WavL), (Samples{0, 2, 3}));
    EXPECT_EQ(Elements(wave.WavR), (Samples{0, 8, 9}));
    EXPECT_EQ(wave.WavL.Identity(), samples) << "without a copy";
    EXPECT_EQ(Recd().RecdLength, 0);
    EXPECT_EQ(Recd().RecdWavL.UpperBound(), 0);
    EXPECT_EQ(Recd().RecdWavR.UpperBound(), 0);
}

TEST_F(RecdModTest, HandsOverTheOneFrameThatTwoSamplesLeave)
{
    WriteBytes(left, std::string("\1\0\2\0", 4));
    WriteBytes(right, std::string("\7\0\x8\0", 4));
    Load();
    const WaveData wave = TakeRecordedWave();
    EXPECT_EQ(wave.Length, 1);
    EXPECT_EQ(Elements(wave.WavL), (Samples{0, 2}));
    EXPECT_EQ(Elements(wave.WavR), (Samples{0, 8}));
}

TEST_F(RecdModTest, HandsOverOneBlockForTwoEqualChannels)
{
    WriteBytes(left, std::string("\1\0\2\0\3\0", 6));
    Load();
    const void* samples = Recd().RecdWavL.Identity();
    const WaveData wave = TakeRecordedWave();
    EXPECT_TRUE(wave.WavL.SharesBlockWith(wave.WavR));
    EXPECT_EQ(wave.WavL.Identity(), samples);
    EXPECT_EQ(wave.WavR[0], 0);
}

TEST_F(RecdModTest, HandsOverAnEmptyWaveWhereNothingWasRecorded)
{
    WriteBytes(left, std::string("\1\0", 2)); // the one sample that every wave loses
    Load();
    EXPECT_EQ(Recd().RecdLength, 0);
    EXPECT_EQ(TakeRecordedWave(), WaveData());
}

} // namespace
} // namespace sprout
