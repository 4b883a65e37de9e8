// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>

#include "service/ffmpeg/FfmpegLibrary.h"

namespace sprout {

/// The first audio stream of a file, decoded frame by frame. FFmpeg's libraries must be loaded.
class SoundInput {
public:
    /// descriptor: a plain file, which outlives the input. No other file is opened, whatever this one asks for. Throws
    /// `RunTimeError` if it holds no sound that can be decoded.
    explicit SoundInput(int descriptor);

    /// The next frame, valid until the next call; null at the end. What cannot be decoded is skipped.
    [[nodiscard]] const AVFrame* Next();

private:
    template <auto free>
    struct Freed {
        template <class Object>
        void operator()(Object* object) const
        {
            (Ffmpeg().*free)(&object);
        }
    };
    struct FreedIo {
        void operator()(AVIOContext* io) const;
    };

    void OpenFormat();
    void OpenCodec();
    [[nodiscard]] bool SendPacket();

    int file;
    std::unique_ptr<AVIOContext, FreedIo> io;
    std::unique_ptr<AVFormatContext, Freed<&FfmpegLibrary::FormatCloseInput>> format;
    std::unique_ptr<AVCodecContext, Freed<&FfmpegLibrary::CodecFreeContext>> codec;
    std::unique_ptr<AVPacket, Freed<&FfmpegLibrary::PacketFree>> packet;
    std::unique_ptr<AVFrame, Freed<&FfmpegLibrary::FrameFree>> frame;
    int stream = -1;
    bool isDraining = false;
};

} // namespace sprout
