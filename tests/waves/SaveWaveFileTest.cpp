// SPDX-License-Identifier: GPL-3.0-or-later
#include "waves/WavOperations.h"

#include <gtest/gtest.h>

#include <string>

#include "waves/WavFile.h"

namespace sprout {
namespace {

using namespace std::string_literals;

TEST_F(WavFile, SavesTheCanonicalBytes)
{
    SaveWaveFile(Wave(16, {1, -2}, {3, -32768}), Path());
    EXPECT_EQ(ReadBytes(Path()), "RIFF\x2C\0\0\0WAVEfmt \x10\0\0\0\x01\0\x02\0\x44\xAC\0\0\x10\xB1\x02\0\x04\0\x10\0"
                                 "data\x08\0\0\0\x01\0\x03\0\xFE\xFF\0\x80"s);
    SaveWaveFile(Wave(8, {-128, 0, 127}), Path());
    EXPECT_EQ(ReadBytes(Path()), Wav({1, 44100, 8}, "\x00\x80\xFF"s));
    EXPECT_TRUE(fake.messages.shown.empty());
}

TEST_F(WavFile, ReadsBackWhatItSaved)
{
    std::vector<std::int16_t> samples(40000);
    for (std::size_t i = 0; i < samples.size(); ++i)
        samples[i] = static_cast<std::int16_t>(i * 7919);
    const WaveData wave = Wave(16, samples, std::vector<std::int16_t>(samples.rbegin(), samples.rend()));
    SaveWaveFile(wave, Path());
    EXPECT_EQ(LoadWaveFile(Path()), wave);
}

TEST_F(WavFile, SavesNothingWithoutANameOrASound)
{
    WriteBytes(Path(), "old");
    ExpectSaveTold(Wave(16, {1}), {}, "", "No file name given to write");
    ExpectSaveTold(EmptyWave(), Path(), "Writing wave error", "Silent or Zero size wave found");
    for (const Format& format : {Format{3, 44100, 16}, Format{1, 8000, 16}, Format{1, 44100, 24}}) {
        WaveData wave = Wave(static_cast<std::int32_t>(format.bits), {1});
        wave.Channels = static_cast<std::int32_t>(format.channels);
        wave.Rate = static_cast<std::int32_t>(format.rate);
        ExpectSaveTold(wave, Path(), "", "Format not Known to write wave file");
    }
    EXPECT_EQ(ReadBytes(Path()), "old");
}

TEST_F(WavFile, RefusesToSaveAWaveThatWasReadWithoutItsSamples)
{
    const WaveData head = Load(Wav({1, 44100, 8}, "\x81\x82"), ReadSamples::HeaderOnly);
    ExpectSaveTold(head, Path(), "Wav file Write error", "");
    EXPECT_EQ(LoadWaveFile(Path()).Length, 2);
}

TEST_F(WavFile, LeavesTheUnfinishedFileOfAnEightBitOverflow)
{
    for (const int outside : {128, -129}) {
        WriteBytes(Path(), std::string(1000, 'o'));
        ExpectSaveTold(Wave(8, {0, static_cast<std::int16_t>(outside)}), Path(), "Wav file Write error", "");
        const std::string left = ReadBytes(Path());
        ASSERT_GE(left.size(), 44U);
        EXPECT_LT(left.size(), 46U);
        EXPECT_EQ(left.substr(4, 4), Little(0, 4));
        EXPECT_EQ(left.substr(40, 4), Little(0, 4));
    }
}

TEST_F(WavFile, TellsAFolderInPlaceOfTheFile)
{
    fs::create_directory(Path());
    ExpectSaveTold(Wave(16, {1}), Path(), "Wav file Write error", "");
    EXPECT_TRUE(fs::is_directory(Path()));
}

TEST_F(WavFile, TellsAFullDisk)
{
    const SmallDisk disk(4000);
    ExpectSaveTold(Wave(16, std::vector<std::int16_t>(50000, 1)), Path(), "Wav file Write error", "");
}

TEST_F(WavFile, ReplacesNoDeviceAndFollowsALinkToAFile)
{
    const fs::path device = Path().parent_path() / "device";
    MakeScratchDevice(device);
    ExpectSaveTold(Wave(16, {1}), device, "Wav file Write error",
                   "The file " + device.native() + " cannot be replaced.");
    EXPECT_TRUE(IsScratchDevice(device));
    const fs::path real = Path().parent_path() / "real.wav";
    WriteBytes(real, "old");
    fs::create_symlink(real, Path());
    SaveWaveFile(Wave(16, {1}), Path());
    EXPECT_TRUE(fs::is_symlink(Path()));
    EXPECT_EQ(fs::file_size(real), 46U);
}

TEST_F(WavFile, ReplacesOnlyTheFileOfTheExactName)
{
    const fs::path other = Path().parent_path() / "OTHER.WAV";
    WriteBytes(other, "mine");
    SaveWaveFile(Wave(16, {1}), Path().parent_path() / "other.wav");
    EXPECT_EQ(ReadBytes(other), "mine");
}

} // namespace
} // namespace sprout
