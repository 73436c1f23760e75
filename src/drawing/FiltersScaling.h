// SPDX-License-Identifier: GPL-3.0-or-later
/// Wide rows at half and double the size, for blurs taken on a halved picture.
///
/// Both ways go through the filter (1, 5, 10, 10, 5, 1) / 32, which is nearly a Gaussian itself: it adds five quarters
/// of a pixel's square of variance, at every place the same, and what it lets pass beyond the halved picture's finest
/// waves is less than one part in a thousand of what a mean of two lets pass.
#pragma once
#include "drawing/FiltersRows.h"

namespace zp::filters
{

/// How many pixels the filter looks beyond the two that are one pixel of the halved picture, on either side.
inline constexpr int kHalvingReach = 2;
/// The variance it adds, in pixels of the larger picture.
inline constexpr double kHalvingVariance = 1.25;

/// Six rows to the one that lies in their middle, half as high a picture.
void halveDown(const Wide* const (&rows)[6], Wide* out, int count);
/// A row to half its width. @param row the first pixel of the first pair; kHalvingReach pixels before it and behind the
/// last pair are readable
void halveAlong(const Wide* row, Wide* out, int count);
/// A row of the doubled picture: ten parts of its own row, five of the nearer neighbour, one of the other.
void doubleDown(const Wide* nearer, const Wide* own, const Wide* other, Wide* out, int count);
/// Two pixels for each of @p count; the pixels before the first and behind the last are readable.
void doubleAlong(const Wide* row, Wide* out, int count);

} // namespace zp::filters
