// SPDX-License-Identifier: GPL-3.0-or-later
#include "waves/WavOperations.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <utility>

#include "base/Errors.h"
#include "sound/Waves.h"
#include "support/FakeServices.h"
#include "support/ScratchDevice.h"
#include "support/SmallDisk.h"

namespace sprout {
namespace {

namespace fs = std::filesystem;
using namespace std::string_literals;

std::string Little(std::uint32_t value, int bytes)
{
    std::string text;
    for (int i = 0; i < bytes; ++i)
        text.push_back(static_cast<char>(value >> (8 * i) & 0xFF));
    return text;
}

struct Format {
    std::uint32_t channels = 1;
    std::uint32_t rate = 44100;
    std::uint32_t bits = 16;
};

/// The RIFF head and the format chunk, 36 bytes.
std::string Head(const Format& format, std::uint32_t dataSize)
{
    const std::uint32_t align = format.channels * format.bits / 8;
    return "RIFF" + Little(dataSize + 36, 4) + "WAVEfmt " + Little(16, 4) + Little(1, 2) + Little(format.channels, 2) +
           Little(format.rate, 4) + Little(align * format.rate, 4) + Little(align, 2) + Little(format.bits, 2);
}

std::string Wav(const Format& format, const std::string& samples)
{
    const auto size = static_cast<std::uint32_t>(samples.size());
    return Head(format, size) + "data" + Little(size, 4) + samples;
}

WaveData Wave(std::int32_t bits, std::vector<std::int16_t> left, std::vector<std::int16_t> right = {})
{
    WaveData wave;
    wave.Bits = bits;
    wave.Channels = right.empty() ? 1 : 2;
    wave.Length = static_cast<std::int32_t>(left.size());
    wave.WavL = Channel::FromSamples(left);
    if (!right.empty())
        wave.WavR = Channel::FromSamples(right);
    return wave;
}

class WavFile : public testing::Test {
protected:
    [[nodiscard]] fs::path Path() const { return fake.folder.Path() / "sound.wav"; }

    [[nodiscard]] WaveData Load(const std::string& bytes, ReadSamples samples = ReadSamples::Yes)
    {
        WriteBytes(Path(), bytes);
        return LoadWaveFile(Path(), samples);
    }

    void ExpectRefused(const std::string& bytes, const std::string& title, const std::string& text)
    {
        fake.messages.shown.clear();
        EXPECT_EQ(Load(bytes), EmptyWave());
        ASSERT_EQ(fake.messages.shown.size(), 1U);
        EXPECT_EQ(fake.messages.shown[0].title, title);
        EXPECT_EQ(fake.messages.shown[0].text, text);
        EXPECT_EQ(fake.messages.shown[0].icon, MessageIcon::None);
    }

    void ExpectSaveTold(const WaveData& wave, const fs::path& path, const std::string& title, const std::string& text)
    {
        fake.messages.shown.clear();
        SaveWaveFile(wave, path);
        ASSERT_EQ(fake.messages.shown.size(), 1U);
        EXPECT_EQ(fake.messages.shown[0].title, title);
        if (!text.empty()) {
            EXPECT_EQ(fake.messages.shown[0].text, text);
        }
    }

    FakeServices fake;
};

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

TEST(CutWaveSlice, TakesBothEndsIn)
{
    const WaveData cut = CutWaveSlice(Wave(16, {1, 2, 3, 4}, {5, 6, 7, 8}), 2, 3);
    EXPECT_EQ(cut, Wave(16, {2, 3}, {6, 7}));
    EXPECT_EQ(CutWaveSlice(Wave(8, {1, 2, 3}), 1, 3), Wave(8, {1, 2, 3}));
}

TEST(CutWaveSlice, IsEmptyWhereTheLastFrameLiesAhead)
{
    for (const std::int32_t last : {2, 1, -5}) {
        const WaveData cut = CutWaveSlice(Wave(8, {1, 2, 3}, {1, 2, 3}), 3, last);
        EXPECT_EQ(cut.Length, 0);
        EXPECT_EQ(cut.Bits, 8);
        EXPECT_EQ(cut.WavL.UpperBound(), 0);
        EXPECT_EQ(cut.WavR.UpperBound(), 0);
    }
}

TEST(CutWaveSlice, ThrowsForFramesOutside)
{
    const WaveData wave = Wave(16, {1, 2, 3});
    EXPECT_THROW(static_cast<void>(CutWaveSlice(wave, 0, 2)), RunTimeError);
    EXPECT_THROW(static_cast<void>(CutWaveSlice(wave, 2, 4)), RunTimeError);
    EXPECT_THROW(static_cast<void>(CutWaveSlice(wave, -2147483647, 2147483647)), RunTimeError);
}

/// The formula of the test tone, frame by frame.
SampleList ToneByTheBook(std::int32_t frames, double rate, double amplitude)
{
    const double turn = 6.28318530717958;
    double step = turn / (rate / 650);
    const double growth = std::pow((turn / (rate / 700)) / step, 1.0 / frames);
    SampleList samples;
    double phase = 0;
    for (std::int32_t i = 1; i <= frames; ++i) {
        const double left = static_cast<double>(frames - i) / frames;
        samples.push_back(static_cast<std::int16_t>(std::nearbyint(std::sin(phase) * amplitude * left)));
        step *= growth;
        phase += step;
        if (phase > turn)
            phase -= turn;
    }
    return samples;
}

TEST_F(WavFile, TheTestToneIsItsFormulaSampleBySample)
{
    const WaveData tone = MakeTestTone();
    EXPECT_EQ(tone.Length, 8820);
    EXPECT_EQ(ListOf(tone.WavL), ToneByTheBook(8820, 44100, 22937));
    EXPECT_EQ(tone.WavL[1], 0);
    EXPECT_EQ(tone.WavL[2], 2121); // the amplitude times sin(2 pi 650 / 44100); two of 8820 frames faded
    EXPECT_TRUE(tone.WavR == tone.WavL);
    EXPECT_EQ(tone.Channels, 2);
}

TEST_F(WavFile, TheTestToneFollowsTheSharedFormat)
{
    Shared().SampleRate = 22050;
    Shared().BitsPerSample = 8;
    Shared().Channels = 1;
    const WaveData tone = MakeTestTone();
    EXPECT_EQ(ListOf(tone.WavL), ToneByTheBook(4410, 22050, 89));
    EXPECT_EQ(tone.WavR.UpperBound(), 0);
    EXPECT_EQ(tone.Rate, 22050);
    EXPECT_EQ(tone.Bits, 8);
}

TEST_F(WavFile, TheTestTonesLengthIsRounded)
{
    for (const auto& [rate, frames] : {std::pair(44112, 8822), std::pair(44113, 8823)}) {
        Shared().SampleRate = rate;
        EXPECT_EQ(MakeTestTone().Length, frames) << rate;
    }
}

TEST_F(WavFile, TellsAToneThatCannotBeMade)
{
    Shared().SampleRate = -1;
    EXPECT_EQ(MakeTestTone().Length, 0);
    ASSERT_EQ(fake.messages.shown.size(), 1U);
    EXPECT_EQ(fake.messages.shown[0].title, "Generate Sine Error");
}

} // namespace
} // namespace sprout
