// SPDX-License-Identifier: GPL-3.0-or-later
/// PNG's row filters.
#pragma once
#include "base/BitmapView.h"
#include <cstdint>
#include <vector>

namespace zp::codec
{

/// Turns rows of the picture into filtered rows of R, G, B or R, G, B, A (straight alpha). One thread at a time; rows
/// in order, any of them may be the first.
class RowFilter
{
public:
    RowFilter(int width, unsigned samples);
    /// Row @p y as the filter's number and its bytes into @p out (1 + width * samples), by the filter that leaves the
    /// smallest numbers. @p fresh: the row before was not the one filtered last.
    void filterRow(ConstBitmapView pixels, int y, bool fresh, std::uint8_t* out);

private:
    void unpack(ConstBitmapView pixels, int y);

    int mWidth;
    unsigned mSamples;
    /// Rows with one pixel of zeros before them, so that every filter reads "left" without asking.
    std::vector<std::uint8_t> mRow, mAbove, mCandidate, mBest;
};

} // namespace zp::codec
