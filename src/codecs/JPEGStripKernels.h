// SPDX-License-Identifier: GPL-3.0-or-later
/// The entropy-coded bytes of a strip, made in vector registers: byte for byte what the JPEG library writes.
#pragma once
#include "codecs/JPEGStrips.h"

namespace zp::jpeg
{

/// @param pixels  rows of one strip, of which only the picture's last may end inside a block row
/// @param out     replaced by the strip's bytes, ended on a whole byte. Throws bad_alloc.
void encodeStrip(const StripTables& luma, const StripTables& chroma, ConstBitmapView pixels,
                 std::vector<std::uint8_t>& out);
/// Fills acSmall from acCode.
void setSmallCodes(StripTables& tables);

} // namespace zp::jpeg
