// SPDX-License-Identifier: GPL-3.0-or-later
/// Paths to polygons and back, and the set operations between.
#include "selection/PathBooleans.h"
#include "base/Log.h"
#include "selection/PolygonClip.h"

namespace zp
{

BezierPath pathFromUnionWithPath(BezierPath& receiver, BezierPath& argument)
{
    return pathFromPathUsingBooleanOperation(receiver, argument, GPC_UNION);
}

BezierPath pathFromIntersectionWithPath(BezierPath& receiver, BezierPath& argument)
{
    return pathFromPathUsingBooleanOperation(receiver, argument, GPC_INT);
}

BezierPath pathFromDifferenceWithPath(BezierPath& receiver, BezierPath& argument)
{
    return pathFromPathUsingBooleanOperation(receiver, argument, GPC_DIFF);
}

BezierPath pathFromExclusiveOrWithPath(BezierPath& receiver, BezierPath& argument)
{
    return pathFromPathUsingBooleanOperation(receiver, argument, GPC_XOR);
}

BezierPath pathFromPathUsingBooleanOperation(BezierPath& receiver, BezierPath& argument, gpc_op operation)
{
    const gpc_polygon none;
    const PolygonPtr subject = gpcPolygon(receiver), clip = gpcPolygon(argument);
    gpc_polygon result;
    clipPolygons(operation, subject ? *subject : none, receiver.windingRule(), clip ? *clip : none,
                 argument.windingRule(), result);
    BezierPath path = bezierPathWithGPCPolygon(result);
    gpc_free_polygon(&result);
    return path;
}

bool intersectsPath(BezierPath& receiver, BezierPath& argument)
{
    if (!intersects(receiver.bounds(), argument.bounds())) return false;
    return !pathFromIntersectionWithPath(receiver, argument).isEmpty();
}

PolygonPtr gpcPolygon(BezierPath& receiver) { return gpcPolygonWithFlatness(receiver, kBooleanFlatness); }

PolygonPtr gpcPolygonWithFlatness(BezierPath& receiver, float flatness)
{
    receiver.setFlatness(flatness);
    BezierPath flat = receiver.flattened();
    flat.setWindingRule(receiver.windingRule());
    return gpcPolygonFromFlatPath(flat, countSubPaths(flat));
}

PolygonPtr gpcPolygonFromFlatPath(const BezierPath& flat, int contourCount)
{
    PolygonPtr polygon(new gpc_polygon);
    polygon->contour = allocatePolygonMemory<gpc_vertex_list>(std::size_t(contourCount), "contour creation");
    polygon->num_contours = contourCount;
    for (int c = 0, element = 0; c < contourCount && element < flat.elementCount(); ++c) {
        const int count = subPathCountStartingAtElement(flat, element);
        polygon->contour[c] = {count, allocatePolygonMemory<gpc_vertex>(std::size_t(count), "vertex creation")};
        element += count;
    }

    int contour = -1, vertex = 0;
    gpc_vertex first{};
    const char* failure = nullptr;
    const auto store = [&](gpc_vertex v) {
        // A subpath without a closing element has no slot to spare for its first point.
        gpc_vertex_list& list = polygon->contour[contour];
        if (vertex < list.num_vertices) list.vertex[vertex] = v;
    };
    flat.forEach([&](PathElement kind, const Point* p) {
        if (failure) return;
        switch (kind) {
        case PathElement::MoveTo:
            if (contour >= 0) store(first);
            if (++contour >= contourCount) {
                failure = "discrepancy in contour count versus number of subpaths encountered - bailing";
                return;
            }
            first = {double(p->x), double(p->y)};
            vertex = 0;
            store(first);
            ++vertex;
            break;
        case PathElement::LineTo:
            if (contour < 0) return;
            store({double(p->x), double(p->y)});
            ++vertex;
            break;
        case PathElement::CurveTo:
            failure = "got a curveto unexpectedly - bailing";
            break;
        case PathElement::ClosePath:
            break;
        }
    });
    if (failure) {
        logLine("%s", failure);
        return nullptr;
    }
    if (contour >= 0) store(first);
    return polygon;
}

int countSubPaths(const BezierPath& path)
{
    int count = 0;
    for (int i = 0; i < path.elementCount(); ++i) count += path.elementAt(i) == PathElement::MoveTo;
    return count;
}

int subPathCountStartingAtElement(const BezierPath& path, int element)
{
    int next = element + 1;
    while (next < path.elementCount() && path.elementAt(next) != PathElement::MoveTo) ++next;
    return next - element;
}

BezierPath bezierPathWithGPCPolygon(const gpc_polygon& polygon)
{
    BezierPath path;
    path.setWindingRule(WindingRule::EvenOdd);
    for (int c = 0; c < polygon.num_contours; ++c) {
        const gpc_vertex_list& contour = polygon.contour[c];
        if (contour.num_vertices <= 0) continue;
        const auto point = [&](int i) { return Point{float(contour.vertex[i].x), float(contour.vertex[i].y)}; };
        path.moveTo(point(0));
        for (int i = 1; i < contour.num_vertices; ++i) path.lineTo(point(i));
        path.closePath();
    }
    return path;
}

} // namespace zp
