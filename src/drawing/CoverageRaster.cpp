// SPDX-License-Identifier: GPL-3.0-or-later
/// Area accumulation: each edge adds signed area to the pixels it crosses, a running sum along the row does the rest.
#include "drawing/CoverageRaster.h"
#include "base/WorkPool.h"
#include "drawing/CoverageRows.h"
#include <algorithm>
#include <bit>
#include <cstring>
#include <memory>

namespace zp
{

namespace
{
constexpr int kFraction = 16;
constexpr std::int64_t kPixel = std::int64_t{1} << kFraction;
constexpr int kAreaPerDy = kAreaBits - kFraction;
/// Edges are cut to this many pixels around the origin, so that whole numbers hold them.
constexpr double kFarAway = 1e7;
constexpr double kCurveTolerance = 0.01;
/// Runs at least this long are reported on their own.
constexpr int kLongRun = 16;

/// The memory an edge will change is announced this many rows ahead, while few enough edges are at work for a wait
/// on memory to count.
constexpr int kRowsAhead = 3;
constexpr std::size_t kFewEdges = 64;
/// Fewer pixels are not worth waking another core.
constexpr int kPixelsOfBand = 1 << 20;

/// An edge at work: where it is at the top of the current row.
struct ActiveEdge {
    std::int64_t x0, y0, x1, y1;
    double slope; ///< columns per row
    std::int64_t x;
    std::int32_t sign;
};

/// One row's area differences and which of them are not zero.
class RowAccumulator
{
public:
    explicit RowAccumulator(int width)
        : mWidth(width), mWords(width / 64 + 1), mArea(std::size_t(mWords) * 64 + 64), mTouched(std::size_t(mWords))
    {
    }

    /// Adds an edge from (xl) to (xr), columns relative to the box, that falls by @p area within this row.
    void add(std::int64_t xl, std::int64_t xr, std::int32_t area)
    {
        if (xl > xr) std::swap(xl, xr);
        if (xl >= mRight) return;
        if (xr <= 0) return put(0, area, 0);
        const std::int64_t first = xl >> kFraction;
        if (xr <= (first + 1) << kFraction) {
            // One column (or none to the left of it): the part of the pixel right of the edge's middle is covered.
            if (first < 0) return put(0, area, 0);
            const std::int64_t middle = (xl + xr) - (first << (kFraction + 1));
            put(int(first), area, std::int32_t((area * middle) >> (kFraction + 1)));
            return;
        }
        addWide(xl, xr, area);
    }

    /// Reports the row and clears it.
    void sweep(int y, int x0, bool evenOdd, bool antialias, CoverageSink& sink)
    {
        Reporter out{sink, y, x0, cover(), 0, antialias};
        std::int32_t sum = 0;
        int at = 0; // everything before it is reported
        for (int w = mLow; w <= mHigh; ++w) {
            std::uint64_t bits = mTouched[std::size_t(w)];
            if (!bits) continue;
            mTouched[std::size_t(w)] = 0;
            const int base = w * 64;
            if (std::popcount(bits) > 10 && base + 64 <= mWidth) {
                out.run(at, base, level(sum, evenOdd));
                std::int32_t sums[kCoverBlock];
                for (int i = 0; i < kCoverBlock; ++i) sums[i] = sum += mArea[std::size_t(base + i)];
                std::memset(&mArea[std::size_t(base)], 0, 64 * sizeof(std::int32_t));
                coverBlock(sums, out.cover + base, evenOdd);
                out.written(base, base + 64);
                at = base + 64;
                continue;
            }
            while (bits) {
                const int x = base + std::countr_zero(bits);
                bits &= bits - 1;
                if (x >= mWidth) break;
                out.run(at, x, level(sum, evenOdd));
                sum += mArea[std::size_t(x)];
                mArea[std::size_t(x)] = 0;
                at = x;
            }
        }
        out.run(at, mWidth, level(sum, evenOdd));
        out.flush(mWidth);
        mArea[std::size_t(mWidth)] = 0;
        mLow = mWords, mHigh = -1;
    }

private:
    /// Joins short runs into stretches of coverage bytes.
    struct Reporter {
        CoverageSink& sink;
        int y, x0;
        std::uint8_t* cover;
        int start; ///< first byte of the stretch not reported yet
        bool antialias;

