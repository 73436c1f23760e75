// SPDX-License-Identifier: GPL-3.0-or-later
/// The magic wand: what it marks, what walls it in, and that the fast one is the slow one.
#include "tools/MagicWand.h"
#include "tools/PixelCompare.h"
#include "tools/TestPicture.h"
#include "tools/TileRegion.h"
#include <gtest/gtest.h>

namespace
{

using namespace zp;
using namespace zp::test;

constexpr std::uint32_t kWhite = 0xFFFFFFFF;

TEST(MagicWand, SelectsAUniformPictureAltogether)
{
    Picture picture(130, 70, kWhite);
    Mask mask(130, 70, 255);
    const ColumnFillResult result =
        magicWand(picture.view(), mask.view(), false, {129, 69}, kWhite, 1, sharedFillStack(), sharedTileRegion());
    EXPECT_EQ(result.painted, (PixelBox{0, 0, 130, 70}));
    EXPECT_TRUE(mask == Mask(130, 70, 0));
}

TEST(MagicWand, TreatsSelectedPixelsAsWallsAndAddsToThem)
{
    Picture picture(9, 3, kWhite);
    Mask mask(9, 3, 255);
    for (int y = 0; y < 3; ++y) mask.at(4, y) = 0;
    magicWand(picture.view(), mask.view(), false, {1, 1}, kWhite, 5, sharedFillStack(), sharedTileRegion());
    for (int y = 0; y < 3; ++y)
        for (int x = 0; x < 9; ++x) EXPECT_EQ(mask.at(x, y), x <= 4 ? 0 : 255) << x << ' ' << y;
}

TEST(MagicWand, MarksNothingFromAPixelThatIsSelectedAlready)
{
    Picture picture(5, 5, kWhite);
    Mask mask(5, 5, 255);
    mask.at(2, 2) = 0;
    Mask before = mask;
    EXPECT_TRUE(magicWand(picture.view(), mask.view(), false, {2, 2}, kWhite, 9, sharedFillStack(), sharedTileRegion())
                    .painted.isEmpty());
    EXPECT_TRUE(mask == before);
}

TEST(MagicWand, ToleranceZeroSelectsNothing)
{
    Picture picture(5, 5, kWhite);
    Mask mask(5, 5, 255);
    EXPECT_TRUE(magicWand(picture.view(), mask.view(), false, {2, 2}, kWhite, 0, sharedFillStack(), sharedTileRegion())
                    .completed);
    EXPECT_TRUE(mask == Mask(5, 5, 255));
}

TEST(MagicWand, PartlySelectedBytesAreOpenAndBecomeSelected)
{
    Picture picture(5, 1, kWhite);
    Mask mask(5, 1, 7);
    magicWand(picture.view(), mask.view(), false, {0, 0}, kWhite, 1, sharedFillStack(), sharedTileRegion());
    EXPECT_TRUE(mask == Mask(5, 1, 0));
}

/// @return whether the scan's stack ran full
bool expectWhatTheColumnScanMarks(std::mt19937& random, int round, int width, int height, int walls, int capacity,
                                  TileRegion& tiles)
{
    SCOPED_TRACE(testing::Message() << round << ": " << width << " by " << height << ", " << walls << " walls");
    Picture picture = randomPicture(random, width, height, Texture(round % int(Texture::Count)));
    Mask mask(width, height, 255);
    for (int i = 0; i < walls; ++i)
        mask.at(int(random() % unsigned(width)), int(random() % unsigned(height))) = std::uint8_t(random() % 2);
    const PixelPoint seed{int(random() % unsigned(width)), int(random() % unsigned(height))};
    const std::uint32_t target = picture.at(seed.x, seed.y) + (round % 7 ? 0 : 1);
    const int tolerance = 1 + int(random() % 30);
    std::vector<std::uint32_t> storage(static_cast<std::size_t>(capacity));
    FillStack stack(storage), again(storage);
    Mask expected = mask;
    const ColumnFillResult slow = magicWandColumns(picture.view(), expected.view(), seed, target, tolerance, stack);
    const ColumnFillResult fast =
        magicWand(picture.view(), mask.view(), walls == 0, seed, target, tolerance, again, tiles);
    EXPECT_TRUE(mask == expected);
    EXPECT_EQ(fast.painted, slow.painted);
    EXPECT_EQ(fast.completed, slow.completed);
    return !slow.completed;
}

TEST(MagicWand, MarksWhatTheColumnScanMarksAlsoWithAFullStack)
{
    TileRegion tiles;
    int ranFull = 0;
    for (int round = 0; round < 1000 && !HasFailure(); ++round) {
        std::mt19937 random(unsigned(round) + 555);
        const int width = 1 + int(random() % 200), height = 1 + int(random() % 200);
        const int walls = round % 3 ? int(random() % 200) : 0;
        ranFull += expectWhatTheColumnScanMarks(random, round, width, height, walls,
                                                round % 2 ? 65'536 : 2 + int(random() % 30), tiles);
    }
    EXPECT_GT(ranFull, 50);
}

TEST(MagicWand, MarksTheSameOnPicturesSoLargeThatASecondThreadHelps)
{
    TileRegion tiles;
    for (int round = 0; round < 2 * int(Texture::Count) && !HasFailure(); ++round) {
        std::mt19937 random(unsigned(round) + 5);
        const int width = 1200 + int(random() % 300), height = 1000 + int(random() % 300);
        expectWhatTheColumnScanMarks(random, round, width, height, round % 2 ? 500 : 0, 4 << 20, tiles);
    }
}

TEST(MagicWandPainting, PaintsAndMarksWhatMatchesWithoutLookingAtTheMask)
{
    Picture picture(6, 2, kWhite);
    picture.at(3, 0) = picture.at(3, 1) = 0x000000FF;
    Mask mask(6, 2, 255);
    mask.at(1, 0) = 0;
    const ColumnFillResult result =
        magicWandPainting(picture.view(), mask.view(), {0, 1}, kWhite, 0xFFFFFFFE, 10, sharedFillStack());
    EXPECT_EQ(result.painted, (PixelBox{0, 0, 3, 2}));
    for (int y = 0; y < 2; ++y)
        for (int x = 0; x < 6; ++x) {
            EXPECT_EQ(mask.at(x, y), x < 3 ? 0 : 255);
            EXPECT_EQ(picture.at(x, y), x < 3 ? 0xFFFFFFFE : x == 3 ? 0x000000FFu : kWhite);
        }
}

} // namespace
