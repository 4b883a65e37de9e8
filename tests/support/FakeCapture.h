// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "service/SoundCapture.h"
#include "support/TestFolder.h"

namespace sprout {

/// A microphone that logs its calls; the test sets its state, level and sources. When it stops, its files get the
/// samples that are set.
class FakeCapture : public SoundCapture {
public:
    [[nodiscard]] CaptureOpening Open() override
    {
        calls.emplace_back("Open");
        return opening;
    }
    [[nodiscard]] bool Start(const std::filesystem::path& left, const std::filesystem::path& right) override
    {
        calls.emplace_back("Start");
        if (!starts)
            return false;
        files = {left, right};
        isKeeping = true;
        WriteBytes(left, "");
        WriteBytes(right, "");
        return true;
    }
    void Stop() override
    {
        calls.emplace_back("Stop");
        if (!std::exchange(isKeeping, false))
            return;
        WriteBytes(files.first, RawBytes(leftSamples));
        WriteBytes(files.second, RawBytes(rightSamples));
        status.State = CaptureState::Stopped;
    }
    void Release() override
    {
        calls.emplace_back("Release");
        if (!std::exchange(isKeeping, false))
            return;
        std::filesystem::remove(files.first);
        std::filesystem::remove(files.second);
    }
    [[nodiscard]] CaptureStatus Status() override { return status; }
    [[nodiscard]] CapturePeaks Peaks() override { return peaks; }
    [[nodiscard]] std::optional<SoundSources> ListSources() override
    {
        calls.emplace_back("ListSources");
        return sources;
    }
    [[nodiscard]] std::uint64_t SourceChanges() override { return sourceChanges; }
    void SelectSource(std::int32_t index) override
    {
        calls.push_back("SelectSource " + std::to_string(index));
        if (sources)
            sources->Selected = index;
    }
    void SetVolume(std::int32_t index, std::int32_t volume) override
    {
        calls.push_back("SetVolume " + std::to_string(index) + " " + std::to_string(volume));
        if (sources)
            sources->Sources.at(static_cast<std::size_t>(index)).Volume = volume;
    }
    void DeleteLeftFiles(const std::filesystem::path& folder) override { cleaned.push_back(folder); }

    CaptureOpening opening = CaptureOpening::Ready;
    bool starts = true;
    CaptureStatus status;
    CapturePeaks peaks;
    std::optional<SoundSources> sources = SoundSources{{{"Microphone", 65535}, {"Headset", 32768}}, 0};
    std::uint64_t sourceChanges = 0;
    std::vector<std::int16_t> leftSamples;
    std::vector<std::int16_t> rightSamples;

    std::vector<std::string> calls; ///< all but the queries of status, peaks and changes
    std::vector<std::filesystem::path> cleaned;
    std::pair<std::filesystem::path, std::filesystem::path> files; ///< of the last start: left and right
    bool isKeeping = false;

private:
    [[nodiscard]] static std::string RawBytes(const std::vector<std::int16_t>& samples)
    {
        return {reinterpret_cast<const char*>(samples.data()), samples.size() * sizeof(std::int16_t)};
    }
};

} // namespace sprout
