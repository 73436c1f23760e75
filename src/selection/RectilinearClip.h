// SPDX-License-Identifier: GPL-3.0-or-later
/// Set operations on outlines that run along whole pixels, done on bit pictures instead of edges.
#pragma once
#include "selection/gpc.h"

namespace zp
{

/// Does what gpc_polygon_clip does when every edge of both polygons is upright or level and every vertex lies on whole
/// numbers, as traced outlines do: a million corners then cost milliseconds instead of minutes.
/// @return false, with @p result untouched, when a polygon is not of that kind or spans too large an area for it
/// Time: O(area / 64 + length of upright edges + corners). Exact. Any thread.
bool clipRectilinear(gpc_op operation, const gpc_polygon& subject, const gpc_polygon& clip, gpc_polygon& result);

} // namespace zp
