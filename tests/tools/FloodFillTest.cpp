// SPDX-License-Identifier: GPL-3.0-or-later
/// The flood fill: what it paints, where it stops, and that the fast one is the slow one.
#include "tools/FloodFill.h"
#include "tools/PixelBits.h"
#include "tools/PixelCompare.h"
#include "tools/TestPicture.h"
#include "tools/TileRegion.h"
#include <gtest/gtest.h>
#include <queue>

namespace
{

using namespace zp;
using namespace zp::test;

constexpr std::uint32_t kWhite = 0xFFFFFFFF, kBlack = 0x000000FF, kRed = 0x0000FFFF;

struct Case {
    const char* name;
    int tolerance;
    std::string_view before, after;
    int x = 0, y = 0;
};

class FloodFillPictures : public testing::TestWithParam<Case>
{
};

TEST_P(FloodFillPictures, PaintsTheConnectedRegionAndNothingElse)
{
    const Case& c = GetParam();
    const std::vector<std::string> rows = rowsOf(c.before);
    const int width = int(rows[0].size()), height = int(rows.size());
    Picture picture(width, height, kWhite);
    Mask walls(width, height);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            if (rows[std::size_t(y)][std::size_t(x)] == '#') picture.at(x, y) = kBlack;
            if (rows[std::size_t(y)][std::size_t(x)] == 'm') walls.at(x, y) = 1;
        }
    const ColumnFillResult result =
        floodFill(picture.view(), walls.view(), {c.x, c.y}, kRed, c.tolerance, sharedFillStack(), sharedTileRegion());
    std::string after;
    PixelBox box;
    for (int y = 0; y < height; ++y) {
        if (y) after += '/';
        for (int x = 0; x < width; ++x) {
            const std::uint32_t word = picture.at(x, y);
            if (word == kRed) box.include(x, y);
            after += word == kRed ? 'x' : word == kBlack ? '#' : walls.at(x, y) ? 'm' : '.';
        }
    }
    EXPECT_EQ(after, c.after);
    EXPECT_EQ(result.painted, box);
    EXPECT_TRUE(result.completed);
    EXPECT_TRUE(picture.spareUntouched());
}

INSTANTIATE_TEST_SUITE_P(
    Pictures, FloodFillPictures,
    testing::Values(Case{"StopsAtAWall", 1, "..#./..#.", "xx#./xx#."}, Case{"StopsAtTheMask", 1, ".m./.m.", "xm./xm."},
                    Case{"DoesNotLeakDiagonally", 1, ".#/#.", "x#/#."},
                    Case{"RunsRoundACorner", 1, "..#/#.#/#..", "xx#/#x#/#xx"},
                    Case{"ToleranceZeroMatchesNothing", 0, "../..", "../.."},
                    Case{"FillsAWholePictureToItsEdges", 1, "...../...../.....", "xxxxx/xxxxx/xxxxx", 4, 2},
                    Case{"StartsOnAWallAndPaintsNothing", 1, "..../.m../....", "..../.m../....", 1, 1},
                    Case{"OnePixel", 1, ".", "x"}, Case{"OneColumn", 1, "././#/.", "x/x/#/."},
                    Case{"ComesBackUp", 1, ".#./.#./...", "x#x/x#x/xxx"}),
    [](const auto& parameter) { return std::string(parameter.param.name); });

