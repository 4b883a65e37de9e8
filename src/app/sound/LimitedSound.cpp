// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/sound/LimitedSound.h"

#include <algorithm>
#include <memory>
#include <utility>

#include "base/Numbers.h"
#include "core/Settings.h"

namespace sprout {

namespace {

constexpr std::int32_t kLeastLoudness = 10; // what cannot be heard would look like a fault
constexpr std::int32_t kFullLoudness = 100;
constexpr int kSilence8Bit = 128;

/// A sound of the output below, filled with softer samples.
class LimitedSoundObject : public SoundObject {
public:
    LimitedSoundObject(SoundHandle played, std::int32_t bitsOfSample, std::int32_t loudness)
        : sound(std::move(played)), bits(bitsOfSample), percent(loudness)
    {
    }

    void Load(std::span<const std::byte> pcm) override { sound->Load(AtLoudness(pcm, bits, percent)); }
    void Start(StartFrom from, Loop loop) override { sound->Start(from, loop); }
    void Stop() override { sound->Stop(); }
    [[nodiscard]] SoundPlace Place() override { return sound->Place(); }
    void SetLooping(Loop loop) override { sound->SetLooping(loop); }

    /// Gives the output's own sound back, which this object then does without.
    [[nodiscard]] SoundHandle Release() { return std::move(sound); }

private:
    SoundHandle sound;
    std::int32_t bits;
    std::int32_t percent;
};

/// The output's own handle.
SoundHandle Unwrapped(SoundHandle handle)
{
    auto* const limited = dynamic_cast<LimitedSoundObject*>(handle.get());
    return limited ? limited->Release() : std::move(handle);
}

std::byte At8Bits(std::byte sample, std::int32_t percent)
{
    const int value = std::to_integer<int>(sample) - kSilence8Bit;
    return static_cast<std::byte>(value * percent / kFullLoudness + kSilence8Bit);
}

void At16Bits(std::span<std::byte> lowAndHigh, std::int32_t percent)
{
    constexpr unsigned byteBits = 8;
    const unsigned bytes = std::to_integer<unsigned>(lowAndHigh[0]) | std::to_integer<unsigned>(lowAndHigh[1])
                                                                          << byteBits;
    const int value = static_cast<std::int16_t>(bytes) * percent / kFullLoudness;
    lowAndHigh[0] = static_cast<std::byte>(value);
    lowAndHigh[1] = static_cast<std::byte>(static_cast<unsigned>(value) >> byteBits);
}

} // namespace

std::int32_t LoudnessLimit()
{
    const double percent = NumberPrefix(GetSetting(kGeneralSection, "LoudnessLimit", "100"));
    return RoundHalfEven(std::clamp<double>(percent, kLeastLoudness, kFullLoudness));
}

std::vector<std::byte> AtLoudness(std::span<const std::byte> pcm, std::int32_t bits, std::int32_t percent)
{
    constexpr std::int32_t shortSample = 8;
    std::vector<std::byte> softer(pcm.begin(), pcm.end());
    if (bits == shortSample) {
        std::transform(softer.begin(), softer.end(), softer.begin(),
                       [percent](std::byte sample) { return At8Bits(sample, percent); });
        return softer;
    }
    for (std::size_t i = 0; i + 1 < softer.size(); i += 2)
        At16Bits(std::span(softer).subspan(i, 2), percent);
    return softer;
}

SoundHandle LimitedSound::Open(SoundHandle old, std::int32_t windowHandle, const SoundFormat& format,
                               std::int32_t bufferBytes)
{
    SoundHandle sound = output.Open(Unwrapped(std::move(old)), windowHandle, format, bufferBytes);
    const std::int32_t percent = LoudnessLimit();
    if (!sound || percent == kFullLoudness)
        return sound;
    return std::make_unique<LimitedSoundObject>(std::move(sound), format.Bits, percent);
}

} // namespace sprout
