// SPDX-License-Identifier: GPL-3.0-or-later
/// Single samples through a table, all others one by one.
#include "codecs/PNGSamples.h"
#include "base/FixedPoint.h"
#include "codecs/PixelRows.h"
#include <algorithm>
#include <cstring>

namespace zp::codec
{
namespace
{

/// Nearest to v * 255 / 65535.
std::uint8_t toByte(std::uint32_t v) { return std::uint8_t((v * 255 + 32895) >> 16); }

std::uint16_t big16(const std::uint8_t* p) { return std::uint16_t(p[0] << 8 | p[1]); }

std::uint32_t pixelOf(std::uint32_t a, std::uint32_t r, std::uint32_t g, std::uint32_t b)
{
    const auto scaled = [a](std::uint32_t c) { return divide255(c * a); };
    return a | scaled(r) << 8 | scaled(g) << 16 | scaled(b) << 24;
}

} // namespace

PNGSamples::PNGSamples(const PNGParts& parts) : mHeader(parts.header)
{
    const Bytes key = parts.transparency;
    const unsigned samples = mHeader.samples();
    mHasKey = (mHeader.type == PNGHeader::Grey || mHeader.type == PNGHeader::RGB) && key.size() == 2u * samples;
    for (unsigned i = 0; mHasKey && i < samples; ++i)
        mKey[i] = std::uint16_t(big16(&key[2 * i]) & ((1u << mHeader.depth) - 1));
    mPlain = mHeader.depth == 8 && samples >= 3 && !mHasKey;
    mHasAlpha = mHasKey || mHeader.type == PNGHeader::GreyAlpha || mHeader.type == PNGHeader::RGBA ||
                (mHeader.type == PNGHeader::Palette && !key.empty());
    if (samples == 1 && mHeader.depth <= 8) fillTable(parts);
}

void PNGSamples::fillTable(const PNGParts& parts)
{
    const unsigned values = 1u << mHeader.depth;
    const std::size_t colours = parts.palette.size() / 3;
    // More entries for transparency than for colours belong to no palette.
    const Bytes alphas = parts.transparency.size() <= colours ? parts.transparency : Bytes();
    for (unsigned i = 0; i < values; ++i) {
        if (mHeader.type == PNGHeader::Grey) {
            const unsigned grey = i * 255 / (values - 1);
            mTable[i] = pixelOf(mHasKey && i == mKey[0] ? 0 : 255, grey, grey, grey);
        } else if (i < colours) {
            const std::uint8_t* p = &parts.palette[3 * i];
            mTable[i] = pixelOf(i < alphas.size() ? alphas[i] : 255, p[0], p[1], p[2]);
        } else {
            mTable[i] = 255; // beyond the palette: black
        }
    }
}

template <unsigned Samples>
void PNGSamples::convertWhole(const std::uint8_t* samples, std::uint8_t* argb, std::size_t count) const
{
    constexpr bool kAlpha = Samples % 2 == 0;
    constexpr unsigned kColours = Samples - (kAlpha ? 1 : 0);
    const unsigned bytes = mHeader.depth / 8;
    for (std::size_t x = 0; x < count; ++x, argb += 4, samples += std::size_t{Samples} * bytes) {
        std::uint16_t value[Samples];
        for (unsigned i = 0; i < Samples; ++i) value[i] = bytes == 2 ? big16(samples + 2 * i) : samples[i];
        const auto byte = [bytes](std::uint16_t v) { return bytes == 2 ? toByte(v) : std::uint8_t(v); };
        argb[0] = kAlpha ? byte(value[Samples - 1]) : 255;
        for (unsigned i = 0; i < 3; ++i) argb[i + 1] = byte(value[kColours == 1 ? 0 : i]);
        if (!kAlpha && mHasKey && std::equal(value, value + kColours, mKey.begin())) argb[0] = 0;
    }
}

void PNGSamples::convertRow(const std::uint8_t* samples, std::uint8_t* argb, std::size_t count) const
{
    switch (mHeader.samples()) {
    case 1:
        if (mHeader.depth < 16) {
            const unsigned depth = mHeader.depth, mask = (1u << depth) - 1;
            for (std::size_t x = 0; x < count; ++x) {
                const std::size_t bit = x * depth;
                const unsigned value = samples[bit / 8] >> (8 - depth - bit % 8) & mask;
                std::memcpy(argb + 4 * x, &mTable[value], 4);
            }
            return; // the table's pixels are premultiplied
        }
        convertWhole<1>(samples, argb, count);
        break;
    case 2:
        convertWhole<2>(samples, argb, count);
        break;
    case 3:
        convertWhole<3>(samples, argb, count);
        break;
    default:
        convertWhole<4>(samples, argb, count);
    }
    if (mHasAlpha) premultiplyRow(argb, count);
}

} // namespace zp::codec
