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

/// A sound on a device of its own.
///
/// An open device takes its samples all the time, silence too. So it is closed when nothing was played for a while, and
/// opened again by the next play: at rest nothing runs.
class SdlSound : public SoundObject {
public:
    /// restRound: how often is looked whether the device is still needed; after three looks in vain it is closed.
    SdlSound(const SoundFormat& format, std::chrono::milliseconds restRound);
    ~SdlSound() override;

    /// Opens the default device, unless it is open. False where there is none.
    [[nodiscard]] bool Wake();
    /// It has this format, and its device is there or rests.
    [[nodiscard]] bool IsAliveIn(const SoundFormat& wanted);
    /// It has this format, and its device is open.
    [[nodiscard]] bool IsOpenIn(const SoundFormat& wanted);
    /// Length of the sound that is loaded next.
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
    /// True when the sound server or the device went away. SDL goes on asking for samples, and nobody hears them.
    [[nodiscard]] bool IsLost() const;

    const SoundFormat format;
    const std::chrono::milliseconds restRound;
    PcmFeed feed;
    std::size_t soundBytes = 0;

    std::thread watch; // while the device is open, and ended after it has closed it
    std::condition_variable watchEnds;
    std::mutex mutex;         // of what follows
    std::uint32_t device = 0; // of SDL; 0 at rest
    bool used = false;        // since the last look
    bool watchIsEnding = false;
};

} // namespace sprout