        void run(int from, int to, std::uint8_t value)
        {
            if (from >= to) return;
            if (!antialias) value = value >= 128 ? 255 : 0;
            if (to - from < kLongRun || (value != 0 && value != 255)) {
                std::memset(cover + from, value, std::size_t(to - from));
                return;
            }
            flush(from);
            if (value) sink.solid(y, x0 + from, x0 + to);
            start = to;
        }
        void written(int from, int to)
        {
            if (antialias) return;
            for (int x = from; x < to; ++x) cover[x] = cover[x] >= 128 ? 255 : 0;
        }
        void flush(int end)
        {
            if (start < end) sink.partial(y, x0 + start, x0 + end, cover + start);
            start = end;
        }
    };

    static std::uint8_t level(std::int32_t sum, bool evenOdd)
    {
        return evenOdd ? coverEvenOdd(sum) : coverNonZero(sum);
    }

    /// @param rest what of @p area covers only the pixels right of @p x
    void put(int x, std::int32_t area, std::int32_t rest)
    {
        mArea[std::size_t(x)] += area - rest;
        mArea[std::size_t(x) + 1] += rest;
        touch(x);
        touch(x + 1);
    }
    void touch(int x)
    {
        const int word = x >> 6;
        mTouched[std::size_t(word)] |= std::uint64_t{1} << (x & 63);
        mLow = std::min(mLow, word);
        mHigh = std::max(mHigh, word);
    }

    /// An edge over two or more columns. How far it has fallen is taken at each column's border from the edge itself,
    /// so that the sum is exact and does not depend on where the box begins.
    void addWide(std::int64_t xl, std::int64_t xr, std::int32_t area)
    {
        const double perColumn = double(area) / double(xr - xl);
        const auto fallen = [&](std::int64_t column) {
            const std::int64_t at = (column << kFraction) - xl;
            return at <= 0 ? 0 : std::int32_t(double(at) * perColumn + (area < 0 ? -0.5 : 0.5));
        };
        std::int64_t column = xl >> kFraction;
        std::int32_t before = 0;
        if (column < 0) {
            before = fallen(0);
            put(0, before, 0);
            column = 0;
        }
        for (; column < mWidth; ++column) {
            const std::int64_t left = column << kFraction, right = left + kPixel;
            const bool last = xr <= right;
            const std::int32_t until = last ? area : fallen(column + 1);
            const std::int32_t here = until - before;
            const std::int64_t middle = std::max(xl, left) + std::min(xr, right) - 2 * left;
            put(int(column), here, std::int32_t((here * middle) >> (kFraction + 1)));
            if (last) return;
            before = until;
        }
    }

    std::uint8_t* cover()
    {
        if (!mCover) mCover = std::make_unique_for_overwrite<std::uint8_t[]>(std::size_t(mWords) * 64);
        return mCover.get();
    }

