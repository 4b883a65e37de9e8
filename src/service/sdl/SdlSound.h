// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <cstdint>
#include <mutex>
#include <optional>
#include <span>
#include <thread>

#include "service/SoundOutput.h"
#include "service/sdl/PcmFeed.h"

namespace sprout {

/// A sound on its own device.
///
/// An open device takes samples all the time, even silence. So it is closed when nothing was played for a while, and
/// reopened by the next play: nothing runs at rest.
class SdlSound : public SoundObject {
public:
    /// restRound: how often to check whether the device is still needed; it is closed after three checks without use.
    SdlSound(const SoundFormat& format, std::chrono::milliseconds restRound);
    ~SdlSound() override;

    /// Opens the default device, unless it is open. Returns false if there is none.
    [[nodiscard]] bool Wake();
    /// It has this format, and its device is alive or at rest.
    [[nodiscard]] bool IsAliveIn(const SoundFormat& wanted);
    /// It has this format, and its device is open.
    [[nodiscard]] bool IsOpenIn(const SoundFormat& wanted);
    /// Length of the next sound to load.
    void SetSize(std::int32_t bufferBytes) { soundBytes = static_cast<std::size_t>(std::max(0, bufferBytes)); }

    /// See `PcmFeed`.
    [[nodiscard]] std::optional<PcmFeed::Time> FirstTaken() const { return feed.FirstTaken(); }

    void Load(std::span<const std::byte> pcm) override { feed.Load(pcm, soundBytes); }
    void Start(StartFrom from, Loop loop) override;
    void Stop() override { feed.Stop(); }
    [[nodiscard]] SoundPlace Place() override;
    void SetLooping(Loop loop) override { feed.SetLooping(loop); }

private:
    [[nodiscard]] bool Open();
    void Close();
    void WatchForRest();
    void EndWatch();
    void SetStarting(bool starting);
    /// True if the sound server or the device is gone. SDL keeps asking for samples then, but nobody hears them.
    [[nodiscard]] bool IsLost() const;

    const SoundFormat format;
    const std::chrono::milliseconds restRound;
    PcmFeed feed;
    std::size_t soundBytes = 0;

    std::thread watch; // runs while the device is open, and ends after closing it
    std::condition_variable watchEnds;
    std::mutex mutex;         // guards the following
    std::uint32_t device = 0; // SDL's number; 0 at rest
    bool used = false;        // since the last check
    bool isStarting = false;  // the device stays open, though the sound does not play yet
    bool watchIsEnding = false;
};

} // namespace sprout
