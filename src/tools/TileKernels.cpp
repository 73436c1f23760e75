// SPDX-License-Identifier: GPL-3.0-or-later
/// Matching and writing 64 pixels at a time.
#include "tools/TileKernels.h"
#include <algorithm>
#include <bit>
#include <cstring>

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "tools/TileKernels.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

#include "base/PixelVectors-inl.h"

#ifndef ZP_TILE_KERNELS_ONCE
#define ZP_TILE_KERNELS_ONCE
namespace zp
{
namespace
{

constexpr std::uint64_t kAll = ~std::uint64_t{0};

/// Each byte's lowest match and how far above it the highest is: x matches when x - low, modulo 256, is at most that.
struct ByteRange {
    std::uint32_t low = 0, reach = 0;
    explicit ByteRange(const TileQuery& query)
    {
        for (int shift = 0; shift < 32; shift += 8) {
            const int b = int(query.target >> shift & 0xFF), t = query.tolerance - 1;
            const int lowest = std::max(0, b - t), highest = std::min(255, b + t);
            low |= std::uint32_t(lowest) << shift;
            reach |= std::uint32_t(highest - lowest) << shift;
        }
    }
};

template <class T>
void writeRuns(T* row, std::uint64_t bits, T value)
{
    while (bits) {
        const int first = std::countr_zero(bits), length = std::countr_one(bits >> first);
        std::fill_n(row + first, length, value);
        if (first + length == 64) return;
        bits &= kAll << (first + length);
    }
}

/// Calls the lines of a row from memory. Tiles lie far apart, and no processor guesses which is next.
inline void announceRow(const TileSource& tile, int y)
{
    constexpr std::ptrdiff_t kLine = 64;
    const std::uint8_t* const row = tile.pixels + tile.rowBytes * y;
    for (std::ptrdiff_t at = 0; at < 4 * kTileSide; at += kLine) prefetch(row + at);
    prefetch(row + 4 * tile.width - 1); // a row need not begin with a line
    if (!tile.mask) return;
    const std::uint8_t* const mask = tile.mask + tile.maskStride * y;
    prefetch(mask), prefetch(mask + tile.width - 1);
}

} // namespace
} // namespace zp
#endif

