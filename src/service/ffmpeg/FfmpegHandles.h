// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>

#include "service/ffmpeg/FfmpegLibrary.h"

namespace sprout {

/// Gives FFmpeg's objects back. The libraries must be there.
struct FfmpegFree {
    void operator()(AVIOContext* io) const
    {
        Ffmpeg().Freep(&io->buffer); // which FFmpeg may have made anew
        Ffmpeg().IoContextFree(&io);
    }
    void operator()(AVFormatContext* format) const { Ffmpeg().FormatFreeContext(format); }
    void operator()(AVCodecContext* codec) const { Ffmpeg().CodecFreeContext(&codec); }
    void operator()(AVFrame* frame) const { Ffmpeg().FrameFree(&frame); }
    void operator()(AVPacket* packet) const { Ffmpeg().PacketFree(&packet); }
};

template <class Object>
using FfmpegOwned = std::unique_ptr<Object, FfmpegFree>;

using ReadCall = int (*)(void* self, std::uint8_t* bytes, int count);
using WriteCall = int (*)(void* self, std::uint8_t* bytes, int count);
using SeekCall = std::int64_t (*)(void* self, std::int64_t offset, int whence);

/// A stream of bytes on calls of our own, which get `self`; null where memory is short. write: null for one to read.
[[nodiscard]] inline FfmpegOwned<AVIOContext> MakeFfmpegIo(void* self, ReadCall read, WriteCall write, SeekCall seek)
{
    constexpr int bufferBytes = 32768;
    void* buffer = Ffmpeg().Malloc(bufferBytes);
    if (!buffer)
        return nullptr;
    FfmpegOwned<AVIOContext> io(Ffmpeg().IoAllocContext(static_cast<unsigned char*>(buffer), bufferBytes, write ? 1 : 0,
                                                        self, read, write, seek));
    if (!io)
        Ffmpeg().Freep(&buffer);
    return io;
}

} // namespace sprout
