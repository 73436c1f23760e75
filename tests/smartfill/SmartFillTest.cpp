// SPDX-License-Identifier: GPL-3.0-or-later
/// What a smart fill does to a picture, what it reports, and how it is stopped.
#include "smartfill/SmartFill.h"
#include "base/Log.h"
#include "smartfill/KnownPixels.h"
#include "smartfill/SmartFillMatch.h"
#include "smartfill/SmartFillPictures.h"
#include "smartfill/SmartFillRandom.h"
#include <algorithm>
#include <gtest/gtest.h>
#include <map>

using namespace zp;
using namespace zp::testpictures;

namespace
{

constexpr std::uint32_t kWhiteWord = 0xFFFFFFFF, kBlackWord = 0x000000FF;

SmartFillStatus fill(Scene& scene, const SmartFillArea& area, const SmartFillHooks& hooks = {}, std::uint64_t seed = 5)
{
    return runSmartFill(scene.bitmap(), scene.maskView(), area, hooks, seed);
}

/// The length of the extended list of steps, by its definition.
std::int64_t stepsFor(std::int64_t pixels)
{
    std::int64_t total = pixels;
    for (std::int64_t m = pixels; 3 * m >= 4; total += m) m = 3 * m / 4;
    return total;
}

TEST(SmartFillDistance, HasItsPublishedValues)
{
    const std::map<int, int> values{{0, 0},      {1, 16},     {2, 67},      {4, 269},     {8, 1049},    {16, 3821},
                                    {30, 10576}, {64, 26134}, {128, 45035}, {255, 65418}, {-256, 65536}};
    for (const auto& [difference, expected] : values) EXPECT_EQ(robustDistance(difference), expected) << difference;
    for (int d = 0; d < 256; ++d) {
        EXPECT_EQ(robustDistance(d), robustDistance(-d)) << d;
        EXPECT_EQ(robustDistanceTable()[d], robustDistance(d)) << d;
    }
}

TEST(SmartFillArea, GrowsTheSelectionByItsOwnSizeAndStaysInThePicture)
{
    EXPECT_EQ(smartFillArea(makeRect(100, 80, 40, 20), 300, 200, 50, false).work, (PixelBox{80, 70, 160, 110}));
    EXPECT_EQ(smartFillArea(makeRect(100, 80, 40, 20), 300, 200, 200, false).work, (PixelBox{20, 40, 220, 140}));
    EXPECT_EQ(smartFillArea(makeRect(10, 10, 40, 20), 60, 35, 100, false).work, (PixelBox{0, 0, 60, 35}));
    EXPECT_EQ(smartFillArea(makeRect(10.9f, 10.9f, 4.2f, 4.2f), 60, 60, 0, false).work, (PixelBox{10, 10, 15, 15}));
    EXPECT_EQ(smartFillArea(makeRect(-30, -10, 40, 20), 60, 35, 0, false).work, (PixelBox{0, 0, 10, 10}));
}

TEST(SmartFillArea, IsEmptyOutsideThePicture)
{
    EXPECT_TRUE(smartFillArea(makeRect(100, 0, 20, 20), 60, 35, 50, false).work.isEmpty());
    EXPECT_TRUE(smartFillArea(makeRect(-100, -100, 20, 20), 60, 35, 50, true).work.isEmpty());
    EXPECT_TRUE(smartFillArea(makeRect(5, 5, 0, 0), 60, 35, 200, false).work.isEmpty());
    EXPECT_TRUE(smartFillArea(makeRect(NAN, 1e30f, 1e38f, NAN), 60, 35, 200, true).work.isEmpty());
}

TEST(SmartFillArea, HasEvenCornersWhenFaster)
{
    for (int x = 0; x < 6; ++x)
        for (int w = 1; w < 9; ++w)
            for (int radius : {0, 33, 50}) {
                const SmartFillArea area = smartFillArea(makeRect(float(x), 7, float(w), 5), 21, 17, radius, true);
                SCOPED_TRACE(testing::Message() << x << " " << w << " " << radius);
                for (const PixelBox& box : {area.work, area.selection})
                    for (int corner : {box.x0, box.y0, box.x1, box.y1}) EXPECT_EQ(corner % 2, 0);
                EXPECT_GE(area.selection.x0, x);
                EXPECT_LE(area.selection.x1, x + w);
                EXPECT_LE(area.work.x1, 21);
            }
    EXPECT_EQ(smartFillArea(makeRect(11, 5, 6, 8), 100, 100, 50, true).selection, (PixelBox{12, 6, 16, 12}));
}

TEST(SmartFill, ContinuesStripesThroughTheHole)
{
    for (const bool slanting : {false, true}) {
        Scene scene(120, 90);
        const auto stripe = [&](int x, int y) { return (x + (slanting ? y : 0)) / 4 % 2 ? kWhiteWord : kBlackWord; };
        scene.paint(stripe);
        const PixelBox hole{45, 35, 75, 55};
        scene.select(hole);
        for (int y = hole.y0; y < hole.y1; ++y)
            for (int x = hole.x0; x < hole.x1; ++x) scene.at(x, y) = 0xFF0000FF;
        ASSERT_EQ(fill(scene, smartFillArea(hole.rect(), 120, 90, 100, false)), SmartFillStatus::Filled);
        int wrong = 0;
        for (int y = 0; y < 90; ++y)
            for (int x = 0; x < 120; ++x) wrong += scene.at(x, y) != stripe(x, y);
        EXPECT_LE(wrong, 12) << "of 600, " << (slanting ? "slanting" : "upright");
    }
}

TEST(SmartFill, ContinuesACheckerboardThroughTheHole)
{
    Scene scene(96, 96);
    const auto square = [](int x, int y) { return (x / 4 + y / 4) % 2 ? kWhiteWord : kBlackWord; };
    scene.paint(square);
    const PixelBox hole{38, 38, 58, 58};
    scene.select(hole);
    for (int y = hole.y0; y < hole.y1; ++y)
        for (int x = hole.x0; x < hole.x1; ++x) scene.at(x, y) = 0x00FF00FF;
    ASSERT_EQ(fill(scene, smartFillArea(hole.rect(), 96, 96, 100, false)), SmartFillStatus::Filled);
    int wrong = 0;
    for (int y = 0; y < 96; ++y)
        for (int x = 0; x < 96; ++x) wrong += scene.at(x, y) != square(x, y);
    EXPECT_LE(wrong, 20) << "of 400";
}

TEST(SmartFill, TakesEveryColourFromTheSourceAndTouchesNothingElse)
{
    std::mt19937 random(3);
    Scene scene(70, 60);
    scene.paint([&](int, int) { return random() & 0xFEFEFEFE; });
    const PixelBox hole{20, 20, 50, 40};
    scene.select(hole);
    for (int y = hole.y0; y < hole.y1; ++y)
        for (int x = hole.x0; x < hole.x1; ++x) scene.at(x, y) = 0x01010101;
    const Scene before = scene;
    const SmartFillArea area = smartFillArea(hole.rect(), 70, 60, 40, false);
    ASSERT_EQ(fill(scene, area), SmartFillStatus::Filled);
    std::vector<std::uint32_t> source;
    for (int y = area.work.y0; y < area.work.y1; ++y)
        for (int x = area.work.x0; x < area.work.x1; ++x)
            if (!hole.contains(x, y)) source.push_back(before.at(x, y));
    std::sort(source.begin(), source.end());
    for (int y = 0; y < 60; ++y)
        for (int x = 0; x < 70; ++x) {
            if (hole.contains(x, y))
                ASSERT_TRUE(std::binary_search(source.begin(), source.end(), scene.at(x, y))) << x << ", " << y;
            else
                ASSERT_EQ(scene.at(x, y), before.at(x, y)) << x << ", " << y;
        }
    EXPECT_EQ(scene.words.size(), before.words.size());
    for (int y = 0; y < 60; ++y) // the spare bytes at the rows' ends are left alone too
        for (std::size_t i = 70; i < std::size_t(scene.rowBytes / 4); ++i)
            ASSERT_EQ(scene.words[std::size_t(y) * std::size_t(scene.rowBytes / 4) + i], 0u);
}

TEST(SmartFill, ReportsProgressEvery1024StepsAndAtTheEnd)
{
    Scene scene(80, 80);
    std::mt19937 random(1);
    scene.paint([&](int x, int y) { return photoPixel(x, y, random); });
    const PixelBox hole{25, 25, 55, 50};
    scene.select(hole);
    std::vector<float> progress;
    takeLogLines();
    ASSERT_EQ(fill(scene, smartFillArea(hole.rect(), 80, 80, 50, false), {[&](float p) { progress.push_back(p); }, {}}),
              SmartFillStatus::Filled);
    const std::int64_t steps = stepsFor(30 * 25);
    std::vector<float> expected{0.0f};
    std::vector<std::string> lines{"update progress: 0.0", "image and mask fetched"};
    for (std::int64_t t = steps - 1; t >= 0; --t)
        if (t % 1024 == 0) {
            expected.push_back(1.0f - float(t) / float(steps));
            char line[64];
            std::snprintf(line, sizeof line, "update progress: %f", double(expected.back()));
            lines.push_back(line);
        }
    EXPECT_EQ(progress, expected);
    EXPECT_EQ(progress.back(), 1.0f);
    EXPECT_EQ(takeLogLines(), lines);
}

TEST(SmartFill, OnePixelHasOneProgressPoint)
{
    Scene scene(9, 9);
    scene.paint([](int x, int) { return x < 4 ? kWhiteWord : kBlackWord; });
    scene.maskAt(4, 4) = 255;
    std::vector<float> progress;
    ASSERT_EQ(fill(scene, smartFillArea(makeRect(4, 4, 1, 1), 9, 9, 200, false),
                   {[&](float p) { progress.push_back(p); }, {}}),
              SmartFillStatus::Filled);
    EXPECT_EQ(progress, (std::vector<float>{0.0f, 1.0f}));
}

TEST(SmartFill, StopsAtAProgressPointOnlyAndLeavesThePictureAlone)
{
    Scene scene(90, 90);
    std::mt19937 random(1);
    scene.paint([&](int x, int y) { return photoPixel(x, y, random); });
    const PixelBox hole{20, 20, 70, 70};
    scene.select(hole);
    const auto before = scene.words;
    const SmartFillArea area = smartFillArea(hole.rect(), 90, 90, 40, false);
    const std::int64_t points = (stepsFor(2500) + 1023) / 1024;
    for (int stopAt : {1, 2, 5, int(points)}) {
        int asked = 0;
        float last = -1;
        EXPECT_EQ(fill(scene, area, {[&](float p) { last = p; }, [&] { return ++asked == stopAt; }}),
                  SmartFillStatus::Cancelled);
        EXPECT_EQ(asked, stopAt) << "the flag is looked at nowhere else";
        EXPECT_EQ(scene.words, before);
        EXPECT_EQ(last == 1.0f, stopAt == points) << "the last point is the end, and even there it can be stopped";
    }
}

TEST(SmartFill, AskedToStopBeforeTheFirstPointItStopsThere)
{
    Scene scene(40, 40);
    scene.paint([](int x, int y) { return unsigned(x * y) * 0x01010101u; });
    scene.select({10, 10, 30, 30});
    const auto before = scene.words;
    std::vector<float> progress;
    EXPECT_EQ(fill(scene, smartFillArea(makeRect(10, 10, 20, 20), 40, 40, 50, false),
                   {[&](float p) { progress.push_back(p); }, [] { return true; }}),
              SmartFillStatus::Cancelled);
    EXPECT_EQ(progress.size(), 2u);
    EXPECT_EQ(scene.words, before);
}

TEST(SmartFill, AnEmptyHoleChangesNothingAndReportsOnlyTheStart)
{
    Scene scene(40, 40);
    std::mt19937 random(1);
    scene.paint([&](int, int) { return random(); });
    const auto before = scene.words;
    std::vector<float> progress;
    EXPECT_EQ(fill(scene, smartFillArea(makeRect(10, 10, 20, 20), 40, 40, 50, false),
                   {[&](float p) { progress.push_back(p); }, {}}),
              SmartFillStatus::Filled);
    EXPECT_EQ(progress, std::vector<float>{0.0f});
    EXPECT_EQ(scene.words, before);
}

TEST(SmartFill, WithoutASourcePixelItSaysSo)
{
    Scene scene(40, 40);
    std::mt19937 random(1);
    scene.paint([&](int, int) { return random(); });
    scene.select({10, 10, 30, 30});
    const auto before = scene.words;
    for (const bool faster : {false, true}) {
        std::vector<float> progress;
        EXPECT_EQ(fill(scene, smartFillArea(makeRect(10, 10, 20, 20), 40, 40, 0, faster),
                       {[&](float p) { progress.push_back(p); }, {}}),
                  SmartFillStatus::NoSource);
        EXPECT_EQ(progress, std::vector<float>{0.0f});
        EXPECT_EQ(scene.words, before);
    }
}

TEST(SmartFill, WithRadiusZeroOnlyTheBoxAroundTheSelectionIsASource)
{
    Scene scene(60, 60);
    scene.paint([](int x, int y) { return x >= 20 && x < 40 && y >= 20 && y < 40 ? 0x40404040u : 0xF0F0F0F0u; });
    for (int y = 20; y < 40; ++y) // a diamond: the box's corners stay unselected
        for (int x = 20; x < 40; ++x)
            if (std::abs(x - 30) + std::abs(y - 30) < 9) scene.maskAt(x, y) = 255, scene.at(x, y) = 0x07070707;
    ASSERT_EQ(fill(scene, smartFillArea(makeRect(20, 20, 20, 20), 60, 60, 0, false)), SmartFillStatus::Filled);
    for (int y = 20; y < 40; ++y)
        for (int x = 20; x < 40; ++x) ASSERT_EQ(scene.at(x, y), 0x40404040u) << x << ", " << y;
}

TEST(SmartFill, AHalfSelectedPixelIsBothHoleAndSource)
{
    Scene scene(20, 20);
    scene.paint([](int, int) { return 0x11223344u; });
    scene.select({0, 0, 20, 20});
    scene.select({5, 5, 15, 15}, 128);
    ASSERT_EQ(fill(scene, smartFillArea(makeRect(0, 0, 20, 20), 20, 20, 0, false)), SmartFillStatus::Filled);
    for (int y = 0; y < 20; ++y)
        for (int x = 0; x < 20; ++x) ASSERT_EQ(scene.at(x, y), 0x11223344u);
}

TEST(SmartFill, FillsAtThePicturesEdgeAndWhereTheSelectionHangsOver)
{
    for (const bool faster : {false, true})
        for (const Rect selection :
             {makeRect(0, 0, 20, 16), makeRect(-10, -7, 30, 23), makeRect(60, 41, 60, 50), makeRect(30, -9, 21, 30)}) {
            Scene scene(81, 61);
            scene.paint([](int, int y) { return y % 4 < 2 ? kWhiteWord : kBlackWord; });
            const PixelBox hole = pixelBoxOf(selection, 81, 61);
            scene.select(hole);
            for (int y = hole.y0; y < hole.y1; ++y)
                for (int x = hole.x0; x < hole.x1; ++x) scene.at(x, y) = 0xFF0000FF;
            const SmartFillArea area = smartFillArea(selection, 81, 61, 60, faster);
            ASSERT_EQ(fill(scene, area), SmartFillStatus::Filled);
            const PixelBox written = faster ? area.selection.intersected(area.work) : hole;
            EXPECT_FALSE(written.isEmpty());
            for (int y = written.y0; y < written.y1; ++y)
                for (int x = written.x0; x < written.x1; ++x) ASSERT_NE(scene.at(x, y), 0xFF0000FFu) << x << ", " << y;
        }
}

TEST(SmartFill, ASelectionOutsideThePictureIsAnEmptyHole)
{
    Scene scene(30, 30);
    for (const bool faster : {false, true})
        EXPECT_EQ(fill(scene, smartFillArea(makeRect(100, 100, 20, 20), 30, 30, 50, faster)), SmartFillStatus::Filled);
}

TEST(SmartFillFaster, WritesWholeBlocksInsideTheEvenBoxAndNothingElse)
{
    for (const Rect selection :
         {makeRect(21, 17, 17, 13), makeRect(20, 16, 18, 14), makeRect(21.7f, 16.2f, 16.9f, 14.9f)}) {
        Scene scene(73, 57);
        std::mt19937 random(11);
        scene.paint([&](int, int) { return random() | 1; });
        // only the middle is selected; the box's other pixels are rewritten all the same, two by two
        scene.select({25, 20, 33, 28});
        const Scene before = scene;
        const SmartFillArea area = smartFillArea(selection, 73, 57, 50, true);
        ASSERT_EQ(fill(scene, area), SmartFillStatus::Filled);
        for (int y = 0; y < 57; ++y)
            for (int x = 0; x < 73; ++x) {
                const std::uint32_t was = before.at(x, y);
                if (!area.selection.contains(x, y))
                    ASSERT_EQ(scene.at(x, y), was) << x << ", " << y;
                else
                    ASSERT_EQ(scene.at(x, y), scene.at(x & ~1, y & ~1)) << x << ", " << y;
                if (area.selection.contains(x, y) && !before.maskAt(x & ~1, y & ~1)) {
                    ASSERT_EQ(scene.at(x, y), before.at(x & ~1, y & ~1)) << x << ", " << y;
                }
            }
    }
}

TEST(SmartFillFaster, ReadsEverySecondPixel)
{
    Scene scene(31, 21);
    scene.paint([](int x, int y) { return unsigned(1000 * y + x); });
    scene.maskAt(8, 6) = 200;
    const SmartFillArea area{{4, 2, 20, 12}, true, {8, 6, 10, 8}};
    const SmartFillPicture picture = fetchSmartFillPicture(scene.bitmap(), scene.maskView(), area);
    ASSERT_EQ(picture.width, 8);
    ASSERT_EQ(picture.height, 5);
    EXPECT_EQ(picture.pixels[0], 2004u);
    EXPECT_EQ(picture.pixels[8 * 2 + 2], 6008u);
    EXPECT_EQ(picture.mask[8 * 2 + 2], 200);
    EXPECT_EQ(std::count(picture.mask.begin(), picture.mask.end(), 0), 39);
}

TEST(SmartFill, AMaskOfTheSelectionsBoxServesAsWellAsAWholeOne)
{
    Scene scene(50, 40);
    std::mt19937 random(2);
    scene.select({12, 9, 30, 25}, 255);
    scene.maskAt(12, 9) = 17;
    std::vector<std::uint8_t> part;
    for (int y = 9; y < 25; ++y)
        for (int x = 12; x < 30; ++x) part.push_back(scene.maskAt(x, y));
    for (const bool faster : {false, true}) {
        const SmartFillArea area = smartFillArea(makeRect(12, 9, 18, 16), 50, 40, 50, faster);
        EXPECT_EQ(fetchSmartFillPicture(scene.bitmap(), {part.data(), 18, 16, 18}, area, {12, 9}).mask,
                  fetchSmartFillPicture(scene.bitmap(), scene.maskView(), area).mask);
    }
}

TEST(SmartFill, TheSameSeedGivesTheSamePicture)
{
    std::vector<std::vector<std::uint32_t>> results;
    for (const std::uint64_t seed : {4, 4, 5}) {
        Scene scene(60, 60);
        std::mt19937 random(1);
        scene.paint([&](int, int) { return random(); });
        scene.select({20, 20, 40, 40});
        fill(scene, smartFillArea(makeRect(20, 20, 20, 20), 60, 60, 50, false), {}, seed);
        results.push_back(scene.words);
    }
    EXPECT_EQ(results[0], results[1]);
    EXPECT_NE(results[0], results[2]);
}

TEST(SmartFillRandom, DrawsEvenlyWithinAndAcrossBlocks)
{
    const SmartFillRandom random(123);
    constexpr int kCells = 64, kBlocks = 600;
    std::vector<int> counts(kCells), pairs(kCells), blocks(kCells);
    for (std::int64_t block = 0; block < kBlocks; ++block) {
        std::uint32_t last = 0;
        for (int i = 0; i < SmartFillRandom::kBlockDraws; ++i) {
            const std::uint32_t cell = random.draw(kCells, block * SmartFillRandom::kBlockSteps, i);
            ASSERT_LT(cell, unsigned(kCells));
            ++counts[cell];
            ++pairs[(cell + kCells - last) % kCells]; // how one draw follows another must be even as well
            ++blocks[(cell + kCells - random.draw(kCells, (block + 1) * SmartFillRandom::kBlockSteps, i)) % kCells];
            last = cell;
        }
    }
    const double expected = double(kBlocks) * SmartFillRandom::kBlockDraws / kCells; // 12,000
    for (int i = 0; i < kCells; ++i) {
        EXPECT_NEAR(counts[std::size_t(i)], expected, expected * 0.06) << i;
        EXPECT_NEAR(pairs[std::size_t(i)], expected, expected * 0.06) << i;
        EXPECT_NEAR(blocks[std::size_t(i)], expected, expected * 0.06) << i;
    }
}

TEST(SmartFillRandom, AStepsDrawsAreThoseOfItsBlockFromARandomPlaceOn)
{
    const SmartFillRandom random(9);
    std::vector<int> starts(SmartFillRandom::kStarts);
    for (std::int64_t step = 0; step < 200 * SmartFillRandom::kStarts; ++step) {
        const int start = random.startOf(step);
        ASSERT_GE(start, 0);
        ASSERT_LE(start + kRandomTries, SmartFillRandom::kBlockDraws);
        ++starts[std::size_t(start)];
    }
    for (const int count : starts) EXPECT_NEAR(count, 200, 80); // 5.7 standard deviations
    for (const int i : {0, 1, SmartFillRandom::kBlockDraws - 1}) {
        EXPECT_EQ(random.draw(1000, 1024, i), random.draw(1000, 2047, i));
        EXPECT_NE(random.draw(1u << 31, 2047, i), random.draw(1u << 31, 2048, i));
        EXPECT_NE(random.draw(1u << 31, 1024, i), SmartFillRandom(10).draw(1u << 31, 1024, i));
    }
}

/// The neighbours of a pixel, found by looking at every offset.
std::vector<std::pair<int, int>> neighboursByHand(const std::vector<std::uint8_t>& known, int w, int h, int x, int y)
{
    std::vector<std::tuple<int, int, int>> all;
    for (int dy = 1 - h; dy < h; ++dy)
        for (int dx = 1 - w; dx < w; ++dx)
            if (known[std::size_t((y + dy + h) % h) * std::size_t(w) + std::size_t((x + dx + w) % w)])
                all.emplace_back(dx * dx + dy * dy, dy, dx);
    std::sort(all.begin(), all.end());
    std::vector<std::pair<int, int>> nearest;
    for (std::size_t i = 0; i < std::min<std::size_t>(30, all.size()); ++i)
        nearest.emplace_back(std::get<2>(all[i]), std::get<1>(all[i]));
    return nearest;
}

TEST(SmartFillNeighbours, AreTheNearestKnownPixelsOnTheTorus)
{
    std::mt19937 random(8);
    for (const auto& [w, h, percent] : {std::tuple{70, 60, 90},
                                        {70, 60, 30},
                                        {70, 60, 6},
                                        {70, 60, 1},
                                        {200, 17, 2},
                                        {3, 90, 40},
                                        {130, 130, 0},
                                        {5, 4, 50},
                                        {1, 1, 100},
                                        {1, 50, 10},
                                        {97, 33, 3}}) {
        const MatchLayout layout(w, h);
        KnownPixels knownPixels(layout);
        std::vector<std::uint8_t> known(std::size_t(w) * std::size_t(h));
        for (int i = 0; i < w * h; ++i)
            if (int(random() % 100) < percent || i == w * h / 2) {
                known[std::size_t(i)] = 1;
                knownPixels.set(i % w, i / w);
            }
        for (int round = 0; round < 60; ++round) {
            const int x = int(random() % unsigned(w)), y = int(random() % unsigned(h));
            Neighbourhood near;
            knownPixels.collect(x, y, near);
            const auto expected = neighboursByHand(known, w, h, x, y);
            SCOPED_TRACE(testing::Message() << w << " x " << h << ", " << percent << " %, at " << x << ", " << y);
            ASSERT_EQ(near.count, int(expected.size()));
            for (int k = 0; k < near.count; ++k) {
                const auto [dx, dy] = expected[std::size_t(k)];
                ASSERT_EQ(near.delta[k], dy * layout.stride + dx) << k;
                ASSERT_EQ(near.index[k], layout.index((x + dx + w) % w, (y + dy + h) % h)) << k;
                ASSERT_LE(std::max(std::abs(dx), std::abs(dy)), near.reach);
                if (near.far) {
                    ASSERT_EQ(std::pair(near.dx[k], near.dy[k]), std::pair(dx, dy));
                }
            }
            ASSERT_EQ(near.far, near.reach > layout.border);
        }
    }
}

/// Whether (x, y) of the picture is known; nothing beyond its edges is, here.
struct ScatteredPixels {
    int width, height;
    std::vector<std::uint8_t> mask; ///< 0 = known

