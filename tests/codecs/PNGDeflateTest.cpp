// SPDX-License-Identifier: GPL-3.0-or-later
/// Strips as zlib unpacks them, alone and joined.
#include "codecs/PNGDeflate.h"
#include <algorithm>
#include <gtest/gtest.h>
#include <random>
#include <zlib.h>

namespace zp::codec
{
namespace
{

using Buffer = std::vector<std::uint8_t>;

/// Unpacks a raw stream; empty when it is broken or does not end where it should.
Buffer inflated(const Buffer& packed, std::size_t expected)
{
    Buffer out(expected + 1);
    z_stream z{};
    if (inflateInit2(&z, -15) != Z_OK) return {};
    z.next_in = const_cast<Bytef*>(packed.data());
    z.avail_in = uInt(packed.size());
    z.next_out = out.data();
    z.avail_out = uInt(out.size());
    const int status = inflate(&z, Z_FINISH);
    const bool whole = status == Z_STREAM_END && z.avail_in == 0;
    out.resize(z.total_out);
    inflateEnd(&z);
    return whole ? out : Buffer{};
}

Buffer make(int kind, std::size_t size, unsigned seed)
{
    std::mt19937 random(seed);
    Buffer out(size);
    for (std::size_t i = 0; i < size; ++i) {
        switch (kind) {
        case 0:
            out[i] = 0;
            break; // one long run
        case 1:
            out[i] = std::uint8_t(random());
            break; // noise
        case 2:
            out[i] = std::uint8_t(std::int8_t(std::normal_distribution<>(0, 3)(random)));
            break; // a filtered photograph
        case 3:
            out[i] = std::uint8_t(i % 777 < 700 ? 0 : i % 13);
            break; // a drawing
        case 4:
            out[i] = i > 40000 && random() % 9 ? out[i - 32768] : std::uint8_t(random());
            break; // far repeats
        default:
            out[i] = std::uint8_t(random() % 64 == 0 ? random() : 7);
        }
    }
    return out;
}

TEST(StripDeflater, WhatIsPackedIsUnpacked)
{
    StripDeflater deflater(3);
    for (int kind = 0; kind < 6; ++kind)
        for (const std::size_t size :
             {0u, 1u, 3u, 4u, 7u, 8u, 258u, 259u, 1000u, 32768u, 32769u, 65535u, 65536u, 200'000u, 1'000'003u}) {
            const Buffer raw = make(kind, size, unsigned(kind * 1000) + unsigned(size));
            Buffer packed;
            deflater.deflate(raw, true, packed);
            if (size == 0) {
                EXPECT_LT(packed.size(), 20u);
                continue;
            }
            ASSERT_EQ(inflated(packed, size), raw) << "kind " << kind << ", size " << size;
            EXPECT_LE(packed.size(), size + size / 4000 + 200) << "kind " << kind << ", size " << size;
        }
}

TEST(StripDeflater, RandomMixturesSurvive)
{
    StripDeflater deflater(3);
    std::mt19937 random(7);
    for (int round = 0; round < 300; ++round) {
        Buffer raw;
        for (int part = 0; part < 6; ++part) {
            const Buffer piece = make(int(random() % 6), random() % 30'000, unsigned(random()));
            raw.insert(raw.end(), piece.begin(), piece.end());
        }
        if (raw.empty()) continue;
        Buffer packed;
        deflater.deflate(raw, true, packed);
        ASSERT_EQ(inflated(packed, raw.size()), raw) << "round " << round;
    }
}

TEST(StripDeflater, StripsJoinToOneStream)
{
    StripDeflater deflater(3);
    Buffer raw, packed;
    for (int i = 0; i < 9; ++i) {
        const Buffer piece = make(i % 6, std::size_t(1 + i * 7001), unsigned(i));
        raw.insert(raw.end(), piece.begin(), piece.end());
        deflater.deflate(piece, i == 8, packed);
    }
    EXPECT_EQ(inflated(packed, raw.size()), raw);
}

TEST(StripDeflater, FlatPicturesShrinkToNearlyNothing)
{
    StripDeflater deflater(3);
    Buffer packed;
    deflater.deflate(make(0, 1'000'000, 0), true, packed);
    EXPECT_LT(packed.size(), 2500u);
}

} // namespace
} // namespace zp::codec
