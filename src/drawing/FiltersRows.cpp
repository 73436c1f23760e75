// SPDX-License-Identifier: GPL-3.0-or-later
/// Colour in 32-bit floating point, blurs in 16-bit lanes.
#include "drawing/FiltersRows.h"
#include <algorithm>
#include <cstring>

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "drawing/FiltersRows.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

#include "base/PixelVectors-inl.h"

HWY_BEFORE_NAMESPACE();
namespace zp::HWY_NAMESPACE
{
namespace
{

using filters::BlurWeights;
using filters::ColourMatrix;
using filters::kBlock;
using filters::kWideBits;
using filters::kWideOne;
using filters::SharpenAmount;
using filters::Wide;

/// So many bytes beforehand are pixels announced that come from memory: between two of their lines lies too much work
/// for the processor to see the next by itself. Behind a row begins the next.
constexpr std::size_t kAhead = 4096;
/// Half a level in wide samples, for rounding.
constexpr int kWideHalf = 1 << (kWideBits - 1);

// ---- colour ---------------------------------------------------------------------------------------------------------

/// Red, green and blue of pixels through a matrix, each between 0 and @p scale times alpha, cut to whole numbers after
/// half has been added.
template <class D>
struct Coloured {
    hn::Vec<D> alpha, red, green, blue;
};

template <class D>
HWY_INLINE Coloured<D> coloured(D d, hn::Vec<D> pixels, const float* m, float scale)
{
    const hn::RebindToSigned<D> whole;
    const hn::RebindToFloat<D> real;
    const auto byte = hn::Set(d, 255u);
    const auto number = [&](hn::Vec<D> v) ZP_LANES { return hn::ConvertTo(real, hn::BitCast(whole, v)); };
    const auto alpha = hn::And(pixels, byte);
    const auto a = number(alpha), r = number(hn::And(hn::ShiftRight<8>(pixels), byte)),
               g = number(hn::And(hn::ShiftRight<16>(pixels), byte)), b = number(hn::ShiftRight<24>(pixels));
    const auto top = hn::Mul(a, hn::Set(real, scale));
    const auto row = [&](int i) ZP_LANES {
        const auto red = hn::Mul(hn::Set(real, m[4 * i]), r), green = hn::Mul(hn::Set(real, m[4 * i + 1]), g);
        const auto blue = hn::Mul(hn::Set(real, m[4 * i + 2]), b), bias = hn::Mul(hn::Set(real, m[4 * i + 3]), a);
        const auto sum = hn::Add(hn::Add(hn::Add(red, green), blue), bias);
        // What is no number becomes 0: of such a one and another the larger is the second.
        const auto low = hn::Max(sum, hn::Zero(real));
        const auto rounded = hn::Add(hn::Min(low, top), hn::Set(real, 0.5f));
        return hn::BitCast(d, cutToWhole(whole, rounded));
    };
    return {alpha, row(0), row(1), row(2)};
}

void colourRow(const std::uint32_t* pixels, std::uint32_t* out, int count, const ColourMatrix& matrix)
{
    const ColourMatrix own = matrix;
    forEachVector<std::uint32_t>(std::size_t(count), [&](auto d, std::size_t at) ZP_LANES {
        prefetch(reinterpret_cast<const std::uint8_t*>(pixels + at) + kAhead);
        const auto c = coloured(d, hn::LoadU(d, pixels + at), own.m, 1);
        const auto lower = hn::Or(c.alpha, hn::ShiftLeft<8>(c.red));
        hn::StoreU(hn::Or(lower, hn::Or(hn::ShiftLeft<16>(c.green), hn::ShiftLeft<24>(c.blue))), d, out + at);
    });
}

void colourRowWide(const std::uint32_t* pixels, Wide* out, int count, const ColourMatrix& matrix)
{
    constexpr float kScale = 1 << kWideBits;
    ColourMatrix own = matrix;
    for (float& v : own.m) v *= kScale;
    auto* const words = reinterpret_cast<std::uint32_t*>(out);
    forEachVector<std::uint32_t>(std::size_t(count), [&](auto d, std::size_t at) ZP_LANES {
        prefetch(reinterpret_cast<const std::uint8_t*>(pixels + at) + kAhead);
        const auto c = coloured(d, hn::LoadU(d, pixels + at), own.m, kScale);
        // Two samples to a word, two words to a pixel.
        hn::StoreInterleaved2(hn::Or(hn::ShiftLeft<kWideBits>(c.alpha), hn::ShiftLeft<16>(c.red)),
                              hn::Or(c.green, hn::ShiftLeft<16>(c.blue)), d, words + 2 * at);
    });
}

void widenRow(const std::uint32_t* pixels, Wide* out, int count)
{
    const auto* const bytes = reinterpret_cast<const std::uint8_t*>(pixels);
    forEachVector<Wide>(std::size_t(count) * 4, [=](auto d, std::size_t at) ZP_LANES {
        const hn::Rebind<std::uint8_t, decltype(d)> narrow;
        prefetch(bytes + at + kAhead);
        hn::StoreU(hn::ShiftLeft<kWideBits>(hn::PromoteTo(d, hn::LoadU(narrow, bytes + at))), d, out + at);
    });
}

// ---- blurs ----------------------------------------------------------------------------------------------------------

using Samples16 = hn::CappedTag<Wide, 32>;
using Vector = hn::Vec<Samples16>;
constexpr int kLanes = int(hn::MaxLanes(Samples16()));
/// Vectors at once: enough to share the weights' loads and hide each other's waits.
constexpr int kGroup = 4;
constexpr int kGroupSamples = kGroup * kLanes;
static_assert(kBlock * 4 % kGroupSamples == 0);

HWY_INLINE void middleShare(Vector (&sum)[kGroup], const Wide* middle, const BlurWeights& weights)
{
    const Samples16 d;
    const auto taken = hn::Set(d, weights.taken);
    for (int v = 0; v < kGroup; ++v) {
        const auto c = hn::LoadU(d, middle + kLanes * v);
        sum[v] = hn::Sub(c, hn::MulFixedPoint15(c, taken));
    }
}

HWY_INLINE void addPair(Vector (&sum)[kGroup], const Wide* before, const Wide* behind, std::int16_t share)
{
    const Samples16 d;
    const auto weight = hn::Set(d, share);
    for (int v = 0; v < kGroup; ++v) {
        const auto both = hn::Add(hn::LoadU(d, before + kLanes * v), hn::LoadU(d, behind + kLanes * v));
        sum[v] = hn::Add(sum[v], hn::MulFixedPoint15(both, weight));
    }
}

HWY_INLINE void sumAcross(Vector (&sum)[kGroup], const Wide* const* rows, int at, const BlurWeights& weights)
{
    const int radius = weights.radius();
    middleShare(sum, rows[radius] + at, weights);
    for (int k = 1; k <= radius; ++k)
        addPair(sum, rows[radius - k] + at, rows[radius + k] + at, weights.side[std::size_t(k - 1)]);
}

HWY_INLINE void storeGroup(const Vector (&sum)[kGroup], Wide* out)
{
    for (int v = 0; v < kGroup; ++v) hn::StoreU(sum[v], Samples16(), out + kLanes * v);
}

HWY_INLINE void sumAlong(Vector (&sum)[kGroup], const Wide* middle, const BlurWeights& weights)
{
    middleShare(sum, middle, weights);
    for (int k = 1; k <= weights.radius(); ++k)
        addPair(sum, middle - 4 * k, middle + 4 * k, weights.side[std::size_t(k - 1)]);
}

void blurAlong(const Wide* middle, Wide* out, int count, const BlurWeights& weights)
{
    for (int i = 0; i < 4 * count; i += kGroupSamples) {
        Vector sum[kGroup];
        sumAlong(sum, middle + i, weights);
        storeGroup(sum, out + i);
    }
}

void blurAcross(const Wide* const* rows, Wide* out, int count, const BlurWeights& weights)
{
    for (int i = 0; i < 4 * count; i += kGroupSamples) {
        Vector sum[kGroup];
        sumAcross(sum, rows, i, weights);
        storeGroup(sum, out + i);
    }
}

/// The blur down the columns of pixels, from sample @p at on, for so many vectors at once.
template <int kVectors, class D>
HWY_INLINE void sumPixelsAcross(D d, const std::uint32_t* const* rows, const BlurWeights& weights, std::size_t at,
                                Wide* out)
{
    const std::size_t lanes = hn::Lanes(d);
    const int radius = weights.radius();
    const auto bytes = [&](int k, std::size_t v) ZP_LANES {
        const hn::Rebind<std::uint8_t, D> narrow;
        return hn::PromoteTo(d, hn::LoadU(narrow, reinterpret_cast<const std::uint8_t*>(rows[k]) + at + v * lanes));
    };
    hn::Vec<D> sum[kVectors];
    for (std::size_t v = 0; v < kVectors; ++v) {
        const auto own = hn::ShiftLeft<kWideBits>(bytes(radius, v));
        sum[v] = hn::Sub(own, hn::MulFixedPoint15(own, hn::Set(d, weights.taken)));
    }
    for (int k = 1; k <= radius; ++k) {
        const auto weight = hn::Set(d, weights.side[std::size_t(k - 1)]);
        for (std::size_t v = 0; v < kVectors; ++v) {
            const auto both = hn::ShiftLeft<kWideBits>(hn::Add(bytes(radius - k, v), bytes(radius + k, v)));
            sum[v] = hn::Add(sum[v], hn::MulFixedPoint15(both, weight));
        }
    }
    for (std::size_t v = 0; v < kVectors; ++v) hn::StoreU(sum[v], d, out + at + v * lanes);
}

void blurPixelsAcross(const std::uint32_t* const* rows, Wide* out, int count, const BlurWeights& weights)
{
    const Samples16 d;
    const std::size_t all = std::size_t(count) * 4;
    std::size_t at = 0;
    const auto* const newest = reinterpret_cast<const std::uint8_t*>(rows[2 * weights.radius()]);
    for (; at + kGroupSamples <= all; at += kGroupSamples) {
        for (int line = 0; line < kGroupSamples; line += 64) prefetch(newest + at + std::size_t(line) + kAhead);
        sumPixelsAcross<kGroup>(d, rows, weights, at, out);
    }
    forEachVector<Wide>(all - at, [&](auto tag, std::size_t more)
                                      ZP_LANES { sumPixelsAcross<1>(tag, rows, weights, at + more, out); });
}

/// A group's samples as bytes of pixels, rounded.
template <bool kStream>
HWY_INLINE void storePixels(const Vector (&sum)[kGroup], std::uint8_t* target)
{
    const Samples16 d;
    const hn::Repartition<std::uint8_t, Samples16> whole;
    const hn::Half<decltype(whole)> half;
    const auto bytes = [&](Vector v) ZP_LANES {
        return hn::DemoteTo(half, hn::ShiftRight<kWideBits>(hn::Add(v, hn::Set(d, kWideHalf))));
    };
    for (int v = 0; v < kGroup; v += 2) {
        const auto two = hn::Combine(whole, bytes(sum[v + 1]), bytes(sum[v]));
        if constexpr (kStream)
            hn::Stream(two, whole, target + kLanes * v);
        else
            hn::StoreU(two, whole, target + kLanes * v);
    }
}

/// Calls f(sums, sample) for a row's groups and makes pixels of what it leaves in the sums.
template <class F>
HWY_INLINE void makePixels(std::uint32_t* pixels, int count, bool stream, F&& f)
{
    auto* const bytes = reinterpret_cast<std::uint8_t*>(pixels);
    const int whole = 4 * count / kGroupSamples * kGroupSamples;
    Vector sum[kGroup];
    int i = 0;
    if (stream) {
        for (; i < whole; i += kGroupSamples) {
            f(sum, i);
            storePixels<true>(sum, bytes + i);
        }
    } else {
        for (; i < whole; i += kGroupSamples) {
            f(sum, i);
            storePixels<false>(sum, bytes + i);
        }
    }
    if (i == 4 * count) return;
    HWY_ALIGN std::uint8_t rest[kGroupSamples];
    f(sum, i);
    storePixels<false>(sum, rest);
    std::memcpy(bytes + i, rest, std::size_t(4 * count - i));
}

void blurAlongToPixels(const Wide* middle, std::uint32_t* pixels, int count, const BlurWeights& weights, bool stream)
{
    makePixels(pixels, count, stream,
               [&](Vector(&sum)[kGroup], int i) ZP_LANES { sumAlong(sum, middle + i, weights); });
}

// ---- unsharp mask ---------------------------------------------------------------------------------------------------

/// Blurred samples rescaled from the blurred alpha to the alpha of the pixels at @p middle.
void underAlpha(Wide* blurred, const Wide* middle, int samples)
{
    for (int i = 0; i < samples; i += 4) {
        if (blurred[i] <= 0) continue; // nothing there to have a colour
        // Opaque among opaque needs nothing; decided pixel by pixel, so that its neighbours in a vector do not matter.
        if (middle[i] == kWideOne && blurred[i] >= kWideOne - kWideHalf) continue;
        const float ratio = float(middle[i]) / float(blurred[i]);
        for (int c = 1; c < 4; ++c)
            blurred[i + c] = Wide(std::clamp(float(blurred[i + c]) * ratio, 0.0f, float(kWideOne)) + 0.5f);
    }
}

/// Each pixel's alpha for all of its samples.
HWY_INLINE Vector alphas(Vector v)
{
    const Samples16 d;
    const hn::Repartition<std::uint8_t, Samples16> bytes;
    HWY_ALIGN static constexpr std::uint8_t kAlphas[16] = {0, 1, 0, 1, 0, 1, 0, 1, 8, 9, 8, 9, 8, 9, 8, 9};
    return hn::BitCast(d, hn::TableLookupBytes(hn::BitCast(bytes, v), hn::LoadDup128(bytes, kAlphas)));
}

void sharpenRow(const Wide* blurredRow, const Wide* middle, std::uint32_t* pixels, int count, SharpenAmount amount,
                bool stream)
{
    const Samples16 d;
    const hn::Repartition<std::uint64_t, Samples16> pixel;
    const auto factor = hn::Set(d, amount.factor);
    const auto colours = hn::BitCast(d, hn::Set(pixel, ~std::uint64_t{0xFFFF}));
    makePixels(pixels, count, stream, [&](Vector(&sharp)[kGroup], int i) ZP_LANES {
        for (int v = 0; v < kGroup; ++v) {
            const int at = i + kLanes * v;
            const auto c = hn::LoadU(d, middle + at);
            auto soft = hn::LoadU(d, blurredRow + at);
            // Opaque pixels among opaque ones, the usual case, have the blurred colour as it is.
            const auto least = hn::Min(c, hn::Add(soft, hn::Set(d, kWideHalf)));
            if (!hn::AllTrue(d, hn::Eq(alphas(hn::Min(least, hn::Set(d, kWideOne))), hn::Set(d, kWideOne)))) {
                // The blurred colour as it would be under this pixel's alpha.
                HWY_ALIGN Wide blurred[kLanes];
                hn::Store(soft, d, blurred);
                underAlpha(blurred, middle + at, kLanes);
                soft = hn::Load(d, blurred);
            }
            const auto difference = hn::And(hn::Sub(c, soft), colours);
            auto change = hn::MulFixedPoint15(hn::Add(difference, difference), factor);
            for (int k = 0; k < amount.doublings; ++k) change = hn::SaturatedAdd(change, change);
            sharp[v] = hn::Max(hn::Zero(d), hn::Min(hn::SaturatedAdd(c, change), alphas(c)));
        }
    });
}

void narrowRow(const Wide* row, std::uint32_t* pixels, int count, bool stream)
{
    makePixels(pixels, count, stream, [&](Vector(&samples)[kGroup], int i) ZP_LANES {
        for (int v = 0; v < kGroup; ++v) samples[v] = hn::LoadU(Samples16(), row + i + kLanes * v);
    });
}

} // namespace
} // namespace zp::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace zp
{

HWY_EXPORT(colourRow);
HWY_EXPORT(colourRowWide);
HWY_EXPORT(widenRow);
HWY_EXPORT(blurAlong);
HWY_EXPORT(blurAcross);
HWY_EXPORT(blurPixelsAcross);
HWY_EXPORT(blurAlongToPixels);
HWY_EXPORT(narrowRow);
HWY_EXPORT(sharpenRow);

namespace filters
{

void colourRow(const std::uint32_t* pixels, std::uint32_t* out, int count, const ColourMatrix& matrix)
{
    HWY_DYNAMIC_DISPATCH(colourRow)(pixels, out, count, matrix);
}
void colourRowWide(const std::uint32_t* pixels, Wide* out, int count, const ColourMatrix& matrix)
{
    HWY_DYNAMIC_DISPATCH(colourRowWide)(pixels, out, count, matrix);
}
void widenRow(const std::uint32_t* pixels, Wide* out, int count) { HWY_DYNAMIC_DISPATCH(widenRow)(pixels, out, count); }
void blurAlong(const Wide* middle, Wide* out, int count, const BlurWeights& weights)
{
    HWY_DYNAMIC_DISPATCH(blurAlong)(middle, out, count, weights);
}
void blurAcross(const Wide* const* rows, Wide* out, int count, const BlurWeights& weights)
{
    HWY_DYNAMIC_DISPATCH(blurAcross)(rows, out, count, weights);
}
void blurPixelsAcross(const std::uint32_t* const* rows, Wide* out, int count, const BlurWeights& weights)
{
    HWY_DYNAMIC_DISPATCH(blurPixelsAcross)(rows, out, count, weights);
}
void blurAlongToPixels(const Wide* middle, std::uint32_t* pixels, int count, const BlurWeights& weights, bool stream)
{
    HWY_DYNAMIC_DISPATCH(blurAlongToPixels)(middle, pixels, count, weights, stream);
}
void narrowRow(const Wide* row, std::uint32_t* pixels, int count, bool stream)
{
    HWY_DYNAMIC_DISPATCH(narrowRow)(row, pixels, count, stream);
}
void sharpenRow(const Wide* blurred, const Wide* middle, std::uint32_t* pixels, int count, SharpenAmount amount,
                bool stream)
{
    HWY_DYNAMIC_DISPATCH(sharpenRow)(blurred, middle, pixels, count, amount, stream);
}

} // namespace filters
} // namespace zp
#endif
