// SPDX-License-Identifier: GPL-3.0-or-later
/// The work stack that every fill and wand shares: pixel positions packed into 32-bit entries.
#pragma once
#include <cstdint>
#include <span>

namespace zp
{

/// A bounded stack over slots that someone else owns. Never grows. One fill at a time uses it; no thread-safety.
/// A position (a, b) is kept as a * divisor + b; fills use a = column, b = row, divisor = image height.
class FillStack
{
public:
    /// One slot fewer than given is ever used: storage of n entries holds n - 1.
    explicit FillStack(std::span<std::uint32_t> storage)
        : mSlots(storage.data()), mLastPushable(int(storage.size()) - 2)
    {
    }

    /// @return false, and nothing stored, when the stack is full
    bool push(int a, int b, int divisor)
    {
        if (mCount > mLastPushable) return false;
        mSlots[mCount++] = std::uint32_t(a) * std::uint32_t(divisor) + std::uint32_t(b);
        return true;
    }
    /// @return false when the stack is empty
    bool pop(int& a, int& b, int divisor)
    {
        if (mCount < 1) return false;
        const auto entry = std::int32_t(mSlots[--mCount]);
        a = entry / divisor, b = entry % divisor;
        return true;
    }
    void clear()
    {
        if (mCount > 0) mCount = 0;
    }
    int count() const { return mCount; }
    /// Entries that fit.
    int capacity() const { return mLastPushable + 1; }

private:
    std::uint32_t* mSlots;
    std::int32_t mCount = 0;
    std::int32_t mLastPushable;
};

inline constexpr int kFillStackSlots = 16'777'216;
/// The process's one stack: 64 MiB of address space, of which only what fills have reached costs memory. Main thread.
FillStack& sharedFillStack();

} // namespace zp
