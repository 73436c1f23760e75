// SPDX-License-Identifier: GPL-3.0-or-later
/// The tiled fill's inner loops, on every vector target, against one pixel after the other.
#include "tools/TileKernels.h"
#include "support/EveryTarget.h"
#include "support/KernelCases.h"
#include "tools/PixelCompare.h"
#include <gtest/gtest.h>

namespace
{

using namespace zp;

/// Runs of ones and zeros, short and long, so that all forms of words come.
std::uint64_t someBits(std::mt19937& random)
{
    std::uint64_t bits = 0;
    for (int at = 0; at < 64;) {
        const int length = 1 + int(random() % (random() % 4 ? 8 : 64));
        if (random() % 2) bits |= (length < 64 ? (std::uint64_t{1} << length) - 1 : ~std::uint64_t{0}) << at;
        at += length;
    }
    return bits;
}

constexpr int kSides[] = {1, 2, 15, 16, 17, 31, 33, 63, 64};

TEST(TileKernels, OpenPixelsAreThoseThatMatchUnderTheMask)
{
    test::onEveryTarget([] {
        std::mt19937 random(91);
        for (const int width : kSides)
            for (const int height : {1, 7, 63, 64})
                for (const int tolerance : {1, 2, 60, 128, 300})
                    for (const int masked : {0, 1, 2}) {
                        const std::uint32_t target = random() % 3 ? random() : 0xFF00FF00u;
                        // Just as many elements as there are, so that a sanitizer sees what is read beyond them.
                        std::vector<std::uint32_t> pixels(std::size_t(width * height));
                        for (std::uint32_t& p : pixels) {
                            p = target;
                            if (random() % 4 == 0) p ^= std::uint32_t(random()) & 0x03030303;
                            if (random() % 16 == 0) p = random();
                        }
                        std::vector<std::uint8_t> mask = test::extremeBytes(random, pixels.size());
                        const TileSource source{reinterpret_cast<const std::uint8_t*>(pixels.data()),
                                                std::ptrdiff_t{4} * width,
                                                masked ? mask.data() : nullptr,
                                                width,
                                                width,
                                                height};
                        const TileQuery query{target, tolerance, masked == 1};
                        TileRows open;
                        open.fill(0x5A5A5A5A5A5A5A5A);
                        const TileEdges edges = loadTile(source, query, open, random() % 2 ? &source : nullptr);
                        std::uint64_t left = 0, right = 0;
                        bool all = true;
                        for (int y = 0; y < kTileSide; ++y)
                            for (int x = 0; x < kTileSide; ++x) {
                                bool expected = x < width && y < height;
                                if (expected) {
                                    const auto i = std::size_t(y * width + x);
                                    expected = wordsMatch(pixels[i], target, tolerance);
                                    if (masked && (mask[i] == 0) != query.openWhereMaskIsZero) expected = false;
                                }
                                ASSERT_EQ(open[std::size_t(y)] >> x & 1, std::uint64_t{expected})
                                    << x << ", " << y << " of " << width << " by " << height;
                                all = all && expected;
                                if (x == 0) left |= std::uint64_t{expected} << y;
                                if (x == kTileSide - 1) right |= std::uint64_t{expected} << y;
                            }
                        ASSERT_EQ(edges.left, left);
                        ASSERT_EQ(edges.right, right);
                        ASSERT_EQ(edges.allOpen, all);
                    }
    });
}

TEST(TileKernels, ATileOfOneColourIsOpenAltogether)
{
    test::onEveryTarget([] {
        const std::vector<std::uint32_t> pixels(kTileSide * kTileSide, 0x80402010);
        const TileSource source{
            reinterpret_cast<const std::uint8_t*>(pixels.data()), 4 * kTileSide, nullptr, 0, kTileSide, kTileSide};
        TileRows open;
        ASSERT_TRUE(loadTile(source, {0x80402010, 1, true}, open, nullptr).allOpen);
    });
}

TEST(TileKernels, WritingTouchesTheSetBitsAlone)
{
    test::onEveryTarget([] {
        std::mt19937 random(92);
        for (const int room : kSides)
            for (int round = 0; round < 50; ++round) {
                const std::uint64_t bits =
                    round ? someBits(random) & ~std::uint64_t{0} >> (64 - room) : ~std::uint64_t{0} >> (64 - room);
                std::vector<std::uint32_t> row(std::size_t(room), 7), wantRow = row;
                std::vector<std::uint8_t> bytes(std::size_t(room), 9), wantBytes = bytes;
                for (int x = 0; x < room; ++x)
                    if (bits >> x & 1) wantRow[std::size_t(x)] = 0xABCD1234, wantBytes[std::size_t(x)] = 0;
                paintBits(row.data(), bits, 0xABCD1234, room);
                clearBits(bytes.data(), bits, room);
                ASSERT_EQ(row, wantRow) << room;
                ASSERT_EQ(bytes, wantBytes) << room;
            }
    });
}

TEST(TileKernels, ABoxIsPaintedOrClearedToItsEdges)
{
    test::onEveryTarget([] {
        for (const int width : kSides) {
            constexpr int kRow = 70;
            std::vector<std::uint32_t> pixels(kRow * 5, 3), expected = pixels;
            for (int y = 1; y < 4; ++y)
                for (int x = 2; x < 2 + width; ++x) expected[std::size_t(y * kRow + x)] = 8;
            paintBox(&pixels[kRow + 2], 4 * kRow, width, 3, 8);
            ASSERT_EQ(pixels, expected) << width;
            std::vector<std::uint8_t> bytes(kRow * 5, 3), wantBytes(pixels.begin(), pixels.end());
            for (std::uint8_t& b : wantBytes) b = b == 8 ? 0 : b;
            clearBox(&bytes[kRow + 2], kRow, width, 3);
            ASSERT_EQ(bytes, wantBytes) << width;
        }
    });
}

} // namespace
