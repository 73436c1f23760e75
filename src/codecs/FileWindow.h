// SPDX-License-Identifier: GPL-3.0-or-later
/// The parts of a large file that its picture needs, at their places, and no others in memory.
#pragma once
#include "codecs/Codec.h"

namespace zp::codec
{

/// Stands for the whole file; what was not taken reads as zeros and costs nothing. Read, not mapped from the file: one
/// that shrinks meanwhile would take the program down. One thread.
class FileWindow
{
public:
    /// @param budget  how many bytes may be taken in all
    /// @param forOthers  sealed() will be asked for
    FileWindow(int fd, std::uint64_t size, std::uint64_t budget, bool forOthers = false);
    ~FileWindow();
    FileWindow(const FileWindow&) = delete;
    FileWindow& operator=(const FileWindow&) = delete;

    bool isOpen() const { return mBytes != nullptr; }
    Bytes bytes() const { return {mBytes, mSize}; }
    /// Reads that part, as far as file and budget go.
    void take(std::uint64_t offset, std::uint64_t count);
    /// Behind the last byte that was taken.
    std::uint64_t end() const { return mEnd; }
    /// Something that was asked for was beyond the budget.
    bool ranOut() const { return mRanOut; }
    std::uint64_t taken() const { return mTaken; }
    /// A descriptor of what was taken, for another process, which cannot change it; valid as long as this window, which
    /// takes no more from now on. -1 for a window that is not for others, or when the system refuses.
    int sealed();

private:
    bool put(std::uint64_t offset, const std::uint8_t* bytes, std::size_t count);

    int mFd, mMemory = -1; ///< mMemory: a file without a name, of a window for others
    std::size_t mSize;
    std::uint64_t mBudget, mTaken = 0, mEnd = 0;
    std::uint8_t* mBytes = nullptr;
    bool mRanOut = false;
};

/// Takes what the reader of that kind of file will look at for the first picture and its properties.
/// @param start  where the picture's data begins
void takeNeededParts(FileWindow& window, Format format, std::size_t start);

/// The most bytes that a file of that kind can need for a picture of so many pixels and all that belongs to it.
std::uint64_t mostBytesFor(Format format, std::int64_t width, std::int64_t height);

} // namespace zp::codec
