// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "service/ffmpeg/FfmpegLibrary.h"
#include "service/ffmpeg/WaveSink.h"

namespace sprout {

/// Brings decoded frames to 44,100 Hz, 16 bits and one or two channels. FFmpeg's libraries are there.
///
/// The first frame comes out as the first, and as many frames as went in times the ratio of the rates, rounded to the
/// nearest. A sound may change its format on the way; its first frame tells whether mono comes out.
class SoundConverter {
public:
    explicit SoundConverter(WaveSink& wave) : sink(wave) {}

    /// Throws `RunTimeError` for a format that cannot be converted. Once the sink is overfull, nothing more is done.
    void Put(const AVFrame& frame);
    /// What still waits in the filters.
    void Finish();

private:
    struct Freed {
        void operator()(SwrContext* context) const { Ffmpeg().ResampleFree(&context); }
    };
    using Resampler = std::unique_ptr<SwrContext, Freed>;

    /// What a resampler is made for.
    struct Format {
        int Samples = AV_SAMPLE_FMT_NONE;
        int Rate = 0;
        int Channels = 0;
        std::uint64_t Speakers = 0; ///< one bit each; 0: the usual ones for so many channels
        friend bool operator==(const Format&, const Format&) = default;
    };

    [[nodiscard]] static Format FormatOf(const AVFrame& frame);
    void TakeFormat(const Format& wanted);
    [[nodiscard]] Resampler MakeResampler(bool best) const;
    void Convert(const std::uint8_t** samples, int count, std::int64_t mostFrames);

    WaveSink& sink;
    Resampler resampler;
    Format format;
    std::int64_t framesIn = 0; // in the present format
    std::int64_t framesOut = 0;
    std::vector<std::int16_t> block;
};

} // namespace sprout
