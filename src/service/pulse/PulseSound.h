// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

#include "service/SoundOutput.h"
#include "service/pulse/HeardPlace.h"
#include "service/pulse/PulseConnection.h"
#include "service/pulse/PulsePlaybackStream.h"
#include "service/pulse/PulseTimer.h"
#include "service/pulse/RestRounds.h"
#include "service/pulse/SoundQueue.h"

namespace sprout {

/// A sound on its own stream at the server.
///
/// The server holds two seconds of it, so this program may be late, and asks the device for 10 ms at a time. Stopping
/// takes the stream out of what the device is given next and keeps the queue, so the sound later continues without a
/// lost or repeated frame; starting from the beginning discards the queue.
///
/// The stream is closed when nothing was played for a while, and reopened by the next play: nothing runs at rest.
class PulseSound : public SoundObject {
public:
    using Time = PulseConnection::Time;

    /// restRound: how often to check whether the stream is still needed; it is closed after three checks without use.
    /// tail: how long the stream runs on, silently, after the end of a sound.
    PulseSound(PulseConnection& server, const SoundFormat& format, std::chrono::milliseconds restRound,
               std::chrono::milliseconds tail);
    ~PulseSound() override;

    /// Connects and opens the stream, if necessary. Waits until `deadline` at most. Returns false if this fails.
    [[nodiscard]] bool Wake(Time deadline);
    /// It has this format, and its stream is alive or at rest.
    [[nodiscard]] bool IsAliveIn(const SoundFormat& wanted);
    /// Length of the next sound to load.
    void SetSize(std::int32_t bufferBytes) { soundBytes = static_cast<std::size_t>(std::max(0, bufferBytes)); }

    /// When the server reported that the device takes frames, after the last start from the beginning.
    [[nodiscard]] std::optional<Time> FirstTaken();

    void Load(std::span<const std::byte> pcm) override;
    void Start(StartFrom from, Loop loop) override;
    void Stop() override;
    [[nodiscard]] SoundPlace Place() override;
    void SetLooping(Loop loop) override;

private:
    using Lock = PulseConnection::Lock;

    void OnLost();
    void OnStarted();
    void OnTimed();
    void OnMoreWanted();
    void OnAnswered(TimingQuestion question, const StreamTiming& timing);
    void OnTailHeard();

    [[nodiscard]] bool Wake(Lock& lock, Time deadline);
    void Close();
    /// Returns false if the server has been silent for so long that the stream was closed.
    [[nodiscard]] bool Ask(TimingQuestion question);
    [[nodiscard]] bool Begin(Loop loop);
    [[nodiscard]] bool GoOn(Loop loop);
    void ChangeLooping(Loop loop, std::int64_t firstPlace);
    [[nodiscard]] std::int64_t FirstPlaceNotGiven() const;
    void StopStream();
    void End();
    /// Whether the place, at which the sound continues, is still unknown after a stop.
    [[nodiscard]] bool IsStopping() const { return stream.IsAsked(TimingQuestion::AtStop); }
    /// Updates the place, and ends the sound once its end was heard. Returns whether it plays.
    bool Follow();

    PulseConnection& connection;
    const std::chrono::milliseconds tailTime;
    std::size_t soundBytes = 0;

    // The connection's mutex guards the following. The queue's sound is changed without it, while nothing plays.
    SoundQueue queue;
    HeardPlace heard;
    PulsePlaybackStream stream; // closed at rest
    RestRounds rounds;          // while the stream is open
    PulseTimer tail;            // while the stream runs on after an end
    bool playing = false;
    bool holdsQueue = false; // the server's queue continues at the place
    std::optional<Time> firstTaken;
};

} // namespace sprout
