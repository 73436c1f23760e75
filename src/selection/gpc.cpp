// SPDX-License-Identifier: GPL-3.0-or-later
/// The polygon operations: outlines along whole pixels as bit pictures, all others by cutting edges where they cross.
#include "selection/gpc.h"
#include "selection/PlanarClip.h"
#include "selection/PolygonClip.h"
#include "selection/PolygonMemory.h"
#include "selection/RectilinearClip.h"
#include <algorithm>
#include <cmath>

namespace
{

constexpr double kGrid = 65536;   ///< steps per unit: a vertex moves by less than 1/100,000 of a pixel
constexpr double kFarthest = 1e9; ///< units; keeps all products inside 128 bits

std::int64_t onGrid(double value) { return std::llround(std::clamp(value, -kFarthest, kFarthest) * kGrid); }

std::vector<zp::GridLoop> gridLoops(const gpc_polygon& polygon)
{
    std::vector<zp::GridLoop> loops;
    loops.reserve(std::size_t(std::max(polygon.num_contours, 0)));
    for (int c = 0; c < polygon.num_contours; ++c) {
        const gpc_vertex_list& contour = polygon.contour[c];
        zp::GridLoop& loop = loops.emplace_back();
        loop.reserve(std::size_t(std::max(contour.num_vertices, 0)));
        for (int i = 0; i < contour.num_vertices; ++i) {
            const gpc_vertex v = contour.vertex[i];
            if (!std::isfinite(v.x) || !std::isfinite(v.y)) continue;
            const zp::GridPoint p{onGrid(v.x), onGrid(v.y)};
            if (loop.empty() || loop.back() != p) loop.push_back(p);
        }
    }
    return loops;
}

bool turnsBack(const zp::GridLoop& loop)
{
    double twiceArea = 0;
    zp::GridPoint last = loop.back();
    for (const zp::GridPoint p : loop) {
        twiceArea +=
            double(last.x - loop[0].x) * double(p.y - loop[0].y) - double(p.x - loop[0].x) * double(last.y - loop[0].y);
        last = p;
    }
    return twiceArea < 0;
}

void clipOnGrid(gpc_op operation, const gpc_polygon& subject, zp::WindingRule subjectRule, const gpc_polygon& clip,
                zp::WindingRule clipRule, gpc_polygon& result)
{
    const std::vector<zp::GridLoop> subjectLoops = gridLoops(subject), clipLoops = gridLoops(clip);
    std::vector<zp::GridLoop> loops;
    zp::clipPlanar(operation, subjectLoops, subjectRule, clipLoops, clipRule, loops);

    zp::PolygonWriter writer(result);
    for (const zp::GridLoop& loop : loops) {
        if (loop.size() < 3) continue;
        gpc_vertex* vertices = writer.addContour(int(loop.size()), turnsBack(loop));
        for (const zp::GridPoint p : loop) *vertices++ = {double(p.x) / kGrid, double(p.y) / kGrid};
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
