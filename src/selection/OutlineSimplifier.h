// SPDX-License-Identifier: GPL-3.0-or-later
/// What of an outline has to be drawn: only what is visible, only as fine as the screen, however many corners it has.
///
/// A wand's outline may have a million corners and its ants march five times a second. One of these is kept for each
/// outline on screen:
///
///     mOutline.setPath(*mSelectionPath, toDevice);          // at every redraw; at once when nothing changed
///     mOutline.visit(box, [&](std::span<const DevicePoint> line, double start) {
///         drawDashedLine(target, line, start, style);       // dashes run on evenly over the pieces
///     });
///
/// and for a tick, what the ants cover instead of the outline's box:
///
///     for (const PixelBox& dirty : mOutline.dirtyBoxes(visible, lineWidth)) update(...);
///
/// All coordinates but the path's own are device pixels. Not thread-safe.
#pragma once
#include "base/AffineTransform.h"
#include "base/BezierPath.h"
#include "base/Geometry.h"
#include "drawing/AntsPainter.h"
#include <cstdint>
#include <span>
#include <vector>

namespace zp
{

class OutlineDrawing
{
public:
    /// Takes over @p path as @p toDevice maps it. Compares with what it has, so that it may be called at every redraw:
    /// unchanged, the cost is that of reading the path's points once (0.4 ms for a million); a new shift alone costs
    /// nothing more; anything else rebuilds the index, O(elements), some 10 ms for a million corners.
    /// Curves become lines that stay within a quarter of a pixel. Corners less than half a pixel from the last one kept
    /// are left out, and of loops that shrink to a dot only one is kept on each pixel.
    void setPath(const BezierPath& path, const AffineTransform& toDevice);
    void clear();
    bool isEmpty() const { return mChunks.empty(); }
    /// Corners left to draw, all of the outline.
    std::size_t pointCount() const { return mPoints.size(); }

    /// Calls f(std::span<const DevicePoint> line, double start) for pieces that together hold every part of the outline
    /// within @p margin pixels of @p box (and a little more): polylines of up to kChunk segments, a dot as two equal
    /// points. @p start is how far along its subpath the piece begins, in device pixels. Subpaths come in the path's
    /// order. Cost: a test a chunk, and the pieces. Allocates nothing.
    template <class F>
    void visit(PixelBox box, F&& f, int margin = 2) const
    {
        const Box view = shifted(box, margin);
        DevicePoint line[kChunk + 1];
        for (const Chunk& chunk : mChunks) {
            if (!chunk.box.meets(view)) continue;
            for (std::uint32_t i = 0; i < chunk.count; ++i)
                line[i] = {double(mPoints[chunk.first + i].x) + mShiftX, double(mPoints[chunk.first + i].y) + mShiftY};
            f(std::span<const DevicePoint>(line, chunk.count), chunk.start);
        }
    }

    /// Boxes that together cover everything that drawing the outline with lines of @p margin pixels' width may touch
    /// inside @p visible: squares along the outline, joined to at most kMostBoxes, cut to @p visible, not overlapping.
    /// Remembered until the path or @p visible changes, so that a tick costs nothing. The reference holds until the
    /// next call.
    const std::vector<PixelBox>& dirtyBoxes(PixelBox visible, int margin = 2);

    static constexpr std::uint32_t kChunk = 64; ///< segments looked at or passed over together
    static constexpr int kMostBoxes = 100;      ///< each costs its share of a redraw's fixed price

private:
    struct Box {
        float x0, y0, x1, y1;
        bool meets(const Box& o) const { return x0 <= o.x1 && x1 >= o.x0 && y0 <= o.y1 && y1 >= o.y0; }
    };
    struct Chunk {
        Box box;
        std::uint32_t first, count; ///< in mPoints; neighbouring chunks of a subpath share a point
        double start;
    };
    /// The box in the coordinates of mPoints.
    Box shifted(PixelBox box, int margin) const
    {
        return {float(box.x0 - margin - mShiftX), float(box.y0 - margin - mShiftY), float(box.x1 + margin - mShiftX),
                float(box.y1 + margin - mShiftY)};
    }
    void rebuild();
    void finishSubpath(std::size_t first, bool hasLines, std::vector<std::uint64_t>& dots, const Box& all);
    bool markTiles(PixelBox visible, int margin, int tile);

    BezierPath mGivenPath;
    AffineTransform mMap;
    double mShiftX = 0, mShiftY = 0;
    bool mKnown = false;
    std::vector<Point> mPoints; ///< device pixels before the shift
    std::vector<Chunk> mChunks;
    std::vector<std::uint8_t> mTiles;
    std::vector<PixelBox> mDirty;
    PixelBox mDirtyFor;
    int mDirtyMargin = 0;
    bool mDirtyKnown = false;
};

} // namespace zp