TEST(FloodFill, PaintThatItselfMatchesEndsAndPaintsTheSameRegion)
{
    // A fill colour within the tolerance of the target: only what was painted tells where the fill has been.
    for (const bool tiny : {false, true}) {
        Picture picture(100, 70, 0xFF808080);
        for (int y = 0; y < 70; ++y) picture.at(50, y) = kBlack;
        std::vector<std::uint32_t> storage(tiny ? 40 : 100'000);
        FillStack stack(storage);
        const ColumnFillResult result =
            floodFill(picture.view(), {}, {10, 10}, 0xFF818181, 20, stack, sharedTileRegion());
        EXPECT_TRUE(result.completed);
        EXPECT_EQ(result.painted, (PixelBox{0, 0, 50, 70}));
        for (int y = 0; y < 70; ++y)
            for (int x = 0; x < 100; ++x)
                ASSERT_EQ(picture.at(x, y), x < 50 ? 0xFF818181 : x == 50 ? kBlack : 0xFF808080) << x << ' ' << y;
    }
}

TEST(FloodFill, ToleranceOf128ReachesBytesUpTo127Away)
{
    Picture picture(3, 1, 0x64646464);
    picture.at(1, 0) = 0x64646464 + 0x7F000000u; // 127 away
    picture.at(2, 0) = 0x64646464 + 0x80000000u; // 128 away
    floodFill(picture.view(), {}, {0, 0}, 1, 128, sharedFillStack(), sharedTileRegion());
    EXPECT_EQ(picture.at(0, 0), 1u);
    EXPECT_EQ(picture.at(1, 0), 1u);
    EXPECT_NE(picture.at(2, 0), 1u);
}

/// Breadth first, pixel by pixel: as plain as can be.
Mask referenceRegion(Picture& picture, Mask* walls, PixelPoint seed, std::uint32_t target, int tolerance)
{
    Mask reached(picture.width(), picture.height());
    const auto open = [&](int x, int y) {
        return picture.view().box().contains(x, y) && !(walls && walls->at(x, y)) &&
               wordsMatch(picture.at(x, y), target, tolerance) && !reached.at(x, y);
    };
    std::queue<PixelPoint> next;
    const auto take = [&](int x, int y) {
        if (open(x, y)) {
            reached.at(x, y) = 1;
            next.push({x, y});
        }
    };
    take(seed.x, seed.y);
    while (!next.empty()) {
        const PixelPoint p = next.front();
        next.pop();
        take(p.x + 1, p.y), take(p.x - 1, p.y), take(p.x, p.y + 1), take(p.x, p.y - 1);
    }
    return reached;
}

struct RandomCase {
    Picture picture;
    Mask walls;
    bool walled;
    PixelPoint seed;
    int tolerance;
};

RandomCase randomCase(std::mt19937& random, int round, int width, int height)
{
    const auto texture = Texture(round % int(Texture::Count));
    RandomCase c{randomPicture(random, width, height, texture), Mask(width, height), random() % 2 == 0, {}, 0};
    if (c.walled)
        for (int i = 0, n = int(random() % 8); i < n; ++i) {
            const int x = int(random() % unsigned(width)), y = int(random() % unsigned(height));
            if (i % 2) {
                for (int k = 0; k < height; ++k) c.walls.at(x, k) = std::uint8_t(1 + random() % 255);
            } else {
                for (int k = 0; k < width; ++k) c.walls.at(k, y) = std::uint8_t(random() % 2 * 255);
            }
        }
    c.seed = {int(random() % unsigned(width)), int(random() % unsigned(height))};
    c.tolerance = texture == Texture::Noise ? 6 + int(random() % 16) : 1 + int(random() % 127);
    return c;
}

RandomCase randomCase(std::mt19937& random, int round)
{
    const int width = 1 + int(random() % (round % 5 == 0 ? 300 : 150)), height = 1 + int(random() % 150);
    return randomCase(random, round, width, height);
}

void expectWhatABreadthFirstSearchFinds(RandomCase& c, bool alike, TileRegion& tiles)
{
    SCOPED_TRACE(testing::Message() << c.picture.width() << " by " << c.picture.height());
    const std::uint32_t target = c.picture.at(c.seed.x, c.seed.y), fill = alike ? target ^ 1u : 0x12345678u;
    Mask reached = referenceRegion(c.picture, c.walled ? &c.walls : nullptr, c.seed, target, c.tolerance);
    Picture expected = c.picture;
    PixelBox box;
    for (int y = 0; y < expected.height(); ++y)
        for (int x = 0; x < expected.width(); ++x)
            if (reached.at(x, y)) expected.at(x, y) = fill, box.include(x, y);
    const ColumnFillResult result =
        floodFill(c.picture.view(), c.walled ? ConstMaskView(c.walls.view()) : ConstMaskView{}, c.seed, fill,
                  c.tolerance, sharedFillStack(), tiles);
    ASSERT_TRUE(c.picture == expected);
    ASSERT_EQ(result.painted, box);
    ASSERT_TRUE(result.completed);
}

TEST(FloodFill, PaintsWhatABreadthFirstSearchFindsOnAThousandPictures)
{
    TileRegion tiles;
    for (int round = 0; round < 1000; ++round) {
        std::mt19937 random(unsigned(round) + 7000);
        RandomCase c = randomCase(random, round);
        SCOPED_TRACE(round);
        ASSERT_NO_FATAL_FAILURE(expectWhatABreadthFirstSearchFinds(c, round % 3 == 0, tiles));
    }
}

TEST(FloodFill, PaintsTheSameOnPicturesSoLargeThatASecondThreadHelps)
{
    TileRegion tiles;
    for (int round = 0; round < 3 * int(Texture::Count); ++round) {
        std::mt19937 random(unsigned(round) + 70);
        RandomCase c = randomCase(random, round, 1200 + int(random() % 300), 1000 + int(random() % 300));
        // From where something is seen to spread.
        c.picture.at(c.seed.x, c.seed.y) = 0x80808080;
        SCOPED_TRACE(round);
        ASSERT_NO_FATAL_FAILURE(expectWhatABreadthFirstSearchFinds(c, round % 2 == 0, tiles));
    }
}

/// The scan once more, written from its description with a vector that grows: what a full stack must look like.
bool describedFill(Picture& picture, Mask* walls, PixelPoint seed, std::uint32_t fill, int tolerance,
                   std::size_t capacity)
{
    const std::uint32_t target = picture.at(seed.x, seed.y);
    Mask painted(picture.width(), picture.height());
    const auto open = [&](int x, int y) {
        return !painted.at(x, y) && !(walls && walls->at(x, y)) && wordsMatch(picture.at(x, y), target, tolerance);
    };
    std::vector<PixelPoint> stack;
    const auto push = [&](int x, int y) {
        if (stack.size() >= capacity) return false;
        stack.push_back({x, y});
        return true;
    };
    if (!open(seed.x, seed.y)) return true;
    if (!push(seed.x, seed.y)) return false;
    while (!stack.empty()) {
        auto [x, y] = stack.back();
        stack.pop_back();
        while (y > 0 && open(x, y - 1)) --y;
        bool left = false, right = false;
        while (y < picture.height() && open(x, y)) {
            picture.at(x, y) = fill;
            painted.at(x, y) = 1;
            if (x > 0 && !left && open(x - 1, y)) {
                if (!push(x - 1, y)) return false;
                left = true;
            } else if (x > 0 && left && !open(x - 1, y)) {
                left = false;
            }
            if (x < picture.width() - 1 && !right && open(x + 1, y)) {
                if (!push(x + 1, y)) return false;
                right = true;
            } else if (x < picture.width() - 1 && right && !open(x + 1, y)) {
                right = false;
            }
            ++y;
        }
    }
    return true;
}

TEST(FloodFill, LeavesWithAFullStackExactlyWhatTheColumnScanHadPainted)
{
    int ranFull = 0, held = 0;
    for (int round = 0; round < 600; ++round) {
        std::mt19937 random(unsigned(round) + 31);
        RandomCase c = randomCase(random, round);
        const std::size_t slots = 2 + random() % 40;
        SCOPED_TRACE(testing::Message() << "round " << round << ", slots " << slots);
        const std::uint32_t fill = round % 2 ? 0xCAFECAFEu : c.picture.at(c.seed.x, c.seed.y);
        Picture expected = c.picture;
        const bool complete =
            describedFill(expected, c.walled ? &c.walls : nullptr, c.seed, fill, c.tolerance, slots - 1);
        std::vector<std::uint32_t> storage(slots);
        FillStack stack(storage);
        const ColumnFillResult result =
            floodFill(c.picture.view(), c.walled ? ConstMaskView(c.walls.view()) : ConstMaskView{}, c.seed, fill,
                      c.tolerance, stack, sharedTileRegion());
        ASSERT_TRUE(c.picture == expected);
        ASSERT_EQ(result.completed, complete);
        ++(complete ? held : ranFull);
    }
    EXPECT_GT(ranFull, 100); // or the test would not see what it is about
    EXPECT_GT(held, 100);
}

TEST(FloodFill, CountsThePushesOfTheColumnScan)
{
    // A stack of exactly the counted size never runs full.
    for (int round = 0; round < 200; ++round) {
        std::mt19937 random(unsigned(round) + 99);
        RandomCase c = randomCase(random, round);
        const std::uint32_t target = c.picture.at(c.seed.x, c.seed.y);
        TileRegion& tiles = sharedTileRegion();
        tiles.find(c.picture.view(), {}, c.seed, {target, c.tolerance, true}, [](PixelBox) { return false; });
        std::size_t pushes = 0;
        Mask reached(c.picture.width(), c.picture.height());
        std::vector<PixelPoint> stack{c.seed};
        const auto open = [&](int x, int y) {
            return !reached.at(x, y) && wordsMatch(c.picture.at(x, y), target, c.tolerance);
        };
        while (!stack.empty()) {
            auto [x, y] = stack.back();
            stack.pop_back();
            ++pushes;
            while (y > 0 && open(x, y - 1)) --y;
            for (bool left = false, right = false; y < c.picture.height() && open(x, y); ++y) {
                reached.at(x, y) = 1;
                const bool l = x > 0 && open(x - 1, y), r = x < c.picture.width() - 1 && open(x + 1, y);
                if (l && !left) stack.push_back({x - 1, y});
                if (r && !right) stack.push_back({x + 1, y});
                left = l, right = r;
            }
        }
        ASSERT_EQ(tiles.columnScanPushes(), pushes) << round;
    }
}

TEST(FloodFillColors, TakesTheBrushSizeForToleranceAndIgnoresAlphaAndMask)
{
    Picture picture(4, 1, packPremultiplied({0.5f, 0.5f, 0.5f, 1}));
    picture.at(1, 0) = packPremultiplied({0.5f, 0.5f, 0.5f, 0.5f}); // the same colour, half transparent
    picture.at(3, 0) = packPremultiplied({0.2f, 0.5f, 0.5f, 1});
    const ColumnFillResult result =
        floodFillColors(picture.view(), {0, 0}, {1, 0, 0, 1}, {0.5f, 0.5f, 0.5f, 1}, 19, sharedFillStack());
    EXPECT_EQ(result.painted, (PixelBox{0, 0, 3, 1}));
    for (int x = 0; x < 3; ++x) EXPECT_EQ(picture.at(x, 0), kRed) << x;
    EXPECT_NE(picture.at(3, 0), kRed);
}

TEST(FloodFillColors, DoesNothingWhenTheColoursAreWithinTheTolerance)
{
    Picture picture(4, 4, kWhite);
    const Picture before = picture;
    EXPECT_TRUE(floodFillColors(picture.view(), {0, 0}, {1, 1, 0.99f, 1}, kWhite == 0 ? kClear : zp::kWhite, 19,
                                sharedFillStack())
                    .painted.isEmpty());
    EXPECT_FALSE(
        floodFillFourNeighbours(picture.view(), {0, 0}, {1, 1, 0.99f, 1}, zp::kWhite, 19, sharedFillStack()).completed);
    EXPECT_TRUE(picture == before);
}

TEST(FloodFillFourNeighbours, FillsTheRegionAndPaintsItsStartUntested)
{
    Picture picture(5, 5, kWhite);
    for (int y = 0; y < 5; ++y) picture.at(2, y) = kBlack;
    EXPECT_TRUE(
        floodFillFourNeighbours(picture.view(), {2, 2}, {1, 0, 0, 1}, zp::kWhite, 4, sharedFillStack()).completed);
    for (int y = 0; y < 5; ++y)
        for (int x = 0; x < 5; ++x) EXPECT_EQ(picture.at(x, y), x == 2 && y != 2 ? kBlack : kRed) << x << ' ' << y;
}

TEST(FloodFillFourNeighbours, EndsAtAFullStackWithoutFinishing)
{
    Picture picture(9, 9, kWhite);
    std::vector<std::uint32_t> storage(4);
    FillStack stack(storage);
    EXPECT_FALSE(floodFillFourNeighbours(picture.view(), {4, 4}, {1, 0, 0, 1}, zp::kWhite, 4, stack).completed);
    EXPECT_EQ(picture.at(4, 4), kRed); // painted before its third neighbour was refused
    EXPECT_EQ(picture.at(5, 4), kWhite);
}

TEST(FillStack, HoldsOneEntryFewerThanItsStorage)
{
    std::vector<std::uint32_t> storage(4);
    FillStack stack(storage);
    EXPECT_TRUE(stack.push(1, 2, 100));
    EXPECT_TRUE(stack.push(3, 4, 100));
    EXPECT_TRUE(stack.push(5, 6, 100));
    EXPECT_FALSE(stack.push(7, 8, 100));
    EXPECT_EQ(stack.count(), 3);
    EXPECT_EQ(storage[2], 506u);
    int a = 0, b = 0;
    EXPECT_TRUE(stack.pop(a, b, 100));
    EXPECT_EQ(a, 5);
    EXPECT_EQ(b, 6);
    stack.clear();
    EXPECT_FALSE(stack.pop(a, b, 100));
    EXPECT_EQ(sharedFillStack().capacity(), 16'777'215);
}

} // namespace
