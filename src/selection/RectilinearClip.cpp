// SPDX-License-Identifier: GPL-3.0-or-later
/// Polygons along whole pixels become bits, the bits are combined, the outline of the outcome is traced.
#include "selection/RectilinearClip.h"
#include "selection/BitRows.h"
#include "selection/OutlineTracer.h"
#include "selection/PolygonMemory.h"
#include <algorithm>
#include <climits>
#include <cmath>
#include <limits>

namespace zp
{

namespace
{

// Beyond this many words (64 MiB a picture) the sweep over edges is the better way.
constexpr double kMostWords = 8.0 * 1024 * 1024;
// Fewer pixels than this are always worth it; above, a polygon of few corners is combined sooner edge by edge.
constexpr double kWordsPerVertex = 512;

struct Extent {
    double x0 = std::numeric_limits<double>::infinity(), y0 = x0, x1 = -x0, y1 = -x0;
    double vertices = 0;
    void include(gpc_vertex v)
    {
        x0 = std::min(x0, v.x), y0 = std::min(y0, v.y), x1 = std::max(x1, v.x), y1 = std::max(y1, v.y);
    }
};

/// Whether all of @p polygon runs along whole numbers; its extent is added to @p extent.
bool isRectilinear(const gpc_polygon& polygon, Extent& extent)
{
    constexpr double kFar = 1 << 30;
    for (int c = 0; c < polygon.num_contours; ++c) {
        const gpc_vertex_list& contour = polygon.contour[c];
        if (contour.num_vertices <= 0) continue;
        gpc_vertex last = contour.vertex[contour.num_vertices - 1];
        for (int i = 0; i < contour.num_vertices; ++i) {
            const gpc_vertex v = contour.vertex[i];
            if (!(std::fabs(v.x) <= kFar && std::fabs(v.y) <= kFar)) return false;
            if (v.x != double(int(v.x)) || v.y != double(int(v.y))) return false;
            if (v.x != last.x && v.y != last.y) return false;
            extent.include(v);
            last = v;
        }
        extent.vertices += contour.num_vertices;
    }
    return true;
}

/// From a bit at every crossed border to a bit at every pixel inside: each bit becomes the parity of those up to it.
void fillBetweenBorders(std::uint64_t* words, std::size_t count)
{
    std::uint64_t carry = 0; // all ones while inside
    for (std::size_t w = 0; w < count; ++w) {
        std::uint64_t bits = words[w];
        if (bits) {
            for (int shift = 1; shift < 64; shift *= 2) bits ^= bits << shift;
        }
        words[w] = bits ^ carry;
        carry = (words[w] >> 63) ? ~std::uint64_t{0} : 0;
    }
}

void drawEvenOdd(const gpc_polygon& polygon, int left, int top, BitRows& bits)
{
    for (int c = 0; c < polygon.num_contours; ++c) {
        const gpc_vertex_list& contour = polygon.contour[c];
        if (contour.num_vertices <= 0) continue;
        gpc_vertex last = contour.vertex[contour.num_vertices - 1];
        for (int i = 0; i < contour.num_vertices; ++i) {
            const gpc_vertex v = contour.vertex[i];
            const int x = int(v.x) - left, first = int(std::min(v.y, last.y)) - top,
                      end = int(std::max(v.y, last.y)) - top;
            const std::uint64_t bit = std::uint64_t{1} << (x & 63);
            for (int y = first; y < end; ++y) bits.row(y)[x >> 6] ^= bit;
            last = v;
        }
    }
    for (int y = 0; y < bits.height(); ++y) fillBetweenBorders(bits.row(y), bits.wordsPerRow());
}

void combine(gpc_op operation, BitRows& subject, const BitRows& clip)
{
    const std::size_t count = subject.wordsPerRow() * std::size_t(subject.height());
    std::uint64_t* a = subject.row(0);
    const std::uint64_t* b = clip.row(0);
    switch (operation) {
    case GPC_DIFF:
        for (std::size_t i = 0; i < count; ++i) a[i] &= ~b[i];
        break;
    case GPC_INT:
        for (std::size_t i = 0; i < count; ++i) a[i] &= b[i];
        break;
    case GPC_XOR:
        for (std::size_t i = 0; i < count; ++i) a[i] ^= b[i];
        break;
    case GPC_UNION:
        for (std::size_t i = 0; i < count; ++i) a[i] |= b[i];
        break;
    }
}

} // namespace

bool clipRectilinear(gpc_op operation, const gpc_polygon& subject, const gpc_polygon& clip, gpc_polygon& result)
{
    Extent extent;
    if (!isRectilinear(subject, extent) || !isRectilinear(clip, extent)) return false;
    if (!(extent.x1 > extent.x0 && extent.y1 > extent.y0)) {
        result = gpc_polygon{};
        return true;
    }
    const double width = extent.x1 - extent.x0, height = extent.y1 - extent.y0;
    const double words = (std::floor(width / 64) + 1) * height;
    if (width >= INT_MAX || height >= INT_MAX || words > kMostWords || words > kWordsPerVertex * extent.vertices)
        return false;

    const int left = int(extent.x0), top = int(extent.y0);
    BitRows inSubject{int(width), int(height)}, inClip{int(width), int(height)};
    drawEvenOdd(subject, left, top, inSubject);
    drawEvenOdd(clip, left, top, inClip);
    combine(operation, inSubject, inClip);

    PolygonWriter writer(result);
    traceOutline(inSubject, {}, [&](std::span<const Point> closed) {
        const std::span<const Point> corners = closed.first(closed.size() - 1);
        double twiceArea = 0;
        Point last = corners.back();
        for (const Point p : corners) {
            twiceArea += double(last.x) * double(p.y) - double(p.x) * double(last.y);
            last = p;
        }
        // The walk starts with the inside on its left: down beside an outer loop, to the right above a hole.
        gpc_vertex* vertices = writer.addContour(int(corners.size()), twiceArea > 0);
        for (const Point p : corners) *vertices++ = {double(p.x) + left, double(p.y) + top};
    });
    return true;
}

} // namespace zp
