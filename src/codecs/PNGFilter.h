// SPDX-License-Identifier: GPL-3.0-or-later
/// PNG's row filters.
#pragma once
#include "base/BitmapView.h"
#include <cstdint>
#include <vector>

namespace zp::codec
{

enum class PNGFilter : std::uint8_t { None, Sub, Up, Average, Paeth };
inline constexpr unsigned kPNGFilters = 5;

/// Turns rows of the picture into filtered rows of grey, R, G, B or R, G, B, A (straight alpha): 1, 3 or 4 samples. One
/// thread at a time; rows in order, any of them may be the first.
class RowFilter
{
public:
    RowFilter(int width, unsigned samples);
    /// Row @p y as the filter's number and its bytes into @p out (1 + width * samples), by the filter that leaves the
    /// smallest numbers of those that look at the left, above and at both. @p fresh: the row before was not the one
    /// filtered last.
    void filterRow(ConstBitmapView pixels, int y, bool fresh, std::uint8_t* out);

private:
    void unpack(ConstBitmapView pixels, int y);

    int mWidth;
    unsigned mSamples;
    /// Rows with one pixel of zeros before them, so that every filter reads "left" without asking.
    std::vector<std::uint8_t> mRow, mAbove;
};

/// The sums of a row's bytes under the three filters, the bytes taken as signed numbers and added without their signs.
/// @param row, above  bytes with @p step others before them
void weighFilters(const std::uint8_t* row, const std::uint8_t* above, std::size_t count, unsigned step,
                  std::uint64_t (&sums)[kPNGFilters]);
/// The row under one of the three.
void applyFilter(PNGFilter filter, const std::uint8_t* row, const std::uint8_t* above, std::size_t count, unsigned step,
                 std::uint8_t* out);

} // namespace zp::codec
