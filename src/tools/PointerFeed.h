// SPDX-License-Identifier: GPL-3.0-or-later
/// The way of pointer positions from mouse events to the capture thread: one writer, one reader, no lock in between.
#pragma once
#include "base/Geometry.h"
#include <array>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <mutex>

namespace zp
{

/// Lets one thread sleep until another has news. Giving notice is one atomic operation while nobody sleeps.
class Wakeup
{
public:
    /// Any thread.
    void notify();
    /// One thread at a time: sleeps until @p ready returns true (looked at again after each notify()) or the time is
    /// over. @return ready()
    template <class Ready>
    bool wait(std::chrono::microseconds atMost, Ready&& ready)
    {
        if (ready()) return true;
        std::unique_lock lock(mLock);
        // Read-modify-writes of one variable are in one order: either this comes first and the notifier sees a sleeper,
        // or the notifier's comes first and what it published is seen by ready().
        mSleeping.exchange(1, std::memory_order_acq_rel);
        const bool result = mNews.wait_for(lock, atMost, ready);
        mSleeping.store(0, std::memory_order_relaxed);
        return result;
    }

private:
    std::atomic<int> mSleeping{0};
    std::mutex mLock;
    std::condition_variable mNews;
};

/// Pointer positions of one stroke, in the order the platform delivered them. Nothing is allocated per position and
/// none is lost: when the reader is 65,536 positions behind, the writer waits for it.
class PointerFeed
{
public:
    /// Writer (the main thread): the pointer is here now. After close() nothing is taken any more.
    /// @param pressure  of a pen, 255 for the whole of it
    void push(Point position, std::uint8_t pressure = 255);
    /// Writer: no more positions will come. The reader still gets those pushed before.
    void close();
    /// The last position pushed, whoever reads the queue.
    Point latest() const;

    /// Reader (the capture thread): the next position. @return false when there is none yet, or none any more
    bool pop(Point& position, std::uint8_t& pressure);
    bool pop(Point& position)
    {
        std::uint8_t unused = 0;
        return pop(position, unused);
    }
    /// Reader: whether close() was called. When it answers true and pop() then finds nothing, nothing will ever come.
    bool isClosed() const { return mClosed.load(std::memory_order_acquire); }
    /// Reader: sleeps until there is a position, the feed is closed, or the time is over.
    void waitForNews(std::chrono::microseconds atMost);
    /// Reader: takes no more positions, so the writer never waits again.
    void abandon() { mAbandoned.store(true, std::memory_order_release); }

private:
    static constexpr std::uint32_t kSlots = 65'536;
    std::array<Point, kSlots> mSlots{};
    std::array<std::uint8_t, kSlots> mPressures{};
    alignas(64) std::atomic<std::uint32_t> mPushed{0}; ///< positions pushed in all; the writer's
    alignas(64) std::atomic<std::uint32_t> mRead{0};   ///< positions taken in all; the reader's
    alignas(64) std::atomic<std::uint64_t> mLatest{0}; ///< the cell: both coordinates in one word
    std::atomic<bool> mClosed{false}, mAbandoned{false};
    Wakeup mNews;
};

} // namespace zp
