// SPDX-License-Identifier: GPL-3.0-or-later
#include "beats/BeatCommands.h"

#include <array>
#include <charconv>
#include <span>
#include <system_error>
#include <vector>

#include "base/ByteCursor.h"
#include "base/Errors.h"
#include "base/Extensions.h"
#include "base/FilePaths.h"
#include "base/Text.h"
#include "core/Paths.h"
#include "core/Shared.h"
#include "service/Files.h"
#include "service/PictureFiles.h"
#include "service/Services.h"

namespace sprout {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t kWavLength = kWaveExtension.size();

std::string LowerBeatName(const std::string& waveName)
{
    return LowerCase(waveName.substr(0, waveName.size() - kWavLength));
}

std::string BeatWaveTitle(const fs::path& soundFile)
{
    const std::string title = PathText(soundFile.filename());
    const bool isWav = title.size() > kWavLength && LowerCase(title).ends_with(kWaveExtension);
    return isWav ? title : PathText(soundFile.stem()) + std::string(kWaveExtension);
}

std::vector<std::byte> BytesOfFile(const fs::path& path)
{
    FileSource source(path);
    std::vector<std::byte> bytes(static_cast<std::size_t>(source.Size()));
    source.Read(0, bytes);
    return bytes;
}

void PutBeatFile(const fs::path& target, const fs::path& source)
{
    RequireOwnFile(target);
    const std::vector<std::byte> bytes = BytesOfFile(source);
    const std::span<const std::byte> piece(bytes);
    TheServices().files->ReplaceFile(target, {&piece, 1}, Flush::Yes);
}

/// Once the new picture is in place, an old one whose name differs only in case is deleted.
void PutBeatPicture(const fs::path& target, const Picture& picture)
{
    const std::vector<std::byte> bytes = TheServices().pictures->EncodeBmp(picture);
    const std::span<const std::byte> piece(bytes);
    const fs::path old = FindFile(target);
    TheServices().files->ReplaceFile(target, {&piece, 1}, Flush::Yes);
    std::error_code error;
    if (!old.empty() && !fs::equivalent(old, target, error))
        DeleteFile(old);
}

fs::path UserBeatFile(std::string_view name, std::string_view extension)
{
    return NamedFile(Shared().UserBeats, name, extension);
}

/// A case-sensitive file system would allow two beats of one name.
void RenameBeatFile(const fs::path& from, const fs::path& to)
{
    if (to.empty())
        throw RunTimeError(Words::Text("This cannot be the name of a file."));
    const fs::path source = FindFile(from);
    if (source.empty())
        throw RunTimeError(Words::Text("The file %1 was not found.", PathText(from.filename())));
    const fs::path taken = FindFile(to);
    if (!taken.empty() && !fs::equivalent(taken, source))
        throw RunTimeError(Words::Text("The file %1 already exists.", PathText(taken.filename())));
    RequireOwnFile(source);
    fs::rename(source, to);
}

} // namespace

NewBeatName NameNewBeat(const fs::path& soundFile)
{
    const std::string title = BeatWaveTitle(soundFile);
    std::string candidate = title;
    for (int n = 1; FileExists(Shared().UserBeats / candidate); ++n)
        candidate = "New" + std::to_string(n) + title;
    return {candidate, LowerBeatName(title), LowerBeatName(candidate)};
}

Picture ReadChosenPicture(const fs::path& pictureFile)
{
    const fs::path file = FindFile(pictureFile);
    return file.empty() ? Shared().DefaultTunePicture : TheServices().pictures->LoadPicture(file);
}

void AddBeatFiles(const fs::path& waveFile, const Picture& picture, const std::string& file)
{
    const fs::path wave = Shared().UserBeats / file;
    const fs::path pictureFile =
        fs::path(wave.native().substr(0, wave.native().size() - kWavLength) + std::string(kPictureExtension));
    PutBeatFile(wave, waveFile);
    try {
        PutBeatPicture(pictureFile, picture);
    } catch (...) {
        DeleteFile(wave);
        throw;
    }
    std::error_code noTime;
    const auto written = fs::last_write_time(waveFile, noTime);
    if (!noTime)
        fs::last_write_time(wave, written, noTime);
}

void RenameBeatFiles(std::string_view oldName, std::string_view newName)
{
    RenameBeatFile(UserBeatFile(oldName, kWaveExtension), UserBeatFile(newName, kWaveExtension));
    RenameBeatFile(UserBeatFile(oldName, kPictureExtension), UserBeatFile(newName, kPictureExtension));
}

void DeleteBeatFiles(std::string_view name)
{
    DeleteFile(FindFile(UserBeatFile(name, kWaveExtension)));
    DeleteFile(FindFile(UserBeatFile(name, kPictureExtension)));
}

std::string SecondsText(double value)
{
    std::array<char, 32> text{};
    constexpr int digits = 15;
    const auto end = std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::general, digits);
    return {text.data(), end.ptr};
}

} // namespace sprout
