// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/Parallel.h"

#include <gtest/gtest.h>

#include <pthread.h>

#include <atomic>
#include <cstddef>
#include <mutex>
#include <set>
#include <stdexcept>
#include <string>
#include <system_error>
#include <thread>
#include <vector>

#include "base/Errors.h"

namespace sprout {
namespace {

TEST(ParallelFor, DoesEachPieceOnce)
{
    for (const std::size_t threads : {0U, 1U, 2U, 7U, 100U}) {
        std::vector<std::atomic<int>> done(50);
        ParallelFor(
            done.size(), [&done](std::size_t i) { ++done[i]; }, {}, threads);
        for (const auto& times : done)
            EXPECT_EQ(times, 1);
    }
}

TEST(ParallelFor, DoesNothingForNoPieces)
{
    bool called = false;
    ParallelFor(
        0, [&called](std::size_t) { called = true; }, [&called](std::size_t, std::size_t) { called = true; });
    EXPECT_FALSE(called);
}

TEST(ParallelFor, LeavesTheRestWhereTheProgressThrows)
{
    constexpr std::size_t pieces = 10'000'000;
    for (const std::size_t threads : {1U, 2U}) {
        std::atomic<std::size_t> done = 0;
        std::atomic<bool> stopped = false;
        const auto caller = std::this_thread::get_id();
        const auto work = [&](std::size_t) {
            ++done;
            while (!stopped && std::this_thread::get_id() != caller)
                std::this_thread::yield();
        };
        const auto stop = [&stopped](std::size_t, std::size_t) {
            stopped = true;
            throw WorkStopped();
        };
        EXPECT_THROW(ParallelFor(pieces, work, stop, threads), WorkStopped);
        EXPECT_LT(done, pieces);
        EXPECT_GE(done, 1U);
    }
}

/// Prevents threads from starting: each would need more memory than there are addresses.
class NoMoreThreads {
public:
    NoMoreThreads()
    {
        pthread_getattr_default_np(&before);
        pthread_attr_t attributes = before;
        pthread_attr_setstacksize(&attributes, std::size_t{1} << 50);
        pthread_setattr_default_np(&attributes);
    }
    NoMoreThreads(const NoMoreThreads&) = delete;
    NoMoreThreads& operator=(const NoMoreThreads&) = delete;
    ~NoMoreThreads() { pthread_setattr_default_np(&before); }

private:
    pthread_attr_t before{};
};

TEST(ParallelFor, DoesAllOfItOnOneThreadWhereNoOtherCanStart)
{
    const NoMoreThreads none;
    EXPECT_THROW(std::jthread([] {}), std::system_error);
    std::set<std::thread::id> workers;
    std::vector<int> done(50);
    ParallelFor(
        done.size(),
        [&](std::size_t i) {
            workers.insert(std::this_thread::get_id());
            ++done[i];
        },
        {}, 7);
    EXPECT_EQ(done, std::vector<int>(50, 1));
    EXPECT_EQ(workers, std::set{std::this_thread::get_id()});
}

TEST(ParallelFor, ThrowsTheErrorOfTheLowestPieceAfterAllAreDone)
{
    std::atomic<int> done = 0;
    try {
        ParallelFor(
            20,
            [&done](std::size_t i) {
                ++done;
                if (i >= 5)
                    throw std::runtime_error(std::to_string(i));
            },
            {}, 4);
        FAIL();
    } catch (const std::runtime_error& error) {
        EXPECT_STREQ(error.what(), "5");
    }
    EXPECT_EQ(done, 20);
}

TEST(ParallelFor, TellsProgressOnTheCallingThreadAndTheEndLast)
{
    const auto caller = std::this_thread::get_id();
    std::size_t last = 0;
    ParallelFor(
        30, [](std::size_t) {},
        [&](std::size_t done, std::size_t total) {
            EXPECT_EQ(std::this_thread::get_id(), caller);
            EXPECT_EQ(total, 30U);
            EXPECT_GE(done, last);
            last = done;
        },
        3);
    EXPECT_EQ(last, 30U);
}

TEST(ParallelFor, TakesNoMoreThreadsThanItMay)
{
    std::mutex mutex;
    for (const std::size_t threads : {1U, 2U}) {
        std::set<std::thread::id> used;
        const auto work = [&](std::size_t) {
            std::this_thread::yield(); // the others' turn
            const std::lock_guard lock(mutex);
            used.insert(std::this_thread::get_id());
        };
        ParallelFor(20'000, work, {}, threads);
        EXPECT_LE(used.size(), threads);
    }
}

TEST(ParallelFor, CountsEachPieceInItsProgress)
{
    std::vector<std::size_t> told;
    ParallelFor(
        3, [](std::size_t) {}, [&told](std::size_t done, std::size_t) { told.push_back(done); }, 1);
    EXPECT_EQ(told, (std::vector<std::size_t>{1, 2, 3, 3}));
}

} // namespace
} // namespace sprout
