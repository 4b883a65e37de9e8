// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/ffmpeg/FfmpegWmaEncoder.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <exception>
#include <vector>

#include "base/Text.h"
#include "service/Files.h"
#include "service/ffmpeg/FfmpegHandles.h"

namespace sprout {

namespace {

constexpr std::array<std::int32_t, 4> kWmaBitRates = {48000, 64000, 96000, 128000};
constexpr std::int32_t kWmaRate = 44100;
constexpr std::int32_t kWmaChannels = 2;
constexpr std::int32_t kWmaBits = 16;
constexpr std::size_t kSampleFrameBytes = 4; // of both channels
constexpr std::size_t kMostTagCharacters = 4096;

/// Where FFmpeg's output goes. A failure of the file is final: all later calls fail too.
class WmaTarget {
public:
    explicit WmaTarget(Replacement& replacement) : file(replacement) {}

    [[nodiscard]] bool Failed() const { return failed; }

    // FFmpeg's callbacks; no exception may pass through FFmpeg.
    static int Write(void* self, std::uint8_t* bytes, int count) noexcept
    {
        WmaTarget& target = *static_cast<WmaTarget*>(self);
        return target.Append(std::as_bytes(std::span(bytes, static_cast<std::size_t>(count)))) ? count : AVERROR(EIO);
    }
    static std::int64_t Seek(void* self, std::int64_t offset, int whence) noexcept
    {
        return static_cast<WmaTarget*>(self)->MoveTo(offset, whence);
    }

private:
    template <class Work>
    bool Try(Work work)
    {
        if (failed)
            return false;
        try {
            work();
        } catch (const std::exception&) {
            failed = true; // the caller learns of it from FFmpeg's result
        }
        return !failed;
    }

    bool Append(std::span<const std::byte> bytes)
    {
        if (!Try([&] { file.Write(bytes); }))
            return false;
        place += static_cast<std::int64_t>(bytes.size());
        size = std::max(size, place);
        return true;
    }

    std::int64_t MoveTo(std::int64_t offset, int whence)
    {
        if (whence == AVSEEK_SIZE)
            return size;
        if (whence != SEEK_SET || offset < 0) // FFmpeg counts from the start
            return AVERROR(EINVAL);
        if (!Try([&] { file.MoveTo(static_cast<std::uint64_t>(offset)); }))
            return AVERROR(EIO);
        return place = offset;
    }

    Replacement& file;
    std::int64_t place = 0;
    std::int64_t size = 0;
    bool failed = false;
};

/// The encoder and the file around its packets.
///
/// A decoder outputs nothing for the first frame and drops the second; of the last one it keeps the half that the next
/// would complete. So one frame of silence goes before the sound and one after it.
class FfmpegWmaFile : public WmaFile {
public:
    FfmpegWmaFile(Replacement& replacement, std::int32_t bitRate)
        : target(replacement),
          io(MakeFfmpegIo(&target, nullptr, &WmaTarget::Write, &WmaTarget::Seek)),
          packet(Ffmpeg().PacketAlloc())
    {
        goesWell = io && packet && OpenEncoder(bitRate) && MakeContainer() && MakeFrame();
    }

    [[nodiscard]] bool IsOpen() const { return goesWell; }

    void SetTags(const WmaTags& tags) override;
    [[nodiscard]] bool Write(std::span<const std::byte> samples) override;
    [[nodiscard]] bool Close() override;

private:
    [[nodiscard]] bool OpenEncoder(std::int32_t bitRate);
    [[nodiscard]] bool MakeContainer();
    [[nodiscard]] bool MakeFrame();
    void SetTag(const char* key, const std::string& text);
    void Begin();
    void EncodeWaiting();
    void Encode(const AVFrame* sound);
    void WritePacket();
    /// Notes a failure of FFmpeg or of the file; returns true if there is none.
    bool Check(int result) { return goesWell = goesWell && result >= 0 && !target.Failed(); }

