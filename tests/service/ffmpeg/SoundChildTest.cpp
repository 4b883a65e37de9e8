// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/ffmpeg/SoundChild.h"

#include <gmock/gmock.h>

#include <sys/resource.h>

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <numbers>
#include <ostream>
#include <string>

#include "service/ffmpeg/SoundChildDesk.h"

namespace sprout {
namespace {

/// A way to write a sound, and its effect on the sound.
struct Kind {
    std::string name;
    std::string output;
    int channels = 1;
    double level = 1;
    int moreFrames = 0;  ///< at the end: what the last block of a lossy codec adds
    int earlyFrames = 0; ///< at the beginning: what is lost there
};

void PrintTo(const Kind& kind, std::ostream* out)
{
    *out << kind.name << ' ' << kind.output;
}

class EveryKind : public SoundChildTest, public testing::WithParamInterface<Kind> {};

TEST_P(EveryKind, ArrivesWithItsToneItsLengthAndItsBegin)
{
    const Kind& kind = GetParam();
    const Converted converted = Convert(MakeFrom(ToneBehind(12000, 48000), kind.name, kind.output));
    ASSERT_EQ(converted.Outcome, Conversion::Done);
    const Heard heard = Hear(converted.Wave->Path());
    EXPECT_EQ(heard.channels, kind.channels);
    EXPECT_NEAR(static_cast<int>(heard.left.size()), 55125 - kind.earlyFrames, kind.moreFrames);
    const auto isLoud = [](std::int16_t sample) { return std::abs(sample) > 5000; };
    const auto first = std::find_if(heard.left.begin(), heard.left.end(), isLoud) - heard.left.begin();
    EXPECT_NEAR(static_cast<double>(first), 11025 - kind.earlyFrames, 8);
    const Fit fit = FitTone(heard.left, 20000, 50000);
    EXPECT_NEAR(fit.level / kLevel, kind.level, 0.06);
    EXPECT_GT(fit.sinad, 25);
}

const Kind kKinds[] = {
    {"plain.wav", "-c:a pcm_s16le"},
    {"stereo.wav", "-ac 2 -c:a pcm_s16le", 2, std::numbers::sqrt2 / 2},
    {"deep.wav", "-c:a pcm_s24le"},
    {"float.wav", "-c:a pcm_f32le"},
    {"law.wav", "-c:a pcm_mulaw"},
    {"eight.wav", "-af 'pan=7.1|FL=c0|FR=c0' -c:a pcm_s16le", 2, 0.32},
    {"fine.wav", "-ar 96000 -c:a pcm_s32le"},
    {"a.mp3", "-b:a 192k", 1, 0.95},
    {"a.ogg", "-c:a libvorbis"},
    {"a.opus", "-c:a libopus"},
    {"a.flac", ""},
    {"a.m4a", "-c:a aac", 1, 1, 1000},
    {"a.wma", "-c:a wmav2", 1, 1, 2048, 1882}, // its first block only starts the decoder
    {"a.aiff", ""},
    {"a.webm", "-c:a libopus"},
    {"a.mkv", "-c:a libvorbis", 1, 1, 1000},
    {"a.wv", ""},
};
INSTANTIATE_TEST_SUITE_P(SoundChild, EveryKind, testing::ValuesIn(kKinds));

TEST_F(SoundChildTest, WritesACanonicalHead)
{
    const Converted converted = Convert(MakeFrom(ToneBehind(0, 4800), "a.flac", "-ac 2"));
    ASSERT_EQ(converted.Outcome, Conversion::Done);
    constexpr unsigned char head[] = {'R', 'I', 'F', 'F', 0x0C, 0x45, 0,   0,   'W', 'A',  'V',  'E',  'f', 'm',  't',
                                      ' ', 16,  0,   0,   0,    1,    0,   2,   0,   0x44, 0xAC, 0,    0,   0x10, 0xB1,
                                      2,   0,   4,   0,   16,   0,    'd', 'a', 't', 'a',  0xE8, 0x44, 0,   0};
    EXPECT_EQ(Hear(converted.Wave->Path()).head, std::string(reinterpret_cast<const char*>(head), sizeof head));
    EXPECT_EQ(fs::file_size(converted.Wave->Path()), 44 + 4410 * 4U);
}

TEST_F(SoundChildTest, KeepsAToneClean)
{
    const Converted converted = Convert(MakeFrom(ToneBehind(0, 4 * kSourceRate), "a.wav", "-c:a pcm_s16le"));
    ASSERT_EQ(converted.Outcome, Conversion::Done);
    const Fit fit = FitTone(Hear(converted.Wave->Path()).left, 22050, 3 * 44100);
    RecordProperty("sinad_dB", std::to_string(fit.sinad));
    EXPECT_GE(fit.sinad, 92) << "85 dB is asked for";
    EXPECT_NEAR(fit.level, kLevel, 3);
}

TEST_F(SoundChildTest, KeepsSamplesOfTheSameFormat)
{
    const Samples tone = ToneBehind(100, 5000);
    const Converted converted = Convert(MakeFrom(tone, "a.flac", "-af asetrate=44100"));
    ASSERT_EQ(converted.Outcome, Conversion::Done);
    EXPECT_EQ(Hear(converted.Wave->Path()).left, tone);
}

TEST_F(SoundChildTest, RoundsTheLengthToTheNearestFrame)
{
    for (const int frames : {1, 2, 3, 100, 4801, 10007}) {
        const Converted converted = Convert(MakeFrom(ToneBehind(0, frames), "a.wav", "-c:a pcm_s16le"));
        ASSERT_EQ(converted.Outcome, Conversion::Done) << frames;
        EXPECT_EQ(Hear(converted.Wave->Path()).left.size(),
                  static_cast<std::size_t>(std::lround(frames * 44100.0 / kSourceRate)));
    }
}

TEST_F(SoundChildTest, KeepsTheSoundToItsLastFrame)
{
    const Converted converted = Convert(MakeFrom(ToneBehind(0, 48000), "a.wav", "-c:a pcm_s16le"));
    ASSERT_EQ(converted.Outcome, Conversion::Done);
    EXPECT_GT(FitTone(Hear(converted.Wave->Path()).left, 44000, 44100).sinad, 25);
}

TEST_F(SoundChildTest, ReadsStreamsWhoseSizeIsNotTold)
{
    std::string bytes = ReadBytes(MakeFrom(ToneBehind(0, 48000), "a.wav", "-bitexact -c:a pcm_s16le"));
    ASSERT_EQ(bytes.substr(36, 4), "data");
    for (const char size : {'\0', '\xFF'}) {
        WriteBytes(In("stream.wav"), bytes.replace(40, 4, 4, size));
        const Converted converted = Convert(In("stream.wav"));
        ASSERT_EQ(converted.Outcome, Conversion::Done);
        EXPECT_EQ(Hear(converted.Wave->Path()).left.size(), 44100U);
    }
    WriteBytes(In("stream.wav"), bytes.substr(0, 44));
    EXPECT_EQ(Convert(In("stream.wav")).Outcome, Conversion::Unreadable) << "without a frame";
}

TEST_F(SoundChildTest, ReadsTheSoundOfAFilm)
{
    const fs::path film = Make("film.mp4", "-f lavfi -i testsrc=duration=1 -f lavfi -i sine=duration=1", "-shortest");
    const Converted converted = Convert(film);
    ASSERT_EQ(converted.Outcome, Conversion::Done);
    EXPECT_NEAR(static_cast<double>(Hear(converted.Wave->Path()).left.size()), 44100, 1100);
    EXPECT_EQ(Convert(Make("silent.mp4", "-f lavfi -i testsrc=duration=1", "")).Outcome, Conversion::Unreadable);
}

TEST_F(SoundChildTest, GoesOnWhereASoundChangesItsFormat)
{
    const Samples tone = ToneBehind(0, 48000);
    const std::string mono = ReadBytes(MakeFrom(tone, "mono.mp3", "-b:a 64k"));
    WriteBytes(In("both.mp3"), mono + ReadBytes(MakeFrom(tone, "stereo.mp3", "-b:a 64k -ac 2 -ar 32000")));
    const Converted converted = Convert(In("both.mp3"));
    ASSERT_EQ(converted.Outcome, Conversion::Done);
    const Heard heard = Hear(converted.Wave->Path());
    EXPECT_EQ(heard.channels, 1) << "as it began";
    EXPECT_NEAR(static_cast<double>(heard.left.size()), 88200, 4000);
    EXPECT_GT(FitTone(heard.left, 10000, 40000).sinad, 25);
    EXPECT_GT(FitTone(heard.left, 55000, 80000).sinad, 25);
}

TEST_F(SoundChildTest, TakesExactlyTheMostSecondsAndRefusesAFrameMore)
{
    EXPECT_EQ(Convert(MakeFrom(ToneBehind(0, 48000), "a.wav", "-c:a pcm_s16le"), 1).Outcome, Conversion::Done);
    EXPECT_EQ(Convert(MakeFrom(ToneBehind(0, 48002), "a.wav", "-c:a pcm_s16le"), 1).Outcome, Conversion::TooLong);
    ExpectNothingLeft();
}

TEST_F(SoundChildTest, CutsAtTheMostSeconds)
{
    const Converted converted = Convert(MakeFrom(ToneBehind(0, 2 * 48000), "a.mp3", "-ac 2"), 1, TooLong::Cut);
    ASSERT_EQ(converted.Outcome, Conversion::Done);
    EXPECT_EQ(Hear(converted.Wave->Path()).left.size(), 44100U);
    EXPECT_EQ(NumberAt(Hear(converted.Wave->Path()).head, 40), 44100 * 4);
}

/// Processor time of the children that have ended.
double ChildSeconds()
{
    rusage usage{};
    ::getrusage(RUSAGE_CHILDREN, &usage);
    const auto seconds = [](const timeval& time) {
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
    };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

TEST_F(SoundChildTest, DecodesNoMoreOfAnHourThanIsWanted)
{
    const std::string minute = ReadBytes(Make("minute.mp3", "-f lavfi -i sine=duration=60", "-b:a 32k -write_xing 0"));
    std::string hour; // such an mp3 does not contain its length
    for (int i = 0; i < 60; ++i)
        hour += minute;
    WriteBytes(In("hour.mp3"), hour);
    const double before = ChildSeconds();
    const Converted converted = Convert(In("hour.mp3"), 5, TooLong::Cut);
    ASSERT_EQ(converted.Outcome, Conversion::Done);
    EXPECT_EQ(Hear(converted.Wave->Path()).left.size(), 5 * 44100U);
    EXPECT_EQ(Convert(In("hour.mp3"), 120, TooLong::Refuse).Outcome, Conversion::TooLong);
    const double both = ChildSeconds() - before;
    RecordProperty("seconds", std::to_string(both));
    static_cast<void>(Convert(In("hour.mp3"), 600, TooLong::Cut));
    EXPECT_LT(both, ChildSeconds() - before - both) << "a sixth of the hour costs more than both";
}

} // namespace
} // namespace sprout
