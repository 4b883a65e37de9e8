// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/ffmpeg/SoundInput.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdint>
#include <new>
#include <string>

#include "base/Errors.h"

namespace sprout {

namespace {

constexpr int kIoBytes = 32768;

/// Files that children have: sounds, and videos for their sound. None of these formats refers to other files.
constexpr const char* kFormats =
    "aac,ac3,aiff,amr,ape,asf,au,avi,caf,eac3,flac,flv,matroska,mov,mp3,mpeg,mpegts,ogg,tta,"
    "voc,w64,wav,wv";

int DescriptorOf(void* opaque)
{
    return *static_cast<const int*>(opaque);
}

int ReadFile(void* opaque, std::uint8_t* bytes, int size)
{
    ssize_t count = -1;
    do
        count = ::read(DescriptorOf(opaque), bytes, static_cast<std::size_t>(size));
    while (count < 0 && errno == EINTR);
    if (count < 0)
        return AVERROR(errno);
    return count == 0 ? AVERROR_EOF : static_cast<int>(count);
}

std::int64_t SeekFile(void* opaque, std::int64_t offset, int whence)
{
    if (whence == AVSEEK_SIZE) {
        struct stat facts {};
        return ::fstat(DescriptorOf(opaque), &facts) == 0 ? facts.st_size : AVERROR(errno);
    }
    const off_t place = ::lseek(DescriptorOf(opaque), offset, whence & ~AVSEEK_FORCE);
    return place < 0 ? AVERROR(errno) : place;
}

int OpenNothing(AVFormatContext* /*format*/, AVIOContext** /*io*/, const char* /*url*/, int /*flags*/,
                AVDictionary** /*options*/)
{
    return AVERROR(EPERM);
}

/// A film's pictures would otherwise be decoded too, just to learn their size.
std::string AudioDecoders()
{
    std::string names;
    void* place = nullptr;
    while (const AVCodec* codec = Ffmpeg().CodecIterate(&place))
        if (codec->type == AVMEDIA_TYPE_AUDIO && Ffmpeg().CodecIsDecoder(codec))
            names += (names.empty() ? "" : ",") + std::string(codec->name);
    return names;
}

/// Checks a result of FFmpeg: below 0 is a failure.
void Check(int answer)
{
    if (answer == AVERROR(ENOMEM))
        throw std::bad_alloc();
    if (answer < 0)
        throw RunTimeError(Words::Text("The file holds no sound that can be read."));
}

template <class Object>
Object* Made(Object* object)
{
    if (!object)
        throw std::bad_alloc();
    return object;
}

AVIOContext* MakeIo(int& descriptor)
{
    auto* buffer = static_cast<unsigned char*>(Made(Ffmpeg().Malloc(kIoBytes)));
    AVIOContext* made = Ffmpeg().IoAllocContext(buffer, kIoBytes, 0, &descriptor, ReadFile, nullptr, SeekFile);
    if (!made)
        Ffmpeg().Freep(static_cast<void*>(&buffer));
    return Made(made);
}

} // namespace

void SoundInput::FreedIo::operator()(AVIOContext* context) const
{
    Ffmpeg().Freep(static_cast<void*>(&context->buffer)); // not always the one it was created with
    Ffmpeg().IoContextFree(&context);
}

SoundInput::SoundInput(int descriptor)
    : file(descriptor), io(MakeIo(file)), packet(Made(Ffmpeg().PacketAlloc())), frame(Made(Ffmpeg().FrameAlloc()))
{
    OpenFormat();
    OpenCodec();
}

void SoundInput::OpenFormat()
{
    AVFormatContext* context = Made(Ffmpeg().FormatAllocContext());
    context->pb = io.get();
    context->io_open = OpenNothing;
    AVDictionary* options = nullptr;
    Ffmpeg().DictSet(&options, "format_whitelist", kFormats, 0);
    Ffmpeg().DictSet(&options, "codec_whitelist", AudioDecoders().c_str(), 0);
    const int opened = Ffmpeg().FormatOpenInput(&context, "", nullptr, &options); // frees the context if it fails
    Ffmpeg().DictFree(&options);
    Check(opened);
    format.reset(context);
    Check(Ffmpeg().FormatFindStreamInfo(format.get(), nullptr));
}

void SoundInput::OpenCodec()
{
    for (unsigned i = 0; i < format->nb_streams; ++i) {
        const bool isSound = format->streams[i]->codecpar->codec_type == AVMEDIA_TYPE_AUDIO;
        if (isSound && stream < 0)
            stream = static_cast<int>(i);
        else
            format->streams[i]->discard = AVDISCARD_ALL;
    }
    if (stream < 0)
        throw RunTimeError(Words::Text("The file holds no sound."));
    const AVStream& sound = *format->streams[stream];
    const AVCodec* decoder = Ffmpeg().FindDecoder(sound.codecpar->codec_id);
    if (!decoder)
        throw RunTimeError(Words::Text("Sound of this kind cannot be read."));
    codec.reset(Made(Ffmpeg().CodecAllocContext(decoder)));
    Check(Ffmpeg().ParametersToContext(codec.get(), sound.codecpar));
    codec->pkt_timebase = sound.time_base;
    codec->thread_count = 1;
    Check(Ffmpeg().CodecOpen(codec.get(), decoder, nullptr));
}

/// Sends the decoder the next packet, or the end-of-stream signal; returns false if that was already sent.
bool SoundInput::SendPacket()
{
    if (isDraining)
        return false;
    int read = Ffmpeg().FormatReadFrame(format.get(), packet.get());
    while (read >= 0 && packet->stream_index != stream) {
        Ffmpeg().PacketUnref(packet.get());
        read = Ffmpeg().FormatReadFrame(format.get(), packet.get());
    }
    isDraining = read < 0; // a truncated file ends there
    const int sent = Ffmpeg().SendPacket(codec.get(), isDraining ? nullptr : packet.get());
    Ffmpeg().PacketUnref(packet.get());
    if (sent == AVERROR(ENOMEM))
        throw std::bad_alloc();
    return true;
}

const AVFrame* SoundInput::Next()
{
    for (;;) {
        const int received = Ffmpeg().ReceiveFrame(codec.get(), frame.get());
        if (received >= 0)
            return frame.get();
        if (received == AVERROR(ENOMEM))
            throw std::bad_alloc();
        if (received == AVERROR_EOF || !SendPacket())
            return nullptr;
    }
}

} // namespace sprout
