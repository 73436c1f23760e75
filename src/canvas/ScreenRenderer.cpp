// SPDX-License-Identifier: GPL-3.0-or-later
/// The picture as screen pixels: one path at full size, one for squares, one for halves and one for any reduction.
#include "canvas/ScreenRenderer.h"
#include "platform/Simd.h"
#include "platform/WorkPool.h"
#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <vector>

namespace zp
{

namespace
{

static_assert(std::endian::native == std::endian::little, "alpha is taken from the low byte of a pixel's word");

/// Two of a pixel's four bytes, each with 16 bits of room: sums of up to 257 pixels do not meet.
constexpr std::uint32_t kPairMask = 0x00FF00FF;
/// Grey behind the picture, as a byte: half of 255, rounded.
constexpr std::uint32_t kGray = 128;

/// Words of the picture to words of the screen. Opaque pixels are only swapped.
ZP_MULTIVERSION void convertRow(const std::uint32_t* __restrict pixels, std::uint32_t* __restrict out, int count)
{
    for (int i = 0; i < count; ++i) {
        const std::uint32_t w = pixels[i];
        const std::uint32_t clear = 255 - (w & 255);
        // (clear * grey) / 255 rounded, exact over the whole range; the colour is at most alpha, so no byte overflows.
        const std::uint32_t gray = ((clear * kGray + 127) * 0x8081u) >> 23;
        const std::uint32_t opaque = w + gray * 0x01010100u;
        out[i] = 0xFF000000u | ((opaque & 0xFF00u) << 8) | ((opaque >> 8) & 0xFF00u) | (opaque >> 24);
    }
}

ZP_MULTIVERSION void pickColumns(const std::uint32_t* __restrict row, const std::int32_t* __restrict column,
                                 std::uint32_t* __restrict out, int count)
{
    for (int i = 0; i < count; ++i) out[i] = row[column[i]];
}

/// Sums of two rows, byte by byte, in pairs with room; added to what is there or put in its place.
ZP_MULTIVERSION void sumTwoRows(const std::uint32_t* __restrict a, const std::uint32_t* __restrict b,
                                std::uint32_t* __restrict even, std::uint32_t* __restrict odd, int count)
{
    for (int i = 0; i < count; ++i) {
        even[i] = (a[i] & kPairMask) + (b[i] & kPairMask);
        odd[i] = ((a[i] >> 8) & kPairMask) + ((b[i] >> 8) & kPairMask);
    }
}

ZP_MULTIVERSION void addTwoRows(const std::uint32_t* __restrict a, const std::uint32_t* __restrict b,
                                std::uint32_t* __restrict even, std::uint32_t* __restrict odd, int count)
{
    for (int i = 0; i < count; ++i) {
        even[i] += (a[i] & kPairMask) + (b[i] & kPairMask);
        odd[i] += ((a[i] >> 8) & kPairMask) + ((b[i] >> 8) & kPairMask);
    }
}

ZP_MULTIVERSION void addNeighbours(const std::uint32_t* __restrict in, std::uint32_t* __restrict out, int count)
{
    for (int i = 0; i < count; ++i) out[i] = in[2 * i] + in[2 * i + 1];
}

/// Sums of 1 << shift pixels back to pixels, rounded.
ZP_MULTIVERSION void divideSums(const std::uint32_t* __restrict even, const std::uint32_t* __restrict odd,
                                std::uint32_t* __restrict pixels, int count, int shift)
{
    const std::uint32_t half = 0x00010001u << (shift - 1);
    for (int i = 0; i < count; ++i) {
        const std::uint32_t e = ((even[i] + half) >> shift) & kPairMask;
        const std::uint32_t o = ((odd[i] + half) >> shift) & kPairMask;
        pixels[i] = e | (o << 8);
    }
}

// A row's weight is a share of 256 on the way down to 16-bit sums: enough while a row's share is some 8 of them.
constexpr std::uint32_t kRowOne = 256;
constexpr double kLargestShortStep = 32;
// For longer steps the share is one of 65536, in 32-bit sums.
constexpr std::uint32_t kLongRowOne = 65536;
/// A column's weight is a share of this.
constexpr std::uint32_t kColumnOne = 16384;

ZP_MULTIVERSION void setWeighted(const std::uint8_t* __restrict bytes, std::uint16_t* __restrict sums, int count,
                                 std::uint32_t weight)
{
    const auto w = std::uint16_t(weight);
    for (int i = 0; i < count; ++i) sums[i] = std::uint16_t(bytes[i] * w);
}

ZP_MULTIVERSION void addWeighted(const std::uint8_t* __restrict bytes, std::uint16_t* __restrict sums, int count,
                                 std::uint32_t weight)
{
    const auto w = std::uint16_t(weight);
    for (int i = 0; i < count; ++i) sums[i] = std::uint16_t(sums[i] + bytes[i] * w);
}

ZP_MULTIVERSION void addWeightedLong(const std::uint8_t* __restrict bytes, std::uint32_t* __restrict sums, int count,
                                     std::uint32_t weight)
{
    for (int i = 0; i < count; ++i) sums[i] += bytes[i] * weight;
}

ZP_MULTIVERSION void shortenSums(const std::uint32_t* __restrict sums, std::uint16_t* __restrict out, int count)
{
    for (int i = 0; i < count; ++i) out[i] = std::uint16_t(sums[i] >> 8);
}

/// Which source columns (or rows) one device column (or row) covers, and the share of each.
struct Cover {
    int first = 0, count = 0;
    std::size_t weights = 0; ///< index of the first share
};

/// Covers of the device positions [from, to) of one axis.
struct Axis {
    std::vector<Cover> covers;
    std::vector<std::uint32_t> weights;
};

/// The place on the image where device position @p d begins. Places that only rounding keeps from a pixel's edge are
/// put on it, so that whole steps cover whole pixels.
double edgeOf(int d, double scale)
{
    const double edge = d / scale;
    const double whole = std::round(edge);
    return std::abs(edge - whole) < 1e-6 ? whole : edge;
}

Axis coverAxis(int from, int to, double scale, int length, std::uint32_t one)
{
    Axis axis;
    axis.covers.resize(std::size_t(to - from));
    for (int d = from; d < to; ++d) {
        const double begin = std::clamp(edgeOf(d, scale), 0.0, double(length));
        const double end = std::clamp(edgeOf(d + 1, scale), 0.0, double(length));
        Cover& cover = axis.covers[std::size_t(d - from)];
        cover.weights = axis.weights.size();
        if (!(end > begin)) continue;
        cover.first = int(std::floor(begin));
        cover.count = int(std::ceil(end)) - cover.first;
        // Shares are differences of rounded running sums: they come out at exactly one together.
        std::uint32_t before = 0;
        for (int i = 0; i < cover.count; ++i) {
            const double reached = std::min(double(cover.first + i + 1), end) - begin;
            const auto sum = std::uint32_t(std::lround(one * (reached / (end - begin))));
            axis.weights.push_back(sum - before);
            before = sum;
        }
    }
    return axis;
}

/// One device row from the weighted sums of its source rows; sums start at source column @p origin.
ZP_MULTIVERSION void sumColumns(const std::uint16_t* __restrict sums, const Cover* __restrict covers,
                                const std::uint32_t* __restrict weights, std::uint32_t* __restrict pixels, int count,
                                int origin)
{
    constexpr int kShift = 8 + 14; // both ones
    for (int x = 0; x < count; ++x) {
        const Cover& cover = covers[x];
        std::uint32_t total[4] = {1u << (kShift - 1), 1u << (kShift - 1), 1u << (kShift - 1), 1u << (kShift - 1)};
        const std::uint16_t* sum = sums + std::ptrdiff_t{4} * (cover.first - origin);
        const std::uint32_t* weight = weights + cover.weights;
        for (int i = 0; i < cover.count; ++i)
            for (int c = 0; c < 4; ++c) total[c] += sum[4 * i + c] * weight[i];
        pixels[x] =
            (total[0] >> kShift) | (total[1] >> kShift) << 8 | (total[2] >> kShift) << 16 | (total[3] >> kShift) << 24;
    }
}

/// Rows [y0, y1) of the box at full size or larger.
void renderSquares(ConstBitmapView image, std::uint32_t* out, std::ptrdiff_t outStride, PixelBox box, double scale)
{
    const auto sourceOf = [scale](int d, int length) {
        return std::clamp(int(std::floor((d + 0.5) / scale)), 0, length - 1);
    };
    if (scale == 1) {
        for (int y = box.y0; y < box.y1; ++y)
            convertRow(image.row(y) + box.x0, out + outStride * (y - box.y0), box.width());
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
        convertRow(image.row(source) + first, row.data(), int(row.size()));
        pickColumns(row.data(), column.data(), line, box.width());
        shown = source;
    }
}

/// Every device pixel covers 1 << level by 1 << level whole image pixels, all of them inside the image.
void renderHalves(ConstBitmapView image, std::uint32_t* out, std::ptrdiff_t outStride, PixelBox box, int level)
{
    constexpr int kPiece = 1024; // source pixels a piece: its sums stay in the first cache
    const int step = 1 << level;
    alignas(64) std::array<std::array<std::uint32_t, kPiece>, 2> even, odd;
    for (int y = box.y0; y < box.y1; ++y) {
        for (int x = box.x0; x < box.x1; x += kPiece >> level) {
            const int count = std::min(kPiece >> level, box.x1 - x);
            int wide = count << level;
            for (int r = 0; r < step; r += 2) {
                const std::uint32_t* a = image.row((y << level) + r) + (std::ptrdiff_t{x} << level);
                const std::uint32_t* b = image.row((y << level) + r + 1) + (std::ptrdiff_t{x} << level);
                if (r == 0)
                    sumTwoRows(a, b, even[0].data(), odd[0].data(), wide);
                else
                    addTwoRows(a, b, even[0].data(), odd[0].data(), wide);
            }
            int full = 0;
            for (int fold = 0; fold < level; ++fold, full ^= 1) {
                wide >>= 1;
                addNeighbours(even[std::size_t(full)].data(), even[std::size_t(full ^ 1)].data(), wide);
                addNeighbours(odd[std::size_t(full)].data(), odd[std::size_t(full ^ 1)].data(), wide);
            }
            std::uint32_t* pixels = even[std::size_t(full ^ 1)].data();
            divideSums(even[std::size_t(full)].data(), odd[std::size_t(full)].data(), pixels, count, 2 * level);
            convertRow(pixels, out + outStride * (y - box.y0) + (x - box.x0), count);
        }
    }
}

/// Any reduction; every device pixel touches the image.
void renderReduced(ConstBitmapView image, std::uint32_t* out, std::ptrdiff_t outStride, PixelBox box, double scale)
{
    const bool isLong = 1 / scale > kLargestShortStep;
    const Axis rows = coverAxis(box.y0, box.y1, scale, image.height, isLong ? kLongRowOne : kRowOne);
    const Axis columns = coverAxis(box.x0, box.x1, scale, image.width, kColumnOne);
    const int origin = columns.covers.front().first;
    const int bytes = 4 * (columns.covers.back().first + columns.covers.back().count - origin);
    std::vector<std::uint16_t> sums(std::size_t(bytes), 0);
    std::vector<std::uint32_t> longSums(isLong ? std::size_t(bytes) : 0);
    std::vector<std::uint32_t> pixels(std::size_t(box.width()));
    for (int y = box.y0; y < box.y1; ++y) {
        const Cover& cover = rows.covers[std::size_t(y - box.y0)];
        if (isLong) std::ranges::fill(longSums, 0u);
        for (int i = 0; i < cover.count; ++i) {
            const std::uint8_t* line = image.pixel(origin, cover.first + i);
            const std::uint32_t weight = rows.weights[cover.weights + std::size_t(i)];
            if (isLong)
                addWeightedLong(line, longSums.data(), bytes, weight);
            else if (i == 0)
                setWeighted(line, sums.data(), bytes, weight);
            else
                addWeighted(line, sums.data(), bytes, weight);
        }
        if (isLong) shortenSums(longSums.data(), sums.data(), bytes);
        sumColumns(sums.data(), columns.covers.data(), columns.weights.data(), pixels.data(), box.width(), origin);
        convertRow(pixels.data(), out + outStride * (y - box.y0), box.width());
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
    for (int l = 1; l <= 4; ++l)
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
