// SPDX-License-Identifier: GPL-3.0-or-later
/// Four pixels at a time where they lie apart, one at a time where each needs the one before.
#include "codecs/PNGUnfilter.h"
#include <cstdlib>
#include <cstring>

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "codecs/PNGUnfilter.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace zp::codec::HWY_NAMESPACE
{
namespace
{
namespace hn = hwy::HWY_NAMESPACE;

/// Four pixels. Wider vectors would gain nothing: every filter but one is a chain from pixel to pixel.
using D8 = hn::FixedTag<std::uint8_t, 16>;
using D32 = hn::Repartition<std::uint32_t, D8>;
using V8 = hn::Vec<D8>;
/// One pixel's channels.
using DPixel = hn::FixedTag<std::int16_t, 8>;
using DPixelBytes = hn::Rebind<std::uint8_t, DPixel>;
using VPixel = hn::Vec<DPixel>;

/// How rows of one kind become pixels.
template <bool Alpha>
struct Kind {
    static constexpr std::size_t kBytes = Alpha ? 4 : 3;
    /// From 16 bytes, of which 12 count without alpha.
    HWY_INLINE static V8 spread(V8 bytes)
    {
        HWY_ALIGN static constexpr std::uint8_t kWith[16] = {3, 0, 1, 2, 7, 4, 5, 6, 11, 8, 9, 10, 15, 12, 13, 14};
        HWY_ALIGN static constexpr std::uint8_t kWithout[16] = {0x80, 0, 1, 2, 0x80, 3, 4,  5,
                                                                0x80, 6, 7, 8, 0x80, 9, 10, 11};
        return hn::TableLookupBytesOr0(bytes, hn::Load(D8(), Alpha ? kWith : kWithout));
    }
    /// Alpha of a row without any is made 255.
    HWY_INLINE static V8 opaque(V8 pixels)
    {
        return Alpha ? pixels : hn::Or(pixels, hn::BitCast(D8(), hn::Set(D32(), 255u)));
    }
};

/// Calls step(residuals, pixels above) for four pixels after the other and stores what it gives.
template <bool Alpha, class Step>
HWY_INLINE void eachFour(const std::uint8_t* row, const std::uint8_t* above, std::uint8_t* argb, std::size_t count,
                         Step step)
{
    const D8 d;
    const std::size_t bytes = Kind<Alpha>::kBytes * count;
    std::size_t from = 0, to = 0;
    for (; from + 16 <= bytes; from += 4 * Kind<Alpha>::kBytes, to += 16) {
        const V8 residuals = Kind<Alpha>::spread(hn::LoadU(d, row + from));
        hn::StoreU(Kind<Alpha>::opaque(step(residuals, above ? hn::LoadU(d, above + to) : hn::Zero(d))), d, argb + to);
    }
    // Less than 16 bytes of the row: up to five pixels.
    while (from < bytes) {
        HWY_ALIGN std::uint8_t rest[16] = {};
        std::memcpy(rest, row + from, bytes - from < 16 ? bytes - from : 16);
        const V8 residuals = Kind<Alpha>::spread(hn::Load(d, rest));
        hn::StoreU(Kind<Alpha>::opaque(step(residuals, above ? hn::LoadU(d, above + to) : hn::Zero(d))), d, argb + to);
        from += 4 * Kind<Alpha>::kBytes;
        to += 16;
    }
}

/// The last of four pixels in all places.
HWY_INLINE V8 lastPixel(V8 pixels)
{
    HWY_ALIGN static constexpr std::uint8_t kLast[16] = {12, 13, 14, 15, 12, 13, 14, 15,
                                                         12, 13, 14, 15, 12, 13, 14, 15};
    return hn::TableLookupBytes(pixels, hn::Load(D8(), kLast));
}
/// A pixel in the first place; what stands behind it is of no account.
template <int Place>
HWY_INLINE V8 pixel(V8 pixels)
{
    if constexpr (Place == 0)
        return pixels;
    else
        return hn::ShiftRightBytes<4 * Place>(D8(), pixels);
}
/// Four pixels from the first place of each.
HWY_INLINE V8 four(V8 a, V8 b, V8 c, V8 e)
{
    const D32 d;
    const hn::Repartition<std::uint64_t, D8> d64;
    const auto word = [&](V8 v) HWY_ATTR { return hn::BitCast(d, v); };
    const auto two = [&](V8 v, V8 w) HWY_ATTR { return hn::BitCast(d64, hn::InterleaveLower(d, word(v), word(w))); };
    return hn::BitCast(D8(), hn::InterleaveLower(d64, two(a, b), two(c, e)));
}

/// Half of the sum, rounded down.
HWY_INLINE V8 average(V8 a, V8 b) { return hn::Sub(hn::AverageRound(a, b), hn::And(hn::Xor(a, b), hn::Set(D8(), 1))); }

/// The neighbour that is nearest to left + above - corner; left goes before above, above before the corner.
HWY_INLINE VPixel nearest(VPixel left, VPixel above, VPixel corner)
{
    const VPixel across = hn::Sub(above, corner), down = hn::Sub(left, corner);
    const VPixel toLeft = hn::Abs(across), toAbove = hn::Abs(down), toCorner = hn::Abs(hn::Add(across, down));
    const VPixel least = hn::Min(toCorner, hn::Min(toLeft, toAbove));
    const VPixel other = hn::IfThenElse(hn::Eq(least, toAbove), above, corner);
    return hn::IfThenElse(hn::Eq(least, toLeft), left, other);
}

template <bool Alpha>
void unfilter(PNGFilter filter, const std::uint8_t* row, const std::uint8_t* above, std::uint8_t* argb,
              std::size_t count)
{
    const D8 d;
    if (filter == PNGFilter::Up && !above) filter = PNGFilter::None;
    switch (filter) {
    case PNGFilter::None:
        return eachFour<Alpha>(row, nullptr, argb, count, [](V8 x, V8) HWY_ATTR { return x; });
    case PNGFilter::Up:
        return eachFour<Alpha>(row, above, argb, count, [](V8 x, V8 up) HWY_ATTR { return hn::Add(x, up); });
    case PNGFilter::Sub: {
        V8 left = hn::Zero(d);
        return eachFour<Alpha>(row, nullptr, argb, count, [&](V8 x, V8) HWY_ATTR {
            x = hn::Add(x, hn::ShiftLeftBytes<4>(d, x));
            x = hn::Add(hn::Add(x, hn::ShiftLeftBytes<8>(d, x)), left);
            left = lastPixel(x);
            return x;
        });
    }
    case PNGFilter::Average: {
        V8 left = hn::Zero(d);
        return eachFour<Alpha>(row, above, argb, count, [&](V8 x, V8 up) HWY_ATTR {
            const V8 a = hn::Add(x, average(left, up));
            const V8 b = hn::Add(pixel<1>(x), average(a, pixel<1>(up)));
            const V8 c = hn::Add(pixel<2>(x), average(b, pixel<2>(up)));
            left = hn::Add(pixel<3>(x), average(c, pixel<3>(up)));
            return four(a, b, c, left);
        });
    }
    case PNGFilter::Paeth: {
        const DPixel wide;
        const DPixelBytes bytes;
        VPixel left = hn::Zero(wide), corner = left;
        const VPixel byte = hn::Set(wide, 255);
        const auto widened = [&](V8 v) HWY_ATTR { return hn::PromoteTo(wide, hn::LowerHalf(bytes, v)); };
        return eachFour<Alpha>(row, above, argb, count, [&](V8 x, V8 up) HWY_ATTR {
            V8 done[4];
            const VPixel residual[4] = {widened(x), widened(pixel<1>(x)), widened(pixel<2>(x)), widened(pixel<3>(x))};
            const VPixel over[4] = {widened(up), widened(pixel<1>(up)), widened(pixel<2>(up)), widened(pixel<3>(up))};
            for (int i = 0; i < 4; ++i) {
                left = hn::And(hn::Add(residual[i], nearest(left, over[i], corner)), byte);
                corner = over[i];
                done[i] = hn::ZeroExtendVector(d, hn::DemoteTo(bytes, left));
            }
            return four(done[0], done[1], done[2], done[3]);
        });
    }
    }
}

void unfilterRGBHere(PNGFilter filter, const std::uint8_t* row, const std::uint8_t* above, std::uint8_t* argb,
                     std::size_t count)
{
    unfilter<false>(filter, row, above, argb, count);
}
void unfilterRGBAHere(PNGFilter filter, const std::uint8_t* row, const std::uint8_t* above, std::uint8_t* argb,
                      std::size_t count)
{
    unfilter<true>(filter, row, above, argb, count);
}

} // namespace
} // namespace zp::codec::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace zp::codec
{
HWY_EXPORT(unfilterRGBHere);
HWY_EXPORT(unfilterRGBAHere);

void unfilterRGB(PNGFilter filter, const std::uint8_t* row, const std::uint8_t* above, std::uint8_t* argb,
                 std::size_t count)
{
    HWY_DYNAMIC_DISPATCH(unfilterRGBHere)(filter, row, above, argb, count);
}
void unfilterRGBA(PNGFilter filter, const std::uint8_t* row, const std::uint8_t* above, std::uint8_t* argb,
                  std::size_t count)
{
    HWY_DYNAMIC_DISPATCH(unfilterRGBAHere)(filter, row, above, argb, count);
}

void unfilterBytes(PNGFilter filter, const std::uint8_t* row, const std::uint8_t* above, std::uint8_t* out,
                   std::size_t count, unsigned step)
{
    // Left of the row stand zeros.
    const auto each = [&](auto predict) {
        for (std::size_t i = 0; i < count; ++i) {
            const bool edge = i < step;
            out[i] = std::uint8_t(row[i] + predict(edge ? 0 : out[i - step], above[i], edge ? 0 : above[i - step]));
        }
    };
    switch (filter) {
    case PNGFilter::None:
        return each([](int, int, int) { return 0; });
    case PNGFilter::Sub:
        return each([](int left, int, int) { return left; });
    case PNGFilter::Up:
        return each([](int, int up, int) { return up; });
    case PNGFilter::Average:
        return each([](int left, int up, int) { return (left + up) / 2; });
    case PNGFilter::Paeth:
        return each([](int left, int up, int corner) {
            const int toLeft = std::abs(up - corner), toUp = std::abs(left - corner);
            const int toCorner = std::abs(left + up - 2 * corner);
            if (toLeft <= toUp && toLeft <= toCorner) return left;
            return toUp <= toCorner ? up : corner;
        });
    }
}

} // namespace zp::codec
#endif
