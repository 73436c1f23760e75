// SPDX-License-Identifier: GPL-3.0-or-later
/// Reads from a file's structure what it holds beside the picture: pages, frames, layers, bits, inks, a JPEG's quality.
#include "codecs/ByteReader.h"
#include "codecs/Codec.h"
#include "codecs/PictureFacts.h"
#include "codecs/TIFFTags.h"
#include <algorithm>
#include <array>
#include <cstdlib>
#include <set>

namespace zp::codec
{

namespace
{

// ---- JPEG -----------------------------------------------------------------------------------------------------------

/// The luminance table that qualities scale, as files order it (diagonally).
constexpr std::array<int, 64> kLuminance{16, 11, 12,  14,  12,  10, 16, 14,  13,  14,  18,  17,  16, 19,  24,  40,
                                         26, 24, 22,  22,  24,  49, 35, 37,  29,  40,  58,  51,  61, 60,  57,  51,
                                         56, 55, 64,  72,  92,  78, 64, 68,  87,  69,  55,  56,  80, 109, 81,  87,
                                         95, 98, 103, 104, 103, 62, 77, 113, 121, 112, 100, 120, 92, 101, 103, 99};

/// The quality whose table is nearest. A camera's own tables fall on no quality; the nearest says how fine they are.
int nearestQuality(const std::array<int, 64>& table)
{
    int best = 0, leastDifference = 0;
    for (int quality = 1; quality <= 100; ++quality) {
        const int scale = quality < 50 ? 5000 / quality : 200 - 2 * quality;
        int difference = 0;
        for (std::size_t i = 0; i < table.size(); ++i)
            difference += std::abs(table[i] - std::clamp((kLuminance[i] * scale + 50) / 100, 1, 255));
        if (best > 0 && difference > leastDifference) continue;
        best = quality;
        leastDifference = difference;
    }
    return best;
}

void readJPEG(const ByteReader& file, PictureFacts& facts)
{
    constexpr unsigned kTables = 0xDB, kScan = 0xDA, kEnd = 0xD9;
    for (std::uint64_t at = 2; at + 4 <= file.size();) {
        if (file.u8(at) != 0xFF) return;
        const unsigned marker = file.u8(at + 1);
        if (marker == 0xFF) { // filler
            ++at;
            continue;
        }
        if (marker == kScan || marker == kEnd) return;
        const std::uint64_t body = at + 4, end = at + 2 + file.u16(at + 2);
        if (end < body) return;
        const bool isFrame = marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
        if (isFrame) {
            facts.bits = int(file.u8(body));
            facts.inks = file.u8(body + 5) == 4;
        }
        for (std::uint64_t t = body; marker == kTables && t < end;) {
            const unsigned head = file.u8(t++), size = head >> 4 ? 2 : 1;
            std::array<int, 64> table{};
            for (std::size_t i = 0; i < table.size(); ++i) table[i] = int(file.number(t + i * size, size));
            if ((head & 15u) == 0 && t + 64 * size <= end) facts.jpegQuality = nearestQuality(table);
            t += 64 * size;
        }
        at = end;
    }
}

// ---- PNG, GIF, WebP -------------------------------------------------------------------------------------------------

void readPNG(const ByteReader& file, PictureFacts& facts)
{
    facts.bits = std::max(8, int(file.u8(24)));
    for (std::uint64_t at = 8; at + 8 <= file.size() && !file.has(at + 4, "IDAT");
         at += std::uint64_t{12} + file.u32(at))
        if (file.has(at + 4, "acTL")) facts.frames = int(std::clamp(file.u32(at + 8), 1u, 1'000'000u));
}

void readGIF(const ByteReader& file, PictureFacts& facts)
{
    const auto tableSize = [](unsigned flags) { return flags & 0x80u ? std::uint64_t{3} << ((flags & 7u) + 1) : 0; };
    std::uint64_t at = 13 + tableSize(file.u8(10));
    int frames = 0;
    while (at < file.size()) {
        const unsigned kind = file.u8(at);
        if (kind == 0x2C) {
            ++frames;
            at += 11 + tableSize(file.u8(at + 9)); // with the byte before the pixels
        } else if (kind == 0x21) {
            at += 2;
        } else {
            break;
        }
        while (file.u8(at)) at += 1 + file.u8(at);
        ++at;
    }
    facts.frames = std::max(1, frames);
}

void readWebP(const ByteReader& file, PictureFacts& facts)
{
    int frames = 0;
    for (std::uint64_t at = 12; at + 8 <= file.size();) {
        if (file.has(at, "ANMF")) ++frames;
        const std::uint64_t length = file.u32(at + 4);
        at += 8 + length + (length & 1);
    }
    facts.frames = std::max(1, frames);
}

// ---- PSD ------------------------------------------------------------------------------------------------------------

void readPSD(const ByteReader& file, PictureFacts& facts)
{
    constexpr unsigned kCMYK = 4, kDuotone = 8;
    const bool large = file.u16(4) == 2;
    facts.bits = std::max(8, int(file.u16(22)));
    const unsigned mode = file.u16(24);
    facts.inks = mode == kCMYK || mode == kDuotone;
    std::uint64_t at = 26;
    for (int section = 0; section < 2; ++section) at += std::uint64_t{4} + file.u32(at); // colours, resources
    const unsigned width = large ? 8 : 4;
    if (file.number(at, width) == 0 || file.number(at + width, width) == 0) return;
    // Negative when the first alpha channel is the picture's transparency.
    facts.layers = std::abs(int(std::int16_t(file.u16(at + 2 * std::uint64_t{width}))));
}

// ---- TIFF -----------------------------------------------------------------------------------------------------------

/// Some editors keep their layers in a tag of their own, whose blocks come in the file's byte order.
int layersInTIFF(const TagList& tags, bool bigEndian)
{
    constexpr unsigned kDocumentData = 37724;
    constexpr const char* kHead = "Adobe Photoshop Document Data Block";
    constexpr std::uint64_t kHeadLength = 36;
    const std::uint64_t block = tags.values(kDocumentData).at + kHeadLength;
    if (!tags.file.has(block - kHeadLength, kHead)) return 0;
    if (!tags.file.has(block, bigEndian ? "8BIMLayr" : "MIB8ryaL")) return 0;
    return std::abs(int(std::int16_t(tags.file.u16(block + 12))));
}

void readTIFF(Bytes bytes, PictureFacts& facts)
{
    constexpr unsigned kSubfileType = 254, kBits = 258, kPhotometric = 262, kSeparated = 5;
    constexpr std::uint64_t kReduced = 1, kMask = 4; // a thumbnail or a mask is no page
    constexpr int kMostPages = 100'000;
    const bool bigEndian = !bytes.empty() && bytes[0] == 'M';
    const ByteReader file(bytes, bigEndian);
    const TagList first = TagList::firstOf(file);
    facts.bits = std::max(8, int(std::min<std::uint64_t>(first.value(kBits), 64)));
    facts.inks = first.value(kPhotometric) == kSeparated;
    facts.layers = layersInTIFF(first, bigEndian);
    int pages = 0;
    std::set<std::uint64_t> seen; // a chain may lead back into itself
    for (TagList page = first; page.at != 0 && page.at < file.size() && seen.insert(page.at).second;
         page.at = page.next()) {
        if (!page.isSensible() || int(seen.size()) > kMostPages) break;
        pages += (page.value(kSubfileType) & (kReduced | kMask)) == 0;
    }
    facts.pages = std::max(1, pages);
}

} // namespace

void readFacts(Bytes bytes, Format format, PictureFacts& facts)
{
    const ByteReader big(bytes, true);
    switch (format) {
    case Format::JPEG:
        return readJPEG(big, facts);
    case Format::PNG:
        return readPNG(big, facts);
    case Format::TIFF:
        return readTIFF(bytes, facts);
    case Format::PSD:
        return readPSD(big, facts);
    case Format::GIF:
        return readGIF(ByteReader(bytes, false), facts);
    case Format::WebP:
        return readWebP(ByteReader(bytes, false), facts);
    default:
        return;
    }
}

} // namespace zp::codec
