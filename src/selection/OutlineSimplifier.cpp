// SPDX-License-Identifier: GPL-3.0-or-later
/// The index of an outline on screen: corners thinned to the pixel, chunks with boxes, the squares that ants dirty.
#include "selection/OutlineSimplifier.h"
#include <algorithm>
#include <cmath>
#include <limits>

namespace zp
{

namespace
{

constexpr float kLeastStep = 0.5f;               ///< device pixels between corners that are kept
constexpr double kMostDots = 64.0 * 1024 * 1024; ///< pixels for which dots are told apart; more are not on any screen
constexpr int kFirstTile = 16;

bool sameLinearPart(const AffineTransform& a, const AffineTransform& b)
{
    return a.m11 == b.m11 && a.m12 == b.m12 && a.m21 == b.m21 && a.m22 == b.m22;
}

} // namespace

void OutlineDrawing::setPath(const BezierPath& path, const AffineTransform& toDevice)
{
    const bool same = mKnown && sameLinearPart(mMap, toDevice) && mGivenPath.hasSameElements(path);
    if (!same || mShiftX != toDevice.tX || mShiftY != toDevice.tY) mDirtyKnown = false;
    mShiftX = toDevice.tX, mShiftY = toDevice.tY;
    if (same) return;
    mGivenPath = path;
    mMap = toDevice;
    mKnown = true;
    rebuild();
}

void OutlineDrawing::clear() { *this = OutlineDrawing(); }

void OutlineDrawing::rebuild()
{
    mPoints.clear();
    mChunks.clear();
    bool curved = false;
    mGivenPath.forEach([&](PathElement kind, const Point*) { curved |= kind == PathElement::CurveTo; });
    const double scale = std::max(std::hypot(mMap.m11, mMap.m12), std::hypot(mMap.m21, mMap.m22));
    BezierPath flat;
    if (curved) flat = mGivenPath.flattened(float(0.25 / std::max(scale, 1e-6)));

    AffineTransform linear = mMap;
    linear.tX = linear.tY = 0;
    const Rect extent = linear.apply(mGivenPath.bounds());
    const Box all{extent.minX(), extent.minY(), extent.maxX(), extent.maxY()};
    std::vector<std::uint64_t> dots; // a bit a pixel of the extent, made when the first dot comes

    std::size_t first = 0; // of the subpath being built
    Point start;           // of that subpath, whether or not it was kept
    bool hasLines = false;
    const auto add = [&](Point p, bool last) {
        // Coordinates beyond single precision or broken: nothing could be drawn there.
        if (!std::isfinite(p.x) || !std::isfinite(p.y)) return;
        if (mPoints.size() > first) {
            const Point before = mPoints.back();
            const float step = std::max(std::abs(p.x - before.x), std::abs(p.y - before.y));
            if (step < kLeastStep && !(last && step > 0)) return;
        }
        mPoints.push_back(p);
    };
    (curved ? flat : mGivenPath).forEach([&](PathElement kind, const Point* p) {
        switch (kind) {
        case PathElement::MoveTo:
            finishSubpath(first, hasLines, dots, all);
            first = mPoints.size();
            hasLines = false;
            start = linear.apply(*p);
            add(start, false);
            break;
        case PathElement::LineTo:
            hasLines = true;
            add(linear.apply(*p), false);
            break;
        case PathElement::ClosePath:
            add(start, true);
            break;
        case PathElement::CurveTo:
            break;
        }
    });
    finishSubpath(first, hasLines, dots, all);
}

void OutlineDrawing::finishSubpath(std::size_t first, bool hasLines, std::vector<std::uint64_t>& dots, const Box& all)
{
    std::size_t count = mPoints.size() - first;
    if (count == 0) return;
    if (!hasLines) return mPoints.resize(first); // a lone move is nothing to see
    const auto isSmall = [&] {                   // closing a loop of two kept corners leaves less than a pixel
        for (std::size_t i = 1; i < count; ++i)
            if (std::abs(mPoints[first + i].x - mPoints[first].x) >= 1 ||
                std::abs(mPoints[first + i].y - mPoints[first].y) >= 1)
                return false;
        return true;
    };
    if (count <= 4 && isSmall()) {
        const Point p = mPoints[first];
        mPoints.resize(first + 1);
        const double width = std::floor(double(all.x1)) - std::floor(double(all.x0)) + 1;
        const double height = std::floor(double(all.y1)) - std::floor(double(all.y0)) + 1;
        if (width * height <= kMostDots) {
            if (dots.empty()) dots.resize(std::size_t(width * height) / 64 + 1);
            const std::size_t at =
                std::size_t(std::max(0.0, (std::floor(double(p.y)) - std::floor(double(all.y0))) * width +
                                              std::floor(double(p.x)) - std::floor(double(all.x0))));
            const std::uint64_t bit = std::uint64_t{1} << (at % 64);
            if (at / 64 < dots.size() && dots[at / 64] & bit) {
                mPoints.resize(first);
                return;
            }
            if (at / 64 < dots.size()) dots[at / 64] |= bit;
        }
        mPoints.push_back(p);
        count = 2;
    }
    double along = 0;
    for (std::size_t at = 0; at + 1 < count; at += kChunk) {
        const std::size_t points = std::min<std::size_t>(kChunk + 1, count - at);
        Chunk chunk{{0, 0, 0, 0}, std::uint32_t(first + at), std::uint32_t(points), along};
        Point last = mPoints[first + at];
        chunk.box = {last.x, last.y, last.x, last.y};
        for (std::size_t i = 1; i < points; ++i) {
            const Point p = mPoints[first + at + i];
            chunk.box = {std::min(chunk.box.x0, p.x), std::min(chunk.box.y0, p.y), std::max(chunk.box.x1, p.x),
                         std::max(chunk.box.y1, p.y)};
            // The same lengths as the painter reckons, so that dashes meet at the seams.
            along += std::hypot(double(p.x) - double(last.x), double(p.y) - double(last.y));
            last = p;
        }
        mChunks.push_back(chunk);
    }
}

bool OutlineDrawing::markTiles(PixelBox visible, int margin, int tile)
{
    const int columns = (visible.width() - 1) / tile + 1, rows = (visible.height() - 1) / tile + 1;
    mTiles.assign(std::size_t(columns) * std::size_t(rows), 0);
    const float toTile = 1.0f / float(tile), reach = float(margin);
    const Box view = shifted(visible, margin);
    const float left = float(visible.x0 - mShiftX), top = float(visible.y0 - mShiftY);
    const auto mark = [&](float x0, float y0, float x1, float y1) {
        const auto clampTo = [](float value, int last) { return int(std::clamp(value, 0.0f, float(last))); };
        if (x1 + reach < view.x0 || x0 - reach > view.x1 || y1 + reach < view.y0 || y0 - reach > view.y1) return;
        const int c0 = clampTo((x0 - reach - left) * toTile, columns - 1),
                  c1 = clampTo((x1 + reach - left) * toTile, columns - 1);
        const int r0 = clampTo((y0 - reach - top) * toTile, rows - 1),
                  r1 = clampTo((y1 + reach - top) * toTile, rows - 1);
        for (int r = r0; r <= r1; ++r)
            for (int c = c0; c <= c1; ++c) mTiles[std::size_t(r) * std::size_t(columns) + std::size_t(c)] = 1;
    };
    for (const Chunk& chunk : mChunks) {
        const Box& b = chunk.box;
        if (!b.meets(view)) continue;
        if (b.x1 - b.x0 <= float(tile) && b.y1 - b.y0 <= float(tile)) {
            mark(b.x0, b.y0, b.x1, b.y1);
            continue;
        }
        for (std::uint32_t i = 1; i < chunk.count; ++i) {
            const Point p = mPoints[chunk.first + i - 1], q = mPoints[chunk.first + i];
            const float dx = q.x - p.x, dy = q.y - p.y;
            if (dx == 0 || dy == 0) {
                mark(std::min(p.x, q.x), std::min(p.y, q.y), std::max(p.x, q.x), std::max(p.y, q.y));
                continue;
            }
            // A slanting line in pieces of a tile, or it would dirty its whole box; only the part near the view.
            float t0 = 0, t1 = 1;
            const auto cut = [&](float at, float d, float low, float high) {
                const float a = (low - at) / d, c = (high - at) / d;
                t0 = std::max(t0, std::min(a, c)), t1 = std::min(t1, std::max(a, c));
            };
            cut(p.x, dx, view.x0 - reach, view.x1 + reach);
            cut(p.y, dy, view.y0 - reach, view.y1 + reach);
            if (!(t0 <= t1)) continue;
            // Far ends can make the cut's own rounding larger than the view; no view has more tiles than this along it.
            const float tiles = std::max(std::abs(dx), std::abs(dy)) * (t1 - t0) * toTile;
            const int pieces = int(std::min(tiles, 4096.0f)) + 1;
            for (int k = 0; k < pieces; ++k) {
                const float ta = t0 + (t1 - t0) * float(k) / float(pieces),
                            tb = t0 + (t1 - t0) * float(k + 1) / float(pieces);
                const float xa = p.x + dx * ta, xb = p.x + dx * tb, ya = p.y + dy * ta, yb = p.y + dy * tb;
                mark(std::min(xa, xb), std::min(ya, yb), std::max(xa, xb), std::max(ya, yb));
            }
        }
    }
    // Runs of marked squares; a run like the one right above it makes that box taller.
    mDirty.clear();
    std::size_t aboveFirst = 0;
    for (int r = 0; r < rows; ++r) {
        const std::size_t rowFirst = mDirty.size();
        std::size_t above = aboveFirst;
        const std::uint8_t* row = mTiles.data() + std::size_t(r) * std::size_t(columns);
        for (int c = 0; c < columns; ++c) {
            if (!row[c]) continue;
            const int begin = c;
            while (c < columns && row[c]) ++c;
            const PixelBox box{visible.x0 + begin * tile, visible.y0 + r * tile,
                               std::min(visible.x0 + c * tile, visible.x1),
                               std::min(visible.y0 + (r + 1) * tile, visible.y1)};
            while (above < rowFirst && mDirty[above].x0 < box.x0) ++above;
            if (above < rowFirst && mDirty[above].x0 == box.x0 && mDirty[above].x1 == box.x1 &&
                mDirty[above].y1 == box.y0) {
                // Taken out above and put in here, so that the next row finds it.
                PixelBox grown = mDirty[above];
                grown.y1 = box.y1;
                mDirty[above].x1 = mDirty[above].x0;
                mDirty.push_back(grown);
            } else {
                mDirty.push_back(box);
            }
        }
        aboveFirst = rowFirst;
    }
    std::erase_if(mDirty, [](const PixelBox& b) { return b.isEmpty(); });
    return mDirty.size() <= std::size_t(kMostBoxes);
}

const std::vector<PixelBox>& OutlineDrawing::dirtyBoxes(PixelBox visible, int margin)
{
    if (mDirtyKnown && mDirtyFor == visible && mDirtyMargin == margin) return mDirty;
    mDirtyKnown = true;
    mDirtyFor = visible;
    mDirtyMargin = margin;
    mDirty.clear();
    if (visible.isEmpty() || mChunks.empty()) return mDirty;
    int tile = kFirstTile;
    while (!markTiles(visible, margin, tile)) tile *= 2;
    return mDirty;
}

} // namespace zp
