// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/ffmpeg/SoundChild.h"

#include <gmock/gmock.h>

#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <numbers>
#include <ostream>
#include <random>
#include <string>
#include <vector>

#include "base/Errors.h"
#include "core/Paths.h"
#include "support/FakeServices.h"

namespace sprout {
namespace {

namespace fs = std::filesystem;
using Samples = std::vector<std::int16_t>;

constexpr double kToneHz = 997;
constexpr double kLevel = 29204.5; // 1 dB below full scale
constexpr int kSourceRate = 48000;

/// The built program, which is beside the tests.
fs::path Program()
{
    return fs::read_symlink("/proc/self/exe").parent_path() / "sprout-read-sound";
}

/// Silence, followed by the tone.
Samples ToneBehind(int silentFrames, int toneFrames)
{
    Samples samples(static_cast<std::size_t>(silentFrames), 0);
    for (int i = 0; i < toneFrames; ++i)
        samples.push_back(static_cast<std::int16_t>(
            std::lround(kLevel * std::sin(2 * std::numbers::pi * kToneHz * i / kSourceRate))));
    return samples;
}

std::string BytesOf(const Samples& samples)
{
    return {reinterpret_cast<const char*>(samples.data()), samples.size() * 2};
}

/// The contents of a WAV file with a head of 44 bytes.
struct Heard {
    std::string head;
    int channels = 0;
    Samples left;
};

Heard Hear(const fs::path& path)
{
    const std::string bytes = ReadBytes(path);
    Heard heard{bytes.substr(0, 44), bytes.at(22), {}};
    const auto step = static_cast<std::size_t>(heard.channels) * 2;
    for (std::size_t place = 44; place + 1 < bytes.size(); place += step) {
        std::int16_t sample = 0;
        std::memcpy(&sample, &bytes[place], 2);
        heard.left.push_back(sample);
    }
    return heard;
}

std::int32_t NumberAt(const std::string& bytes, std::size_t place)
{
    std::int32_t number = 0;
    std::memcpy(&number, &bytes[place], 4);
    return number;
}

/// The tone fitted to samples with the smallest remainder.
struct Fit {
    double level = 0;
    double sinad = 0; ///< in dB: the tone compared with the remainder
};

Fit FitTone(const Samples& samples, std::size_t first, std::size_t last)
{
    double ss = 0, cc = 0, sc = 0, ys = 0, yc = 0;
    const auto angle = [](std::size_t i) { return 2 * std::numbers::pi * kToneHz / 44100 * static_cast<double>(i); };
    for (std::size_t i = first; i < last; ++i) {
        const double s = std::sin(angle(i)), c = std::cos(angle(i)), y = samples.at(i);
        ss += s * s, cc += c * c, sc += s * c, ys += y * s, yc += y * c;
    }
    const double det = ss * cc - sc * sc;
    const double a = (ys * cc - yc * sc) / det, b = (yc * ss - ys * sc) / det;
    double left = 0;
    for (std::size_t i = first; i < last; ++i)
        left += std::pow(samples.at(i) - a * std::sin(angle(i)) - b * std::cos(angle(i)), 2);
    const double power = (a * a + b * b) / 2 * static_cast<double>(last - first);
    return {std::hypot(a, b), 10 * std::log10(power / left)};
}

class SoundChildTest : public testing::Test {
protected:
    fs::path In(const std::string& name) const { return services.folder.Path() / name; }

    /// Makes a file with the program ffmpeg; `input` and `output` are its arguments.
    fs::path Make(const std::string& name, const std::string& input, const std::string& output) const
    {
        const std::string line =
            "ffmpeg -nostdin -loglevel error -y " + input + " " + output + " '" + In(name).native() + "'";
        EXPECT_EQ(std::system(line.c_str()), 0) << line;
        return In(name);
    }

    fs::path MakeFrom(const Samples& mono, const std::string& name, const std::string& output) const
    {
        WriteBytes(In("source.raw"), BytesOf(mono));
        return Make(name, "-f s16le -ar 48000 -ac 1 -i '" + In("source.raw").native() + "'", output);
    }

    fs::path Script(const std::string& text) const
    {
        WriteBytes(In("script"), "#!/bin/sh\n" + text + "\n");
        fs::permissions(In("script"), fs::perms::owner_all);
        return In("script");
    }

    Converted Convert(const fs::path& sound, std::int32_t seconds = 120, TooLong tooLong = TooLong::Refuse)
    {
        return child.Convert(sound, seconds, tooLong, [](std::size_t, std::size_t) {});
    }

