// SPDX-License-Identifier: GPL-3.0-or-later
/// The queue and the cell.
#include "tools/PointerFeed.h"
#include <bit>
#include <thread>

namespace zp
{

void Wakeup::notify()
{
    if (mSleeping.fetch_add(0, std::memory_order_acq_rel) == 0) return;
    const std::lock_guard lock(mLock);
    mNews.notify_one();
}

void PointerFeed::push(Point position, std::uint8_t pressure)
{
    if (mClosed.load(std::memory_order_relaxed)) return;
    struct Cell {
        float x, y;
    };
    mLatest.store(std::bit_cast<std::uint64_t>(Cell{position.x, position.y}), std::memory_order_release);
    const std::uint32_t written = mPushed.load(std::memory_order_relaxed);
    while (written - mRead.load(std::memory_order_acquire) == kSlots) {
        if (mAbandoned.load(std::memory_order_acquire)) return;
        std::this_thread::yield();
    }
    mSlots[written % kSlots] = position;
    mPressures[written % kSlots] = pressure;
    mPushed.store(written + 1, std::memory_order_release);
    mNews.notify();
}

void PointerFeed::close()
{
    mClosed.store(true, std::memory_order_release);
    mNews.notify();
}

Point PointerFeed::latest() const
{
    struct Cell {
        float x, y;
    };
    const auto cell = std::bit_cast<Cell>(mLatest.load(std::memory_order_acquire));
    return {cell.x, cell.y};
}

bool PointerFeed::pop(Point& position, std::uint8_t& pressure)
{
    const std::uint32_t read = mRead.load(std::memory_order_relaxed);
    if (read == mPushed.load(std::memory_order_acquire)) return false;
    position = mSlots[read % kSlots];
    pressure = mPressures[read % kSlots];
    mRead.store(read + 1, std::memory_order_release);
    return true;
}

void PointerFeed::waitForNews(std::chrono::microseconds atMost)
{
    mNews.wait(atMost, [this] {
        return mClosed.load(std::memory_order_acquire) ||
               mRead.load(std::memory_order_relaxed) != mPushed.load(std::memory_order_acquire);
    });
}

} // namespace zp
