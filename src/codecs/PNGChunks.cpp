// SPDX-License-Identifier: GPL-3.0-or-later
/// Chooses the chunks of a PNG file that are read.
#include "codecs/PNGChunks.h"
#include <algorithm>
#include <cstring>

namespace zp::codec
{
namespace
{

constexpr std::size_t kMaxAncillaryBytes = 16 << 20;
constexpr int kMaxOfAKind = 4; // of chunks that should be there once; packets of XMP now and then come twice

bool isNamed(const std::uint8_t* name, const char* wanted) { return std::memcmp(name, wanted, 4) == 0; }

bool isCritical(const std::uint8_t* name) { return (name[0] & 0x20) == 0; }

bool isWanted(const std::uint8_t* name, Bytes data)
{
    if (isCritical(name) || isNamed(name, "tRNS")) return true;
    if (data.size() > kMaxAncillaryBytes) return false;
    static constexpr char kXMP[] = "XML:com.adobe.xmp";
    if (isNamed(name, "iTXt")) return data.size() > sizeof kXMP && std::memcmp(data.data(), kXMP, sizeof kXMP) == 0;
    return isNamed(name, "pHYs") || isNamed(name, "eXIf") || isNamed(name, "iCCP");
}

} // namespace

void PNGChunks::open(Bytes bytes)
{
    mPieces.push_back(bytes.first(8));
    std::size_t at = 8;
    int ancillary = 0;
    while (bytes.size() - at >= 8) {
        const std::uint8_t* head = bytes.data() + at;
        const std::size_t length =
            std::size_t{head[0]} << 24 | std::size_t{head[1]} << 16 | std::size_t{head[2]} << 8 | head[3];
        const std::size_t left = bytes.size() - at - 8;
        if (length > left || left - length < 4) {
            mCut = true;
            // Lengths beyond the format's limit are for libpng to refuse; cut pixels are still worth showing.
            if (length < std::size_t{1} << 31 && isNamed(head + 4, "IDAT") && left > 4) {
                const std::size_t rest = left - 4;
                mHeads.push_back({std::uint8_t(rest >> 24), std::uint8_t(rest >> 16), std::uint8_t(rest >> 8),
                                  std::uint8_t(rest), 'I', 'D', 'A', 'T'});
                mPieces.push_back(mHeads.back());
                mPieces.push_back(bytes.subspan(at + 8));
            } else if (length >= std::size_t{1} << 31) {
                mPieces.push_back(bytes.subspan(at));
            }
            return;
        }
        const Bytes data = bytes.subspan(at + 8, length);
        const bool critical = isCritical(head + 4);
        if (isWanted(head + 4, data) && (critical || ++ancillary <= 5 * kMaxOfAKind))
            mPieces.push_back(bytes.subspan(at, length + 12));
        at += length + 12;
        if (isNamed(head + 4, "IEND")) return;
    }
    mCut = true;
}

bool PNGChunks::read(std::uint8_t* to, std::size_t count)
{
    while (count > 0) {
        if (mPiece >= mPieces.size()) return false;
        const Bytes piece = mPieces[mPiece];
        const std::size_t n = std::min(count, piece.size() - mAt);
        std::memcpy(to, piece.data() + mAt, n);
        to += n;
        count -= n;
        mAt += n;
        if (mAt == piece.size()) {
            ++mPiece;
            mAt = 0;
        }
    }
    return true;
}

} // namespace zp::codec
