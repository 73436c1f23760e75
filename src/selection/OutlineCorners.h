// SPDX-License-Identifier: GPL-3.0-or-later
/// The corners of a one-bit picture's border, found between two rows of bits at a time.
#pragma once
#include <cstddef>
#include <cstdint>

namespace zp
{

/// A corner found on the line between two rows. x is kept in the low 31 bits of a 64-bit entry's half, so that one form
/// serves every size of picture.
struct FoundCorner {
    std::uint32_t x;                                        ///< column, with the two flags below
    static constexpr std::uint32_t kEndsAbove = 0x80000000; ///< a vertical piece of border comes down to it from above
    static constexpr std::uint32_t kCrossing = 0x40000000;  ///< half of a crossing
    static constexpr std::uint32_t kColumn = 0x3fffffff;
};

/// How many corners lie on the line between the two rows; a crossing counts twice. Both rows have @p words words, of
/// which the one before the first may be read and has its top bit clear.
std::size_t countCorners(const std::uint64_t* above, const std::uint64_t* below, std::size_t words);

/// Writes those corners from left to right, a crossing as two: first the end of what lies left and above it, then the
/// start of what lies right and below. @p out has room for 16 more than there are. @return how many
std::size_t findCorners(const std::uint64_t* above, const std::uint64_t* below, std::size_t words, FoundCorner* out);

} // namespace zp
