// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/ffmpeg/SoundConverter.h"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <new>
#include <span>

#include "base/Errors.h"
#include "service/ffmpeg/SoundDecoder.h"

namespace sprout {

namespace {

constexpr std::int64_t kFilterFrames = 16384; // more than the filters hold back
constexpr int kLowestRate = 1000;             // no real sound is below it; a rate of 1 would turn a block into hours
constexpr int kHighestRate = 768000;

/// `frames` of another rate as frames of the decoded rate, rounded to nearest.
std::int64_t DecodedFrames(std::int64_t frames, int rate)
{
    return (frames * kDecodedRate * 2 + rate) / (std::int64_t{2} * rate);
}

} // namespace

SoundConverter::Format SoundConverter::FormatOf(const AVFrame& frame)
{
    const AVChannelLayout& layout = frame.ch_layout;
    return {frame.format, frame.sample_rate, layout.nb_channels,
            layout.order == AV_CHANNEL_ORDER_NATIVE ? layout.u.mask : 0};
}

/// best: with soxr, which not every build of the libraries has. Null if it cannot be created.
SoundConverter::Resampler SoundConverter::MakeResampler(bool best) const
{
    AVChannelLayout from{};
    AVChannelLayout to{};
    Ffmpeg().ChannelLayoutDefault(&from, format.Channels);
    Ffmpeg().ChannelLayoutDefault(&to, sink.Channels());
    if (format.Speakers != 0) {
        from.order = AV_CHANNEL_ORDER_NATIVE;
        from.u.mask = format.Speakers;
    }
    SwrContext* context = nullptr;
    Ffmpeg().ResampleAllocSetOpts(&context, &to, AV_SAMPLE_FMT_S16, kDecodedRate, &from,
                                  static_cast<AVSampleFormat>(format.Samples), format.Rate, 0, nullptr);
    Resampler made(context);
    // By default it filters 16-bit samples in 16 bits, which costs 9 dB.
    if (!made || Ffmpeg().OptSet(made.get(), "internal_sample_fmt", "fltp", 0) < 0 ||
        (best && Ffmpeg().OptSet(made.get(), "resampler", "soxr", 0) < 0) || Ffmpeg().ResampleInit(made.get()) < 0)
        return nullptr;
    return made;
}

void SoundConverter::TakeFormat(const Format& wanted)
{
    if (wanted.Rate < kLowestRate || wanted.Rate > kHighestRate || wanted.Channels < 1)
        throw RunTimeError(Words::Text("Sound of this format cannot be converted."));
    format = wanted;
    if (sink.Channels() == 0)
        sink.SetChannels(std::min(format.Channels, 2));
    resampler = MakeResampler(true);
    if (!resampler)
        resampler = MakeResampler(false);
    if (!resampler)
        throw RunTimeError(Words::Text("Sound of this format cannot be converted."));
    framesIn = 0;
    framesOut = 0;
}

/// Puts `count` frames in, none to flush the filters, and passes on what comes out.
void SoundConverter::Convert(const std::uint8_t** samples, int count, std::int64_t mostFrames)
{
    // Output that did not fit would stay inside, and soxr cannot be flushed then.
    const std::int64_t room = DecodedFrames(count, format.Rate) + kFilterFrames;
    block.resize(std::max(block.size(), static_cast<std::size_t>(room * sink.Channels())));
    auto* out = reinterpret_cast<std::uint8_t*>(block.data());
    const int converted = Ffmpeg().ResampleConvert(resampler.get(), &out, static_cast<int>(room), samples, count);
    if (converted == AVERROR(ENOMEM))
        throw std::bad_alloc();
    if (converted < 0)
        throw RunTimeError(Words::Text("The sound cannot be converted."));
    const auto taken = static_cast<std::size_t>(std::min<std::int64_t>(converted, mostFrames - framesOut));
    sink.Put(std::span(block).first(taken * static_cast<std::size_t>(sink.Channels())));
    framesOut += static_cast<std::int64_t>(taken);
}

void SoundConverter::Put(const AVFrame& frame)
{
    if (frame.nb_samples < 1 || sink.IsOverfull())
        return;
    if (const Format wanted = FormatOf(frame); !resampler || !(wanted == format)) {
        Finish();
        TakeFormat(wanted);
    }
    framesIn += frame.nb_samples;
    Convert(const_cast<const std::uint8_t**>(frame.extended_data), frame.nb_samples,
            std::numeric_limits<std::int64_t>::max());
}

void SoundConverter::Finish()
{
    if (!resampler || sink.IsOverfull())
        return;
    const std::int64_t wanted = DecodedFrames(framesIn, format.Rate);
    Convert(nullptr, 0, std::max(wanted, framesOut));
    const std::int64_t lacking = std::min(wanted - framesOut, kFilterFrames);
    if (lacking > 0) { // a filter may hold back its last frame
        std::fill(block.begin(), block.end(), std::int16_t{0});
        sink.Put(std::span(block).first(static_cast<std::size_t>(lacking * sink.Channels())));
    }
    resampler = nullptr;
}

} // namespace sprout
