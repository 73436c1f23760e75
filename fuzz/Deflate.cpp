// SPDX-License-Identifier: GPL-3.0-or-later
/// Strips of compressed bytes, put together and unpacked by zlib.
#include "Fuzz.h"
#include "codecs/PNGDeflate.h"
#include <algorithm>
#include <zlib.h>

ZP_FUZZ(Deflate, "", bytes)
{
    if (bytes.size() < 2 || bytes.size() > 1 << 16) return;
    const unsigned step = 1 + bytes[0] % 4;
    const std::size_t cut = bytes.size() * bytes[1] / 255;
    std::vector<std::uint8_t> packed, unpacked(bytes.size() + 1);
    zp::codec::StripDeflater(step).deflate(bytes.first(cut), false, packed);
    zp::codec::StripDeflater(step).deflate(bytes.subspan(cut), true, packed);
    z_stream stream{};
    zp::fuzz::require(inflateInit2(&stream, -15) == Z_OK, "zlib begins");
    stream.next_in = packed.data();
    stream.avail_in = uInt(packed.size());
    stream.next_out = unpacked.data();
    stream.avail_out = uInt(unpacked.size());
    const int result = inflate(&stream, Z_FINISH);
    const std::size_t size = stream.total_out;
    inflateEnd(&stream);
    zp::fuzz::require(result == Z_STREAM_END && size == bytes.size(), "zlib unpacks all of it");
    zp::fuzz::require(std::equal(bytes.begin(), bytes.end(), unpacked.begin()), "what was packed comes back");
}
