// SPDX-License-Identifier: GPL-3.0-or-later
/// The polygon operations: outlines along whole pixels as bit pictures, all others through Clipper's integer sweep.
#include "selection/gpc.h"
#include "selection/PolygonClip.h"
#include "selection/PolygonMemory.h"
#include "selection/RectilinearClip.h"
#include <algorithm>
#include <cmath>
#include <polyclipping/clipper.hpp>

namespace
{

constexpr double kGrid = 65536;   ///< steps per unit: a vertex moves by less than 1/100,000 of a pixel
constexpr double kFarthest = 1e9; ///< units; keeps all of Clipper's products inside its 128 bits

ClipperLib::cInt onGrid(double value) { return std::llround(std::clamp(value, -kFarthest, kFarthest) * kGrid); }

ClipperLib::Paths gridPaths(const gpc_polygon& polygon)
{
    ClipperLib::Paths paths;
    paths.reserve(std::size_t(std::max(polygon.num_contours, 0)));
    for (int c = 0; c < polygon.num_contours; ++c) {
        const gpc_vertex_list& contour = polygon.contour[c];
        ClipperLib::Path& path = paths.emplace_back();
        path.reserve(std::size_t(std::max(contour.num_vertices, 0)));
        for (int i = 0; i < contour.num_vertices; ++i) {
            const gpc_vertex v = contour.vertex[i];
            if (!std::isfinite(v.x) || !std::isfinite(v.y)) continue;
            const ClipperLib::IntPoint p(onGrid(v.x), onGrid(v.y));
            if (path.empty() || path.back() != p) path.push_back(p);
        }
    }
    return paths;
}

ClipperLib::ClipType clipperOperation(gpc_op operation)
{
    switch (operation) {
    case GPC_DIFF:
        return ClipperLib::ctDifference;
    case GPC_INT:
        return ClipperLib::ctIntersection;
    case GPC_XOR:
        return ClipperLib::ctXor;
    case GPC_UNION:
        break;
    }
    return ClipperLib::ctUnion;
}

ClipperLib::PolyFillType clipperRule(zp::WindingRule rule)
{
    return rule == zp::WindingRule::EvenOdd ? ClipperLib::pftEvenOdd : ClipperLib::pftNonZero;
}

void clipOnGrid(gpc_op operation, const gpc_polygon& subject, zp::WindingRule subjectRule, const gpc_polygon& clip,
                zp::WindingRule clipRule, gpc_polygon& result)
{
    ClipperLib::Clipper clipper;
    clipper.AddPaths(gridPaths(subject), ClipperLib::ptSubject, true);
    clipper.AddPaths(gridPaths(clip), ClipperLib::ptClip, true);
    ClipperLib::Paths solution;
    clipper.Execute(clipperOperation(operation), solution, clipperRule(subjectRule), clipperRule(clipRule));

    zp::PolygonWriter writer(result);
    for (const ClipperLib::Path& path : solution) {
        if (path.size() < 3) continue;
        gpc_vertex* vertices = writer.addContour(int(path.size()), !ClipperLib::Orientation(path));
        for (const ClipperLib::IntPoint p : path) *vertices++ = {double(p.X) / kGrid, double(p.Y) / kGrid};
    }
}

} // namespace

void zp::clipPolygons(gpc_op operation, const gpc_polygon& subject, WindingRule subjectRule, const gpc_polygon& clip,
                      WindingRule clipRule, gpc_polygon& result)
{
    if (subjectRule == WindingRule::EvenOdd && clipRule == WindingRule::EvenOdd &&
        clipRectilinear(operation, subject, clip, result))
        return;
    clipOnGrid(operation, subject, subjectRule, clip, clipRule, result);
}

void gpc_polygon_clip(gpc_op operation, const gpc_polygon* subject, const gpc_polygon* clip, gpc_polygon* result)
{
    zp::clipPolygons(operation, *subject, zp::WindingRule::EvenOdd, *clip, zp::WindingRule::EvenOdd, *result);
}

void gpc_free_polygon(gpc_polygon* polygon)
{
    for (int c = 0; c < polygon->num_contours; ++c) std::free(polygon->contour[c].vertex);
    std::free(polygon->hole);
    std::free(polygon->contour);
    *polygon = gpc_polygon{};
}