    WmaTarget target;
    FfmpegOwned<AVIOContext> io;
    FfmpegOwned<AVFormatContext> container;
    FfmpegOwned<AVCodecContext> encoder;
    FfmpegOwned<AVFrame> frame;
    FfmpegOwned<AVPacket> packet;
    AVStream* stream = nullptr;     // the container's
    std::vector<std::byte> waiting; // for the rest of their frame
    std::size_t frameBytes = 0;
    bool begun = false;
    bool goesWell = false; // until the first failure or the end
};

bool FfmpegWmaFile::OpenEncoder(std::int32_t bitRate)
{
    const AVCodec* codec = Ffmpeg().FindEncoder(AV_CODEC_ID_WMAV2);
    encoder.reset(codec ? Ffmpeg().CodecAllocContext(codec) : nullptr);
    if (!encoder)
        return false;
    encoder->bit_rate = bitRate;
    encoder->sample_rate = kWmaRate;
    encoder->sample_fmt = AV_SAMPLE_FMT_FLTP;
    encoder->time_base = {1, kWmaRate};
    encoder->flags |= AV_CODEC_FLAG_BITEXACT;
    Ffmpeg().ChannelLayoutDefault(&encoder->ch_layout, kWmaChannels);
    if (Ffmpeg().CodecOpen(encoder.get(), codec, nullptr) < 0 || encoder->frame_size <= 0)
        return false;
    frameBytes = static_cast<std::size_t>(encoder->frame_size) * kSampleFrameBytes;
    return true;
}

bool FfmpegWmaFile::MakeContainer()
{
    AVFormatContext* made = nullptr;
    if (Ffmpeg().FormatAllocOutputContext(&made, nullptr, "asf", nullptr) < 0)
        return false;
    container.reset(made);
    container->pb = io.get();
    container->flags |= AVFMT_FLAG_CUSTOM_IO | AVFMT_FLAG_BITEXACT; // no release name, no creation time
    stream = Ffmpeg().FormatNewStream(container.get(), nullptr);
    if (!stream)
        return false;
    stream->time_base = encoder->time_base;
    return Ffmpeg().ParametersFromContext(stream->codecpar, encoder.get()) >= 0;
}

bool FfmpegWmaFile::MakeFrame()
{
    frame.reset(Ffmpeg().FrameAlloc());
    if (!frame)
        return false;
    frame->format = encoder->sample_fmt;
    frame->sample_rate = kWmaRate;
    frame->nb_samples = encoder->frame_size;
    frame->pts = 0;
    waiting.reserve(frameBytes);
    return Ffmpeg().ChannelLayoutCopy(&frame->ch_layout, &encoder->ch_layout) >= 0 &&
           Ffmpeg().FrameGetBuffer(frame.get(), 0) >= 0;
}

void FfmpegWmaFile::SetTag(const char* key, const std::string& text)
{
    if (text.empty())
        return;
    // A text that is not UTF-8 would end at its first bad byte, and the container stores a text's length in 16 bits.
    const std::string utf8 = TextFromStored(text);
    const std::string kept(FirstCharacters(utf8, kMostTagCharacters));
    Check(Ffmpeg().DictSet(&container->metadata, key, kept.c_str(), 0));
}

void FfmpegWmaFile::SetTags(const WmaTags& tags)
{
    SetTag("title", tags.Title);
    SetTag("author", tags.Author);
    SetTag("copyright", tags.Copyright);
    SetTag("rating", tags.Rating);
    SetTag("comment", tags.Description);
    SetTag("WM/Year", tags.Year); // players would not find "date"
}

/// Writes the header and the frame of silence that players leave out.
void FfmpegWmaFile::Begin()
{
    begun = true;
    if (Check(Ffmpeg().FormatWriteHeader(container.get(), nullptr)))
        EncodeWaiting();
}

/// Encodes a frame of the waiting samples, padded with silence.
void FfmpegWmaFile::EncodeWaiting()
{
    if (!Check(Ffmpeg().FrameMakeWritable(frame.get())))
        return;
    waiting.resize(waiting.size() / kSampleFrameBytes * kSampleFrameBytes);
    waiting.resize(frameBytes);
    const auto sample = [this](std::size_t place) {
        const auto low = std::to_integer<std::uint16_t>(waiting[place]);
        const auto high = std::to_integer<std::uint16_t>(waiting[place + 1]);
        return static_cast<float>(static_cast<std::int16_t>(low | high << 8)) / 32768.0F;
    };
    auto* left = reinterpret_cast<float*>(frame->data[0]);
    auto* right = reinterpret_cast<float*>(frame->data[1]);
    for (std::size_t place = 0; place < frameBytes; place += kSampleFrameBytes) {
        *left++ = sample(place);
        *right++ = sample(place + 2);
    }
    waiting.clear();
    Encode(frame.get());
    frame->pts += frame->nb_samples;
}

/// sound: null flushes the encoder.
void FfmpegWmaFile::Encode(const AVFrame* sound)
{
    if (!Check(Ffmpeg().SendFrame(encoder.get(), sound)))
        return;
    while (goesWell) {
        const int result = Ffmpeg().ReceivePacket(encoder.get(), packet.get());
        if (result == AVERROR(EAGAIN) || result == AVERROR_EOF)
            return;
        if (Check(result))
            WritePacket();
    }
}

void FfmpegWmaFile::WritePacket()
{
    packet->stream_index = stream->index;
    Ffmpeg().PacketRescaleTs(packet.get(), encoder->time_base, stream->time_base);
    Check(Ffmpeg().FormatWriteFrame(container.get(), packet.get()));
    Ffmpeg().PacketUnref(packet.get());
}

bool FfmpegWmaFile::Write(std::span<const std::byte> samples)
{
    if (goesWell && !begun && !samples.empty())
        Begin();
    while (goesWell && !samples.empty()) {
        const auto taken = samples.first(std::min(samples.size(), frameBytes - waiting.size()));
        waiting.insert(waiting.end(), taken.begin(), taken.end());
        samples = samples.subspan(taken.size());
        if (waiting.size() == frameBytes)
            EncodeWaiting();
    }
    return goesWell;
}

bool FfmpegWmaFile::Close()
{
    if (goesWell && !begun)
        Begin();
    if (goesWell && waiting.size() >= kSampleFrameBytes)
        EncodeWaiting();
    waiting.clear();
    if (goesWell)
        EncodeWaiting();
    if (goesWell)
        Encode(nullptr);
    const bool whole = goesWell && Check(Ffmpeg().FormatWriteTrailer(container.get()));
    goesWell = false;
    return whole;
}

/// The list of `WmaEncoder::FormatList`.
std::string ListFormats()
{
    std::string list = "Windows Media Audio 2";
    for (const std::int32_t bitRate : kWmaBitRates)
        list += "\r\n" + std::to_string(bitRate / 1000) + " kbit/s\n" + std::to_string(bitRate) + "\n" +
                std::to_string(kWmaRate) + "\n" + std::to_string(kWmaChannels) + "\n" + std::to_string(kWmaBits);
    return list;
}

} // namespace

bool FfmpegWmaEncoder::Load()
{
    return Ffmpeg().IsThere() && Ffmpeg().FindEncoder(AV_CODEC_ID_WMAV2);
}

std::int32_t FfmpegWmaEncoder::FormatListLength()
{
    return static_cast<std::int32_t>(ListFormats().size());
}

std::optional<std::string> FfmpegWmaEncoder::FormatList()
{
    return ListFormats();
}

std::unique_ptr<WmaFile> FfmpegWmaEncoder::Open(Replacement& target, const WmaFormat& format)
{
    const auto formats = static_cast<std::int32_t>(kWmaBitRates.size());
    const bool isListed = format.Codec == 0 && format.Format >= 0 && format.Format < formats &&
                          format.Rate == kWmaRate && format.Channels == kWmaChannels && format.Bits == kWmaBits;
    if (!isListed || !Load())
        return nullptr;
    auto file = std::make_unique<FfmpegWmaFile>(target, kWmaBitRates[static_cast<std::size_t>(format.Format)]);
    if (!file->IsOpen())
        return nullptr;
    return file;
}

} // namespace sprout
