// SPDX-License-Identifier: GPL-3.0-or-later
/// Tolerance, likeness and packing over their whole ranges.
#include "tools/PixelCompare.h"
#include "tools/FillSeed.h"
#include <cstring>
#include <gtest/gtest.h>

namespace
{

using namespace zp;

TEST(Tolerance, ComesFromTheSlider)
{
    EXPECT_EQ(toleranceForSlider(0), 0);
    EXPECT_EQ(toleranceForSlider(1), 1);
    EXPECT_EQ(toleranceForSlider(50), 64);
    EXPECT_EQ(toleranceForSlider(100), 128);
    for (int v = 1; v <= 100; ++v) EXPECT_GE(toleranceForSlider(v), toleranceForSlider(v - 1));
}

TEST(WordsMatch, ComparesEachByteStrictly)
{
    for (int shift = 0; shift < 32; shift += 8)
        for (int t = 0; t <= 128; t += 4)
            for (int a = 0; a < 256; ++a)
                for (int b = 0; b < 256; b += 5) {
                    const std::uint32_t x = (0x40404040u & ~(0xFFu << shift)) | std::uint32_t(a) << shift;
                    const std::uint32_t y = (0x40404040u & ~(0xFFu << shift)) | std::uint32_t(b) << shift;
                    ASSERT_EQ(wordsMatch(x, y, t), t > 0 && std::abs(a - b) < t);
                }
}

TEST(WordsMatch, AlphaCountsLikeColour)
{
    EXPECT_FALSE(wordsMatch(0x102030F0, 0x102030E6, 10));
    EXPECT_TRUE(wordsMatch(0x102030F0, 0x102030E6, 11));
}

TEST(FarthestChannel, IsTheOneThatDecides)
{
    struct Case {
        std::uint32_t a, b;
        Channel channel;
        int distance;
    };
    // Blue, green, red, alpha from the high byte down.
    for (const auto& [a, b, channel, distance] : {Case{0x10203040, 0x10203040, Channel::Red, 0},
                                                  {0x10203040, 0x10203140, Channel::Red, 1},
                                                  {0x10453040, 0x10203040, Channel::Green, 0x25},
                                                  {0xFF203040, 0x00203040, Channel::Blue, 255},
                                                  {0x10203040, 0x10203080, Channel::Alpha, 0x40},
                                                  {0x05050505, 0x00000000, Channel::Red, 5}}) {
        EXPECT_EQ(farthestChannel(a, b).channel, channel) << std::hex << a << ' ' << b;
        EXPECT_EQ(farthestChannel(a, b).distance, distance) << std::hex << a << ' ' << b;
    }
    std::uint32_t a = 1, b = 2;
    for (int i = 0; i < 20'000; ++i) {
        a = a * 1664525 + 1013904223, b = b * 22695477 + 1;
        for (const int t : {0, 1, farthestChannel(a, b).distance, farthestChannel(a, b).distance + 1, 128})
            ASSERT_EQ(farthestChannel(a, b).distance < t, wordsMatch(a, b, t)) << std::hex << a << ' ' << b << ' ' << t;
    }
}

TEST(PackColor, PutsAlphaFirstInMemory)
{
    const std::uint32_t word = packColor({1, 0.5f, 0, 0.25f});
    std::uint8_t bytes[4];
    std::memcpy(bytes, &word, 4);
    EXPECT_EQ(bytes[0], 64);
    EXPECT_EQ(bytes[1], 255);
    EXPECT_EQ(bytes[2], 128);
    EXPECT_EQ(bytes[3], 0);
    EXPECT_EQ(packColorRedFirst({1, 0.5f, 0, 0.25f}), 0xFF800040u);
    EXPECT_EQ(packPremultiplied({1, 0.5f, 0, 0.25f}), 0x00204040u);
}

TEST(PackColor, APickedColourPaintsTheSamePixel)
{
    for (std::uint32_t alpha = 0; alpha < 256; ++alpha)
        for (std::uint32_t c = 0; c <= alpha; ++c) {
            const std::uint32_t word = c << 24 | (alpha - c) << 16 | c << 8 | alpha;
            ASSERT_EQ(packPremultiplied(unpackPremultiplied(word)), word) << alpha << ' ' << c;
        }
}

TEST(ColorsWithinTolerance, LeavesAlphaOutAndIsStrict)
{
    const Color grey{0.5f, 0.5f, 0.5f, 1};
    EXPECT_TRUE(ColorsWithinTolerance({0.5f, 0.5f, 0.5f, 0}, grey, 1));
    EXPECT_FALSE(ColorsWithinTolerance(grey, grey, 0));
    EXPECT_TRUE(ColorsWithinTolerance({0.5f + 9.9f / 510, 0.5f, 0.5f, 1}, grey, 10));
    EXPECT_FALSE(ColorsWithinTolerance({0.5f + 10.1f / 510, 0.5f, 0.5f, 1}, grey, 10));
    EXPECT_FALSE(ColorsWithinTolerance({0.5f, 0.5f, 0.4f, 1}, grey, 10));
}

TEST(ColorsEqual255, ComparesBytes)
{
    EXPECT_TRUE(ColorsEqual255({0.5f, 0.2f, 0.1f, 1}, {0.5005f, 0.2f, 0.1f, 0}));
    EXPECT_FALSE(ColorsEqual255({0.5f, 0.2f, 0.1f, 1}, {0.505f, 0.2f, 0.1f, 1}));
}

TEST(FillSeed, RoundsAndStaysInThePicture)
{
    const PixelBox picture{0, 0, 10, 5};
    EXPECT_EQ(fillSeed({3.4f, 2.5f}, picture), (PixelPoint{3, 3}));
    EXPECT_EQ(fillSeed({9.9f, 4.9f}, picture), (PixelPoint{9, 4}));
    EXPECT_EQ(fillSeed({-0.2f, 0}, picture), (PixelPoint{0, 0}));
    EXPECT_EQ(fillSeed({10, 2}, picture), std::nullopt);
    EXPECT_EQ(fillSeed({2, -0.6f}, picture), std::nullopt);
    EXPECT_EQ(fillSeed({NAN, 2}, picture), std::nullopt);
}

} // namespace
