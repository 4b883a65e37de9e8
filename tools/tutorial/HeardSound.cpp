// SPDX-License-Identifier: GPL-3.0-or-later
#include "tutorial/HeardSound.h"

#include <algorithm>
#include <array>
#include <memory>
#include <span>

namespace sprout {

namespace {

constexpr double kSoftEndSeconds = 0.5;
constexpr std::int32_t kSlideRate = 22050;
/// A low-pass filter for every second frame; its middle element is the frame itself.
constexpr std::array<std::int32_t, 7> kHalfBand{-1, 0, 9, 16, 9, 0, -1};
constexpr std::int32_t kHalfBandSum = 32;

std::int16_t SampleAt(std::span<const std::byte> pcm, std::size_t place)
{
    const unsigned low = std::to_integer<unsigned>(pcm[place]);
    const unsigned high = std::to_integer<unsigned>(pcm[place + 1]);
    return static_cast<std::int16_t>(low | high << 8U);
}

/// Left and right together, with silence on both sides.
std::int32_t MonoAt(const WaveData& wave, std::int32_t frame)
{
    if (frame < 1 || frame > wave.Length)
        return 0;
    return wave.Channels == 1 ? wave.WavL[frame] : (wave.WavL[frame] + wave.WavR[frame]) / 2;
}

std::int32_t Filtered(const WaveData& wave, std::int32_t frame)
{
    std::int32_t sum = 0;
    for (std::int32_t i = 0; i < static_cast<std::int32_t>(kHalfBand.size()); ++i)
        sum += kHalfBand[static_cast<std::size_t>(i)] * MonoAt(wave, frame + i - 3);
    return std::clamp(sum / kHalfBandSum, -32768, 32767);
}

} // namespace

class HeardSound::Object : public SoundObject {
public:
    explicit Object(HeardSound& output) : heard(output) {}
    ~Object() override { heard.place.Playing = false; }

    void Load(std::span<const std::byte> pcm) override
    {
        loaded.assign(pcm.begin(), pcm.end());
        Stop();
    }
    void Start(StartFrom from, Loop /*loop*/) override
    {
        heard.pcm = loaded;
        heard.place = {from == StartFrom::Beginning ? 0 : heard.place.Cursor, true};
    }
    void Stop() override { heard.place.Playing = false; }
    [[nodiscard]] SoundPlace Place() override { return heard.place; }
    void SetLooping(Loop /*loop*/) override {}

private:
    HeardSound& heard;
    std::vector<std::byte> loaded;
};

SoundHandle HeardSound::Open(SoundHandle /*old*/, std::int32_t /*windowHandle*/, const SoundFormat& wanted,
                             std::int32_t /*bufferBytes*/)
{
    format = wanted;
    return std::make_unique<Object>(*this);
}

WaveData HeardSound::Frames(std::size_t first, std::size_t count) const
{
    WaveData wave;
    wave.Rate = format.Rate;
    wave.Channels = format.Channels;
    wave.Length = static_cast<std::int32_t>(count);
    wave.WavL = Channel(wave.Length);
    wave.WavR = Channel(format.Channels == 2 ? wave.Length : 0);
    const std::span<std::int16_t> left = wave.WavL.Change();
    const std::span<std::int16_t> right = wave.WavR.Change();
    const auto frameBytes = static_cast<std::size_t>(format.FrameBytes());
    for (std::size_t i = 0; i < count; ++i) {
        left[i + 1] = SampleAt(pcm, (first + i) * frameBytes);
        if (format.Channels == 2)
            right[i + 1] = SampleAt(pcm, (first + i) * frameBytes + 2);
    }
    return wave;
}

WaveData HeardSound::Hear(double seconds)
{
    const std::size_t frames = pcm.size() / static_cast<std::size_t>(format.FrameBytes());
    const std::size_t first = std::min(static_cast<std::size_t>(place.Cursor), frames);
    const std::size_t count = std::min(static_cast<std::size_t>(seconds * format.Rate), frames - first);
    place.Cursor = static_cast<std::int32_t>(first + count);
    return format.Bits == 16 ? Frames(first, count) : WaveData();
}

WaveData SoundOfSlide(const WaveData& heard)
{
    const std::int32_t step = std::max(heard.Rate / kSlideRate, 1);
    WaveData slide;
    slide.Rate = heard.Rate / step;
    slide.Channels = 1;
    slide.Length = heard.Length / step;
    slide.WavL = Channel(slide.Length);
    const std::span<std::int16_t> samples = slide.WavL.Change();
    const auto softEnd = static_cast<std::int32_t>(kSoftEndSeconds * slide.Rate);
    for (std::int32_t i = 1; i <= slide.Length; ++i) {
        const std::int32_t frame = (i - 1) * step + 1;
        const std::int32_t sample = step == 1 ? MonoAt(heard, frame) : Filtered(heard, frame);
        const std::int32_t share = std::min(slide.Length - i, softEnd);
        samples[static_cast<std::size_t>(i)] = static_cast<std::int16_t>(std::int64_t{sample} * share / softEnd);
    }
    return slide;
}

} // namespace sprout
