// SPDX-License-Identifier: GPL-3.0-or-later
/// Set operations on polygons whose fill rules may differ.
#pragma once
#include "base/BezierPath.h"
#include "selection/gpc.h"

namespace zp
{

/// gpc_polygon_clip with a fill rule for each input. The result is to be filled even-odd; as its contours do not cross
/// and holes turn against what they lie in, non-zero shows the same region.
void clipPolygons(gpc_op operation, const gpc_polygon& subject, WindingRule subjectRule, const gpc_polygon& clip,
                  WindingRule clipRule, gpc_polygon& result);

} // namespace zp
