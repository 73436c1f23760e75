// SPDX-License-Identifier: GPL-3.0-or-later
/// Tells kinds of picture files apart by their first bytes.
#include "codecs/Codec.h"
#include <algorithm>
#include <cstring>

namespace zp::codec
{
namespace
{

bool has(Bytes b, std::size_t at, const char* text, std::size_t length)
{
    return b.size() >= at + length && std::memcmp(b.data() + at, text, length) == 0;
}

bool isPICT(Bytes b)
{
    // 512 bytes of the program's own, then size, box, and the version opcode; some files come without the 512.
    for (const std::size_t head : {std::size_t{512}, std::size_t{0}}) {
        if (b.size() < head + 14) continue;
        const auto* p = b.data() + head + 10;
        if ((p[0] == 0x00 && p[1] == 0x11 && p[2] == 0x02 && p[3] == 0xFF) || (p[0] == 0x11 && p[1] == 0x01))
            return true;
    }
    return false;
}

bool isTGA(Bytes b)
{
    if (b.size() < 18) return false;
    const int mapType = b[1], type = b[2], mapDepth = b[7], depth = b[16];
    const int width = b[12] | b[13] << 8, height = b[14] | b[15] << 8;
    if (mapType > 1 || width == 0 || height == 0 || (b[17] & 0xC0)) return false;
    switch (type) {
    case 1:
    case 9:
        return mapType == 1 && (depth == 8 || depth == 16) &&
               (mapDepth == 8 || mapDepth == 15 || mapDepth == 16 || mapDepth == 24 || mapDepth == 32);
    case 2:
    case 10:
        return depth == 15 || depth == 16 || depth == 24 || depth == 32;
    case 3:
    case 11:
        return depth == 8 || depth == 16;
    default:
        return false;
    }
}

bool isICO(Bytes b, int kind)
{
    if (b.size() < 22 || b[0] != 0 || b[1] != 0 || b[2] != kind || b[3] != 0) return false;
    const int count = b[4] | b[5] << 8;
    return count > 0 && b[9] == 0;
}

} // namespace

Format sniffFormat(Bytes b, std::size_t* start)
{
    if (start) *start = 0;
    if (has(b, 0, "\xFF\xD8\xFF", 3)) return Format::JPEG;
    if (has(b, 0, "\x89PNG\r\n\x1A\n", 8)) return Format::PNG;
    if (has(b, 0, "II*\0", 4) || has(b, 0, "MM\0*", 4) || has(b, 0, "II+\0", 4) || has(b, 0, "MM\0+", 4))
        return Format::TIFF;
    if (has(b, 0, "GIF87a", 6) || has(b, 0, "GIF89a", 6)) return Format::GIF;
    if (has(b, 0, "BM", 2) && b.size() >= 18 && b[15] == 0 && b[16] == 0 && b[17] == 0) return Format::BMP;
    if (has(b, 0, "8BPS\0\1", 6) || has(b, 0, "8BPS\0\2", 6)) return Format::PSD;
    if (has(b, 0, "RIFF", 4) && has(b, 8, "WEBPVP8", 7)) return Format::WebP;
    if (has(b, 0, "\0\0\0\x0CjP  \r\n", 10)) return Format::JP2;
    if (has(b, 0, "\xFF\x4F\xFF\x51", 4)) return Format::J2K;
    if (b.size() > 3 && b[0] == 'P' && ((b[1] >= '1' && b[1] <= '7') || b[1] == 'F' || b[1] == 'f') &&
        (b[2] == '\n' || b[2] == ' ' || b[2] == '\t' || b[2] == '\r' || b[2] == '#'))
        return Format::PNM;
    if (b.size() > 12 && b[0] == 0x01 && b[1] == 0xDA && b[2] <= 1 && (b[3] == 1 || b[3] == 2)) return Format::SGI;
    if (b.size() > 128 && b[0] == 0x0A && b[1] <= 5 && b[2] <= 1 && (b[3] == 1 || b[3] == 2 || b[3] == 4 || b[3] == 8))
        return Format::PCX;
    if (isICO(b, 1)) return Format::ICO;
    if (isICO(b, 2) && !isTGA(b)) return Format::CUR;
    if (isTGA(b)) return Format::TGA;
    if (isPICT(b)) return Format::PICT;
    // Cameras' and mailers' bytes in front of a JPEG picture: its start, followed by a segment that pictures begin
    // with.
    const std::size_t end = std::min<std::size_t>(b.size(), 65536);
    for (std::size_t i = 1; i + 4 <= end; ++i)
        if (b[i] == 0xFF && b[i + 1] == 0xD8 && b[i + 2] == 0xFF && (b[i + 3] >= 0xE0 || b[i + 3] == 0xDB)) {
            if (start) *start = i;
            return Format::JPEG;
        }
    return Format::Unknown;
}

} // namespace zp::codec