HWY_BEFORE_NAMESPACE();
namespace zp::HWY_NAMESPACE
{
namespace
{

/// A vector's mask as its lowest bits.
template <class D, class M>
HWY_INLINE std::uint64_t bitsOf(D d, M mask)
{
    std::uint8_t bytes[8] = {};
    hn::StoreMaskBits(d, mask, bytes);
    std::uint64_t bits;
    std::memcpy(&bits, bytes, sizeof bits);
    return bits;
}

HWY_INLINE std::uint64_t matchesOf64(const std::uint8_t* pixels, const ByteRange& range)
{
    const hn::CappedTag<std::uint32_t, kTileSide> d;
    const hn::Repartition<std::uint8_t, decltype(d)> d8;
    const auto low = hn::BitCast(d8, hn::Set(d, range.low)), reach = hn::BitCast(d8, hn::Set(d, range.reach));
    std::uint64_t bits = 0;
    for (std::size_t x = 0; x < kTileSide; x += hn::Lanes(d)) {
        const auto beyond = hn::SaturatedSub(hn::Sub(hn::LoadU(d8, pixels + 4 * x), low), reach);
        bits |= bitsOf(d, hn::Eq(hn::BitCast(d, beyond), hn::Zero(d))) << x;
    }
    return bits;
}

HWY_INLINE std::uint64_t zerosOf64(const std::uint8_t* bytes)
{
    const hn::CappedTag<std::uint8_t, kTileSide> d;
    std::uint64_t bits = 0;
    for (std::size_t x = 0; x < kTileSide; x += hn::Lanes(d))
        bits |= bitsOf(d, hn::Eq(hn::LoadU(d, bytes + x), hn::Zero(d))) << x;
    return bits;
}

TileEdges loadTile(const TileSource& source, const TileQuery& query, TileRows& open, const TileSource* next)
{
    const ByteRange range(query);
    const bool whole = source.width == kTileSide;
    const std::uint64_t columns = kAll >> (kTileSide - source.width);
    TileEdges edges{0, 0, false};
    std::uint64_t all = kAll;
    for (int y = 0; y < source.height; ++y) {
        if (next && y < next->height) announceRow(*next, y);
        const std::uint8_t *row = source.pixels + source.rowBytes * y, *mask = source.mask + source.maskStride * y;
        alignas(64) std::uint8_t pixels[4 * kTileSide], bytes[kTileSide];
        if (!whole) {
            std::memcpy(pixels, row, 4 * std::size_t(source.width));
            row = pixels;
        }
        std::uint64_t bits = matchesOf64(row, range);
        if (source.mask) {
            if (!whole) {
                std::memcpy(bytes, mask, std::size_t(source.width));
                mask = bytes;
            }
            const std::uint64_t zeros = zerosOf64(mask);
            bits &= query.openWhereMaskIsZero ? zeros : ~zeros;
        }
        bits &= columns;
        open[std::size_t(y)] = bits;
        edges.left |= (bits & 1) << y;
        edges.right |= (bits >> (kTileSide - 1)) << y;
        all &= bits;
    }
    std::fill(open.begin() + source.height, open.end(), 0);
    edges.allOpen = source.height == kTileSide && all == kAll;
    return edges;
}

template <class T>
HWY_INLINE void writeBits(T* row, std::uint64_t bits, T value, int room)
{
    // A vector's store may touch what it does not change.
    if (room < kTileSide) return writeRuns(row, bits, value);
    const hn::CappedTag<T, kTileSide> d;
    const auto v = hn::Set(d, value);
    for (std::size_t x = 0; x < kTileSide; x += hn::Lanes(d), bits >>= hn::Lanes(d) % 64) {
        std::uint8_t bytes[8];
        std::memcpy(bytes, &bits, sizeof bytes);
        const auto set = hn::LoadMaskBits(d, bytes);
        // Only with masks of its own can the processor store without having waited for what is there.
        if constexpr (HWY_TARGET <= HWY_AVX3)
            hn::BlendedStore(v, set, d, row + x);
        else
            hn::StoreU(hn::IfThenElse(set, v, hn::LoadU(d, row + x)), d, row + x);
    }
}

void widenBounds(const std::uint8_t* row, int width, ByteBounds* tiles)
{
    const hn::CappedTag<std::uint8_t, 4 * kTileSide> d;
    const hn::Repartition<std::uint32_t, decltype(d)> d32;
    for (int x = 0; x < width; x += kTileSide, ++tiles, row += 4 * kTileSide) {
        alignas(64) std::uint8_t pixels[4 * kTileSide];
        const std::uint8_t* from = row;
        if (const int count = std::min(kTileSide, width - x); count < kTileSide) {
            // The last pixel again, up to the tile's end.
            std::memcpy(pixels, row, 4 * std::size_t(count));
            for (int i = count; i < kTileSide; ++i) std::memcpy(pixels + 4 * i, row + 4 * (count - 1), 4);
            from = pixels;
        }
        auto low = hn::BitCast(d, hn::Set(d32, tiles->low)), high = hn::BitCast(d, hn::Set(d32, tiles->high));
        for (std::size_t at = 0; at < 4 * kTileSide; at += hn::Lanes(d)) {
            const auto v = hn::LoadU(d, from + at);
            low = hn::Min(low, v), high = hn::Max(high, v);
        }
        alignas(64) std::uint8_t lows[4 * kTileSide], highs[4 * kTileSide];
        hn::Store(low, d, lows);
        hn::Store(high, d, highs);
        std::uint8_t least[4], most[4];
        std::memcpy(least, lows, 4);
        std::memcpy(most, highs, 4);
        for (std::size_t at = 4; at < hn::Lanes(d); ++at) {
            least[at % 4] = std::min(least[at % 4], lows[at]);
            most[at % 4] = std::max(most[at % 4], highs[at]);
        }
        std::memcpy(&tiles->low, least, 4);
        std::memcpy(&tiles->high, most, 4);
    }
}

void paintBits(std::uint32_t* row, std::uint64_t bits, std::uint32_t word, int room)
{
    writeBits(row, bits, word, room);
}
void clearBits(std::uint8_t* row, std::uint64_t bits, int room) { writeBits<std::uint8_t>(row, bits, 0, room); }

template <class T>
HWY_INLINE void fillBox(T* first, std::ptrdiff_t rowBytes, int width, int height, T value)
{
    for (int y = 0; y < height; ++y) {
        T* const row = reinterpret_cast<T*>(reinterpret_cast<std::uint8_t*>(first) + rowBytes * y);
        forEachVector<T>(std::size_t(width),
                         [=](auto d, std::size_t at) ZP_LANES { hn::StoreU(hn::Set(d, value), d, row + at); });
    }
}

void paintBox(std::uint32_t* first, std::ptrdiff_t rowBytes, int width, int height, std::uint32_t word)
{
    fillBox(first, rowBytes, width, height, word);
}
void clearBox(std::uint8_t* first, std::ptrdiff_t rowBytes, int width, int height)
{
    fillBox<std::uint8_t>(first, rowBytes, width, height, 0);
}

} // namespace
} // namespace zp::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace zp
{

HWY_EXPORT(loadTile);
HWY_EXPORT(widenBounds);
HWY_EXPORT(paintBits);
HWY_EXPORT(clearBits);
HWY_EXPORT(paintBox);
HWY_EXPORT(clearBox);

TileEdges loadTile(const TileSource& source, const TileQuery& query, TileRows& open, const TileSource* next)
{
    return HWY_DYNAMIC_DISPATCH(loadTile)(source, query, open, next);
}
void widenBounds(const std::uint8_t* row, int width, ByteBounds* tiles)
{
    HWY_DYNAMIC_DISPATCH(widenBounds)(row, width, tiles);
}
void paintBits(std::uint32_t* row, std::uint64_t bits, std::uint32_t word, int room)
{
    HWY_DYNAMIC_DISPATCH(paintBits)(row, bits, word, room);
}
void clearBits(std::uint8_t* row, std::uint64_t bits, int room) { HWY_DYNAMIC_DISPATCH(clearBits)(row, bits, room); }
void paintBox(std::uint32_t* first, std::ptrdiff_t rowBytes, int width, int height, std::uint32_t word)
{
    HWY_DYNAMIC_DISPATCH(paintBox)(first, rowBytes, width, height, word);
}
void clearBox(std::uint8_t* first, std::ptrdiff_t rowBytes, int width, int height)
{
    HWY_DYNAMIC_DISPATCH(clearBox)(first, rowBytes, width, height);
}

} // namespace zp
#endif
