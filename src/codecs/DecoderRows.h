// SPDX-License-Identifier: GPL-3.0-or-later
/// Memory that the program and its decoder share, through which a picture's rows go: one side makes them there, the
/// other takes them from there, and neither waits for the other as long as there are slots.
#pragma once
#include <cstddef>
#include <cstdint>

namespace zp::codec
{

/// Slots are filled and taken in turn. More than one row of the widest picture fits into each.
inline constexpr std::size_t kRowSlots = 8, kSlotBytes = std::size_t{256} << 10;
/// Where the decoder finds the memory when it begins.
inline constexpr int kRowsDescriptor = 3;
/// What the program answers when it has taken a slot's rows: a message of this one byte.
inline constexpr char kSlotTaken = 't';

/// @return a descriptor of such memory whose size nobody can change any more, closed when a program is started; -1 when
/// there is none
int makeSharedRows();

/// One side's view. The other side may write there at any time: what is read is pixels and nothing else.
class SharedRows
{
public:
    SharedRows() = default;
    SharedRows(int descriptor, bool writable);
    SharedRows(SharedRows&& other) noexcept;
    SharedRows& operator=(SharedRows&& other) noexcept;
    ~SharedRows();

    bool isThere() const { return mStart != nullptr; }
    /// kSlotBytes of the slot whose turn it is.
    std::uint8_t* slot() const { return mStart + mTurn * kSlotBytes; }
    void next() { mTurn = (mTurn + 1) % kRowSlots; }

private:
    std::uint8_t* mStart = nullptr;
    std::size_t mTurn = 0;
};

} // namespace zp::codec
