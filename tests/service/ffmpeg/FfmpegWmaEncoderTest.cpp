// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/ffmpeg/FfmpegWmaEncoder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <random>
#include <sstream>

#include "service/ffmpeg/WmaMaker.h"
#include "songs/WmaFormats.h"
#include "support/TestFolder.h"

namespace sprout {
namespace {

using testing::HasSubstr;
using testing::Not;

constexpr std::int32_t kFrame = 2048; // the encoder's frame

/// What a program prints.
std::string OutputOf(const std::string& command)
{
    const std::unique_ptr<FILE, int (*)(FILE*)> program(::popen(command.c_str(), "r"), &::pclose);
    std::string output;
    std::array<char, 4096> part{};
    for (std::size_t count = 1; program && count > 0;) {
        count = std::fread(part.data(), 1, part.size(), program.get());
        output.append(part.data(), count);
    }
    return output;
}

/// A WMA file on disk for the programs that read it.
class WmaOnDisk {
public:
    explicit WmaOnDisk(const std::string& bytes) { WriteBytes(Path(), bytes); }

    [[nodiscard]] std::filesystem::path Path() const { return folder.Path() / "song.wma"; }

    [[nodiscard]] Samples Decoded() const
    {
        const std::string bytes = OutputOf("ffmpeg -v error -i " + Path().native() + " -f s16le -");
        Samples samples(bytes.size() / sizeof(std::int16_t));
        std::memcpy(samples.data(), bytes.data(), samples.size() * sizeof(std::int16_t));
        return samples;
    }

    /// What ffprobe reports about `entries`, one per line.
    [[nodiscard]] std::string Told(const std::string& entries) const
    {
        return OutputOf("ffprobe -v error -show_entries " + entries + " -of default=noprint_wrappers=1 " +
                        Path().native());
    }

