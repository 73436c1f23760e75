// SPDX-License-Identifier: GPL-3.0-or-later
/// Undoes PNG's row filters.
#pragma once
#include "codecs/PNGFilter.h"
#include <cstddef>
#include <cstdint>

namespace zp::codec
{

/// A filtered row of bytes R, G, B to opaque pixels A, R, G, B, or of R, G, B, A to pixels with straight alpha. Filters
/// look at bytes of the same channel only, so they can be undone in the editor's order.
/// @param above  the row before, as this gave it; null for the first
/// @param argb   may overlap @p row where it begins (row - argb) >= count bytes before it, as for a row that is spread
/// out over the end of which it was packed; memory for a multiple of four pixels
void unfilterRGB(PNGFilter filter, const std::uint8_t* row, const std::uint8_t* above, std::uint8_t* argb,
                 std::size_t count);
void unfilterRGBA(PNGFilter filter, const std::uint8_t* row, const std::uint8_t* above, std::uint8_t* argb,
                  std::size_t count);

/// Any other row. @param step bytes that the filters look back: 1 to 8
/// @param above  the row before, unfiltered; zeros for the first
void unfilterBytes(PNGFilter filter, const std::uint8_t* row, const std::uint8_t* above, std::uint8_t* out,
                   std::size_t count, unsigned step);

} // namespace zp::codec
