// SPDX-License-Identifier: GPL-3.0-or-later
/// PNG files from A, R, G, B rows: strips filtered and compressed on all cores and joined into one stream.
#include "base/WorkPool.h"
#include "codecs/Codec.h"
#include "codecs/CodecWriters.h"
#include "codecs/MetadataBlocks.h"
#include "codecs/PNGDeflate.h"
#include "codecs/PNGFilter.h"
#include "codecs/PixelRows.h"
#include <algorithm>
#include <cmath>
#include <cstring>
#include <libdeflate.h>

namespace zp::codec
{
namespace
{

constexpr std::size_t kStripBytes = 1 << 20; // raw bytes a strip: what the window forgets between strips is then small

void putBig(std::vector<std::uint8_t>& out, std::uint32_t value)
{
    for (int shift = 24; shift >= 0; shift -= 8) out.push_back(std::uint8_t(value >> shift));
}

Bytes bytesOf(const char* text, std::size_t length) { return {reinterpret_cast<const std::uint8_t*>(text), length}; }

void append(std::vector<std::uint8_t>& out, Bytes bytes)
{
    const std::size_t at = out.size();
    out.resize(at + bytes.size());
    if (!bytes.empty()) std::memcpy(out.data() + at, bytes.data(), bytes.size());
}

/// A chunk whose data is the concatenation of the pieces.
void putChunk(std::vector<std::uint8_t>& out, const char* name, std::initializer_list<Bytes> pieces)
{
    std::size_t length = 0;
    for (const Bytes piece : pieces) length += piece.size();
    putBig(out, std::uint32_t(length));
    const std::size_t start = out.size();
    append(out, bytesOf(name, 4));
    for (const Bytes piece : pieces) append(out, piece);
    putBig(out, libdeflate_crc32(0, out.data() + start, out.size() - start));
}

std::vector<std::uint8_t> zlibCompressed(Bytes bytes)
{
    libdeflate_compressor* compressor = libdeflate_alloc_compressor(6);
    if (!compressor) return {};
    std::vector<std::uint8_t> out(libdeflate_zlib_compress_bound(compressor, bytes.size()));
    out.resize(libdeflate_zlib_compress(compressor, bytes.data(), bytes.size(), out.data(), out.size()));
    libdeflate_free_compressor(compressor);
    return out;
}

void putMetadata(std::vector<std::uint8_t>& out, ConstBitmapView pixels, const ImageProperties& properties)
{
    if (!properties.iccProfile.empty()) {
        const auto packed = zlibCompressed(properties.iccProfile);
        if (!packed.empty()) putChunk(out, "iCCP", {bytesOf("ICC profile\0", 13), packed}); // name, zero, method 0
    }
    if (properties.xDpi > 0 && properties.yDpi > 0 && properties.xDpi < 5e7 && properties.yDpi < 5e7) {
        std::vector<std::uint8_t> density;
        putBig(density, std::uint32_t(std::lround(properties.xDpi / 0.0254)));
        putBig(density, std::uint32_t(std::lround(properties.yDpi / 0.0254)));
        density.push_back(1);
        putChunk(out, "pHYs", {density});
    }
    const auto exif = serialiseExif(exifForSaving(properties, pixels.width, pixels.height));
    if (!exif.empty()) putChunk(out, "eXIf", {exif});
    const std::string packet = xmpForSaving(properties);
    if (!packet.empty()) // keyword, not compressed, no language, no translated keyword
        putChunk(out, "iTXt", {bytesOf("XML:com.adobe.xmp\0\0\0\0", 22), bytesOf(packet.data(), packet.size())});
}

struct Strip {
    std::vector<std::uint8_t> packed;
    std::uint32_t adler = 1;
    std::size_t rawBytes = 0;
};

} // namespace

std::vector<std::uint8_t> writePNG(ConstBitmapView pixels, const ImageProperties& properties)
{
    // A picture without colours takes a third of the file as grey; but a profile is one for colours.
    const unsigned samples = !isOpaque(pixels) ? 4 : properties.iccProfile.empty() && isGrey(pixels) ? 1 : 3;
    const std::size_t rowBytes = std::size_t(pixels.width) * samples;
    const int rowsPerStrip = std::clamp(int(kStripBytes / rowBytes), 1, pixels.height);
    const int strips = (pixels.height + rowsPerStrip - 1) / rowsPerStrip;
    std::vector<Strip> parts(static_cast<std::size_t>(strips));
    parallelBands(strips, 1, [&](int first, int last) {
        RowFilter filter(pixels.width, samples);
        StripDeflater deflater(samples);
        std::vector<std::uint8_t> raw;
        for (int strip = first; strip < last; ++strip) {
            const int y0 = strip * rowsPerStrip, y1 = std::min(pixels.height, y0 + rowsPerStrip);
            raw.resize((rowBytes + 1) * std::size_t(y1 - y0));
            for (int y = y0; y < y1; ++y)
                filter.filterRow(pixels, y, y == y0, &raw[(rowBytes + 1) * std::size_t(y - y0)]);
            Strip& part = parts[std::size_t(strip)];
            part.rawBytes = raw.size();
            part.adler = libdeflate_adler32(1, raw.data(), raw.size());
            deflater.deflate(raw, strip == strips - 1, part.packed);
        }
    });

    std::vector<std::uint8_t> out;
    std::size_t total = 8192 + properties.iccProfile.size() + properties.exif.size() + properties.xmp.size();
    for (const Strip& part : parts) total += part.packed.size() + 12;
    out.reserve(total);
    static constexpr std::uint8_t kSignature[] = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
    append(out, kSignature);
    std::vector<std::uint8_t> header;
    putBig(header, std::uint32_t(pixels.width));
    putBig(header, std::uint32_t(pixels.height));
    const int type = samples == 4 ? 6 : samples == 3 ? 2 : 0;
    for (const int field : {8, type, 0, 0, 0}) header.push_back(std::uint8_t(field));
    putChunk(out, "IHDR", {header});
    putMetadata(out, pixels, properties);

    std::uint32_t adler = 1;
    for (const Strip& part : parts) adler = combinedAdler(adler, part.adler, part.rawBytes);
    std::vector<std::uint8_t> checksum;
    putBig(checksum, adler);
    static constexpr std::uint8_t kZlibHeader[] = {0x78, 0x9C};
    for (int i = 0; i < strips; ++i) {
        const Bytes head = i == 0 ? Bytes(kZlibHeader) : Bytes(), tail = i == strips - 1 ? Bytes(checksum) : Bytes();
        putChunk(out, "IDAT", {head, parts[std::size_t(i)].packed, tail});
    }
    putChunk(out, "IEND", {});
    return out;
}

} // namespace zp::codec
