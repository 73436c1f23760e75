// SPDX-License-Identifier: GPL-3.0-or-later
/// LZW strips: anything unpacks without harm, and what was packed comes back.
#include "Fuzz.h"
#include "codecs/TIFFLZW.h"

ZP_FUZZ(LZWStrip, "", bytes)
{
    using namespace zp::codec;
    constexpr std::size_t kMost = 1 << 16;
    std::vector<std::uint8_t> unpacked(kMost + LZWDecoder::kSlack), packed;
    LZWDecoder decoder;
    if (LZWDecoder::handles(bytes))
        zp::fuzz::require(decoder.decode(bytes, unpacked.data(), kMost) <= kMost, "no more than there is room for");
    if (bytes.empty() || bytes.size() > kMost) return;
    LZWEncoder().encode(bytes, packed);
    zp::fuzz::require(LZWDecoder::handles(packed), "our own strips are of the usual kind");
    zp::fuzz::require(decoder.decode(packed, unpacked.data(), bytes.size()) == bytes.size() &&
                          std::equal(bytes.begin(), bytes.end(), unpacked.begin()),
                      "what was packed comes back");
}
