// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/Parallel.h"

#include <algorithm>
#include <atomic>
#include <exception>
#include <mutex>
#include <thread>
#include <vector>

namespace sprout {

namespace {

/// One run of pieces, shared by the threads that work on it.
class Pieces {
public:
    Pieces(std::size_t pieceCount, const std::function<void(std::size_t)>& pieceWork)
        : count(pieceCount), work(pieceWork)
    {
    }

    /// Does one piece; returns false if none is left.
    bool DoNext()
    {
        const std::size_t index = next.fetch_add(1);
        if (index >= count)
            return false;
        try {
            work(index);
        } catch (...) {
            Keep(std::current_exception(), index);
        }
        done.fetch_add(1);
        return true;
    }

    /// Drops the pieces that nobody has begun.
    void GiveUp() { next.store(count); }

    [[nodiscard]] std::size_t Done() const { return done.load(); }

    void ThrowKept() const
    {
        if (kept)
            std::rethrow_exception(kept);
    }

private:
    void Keep(std::exception_ptr error, std::size_t index)
    {
        const std::lock_guard lock(mutex);
        if (!kept || index < keptIndex) {
            kept = std::move(error);
            keptIndex = index;
        }
    }

    std::size_t count;
    const std::function<void(std::size_t)>& work;
    std::atomic<std::size_t> next = 0;
    std::atomic<std::size_t> done = 0;
    std::mutex mutex;
    std::exception_ptr kept;
    std::size_t keptIndex = 0;
};

} // namespace

void ParallelFor(std::size_t count, const std::function<void(std::size_t)>& work,
                 const std::function<void(std::size_t, std::size_t)>& progress, std::size_t threads)
{
    const std::size_t cores = std::max(1u, std::thread::hardware_concurrency());
    const std::size_t workers = std::min(count, threads == 0 ? cores : threads);
    Pieces pieces(count, work);
    {
        std::vector<std::jthread> helpers;
        for (std::size_t i = 1; i < workers; ++i) {
            try {
                helpers.emplace_back([&pieces] {
                    while (pieces.DoNext()) {
                    }
                });
            } catch (const std::exception&) {
                break; // if no thread can be started, fewer do the same work
            }
        }
        try {
            while (pieces.DoNext())
                if (progress)
                    progress(pieces.Done(), count);
        } catch (...) {
            pieces.GiveUp();
            throw;
        }
    }
    if (progress && count > 0)
        progress(count, count);
    pieces.ThrowKept();
}

} // namespace sprout
