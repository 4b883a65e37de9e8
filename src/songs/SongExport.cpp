// SPDX-License-Identifier: GPL-3.0-or-later
#include "songs/SongExport.h"

#include <algorithm>
#include <cstddef>
#include <ctime>
#include <exception>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "base/Errors.h"
#include "base/Log.h"
#include "base/Numbers.h"
#include "base/Product.h"
#include "core/Shared.h"
#include "core/Tell.h"
#include "service/Files.h"
#include "service/Screen.h"
#include "service/Services.h"
#include "service/WmaEncoder.h"
#include "songs/WmaFormats.h"
#include "waves/WavOperations.h"
#include "waves/WaveBytes.h"

namespace sprout {

namespace fs = std::filesystem;

namespace {

constexpr LaterWords kNoFormats = Words::Later("Failed to get WMA Codec Formats");
constexpr LaterWords kNotWritten = Words::Later("Failed to write WMA file");
constexpr LaterWords kNotOpened = Words::Later("Failed to open WMA Writer");
constexpr LaterWords kNotTaken = Words::Later("Failed Writing to WMA file");
constexpr LaterWords kNotClosed = Words::Later("Failed Closing WMA writer");
constexpr std::int32_t kBlockSeconds = 10;

/// The end of an export, explained by `line1`.
ExportOutcome Refused(const LaterWords& line1, const Words& line2 = {})
{
    return {.Line1 = line1, .Line2 = line2};
}

/// Fills the list of codecs. Returns the message of a failure, otherwise nothing.
std::optional<ExportOutcome> GetWmaCodecList(WmaEncoder& encoder)
{
    try {
        if (!encoder.Load())
            return Refused(kNoFormats);
        const std::int32_t length = encoder.FormatListLength();
        if (length < 1)
            return Refused(kNoFormats);
        const std::optional<std::string> list = encoder.FormatList();
        if (!list)
            return Refused(kNoFormats, Words::Text("Length needed = %1", length));
        Shared().Wma.Codecs = ParseWmaCodecs(*list);
        return std::nullopt;
    } catch (const std::exception& error) {
        return Refused(kNoFormats, ErrorWords(error));
    }
}

/// Chooses the format of exports, once. Returns the end of the export if there is none; only the missing file then
/// tells the user so.
std::optional<ExportOutcome> SelectWmaCodec(WmaEncoder& encoder)
{
    WmaChoice& choice = Shared().Wma;
    if (choice.CodecChosen)
        return std::nullopt;
    if (std::optional<ExportOutcome> failure = GetWmaCodecList(encoder))
        return failure;
    choice.ChosenCodec = -1;
    choice.ChosenFormat = -1;
    const std::optional<WmaFormatPlace> place = FindWmaFormat(choice.Codecs);
    if (!place)
        return ExportOutcome{};
    choice.ChosenCodec = place->Codec;
    choice.ChosenFormat = place->Format;
    choice.CodecChosen = true;
    return std::nullopt;
}

std::string ThisYear()
{
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    return std::to_string(local.tm_year + 1900);
}

WmaTags SongTags()
{
    return {.Title = Shared().Song.SongTitle,
            .Author = Shared().Song.SongCreatedBy,
            .Copyright = "All rights reserved",
            .Rating = "",
            .Year = ThisYear(),
            .Description = std::string(kProductName) + " Song"};
}

/// The message for a wave that the encoder does not accept.
std::optional<ExportOutcome> RefusedFormat(const WaveData& wave)
{
    if (wave.Bits != 16)
        return Refused(kNotWritten,
                       Words::Text("This WMA Writer can write only 16 bit wave file\r\nThis is %1 bits", wave.Bits));
    if (wave.Channels != 2)
        return Refused(kNotWritten, Words::Text("This WMA Writer can write only stereo wave file\r\nThis is %1 channel",
                                                wave.Channels));
    return std::nullopt;
}

/// Passes a wave's frames to `take` as bytes, at most `blockFrames` at a time, and shows the progress. Returns false if
/// `take` does.
template <class Take>
bool TakeBlocks(const WaveData& wave, std::int32_t blockFrames, Take take)
{
    CheckFrames(wave);
    const auto frameBytes = static_cast<std::size_t>(FrameBytes(wave));
    std::vector<std::byte> bytes(static_cast<std::size_t>(std::min(blockFrames, wave.Length)) * frameBytes);
    for (std::int32_t done = 0; done < wave.Length;) {
        const std::int32_t frames = std::min(wave.Length - done, blockFrames);
        const auto block = std::span(bytes).first(static_cast<std::size_t>(frames) * frameBytes);
        PackFrames(wave, done + 1, block);
        if (!take(std::span<const std::byte>(block)))
            return false;
        done += frames;
        TheServices().screen->ShowProgress(static_cast<std::size_t>(done), static_cast<std::size_t>(wave.Length));
    }
    return true;
}

/// Writes a WMA file. Returns the message of a failure, empty if there is none.
LaterWords EncodeWave(WmaEncoder& encoder, Replacement& target, const WaveData& wave)
{
    const std::unique_ptr<WmaFile> file = encoder.Open(
        target, {wave.Rate, wave.Channels, wave.Bits, Shared().Wma.ChosenCodec, Shared().Wma.ChosenFormat});
    if (!file)
        return kNotOpened;
    file->SetTags(SongTags());
    const bool taken = TakeBlocks(wave, wave.Rate * kBlockSeconds,
                                  [&file](std::span<const std::byte> block) { return file->Write(block); });
    if (!taken) {
        static_cast<void>(file->Close()); // releases the handle; the file is abandoned
        return kNotTaken;
    }
    return file->Close() ? LaterWords() : kNotClosed;
}

/// Returns whether a complete file replaced its target. Throws `RunTimeError` if the disk refuses it.
ExportEnd PutInPlace(Replacement& file)
{
    try {
        file.PutInPlace(Flush::Yes);
        return ExportEnd::Written;
    } catch (const NotReplaced&) {
        return ExportEnd::NotReplaced;
    }
}

void WriteWave(Replacement& file, const WaveData& wave)
{
    constexpr std::int32_t blockFrames = 65536;
    constexpr auto headBytes = static_cast<std::int32_t>(kWaveHeadBytes);
    const std::int32_t fileBytes = RoundHalfEven(static_cast<double>(FrameBytes(wave)) * wave.Length + headBytes);
    auto head = WaveHead(wave);
    SetWaveSizes(head, fileBytes - headBytes);
    file.Write(head);
    TakeBlocks(wave, blockFrames, [&file](std::span<const std::byte> block) {
        file.Write(block);
        return true;
    });
}

} // namespace

ExportOutcome WriteWavFile(const WaveData& wave, const fs::path& path)
{
    if (!MayWriteWave(wave, path))
        return {};
    ExportOutcome outcome;
    GuardedTelling(Words::Text("Wav file Write error"), [&] {
        const std::unique_ptr<Replacement> file = TheServices().files->BeginReplacement(path);
        WriteWave(*file, wave);
        outcome.End = PutInPlace(*file);
    });
    return outcome;
}

ExportOutcome WriteWmaFile(const WaveData& wave, const fs::path& path)
{
    WmaEncoder* const encoder = TheServices().wma;
    if (!encoder)
        return Refused(kNoFormats);
    if (std::optional<ExportOutcome> failure = SelectWmaCodec(*encoder))
        return *failure;
    if (std::optional<ExportOutcome> refusal = RefusedFormat(wave))
        return *refusal;
    LaterWords failure = kNotOpened;
    try {
        const std::unique_ptr<Replacement> file = TheServices().files->BeginReplacement(path);
        failure = kNotTaken;
        if (const LaterWords told = EncodeWave(*encoder, *file, wave); !told.IsEmpty())
            return Refused(told);
        failure = kNotClosed;
        return wave.Length > 0 ? ExportOutcome{.End = PutInPlace(*file)} : ExportOutcome{};
    } catch (const std::exception& error) { // from the disk or memory
        LogFailure("Writing a WMA file", error);
        return Refused(failure);
    }
}

} // namespace sprout
