// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <cstdint>
#include <mutex>
#include <vector>

#include "core/LevelMeter.h"
#include "service/CaptureSource.h"
#include "service/posix/CaptureWriter.h"

namespace sprout {

/// Takes audio from a source: counts and meters it, and passes it on while it is being kept.
class CaptureIntake : public CaptureSink {
public:
    using Clock = std::chrono::steady_clock;

    struct Facts {
        std::int64_t Pieces = 0;     ///< of 20 ms
        std::int64_t LostPieces = 0; ///< of 20 ms
        Clock::time_point LastSound; ///< not exactly zero
        Clock::time_point LastTaken;
    };

    /// Forgets everything.
    void Reset();
    /// keeper: receives everything from now on; null: nothing is kept.
    void KeepIn(CaptureWriter* keeper);

    void Take(std::span<const std::byte> frames) override;
    void TakeHole(std::int64_t frames) override;

    [[nodiscard]] Facts Counted() const;
    /// The levels are 0 if nothing has arrived for 0.2 s.
    [[nodiscard]] CapturePeaks Peaks() const;

private:
    mutable std::mutex mutex;
    CaptureWriter* writer = nullptr;
    LevelMeter meter;
    std::vector<std::int16_t> samples; // of the last call
    std::int64_t takenFrames = 0;
    std::int64_t lostFrames = 0;
    Clock::time_point lastSound = Clock::now();
    Clock::time_point lastTaken = lastSound;
};

} // namespace sprout
