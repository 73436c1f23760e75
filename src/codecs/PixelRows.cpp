// SPDX-License-Identifier: GPL-3.0-or-later
/// Row kernels: alpha arithmetic and orders of bytes.
#include "codecs/PixelRows.h"
#include <algorithm>
#include <cstring>

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "codecs/PixelRows.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

#include "base/PixelVectors-inl.h"

HWY_BEFORE_NAMESPACE();
namespace zp::codec::HWY_NAMESPACE
{
namespace
{
namespace hn = hwy::HWY_NAMESPACE;

using D8 = hn::ScalableTag<std::uint8_t>;
using D16 = hn::Repartition<std::uint16_t, D8>;
using D32 = hn::Repartition<std::uint32_t, D8>;
using V8 = hn::Vec<D8>;
using V16 = hn::Vec<D16>;
using V32 = hn::Vec<D32>;

/// Calls kernel(from, to) on whole vectors of pixels; what is left over goes through a vector beside the row.
template <class Kernel>
HWY_INLINE void eachVector(const std::uint8_t* from, std::uint8_t* to, std::size_t count, Kernel kernel)
{
    const std::size_t n = hn::Lanes(D8()), bytes = 4 * count;
    std::size_t i = 0;
    for (; i + n <= bytes; i += n) kernel(from + i, to + i);
    if (i == bytes) return;
    HWY_ALIGN std::uint8_t rest[HWY_MAX_BYTES] = {};
    std::memcpy(rest, from + i, bytes - i);
    kernel(rest, rest);
    std::memcpy(to + i, rest, bytes - i);
}

HWY_INLINE V8 lookUp(V8 bytes, std::uint32_t pixel)
{
    HWY_ALIGN const std::uint32_t from[4] = {pixel, pixel + 0x04040404u, pixel + 0x08080808u, pixel + 0x0C0C0C0Cu};
    return hn::TableLookupBytes(bytes, hn::BitCast(D8(), hn::LoadDup128(D32(), from)));
}
/// The pixel's alpha in each of its bytes.
HWY_INLINE V8 alphas(V8 pixels) { return lookUp(pixels, 0); }

using zp::HWY_NAMESPACE::divide255;
/// Bytes times bytes by 255, rounded: the bytes at even places, then those at odd ones.
HWY_INLINE V8 multiply(V8 a, V8 b)
{
    const D16 d;
    const V16 x = hn::BitCast(d, a), y = hn::BitCast(d, b), byte = hn::Set(d, 255);
    const V16 even = divide255(d, hn::Mul(hn::And(x, byte), hn::And(y, byte)));
    const V16 odd = divide255(d, hn::Mul(hn::ShiftRight<8>(x), hn::ShiftRight<8>(y)));
    return hn::BitCast(D8(), hn::Or(even, hn::ShiftLeft<8>(odd)));
}
HWY_INLINE V8 everyPixel(std::uint32_t word) { return hn::BitCast(D8(), hn::Set(D32(), word)); }

void premultiply(std::uint8_t* argb, std::size_t count)
{
    const D8 d;
    const V8 keepAlpha = everyPixel(0x000000FF); // alpha times 255 stays itself
    eachVector(argb, argb, count, [&](const std::uint8_t* from, std::uint8_t* to) HWY_ATTR {
        const V8 pixels = hn::LoadU(d, from);
        hn::StoreU(multiply(pixels, hn::Or(alphas(pixels), keepAlpha)), d, to);
    });
}

void compose(const std::uint8_t* argb, std::uint8_t* to, std::size_t count, std::uint32_t background)
{
    const D8 d;
    const V8 behind = everyPixel(background | 0xFF);
    eachVector(argb, to, count, [&](const std::uint8_t* from, std::uint8_t* into) HWY_ATTR {
        const V8 pixels = hn::LoadU(d, from);
        hn::StoreU(hn::SaturatedAdd(pixels, multiply(behind, hn::Not(alphas(pixels)))), d, into);
    });
}

void limitToAlpha(std::uint8_t* argb, std::size_t count)
{
    const D8 d;
    eachVector(argb, argb, count, [&](const std::uint8_t* from, std::uint8_t* to) HWY_ATTR {
        const V8 pixels = hn::LoadU(d, from);
        hn::StoreU(hn::Min(pixels, alphas(pixels)), d, to);
    });
}

void unpremultiply(const std::uint8_t* argb, std::uint8_t* rgba, std::size_t count)
{
    const D32 d;
    const hn::RebindToFloat<D32> df;
    const hn::RebindToSigned<D32> di;
    const V32 byte = hn::Set(d, 255), one = hn::Set(d, 1);
    eachVector(argb, rgba, count, [&](const std::uint8_t* from, std::uint8_t* to) HWY_ATTR {
        const V32 pixels = hn::BitCast(d, hn::LoadU(D8(), from));
        const V32 alpha = hn::And(pixels, byte), divisor = hn::Max(alpha, one);
        const auto factor = hn::Div(hn::Set(df, 1.0f), hn::ConvertTo(df, hn::BitCast(di, divisor)));
        const auto half = hn::ShiftRight<1>(divisor);
        // (colour * 255 + alpha / 2) / alpha: half a unit above the numerator keeps the quotient further from every
        // whole number than the arithmetic's error, so that cutting off gives the whole division's result.
        const auto straight = [&](V32 colour) HWY_ATTR {
            const V32 c = hn::Min(colour, alpha);
            const V32 numerator = hn::Add(hn::Sub(hn::ShiftLeft<8>(c), c), half);
            const auto exact = hn::Add(hn::ConvertTo(df, hn::BitCast(di, numerator)), hn::Set(df, 0.5f));
            return hn::BitCast(d, hn::ConvertTo(di, hn::Mul(exact, factor)));
        };
        const V32 red = straight(hn::And(hn::ShiftRight<8>(pixels), byte));
        const V32 green = straight(hn::And(hn::ShiftRight<16>(pixels), byte)),
                  blue = straight(hn::ShiftRight<24>(pixels));
        const V32 colours = hn::Or(hn::Or(red, hn::ShiftLeft<8>(green)), hn::ShiftLeft<16>(blue));
        hn::StoreU(hn::BitCast(D8(), hn::Or(colours, hn::ShiftLeft<24>(alpha))), D8(), to);
    });
}

void toRGBA(const std::uint8_t* argb, std::uint8_t* rgba, std::size_t count)
{
    eachVector(argb, rgba, count, [](const std::uint8_t* from, std::uint8_t* to) HWY_ATTR {
        hn::StoreU(lookUp(hn::LoadU(D8(), from), 0x00030201), D8(), to);
    });
}

void fromRGBA(const std::uint8_t* rgba, std::uint8_t* argb, std::size_t count)
{
    eachVector(rgba, argb, count, [](const std::uint8_t* from, std::uint8_t* to) HWY_ATTR {
        hn::StoreU(lookUp(hn::LoadU(D8(), from), 0x02010003), D8(), to);
    });
}

/// Three bytes a pixel: vectors of 16 bytes hold four of them on either side, of which wider ones would gain nothing.
using DFour = hn::FixedTag<std::uint8_t, 16>;

void fromRGB(const std::uint8_t* rgb, std::uint8_t* argb, std::size_t count)
{
    const DFour d;
    HWY_ALIGN static constexpr std::uint8_t kFrom[16] = {0x80, 0, 1, 2, 0x80, 3, 4, 5, 0x80, 6, 7, 8, 0x80, 9, 10, 11};
    const auto order = hn::Load(d, kFrom);
    const auto opaque = hn::BitCast(d, hn::Set(hn::Repartition<std::uint32_t, DFour>(), 0xFFu));
    std::size_t x = 0;
    for (; 3 * x + 16 <= 3 * count; x += 4)
        hn::StoreU(hn::Or(hn::TableLookupBytesOr0(hn::LoadU(d, rgb + 3 * x), order), opaque), d, argb + 4 * x);
    for (; x < count; ++x) {
        argb[4 * x] = 255;
        std::memcpy(argb + 4 * x + 1, rgb + 3 * x, 3);
    }
}

void toRGB(const std::uint8_t* argb, std::uint8_t* rgb, std::size_t count)
{
    const DFour d;
    HWY_ALIGN static constexpr std::uint8_t kFrom[16] = {1, 2, 3, 5, 6, 7, 9, 10, 11, 13, 14, 15};
    const auto order = hn::Load(d, kFrom);
    std::size_t x = 0;
    for (; 3 * x + 16 <= 3 * count; x += 4) // the four bytes too many are written over by the next ones
        hn::StoreU(hn::TableLookupBytes(hn::LoadU(d, argb + 4 * x), order), d, rgb + 3 * x);
    for (; x < count; ++x) std::memcpy(rgb + 3 * x, argb + 4 * x + 1, 3);
}

bool opaqueRow(const std::uint8_t* argb, std::size_t count)
{
    const D8 d;
    const std::size_t n = hn::Lanes(d), bytes = 4 * count;
    V8 all = hn::Set(d, 255);
    std::size_t i = 0;
    for (; i + n <= bytes; i += n) all = hn::And(all, hn::LoadU(d, argb + i));
    bool opaque =
        hn::AllTrue(D32(), hn::Eq(hn::And(hn::BitCast(D32(), all), hn::Set(D32(), 255)), hn::Set(D32(), 255)));
    for (; i < bytes; i += 4) opaque &= argb[i] == 255;
    return opaque;
}

bool greyRow(const std::uint8_t* argb, std::size_t count)
{
    const D32 d;
    const std::size_t n = hn::Lanes(d);
    const V32 two = hn::Set(d, 0xFFFF);
    V32 differences = hn::Zero(d);
    std::size_t x = 0;
    for (; x + n <= count; x += n) {
        const V32 pixels = hn::BitCast(d, hn::LoadU(D8(), argb + 4 * x));
        const V32 redGreen = hn::And(hn::ShiftRight<8>(pixels), two), greenBlue = hn::ShiftRight<16>(pixels);
        differences = hn::Or(differences, hn::Xor(redGreen, greenBlue));
    }
    bool grey = hn::AllTrue(d, hn::Eq(differences, hn::Zero(d)));
    for (; x < count; ++x) grey &= argb[4 * x + 1] == argb[4 * x + 2] && argb[4 * x + 2] == argb[4 * x + 3];
    return grey;
}

void toGrey(const std::uint8_t* argb, std::uint8_t* grey, std::size_t count)
{
    const D32 d;
    const hn::Rebind<std::uint8_t, D32> bytes;
    std::size_t x = 0;
    for (; x + hn::Lanes(d) <= count; x += hn::Lanes(d))
        hn::StoreU(
            hn::U8FromU32(hn::And(hn::ShiftRight<8>(hn::BitCast(d, hn::LoadU(D8(), argb + 4 * x))), hn::Set(d, 255))),
            bytes, grey + x);
    for (; x < count; ++x) grey[x] = argb[4 * x + 1];
}

} // namespace
} // namespace zp::codec::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace zp::codec
{
HWY_EXPORT(premultiply);
HWY_EXPORT(unpremultiply);
HWY_EXPORT(compose);
HWY_EXPORT(limitToAlpha);
HWY_EXPORT(fromRGB);
HWY_EXPORT(toRGB);
HWY_EXPORT(fromRGBA);
HWY_EXPORT(toRGBA);
HWY_EXPORT(opaqueRow);
HWY_EXPORT(greyRow);
HWY_EXPORT(toGrey);

void premultiplyRow(std::uint8_t* argb, std::size_t count) { HWY_DYNAMIC_DISPATCH(premultiply)(argb, count); }
void unpremultiplyRowToRGBA(const std::uint8_t* argb, std::uint8_t* rgba, std::size_t count)
{
    HWY_DYNAMIC_DISPATCH(unpremultiply)(argb, rgba, count);
}
void composeRow(const std::uint8_t* argb, std::uint8_t* to, std::size_t count, std::uint32_t background)
{
    HWY_DYNAMIC_DISPATCH(compose)(argb, to, count, background);
}
void limitRowToAlpha(std::uint8_t* argb, std::size_t count) { HWY_DYNAMIC_DISPATCH(limitToAlpha)(argb, count); }
void rgbToARGB(const std::uint8_t* rgb, std::uint8_t* argb, std::size_t count)
{
    HWY_DYNAMIC_DISPATCH(fromRGB)(rgb, argb, count);
}
void argbToRGB(const std::uint8_t* argb, std::uint8_t* rgb, std::size_t count)
{
    HWY_DYNAMIC_DISPATCH(toRGB)(argb, rgb, count);
}
void rgbaToARGB(const std::uint8_t* rgba, std::uint8_t* argb, std::size_t count)
{
    HWY_DYNAMIC_DISPATCH(fromRGBA)(rgba, argb, count);
}
void argbToRGBA(const std::uint8_t* argb, std::uint8_t* rgba, std::size_t count)
{
    HWY_DYNAMIC_DISPATCH(toRGBA)(argb, rgba, count);
}
bool isOpaqueRow(const std::uint8_t* argb, std::size_t count) { return HWY_DYNAMIC_DISPATCH(opaqueRow)(argb, count); }

bool isGreyRow(const std::uint8_t* argb, std::size_t count) { return HWY_DYNAMIC_DISPATCH(greyRow)(argb, count); }
void argbToGrey(const std::uint8_t* argb, std::uint8_t* grey, std::size_t count)
{
    HWY_DYNAMIC_DISPATCH(toGrey)(argb, grey, count);
}

bool isOpaque(ConstBitmapView pixels)
{
    for (int y = 0; y < pixels.height; ++y)
        if (!isOpaqueRow(pixels.rowData(y), std::size_t(pixels.width))) return false;
    return true;
}

bool isGrey(ConstBitmapView pixels)
{
    for (int y = 0; y < pixels.height; ++y)
        if (!isGreyRow(pixels.rowData(y), std::size_t(pixels.width))) return false;
    return true;
}

} // namespace zp::codec
#endif
