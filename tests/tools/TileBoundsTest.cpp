// SPDX-License-Identifier: GPL-3.0-or-later
/// What is known of tiles beforehand, and the search in steps that uses it: the same region as the wand's.
#include "tools/TileBounds.h"
#include "tools/MagicWand.h"
#include "tools/PixelCompare.h"
#include "tools/TestPicture.h"
#include "tools/TileRegion.h"
#include <gtest/gtest.h>

namespace
{

using namespace zp;
using namespace zp::test;

constexpr auto kAlways = [] { return true; };

TEST(TileBounds, SayWhatEveryPixelOfATileSays)
{
    for (int round = 0; round < 60; ++round) {
        std::mt19937 random(unsigned(round) + 7);
        SCOPED_TRACE(round);
        const int width = 1 + int(random() % 200), height = 1 + int(random() % 150);
        Picture picture(width, height);
        const std::uint32_t base = std::uint32_t(random()) & 0x7F7F7F7F, spread = round % 3 ? 0x0F0F0F0F : 0x03030303;
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x) picture.at(x, y) = base + (std::uint32_t(random()) & spread);
        TileBounds bounds;
        bounds.reset(width, height);
        const TileQuery query{picture.at(0, 0), 1 + int(random() % 24), false};
        EXPECT_EQ(bounds.matchOf(0, 0, query), TileMatch::Some) << "not known yet";
        EXPECT_TRUE(bounds.goOn(picture.view(), kAlways));
        for (int row = 0; row * kTileSide < height; ++row)
            for (int column = 0; column * kTileSide < width; ++column) {
                bool all = true;
                std::array<int, 4> low{255, 255, 255, 255}, high{};
                for (int y = row * kTileSide; y < std::min(height, (row + 1) * kTileSide); ++y)
                    for (int x = column * kTileSide; x < std::min(width, (column + 1) * kTileSide); ++x) {
                        all &= wordsMatch(picture.at(x, y), query.target, query.tolerance);
                        for (std::size_t i = 0; i < 4; ++i) {
                            const int byte = int(picture.at(x, y) >> (8 * i) & 0xFF);
                            low[i] = std::min(low[i], byte), high[i] = std::max(high[i], byte);
                        }
                    }
                bool none = false;
                for (std::size_t i = 0; i < 4; ++i) {
                    const int middle = int(query.target >> (8 * i) & 0xFF);
                    none |= low[i] >= middle + query.tolerance || high[i] <= middle - query.tolerance;
                }
                ASSERT_EQ(bounds.matchOf(column, row, query), none  ? TileMatch::None
                                                              : all ? TileMatch::All
                                                                    : TileMatch::Some)
                    << column << ' ' << row;
            }
    }
}

TEST(TileRegion, InStepsAndByBoundsFindsWhatTheWandMarks)
{
    TileRegion tiles;
    int whole = 0;
    for (int round = 0; round < 400; ++round) {
        std::mt19937 random(unsigned(round) + 99);
        SCOPED_TRACE(round);
        const int width = 1 + int(random() % 300), height = 1 + int(random() % 300);
        Picture picture = randomPicture(random, width, height, Texture(round % int(Texture::Count)));
        const PixelPoint seed{int(random() % unsigned(width)), int(random() % unsigned(height))};
        const std::uint32_t target = picture.at(seed.x, seed.y);
        const int tolerance = int(random() % 30);
        Mask walls(width, height, 255);
        const bool walled = round % 2;
        for (int i = 0; walled && i < 60; ++i)
            walls.at(int(random() % unsigned(width)), int(random() % unsigned(height))) = 0;
        Mask marked = walls;
        magicWand(picture.view(), marked.view(), false, seed, target, tolerance, sharedFillStack(), sharedTileRegion());

        TileBounds bounds;
        bounds.reset(width, height);
        int rows = int(random() % 6); // as many as are known before the search
        bounds.goOn(picture.view(), [&] { return rows-- > 0; });
        tiles.start(picture.view(), walled ? ConstMaskView(walls.view()) : ConstMaskView{}, seed,
                    {target, tolerance, false}, round % 5 ? &bounds : nullptr);
        std::size_t before = 0;
        bool once = true;
        for (; !tiles.goOn([&] { return std::exchange(once, false); }); once = true) {
            ASSERT_LE(before, tiles.count()) << "what is found stays found";
            before = tiles.count();
        }
        std::size_t count = 0;
        PixelBox box;
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x) {
                const bool taken = marked.at(x, y) == 0 && walls.at(x, y) != 0;
                ASSERT_EQ(tiles.contains(x, y), taken) << x << ' ' << y;
                count += taken;
                if (taken) box.include(x, y);
            }
        EXPECT_EQ(tiles.count(), count);
        EXPECT_EQ(tiles.box(), box);
        EXPECT_FALSE(tiles.contains(-1, 0) || tiles.contains(width, 0) || tiles.contains(0, height));
        whole += count == std::size_t(width) * std::size_t(height);
        tiles.forget();
        EXPECT_EQ(tiles.count(), 0u);
        EXPECT_FALSE(tiles.contains(seed.x, seed.y));
    }
    EXPECT_GT(whole, 0);
}

} // namespace
