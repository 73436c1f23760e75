// SPDX-License-Identifier: GPL-3.0-or-later
/// Outlines as text, for scripts.
#pragma once
#include "base/BezierPath.h"
#include <optional>
#include <string>

namespace zp
{

/// "M x y", "L x y", "C x1 y1 x2 y2 x y" (both controls, then the end) and "Z", one behind the other, every number
/// exactly; "evenodd" before them where that is the winding rule. Other settings are left out. O(elements).
std::string textOfPath(const BezierPath& path);
/// The outline of such a text; an empty one is an empty outline. Nothing when it is none, or a number is not finite.
std::optional<BezierPath> pathOfText(const std::string& text);

} // namespace zp
