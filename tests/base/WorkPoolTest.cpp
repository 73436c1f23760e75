// SPDX-License-Identifier: GPL-3.0-or-later
/// Bodies in threads of their own.
#include "base/WorkPool.h"
#include <atomic>
#include <condition_variable>
#include <gtest/gtest.h>
#include <mutex>
#include <set>
#include <stdexcept>
#include <thread>

namespace zp
{
namespace
{

TEST(WorkPool, AsManyThreadsRunAtOnceAsAreAskedForWhateverTheMachineHas)
{
    const int count = workerCount() + 3;
    std::mutex mutex;
    std::condition_variable allHere;
    std::set<std::thread::id> threads;
    std::set<int> parts;
    parallelThreads(count, [&](int i) { // each waits for all: fewer at once would wait for ever
        std::unique_lock lock(mutex);
        threads.insert(std::this_thread::get_id());
        parts.insert(i);
        allHere.notify_all();
        allHere.wait(lock, [&] { return int(threads.size()) == count; });
    });
    EXPECT_EQ(int(parts.size()), count);
    EXPECT_TRUE(threads.contains(std::this_thread::get_id()));
}

TEST(WorkPool, PassesInsideAThreadRunInThatThread)
{
    parallelThreads(2, [](int) {
        const auto self = std::this_thread::get_id();
        parallelFor(8, [&](int) { EXPECT_EQ(std::this_thread::get_id(), self); });
    });
    // and those behind it spread again
    std::atomic<int> done{0};
    parallelFor(8, [&](int) { ++done; });
    EXPECT_EQ(done, 8);
}

TEST(WorkPool, AThreadsExceptionComesOutWhenAllAreDone)
{
    std::atomic<int> done{0};
    EXPECT_THROW(parallelThreads(4,
                                 [&](int i) {
                                     ++done;
                                     if (i == 2) throw std::runtime_error("two");
                                 }),
                 std::runtime_error);
    EXPECT_EQ(done, 4);
    parallelThreads(0, [&](int) { ++done; });
    EXPECT_EQ(done, 4);
}

} // namespace
} // namespace zp
