// SPDX-License-Identifier: GPL-3.0-or-later
/// TIFF files from A, R, G, B rows: strips compressed on all cores, metadata in the file's own directory.
#include "base/WorkPool.h"
#include "codecs/Codec.h"
#include "codecs/CodecWriters.h"
#include "codecs/MetadataBlocks.h"
#include "codecs/PNGFilter.h" // whose filter that looks to the left is TIFF's only predictor
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

std::vector<std::vector<std::uint8_t>> encodeStrips(ConstBitmapView pixels, unsigned samples, bool lzw,
                                                    int rowsPerStrip)
{
    const int strips = (pixels.height + rowsPerStrip - 1) / rowsPerStrip;
    const std::size_t rowBytes = std::size_t(pixels.width) * samples;
    std::vector<std::vector<std::uint8_t>> out(static_cast<std::size_t>(strips));
    parallelBands(strips, 1, [&](int first, int last) {
        LZWEncoder encoder;
        std::vector<std::uint8_t> raw(rowBytes * std::size_t(rowsPerStrip)), row(samples + rowBytes), packed;
        for (int i = first; i < last; ++i) {
            const int y0 = i * rowsPerStrip, y1 = std::min(pixels.height, y0 + rowsPerStrip);
            std::uint8_t* to = raw.data();
            for (int y = y0; y < y1; ++y, to += rowBytes) {
                std::uint8_t* const plain = lzw ? row.data() + samples : to; // before its first pixel stand zeros
                (samples == 4 ? argbToRGBA : argbToRGB)(pixels.rowData(y), plain, std::size_t(pixels.width));
                if (lzw) applyFilter(PNGFilter::Sub, plain, nullptr, rowBytes, samples, to);
            }
            const std::span<const std::uint8_t> bytes(raw.data(), std::size_t(y1 - y0) * rowBytes);
            if (lzw) encoder.encode(bytes, packed);
            const auto strip = lzw ? std::span<const std::uint8_t>(packed) : bytes;
            out[std::size_t(i)].assign(strip.begin(), strip.end());
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
    const auto strips = encodeStrips(pixels, samples, lzw, rowsPerStrip);

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
    blob(tag::IPTC, kUndefined, properties.iptc);

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
