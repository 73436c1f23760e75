// SPDX-License-Identifier: GPL-3.0-or-later
/// The fast smart fill against the literal one: the same bytes, whatever the picture, mask and processor.
#include "smartfill/LiteralSmartFill.h"
#include "smartfill/SmartFillPictures.h"
#include <gtest/gtest.h>

using namespace zp;
using namespace zp::testpictures;

namespace
{

struct Case {
    const char* name;
    int width, height;
    PixelBox hole;
    std::uint8_t edge; ///< mask value of the hole's outermost pixels
    int picture;       ///< 0 grain, 1 photo, 2 two colours, 3 flat, 4 transparent parts
};

SmartFillPicture pictureOf(const Case& c, unsigned seed)
{
    std::mt19937 random(seed);
    SmartFillPicture p{c.width, c.height, {}, {}, {}};
    for (int y = 0; y < c.height; ++y)
        for (int x = 0; x < c.width; ++x) {
            std::uint32_t word = 0xFF808080;
            if (c.picture == 0) word = random();
            if (c.picture == 1) word = photoPixel(x, y, random);
            if (c.picture == 2) word = (x / 3 + y / 2) % 2 ? 0xFFFFFFFF : 0x000000FF;
            if (c.picture == 4) word = (x + y) % 7 < 3 ? 0 : photoPixel(x, y, random, 2);
            p.pixels.push_back(word);
            const bool inside = c.hole.contains(x, y);
            const bool outermost =
                inside && (x == c.hole.x0 || y == c.hole.y0 || x == c.hole.x1 - 1 || y == c.hole.y1 - 1);
            p.mask.push_back(outermost ? c.edge : inside ? 255 : 0);
        }
    return p;
}

class SmartFillLiteral : public testing::TestWithParam<Case>
{
};

TEST_P(SmartFillLiteral, FastAndPortableGiveTheSameBytes)
{
    const bool large = GetParam().hole.width() > 80;
    for (unsigned seed = 1; seed <= (large ? 1u : 3u); ++seed) {
        SCOPED_TRACE(seed);
        const SmartFillPicture before = pictureOf(GetParam(), seed);
        std::vector<float> expectedProgress, fastProgress;
        SmartFillPicture expected = before, fast = before, portable = before;
        const auto status = literal::fill(expected, seed, {[&](float p) { expectedProgress.push_back(p); }, {}});
        EXPECT_EQ(fillSmartFillPicture(fast, seed, {[&](float p) { fastProgress.push_back(p); }, {}}), status);
        EXPECT_EQ(fillSmartFillPicture(portable, seed, {}, SmartFillSpeed::Portable), status);
        EXPECT_EQ(fastProgress, expectedProgress);
        for (std::size_t i = 0; i < before.pixels.size(); ++i) {
            const int x = int(i) % before.width, y = int(i) / before.width;
            ASSERT_EQ(fast.pixels[i], expected.pixels[i]) << "fast, pixel " << x << ", " << y;
            ASSERT_EQ(portable.pixels[i], expected.pixels[i]) << "portable, pixel " << x << ", " << y;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(
    Pictures, SmartFillLiteral,
    testing::Values(
        Case{"GrainAllRound", 60, 50, {20, 15, 40, 35}, 255, 0},
        Case{"PhotoAllRound", 90, 70, {30, 20, 60, 50}, 255, 1}, Case{"SoftEdge", 70, 60, {20, 20, 50, 45}, 128, 1},
        Case{"TwoColours", 64, 64, {20, 20, 44, 44}, 255, 2}, Case{"Flat", 40, 40, {10, 10, 30, 30}, 255, 3},
        Case{"Transparency", 64, 48, {16, 12, 48, 36}, 200, 4}, Case{"InTheCorner", 64, 64, {0, 0, 30, 30}, 255, 1},
        Case{"AtTheFarEdge", 64, 48, {40, 0, 64, 48}, 255, 1}, Case{"NearlyEverything", 48, 40, {1, 1, 47, 39}, 255, 1},
        Case{"OnlySoftPixels", 30, 30, {0, 0, 30, 30}, 77, 0}, Case{"OneSourceColumn", 50, 20, {1, 0, 50, 20}, 255, 1},
        Case{"OneRow", 80, 1, {20, 0, 50, 1}, 255, 0}, Case{"OneColumn", 1, 80, {0, 20, 1, 60}, 255, 0},
        Case{"OnePixelHole", 20, 20, {10, 10, 11, 11}, 255, 1}, Case{"Tiny", 3, 2, {1, 0, 2, 2}, 255, 0},
        Case{"TwoPixels", 2, 1, {0, 0, 1, 1}, 255, 0}, Case{"OneSoftPixel", 1, 1, {0, 0, 1, 1}, 9, 0},
        Case{"WideHole", 150, 40, {10, 4, 140, 36}, 255, 1},
        // Large enough for each way of finding neighbours: tiles, discs and windows.
        Case{"LargeHole", 100, 90, {4, 4, 96, 86}, 255, 1}, Case{"LargeGrainyHole", 90, 80, {3, 3, 87, 77}, 255, 0},
        Case{"NoHole", 12, 12, {0, 0, 0, 0}, 255, 0}, Case{"NoSource", 12, 12, {0, 0, 12, 12}, 255, 0},
        Case{"Empty", 0, 0, {0, 0, 0, 0}, 255, 0}),
    [](const auto& c) { return std::string(c.param.name); });

/// Many shapes of rectangle and hole, among them holes in several pieces: the search for neighbours meets every edge.
TEST(SmartFillLiteralRandom, ScatteredMasksOfManySizes)
{
    std::mt19937 random(20);
    for (int round = 0; round < 60; ++round) {
        SCOPED_TRACE(round);
        SmartFillPicture before;
        before.width = 1 + int(random() % 60);
        before.height = 1 + int(random() % 45);
        const unsigned hole = random() % 101, soft = random() % 20;
        for (int i = 0; i < before.width * before.height; ++i) {
            before.pixels.push_back(round % 3 ? photoPixel(i % before.width, i / before.width, random)
                                              : random() % 3 * 0x40404040u);
            before.mask.push_back(random() % 100 < hole ? 255 : random() % 100 < soft ? std::uint8_t(random()) : 0);
        }
        if (round % 4 == 1) // some sources are forbidden
            for (std::size_t i = 0; i < before.mask.size(); ++i) before.sources.push_back(random() % 3 ? 255 : 0);
        SmartFillPicture expected = before, fast = before, portable = before;
        const auto status = literal::fill(expected, unsigned(round), {});
        ASSERT_EQ(fillSmartFillPicture(fast, unsigned(round), {}), status);
        ASSERT_EQ(fillSmartFillPicture(portable, unsigned(round), {}, SmartFillSpeed::Portable), status);
        ASSERT_EQ(fast.pixels, expected.pixels) << before.width << " x " << before.height << ", " << hole << " % hole";
        ASSERT_EQ(portable.pixels, expected.pixels);
    }
}

} // namespace
