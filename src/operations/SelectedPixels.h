// SPDX-License-Identifier: GPL-3.0-or-later
/// Work on what is selected that several operations share.
#pragma once
#include "document/Edit.h"
#include "document/Selection.h"
#include <cmath>

namespace zp
{

/// Lifts what is selected as a floating piece, with its sound. @return false when there is nothing to lift
bool liftSelection(Edit& edit);
/// A press inside the selection moves it; with Command it lifts the pixels first, with Shift as well it leaves a hole.
void startMoving(Edit& edit, Point point);
/// Makes the pixels inside the outline transparent. Nothing without an outline.
void clearInsideSelection(Edit& edit);

/// A click means the pixel under the pointer, at every zoom: its own coordinates, which no rounding moves to another.
inline Point pixelUnder(Point p) { return {std::floor(p.x), std::floor(p.y)}; }

/// Marks the region that looks like the pixel under the point in the selection's mask.
/// @param adding  what was selected before stays marked
void markByWand(Edit& edit, Point point, bool adding);
/// The outline of the mask as it stands.
BezierPath tracedMask(Selection& selection);

} // namespace zp
