// SPDX-License-Identifier: GPL-3.0-or-later
/// Strips through zlib, ended by a flush where more follow.
#include "platform/PNGDeflate.h"
#include <new>
#include <zlib.h>

namespace zp::codec
{

struct StripDeflater::Private {
    z_stream stream{};
};

StripDeflater::StripDeflater() : d(std::make_unique<Private>())
{
    if (deflateInit2(&d->stream, 4, Z_DEFLATED, -15, 9, Z_DEFAULT_STRATEGY) != Z_OK) throw std::bad_alloc();
}

StripDeflater::~StripDeflater() { deflateEnd(&d->stream); }

void StripDeflater::deflate(std::span<const std::uint8_t> bytes, bool last, std::vector<std::uint8_t>& out)
{
    z_stream& z = d->stream;
    deflateReset(&z);
    const std::size_t start = out.size();
    out.resize(start + deflateBound(&z, bytes.size()) + 16);
    z.next_in = const_cast<Bytef*>(bytes.data());
    z.avail_in = uInt(bytes.size());
    z.next_out = out.data() + start;
    z.avail_out = uInt(out.size() - start);
    ::deflate(&z, last ? Z_FINISH : Z_SYNC_FLUSH);
    out.resize(std::size_t(z.next_out - out.data()));
}

std::uint32_t combinedAdler(std::uint32_t first, std::uint32_t second, std::size_t secondBytes)
{
    constexpr std::uint64_t kBase = 65521;
    const std::uint64_t a1 = first & 0xFFFF, b1 = first >> 16, a2 = second & 0xFFFF, b2 = second >> 16;
    const std::uint64_t a = (a1 + a2 + kBase - 1) % kBase;
    const std::uint64_t b = (b1 + b2 + (secondBytes % kBase) * ((a1 + kBase - 1) % kBase)) % kBase;
    return std::uint32_t(b << 16 | a);
}

} // namespace zp::codec
