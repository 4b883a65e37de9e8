// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/ffmpeg/SoundFacts.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <exception>
#include <span>

#include "base/ByteCursor.h"
#include "base/Errors.h"
#include "service/ffmpeg/FfmpegHandles.h"

namespace sprout {

namespace {

/// The file as FFmpeg sees it: reads end after the bytes that a header may have.
class HeadSource {
public:
    explicit HeadSource(const std::filesystem::path& path) : file(path) {}

    // FFmpeg's callbacks; no exception may pass through FFmpeg.
    static int Read(void* self, std::uint8_t* bytes, int count) noexcept
    {
        HeadSource& head = *static_cast<HeadSource*>(self);
        try {
            return head.ReadNext(std::as_writable_bytes(std::span(bytes, static_cast<std::size_t>(count))));
        } catch (const std::exception&) {
            return AVERROR(EIO); // FFmpeg's call then fails, and that is reported
        }
    }
    static std::int64_t Seek(void* self, std::int64_t offset, int whence) noexcept
    {
        return static_cast<HeadSource*>(self)->MoveTo(offset, whence);
    }

private:
    static constexpr std::uint64_t kMostBytes = 1 << 20;

    int ReadNext(std::span<std::byte> bytes)
    {
        const std::uint64_t end = std::min(file.Size(), kMostBytes);
        if (place >= end)
            return AVERROR_EOF;
        const auto part = bytes.first(static_cast<std::size_t>(std::min<std::uint64_t>(bytes.size(), end - place)));
        file.Read(place, part);
        place += part.size();
        return static_cast<int>(part.size());
    }

    std::int64_t MoveTo(std::int64_t offset, int whence)
    {
        if (whence == AVSEEK_SIZE)
            return static_cast<std::int64_t>(file.Size());
        if (whence != SEEK_SET || offset < 0) // FFmpeg counts from the start
            return AVERROR(EINVAL);
        place = static_cast<std::uint64_t>(offset);
        return offset;
    }

    FileSource file;
    std::uint64_t place = 0;
};

/// Closes an open container instead of only freeing it.
struct CloseInput {
    void operator()(AVFormatContext* container) const { Ffmpeg().FormatCloseInput(&container); }
};
using Input = std::unique_ptr<AVFormatContext, CloseInput>;

/// The container of the bytes behind `io`; null if it is not a WMA file.
Input OpenHead(AVIOContext& io)
{
    AVFormatContext* container = Ffmpeg().FormatAllocContext();
    if (!container)
        return nullptr;
    container->pb = &io;
    // No other kind of file is allowed: some kinds lead to further files and to the network.
    AVDictionary* options = nullptr;
    Ffmpeg().DictSet(&options, "format_whitelist", "asf", 0);
    const int result = Ffmpeg().FormatOpenInput(&container, "", nullptr, &options); // frees the container if it fails
    Ffmpeg().DictFree(&options);
    return Input(result < 0 ? nullptr : container);
}

std::string Tag(const AVFormatContext& container, const char* key)
{
    const AVDictionaryEntry* entry = Ffmpeg().DictGet(container.metadata, key, nullptr, 0);
    return entry ? entry->value : "";
}

} // namespace

SoundFacts ReadSoundFacts(const std::filesystem::path& path)
{
    if (!Ffmpeg().IsThere())
        throw RunTimeError(Words::Text("The libraries that read WMA files are not installed."));
    HeadSource head(path);
    const FfmpegOwned<AVIOContext> io = MakeFfmpegIo(&head, &HeadSource::Read, nullptr, &HeadSource::Seek);
    const Input container = io ? OpenHead(*io) : nullptr;
    const int number =
        container ? Ffmpeg().FormatFindBestStream(container.get(), AVMEDIA_TYPE_AUDIO, -1, -1, nullptr, 0) : -1;
    if (number < 0)
        throw RunTimeError(Words::Text("The file is not a WMA file, or it is damaged."));
    const AVStream& stream = *container->streams[number];
    const AVCodecParameters& sound = *stream.codecpar;
    if (stream.duration == AV_NOPTS_VALUE || stream.duration < 0 || sound.sample_rate <= 0)
        throw RunTimeError(Words::Text("The WMA file is damaged or cut short."));
    return {.Container = container->iformat->name,
            .Codec = Ffmpeg().CodecGetName(sound.codec_id),
            .BitRate = sound.bit_rate,
            .Rate = sound.sample_rate,
            .Channels = sound.ch_layout.nb_channels,
            .Seconds = static_cast<double>(stream.duration) * stream.time_base.num / stream.time_base.den,
            .Title = Tag(*container, "title"),
            .Author = Tag(*container, "artist"),
            .Copyright = Tag(*container, "copyright"),
            .Year = Tag(*container, "WM/Year"),
            .Comment = Tag(*container, "comment")};
}

} // namespace sprout
