// SPDX-License-Identifier: GPL-3.0-or-later
/// Upsampling and colour conversion as row kernels, in the JPEG library's own fixed-point arithmetic.
#include "codecs/JPEGColours.h"
#include <cstring>

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "codecs/JPEGColours.cpp"
#include <hwy/foreach_target.h>

#include "codecs/PairProducts-inl.h"
#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace zp::jpeg::HWY_NAMESPACE
{
namespace
{
namespace hn = hwy::HWY_NAMESPACE;
using namespace zp::codec::HWY_NAMESPACE;

using D16 = hn::ScalableTag<std::int16_t>;
using DU16 = hn::RebindToUnsigned<D16>;
using DHalf = hn::Rebind<std::uint8_t, D16>; ///< as many bytes as there are numbers of 16 bits
using V16 = hn::Vec<D16>;
using VU16 = hn::Vec<DU16>;

HWY_INLINE VU16 three(VU16 v) { return hn::Add(hn::Add(v, v), v); }
HWY_INLINE VU16 wide(const std::uint8_t* bytes) { return hn::PromoteTo(DU16(), hn::LoadU(DHalf(), bytes)); }
/// Two rows of bytes, even and odd places, as one.
HWY_INLINE void storePairs(VU16 even, VU16 odd, std::uint8_t* to)
{
    const hn::Repartition<std::uint8_t, D16> bytes;
    hn::StoreU(hn::BitCast(bytes, hn::Or(even, hn::ShiftLeft<8>(odd))), bytes, to);
}

void across(const std::uint8_t* samples, std::size_t count, std::uint8_t* out)
{
    const DU16 d;
    const std::size_t n = hn::Lanes(d);
    // In the first and the last vector neighbours are missing: there the sample itself stands in.
    HWY_ALIGN std::uint8_t edge[HWY_MAX_BYTES + 2] = {};
    for (std::size_t i = 0; i < count; i += n) {
        const std::uint8_t* from = samples + i;
        if (i == 0 || i + n >= count) {
            const std::size_t have = count - i < n ? count - i : n;
            edge[0] = i == 0 ? from[0] : from[-1];
            std::memcpy(edge + 1, from, have);
            edge[have + 1] = i + have == count ? from[have - 1] : from[have];
            from = edge + 1;
        }
        const VU16 most = three(wide(from));
        storePairs(hn::ShiftRight<2>(hn::Add(hn::Add(most, wide(from - 1)), hn::Set(d, 1))),
                   hn::ShiftRight<2>(hn::Add(hn::Add(most, wide(from + 1)), hn::Set(d, 2))), out + 2 * i);
    }
}

void down(const std::uint8_t* near, const std::uint8_t* far, std::size_t count, bool upper, std::uint8_t* out)
{
    const DU16 d;
    const VU16 bias = hn::Set(d, upper ? 1 : 2);
    for (std::size_t i = 0; i < count; i += hn::Lanes(d)) {
        const VU16 sum = hn::Add(hn::Add(three(wide(near + i)), wide(far + i)), bias);
        hn::StoreU(hn::DemoteTo(DHalf(), hn::BitCast(D16(), hn::ShiftRight<2>(sum))), DHalf(), out + i);
    }
}

void both(const std::uint8_t* near, const std::uint8_t* far, std::size_t count, std::uint16_t* sums, std::uint8_t* out)
{
    const DU16 d;
    const std::size_t n = hn::Lanes(d);
    std::uint16_t* const s = sums + kRowSlack;
    for (std::size_t i = 0; i < count; i += n) hn::StoreU(hn::Add(three(wide(near + i)), wide(far + i)), d, s + i);
    s[-1] = s[0];
    s[count] = s[count - 1];
    for (std::size_t i = 0; i < count; i += n) {
        const VU16 most = three(hn::LoadU(d, s + i));
        storePairs(hn::ShiftRight<4>(hn::Add(hn::Add(most, hn::LoadU(d, s + i - 1)), hn::Set(d, 8))),
                   hn::ShiftRight<4>(hn::Add(hn::Add(most, hn::LoadU(d, s + i + 1)), hn::Set(d, 7))), out + 2 * i);
    }
}

/// Stores rows of A, R and G, B pairs as pixels, @p count of them at most.
HWY_INLINE void storePixels(VU16 ar, VU16 gb, std::uint8_t* argb, std::size_t count)
{
    const DU16 d;
    if (count >= hn::Lanes(d)) return hn::StoreInterleaved2(ar, gb, d, reinterpret_cast<std::uint16_t*>(argb));
    HWY_ALIGN std::uint16_t rest[HWY_MAX_BYTES];
    hn::StoreInterleaved2(ar, gb, d, rest);
    std::memcpy(argb, rest, 4 * count);
}

/// @p value times a fraction of 2^-16, rounded.
HWY_INLINE V16 timesFraction(V16 value, int fraction)
{
    const D16 d;
    const V16 product = hn::MulHigh(hn::Add(value, value), hn::Set(d, std::int16_t(fraction)));
    return hn::ShiftRight<1>(hn::Add(product, hn::Set(d, 1)));
}

void colours(const std::uint8_t* y, const std::uint8_t* cb, const std::uint8_t* cr, std::uint8_t* argb,
             std::size_t count)
{
    const D16 d;
    const std::size_t n = hn::Lanes(d);
    const V16 middle = hn::Set(d, 128), most = hn::Set(d, 255), none = hn::Zero(d);
    // -0.34414 of blue and 0.28586 of red; with a whole red less it is -0.71414 of red.
    const V16 green = pairOfFactors(d, -22554, 18734);
    const auto signedOf = [&](const std::uint8_t* from) HWY_ATTR { return hn::PromoteTo(d, hn::LoadU(DHalf(), from)); };
    const auto clamp = [&](V16 v) HWY_ATTR { return hn::BitCast(DU16(), hn::Min(hn::Max(v, none), most)); };
    for (std::size_t x = 0; x < count; x += n) {
        const V16 luma = signedOf(y + x), u = hn::Sub(signedOf(cb + x), middle), v = hn::Sub(signedOf(cr + x), middle);
        const V16 r = hn::Add(hn::Add(luma, v), timesFraction(v, 26345));              // 1.402
        const V16 b = hn::Add(hn::Add(luma, hn::Add(u, u)), timesFraction(u, -14942)); // 1.772
        const V16 part = packRounded<16>(d, multiplyPairs(hn::InterleaveLower(d, u, v), green),
                                         multiplyPairs(hn::InterleaveUpper(d, u, v), green));
        const V16 g = hn::Add(hn::Sub(luma, v), part);
        storePixels(hn::Or(hn::ShiftLeft<8>(clamp(r)), hn::Set(DU16(), 255)),
                    hn::Or(hn::ShiftLeft<8>(clamp(b)), clamp(g)), argb + 4 * x, count - x);
    }
}

void greys(const std::uint8_t* y, std::uint8_t* argb, std::size_t count)
{
    const DU16 d;
    for (std::size_t x = 0; x < count; x += hn::Lanes(d)) {
        const VU16 grey = wide(y + x), high = hn::ShiftLeft<8>(grey);
        storePixels(hn::Or(high, hn::Set(d, 255)), hn::Or(high, grey), argb + 4 * x, count - x);
    }
}

} // namespace
} // namespace zp::jpeg::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace zp::jpeg
{
HWY_EXPORT(across);
HWY_EXPORT(down);
HWY_EXPORT(both);
HWY_EXPORT(colours);
HWY_EXPORT(greys);

void upsampleAcross(const std::uint8_t* samples, std::size_t count, std::uint8_t* out)
{
    HWY_DYNAMIC_DISPATCH(across)(samples, count, out);
}
void upsampleDown(const std::uint8_t* near, const std::uint8_t* far, std::size_t count, bool upper, std::uint8_t* out)
{
    HWY_DYNAMIC_DISPATCH(down)(near, far, count, upper, out);
}
void upsampleBoth(const std::uint8_t* near, const std::uint8_t* far, std::size_t count, std::uint16_t* sums,
                  std::uint8_t* out)
{
    HWY_DYNAMIC_DISPATCH(both)(near, far, count, sums, out);
}
void coloursToARGB(const std::uint8_t* y, const std::uint8_t* cb, const std::uint8_t* cr, std::uint8_t* argb,
                   std::size_t count)
{
    HWY_DYNAMIC_DISPATCH(colours)(y, cb, cr, argb, count);
}
void greysToARGB(const std::uint8_t* y, std::uint8_t* argb, std::size_t count)
{
    HWY_DYNAMIC_DISPATCH(greys)(y, argb, count);
}

} // namespace zp::jpeg
#endif
