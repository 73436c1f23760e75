// SPDX-License-Identifier: GPL-3.0-or-later
/// Rows of screen words from one set of colours to another.
#pragma once
#include "base/ColourTables.h"
#include <cstdint>

namespace zp
{

/// Words 0xFFRRGGBB in place; the top byte becomes 0xFF. Light beyond what the other set can show is cut.
void convertColours(const ColourTables& tables, std::uint32_t* words, int count);

} // namespace zp
