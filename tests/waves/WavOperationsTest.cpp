// SPDX-License-Identifier: GPL-3.0-or-later
#include "waves/WavOperations.h"

#include <gtest/gtest.h>

#include <string>

#include "waves/WavFile.h"

namespace sprout {
namespace {

using namespace std::string_literals;

TEST_F(WavFile, EmptyWaveHasTheSharedFormatAndNoFrames)
{
    Shared().SampleRate = 22050;
    Shared().BitsPerSample = 8;
    Shared().Channels = 1;
    const WaveData wave = EmptyWave();
    EXPECT_EQ(wave.Rate, 22050);
    EXPECT_EQ(wave.Bits, 8);
    EXPECT_EQ(wave.Channels, 1);
    EXPECT_EQ(wave.Length, 0);
    EXPECT_EQ(wave.WavL.UpperBound(), 0);
    EXPECT_EQ(wave.WavR.UpperBound(), 0);
}

TEST_F(WavFile, ReadsEightBitsAroundZero)
{
    EXPECT_EQ(Load(Wav({1, 11025, 8}, "\x00\x80\xFF"s)).WavL,
              Channel::FromSamples(std::vector<std::int16_t>{-128, 0, 127}));
    const WaveData stereo = Load(Wav({2, 22050, 8}, "\x00\x80\xFF\x7F"s));
    EXPECT_EQ(stereo.WavL, Channel::FromSamples(std::vector<std::int16_t>{-128, 127}));
    EXPECT_EQ(stereo.WavR, Channel::FromSamples(std::vector<std::int16_t>{0, -1}));
    EXPECT_EQ(stereo.Rate, 22050);
    EXPECT_EQ(stereo.Bits, 8);
}

TEST_F(WavFile, ReadsSixteenBitsLeftFirst)
{
    const WaveData mono = Load(Wav({1, 44100, 16}, "\x01\x00\x00\x80"s));
    EXPECT_EQ(mono.WavL, Channel::FromSamples(std::vector<std::int16_t>{1, -32768}));
    EXPECT_EQ(mono.WavR.UpperBound(), 0);
    const WaveData stereo = Load(Wav({2, 44100, 16}, "\x01\x00\x02\x00\x03\x00\xFF\xFF"s));
    EXPECT_EQ(stereo.WavL, Channel::FromSamples(std::vector<std::int16_t>{1, 3}));
    EXPECT_EQ(stereo.WavR, Channel::FromSamples(std::vector<std::int16_t>{2, -1}));
}

TEST_F(WavFile, SaysNothingOfABlankPathAMissingFileOrAFolder)
{
    fs::create_directory(fake.folder.Path() / "folder.wav");
    for (const fs::path& path : {fs::path(), fs::path("  "), Path(), fake.folder.Path() / "folder.wav"})
        EXPECT_EQ(LoadWaveFile(path), EmptyWave());
    EXPECT_TRUE(fake.messages.shown.empty());
}

TEST_F(WavFile, RefusesAFileBelow45Bytes)
{
    const std::string title = "Error Loading " + Path().native();
    ExpectRefused(Wav({}, ""), title, "No wave Data found in file");
    ExpectRefused("", title, "No wave Data found in file");
    EXPECT_EQ(Load(Wav({1, 44100, 8}, "\x81")).Length, 1);
}

TEST_F(WavFile, RefusesAFileWithoutDataChunk)
{
    ExpectRefused(Head({}, 4) + "fact" + std::string(40, '\0'), "Error Loading " + Path().native(),
                  "The String 'Data' - is not found");
}

TEST_F(WavFile, LooksAtANameOnlyWhereAByteFollowsIt)
{
    ExpectRefused(Head({}, 4) + std::string(10, '\0') + "data", "Error Loading " + Path().native(),
                  "The String 'Data' - is not found");
}

TEST_F(WavFile, RefusesUnknownChannelsRatesAndBits)
{
    const std::string error = "Error Loading " + Path().native();
    ExpectRefused(Wav({3, 44100, 16}, "abcdef"), error, "Channal info invalid at byte location 23");
    ExpectRefused(Wav({0, 44100, 16}, "abcdef"), error, "Channal info invalid at byte location 23");
    ExpectRefused(Wav({1, 48000, 16}, "abcd"), "Failed Loading " + Path().native(),
                  "Sampling rate (48000) not supported");
    ExpectRefused(Wav({1, 0xFFFFFFFF, 16}, "abcd"), "Failed Loading " + Path().native(),
                  "Sampling rate (-1) not supported");
    ExpectRefused(Wav({1, 44100, 24}, "abcdef"), error, "Bits per sample not supported");
}

TEST_F(WavFile, LooksAtTheLowBytesOfChannelsAndBitsOnly)
{
    std::string bytes = Wav({2, 44100, 8}, "\x81\x82");
    bytes[23] = 7;
    bytes[35] = 1;
    EXPECT_EQ(Load(bytes).Channels, 2);
    EXPECT_EQ(Load(bytes).Bits, 8);
    EXPECT_TRUE(fake.messages.shown.empty());
}

TEST_F(WavFile, ChecksNeitherTheMarksNorTheTag)
{
    std::string bytes = Wav({1, 44100, 8}, "\x81\x82");
    bytes.replace(0, 4, "junk");
    bytes.replace(8, 4, "junk");
    bytes[20] = 85;
    EXPECT_EQ(Load(bytes).Length, 2);
}

TEST_F(WavFile, PassesOverOtherChunksAndALongFormatChunk)
{
    const std::string data = "DaTa" + Little(2, 4) + "\x81\x82";
    EXPECT_EQ(Load(Head({1, 44100, 8}, 2) + "LIST" + Little(4, 4) + "soft" + data).Length, 2);
    EXPECT_EQ(Load(Head({1, 44100, 8}, 2) + Little(0, 2) + data).WavL[2], 2);
}

TEST_F(WavFile, TakesTheFirstDataEvenInsideAnotherChunk)
{
    const std::string inner = "data" + Little(1, 4) + "\x85";
    const WaveData wave = Load(Head({1, 44100, 8}, 2) + "LIST" + Little(9, 4) + inner + "data" + Little(2, 4) + "xy");
    EXPECT_EQ(wave.Length, 1);
    EXPECT_EQ(wave.WavL[1], 5);
}

TEST_F(WavFile, RoundsHalfFramesToEven)
{
    EXPECT_EQ(Load(Wav({1, 44100, 16}, "abc")).Length, 2);
    EXPECT_EQ(Load(Wav({1, 44100, 16}, "abcde")).Length, 2);
}

TEST_F(WavFile, FillsWhatTheFileLacksWithZeroBytes)
{
    const WaveData eight = Load(Head({1, 44100, 8}, 0) + "data" + Little(3, 4) + "\x81");
    EXPECT_EQ(eight.WavL, Channel::FromSamples(std::vector<std::int16_t>{1, -128, -128}));
    const WaveData sixteen = Load(Head({1, 44100, 16}, 0) + "data" + Little(6, 4) + "\x01\x00\x05"s);
    EXPECT_EQ(sixteen.WavL, Channel::FromSamples(std::vector<std::int16_t>{1, 5, 0}));
    EXPECT_TRUE(fake.messages.shown.empty());
}

TEST_F(WavFile, RefusesAPromiseBeyondTheLimit)
{
    const auto most = static_cast<std::uint32_t>(kMostPromisedFrames);
    EXPECT_EQ(Load(Head({1, 44100, 8}, 0) + "data" + Little(most, 4) + "\x81").Length, kMostPromisedFrames);
    EXPECT_TRUE(fake.messages.shown.empty());
    for (const std::uint32_t promised : {most + 1, 0x7FFFFFFFU, 0xFFFFFFFFU, 0x80000000U}) {
        fake.messages.shown.clear();
        EXPECT_EQ(Load(Head({1, 44100, 8}, 0) + "data" + Little(promised, 4) + "\x81"), EmptyWave());
        ASSERT_EQ(fake.messages.shown.size(), 1U) << promised;
        EXPECT_EQ(fake.messages.shown[0].title, "Wave file load error");
    }
}

TEST_F(WavFile, CountsItsLimitInFrames)
{
    const Format stereo{2, 44100, 16};
    constexpr std::uint32_t most = 5'292'000;
    EXPECT_EQ(Load(Head(stereo, 0) + "data" + Little(4 * most, 4) + "\x81").Length, 5'292'000);
    EXPECT_TRUE(fake.messages.shown.empty());
    ExpectRefused(Head(stereo, 0) + "data" + Little(4 * most + 4, 4) + "\x81", "Wave file load error",
                  "The file promises more sound than it holds.");
}

TEST_F(WavFile, ReadsMoreThanItsLimitWhereTheFileHoldsIt)
{
    std::string samples(static_cast<std::size_t>(kMostPromisedFrames) + 1, '\x81');
    samples.back() = '\x85';
    const WaveData wave = Load(Wav({1, 44100, 8}, samples));
    EXPECT_TRUE(fake.messages.shown.empty());
    ASSERT_EQ(wave.Length, kMostPromisedFrames + 1);
    EXPECT_EQ(wave.WavL[wave.Length], 5);
    samples.pop_back();
    EXPECT_EQ(Load(Head({1, 44100, 8}, 0) + "data" + Little(kMostPromisedFrames + 1, 4) + samples), EmptyWave())
        << "one byte short";
}

TEST_F(WavFile, ReadsTheHeadAlone)
{
    const WaveData wave = Load(Head({2, 22050, 16}, 0) + "data" + Little(0x7FFFFFFC, 4) + "x", ReadSamples::HeaderOnly);
    EXPECT_EQ(wave.Length, 0x1FFFFFFF);
    EXPECT_EQ(wave.Rate, 22050);
    EXPECT_EQ(wave.WavL.UpperBound(), 0);
    EXPECT_EQ(wave.WavR.UpperBound(), 0);
    EXPECT_TRUE(fake.messages.shown.empty());
}

TEST_F(WavFile, EndsQuietlyOrWithOneMessageWhereverItIsCut)
{
    const std::string bytes =
        Head({2, 44100, 16}, 8) + "LIST" + Little(4, 4) + "soft" + "data" + Little(8, 4) + "abcdefgh";
    for (std::size_t size = 0; size < bytes.size(); ++size) {
        fake.messages.shown.clear();
        const WaveData wave = Load(bytes.substr(0, size));
        EXPECT_LE(fake.messages.shown.size(), 1U) << size;
        EXPECT_EQ(wave.Length, fake.messages.shown.empty() ? 2 : 0) << size;
        static_cast<void>(LoadWaveFile(Path(), ReadSamples::HeaderOnly));
    }
}

TEST_F(WavFile, FindsTheFileInAnyLetterCaseAndTellsTheNameThatWasAsked)
{
    WriteBytes(Path(), "short");
    static_cast<void>(LoadWaveFile(fake.folder.Path() / "SOUND.WAV"));
    ASSERT_EQ(fake.messages.shown.size(), 1U);
    EXPECT_EQ(fake.messages.shown[0].title, "Error Loading " + (fake.folder.Path() / "SOUND.WAV").native());
}

TEST(WaveToLongs, LaysOutHeadAndChannels)
{
    EXPECT_EQ(WaveToLongs(Wave(16, {1, 2, 3}, {4, 5, 6})),
              (std::vector<std::int32_t>{8, 16, 2, 44100, 3, 0x00020001, 3, 0x00050004, 6}));
    EXPECT_EQ(WaveToLongs(Wave(16, {1, 2})), (std::vector<std::int32_t>{6, 16, 1, 44100, 2, 0x00020001, 0}));
}

TEST(WaveToLongs, ComesBackTheSameInEveryShape)
{
    for (std::size_t length = 0; length < 9; ++length) {
        const std::vector<std::int16_t> samples(length, -7);
        for (const WaveData& wave : {Wave(16, samples), Wave(8, samples, samples)})
            EXPECT_EQ(LongsToWave(WaveToLongs(wave)), wave) << length;
    }
}

TEST(WaveToLongs, HasFiveElementsForNoFrames)
{
    EXPECT_EQ(WaveToLongs(WaveData()), (std::vector<std::int32_t>{4, 16, 2, 44100, 0}));
}

TEST(LongsToWave, TakesASingleElementForAnEmptyWave)
{
    EXPECT_EQ(LongsToWave(std::vector<std::int32_t>{0}), EmptyWave());
    EXPECT_EQ(LongsToWave({}), EmptyWave());
}

TEST(LongsToWave, ThrowsWhereTheBlockIsTooShort)
{
    std::vector<std::int32_t> longs = WaveToLongs(Wave(16, {1, 2, 3}, {4, 5, 6}));
    while (longs.size() > 2) {
        longs.pop_back();
        EXPECT_THROW(static_cast<void>(LongsToWave(longs)), RunTimeError) << longs.size();
    }
}

} // namespace
} // namespace sprout
