// SPDX-License-Identifier: GPL-3.0-or-later
// sprout-read-sound MOST_FRAMES cut|refuse: decodes the sound file on standard input into a WAV file on standard
// output. A separate program, so that a damaged file costs nobody their song.
#include <unistd.h>

#include <charconv>
#include <cstdint>
#include <exception>
#include <optional>
#include <span>
#include <string_view>

#include "service/ffmpeg/ChildLimits.h"
#include "service/ffmpeg/FfmpegLibrary.h"
#include "service/ffmpeg/SoundDecoder.h"

namespace sprout {
namespace {

constexpr std::int64_t kMostFrames = std::int64_t{600} * kDecodedRate;

std::optional<std::int64_t> FrameCount(std::string_view text)
{
    std::int64_t count = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), count);
    const bool isCount = error == std::errc() && end == text.data() + text.size() && count >= 1 && count <= kMostFrames;
    return isCount ? std::optional(count) : std::nullopt;
}

std::optional<TooLong> Manner(std::string_view text)
{
    if (text == "cut")
        return TooLong::Cut;
    return text == "refuse" ? std::optional(TooLong::Refuse) : std::nullopt;
}

DecodeStatus ReadSound(std::span<char*> words)
{
    const auto mostFrames = words.size() == 3 ? FrameCount(words[1]) : std::nullopt;
    const auto manner = words.size() == 3 ? Manner(words[2]) : std::nullopt;
    if (!mostFrames || !manner)
        return DecodeStatus::Misused;
    if (!Ffmpeg().IsThere())
        return DecodeStatus::NoLibraries;
    if (!LimitChild(MostDecodedBytes(*mostFrames)))
        return DecodeStatus::Misused;
    try {
        return DecodeSound(STDIN_FILENO, STDOUT_FILENO, *mostFrames, *manner);
    } catch (const std::exception&) {
        return DecodeStatus::Unreadable; // it asked for more memory than a sound needs
    }
}

} // namespace
} // namespace sprout

int main(int argc, char** argv)
{
    // There is no cleanup after a decoder that may have gone wrong.
    ::_exit(static_cast<int>(sprout::ReadSound({argv, static_cast<std::size_t>(argc)})));
}
