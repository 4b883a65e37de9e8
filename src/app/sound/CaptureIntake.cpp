// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/sound/CaptureIntake.h"

#include <cstring>

namespace sprout {

namespace {

constexpr std::chrono::milliseconds kMeterLength{200};

/// Partial pieces count too: a hole of one frame is a hole.
std::int64_t PiecesOf(std::int64_t frames)
{
    constexpr auto pieceFrames = static_cast<std::int64_t>(kMeterPieceFrames);
    return (frames + pieceFrames - 1) / pieceFrames;
}

} // namespace

void CaptureIntake::Reset()
{
    const std::lock_guard lock(mutex);
    writer = nullptr;
    meter = LevelMeter();
    takenFrames = 0;
    lostFrames = 0;
    lastSound = lastTaken = Clock::now();
}

void CaptureIntake::KeepIn(CaptureWriter* keeper)
{
    const std::lock_guard lock(mutex);
    writer = keeper;
}

void CaptureIntake::Take(std::span<const std::byte> frames)
{
    const std::lock_guard lock(mutex);
    samples.resize(frames.size() / sizeof(std::int16_t));
    std::memcpy(samples.data(), frames.data(), samples.size() * sizeof(std::int16_t));
    lastTaken = Clock::now();
    if (meter.Add(samples))
        lastSound = lastTaken;
    takenFrames += static_cast<std::int64_t>(samples.size() / 2);
    if (writer)
        lostFrames += writer->Put(samples);
}

void CaptureIntake::TakeHole(std::int64_t frames)
{
    const std::lock_guard lock(mutex);
    lostFrames += frames;
    if (writer)
        writer->PutSilence(frames);
}

CaptureIntake::Facts CaptureIntake::Counted() const
{
    const std::lock_guard lock(mutex);
    return {takenFrames / static_cast<std::int64_t>(kMeterPieceFrames), PiecesOf(lostFrames), lastSound, lastTaken};
}

CapturePeaks CaptureIntake::Peaks() const
{
    const std::lock_guard lock(mutex);
    CapturePeaks peaks{0, 0, meter.Left().IsOverloaded(), meter.Right().IsOverloaded()};
    if (Clock::now() - lastTaken <= kMeterLength) {
        peaks.Left = meter.Left().Peak();
        peaks.Right = meter.Right().Peak();
    }
    return peaks;
}

} // namespace sprout
