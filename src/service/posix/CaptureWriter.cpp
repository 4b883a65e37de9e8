// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/posix/CaptureWriter.h"

#include <csignal>

#include <algorithm>
#include <array>

namespace sprout {

namespace {

constexpr std::size_t kSamplesAtATime = 16384;

/// The signal for a file that may not grow would end the program; with it blocked the write just fails. The other
/// signals go to the threads that wait for them.
void BlockSignals()
{
    sigset_t all;
    sigfillset(&all);
    pthread_sigmask(SIG_BLOCK, &all, nullptr);
}

} // namespace

CaptureWriter::CaptureWriter(CaptureFiles& captureFiles, std::size_t queuedFrames)
    : files(captureFiles), queue(2 * queuedFrames), thread([this] { Run(); })
{
}

std::int64_t CaptureWriter::Put(std::span<const std::int16_t> samples)
{
    const std::lock_guard lock(mutex);
    if (end != CaptureEnd::None)
        return 0;
    const auto frames = static_cast<std::int64_t>(samples.size() / 2);
    SettleSilence();
    std::int64_t lost = 0;
    if (silence == 0 && samples.size() / 2 <= Room())
        Append(samples);
    else
        silence += lost = frames;
    changed.notify_one();
    return lost;
}

void CaptureWriter::PutSilence(std::int64_t frames)
{
    const std::lock_guard lock(mutex);
    if (end != CaptureEnd::None)
        return;
    silence += frames;
    SettleSilence();
    changed.notify_one();
}

void CaptureWriter::SettleSilence()
{
    static constexpr std::array<std::int16_t, 2048> zeros{};
    while (silence > 0 && Room() > 0) {
        const std::size_t frames = std::min({static_cast<std::size_t>(silence), Room(), zeros.size() / 2});
        Append(std::span(zeros).first(2 * frames));
        silence -= static_cast<std::int64_t>(frames);
    }
}

void CaptureWriter::Append(std::span<const std::int16_t> samples)
{
    while (!samples.empty()) {
        const std::size_t place = filled % queue.size();
        const std::size_t count = std::min(samples.size(), queue.size() - place);
        std::copy_n(samples.begin(), count, queue.begin() + static_cast<std::ptrdiff_t>(place));
        filled += count;
        samples = samples.subspan(count);
    }
}

std::span<const std::int16_t> CaptureWriter::NextToWrite() const
{
    const std::size_t place = written % queue.size();
    return std::span(queue).subspan(place, std::min({filled - written, queue.size() - place, kSamplesAtATime}));
}

void CaptureWriter::Run()
{
    BlockSignals();
    std::unique_lock lock(mutex);
    while (end == CaptureEnd::None) {
        changed.wait(lock, [this] { return filled > written || isFinishing; });
        const std::span<const std::int16_t> samples = NextToWrite();
        if (samples.empty())
            return;
        lock.unlock();
        const CaptureEnd reason = files.Write(samples);
        lock.lock();
        written += samples.size();
        end = reason;
    }
}

void CaptureWriter::Finish()
{
    {
        const std::lock_guard lock(mutex);
        isFinishing = true;
    }
    changed.notify_one();
    if (thread.joinable())
        thread.join();
}

std::int64_t CaptureWriter::Frames() const
{
    const std::lock_guard lock(mutex);
    return end == CaptureEnd::None ? static_cast<std::int64_t>(filled / 2) : files.Frames();
}

CaptureEnd CaptureWriter::End() const
{
    const std::lock_guard lock(mutex);
    return end;
}

} // namespace sprout