    int mWidth, mWords;
    std::int64_t mRight = std::int64_t{mWidth} << kFraction;
    std::vector<std::int32_t> mArea;
    std::vector<std::uint64_t> mTouched;
    int mLow = mWords, mHigh = -1;
    std::unique_ptr<std::uint8_t[]> mCover;
};

std::int64_t fixed(double v) { return std::int64_t(std::floor(v * double(kPixel) + 0.5)); }

} // namespace

CoverageRaster::CoverageRaster(PixelBox box) : mBox(box) {}

void CoverageRaster::addFixed(std::int64_t x0, std::int64_t y0, std::int64_t x1, std::int64_t y1)
{
    mMinX = std::min({mMinX, x0, x1}), mMaxX = std::max({mMaxX, x0, x1});
    mMinY = std::min({mMinY, y0, y1}), mMaxY = std::max({mMaxY, y0, y1});
    if (y0 == y1) return;
    // Above, below and to the right of the box an edge has no effect inside it.
    if (std::max(y0, y1) <= std::int64_t{mBox.y0} * kPixel || std::min(y0, y1) >= std::int64_t{mBox.y1} * kPixel ||
        std::min(x0, x1) >= std::int64_t{mBox.x1} * kPixel)
        return;
    if (y0 < y1)
        mEdges.push_back({x0, x1, y0, y1, 1});
    else
        mEdges.push_back({x1, x0, y1, y0, -1});
}

void CoverageRaster::addEdge(CurvePoint a, CurvePoint b)
{
    if (std::isnan(a.x + a.y + b.x + b.y)) {
        mBroken = true;
        return;
    }
    const auto isNear = [](double v) { return std::abs(v) <= kFarAway; };
    if (isNear(a.x) && isNear(a.y) && isNear(b.x) && isNear(b.y)) [[likely]]
        return addFixed(fixed(a.x), fixed(a.y), fixed(b.x), fixed(b.y));
    // Far away ends: cut at the limits; what lies beyond a side limit runs along it.
    const auto tame = [](double v) { return std::clamp(v, -1e30, 1e30); };
    a = {tame(a.x), tame(a.y)}, b = {tame(b.x), tame(b.y)};
    const auto cut = [](CurvePoint p, CurvePoint q, double y) {
        return CurvePoint{p.x + (q.x - p.x) * ((y - p.y) / (q.y - p.y)), y};
    };
    if ((a.y < -kFarAway && b.y < -kFarAway) || (a.y > kFarAway && b.y > kFarAway)) return;
    const CurvePoint from = a, to = b;
    if (a.y < -kFarAway || a.y > kFarAway) a = cut(from, to, std::copysign(kFarAway, a.y));
    if (b.y < -kFarAway || b.y > kFarAway) b = cut(from, to, std::copysign(kFarAway, b.y));
    double stops[4] = {0, 1, 1, 1};
    int count = 1;
    for (const double limit : {-kFarAway, kFarAway}) {
        const double t = (limit - a.x) / (b.x - a.x);
        if (t > 0 && t < 1) stops[count++] = t;
    }
    if (count == 3 && stops[1] > stops[2]) std::swap(stops[1], stops[2]);
    stops[count] = 1;
    const auto at = [&](double t) {
        const double x = t == 0 ? a.x : t == 1 ? b.x : a.x + (b.x - a.x) * t;
        const double y = t == 0 ? a.y : t == 1 ? b.y : a.y + (b.y - a.y) * t;
        return CurvePoint{std::clamp(x, -kFarAway, kFarAway), std::clamp(y, -kFarAway, kFarAway)};
    };
    for (int i = 0; i < count; ++i) {
        const CurvePoint p = at(stops[i]), q = at(stops[i + 1]);
        addFixed(fixed(p.x), fixed(p.y), fixed(q.x), fixed(q.y));
    }
}

void CoverageRaster::moveTo(CurvePoint p)
{
    closeSubpath();
    mStart = mPen = p;
    mOpen = true;
    if (std::isnan(p.x + p.y)) mBroken = true;
}

void CoverageRaster::lineTo(CurvePoint p)
{
    addEdge(mPen, p);
    mPen = p;
}

void CoverageRaster::closeSubpath()
{
    if (mOpen && (mPen.x != mStart.x || mPen.y != mStart.y)) addEdge(mPen, mStart);
    mPen = mStart;
}

void CoverageRaster::addPath(const BezierPath& path, const AffineTransform& t)
{
    const auto map = [&t](Point p) {
        return CurvePoint{t.m11 * double(p.x) + t.m21 * double(p.y) + t.tX,
                          t.m12 * double(p.x) + t.m22 * double(p.y) + t.tY};
    };
    mEdges.reserve(mEdges.size() + std::size_t(path.elementCount()));
    path.forEach([&](PathElement kind, const Point* p) {
        switch (kind) {
        case PathElement::MoveTo:
            moveTo(map(p[0]));
            break;
        case PathElement::LineTo:
            lineTo(map(p[0]));
            break;
        case PathElement::CurveTo:
            flattenCurve(mPen, map(p[0]), map(p[1]), map(p[2]), kCurveTolerance, [&](CurvePoint q) { lineTo(q); });
            break;
        case PathElement::ClosePath:
            closeSubpath();
            break;
        }
    });
    closeSubpath();
}

PixelBox CoverageRaster::extent() const
{
    if (mBroken || mMinX > mMaxX) return {};
    const auto low = [](std::int64_t v) { return int(v >> kFraction); };
    const auto high = [](std::int64_t v) { return int((v + kPixel - 1) >> kFraction); };
    return PixelBox{low(mMinX), low(mMinY), high(mMaxX), high(mMaxY)}.intersected(mBox);
}

CoverageRaster::Order CoverageRaster::sorted(PixelBox box) const
{
    const std::int64_t top = std::int64_t{box.y0} * kPixel;
    const auto rows = std::size_t(box.height());
    const auto firstRow = [&](const Edge& e) {
        return e.y0 <= top ? 0 : std::min(std::size_t((e.y0 - top) >> kFraction), rows);
    };
    Order order{std::vector<std::uint32_t>(mEdges.size()), std::vector<std::uint32_t>(rows + 2)};
    for (const Edge& e : mEdges) ++order.starts[firstRow(e) + 1];
    for (std::size_t i = 1; i < order.starts.size(); ++i) order.starts[i] += order.starts[i - 1];
    std::vector<std::uint32_t> next(order.starts.begin(), order.starts.end() - 1);
    for (std::uint32_t i = 0; i < mEdges.size(); ++i) order.edges[next[firstRow(mEdges[i])]++] = i;
    return order;
}

void CoverageRaster::sweep(WindingRule rule, bool antialias, CoverageSink& sink)
{
    closeSubpath();
    const PixelBox box = extent();
    if (!box.isEmpty()) sweepRows(box, sorted(box), 0, box.height(), rule, antialias, sink);
}

void CoverageRaster::sweepInBands(WindingRule rule, bool antialias, CoverageSink& sink)
{
    closeSubpath();
    const PixelBox box = extent();
    if (box.isEmpty()) return;
    const Order order = sorted(box);
    parallelBands(box.height(), 1 + kPixelsOfBand / box.width(),
                  [&](int first, int last) { sweepRows(box, order, first, last, rule, antialias, sink); });
}

void CoverageRaster::sweepRows(PixelBox box, const Order& order, int first, int last, WindingRule rule, bool antialias,
                               CoverageSink& sink) const
{
    const std::int64_t top = std::int64_t{box.y0} * kPixel, left = std::int64_t{box.x0} * kPixel;
    RowAccumulator row(box.width());
    std::vector<ActiveEdge> active;
    for (int r = first; r < last; ++r) {
        const std::int64_t rowTop = top + std::int64_t{r} * kPixel, rowEnd = rowTop + kPixel;
        // In the first row also those that began in the rows above.
        for (std::uint32_t i = r == first ? 0 : order.starts[std::size_t(r)]; i < order.starts[std::size_t(r) + 1];
             ++i) {
            const Edge& e = mEdges[order.edges[i]];
            if (e.y1 <= rowTop) continue;
            ActiveEdge a{e.x0, e.y0, e.x1, e.y1, double(e.x1 - e.x0) / double(e.y1 - e.y0), e.x0, e.sign};
            if (e.y0 < rowTop) a.x = e.x0 + std::int64_t(std::floor(double(rowTop - e.y0) * a.slope + 0.5));
            active.push_back(a);
        }
        if (active.empty()) continue;
        const bool announce = active.size() <= kFewEdges && r + kRowsAhead < last;
        std::size_t kept = 0;
        for (std::size_t i = 0; i < active.size(); ++i) {
            ActiveEdge& e = active[i];
            const std::int64_t from = std::max(e.y0, rowTop);
            if (e.y1 <= rowEnd) {
                row.add(e.x - left, e.x1 - left, e.sign * std::int32_t((e.y1 - from) << kAreaPerDy));
                continue;
            }
            // From the edge's own beginning each time: no error piles up, and no box changes it.
            const std::int64_t x = e.x0 + std::int64_t(std::floor(double(rowEnd - e.y0) * e.slope + 0.5));
            row.add(e.x - left, x - left, e.sign * std::int32_t((rowEnd - from) << kAreaPerDy));
            if (announce) {
                const std::int64_t column = (x + (kRowsAhead - 1) * (x - e.x)) >> kFraction;
                if (column >= box.x0 && column < box.x1) sink.expect(box.y0 + r + kRowsAhead, int(column));
            }
            e.x = x;
            if (kept != i) active[kept] = e;
            ++kept;
        }
        active.resize(kept);
        row.sweep(box.y0 + r, box.x0, rule == WindingRule::EvenOdd, antialias, sink);
    }
}

} // namespace zp