    [[nodiscard]] double KilobitsASecond() const
    {
        std::istringstream lines(
            OutputOf("ffprobe -v error -show_entries packet=size -of default=nw=1:nk=1 " + Path().native()));
        double bytes = 0;
        double packets = 0;
        for (double size = 0; lines >> size; ++packets)
            bytes += size;
        return bytes * 8 / 1000 / (packets * kFrame / 44100);
    }

private:
    TestFolder folder;
};

double Energy(const Samples& samples, std::size_t first, std::size_t count)
{
    double sum = 0;
    for (std::size_t i = first; i < std::min(first + count, samples.size()); ++i)
        sum += static_cast<double>(samples[i]) * samples[i];
    return sum;
}

/// The level of the source above the noise that the encoding added, in dB; missing samples count as 0.
double SignalToNoise(const Samples& source, const Samples& decoded)
{
    double noise = 0;
    for (std::size_t i = 0; i < source.size(); ++i) {
        const double error = static_cast<double>(source[i]) - (i < decoded.size() ? decoded[i] : 0);
        noise += error * error;
    }
    return 10 * std::log10(Energy(source, 0, source.size()) / noise);
}

/// The shift in frames, in either direction, at which the decoded sound is most similar to its source.
std::int32_t BestShift(const Samples& source, const Samples& decoded)
{
    constexpr std::int32_t most = kFrame + 10;
    constexpr std::int32_t begin = 3 * kFrame;
    std::int32_t best = -most;
    std::int64_t most_alike = 0;
    for (std::int32_t shift = -most; shift <= most; ++shift) {
        std::int64_t alike = 0;
        for (std::int32_t i = begin; i < begin + 2 * kFrame; ++i)
            alike += std::int64_t{source[static_cast<std::size_t>(2 * i)]} *
                     decoded[static_cast<std::size_t>(2 * (i + shift))];
        if (alike > most_alike) {
            most_alike = alike;
            best = shift;
        }
    }
    return best;
}

bool ProgramHolds(const std::string& library)
{
    return ReadBytes("/proc/self/maps").find(library) != std::string::npos;
}

TEST(FfmpegWmaEncoderDeathTest, BringsItsLibrariesWithLoadAndNotBefore)
{
    // A separate program, in which no other test has loaded anything.
    testing::FLAGS_gtest_death_test_style = "threadsafe";
    const auto load = [] {
        FfmpegWmaEncoder encoder;
        const bool before = ProgramHolds("libav");
        const bool loaded = encoder.Load();
        std::_Exit(!before && loaded && ProgramHolds("libavcodec") && ProgramHolds("libavformat") ? 0 : 1);
    };
    EXPECT_EXIT(load(), testing::ExitedWithCode(0), "");
}

TEST(FfmpegWmaEncoder, ListsFourFormatsOfOneCodec)
{
    FfmpegWmaEncoder encoder;
    ASSERT_TRUE(encoder.Load());
    const std::string list = "Windows Media Audio 2"
                             "\r\n48 kbit/s\n48000\n44100\n2\n16"
                             "\r\n64 kbit/s\n64000\n44100\n2\n16"
                             "\r\n96 kbit/s\n96000\n44100\n2\n16"
                             "\r\n128 kbit/s\n128000\n44100\n2\n16";
    EXPECT_EQ(encoder.FormatList(), list);
    EXPECT_EQ(encoder.FormatListLength(), static_cast<std::int32_t>(list.size()));
    EXPECT_EQ(FindWmaFormat(ParseWmaCodecs(list)), (WmaFormatPlace{0, 1}));
}

TEST(FfmpegWmaEncoder, OpensWhatIsInItsListAlone)
{
    MemoryFile file;
    FfmpegWmaEncoder encoder;
    ASSERT_TRUE(encoder.Load());
    for (const std::int32_t format : {0, 1, 2, 3})
        EXPECT_TRUE(encoder.Open(file, {.Format = format}));
    for (const WmaFormat& format :
         {WmaFormat{.Format = -1}, WmaFormat{.Format = 4}, WmaFormat{.Codec = 1}, WmaFormat{.Codec = -1},
          WmaFormat{.Rate = 22050}, WmaFormat{.Rate = 48000}, WmaFormat{.Channels = 1}, WmaFormat{.Channels = 3},
          WmaFormat{.Bits = 8}, WmaFormat{.Bits = 24}})
        EXPECT_FALSE(encoder.Open(file, format));
    EXPECT_EQ(file.calls, 0);
}

TEST(FfmpegWmaEncoder, GivesEverySampleBackAtItsPlace)
{
    constexpr std::int32_t frames = 10 * 44100 + 777;
    const Samples source = Music(frames);
    const Samples decoded = WmaOnDisk(WmaOf(source)).Decoded();
    ASSERT_GE(decoded.size(), source.size());
    EXPECT_LT(decoded.size(), source.size() + 2 * 2 * kFrame);
    EXPECT_EQ(BestShift(source, decoded), 0);
    EXPECT_GE(SignalToNoise(source, decoded), 19.5);
    // Including its first and last frames.
    for (std::size_t first = 0; first < source.size(); first += 2 * kFrame)
        EXPECT_GT(Energy(decoded, first, 2 * kFrame), Energy(source, first, 2 * kFrame) / 2) << first / 2;
}

TEST(FfmpegWmaEncoder, KeepsSoundsOfAnyLength)
{
    const Samples music = Music(10 * 44100);
    for (const std::size_t frames : {1, 100, 2047, 2048, 2049, 4096, 441000}) {
        SCOPED_TRACE(frames);
        const Samples source(music.begin() + 2 * 500,
                             music.begin() + 2 * 500 + static_cast<std::ptrdiff_t>(2 * frames));
        const std::string wma = WmaOf(frames == music.size() / 2 ? music : source);
        const Samples decoded = WmaOnDisk(wma).Decoded();
        EXPECT_GE(decoded.size(), source.size());
        EXPECT_LT(decoded.size(), source.size() + 2 * 2 * kFrame);
        EXPECT_GT(Energy(decoded, 0, source.size()), Energy(source, 0, source.size()) / 4);
    }
}

TEST(FfmpegWmaEncoder, KeepsItsRate)
{
    const Samples source = Music(5 * 44100);
    const std::array<double, 4> rates = {48, 64, 96, 128};
    for (std::size_t i = 0; i < rates.size(); ++i) {
        const WmaOnDisk wma(WmaOf(source, {}, {.Format = static_cast<std::int32_t>(i)}));
        EXPECT_NEAR(wma.KilobitsASecond(), rates[i], 0.5);
    }
}

TEST(FfmpegWmaEncoder, TakesTheLoudestNoiseAndSilence)
{
    std::mt19937 random(1);
    Samples noise(2 * 44100);
    for (std::int16_t& sample : noise)
        sample = random() % 2 == 0 ? std::int16_t{32767} : std::int16_t{-32768};
    for (const std::int32_t format : {1, 2, 3})
        EXPECT_NE(WmaOf(noise, {}, {.Format = format}), "");
    const Samples silence(2 * 44100);
    const Samples decoded = WmaOnDisk(WmaOf(silence)).Decoded();
    EXPECT_EQ(Energy(decoded, 0, decoded.size()), 0);
}

TEST(FfmpegWmaEncoder, MakesTheSameBytesOfPiecesOfAnySize)
{
    const Samples source = Music(44100 + 1);
    const auto bytes = std::as_bytes(std::span(source));
    const std::string whole = WmaOf(source);
    ASSERT_NE(whole, "");
    EXPECT_TRUE(WmaOf(source) == whole);
    for (const std::size_t piece : {1, 3, 4, 5, 8191, 8192, 8193}) {
        MemoryFile file;
        EXPECT_TRUE(Encode(bytes, file, piece));
        EXPECT_TRUE(file.bytes == whole) << piece;
    }
    MemoryFile file; // bytes that do not fill a frame are dropped at the end
    EXPECT_TRUE(Encode(bytes.first(bytes.size() - 1), file, bytes.size()));
    EXPECT_TRUE(file.bytes == WmaOf({source.begin(), source.end() - 2}));
}

TEST(FfmpegWmaEncoder, WritesTheTags)
{
    std::string longTitle = "أغنية \"Zumi\" 'x' %s $(true) ";
    while (longTitle.size() < 300)
        longTitle += "ü";
    const WmaOnDisk wma(WmaOf(Music(4096), {.Title = longTitle,
                                            .Author = "Zoë, 6",
                                            .Copyright = "All rights reserved",
                                            .Year = "2031",
                                            .Description = "A Song"}));
    const std::string told = wma.Told("format_tags");
    EXPECT_THAT(told, HasSubstr("TAG:title=" + longTitle + "\n"));
    EXPECT_THAT(told, HasSubstr("TAG:artist=Zoë, 6\n"));
    EXPECT_THAT(told, HasSubstr("TAG:copyright=All rights reserved\n"));
    EXPECT_THAT(told, HasSubstr("TAG:WM/Year=2031\n"));
    EXPECT_THAT(told, HasSubstr("TAG:comment=A Song\n"));
    EXPECT_THAT(told, Not(HasSubstr("rating")));
}

TEST(FfmpegWmaEncoder, CutsAnEndlessTagAndReadsWrongBytesAsLetters)
{
    const WmaOnDisk wma(WmaOf(Music(4096), {.Title = std::string(100000, 'x'), .Author = "Zo\xeb"}));
    const std::string told = wma.Told("format_tags");
    EXPECT_THAT(told, HasSubstr("TAG:title=" + std::string(4096, 'x') + "\n"));
    EXPECT_THAT(told, HasSubstr("TAG:artist=Zoë\n"));
    EXPECT_THAT(wma.Told("format=nb_streams"), HasSubstr("nb_streams=1\n"));
}

TEST(FfmpegWmaEncoder, LeavesBlankTagsOut)
{
    EXPECT_EQ(WmaOnDisk(WmaOf(Music(4096))).Told("format_tags"), "");
    EXPECT_THAT(WmaOnDisk(WmaOf(Music(4096), {.Rating = "soft"})).Told("format_tags"), HasSubstr("TAG:rating=soft"));
}

TEST(FfmpegWmaEncoder, TellsTheLengthOfTheSong)
{
    const WmaOnDisk wma(WmaOf(Music(5 * 44100)));
    // The silence around the sound is at most four frames.
    const std::string told = wma.Told("format=duration");
    ASSERT_THAT(told, HasSubstr("duration="));
    EXPECT_NEAR(std::strtod(told.c_str() + told.find('=') + 1, nullptr), 5.1, 0.1);
}

TEST(FfmpegWmaEncoder, NeverTellsThatAFileIsWholeWhenItIsNot)
{
    const Samples source = Music(10 * 44100);
    const auto bytes = std::as_bytes(std::span(source));
    MemoryFile whole;
    ASSERT_TRUE(Encode(bytes, whole, 100000));
    ASSERT_GT(whole.calls, 5);
    for (const bool once : {false, true}) {
        for (int nth = 1; nth <= whole.calls; ++nth) {
            MemoryFile file;
            file.failsFrom = nth;
            file.failsOnce = once;
            EXPECT_FALSE(Encode(bytes, file, 100000)) << nth;
            EXPECT_EQ(file.calls, nth); // a failed call is not repeated
        }
    }
}

TEST(FfmpegWmaEncoder, TellsAFullDiskWhileItWrites)
{
    const Samples source = Music(20 * 44100);
    MemoryFile file;
    file.failsFrom = 1;
    FfmpegWmaEncoder encoder;
    ASSERT_TRUE(encoder.Load());
    const std::unique_ptr<WmaFile> wma = encoder.Open(file, kUsualFormat);
    ASSERT_TRUE(wma);
    EXPECT_FALSE(wma->Write(std::as_bytes(std::span(source))));
    EXPECT_FALSE(wma->Write(std::as_bytes(std::span(source))));
    EXPECT_FALSE(wma->Close());
}

TEST(FfmpegWmaEncoder, WritesNothingWhereItIsGivenUp)
{
    const Samples source = Music(10 * 44100);
    FfmpegWmaEncoder encoder;
    ASSERT_TRUE(encoder.Load());
    MemoryFile file;
    std::unique_ptr<WmaFile> wma = encoder.Open(file, kUsualFormat);
    ASSERT_TRUE(wma->Write(std::as_bytes(std::span(source))));
    const int calls = file.calls;
    wma.reset();
    EXPECT_EQ(file.calls, calls);
}

TEST(FfmpegWmaEncoder, EndsWithItsClose)
{
    const Samples source = Music(4096);
    FfmpegWmaEncoder encoder;
    ASSERT_TRUE(encoder.Load());
    MemoryFile file;
    const std::unique_ptr<WmaFile> wma = encoder.Open(file, kUsualFormat);
    EXPECT_TRUE(wma->Write(std::as_bytes(std::span(source))));
    EXPECT_TRUE(wma->Close());
    const std::string bytes = file.bytes;
    EXPECT_FALSE(wma->Write(std::as_bytes(std::span(source))));
    EXPECT_FALSE(wma->Close());
    EXPECT_TRUE(file.bytes == bytes);
}

} // namespace
} // namespace sprout
