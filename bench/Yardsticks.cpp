// SPDX-License-Identifier: GPL-3.0-or-later
#include "Yardsticks.h"

#include <rubberband/RubberBandStretcher.h>
#include <soundtouch/SoundTouch.h>
#include <soxr.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <stdexcept>

namespace sprout {

namespace {

constexpr std::size_t kRate = 44100;
constexpr std::size_t kBlock = 1024;
constexpr float kFullScale = 32768.0F;

std::vector<float> ToFloat(std::span<const std::int16_t> samples)
{
    std::vector<float> out(samples.size());
    std::transform(samples.begin(), samples.end(), out.begin(),
                   [](std::int16_t sample) { return static_cast<float>(sample) / kFullScale; });
    return out;
}

std::vector<std::int16_t> To16Bit(std::span<const float> samples)
{
    std::vector<std::int16_t> out(samples.size());
    std::transform(samples.begin(), samples.end(), out.begin(), [](float sample) {
        return static_cast<std::int16_t>(std::clamp(std::lround(sample * kFullScale), -32768L, 32767L));
    });
    return out;
}

void Drain(RubberBand::RubberBandStretcher& stretcher, std::vector<float>& out)
{
    for (int ready = stretcher.available(); ready > 0; ready = stretcher.available()) {
        const std::size_t begin = out.size();
        out.resize(begin + static_cast<std::size_t>(ready));
        float* channel = out.data() + begin;
        stretcher.retrieve(&channel, static_cast<std::size_t>(ready));
    }
}

std::vector<float> StretchOnly(const std::vector<float>& samples, double ratio)
{
    using RubberBand::RubberBandStretcher;
    RubberBandStretcher stretcher(kRate, 1,
                                  RubberBandStretcher::OptionProcessOffline | RubberBandStretcher::OptionEngineFiner |
                                      RubberBandStretcher::OptionThreadingNever,
                                  ratio, 1.0);
    stretcher.setDebugLevel(0);
    stretcher.setExpectedInputDuration(samples.size());
    const float* all = samples.data();
    stretcher.study(&all, samples.size(), true);
    std::vector<float> out;
    for (std::size_t begin = 0; begin < samples.size(); begin += kBlock) {
        const std::size_t count = std::min(kBlock, samples.size() - begin);
        const float* block = samples.data() + begin;
        stretcher.process(&block, count, begin + count == samples.size());
        Drain(stretcher, out);
    }
    return out;
}

std::vector<float> Resample(const std::vector<float>& samples, double pitch)
{
    std::vector<float> out(static_cast<std::size_t>(std::ceil(static_cast<double>(samples.size()) / pitch)) + 1);
    std::size_t done = 0;
    const soxr_quality_spec_t quality = soxr_quality_spec(SOXR_HQ, 0);
    const soxr_error_t error = soxr_oneshot(pitch, 1, 1, samples.data(), samples.size(), nullptr, out.data(),
                                            out.size(), &done, nullptr, &quality, nullptr);
    if (error)
        throw std::runtime_error(error);
    out.resize(done);
    return out;
}

} // namespace

std::vector<std::int16_t> RubberBandStretch(std::span<const std::int16_t> samples, double pitch, double duration)
{
    return To16Bit(Resample(StretchOnly(ToFloat(samples), pitch * duration), pitch));
}

std::vector<std::int16_t> SoundTouchStretch(std::span<const std::int16_t> samples, double pitch, double duration)
{
    soundtouch::SoundTouch engine;
    engine.setSampleRate(kRate);
    engine.setChannels(1);
    engine.setPitch(pitch);
    engine.setTempo(1 / duration);
    const std::vector<float> in = ToFloat(samples);
    engine.putSamples(in.data(), static_cast<unsigned>(in.size()));
    engine.flush();
    std::vector<float> out;
    for (unsigned ready = engine.numSamples(); ready > 0; ready = engine.numSamples()) {
        const std::size_t begin = out.size();
        out.resize(begin + ready);
        engine.receiveSamples(out.data() + begin, ready);
    }
    return To16Bit(out);
}

} // namespace sprout
