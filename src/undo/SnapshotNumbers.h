// SPDX-License-Identifier: GPL-3.0-or-later
/// Where undo stands: the two numbers of the snapshot history and how requests move them.
#pragma once
#include <cstdint>
#include <optional>

namespace zp
{

/// Snapshots are numbered from 0; -1 is none. The canvas keeps the two numbers in fields of its own, so this works on
/// references to them. Main thread.
class SnapshotNumbers
{
public:
    /// How many numbers above a new snapshot are looked at when what could be redone is thrown away.
    static constexpr std::int32_t kRedoTail = 99;

    SnapshotNumbers(std::int32_t& newest, std::int32_t& position) : mNewest(newest), mPosition(position) {}

    void reset() { mNewest = mPosition = -1; }
    /// A new snapshot: behind the position, and nothing is left to redo. @return its number
    std::int32_t advance() { return mNewest = ++mPosition; }
    /// One step back. @return the number to restore; nothing at the floor, where the position becomes 0 even if there
    /// is no snapshot 0 yet: a beep is due
    std::optional<std::int32_t> undo()
    {
        if (mPosition < 1) {
            mPosition = 0;
            return std::nullopt;
        }
        return --mPosition;
    }
    /// One step forward. @return the number to restore; nothing at the newest, where the position stays: a beep is due
    std::optional<std::int32_t> redo()
    {
        if (mPosition >= mNewest) {
            mPosition = mNewest;
            return std::nullopt;
        }
        return ++mPosition;
    }

private:
    std::int32_t& mNewest;
    std::int32_t& mPosition;
};

} // namespace zp
