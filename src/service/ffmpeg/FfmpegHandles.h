// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>

#include "service/ffmpeg/FfmpegLibrary.h"

namespace sprout {

/// Frees FFmpeg's objects. The libraries must be loaded.
struct FfmpegFree {
    void operator()(AVIOContext* io) const
    {
        Ffmpeg().Freep(&io->buffer); // which FFmpeg may have reallocated
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

/// A byte stream on our own callbacks, which get `self`; null if memory runs out. write: null for a stream to read.
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
