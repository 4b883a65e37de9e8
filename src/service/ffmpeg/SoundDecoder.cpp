// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/ffmpeg/SoundDecoder.h"

#include "service/ffmpeg/SoundConverter.h"
#include "service/ffmpeg/SoundInput.h"
#include "service/ffmpeg/WaveSink.h"

namespace sprout {

namespace {

DecodeStatus Decode(int from, int to, std::int64_t mostFrames, TooLong tooLong)
{
    SoundInput input(from);
    WaveSink sink(to, mostFrames);
    SoundConverter converter(sink);
    while (!sink.IsOverfull()) {
        const AVFrame* frame = input.Next();
        if (!frame)
            break;
        converter.Put(*frame);
    }
    converter.Finish();
    if (sink.IsOverfull() && tooLong == TooLong::Refuse)
        return DecodeStatus::TooLong;
    if (sink.Frames() == 0)
        return DecodeStatus::Unreadable;
    sink.Finish();
    return DecodeStatus::Done;
}

} // namespace

DecodeStatus DecodeSound(int from, int to, std::int64_t mostFrames, TooLong tooLong)
{
    if (!Ffmpeg().IsThere())
        return DecodeStatus::NoLibraries;
    try {
        return Decode(from, to, mostFrames, tooLong);
    } catch (const NotWritten&) {
        return DecodeStatus::NotWritten;
    } catch (const RunTimeError&) {
        return DecodeStatus::Unreadable;
    }
}

} // namespace sprout
