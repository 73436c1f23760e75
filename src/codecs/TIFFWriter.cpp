// SPDX-License-Identifier: GPL-3.0-or-later
/// TIFF files from A, R, G, B rows: strips compressed on all cores, metadata in the file's own directory.
#include "base/WorkPool.h"
#include "codecs/Codec.h"
#include "codecs/CodecWriters.h"
#include "codecs/MetadataBlocks.h"
#include "codecs/PixelRows.h"
#include "codecs/TIFFLZW.h"
#include <algorithm>
#include <cstring>

namespace zp::codec
{
namespace
{

/// Raw bytes of a strip: small enough to share between threads, large enough for the table to pay.
constexpr std::size_t kStripBytes = 512 << 10;
constexpr std::uint64_t kMaxFileBytes = 0xFFFF0000; // offsets are 32 bits

/// One row as R, G, B or R, G, B, A, every sample minus the one of the pixel before when @p difference.
void packRow(const std::uint8_t* argb, std::uint8_t* to, int count, bool alpha, bool difference)
{
    const unsigned step = alpha ? 4 : 3;
    if (!difference) {
        for (int x = 0; x < count; ++x, argb += 4, to += step) {
            to[0] = argb[1];
            to[1] = argb[2];
            to[2] = argb[3];
            if (alpha) to[3] = argb[0];
        }
        return;
    }
    std::uint8_t a = 0, r = 0, g = 0, b = 0;
    for (int x = 0; x < count; ++x, argb += 4, to += step) {
        to[0] = std::uint8_t(argb[1] - r);
        to[1] = std::uint8_t(argb[2] - g);
        to[2] = std::uint8_t(argb[3] - b);
        if (alpha) to[3] = std::uint8_t(argb[0] - a);
        a = argb[0];
        r = argb[1];
        g = argb[2];
        b = argb[3];
    }
}

std::vector<std::vector<std::uint8_t>> encodeStrips(ConstBitmapView pixels, bool alpha, bool lzw, int rowsPerStrip)
{
    const int strips = (pixels.height + rowsPerStrip - 1) / rowsPerStrip;
    const std::size_t rowBytes = std::size_t(pixels.width) * (alpha ? 4 : 3);
    std::vector<std::vector<std::uint8_t>> out(static_cast<std::size_t>(strips));
    parallelBands(strips, 1, [&](int first, int last) {
        LZWEncoder encoder;
        std::vector<std::uint8_t> raw(rowBytes * std::size_t(rowsPerStrip)), packed;
        for (int strip = first; strip < last; ++strip) {
            const int y0 = strip * rowsPerStrip, y1 = std::min(pixels.height, y0 + rowsPerStrip);
            for (int y = y0; y < y1; ++y)
                packRow(pixels.rowData(y), &raw[std::size_t(y - y0) * rowBytes], pixels.width, alpha, lzw);
            const std::span<const std::uint8_t> bytes(raw.data(), std::size_t(y1 - y0) * rowBytes);
            auto& strip_ = out[std::size_t(strip)];
            if (lzw) {
                packed.clear();
                encoder.encode(bytes, packed);
                strip_.assign(packed.begin(), packed.end());
            } else {
                strip_.assign(bytes.begin(), bytes.end());
            }
        }
    });
    return out;
}

} // namespace

std::vector<std::uint8_t> writeTIFF(ConstBitmapView pixels, const ImageProperties& properties, bool lzw)
{
    const bool alpha = !isOpaque(pixels);
    const unsigned samples = alpha ? 4 : 3;
    const int rowsPerStrip = std::clamp(int(kStripBytes / (std::size_t(pixels.width) * samples)), 1, pixels.height);
    const auto strips = encodeStrips(pixels, alpha, lzw, rowsPerStrip);

    ExifBlock block = exifForSaving(properties, pixels.width, pixels.height);
    ExifDirectory& file = block.image;
    const auto number = [&](std::uint16_t tag, ExifType type, std::uint32_t value) {
        block.setNumber(file, tag, type, value);
    };
    number(256, kLong, std::uint32_t(pixels.width));
    number(257, kLong, std::uint32_t(pixels.height));
    const std::uint32_t depths[] = {8, 8, 8, 8};
    block.setNumbers(file, 258, kShort, std::span(depths).first(samples));
    number(259, kShort, lzw ? 5 : 1);
    number(262, kShort, 2);
    number(tag::Orientation, kShort, 1);
    number(277, kShort, samples);
    number(278, kLong, std::uint32_t(rowsPerStrip));
    number(284, kShort, 1);
    if (lzw) number(317, kShort, 2);
    if (alpha) number(338, kShort, 1);
    const bool known = properties.xDpi > 0 && properties.yDpi > 0;
    block.setRational(file, tag::XResolution, known ? properties.xDpi : 72);
    block.setRational(file, tag::YResolution, known ? properties.yDpi : 72);
    number(tag::ResolutionUnit, kShort, 2);
    const auto blob = [&](std::uint16_t tag, ExifType type, const auto& bytes) {
        if (!bytes.empty())
            ExifBlock::setBytes(file, tag, type, std::uint32_t(bytes.size()), {bytes.begin(), bytes.end()});
    };
    blob(tag::ICCProfile, kUndefined, properties.iccProfile);
    blob(tag::XMPPacket, kByte, xmpForSaving(properties));

    std::uint64_t total = 0;
    std::vector<std::uint32_t> counts, offsets;
    for (const auto& strip : strips) {
        offsets.push_back(std::uint32_t(total));
        counts.push_back(std::uint32_t(strip.size()));
        total += strip.size();
    }
    block.setNumbers(file, 279, kLong, counts);
    block.setNumbers(file, 273, kLong, offsets);
    // The structure's size does not depend on the offsets' values: laid out once for the size, once for good.
    const std::size_t start = (serialiseExif(block).size() + 15) / 16 * 16;
    if (start + total > kMaxFileBytes) return {};
    for (std::uint32_t& offset : offsets) offset += std::uint32_t(start);
    block.setNumbers(file, 273, kLong, offsets);
    std::vector<std::uint8_t> out;
    out.reserve(start + total);
    const auto structure = serialiseExif(block);
    out.insert(out.end(), structure.begin(), structure.end());
    out.resize(start);
    for (const auto& strip : strips) out.insert(out.end(), strip.begin(), strip.end());
    return out;
}

} // namespace zp::codec
