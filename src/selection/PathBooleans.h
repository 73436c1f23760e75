// SPDX-License-Identifier: GPL-3.0-or-later
/// Union, intersection, difference and exclusive or of paths, by way of polygons.
///
/// The receiver is the subject of the operation, the argument its clip. Both are made into polygons at a flatness of
/// 0.1 pixel, which stays set on them; each is taken by its own winding rule, and open subpaths count as closed.
/// Results are made of closed straight subpaths that do not cross, outer ones and holes alike, with the even-odd rule
/// set. Vertices are kept to 1/65536 of a pixel. Any thread that owns both paths; they may be the same object.
#pragma once
#include "base/BezierPath.h"
#include "selection/PolygonMemory.h"
#include "selection/gpc.h"

namespace zp
{

inline constexpr float kBooleanFlatness = 0.1f;

BezierPath pathFromUnionWithPath(BezierPath& receiver, BezierPath& argument);
BezierPath pathFromIntersectionWithPath(BezierPath& receiver, BezierPath& argument);
/// The receiver without the argument.
BezierPath pathFromDifferenceWithPath(BezierPath& receiver, BezierPath& argument);
BezierPath pathFromExclusiveOrWithPath(BezierPath& receiver, BezierPath& argument);
/// The common body of the four. A path that cannot be converted counts as empty.
BezierPath pathFromPathUsingBooleanOperation(BezierPath& receiver, BezierPath& argument, gpc_op operation);

/// Whether the two regions overlap: no at once when their boxes do not, else whether their intersection has any
/// element.
bool intersectsPath(BezierPath& receiver, BezierPath& argument);

/// The receiver as a polygon, at flatness 0.1.
PolygonPtr gpcPolygon(BezierPath& receiver);
/// Sets the receiver's flatness and makes a polygon of its flattened copy: a contour per subpath, whose vertices are
/// the subpath's points and, in the slot of its closing element, its first point again. No hole flags.
/// @return null, with a line in the log, when a curve is left in the copy or the contours do not come out as counted
PolygonPtr gpcPolygonWithFlatness(BezierPath& receiver, float flatness);
/// The second half of that: a polygon of @p contourCount contours from a path that is flat already.
PolygonPtr gpcPolygonFromFlatPath(const BezierPath& flat, int contourCount);

/// The number of move elements.
int countSubPaths(const BezierPath& path);
/// 1 + the number of elements behind @p element up to the next move or the end. @p element: 0 to elementCount() - 1
int subPathCountStartingAtElement(const BezierPath& path, int element);

/// A closed subpath per contour, even-odd. Hole flags are not looked at; coordinates are narrowed to single precision.
BezierPath bezierPathWithGPCPolygon(const gpc_polygon& polygon);

} // namespace zp
