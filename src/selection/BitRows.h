// SPDX-License-Identifier: GPL-3.0-or-later
/// A picture of one bit a pixel, 64 pixels to a word: the form in which outlines are found and combined.
#pragma once
#include "base/BitmapView.h"
#include "base/PixelMemory.h"
#include <cstddef>
#include <cstdint>

namespace zp
{

/// Bit x % 64 of word x / 64 is pixel x; the bits from width on are always 0, and there is at least one of them. One
/// more word, always 0, stands before the first row, so that the word left of any word may be read.
class BitRows
{
public:
    BitRows() = default;
    /// All pixels 0. @throw std::bad_alloc
    BitRows(int width, int height) : BitRows(width, height, true) {}
    /// 1 for every pixel of the mask that is selected at all (its byte is below 255). Time: one pass over the mask.
    static BitRows ofSelected(ConstMaskView mask);

    int width() const { return mWidth; }
    int height() const { return mHeight; }
    std::size_t wordsPerRow() const { return mWordsPerRow; }
    std::uint64_t* row(int y)
    {
        return reinterpret_cast<std::uint64_t*>(mBytes.get()) + 1 + mWordsPerRow * std::size_t(y);
    }
    const std::uint64_t* row(int y) const
    {
        return reinterpret_cast<const std::uint64_t*>(mBytes.get()) + 1 + mWordsPerRow * std::size_t(y);
    }
    bool at(int x, int y) const { return row(y)[x >> 6] >> (x & 63) & 1; }

private:
    BitRows(int width, int height, bool zeroed);
    PixelMemory mBytes;
    int mWidth = 0, mHeight = 0;
    std::size_t mWordsPerRow = 0;
};

} // namespace zp
