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

/// Writes what is captured to its files in its own thread, so a slow disk holds up nothing else.
class CaptureWriter {
public:
    /// A disk may stall for half a minute before a frame is lost.
    static constexpr std::size_t kQueuedFrames = std::size_t{30} * 44100;

    /// queuedFrames: how many may wait for the disk. Throws std::system_error if no thread can be started; the files
    /// stay.
    explicit CaptureWriter(CaptureFiles& captureFiles, std::size_t queuedFrames = kQueuedFrames);
    CaptureWriter(const CaptureWriter&) = delete;
    CaptureWriter& operator=(const CaptureWriter&) = delete;
    ~CaptureWriter() { Finish(); }

    /// samples: left and right interleaved. Returns at once. Frames that do not fit are replaced by silence; returns
    /// how many these are.
    std::int64_t Put(std::span<const std::int16_t> samples);
    void PutSilence(std::int64_t frames);
    /// Writes what is waiting and ends the thread. Anything put after this is not kept.
    void Finish();

    /// Frames that are written or waiting; once the capture has ended by itself, those that are in the files.
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
    std::size_t filled = 0;          // samples since the start
    std::size_t written = 0;
    std::int64_t silence = 0; // frames due after what is filled
    CaptureEnd end = CaptureEnd::None;
    bool isFinishing = false;
    std::thread thread;
};

} // namespace sprout
