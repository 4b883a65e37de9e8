// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gmock/gmock.h>

#include <sys/wait.h>

#include <cerrno>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <numbers>
#include <string>
#include <vector>

#include "base/Errors.h"
#include "core/Paths.h"
#include "service/ffmpeg/SoundChild.h"
#include "support/FakeServices.h"

namespace sprout {

namespace fs = std::filesystem;
using Samples = std::vector<std::int16_t>;

inline constexpr double kToneHz = 997;
inline constexpr double kLevel = 29204.5; // 1 dB below full scale
inline constexpr int kSourceRate = 48000;

/// The built program, which is beside the tests.
inline fs::path Program()
{
    return fs::read_symlink("/proc/self/exe").parent_path() / "sprout-read-sound";
}

/// Silence, followed by the tone.
inline Samples ToneBehind(int silentFrames, int toneFrames)
{
    Samples samples(static_cast<std::size_t>(silentFrames), 0);
    for (int i = 0; i < toneFrames; ++i)
        samples.push_back(static_cast<std::int16_t>(
            std::lround(kLevel * std::sin(2 * std::numbers::pi * kToneHz * i / kSourceRate))));
    return samples;
}

inline std::string BytesOf(const Samples& samples)
{
    return {reinterpret_cast<const char*>(samples.data()), samples.size() * 2};
}

/// The contents of a WAV file with a head of 44 bytes.
struct Heard {
    std::string head;
    int channels = 0;
    Samples left;
};

inline Heard Hear(const fs::path& path)
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

inline std::int32_t NumberAt(const std::string& bytes, std::size_t place)
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

inline Fit FitTone(const Samples& samples, std::size_t first, std::size_t last)
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

} // namespace sprout
