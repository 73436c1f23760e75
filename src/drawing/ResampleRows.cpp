// SPDX-License-Identifier: GPL-3.0-or-later
/// Row passes of the resampler in 16-bit lanes.
#include "drawing/ResampleRows.h"
#include <algorithm>

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "drawing/ResampleRows.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

#include "base/PixelVectors-inl.h"

HWY_BEFORE_NAMESPACE();
namespace zp::HWY_NAMESPACE
{
namespace
{

using resampling::kFirstBits;
using resampling::kSourceBits;
using resampling::kTapGroup;
using resampling::Wide;

template <class D>
HWY_INLINE hn::Vec<D> widened(D d, const std::uint8_t* bytes)
{
    return hn::ShiftLeft<kSourceBits>(hn::PromoteTo(d, hn::LoadU(hn::Rebind<std::uint8_t, D>(), bytes)));
}

void widenRow(const std::uint32_t* pixels, Wide* out, int count)
{
    const auto* const bytes = reinterpret_cast<const std::uint8_t*>(pixels);
    forEachVector<Wide>(std::size_t(count) * 4,
                        [=](auto d, std::size_t at) ZP_LANES { hn::StoreU(widened(d, bytes + at), d, out + at); });
}

/// Rows times their shares, for so many vectors at once: their sums stay in registers, each share is loaded once.
template <int kVectors, class D>
HWY_INLINE void sumRowsAt(D d, const std::uint8_t* const* rows, const std::int16_t* shares, int count, std::size_t at,
                          Wide* out)
{
    const std::size_t lanes = hn::Lanes(d);
    hn::Vec<D> sum[kVectors];
    for (auto& s : sum) s = hn::Zero(d);
    for (int k = 0; k < count; ++k) {
        const auto share = hn::Set(d, shares[k]);
        for (std::size_t v = 0; v < kVectors; ++v)
            sum[v] = hn::Add(sum[v], hn::MulFixedPoint15(widened(d, rows[k] + at + v * lanes), share));
    }
    for (std::size_t v = 0; v < kVectors; ++v) hn::StoreU(sum[v], d, out + at + v * lanes);
}

void sumRows(const std::uint8_t* const* rows, const std::int16_t* shares, int count, Wide* out, int samples)
{
    constexpr int kVectors = 4;
    const hn::ScalableTag<Wide> d;
    const std::size_t step = kVectors * hn::Lanes(d), all = std::size_t(samples);
    std::size_t at = 0;
    for (; at + step <= all; at += step) sumRowsAt<kVectors>(d, rows, shares, count, at, out);
    forEachVector<Wide>(all - at, [=](auto tag, std::size_t more)
                                      ZP_LANES { sumRowsAt<1>(tag, rows, shares, count, at + more, out); });
}

void addLong(const std::uint8_t* bytes, std::uint32_t share, std::uint32_t* sums, int samples)
{
    forEachVector<std::uint32_t>(std::size_t(samples), [=](auto d, std::size_t at) ZP_LANES {
        const auto wide = hn::PromoteTo(d, hn::LoadU(hn::Rebind<std::uint8_t, decltype(d)>(), bytes + at));
        hn::StoreU(hn::Add(hn::LoadU(d, sums + at), hn::Mul(wide, hn::Set(d, share))), d, sums + at);
    });
}

void shortenLong(const std::uint32_t* sums, Wide* out, int samples)
{
    // From shares of 16384 to kFirstBits.
    constexpr int kShift = 14 - kFirstBits;
    forEachVector<std::uint32_t>(std::size_t(samples), [=](auto d, std::size_t at) ZP_LANES {
        const hn::Rebind<std::int32_t, decltype(d)> whole;
        const hn::Rebind<Wide, decltype(d)> narrow;
        const auto rounded = hn::ShiftRight<kShift>(hn::Add(hn::LoadU(d, sums + at), hn::Set(d, 1u << (kShift - 1))));
        hn::StoreU(hn::DemoteTo(narrow, hn::BitCast(whole, rounded)), narrow, out + at);
    });
}

void sumAlongExact(const Wide* row, const int* first, const int* count, const std::int16_t* shares, int perPlace,
                   Wide* out, int places)
{
    const hn::FixedTag<std::int32_t, 4> d;
    const hn::Rebind<Wide, decltype(d)> narrow;
    for (int x = 0; x < places; ++x, shares += perPlace) {
        const Wide* const p = row + std::ptrdiff_t{4} * first[x];
        auto sum = hn::Set(d, 1 << 14);
        for (int k = 0; k < count[x]; ++k)
            sum = hn::Add(sum, hn::Mul(hn::PromoteTo(d, hn::LoadU(narrow, p + 4 * k)), hn::Set(d, shares[k])));
        hn::StoreU(hn::DemoteTo(narrow, hn::ShiftRight<15>(sum)), narrow, out + 4 * x);
    }
}

/// As many pixels as a vector holds times as many shares, each share once for every sample of its pixel.
template <class D>
HWY_INLINE hn::Vec<D> products(D d, const Wide* pixels, const std::int16_t* shares)
{
    const hn::Repartition<std::uint8_t, D> bytes;
    // Byte 2s of share s, four times over: every block of 16 bytes picks its own two.
    HWY_ALIGN static constexpr std::uint8_t kSpread[64] = {
        0,  1,  0,  1,  0,  1,  0,  1,  2,  3,  2,  3,  2,  3,  2,  3,  4,  5,  4,  5,  4,  5,
        4,  5,  6,  7,  6,  7,  6,  7,  6,  7,  8,  9,  8,  9,  8,  9,  8,  9,  10, 11, 10, 11,
        10, 11, 10, 11, 12, 13, 12, 13, 12, 13, 12, 13, 14, 15, 14, 15, 14, 15, 14, 15};
    const auto each = hn::TableLookupBytes(hn::LoadDup128(bytes, reinterpret_cast<const std::uint8_t*>(shares)),
                                           hn::Load(bytes, kSpread));
    return hn::MulFixedPoint15(hn::LoadU(d, pixels), hn::BitCast(d, each));
}

/// The products of a place, its pixels side by side.
template <class D>
HWY_INLINE hn::Vec<D> placeProducts(D d, const Wide* row, int first, const std::int16_t* shares, int perPlace)
{
    constexpr int kPixels = int(hn::MaxLanes(D())) / 4;
    const Wide* const p = row + std::ptrdiff_t{4} * first;
    auto sum = products(d, p, shares);
    for (int k = kPixels; k < perPlace; k += kPixels) sum = hn::Add(sum, products(d, p + 4 * k, shares + k));
    return sum;
}

/// Adds up the pixels of every place; perPlace is a multiple of the pixels of a vector.
template <class D>
HWY_INLINE void sumAlongBy(D d, const Wide* row, const int* first, const std::int16_t* shares, int perPlace, Wide* out,
                           int places)
{
    // In blocks of two pixels: a pair of places leaves its two sums in every block, whose sum is what is left to do.
    const hn::Repartition<std::uint64_t, D> pixels;
    const hn::FixedTag<Wide, 8> block;
    const auto pairOf = [&](int x, int next) ZP_LANES {
        const auto a = hn::BitCast(pixels, placeProducts(d, row, first[x], shares + x * perPlace, perPlace));
        const auto b = hn::BitCast(pixels, placeProducts(d, row, first[next], shares + next * perPlace, perPlace));
        const auto sum = hn::Add(hn::BitCast(d, hn::InterleaveLower(pixels, a, b)),
                                 hn::BitCast(d, hn::InterleaveUpper(pixels, a, b)));
        if constexpr (hn::MaxLanes(D()) == 8) {
            return sum;
        } else {
            const hn::Half<D> half;
            const auto two = hn::Add(hn::LowerHalf(half, sum), hn::UpperHalf(half, sum));
            if constexpr (hn::MaxLanes(D()) == 16) {
                return two;
            } else {
                return hn::Add(hn::LowerHalf(block, two), hn::UpperHalf(block, two));
            }
        }
    };
    int x = 0;
    for (; x + 2 <= places; x += 2) hn::StoreU(pairOf(x, x + 1), block, out + 4 * x);
    if (x < places) {
        const hn::FixedTag<Wide, 4> one;
        hn::StoreU(hn::LowerHalf(one, pairOf(x, x)), one, out + 4 * x);
    }
}

void sumAlong(const Wide* row, const int* first, const std::int16_t* shares, int perPlace, Wide* out, int places)
{
#if HWY_MAX_BYTES >= 64
    const hn::CappedTag<Wide, 32> eight;
    if (perPlace % 8 == 0) return sumAlongBy(eight, row, first, shares, perPlace, out, places);
#endif
    static_assert(kTapGroup == 4);
    sumAlongBy(hn::CappedTag<Wide, 16>(), row, first, shares, perPlace, out, places);
}

void sumFourRows(const Wide* const* rows, const std::int16_t* shares, Wide* out, int count)
{
    forEachVector<Wide>(std::size_t(count) * 4, [=](auto d, std::size_t at) ZP_LANES {
        auto sum = hn::Zero(d);
        for (int k = 0; k < 4; ++k)
            sum = hn::Add(sum, hn::MulFixedPoint15(hn::LoadU(d, rows[k] + at), hn::Set(d, shares[k])));
        hn::StoreU(sum, d, out + at);
    });
}

void finishRow(const Wide* row, std::uint32_t* pixels, int count, int bits)
{
    auto* const bytes = reinterpret_cast<std::uint8_t*>(pixels);
    const auto half = Wide(1 << (bits - 1));
    // By 16-bit lanes of whole pixels; a byte's sign cannot be mistaken, for it is cut to 0 and 255 on the way.
    const auto store = [=](auto d, std::size_t at) ZP_LANES {
        const hn::Rebind<std::uint8_t, decltype(d)> narrow;
        const hn::Repartition<std::uint32_t, decltype(narrow)> pixel;
        const auto levels = hn::ShiftRightSame(hn::Add(hn::LoadU(d, row + at), hn::Set(d, half)), bits);
        const auto whole = hn::BitCast(pixel, hn::DemoteTo(narrow, levels));
        hn::StoreU(hn::BitCast(narrow, withColourAtMostAlpha(pixel, whole)), narrow, bytes + at);
    };
    const hn::ScalableTag<Wide> d;
    std::size_t at = 0;
    for (; at + hn::Lanes(d) <= std::size_t(count) * 4; at += hn::Lanes(d)) store(d, at);
    for (; at < std::size_t(count) * 4; at += 4) store(hn::CappedTag<Wide, 4>(), at);
}

} // namespace
} // namespace zp::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace zp
{

HWY_EXPORT(widenRow);
HWY_EXPORT(sumRows);
HWY_EXPORT(addLong);
HWY_EXPORT(shortenLong);
HWY_EXPORT(sumAlongExact);
HWY_EXPORT(sumAlong);
HWY_EXPORT(sumFourRows);
HWY_EXPORT(finishRow);

namespace resampling
{

void widenRow(const std::uint32_t* pixels, Wide* out, int count) { HWY_DYNAMIC_DISPATCH(widenRow)(pixels, out, count); }

void sumRows(ConstBitmapView source, const Taps& rows, std::size_t place, Wide* out,
             std::vector<std::uint32_t>& longSums)
{
    const int samples = 4 * source.width, first = rows.first[place], count = rows.count[place];
    const std::int16_t* shares = &rows.shares[place * std::size_t(rows.perPlace)];
    if (count > kMostRounded) {
        longSums.assign(std::size_t(samples), 0);
        for (int k = 0; k < count; ++k) HWY_DYNAMIC_DISPATCH(addLong)
        (source.rowData(first + k), std::uint32_t(shares[k]), longSums.data(), samples);
        return HWY_DYNAMIC_DISPATCH(shortenLong)(longSums.data(), out, samples);
    }
    const std::uint8_t* lines[kMostRounded];
    for (int k = 0; k < count; ++k) lines[k] = source.rowData(first + k);
    HWY_DYNAMIC_DISPATCH(sumRows)(lines, shares, count, out, samples);
}

void sumAlong(const Wide* row, const Taps& columns, Wide* out)
{
    const int places = int(columns.first.size());
    if (columns.perPlace > kMostRounded) HWY_DYNAMIC_DISPATCH(sumAlongExact)
    (row, columns.first.data(), columns.count.data(), columns.shares.data(), columns.perPlace, out, places);
    else HWY_DYNAMIC_DISPATCH(sumAlong)(row, columns.first.data(), columns.shares.data(), columns.perPlace, out,
                                        places);
}

void sumFourRows(const Wide* const* rows, const std::int16_t* shares, Wide* out, int count)
{
    HWY_DYNAMIC_DISPATCH(sumFourRows)(rows, shares, out, count);
}

void finishRow(const Wide* row, std::uint32_t* pixels, int count, int bits)
{
    HWY_DYNAMIC_DISPATCH(finishRow)(row, pixels, count, bits);
}

} // namespace resampling
} // namespace zp
#endif
