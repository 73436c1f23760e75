// SPDX-License-Identifier: GPL-3.0-or-later
/// Unpacks TIFF samples; bytes of red, green and blue, the usual case, take a short way.
#include "codecs/TIFFSamples.h"
#include "codecs/PNGUnfilter.h" // whose filter that looks to the left is TIFF's predictor
#include "codecs/PixelRows.h"
#include <algorithm>
#include <bit>
#include <cmath>
#include <cstring>

namespace zp::codec
{
namespace
{

std::uint8_t toByte(std::uint16_t v) { return std::uint8_t((std::uint32_t{v} * 255 + 32767) / 65535); }

std::uint16_t fromUnit(double v)
{
    if (!(v > 0)) return 0; // and what is no number
    return v >= 1 ? 65535 : std::uint16_t(v * 65535 + 0.5);
}

double fromHalf(std::uint16_t h)
{
    const int exponent = (h >> 10) & 31;
    const double mantissa = h & 1023;
    const double magnitude = exponent == 0    ? std::ldexp(mantissa, -24)
                             : exponent == 31 ? (mantissa != 0 ? NAN : INFINITY)
                                              : std::ldexp(mantissa + 1024, exponent - 25);
    return h & 0x8000 ? -magnitude : magnitude;
}

/// Bits @p at to at + n of a row, the first the highest.
std::uint32_t bitsAt(const std::uint8_t* row, std::size_t at, unsigned n)
{
    std::uint64_t value = 0;
    const std::size_t last = (at + n - 1) / 8;
    for (std::size_t i = at / 8; i <= last; ++i) value = value << 8 | row[i];
    value >>= 7 - (at + n - 1) % 8;
    return std::uint32_t(value & ((std::uint64_t{1} << n) - 1));
}

template <class T>
T load(const std::uint8_t* p)
{
    T value;
    std::memcpy(&value, p, sizeof value);
    return value;
}

} // namespace

bool SampleConverter::handles(const TIFFLayout& l)
{
    const bool floating = l.format == SAMPLEFORMAT_IEEEFP;
    if (l.format != SAMPLEFORMAT_UINT && l.format != SAMPLEFORMAT_INT && l.format != SAMPLEFORMAT_VOID && !floating)
        return false;
    if (floating ? l.bits != 16 && l.bits != 24 && l.bits != 32 && l.bits != 64 : l.bits > 32) return false;
    if (l.samples < l.colourSamples()) return false;
    switch (l.photometric) {
    case PHOTOMETRIC_MINISBLACK:
    case PHOTOMETRIC_MINISWHITE:
    case PHOTOMETRIC_RGB:
        return true;
    case PHOTOMETRIC_PALETTE:
        return l.palette[0] && !floating && l.bits <= 16;
    case PHOTOMETRIC_SEPARATED:
        return l.inkSet == INKSET_CMYK;
    default:
        return false;
    }
}

SampleConverter::SampleConverter(const TIFFLayout& layout) : mLayout(layout)
{
    if (layout.palette[0]) {
        // Old programs wrote palettes of bytes where words belong.
        mPaletteOfBytes = true;
        for (const std::uint16_t* map : layout.palette)
            for (std::size_t i = 0; i < std::size_t{1} << layout.bits; ++i) mPaletteOfBytes &= map[i] < 256;
    }
    for (unsigned i = 0; i < layout.neededSamples(); ++i) mRow[i].resize(std::size_t(layout.chunkWidth));
}

void SampleConverter::unpack(const std::uint8_t* samples, unsigned first, unsigned step, std::uint16_t* out,
                             int count) const
{
    const unsigned bits = mLayout.bits;
    const auto n = std::size_t(count);
    const auto each = [&](auto value) {
        for (std::size_t i = 0; i < n; ++i) out[i] = value(first + i * step);
    };
    if (mLayout.format == SAMPLEFORMAT_IEEEFP) {
        switch (bits) {
        case 16:
            each([&](std::size_t i) { return fromUnit(fromHalf(load<std::uint16_t>(samples + 2 * i))); });
            break;
        case 32:
            each([&](std::size_t i) { return fromUnit(double(load<float>(samples + 4 * i))); });
            break;
        case 64:
            each([&](std::size_t i) { return fromUnit(load<double>(samples + 8 * i)); });
            break;
        default: // 24 bits: seven of exponent, sixteen of mantissa, in this machine's order
            each([&](std::size_t i) {
                const std::uint8_t* p = samples + 3 * i;
                const std::uint32_t word = std::uint32_t(p[0]) | std::uint32_t(p[1]) << 8 | std::uint32_t(p[2]) << 16;
                const int exponent = int(word >> 16 & 127);
                const double m = word & 0xFFFF;
                const double value = exponent == 0 ? std::ldexp(m, -78) : std::ldexp(m + 65536, exponent - 79);
                return fromUnit(word & 0x800000 ? -value : value);
            });
        }
        return;
    }
    // Numbers with a sign are shifted so that the lowest is black.
    const std::uint32_t flip = mLayout.format == SAMPLEFORMAT_INT ? 1u << (bits - 1) : 0;
    if (mLayout.photometric == PHOTOMETRIC_PALETTE && first == 0) {
        each([&](std::size_t i) {
            return bits == 8    ? std::uint16_t(samples[i])
                   : bits == 16 ? load<std::uint16_t>(samples + 2 * i)
                                : std::uint16_t(bitsAt(samples, i * bits, bits));
        });
        return;
    }
    switch (bits) {
    case 8:
        each([&](std::size_t i) { return std::uint16_t((samples[i] ^ flip) * 257); });
        break;
    case 16:
        each([&](std::size_t i) { return std::uint16_t(load<std::uint16_t>(samples + 2 * i) ^ flip); });
        break;
    case 24:
        each([&](std::size_t i) {
            const std::uint8_t* p = samples + 3 * i; // libtiff brought the bytes into this machine's order
            return std::uint16_t((std::uint32_t(p[1]) | std::uint32_t(p[2]) << 8) ^ (flip >> 8));
        });
        break;
    case 32:
        each([&](std::size_t i) { return std::uint16_t((load<std::uint32_t>(samples + 4 * i) ^ flip) >> 16); });
        break;
    default: {
        const std::uint64_t most = (std::uint64_t{1} << bits) - 1;
        each([&](std::size_t i) {
            const std::uint64_t v = bitsAt(samples, i * bits, bits) ^ flip;
            return std::uint16_t((v * 65535 + most / 2) / most);
        });
    }
    }
}

void SampleConverter::convertRow(const std::uint8_t* samples, std::size_t planeBytes, std::uint8_t* argb, int count)
{
    const TIFFLayout& l = mLayout;
    if (l.inks) return l.inks->convert(samples, argb, count);
    if (isPlain()) {
        (l.samples == 4 ? rgbaToARGB : rgbToARGB)(samples, argb, std::size_t(count));
        finish(argb, count);
        return;
    }
    const unsigned needed = l.neededSamples();
    for (unsigned s = 0; s < needed; ++s) {
        if (l.separatePlanes)
            unpack(samples + s * planeBytes, 0, 1, mRow[s].data(), count);
        else
            unpack(samples, s, l.samples, mRow[s].data(), count);
    }
    const unsigned colours = l.colourSamples();
    for (int x = 0; x < count; ++x) {
        const auto i = std::size_t(x);
        std::uint8_t* p = argb + 4 * i;
        p[0] = l.hasAlpha() ? toByte(mRow[colours][i]) : 255;
        switch (l.photometric) {
        case PHOTOMETRIC_RGB:
            for (unsigned k = 0; k < 3; ++k) p[k + 1] = toByte(mRow[k][i]);
            break;
        case PHOTOMETRIC_PALETTE:
            for (unsigned k = 0; k < 3; ++k) {
                const std::uint16_t v = l.palette[k][mRow[0][i] & ((1u << l.bits) - 1)];
                p[k + 1] = mPaletteOfBytes ? std::uint8_t(v) : toByte(v);
            }
            break;
        case PHOTOMETRIC_SEPARATED:
            for (unsigned k = 0; k < 3; ++k) {
                const std::uint32_t light = (65535u - mRow[k][i]), paper = 65535u - mRow[3][i];
                p[k + 1] = toByte(std::uint16_t((std::uint64_t{light} * paper + 32767) / 65535));
            }
            break;
        default: {
            const std::uint8_t v = toByte(mRow[0][i]);
            p[1] = p[2] = p[3] = l.photometric == PHOTOMETRIC_MINISWHITE ? std::uint8_t(255 - v) : v;
        }
        }
    }
    finish(argb, count);
}

bool SampleConverter::isPlain() const
{
    const TIFFLayout& l = mLayout;
    return l.photometric == PHOTOMETRIC_RGB && l.bits == 8 && l.format != SAMPLEFORMAT_INT && !l.separatePlanes &&
           l.samples == (l.hasAlpha() ? 4u : 3u);
}

void SampleConverter::convertDifferences(const std::uint8_t* samples, std::uint8_t* argb, int count) const
{
    const auto undo = mLayout.samples == 4 ? unfilterRGBA : unfilterRGB;
    undo(PNGFilter::Sub, samples, nullptr, argb, std::size_t(count));
    finish(argb, count);
}

void SampleConverter::finish(std::uint8_t* argb, int count) const
{
    if (!mLayout.hasAlpha()) return;
    if (mLayout.alphaKind == EXTRASAMPLE_UNASSALPHA) {
        premultiplyRow(argb, std::size_t(count));
        return;
    }
    limitRowToAlpha(argb, std::size_t(count));
}

} // namespace zp::codec
