// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "service/ffmpeg/FfmpegLibrary.h"
#include "service/ffmpeg/WaveSink.h"

namespace sprout {

/// Converts decoded frames to 44,100 Hz, 16 bits and one or two channels. FFmpeg's libraries must be loaded.
///
/// The first frame in is the first frame out. The number of frames out is the number in times the ratio of the rates,
/// rounded to nearest. A sound may change its format midway; its first frame decides whether the output is mono.
class SoundConverter {
public:
    explicit SoundConverter(WaveSink& wave) : sink(wave) {}

    /// Throws `RunTimeError` if a format cannot be converted. Does nothing once the sink is overfull.
    void Put(const AVFrame& frame);
    /// Writes what is still in the filters.
    void Finish();

private:
    struct Freed {
        void operator()(SwrContext* context) const { Ffmpeg().ResampleFree(&context); }
    };
    using Resampler = std::unique_ptr<SwrContext, Freed>;

    /// The input format of a resampler.
    struct Format {
        int Samples = AV_SAMPLE_FMT_NONE;
        int Rate = 0;
        int Channels = 0;
        std::uint64_t Speakers = 0; ///< one bit each; 0: the default ones for this many channels
        friend bool operator==(const Format&, const Format&) = default;
    };

    [[nodiscard]] static Format FormatOf(const AVFrame& frame);
    void TakeFormat(const Format& wanted);
    [[nodiscard]] Resampler MakeResampler(bool best) const;
    void Convert(const std::uint8_t** samples, int count, std::int64_t mostFrames);

    WaveSink& sink;
    Resampler resampler;
    Format format;
    std::int64_t framesIn = 0; // in the current format
    std::int64_t framesOut = 0;
    std::vector<std::int16_t> block;
};

} // namespace sprout