    ScatteredPixels(int w, int h, unsigned seed) : width(w), height(h)
    {
        std::mt19937 random(seed);
        for (int i = 0; i < w * h; ++i) mask.push_back(random() % 3 ? 0 : std::uint8_t(1 + random() % 255));
    }
    bool known(int x, int y) const
    {
        return x >= 0 && y >= 0 && x < width && y < height &&
               !mask[std::size_t(y) * std::size_t(width) + std::size_t(x)];
    }
};

TEST(SmartFillNeighbours, StandAsBitsInWindowsAndRows)
{
    for (const auto& [w, h] : {std::pair{61, 40}, {8, 8}, {3, 3}, {1, 1}, {130, 5}}) {
        SCOPED_TRACE(testing::Message() << w << " x " << h);
        const ScatteredPixels pixels(w, h, 3);
        KnownPixels one{MatchLayout(w, h)}, rows{MatchLayout(w, h)};
        for (int y = h; y-- > 0;) {
            rows.setRow(y, pixels.mask.data() + std::ptrdiff_t{w} * y);
            for (int x = 0; x < w; ++x)
                if (pixels.known(x, y)) one.set(x, y);
        }
        for (const KnownPixels* known : {&one, &rows})
            for (int y = 0; y < h; ++y)
                for (int x = 0; x < w; ++x) {
                    const KnownPixels::Window window = known->window(x, y);
                    for (int dy = -KnownPixels::kWindowReach; dy <= KnownPixels::kWindowReach; ++dy)
                        for (int dx = -KnownPixels::kWindowReach; dx <= KnownPixels::kWindowReach; ++dx) {
                            const int c = dx + KnownPixels::kWindowReach + window.phase;
                            const int r = dy + KnownPixels::kWindowReach;
                            ASSERT_EQ(window.strips[(c >> 3) * window.pitch + r] >> (c & 7) & 1,
                                      int(pixels.known(x + dx, y + dy)))
                                << x << " + " << dx << ", " << y << " + " << dy;
                        }
                    for (int dx = -KnownPixels::kDiscReach; dx <= KnownPixels::kDiscReach; ++dx)
                        ASSERT_EQ(known->row(x, y) >> (dx + KnownPixels::kDiscReach) & 1,
                                  std::uint64_t(pixels.known(x + dx, y)))
                            << x << " + " << dx << ", " << y;
                }
    }
}

TEST(SmartFillNeighbours, AreTheSameHoweverTheyWereSet)
{
    constexpr int kWidth = 90, kHeight = 70;
    const ScatteredPixels pixels(kWidth, kHeight, 4);
    const MatchLayout layout(kWidth, kHeight);
    KnownPixels one{layout}, rows{layout};
    for (int y = 0; y < kHeight; ++y) {
        rows.setRow(y, pixels.mask.data() + std::ptrdiff_t{kWidth} * y);
        for (int x = 0; x < kWidth; ++x)
            if (pixels.known(x, y)) one.set(x, y);
    }
    for (int y = 0; y < kHeight; y += 7)
        for (int x = 0; x < kWidth; x += 5) {
            const auto list = [&](const Neighbourhood& near) {
                return std::vector<std::int32_t>(near.delta, near.delta + near.count);
            };
            Neighbourhood walked, searched, walkedRows;
            one.collect(x, y, walked);
            rows.collect(x, y, walkedRows);
            rows.search(x, y, searched);
            ASSERT_EQ(walked.count, kNeighbours);
            ASSERT_EQ(list(walked), list(searched)) << x << ", " << y;
            ASSERT_EQ(list(walked), list(walkedRows)) << x << ", " << y;
        }
}

} // namespace
