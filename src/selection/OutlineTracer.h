// SPDX-License-Identifier: GPL-3.0-or-later
/// Finds the outlines of a one-bit picture: closed loops along pixel borders, one corner per change of direction.
#pragma once
#include "base/Geometry.h"
#include "selection/BitRows.h"
#include <functional>
#include <span>
#include <vector>

namespace zp
{

/// Traces every loop of the border between 1 and 0 (everything outside the picture is 0) and hands its corners over.
///
/// Loops start at the topmost, then leftmost, corner that no earlier loop has used up, and go down from it when the
/// pixel to its lower right is set, else to the right. Where two pixels touch only diagonally, four border lines meet;
/// a walk that comes there goes on along the line that a scan of the picture, row by row and pixel by pixel (a pixel's
/// left, right, top, bottom side in this order), meets first among those left, which may be straight on. Every border
/// line belongs to exactly one loop, so that the loops, filled even-odd, are the picture again.
///
/// @param bits    any size up to 2^31 - 2 a side
/// @param offset  added to the corners; (0, 0) puts the upper left corner of pixel (x, y) at (x, y)
/// @param loop    called once per loop with its corners and then the first one once more; the memory is reused
/// @param expect  if given, called once before with the number of corners of all loops together (an upper bound)
/// @throw std::bad_alloc also when there are more than 2^30 corners
/// Time: one pass over the words and O(corners). Any thread.
void traceOutline(const BitRows& bits, Point offset, const std::function<void(std::span<const Point>)>& loop,
                  const std::function<void(std::size_t)>& expect = {});

} // namespace zp
