// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <condition_variable>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <mutex>
#include <span>
#include <thread>
#include <vector>

#include "service/SoundCapture.h"
#include "service/posix/CaptureFiles.h"

namespace sprout {

/// Writes what is captured to its files in a thread of its own, so that a slow disk holds up nobody else.
class CaptureWriter {
public:
    /// A disk may stand still for half a minute before a frame is lost.
    static constexpr std::size_t kQueuedFrames = std::size_t{30} * 44100;

    /// queuedFrames: how many may wait for the disk. Throws std::system_error where no thread can be started, and
    /// leaves the files.
    explicit CaptureWriter(CaptureFiles& captureFiles, std::size_t queuedFrames = kQueuedFrames);
    CaptureWriter(const CaptureWriter&) = delete;
    CaptureWriter& operator=(const CaptureWriter&) = delete;
    ~CaptureWriter() { Finish(); }

    /// samples: left and right in turn. Returns at once. Silence stands in the place of frames for which there is no
    /// room; returns how many these are.
    std::int64_t Put(std::span<const std::int16_t> samples);
    void PutSilence(std::int64_t frames);
    /// Writes what waits and ends the thread. What is put behind it is not kept.
    void Finish();

    /// Frames that are written or wait for it; once the capture ended by itself, those that are in the files.
    [[nodiscard]] std::int64_t Frames() const;
    /// Why the capture ended by itself.
    [[nodiscard]] CaptureEnd End() const;

private:
    void Run();
    void SettleSilence();
    void Append(std::span<const std::int16_t> samples);
    [[nodiscard]] std::size_t Room() const { return (queue.size() - (filled - written)) / 2; }
    [[nodiscard]] std::span<const std::int16_t> NextToWrite() const;

    CaptureFiles& files;
    mutable std::mutex mutex;
    std::condition_variable changed;
    std::vector<std::int16_t> queue; // a ring; the thread reads what waits in it without the mutex
    std::size_t filled = 0;          // samples since the beginning
    std::size_t written = 0;
    std::int64_t silence = 0; // frames that are due behind what is filled
    CaptureEnd end = CaptureEnd::None;
    bool isFinishing = false;
    std::thread thread;
};

} // namespace sprout
