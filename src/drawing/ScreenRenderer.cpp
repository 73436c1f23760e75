// SPDX-License-Identifier: GPL-3.0-or-later
/// The picture as screen pixels: one path at full size, one for squares, one for halves and one for any reduction.
#include "drawing/ScreenRenderer.h"
#include "base/WorkPool.h"
#include "drawing/Halving.h"
#include "drawing/ResampleRows.h"
#include "drawing/ScreenRows.h"
#include <algorithm>
#include <cmath>
#include <vector>

namespace zp
{

namespace
{

using namespace resampling;

/// The place on the image where device position @p d begins. Places that only rounding keeps from a pixel's edge are
/// put on it, so that whole steps cover whole pixels.
double edgeOf(int d, double scale)
{
    const double edge = d / scale;
    const double whole = std::round(edge);
    return std::abs(edge - whole) < 1e-6 ? whole : edge;
}

/// What each of the device positions [from, to) covers of an axis; source positions counted from @p origin.
Taps coverAxis(int from, int to, double scale, int length, int origin)
{
    TapsBuilder taps;
    for (int d = from; d < to; ++d) {
        const double begin = std::clamp(edgeOf(d, scale), 0.0, double(length));
        const double end = std::clamp(edgeOf(d + 1, scale), 0.0, double(length));
        const int first = int(std::floor(begin)), last = int(std::ceil(end));
        std::vector<double> shares;
        for (int i = first; i < last; ++i)
            shares.push_back((std::min(double(i + 1), end) - std::max(double(i), begin)) / (end - begin));
        taps.add(first - origin, std::move(shares));
    }
    return taps.build();
}

/// Rows [y0, y1) of the box at full size or larger.
void renderSquares(ConstBitmapView image, std::uint32_t* out, std::ptrdiff_t outStride, PixelBox box, double scale)
{
    const auto sourceOf = [scale](int d, int length) {
        return std::clamp(int(std::floor((d + 0.5) / scale)), 0, length - 1);
    };
    if (scale == 1) {
        for (int y = box.y0; y < box.y1; ++y)
            convertToScreen(image.row(y) + box.x0, out + outStride * (y - box.y0), box.width());
        return;
    }
    const int first = sourceOf(box.x0, image.width), last = sourceOf(box.x1 - 1, image.width);
    std::vector<std::int32_t> column(std::size_t(box.width()));
    for (int x = box.x0; x < box.x1; ++x) column[std::size_t(x - box.x0)] = sourceOf(x, image.width) - first;
    std::vector<std::uint32_t> row(std::size_t(last - first + 1));
    int shown = -1;
    for (int y = box.y0; y < box.y1; ++y) {
        std::uint32_t* line = out + outStride * (y - box.y0);
        const int source = sourceOf(y, image.height);
        if (source == shown) {
            std::copy_n(line - outStride, box.width(), line);
            continue;
        }
        convertToScreen(image.row(source) + first, row.data(), int(row.size()));
        // One by one: no processor gathers faster than it loads.
        for (int x = 0; x < box.width(); ++x) line[x] = row[std::size_t(column[std::size_t(x)])];
        shown = source;
    }
}

/// Every device pixel covers 1 << level by 1 << level whole image pixels, all of them inside the image.
void renderHalves(ConstBitmapView image, std::uint32_t* out, std::ptrdiff_t outStride, PixelBox box, int level)
{
    std::vector<std::uint32_t> pixels(std::size_t(box.width()));
    for (int y = box.y0; y < box.y1; ++y) {
        averageSquares(image, box.x0 << level, y << level, box.width(), level, pixels.data());
        convertToScreen(pixels.data(), out + outStride * (y - box.y0), box.width());
    }
}

/// Any reduction; every device pixel touches the image.
void renderReduced(ConstBitmapView image, std::uint32_t* out, std::ptrdiff_t outStride, PixelBox box, double scale)
{
    const int origin = int(std::floor(edgeOf(box.x0, scale)));
    const int end = std::min(image.width, int(std::ceil(edgeOf(box.x1, scale))));
    const Taps rows = coverAxis(box.y0, box.y1, scale, image.height, 0);
    const Taps columns = coverAxis(box.x0, box.x1, scale, image.width, origin);
    const ConstBitmapView covered = image.part({origin, 0, end, image.height});
    PaddedRow sums(covered.width);
    std::vector<Wide> line(std::size_t(box.width()) * 4 + 64);
    std::vector<std::uint32_t> longSums, pixels(std::size_t(box.width()));
    for (int y = box.y0; y < box.y1; ++y) {
        sumRows(covered, rows, std::size_t(y - box.y0), sums.samples(), longSums);
        sumAlong(sums.samples(), columns, line.data());
        finishRow(line.data(), pixels.data(), box.width(), kFirstBits - 1);
        convertToScreen(pixels.data(), out + outStride * (y - box.y0), box.width());
    }
}

/// Device positions of one axis that touch the image: [0, this).
int deviceLength(int length, double scale)
{
    if (scale >= 1) {
        // The middle of the position must lie inside.
        const double end = std::ceil(length * scale - 0.5);
        return end >= 2e9 ? 2'000'000'000 : int(end);
    }
    int end = int(std::ceil(length * scale));
    while (end > 0 && edgeOf(end - 1, scale) >= length) --end;
    return end;
}

} // namespace

void renderToScreen(ConstBitmapView image, std::uint32_t* out, std::ptrdiff_t outStride, PixelBox deviceBox,
                    double scale, std::uint32_t outside)
{
    if (deviceBox.isEmpty()) return;
    PixelBox shown;
    if (!image.isEmpty() && scale > 0 && std::isfinite(scale))
        shown = deviceBox.intersected({0, 0, deviceLength(image.width, scale), deviceLength(image.height, scale)});
    if (shown != deviceBox) {
        for (int y = deviceBox.y0; y < deviceBox.y1; ++y) {
            std::uint32_t* line = out + outStride * (y - deviceBox.y0);
            if (y < shown.y0 || y >= shown.y1) {
                std::fill_n(line, deviceBox.width(), outside);
                continue;
            }
            std::fill_n(line, shown.x0 - deviceBox.x0, outside);
            std::fill_n(line + (shown.x1 - deviceBox.x0), deviceBox.x1 - shown.x1, outside);
        }
    }
    if (shown.isEmpty()) return;

    const double step = 1 / scale;
    int level = 0;
    for (int l = 1; l <= kMostHalvings; ++l)
        if (std::abs(step - (1 << l)) < 1e-9) level = l;
    // The last column or row of halves may cover less than a whole square: the general way takes those.
    const PixelBox whole = level == 0 ? shown : shown.intersected({0, 0, image.width >> level, image.height >> level});

    const auto renderPart = [&](PixelBox part) {
        if (part.isEmpty()) return;
        std::uint32_t* at = out + outStride * (part.y0 - deviceBox.y0) + (part.x0 - deviceBox.x0);
        if (scale >= 1)
            renderSquares(image, at, outStride, part, scale);
        else if (level > 0 && part.x1 <= whole.x1 && part.y1 <= whole.y1)
            renderHalves(image, at, outStride, part, level);
        else
            renderReduced(image, at, outStride, part, scale);
    };
    // Rows so that a part reads or writes a few hundred thousand pixels: less is not worth handing over.
    const double work = std::max(1.0, shown.width() * std::max(1.0, step * step));
    const int grain = int(std::clamp(400'000 / work, 1.0, 1e6));
    parallelBands(shown.height(), grain, [&](int from, int to) {
        const PixelBox part{shown.x0, shown.y0 + from, shown.x1, shown.y0 + to};
        const PixelBox inner = part.intersected(whole);
        if (inner.isEmpty()) return renderPart(part);
        renderPart(inner);
        renderPart({inner.x1, part.y0, part.x1, part.y1});
        renderPart({part.x0, inner.y1, inner.x1, part.y1});
    });
}

} // namespace zp
