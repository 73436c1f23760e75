// SPDX-License-Identifier: GPL-3.0-or-later
/// Lines that cross a hole are drawn through it, and nothing else is.
#include "smartfill/SmartFillLines.h"
#include "smartfill/SmartFillPictures.h"
#include <cstdlib>
#include <gtest/gtest.h>
#include <random>

using namespace zp;
using namespace zp::testpictures;

namespace
{

constexpr PixelBox kHole{70, 50, 130, 100};

/// 200 x 150 with a hole in the middle, of whose pixels the fill must learn nothing.
template <class Level>
SmartFillPicture pictureOf(Level level)
{
    std::mt19937 grain(4);
    SmartFillPicture picture;
    picture.width = 200, picture.height = 150;
    for (int y = 0; y < 150; ++y)
        for (int x = 0; x < 200; ++x) {
            const bool hole = kHole.contains(x, y);
            const auto value = unsigned(level(x, y)) + grain() % 7;
            picture.pixels.push_back(hole ? 0xFF00FFFF : argb(255, value, value, value));
            picture.mask.push_back(hole ? 255 : 0);
        }
    return picture;
}

/// Dark below a slanting line.
int slanting(int x, int y) { return y * 4 > x + 200 ? 40 : 180; }

/// How many of the hole's pixels are on the wrong side of the line.
int wrongPixels(const SmartFillPicture& picture)
{
    int wrong = 0;
    for (int y = kHole.y0; y < kHole.y1; ++y)
        for (int x = kHole.x0; x < kHole.x1; ++x) {
            const int value = int(picture.pixels[std::size_t(y) * 200 + std::size_t(x)] >> 8 & 255);
            wrong += std::abs(value - slanting(x, y)) > 40;
        }
    return wrong;
}

TEST(SmartFillLines, AnEdgeIsDrawnFromOneSideToTheOther)
{
    SmartFillPicture picture = pictureOf(slanting);
    EXPECT_EQ(keepLines(picture), 1);
    int drawn = 0, wrong = 0;
    for (int y = kHole.y0; y < kHole.y1; ++y)
        for (int x = kHole.x0; x < kHole.x1; ++x) {
            const std::size_t i = std::size_t(y) * 200 + std::size_t(x);
            if (picture.mask[i]) continue;
            ++drawn;
            EXPECT_EQ(picture.sources[i], 0) << "what was drawn is nothing to take from";
            wrong += std::abs(int(picture.pixels[i] >> 8 & 255) - slanting(x, y)) > 40;
        }
    EXPECT_GT(drawn, 60 * 12);
    EXPECT_LT(wrong, 90) << "a pixel or so beside the line along its 60";
    SmartFillPicture plain = pictureOf(slanting);
    ASSERT_EQ(fillSmartFillPicture(picture, 3, {}), SmartFillStatus::Filled);
    ASSERT_EQ(fillSmartFillPicture(plain, 3, {}), SmartFillStatus::Filled);
    EXPECT_LE(wrongPixels(picture), std::max(100, wrongPixels(plain)));
}

TEST(SmartFillLines, WhatIsOutsideTheHoleStays)
{
    const SmartFillPicture before = pictureOf(slanting);
    SmartFillPicture after = before;
    keepLines(after);
    for (std::size_t i = 0; i < before.mask.size(); ++i)
        if (!before.mask[i]) {
            ASSERT_EQ(after.pixels[i], before.pixels[i]);
            ASSERT_EQ(after.sources[i], 255);
        }
}

TEST(SmartFillLines, WithoutALineThatMeetsAnotherThePictureIsAsItWas)
{
    struct Case {
        const char* name;
        int (*level)(int x, int y);
    };
    for (const Case& c :
         {Case{"grain", [](int, int) { return 120; }},
          Case{"an edge that ends in the hole", [](int x, int y) { return x < 100 && y < 75 ? 40 : 180; }},
          Case{"edges of other colours", [](int x, int y) { return y < 75    ? 180
                                                                   : x < 100 ? 20
                                                                             : 110; }}}) {
        SCOPED_TRACE(c.name);
        const SmartFillPicture before = pictureOf(c.level);
        SmartFillPicture after = before;
        EXPECT_EQ(keepLines(after), 0);
        EXPECT_EQ(after.pixels, before.pixels);
        EXPECT_EQ(after.mask, before.mask);
        EXPECT_TRUE(after.sources.empty());
    }
}

TEST(SmartFillLines, HolesAtTheEdgeEmptyOnesAndWholePicturesAreBorne)
{
    for (const PixelBox hole :
         {PixelBox{0, 0, 60, 40}, PixelBox{150, 100, 200, 150}, PixelBox{0, 0, 200, 150}, PixelBox{}}) {
        SmartFillPicture picture = pictureOf(slanting);
        for (int y = 0; y < 150; ++y)
            for (int x = 0; x < 200; ++x)
                picture.mask[std::size_t(y) * 200 + std::size_t(x)] = hole.contains(x, y) ? 255 : 0;
        EXPECT_EQ(keepLines(picture), 0);
    }
}

} // namespace
