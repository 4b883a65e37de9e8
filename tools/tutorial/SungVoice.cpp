// SPDX-License-Identifier: GPL-3.0-or-later
#include "tutorial/SungVoice.h"

#include <cmath>
#include <fstream>
#include <system_error>

namespace sprout {

namespace {

constexpr double kBlockSeconds = 0.2;
constexpr std::int32_t kPiecesPerSecond = 50;
constexpr std::int32_t kRate = 44100;
constexpr std::int32_t kLoudest = 21000;

/// Raw samples, low byte first.
void WriteSamples(const std::filesystem::path& path, const Channel& channel, std::int32_t length, std::int32_t count)
{
    std::ofstream file(path, std::ios::binary);
    for (std::int32_t i = 0; i < count; ++i) {
        const auto sample = static_cast<unsigned>(length > 0 ? channel[i % length + 1] : 0);
        file.put(static_cast<char>(sample & 0xFFU));
        file.put(static_cast<char>(sample >> 8U & 0xFFU));
    }
}

} // namespace

bool SungVoice::Start(const std::filesystem::path& left, const std::filesystem::path& right)
{
    files = {left, right};
    sungSeconds = 0;
    WriteSamples(left, {}, 0, 0);
    WriteSamples(right, {}, 0, 0);
    return true;
}

void SungVoice::Stop()
{
    if (files.first.empty())
        return;
    const auto count = static_cast<std::int32_t>(sungSeconds * kRate);
    WriteSamples(files.first, voice.WavL, voice.Length, count);
    WriteSamples(files.second, voice.Channels == 2 ? voice.WavR : voice.WavL, voice.Length, count);
    files = {};
}

void SungVoice::Release()
{
    std::error_code error;
    if (!files.first.empty()) {
        std::filesystem::remove(files.first, error);
        std::filesystem::remove(files.second, error);
    }
    files = {};
}

CaptureStatus SungVoice::Status()
{
    CaptureStatus status;
    if (files.first.empty())
        return status;
    status.State = CaptureState::Recording;
    status.Pieces = std::llround(sungSeconds * kPiecesPerSecond);
    status.Blocks = std::llround(sungSeconds / kBlockSeconds);
    return status;
}

CapturePeaks SungVoice::Peaks()
{
    if (sungSeconds == 0)
        return {};
    return {kLoudest, kLoudest * 9 / 10, false, false};
}

std::optional<SoundSources> SungVoice::ListSources()
{
    return SoundSources{{{"Microphone", kFullVolume * 3 / 4}}, 0};
}

} // namespace sprout
