// SPDX-License-Identifier: GPL-3.0-or-later
/// The outline of a stroked path.
#pragma once
#include "drawing/CoverageRaster.h"

namespace zp
{

/// Adds the outline that stroking @p path with its width, joins, caps and dash covers, mapped by @p transform; sweep it
/// by the non-zero rule. Widths are in the path's units. Broken coordinates or widths add nothing.
void addStroke(CoverageRaster& raster, const BezierPath& path, const AffineTransform& transform);

} // namespace zp
