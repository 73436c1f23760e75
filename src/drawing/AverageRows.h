// SPDX-License-Identifier: GPL-3.0-or-later
/// The loops of averages over cells of any size: rows weighed and summed, then columns.
#pragma once
#include <cstdint>

namespace zp
{

/// Weights of a cell's rows, and of its columns, add up to this; alpha or colour times it fits 32 bits after each of
/// the two passes.
inline constexpr std::uint32_t kWeightOne = 65536;

/// The pixels of one line that a cell covers, and how much each counts.
struct AverageCell {
    int first = 0, count = 0;
    std::uint32_t weights = 0; ///< index of the first weight
};

/// sums = row * weight, byte by byte.
void startWeighing(const std::uint8_t* row, std::uint32_t weight, std::uint32_t* sums, int count);
/// sums += row * weight.
void addWeighed(const std::uint8_t* row, std::uint32_t weight, std::uint32_t* sums, int count);
/// Weighed columns to pixels, rounded. @param sums of the columns from @p low on, four a column; rounded to eight bits
/// below the point in place
void averageCells(std::uint32_t* sums, int columns, int low, const AverageCell* cells, const std::uint32_t* weights,
                  std::uint32_t* out, int count);

} // namespace zp
