// SPDX-License-Identifier: GPL-3.0-or-later
/// What the vector loops of all rooms share. For files that Highway compiles once for each kind of vector unit: include
/// it behind hwy/highway.h.
///
/// Pixels are 32-bit lanes, alpha in the low byte. Two of a pixel's four bytes at a time are widened to 16-bit lanes
/// where they stand, so that nothing crosses lanes and the same lines serve vectors of every width.
#if defined(ZP_PIXEL_VECTORS) == defined(HWY_TARGET_TOGGLE)
#ifdef ZP_PIXEL_VECTORS
#undef ZP_PIXEL_VECTORS
#else
#define ZP_PIXEL_VECTORS
#endif

#include "base/CpuHints.h"
#include <cstddef>
#include <cstdint>
#include <hwy/highway.h>

/// Behind the parameters of a lambda that is handed to a loop below: a call for each vector would cost more than its
/// work.
#undef ZP_LANES
#define ZP_LANES HWY_ATTR __attribute__((always_inline))

HWY_BEFORE_NAMESPACE();
namespace zp::HWY_NAMESPACE
{

namespace hn = hwy::HWY_NAMESPACE;

/// Calls f(tag, at) for every lane from 0 to @p count: in whole vectors, then in blocks of 16 bytes, then in single
/// lanes. What f does must not depend on the vector's width.
template <class T, class F>
HWY_INLINE void forEachVector(std::size_t count, F&& f)
{
    const hn::ScalableTag<T> whole;
    constexpr std::size_t kBlock = 16 / sizeof(T);
    std::size_t at = 0;
    for (const std::size_t lanes = hn::Lanes(whole); at + lanes <= count; at += lanes) f(whole, at);
    const hn::CappedTag<T, kBlock> block;
    if (hn::Lanes(whole) > hn::Lanes(block))
        for (const std::size_t lanes = hn::Lanes(block); at + lanes <= count; at += lanes) f(block, at);
    const hn::CappedTag<T, 1> single;
    for (; at < count; ++at) f(single, at);
}

/// For one long pass over memory: announces the line that will be read two pages later. With vectors of whole lines the
/// processor sees far enough ahead by itself, with lesser ones the work between two lines hides the next from it.
/// Without this the fingerprint of a picture takes 2.5 times as long on AVX2.
HWY_INLINE void announce(const std::uint8_t* place)
{
    constexpr std::size_t kAhead = 8192;
    if (hn::MaxLanes(hn::ScalableTag<std::uint8_t>()) < 64) prefetch(place + kAhead);
}

/// The 16-bit lanes in the place of 32-bit ones.
template <class D>
using Wide16 = hn::Repartition<std::uint16_t, D>;

/// v / 255 in 16-bit lanes, rounded to the nearest; exact up to 65,407.
template <class D16, class V16 = hn::Vec<D16>>
HWY_INLINE V16 divide255(D16 d, V16 v)
{
    // (t + t / 256) / 256 with t = v + 128, as one product.
    return hn::MulHigh(hn::Add(v, hn::Set(d, 128)), hn::Set(d, 257));
}

/// Real numbers that lie between 0 and 2^31 cut to whole ones. Highway's own conversion spends four instructions more
/// on those that do not.
template <class D32, class V>
HWY_INLINE hn::Vec<D32> cutToWhole(D32 d, V v)
{
#if HWY_TARGET == HWY_EMU128
    return hn::ConvertTo(d, v);
#else
    using Raw = decltype(hn::Vec<D32>::raw);
    typedef std::int32_t Whole __attribute__((vector_size(sizeof(Raw))));
    static_cast<void>(d);
    return hn::Vec<D32>{Raw(__builtin_convertvector(v.raw, Whole))};
#endif
}

/// The four bytes of each pixel in two vectors of 16-bit lanes: alpha and green in the first, red and blue in the
/// second.
template <class D>
struct Samples {
    hn::Vec<Wide16<D>> even, odd;
};

template <class D>
HWY_INLINE Samples<D> widen(D d, hn::Vec<D> pixels)
{
    const Wide16<D> d16;
    const auto v = hn::BitCast(d16, pixels);
    static_cast<void>(d);
    return {hn::And(v, hn::Set(d16, 0xFF)), hn::ShiftRight<8>(v)};
}

/// Back to pixels; the samples are bytes.
template <class D>
HWY_INLINE hn::Vec<D> narrow(D d, const Samples<D>& s)
{
    return hn::BitCast(d, hn::Or(s.even, hn::ShiftLeft<8>(s.odd)));
}

/// One number for each pixel, below 65,536, to both of its 16-bit lanes.
template <class D>
HWY_INLINE hn::Vec<Wide16<D>> spread(D d, hn::Vec<D> each)
{
    static_cast<void>(d);
    return hn::BitCast(Wide16<D>(), hn::Or(each, hn::ShiftLeft<16>(each)));
}

/// Each pixel's alpha in both of its 16-bit lanes.
template <class D>
HWY_INLINE hn::Vec<Wide16<D>> alphaOf(D d, hn::Vec<D> pixels)
{
    return spread(d, hn::And(pixels, hn::Set(d, 0xFF)));
}

/// A byte for each pixel to both of its 16-bit lanes.
template <class D>
HWY_INLINE hn::Vec<Wide16<D>> loadSpread(D d, const std::uint8_t* bytes)
{
    return spread(d, hn::PromoteTo(d, hn::LoadU(hn::Rebind<std::uint8_t, D>(), bytes)));
}

/// No colour of a pixel above its alpha.
template <class D>
HWY_INLINE hn::Vec<D> withColourAtMostAlpha(D d, hn::Vec<D> pixels)
{
    const hn::Repartition<std::uint8_t, D> d8;
    HWY_ALIGN static constexpr std::uint8_t kAlphas[16] = {0, 0, 0, 0, 4, 4, 4, 4, 8, 8, 8, 8, 12, 12, 12, 12};
    const auto bytes = hn::BitCast(d8, pixels);
    return hn::BitCast(d, hn::Min(bytes, hn::TableLookupBytes(bytes, hn::LoadDup128(d8, kAlphas))));
}

/// Every sample times its pixel's weight (0 to 255) over 255.
template <class D>
HWY_INLINE Samples<D> scaled(D d, const Samples<D>& s, hn::Vec<Wide16<D>> weight)
{
    static_cast<void>(d);
    const Wide16<D> d16;
    return {divide255(d16, hn::Mul(s.even, weight)), divide255(d16, hn::Mul(s.odd, weight))};
}

/// a * wa + b * wb, over 255; a sample's sum must not exceed 255 * 255.
template <class D>
HWY_INLINE Samples<D> mixed(D d, const Samples<D>& a, hn::Vec<Wide16<D>> wa, const Samples<D>& b, hn::Vec<Wide16<D>> wb)
{
    static_cast<void>(d);
    const Wide16<D> d16;
    return {divide255(d16, hn::Add(hn::Mul(a.even, wa), hn::Mul(b.even, wb))),
            divide255(d16, hn::Add(hn::Mul(a.odd, wa), hn::Mul(b.odd, wb)))};
}

/// Source-over of pixels onto those at @p to; where all are opaque or all are nothing, what is there is not looked at.
template <class D>
HWY_INLINE void storeOver(D d, hn::Vec<D> pixels, std::uint32_t* to)
{
    const Wide16<D> d16;
    const auto opaque = hn::Set(d, 255u);
    if (hn::AllTrue(d, hn::Eq(hn::And(pixels, opaque), opaque))) {
        hn::StoreU(pixels, d, to);
    } else if (!hn::AllTrue(d, hn::Eq(pixels, hn::Zero(d)))) {
        const auto whole = hn::Set(d16, 255), kept = hn::Sub(whole, alphaOf(d, pixels));
        const auto there = widen(d, hn::LoadU(d, to));
        hn::StoreU(narrow(d, mixed(d, widen(d, pixels), whole, there, kept)), d, to);
    }
}

} // namespace zp::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif
