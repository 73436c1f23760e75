// SPDX-License-Identifier: GPL-3.0-or-later
/// Unpacks whole streams by libdeflate, the fastest there is, and damaged ones by zlib, which says how far it came.
#include "codecs/PNGInflate.h"
#include "base/PixelMemory.h"
#include "base/WorkPool.h"
#include <algorithm>
#include <atomic>
#include <cstring>
#include <libdeflate.h>
#include <memory>
#include <zlib.h>

namespace zp::codec
{
namespace
{

struct FreeDecompressor {
    void operator()(libdeflate_decompressor* d) const { libdeflate_free_decompressor(d); }
};
using Decompressor = std::unique_ptr<libdeflate_decompressor, FreeDecompressor>;

/// Verifies the checksums and, when there are several pieces, puts them together in @p joined.
/// @return how many bytes there are before the first piece that is corrupt
std::size_t checkAndJoin(const PNGParts& parts, std::uint8_t* joined)
{
    const std::size_t count = parts.pixels.size();
    std::vector<std::size_t> offsets(count + 1);
    for (std::size_t i = 0; i < count; ++i) offsets[i + 1] = offsets[i] + parts.pixels[i].size();
    std::atomic<std::size_t> sound{offsets[count]};
    parallelBands(int(count), 16, [&](int first, int last) {
        for (auto i = std::size_t(first); i < std::size_t(last); ++i) {
            const Bytes piece = parts.pixels[i];
            const bool unchecked = parts.lastIsCut && i + 1 == count;
            if (!unchecked && !checksumHolds(piece)) {
                std::size_t least = sound;
                while (offsets[i] < least && !sound.compare_exchange_weak(least, offsets[i])) {
                }
            }
            if (joined && !piece.empty()) std::memcpy(joined + offsets[i], piece.data(), piece.size());
        }
    });
    return sound;
}

/// As far as it goes. @return the bytes unpacked
std::size_t inflateDamaged(Bytes stream, std::uint8_t* to, std::size_t size)
{
    z_stream z{};
    if (inflateInit(&z) != Z_OK) throw std::bad_alloc();
    constexpr std::size_t kMost = 1 << 30; // zlib counts in 32 bits
    int result = Z_OK;
    std::size_t read = 0, written = 0;
    while (result == Z_OK && written < size) {
        const std::size_t in = std::min(kMost, stream.size() - read), out = std::min(kMost, size - written);
        z.next_in = const_cast<std::uint8_t*>(stream.data() + read); // zlib only reads it
        z.avail_in = unsigned(in);
        z.next_out = to + written;
        z.avail_out = unsigned(out);
        result = inflate(&z, Z_NO_FLUSH);
        read += in - z.avail_in;
        written += out - z.avail_out;
    }
    inflateEnd(&z);
    return written;
}

} // namespace

PixelState inflatePixels(const PNGParts& parts, std::uint8_t* to, std::size_t size, std::size_t& unpacked)
{
    unpacked = 0;
    PixelMemory joined;
    if (parts.pixels.size() > 1) {
        joined = allocatePixelsUninitialized(std::max<std::size_t>(parts.pixelBytes, 1));
        if (!joined) return PixelState::NoMemory;
    }
    const std::size_t sound = checkAndJoin(parts, joined.get());
    const Bytes stream = joined ? Bytes(joined.get(), sound) : parts.pixels[0].first(sound);
    const Decompressor decompressor(libdeflate_alloc_decompressor());
    if (!decompressor) return PixelState::NoMemory;
    if (libdeflate_zlib_decompress(decompressor.get(), stream.data(), stream.size(), to, size, nullptr) ==
        LIBDEFLATE_SUCCESS) {
        unpacked = size;
        return PixelState::Whole;
    }
    unpacked = inflateDamaged(stream, to, size);
    return sound < parts.pixelBytes ? PixelState::Corrupt : PixelState::Damaged;
}

std::optional<std::vector<std::uint8_t>> inflateBounded(Bytes stream, std::size_t most)
{
    const Decompressor decompressor(libdeflate_alloc_decompressor());
    if (!decompressor) throw std::bad_alloc();
    std::vector<std::uint8_t> out;
    for (std::size_t room = std::min(most, std::max<std::size_t>(1 << 14, 4 * stream.size()));;
         room = std::min(most, 4 * room)) {
        out.resize(room);
        std::size_t unpacked = 0;
        const auto result =
            libdeflate_zlib_decompress(decompressor.get(), stream.data(), stream.size(), out.data(), room, &unpacked);
        if (result == LIBDEFLATE_SUCCESS) {
            out.resize(unpacked);
            return out;
        }
        if (result != LIBDEFLATE_INSUFFICIENT_SPACE || room == most) return std::nullopt;
    }
}

} // namespace zp::codec
