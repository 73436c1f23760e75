// SPDX-License-Identifier: GPL-3.0-or-later
/// Walks through the chunks of a PNG file.
#include "codecs/PNGParts.h"
#include "base/Translation.h"
#include <algorithm>
#include <cstring>
#include <libdeflate.h>

namespace zp::codec
{
namespace
{

constexpr std::size_t kMaxAncillaryBytes = 16 << 20;
constexpr std::uint32_t kMaxLength = 0x7FFFFFFF; // the format's own limit
constexpr std::size_t kSignatureBytes = 8;

std::uint32_t big32(const std::uint8_t* p)
{
    return std::uint32_t(p[0]) << 24 | std::uint32_t(p[1]) << 16 | std::uint32_t(p[2]) << 8 | p[3];
}

bool isLetter(std::uint8_t c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }

struct Chunk {
    const std::uint8_t* name = nullptr; ///< four letters
    Bytes data;
    bool cut = false; ///< the file ends inside

    bool is(const char* wanted) const { return std::memcmp(name, wanted, 4) == 0; }
    bool isCritical() const { return (name[0] & 0x20) == 0; }
};

class ChunkWalk
{
public:
    explicit ChunkWalk(Bytes file) : mFile(file), mAt(std::min(kSignatureBytes, file.size())) {}
    /// The next chunk. @return false at the end of the file and where the bytes are no chunk
    bool next(Chunk& chunk)
    {
        if (mFile.size() - mAt < 8) return false;
        const std::uint8_t* head = mFile.data() + mAt;
        const std::uint32_t length = big32(head);
        if (length > kMaxLength || !std::all_of(head + 4, head + 8, isLetter)) return false;
        const std::size_t left = mFile.size() - mAt - 8;
        chunk.name = head + 4;
        chunk.cut = left < std::size_t{length} + 4;
        chunk.data = mFile.subspan(mAt + 8, std::min<std::size_t>(length, left));
        mAt = chunk.cut ? mFile.size() : mAt + 12 + length;
        return true;
    }

private:
    Bytes mFile;
    std::size_t mAt;
};

bool readHeader(const Chunk& chunk, PNGHeader& header)
{
    if (!chunk.is("IHDR") || chunk.cut || chunk.data.size() != 13 || !checksumHolds(chunk.data)) return false;
    const std::uint8_t* p = chunk.data.data();
    header = {big32(p), big32(p + 4), p[8], p[9], p[12] == 1};
    const unsigned depth = header.depth;
    const bool whole = depth == 8 || depth == 16, small = depth == 1 || depth == 2 || depth == 4;
    const bool possible =
        header.type == PNGHeader::Grey      ? whole || small
        : header.type == PNGHeader::Palette ? small || depth == 8
        : header.type == PNGHeader::RGB || header.type == PNGHeader::GreyAlpha || header.type == PNGHeader::RGBA
            ? whole
            : false;
    return possible && p[10] == 0 && p[11] == 0 && p[12] <= 1;
}

/// Where the data of a chunk beside the pixels goes; null for one that is not looked at.
Bytes* placeOf(const Chunk& chunk, PNGParts& parts)
{
    // How the pixels are meant has to be said before them.
    if (chunk.is("PLTE")) return parts.pixels.empty() ? &parts.palette : nullptr;
    if (chunk.is("tRNS")) return parts.pixels.empty() ? &parts.transparency : nullptr;
    if (chunk.data.size() > kMaxAncillaryBytes) return nullptr;
    if (chunk.is("pHYs")) return &parts.density;
    if (chunk.is("eXIf")) return &parts.exif;
    if (chunk.is("iCCP")) return &parts.profile;
    if (chunk.is("gAMA")) return &parts.gamma;
    if (chunk.is("cHRM")) return &parts.primaries;
    if (chunk.is("sRGB")) return &parts.standard;
    static constexpr char kXMP[] = "XML:com.adobe.xmp";
    const bool xmp =
        chunk.is("iTXt") && chunk.data.size() > sizeof kXMP && std::memcmp(chunk.data.data(), kXMP, sizeof kXMP) == 0;
    return xmp ? &parts.xmp : nullptr;
}

/// Why a chunk that must be understood cannot be. Empty when there is nothing against it.
const char* faultOf(const Chunk& chunk, const PNGParts& parts)
{
    if (!chunk.isCritical() || chunk.cut || chunk.is("IEND")) return "";
    if (chunk.is("PLTE")) {
        if (!checksumHolds(chunk.data)) return ZP_TEXT("Codecs", "its palette is corrupt");
        const bool needed = parts.header.type == PNGHeader::Palette;
        return needed && (chunk.data.size() % 3 != 0 || chunk.data.empty())
                   ? ZP_TEXT("Codecs", "its palette is damaged")
                   : "";
    }
    return ZP_TEXT("Codecs", "it holds what is unknown and cannot be left out");
}

} // namespace

bool checksumHolds(Bytes data)
{
    return libdeflate_crc32(0, data.data() - 4, data.size() + 4) == big32(data.data() + data.size());
}

PNGParts takePNGApart(Bytes bytes, std::string& error)
{
    const auto fail = [&](const char* why) {
        error = filledIn(translated("Codecs", "The PNG data cannot be read: %1."), {translated("Codecs", why)});
        return PNGParts();
    };
    PNGParts parts;
    ChunkWalk walk(bytes);
    Chunk chunk;
    if (!walk.next(chunk) || !readHeader(chunk, parts.header)) return fail(ZP_TEXT("Codecs", "its header is damaged"));

    bool ended = false;
    while (!ended && walk.next(chunk)) {
        if (chunk.is("IDAT")) {
            parts.pixels.push_back(chunk.data);
            parts.pixelBytes += chunk.data.size();
            parts.lastIsCut = chunk.cut;
            continue;
        }
        ended = chunk.is("IEND");
        if (const char* fault = faultOf(chunk, parts); *fault && parts.pixels.empty()) return fail(fault);
        Bytes* place = placeOf(chunk, parts);
        if (!place || !place->empty()) continue; // of several the first counts
        const bool sound = !chunk.cut && checksumHolds(chunk.data);
        if (sound) *place = chunk.data;
        parts.damaged |= !sound;
    }
    if (parts.pixels.empty())
        return fail(ended ? ZP_TEXT("Codecs", "it has no pixels")
                          : ZP_TEXT("Codecs", "the file is damaged or ends before its pixels"));
    if (parts.header.type == PNGHeader::Palette && parts.palette.empty())
        return fail(ZP_TEXT("Codecs", "it has no palette"));
    return parts;
}

} // namespace zp::codec
