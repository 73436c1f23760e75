// SPDX-License-Identifier: GPL-3.0-or-later
/// Saved selections as text: one outline, readable by people, exact to the last bit.
///
/// The format, version 1, in lines that end with a line feed:
///
///     Zelpane selection 1
///     winding even-odd            (or: winding non-zero)
///     elements 6                  (how many lines follow before "end")
///     move 10 20.5
///     line 30 20.5
///     curve 1 2 3 4 30 40         (first control point, second control point, end)
///     close
///     end
///
/// Numbers are decimal, short, and give back the very same single-precision value; image coordinates, y downwards.
#pragma once
#include "base/BezierPath.h"
#include <optional>
#include <string>
#include <string_view>

namespace zp
{

/// The path's elements, points and winding rule as text. Coordinates that are not finite are written as 0.
std::string selectionFileText(const BezierPath& path);

/// The path that the text describes, or nothing when it is anything but a whole file of the form above: another
/// version, a line too many or too few, a number out of range or not finite, an outline that starts without a move.
std::optional<BezierPath> pathFromSelectionFile(std::string_view text);

} // namespace zp
