// SPDX-License-Identifier: GPL-3.0-or-later
#include "sound/ChosenSound.h"

#include <array>
#include <cstddef>
#include <span>
#include <stdexcept>
#include <string_view>
#include <utility>

#include "base/ByteCursor.h"
#include "base/Log.h"
#include "core/Busy.h"
#include "core/Paths.h"
#include "service/Screen.h"
#include "service/Services.h"
#include "waves/WaveBytes.h"
#include "waves/WaveFields.h"

namespace sprout {

namespace fs = std::filesystem;

namespace {

constexpr std::int32_t kPcm = 1;

bool IsRiffWave(ByteSource& source)
{
    std::array<char, 12> head{};
    if (source.Size() < head.size())
        return false;
    source.Read(0, std::as_writable_bytes(std::span(head)));
    const std::string_view text(head.data(), head.size());
    return text.starts_with("RIFF") && text.ends_with("WAVE");
}

bool IsKnownFormat(const WaveFields& fields)
{
    return fields.FormatTag == kPcm && IsKnownChannels(fields.Channels) && IsKnownRate(fields.Rate) &&
           IsKnownBits(fields.Bits);
}

/// False if another reader makes more of the file than `LoadWaveFile`, which has its own messages for the rest.
bool LoadsAsItIs(ByteSource& source)
{
    if (!IsRiffWave(source))
        return false;
    if (source.Size() < kSmallestWave)
        return true;
    if (!IsKnownFormat(ReadWaveFields(source)))
        return false;
    const std::uint64_t data = FindWaveData(source);
    return data == 0 || ReadWaveDataSize(source, data) > 0;
}

/// A file that cannot be read is also left to `LoadWaveFile`.
bool WantsConversion(const fs::path& file)
{
    try {
        FileSource source(file);
        return !LoadsAsItIs(source);
    } catch (const std::runtime_error& error) {
        LogFailure("Looking into a sound file", error);
        return false;
    }
}

Converted Convert(const fs::path& file, std::int32_t mostSeconds, TooLong tooLong)
{
    const Hourglass hourglass;
    const StoppableWork work(Words::Text("Reading the sound"));
    return TheServices().soundReader->Convert(file, mostSeconds, tooLong, [](std::size_t done, std::size_t total) {
        TheServices().screen->ShowProgress(done, total);
    });
}

} // namespace

ChosenSound OpenChosenSound(const fs::path& file, std::int32_t mostSeconds, TooLong tooLong)
{
    const fs::path found = FindFile(file);
    if (found.empty() || !TheServices().soundReader || !WantsConversion(found))
        return {file, file, false, nullptr};
    Converted converted = Convert(found, mostSeconds, tooLong);
    if (converted.Outcome == Conversion::Done)
        return {file, fs::path(converted.Wave->Path()), false, std::move(converted.Wave)};
    return {file, file, converted.Outcome == Conversion::TooLong, nullptr};
}

} // namespace sprout
