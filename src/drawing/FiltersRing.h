// SPDX-License-Identifier: GPL-3.0-or-later
/// The rows a filter keeps while it runs down a picture.
#pragma once
#include "drawing/FiltersRows.h"
#include <cstddef>
#include <cstdint>
#include <vector>

namespace zp::filters
{

/// Rows of 64-byte aligned wide samples, found by their number modulo the count.
class Ring
{
public:
    Ring(int rows, int pixels)
        : mRows(rows), mStride(std::size_t(pixels) * 4 + 32), mSamples(std::size_t(rows) * mStride + 32, Wide{0})
    {
        const auto address = reinterpret_cast<std::uintptr_t>(mSamples.data());
        mFirst = (64 - address % 64) % 64 / sizeof(Wide);
    }
    Wide* row(int y)
    {
        const int slot = y % mRows;
        return mSamples.data() + mFirst + std::size_t(slot < 0 ? slot + mRows : slot) * mStride;
    }

private:
    int mRows;
    std::size_t mStride, mFirst;
    std::vector<Wide> mSamples;
};

} // namespace zp::filters