    static Converted ConvertBy(const fs::path& program, const fs::path& sound)
    {
        return SoundChild(program, NewFile).Convert(sound, 5, TooLong::Cut, [](std::size_t, std::size_t) {});
    }

    static fs::path NewFile() { return NewTempFileName("wav"); }

    static void ExpectNothingLeft()
    {
        EXPECT_TRUE(fs::is_empty(Shared().TempFolder));
        EXPECT_TRUE(::waitpid(-1, nullptr, WNOHANG) < 0 && errno == ECHILD) << "a child is left";
    }

    FakeServices services;
    SoundChild child{Program(), NewFile};
};

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

TEST_F(SoundChildTest, LivesWithFilesThatBreakOff)
{
    for (const char* name : {"a.mp3", "a.ogg", "a.m4a", "a.flac", "a.wav"}) {
        const std::string whole = ReadBytes(MakeFrom(ToneBehind(0, 48000), name, ""));
        for (const std::size_t size : {std::size_t{1}, std::size_t{40}, whole.size() / 3, whole.size() - 1}) {
            WriteBytes(In("cut"), whole.substr(0, size));
            const Converted converted = Convert(In("cut"));
            ASSERT_NE(converted.Outcome, Conversion::TooLong);
            if (converted.Outcome == Conversion::Done) {
                EXPECT_GT(size, 40U) << name;
                EXPECT_LE(Hear(converted.Wave->Path()).left.size(), 44100U + 1200) << name << size;
            }
        }
    }
    ExpectNothingLeft();
}

TEST_F(SoundChildTest, FindsNoSoundInNoiseOrText)
{
    std::mt19937 random(1);
    std::string noise(100'000, '\0');
    std::generate(noise.begin(), noise.end(), [&] { return static_cast<char>(random() % 200); });
    for (const std::string& bytes :
         {noise, std::string(), std::string("A letter."), std::string(100'000, '\0'),
          std::string("#EXTM3U\n#EXTINF:1,\n/etc/passwd\n"), std::string("ffconcat version 1.0\nfile /etc/passwd\n")}) {
        WriteBytes(In("noise.mp3"), bytes);
        EXPECT_EQ(Convert(In("noise.mp3")).Outcome, Conversion::Unreadable);
    }
    ExpectNothingLeft();
}

TEST_F(SoundChildTest, WaitsForNoPipeFolderOrDevice)
{
    ASSERT_EQ(::mkfifo(In("pipe").c_str(), 0600), 0);
    const fs::path content = Script("exit 0"); // whatever it contains
    for (const fs::path& path : {In("pipe"), services.folder.Path(), fs::path("/dev/zero"), In("missing")})
        EXPECT_EQ(ConvertBy(content, path).Outcome, Conversion::Unreadable) << path;
    ExpectNothingLeft();
}

TEST_F(SoundChildTest, HoldsItsTemporaryFileForItsOwnerAlone)
{
    WriteBytes(In("precious"), "mine");
    fs::create_symlink(In("precious"), Shared().TempFolder / "TqkTmp1.wav");
    {
        const Converted converted = Convert(MakeFrom(ToneBehind(0, 4800), "a.flac", ""));
        ASSERT_EQ(converted.Outcome, Conversion::Done);
        EXPECT_EQ(fs::status(converted.Wave->Path()).permissions(), fs::perms::owner_read | fs::perms::owner_write);
        EXPECT_NE(NewTempFileName("wav"), converted.Wave->Path()) << "as another running program asks";
        EXPECT_TRUE(fs::exists(converted.Wave->Path()));
    }
    EXPECT_EQ(ReadBytes(In("precious")), "mine");
    fs::remove(Shared().TempFolder / "TqkTmp1.wav");
    ExpectNothingLeft();
}

TEST_F(SoundChildTest, HandsTheChildTheSoundAndTheLimitAndNoOtherFile)
{
    WriteBytes(In("sound"), "the sound ");
    const int open = ::dup(STDIN_FILENO); // as a library has it, not closed on exec
    const std::string program =
        "cat; echo \"$@\"; for n in 3 4 5 6 7 8 9; do [ -e /proc/self/fd/$n ] || echo -n $n; done";
    const Converted converted = ConvertBy(Script(program), In("sound"));
    ::close(open);
    ASSERT_EQ(converted.Outcome, Conversion::Done);
    EXPECT_EQ(ReadBytes(converted.Wave->Path()), "the sound 220500 cut\n3456789");
}

TEST_F(SoundChildTest, TakesEveryEndOfTheChildForWhatItIs)
{
    WriteBytes(In("sound"), "x");
    EXPECT_EQ(ConvertBy(In("missing"), In("sound")).Outcome, Conversion::Unreadable);
    EXPECT_EQ(ConvertBy(Script("exit 2"), In("sound")).Outcome, Conversion::Unreadable);
    EXPECT_EQ(ConvertBy(Script("exit 3"), In("sound")).Outcome, Conversion::TooLong);
    EXPECT_EQ(ConvertBy(Script("exit 4"), In("sound")).Outcome, Conversion::Unreadable);
    EXPECT_EQ(ConvertBy(Script("exit 5"), In("sound")).Outcome, Conversion::Unreadable);
    EXPECT_THROW(static_cast<void>(ConvertBy(Script("exit 6"), In("sound"))), RunTimeError);
    EXPECT_EQ(ConvertBy(Script("exit 77"), In("sound")).Outcome, Conversion::Unreadable);
    EXPECT_EQ(ConvertBy(Script("kill -SEGV $$"), In("sound")).Outcome, Conversion::Unreadable);
    ExpectNothingLeft();
}

TEST_F(SoundChildTest, EndsAChildThatTakesTooLong)
{
    WriteBytes(In("sound"), "x");
    SoundChild patient(Script("exec sleep 1000"), NewFile, std::chrono::milliseconds(50));
    EXPECT_EQ(patient.Convert(In("sound"), 5, TooLong::Cut, [](std::size_t, std::size_t) {}).Outcome,
              Conversion::Unreadable);
    ExpectNothingLeft();
}

TEST_F(SoundChildTest, TellsHowFarItIsAndEndsTheChildWhenTheUserStops)
{
    WriteBytes(In("sound"), "x");
    SoundChild slow(Script("head -c 1000 /dev/zero; exec sleep 1000"), NewFile);
    const auto stop = [](std::size_t done, std::size_t total) {
        EXPECT_EQ(total, 44U + 5 * 44100 * 4);
        if (done == 1000)
            throw WorkStopped();
    };
    EXPECT_THROW(static_cast<void>(slow.Convert(In("sound"), 5, TooLong::Cut, stop)), WorkStopped);
    ExpectNothingLeft();
}

TEST_F(SoundChildTest, TellsWhereTheTemporaryFileCannotBeMade)
{
    WriteBytes(In("sound"), "x");
    fs::remove(Shared().TempFolder);
    EXPECT_THROW(static_cast<void>(Convert(In("sound"))), RunTimeError);
}

TEST_F(SoundChildTest, TellsOfAFullDisk)
{
    const fs::path sound = MakeFrom(ToneBehind(0, 48000), "a.flac", "");
    const std::string line = "'" + Program().native() + "' 44100 cut <'" + sound.native() + "' >/dev/full";
    EXPECT_EQ(WEXITSTATUS(std::system(line.c_str())), 6);
    if (::mount("none", Shared().TempFolder.c_str(), "tmpfs", 0, "size=32k") != 0)
        GTEST_SKIP() << "Only the superuser can mount a small disk.";
    EXPECT_THROW(static_cast<void>(Convert(sound)), RunTimeError);
    ExpectNothingLeft();
    ::umount(Shared().TempFolder.c_str());
}

TEST_F(SoundChildTest, SaysWhereTheLibrariesAreMissing)
{
    const fs::path sound = MakeFrom(ToneBehind(0, 4800), "a.flac", "");
    fs::create_directory(In("libraries")); // the files that are found first are not libraries
    for (int version = 50; version < 80; ++version)
        WriteBytes(In("libraries") / ("libavcodec.so." + std::to_string(version)), "");
    const std::string line = "LD_LIBRARY_PATH='" + In("libraries").native() + "' '" + Program().native() +
                             "' 44100 cut <'" + sound.native() + "' >/dev/null";
    EXPECT_EQ(WEXITSTATUS(std::system(line.c_str())), 5);
}

TEST_F(SoundChildTest, RefusesWrongWords)
{
    for (const char* words : {"", "44100", "44100 trim", "0 cut", "x cut", "99999999999 cut", "44100 cut more"}) {
        const std::string line = "'" + Program().native() + "' " + words + " </dev/null >/dev/null";
        EXPECT_EQ(WEXITSTATUS(std::system(line.c_str())), 2) << words;
    }
}

} // namespace
} // namespace sprout
