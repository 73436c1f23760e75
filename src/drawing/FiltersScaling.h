// SPDX-License-Identifier: GPL-3.0-or-later
/// Wide rows at half and double the size, for blurs taken on a reduced picture.
#pragma once
#include "drawing/FiltersRows.h"

namespace zp::filters
{

/// Means of two by two pixels of two rows, rounded. @param count pixels written; both rows have twice as many
void halveRows(const Wide* a, const Wide* b, Wide* out, int count);
/// Three parts of @p near and one of @p far, rounded: a row of the doubled picture.
void mixRows(const Wide* near, const Wide* far, Wide* out, int count);
/// Two pixels for each of @p count: three parts of it and one of the pixel before, three parts and one of the pixel
/// behind. The pixels before the first and behind the last must be readable. Mixed both ways, the doubling adds the
/// same variance at every place, three quarters of a pixel of the doubled picture.
void doubleRow(const Wide* row, Wide* out, int count);
/// To pixels, rounded.
void narrowRow(const Wide* row, std::uint32_t* pixels, int count);

} // namespace zp::filters
