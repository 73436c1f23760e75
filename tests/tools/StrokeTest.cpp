// SPDX-License-Identifier: GPL-3.0-or-later
/// The pieces of a stroke: the walked line, the measures, tips and stamps, and the way of the samples.
#include "tools/BrushTip.h"
#include "tools/PointerFeed.h"
#include "tools/StrokeGeometry.h"
#include "tools/TestPicture.h"
#include <algorithm>
#include <gtest/gtest.h>
#include <numeric>
#include <random>
#include <string>
#include <thread>

namespace
{

using namespace zp;
using namespace zp::test;

/// Holds every line of these tests.
constexpr PixelBox kEverywhere{-1'000'000, -1'000'000, 1'000'000, 1'000'000};

std::vector<PixelPoint> line(PixelPoint a, PixelPoint b)
{
    std::vector<PixelPoint> visited;
    walkLine(
        a, b, kEverywhere, [&](PixelPoint p) { visited.push_back(p); },
        [](std::int64_t) { FAIL() << "nothing lies outside"; });
    return visited;
}

/// The same walk pixel by pixel, with nothing left out.
std::vector<PixelPoint> plainLine(PixelPoint a, PixelPoint b)
{
    const bool steep = std::abs(b.y - a.y) > std::abs(b.x - a.x);
    if (steep) std::swap(a.x, a.y), std::swap(b.x, b.y);
    if (a.x > b.x) std::swap(a, b);
    const int length = b.x - a.x, rise = std::abs(b.y - a.y), step = a.y < b.y ? 1 : -1;
    int error = length / 2;
    std::vector<PixelPoint> visited;
    for (int x = a.x, y = a.y; x <= b.x; ++x) {
        visited.push_back(steep ? PixelPoint{y, x} : PixelPoint{x, y});
        error -= rise;
        if (error < 0) y += step, error += length;
    }
    return visited;
}

TEST(WalkLine, VisitsBothEndsInTheOrderOfTheMajorAxis)
{
    EXPECT_EQ(line({0, 0}, {3, 0}), (std::vector<PixelPoint>{{0, 0}, {1, 0}, {2, 0}, {3, 0}}));
    EXPECT_EQ(line({3, 0}, {0, 0}), line({0, 0}, {3, 0}));
    EXPECT_EQ(line({0, 2}, {0, -1}), (std::vector<PixelPoint>{{0, -1}, {0, 0}, {0, 1}, {0, 2}}));
    EXPECT_EQ(line({5, 5}, {5, 5}), (std::vector<PixelPoint>{{5, 5}}));
    EXPECT_EQ(line({0, 0}, {2, 2}), (std::vector<PixelPoint>{{0, 0}, {1, 1}, {2, 2}}));
    EXPECT_EQ(line({2, 0}, {0, 2}), (std::vector<PixelPoint>{{0, 2}, {1, 1}, {2, 0}})); // a tie: along x
}

TEST(WalkLine, StaysWithinHalfAPixelOfTheLine)
{
    std::mt19937 random(3);
    for (int i = 0; i < 500; ++i) {
        const PixelPoint a{int(random() % 200) - 100, int(random() % 200) - 100},
            b{int(random() % 200) - 100, int(random() % 200) - 100};
        const std::vector<PixelPoint> visited = line(a, b);
        const int dx = b.x - a.x, dy = b.y - a.y, major = std::max(std::abs(dx), std::abs(dy));
        ASSERT_EQ(int(visited.size()), major + 1);
        for (const PixelPoint p : visited) {
            const double off = std::abs(double(p.x - a.x) * dy - double(p.y - a.y) * dx);
            ASSERT_LE(off, 0.5 * major + 1e-9 + (major ? 0.5 : 0)) << i;
        }
    }
}

TEST(WalkLine, IsThePlainWalkWhereTheWindowIsAndCountsTheRest)
{
    std::mt19937 random(7);
    const auto upTo = [&random](int n) { return int(random() % unsigned(n)); };
    for (int i = 0; i < 20'000; ++i) {
        const int reach = i % 3 == 0 ? 6 : i % 3 == 1 ? 60 : 400; // short lines have more special cases
        const PixelPoint a{upTo(2 * reach) - reach, upTo(2 * reach) - reach},
            b{upTo(2 * reach) - reach, upTo(2 * reach) - reach};
        PixelBox window{upTo(2 * reach) - reach, upTo(2 * reach) - reach, 0, 0};
        window.x1 = window.x0 + upTo(reach);
        window.y1 = window.y0 + upTo(reach);
        const bool steep = std::abs(b.y - a.y) > std::abs(b.x - a.x);
        std::vector<PixelPoint> walked;
        std::vector<std::int64_t> skipped;
        walkLine(
            a, b, window, [&](PixelPoint p) { walked.push_back(p); },
            [&](std::int64_t count) {
                EXPECT_GT(count, 0);
                skipped.push_back(count);
            });
        std::vector<PixelPoint> inside;
        std::int64_t outside = 0;
        for (const PixelPoint p : plainLine(a, b)) {
            const bool in = steep ? p.y >= window.y0 && p.y < window.y1 : p.x >= window.x0 && p.x < window.x1;
            if (in)
                inside.push_back(p);
            else
                ++outside;
        }
        ASSERT_EQ(walked, inside) << i << ": " << a.x << ", " << a.y << " to " << b.x << ", " << b.y;
        ASSERT_EQ(std::accumulate(skipped.begin(), skipped.end(), std::int64_t{0}), outside) << i;
        ASSERT_LE(skipped.size(), 2u);
    }
}

TEST(WalkLine, TellsWhatItSkipsBeforeAndBehindInItsPlace)
{
    std::string order;
    walkLine(
        {0, 0}, {9, 3}, {4, 0, 6, 10}, [&order](PixelPoint p) { order += std::to_string(p.x) + ' '; },
        [&order](std::int64_t count) { order += '(' + std::to_string(count) + ") "; });
    EXPECT_EQ(order, "(4) 4 5 (4) ");
}

TEST(WalkLine, TakesNoTimeForWhatLiesFarAway)
{
    // As far as a stroke's samples can lie: walked pixel by pixel each of these would take seconds.
    constexpr int kFar = 1'000'000'000;
    for (const auto& [a, b] : {std::pair{PixelPoint{-kFar, 20}, PixelPoint{kFar, 20}},
                               {PixelPoint{-kFar, -kFar}, PixelPoint{kFar, kFar}},
                               {PixelPoint{30, kFar}, PixelPoint{31, -kFar}},
                               {PixelPoint{-kFar, -kFar + 40}, PixelPoint{kFar, kFar - 1}}}) {
        const bool steep = std::abs(std::int64_t{b.y} - a.y) > std::abs(std::int64_t{b.x} - a.x);
        std::int64_t visited = 0, skipped = 0;
        int calls = 0;
        walkLine(
            a, b, {0, 0, 100, 100},
            [&](PixelPoint p) {
                ++visited;
                const double t =
                    steep ? (double(p.y) - a.y) / (double(b.y) - a.y) : (double(p.x) - a.x) / (double(b.x) - a.x);
                const double on = steep ? a.x + t * (double(b.x) - a.x) : a.y + t * (double(b.y) - a.y);
                EXPECT_NEAR(steep ? p.x : p.y, on, 0.51);
            },
            [&](std::int64_t count) { skipped += count, ++calls; });
        EXPECT_EQ(visited, 100);
        EXPECT_EQ(visited + skipped, 2LL * kFar + 1);
        EXPECT_EQ(calls, 2);
    }
}

TEST(StrokeMeasures, FollowFromTheSize)
{
    const StrokeMeasures twenty(20);
    EXPECT_EQ(twenty.tip, 20);
    EXPECT_EQ(twenty.spacing, 3);
    EXPECT_EQ(twenty.half, 10);
    EXPECT_EQ(twenty.margin, 11);
    EXPECT_EQ(StrokeMeasures(10).spacing, 2); // 1.5 rounds away from zero
    EXPECT_EQ(StrokeMeasures(3.3f).spacing, 0);
    EXPECT_EQ(StrokeMeasures(3.4f).spacing, 1);
    EXPECT_EQ(StrokeMeasures(7.9f).tip, 7);
    EXPECT_EQ(twenty.corner({15.9f, 4.5f}), (PixelPoint{5, -5})); // truncated towards zero
}

TEST(SegmentRect, IsTheSegmentsBoxGrown)
{
    EXPECT_EQ(SegmentRect({10, 5}, {4, 25}, 3), makeRect(1, 2, 12, 26));
    EXPECT_EQ(flippedRect(makeRect(1, 2, 12, 26), 100), makeRect(1, 72, 12, 26));
}

TEST(BrushTip, TintsTheShapeAndKeepsIt)
{
    Picture shape(8, 8, 0xFF00FF00); // blue and red, transparent
    for (int y = 2; y < 6; ++y)
        for (int x = 2; x < 6; ++x) shape.at(x, y) = 0x80FF00FF;
    const BrushTip tip(shape.view(), 8, {0, 1, 0.5f, 0.1f});
    ASSERT_EQ(tip.side(), 8);
    EXPECT_EQ(tip.pixels().row(0)[0], 0u);
    EXPECT_EQ(tip.pixels().row(4)[4], 0x80FF00FFu); // opaque: the colour's alpha does not count here
}

TEST(BrushTip, IsScaledToTheSize)
{
    Picture shape(64, 64, 0xFF);
    for (const float size : {1.0f, 12.6f, 64.0f, 200.0f}) {
        const BrushTip tip(shape.view(), size, {1, 0, 0, 1});
        EXPECT_EQ(tip.side(), int(std::lround(size)));
        EXPECT_EQ(tip.pixels().row(tip.side() / 2)[tip.side() / 2], 0x0000FFFFu);
    }
    EXPECT_EQ(BrushTip(shape.view(), 0.2f, {}).side(), 0);
    EXPECT_EQ(BrushTip(shape.view(), NAN, {}).side(), 0);
}

TEST(BrushTip, IsRoundWithoutAShape)
{
    const BrushTip tip({}, 21, {0, 0, 1, 1});
    EXPECT_EQ(tip.pixels().row(10)[10], 0xFF0000FFu);
    EXPECT_EQ(tip.pixels().row(0)[0], 0u);
    EXPECT_GT(tip.pixels().row(10)[0] & 0xFF, 0u);
}

TEST(BrushStamp, BlendsLikeTheFormulaAndKeepsColourBelowAlpha)
{
    std::mt19937 random(9);
    Picture shape(33, 33);
    for (int y = 0; y < 33; ++y)
        for (int x = 0; x < 33; ++x) shape.at(x, y) = random() % 256;
    const BrushTip tip(shape.view(), 33, {0.9f, 0.3f, 0.6f, 1});
    for (const float fraction : {0.0f, 0.35f, 0.7f, 1.0f}) {
        const BrushStamp stamp(tip, fraction);
        Picture picture(60, 50);
        for (int y = 0; y < 50; ++y)
            for (int x = 0; x < 60; ++x) {
                const std::uint32_t a = random() % 256;
                picture.at(x, y) = a | random() % (a + 1) << 8 | random() % (a + 1) << 16 | random() % (a + 1) << 24;
            }
        Picture before = picture;
        stamp.drawAt(picture.view(), 7, 9);
        for (int y = 0; y < 50; ++y)
            for (int x = 0; x < 60; ++x) {
                const bool inside = x >= 7 && x < 40 && y >= 9 && y < 42;
                const std::uint8_t *was = before.view().pixel(x, y), *is = picture.view().pixel(x, y);
                const double alpha = inside ? tip.pixels().pixel(x - 7, y - 9)[0] * double(fraction) / 255 : 0;
                for (int c = 0; c < 4; ++c) {
                    const double source = inside ? tip.pixels().pixel(x - 7, y - 9)[c] * double(fraction) : 0;
                    ASSERT_NEAR(is[c], source + was[c] * (1 - alpha), inside ? 1.51 : 0) << x << ' ' << y << ' ' << c;
                    ASSERT_LE(is[c], is[0]);
                }
            }
        EXPECT_TRUE(picture.spareUntouched());
    }
}

TEST(BrushStamp, IsCutAtEveryEdge)
{
    const BrushTip tip({}, 20, {1, 0, 0, 1});
    const BrushStamp stamp(tip, 1);
    Picture large(140, 130);
    stamp.drawAt(large.view(), 60, 60);
    for (const PixelPoint at : {PixelPoint{-7, -3},
                                {35, -19},
                                {25, 20},
                                {-19, 29},
                                {10, 10},
                                {-20, 5},
                                {5, -20},
                                {40, 5},
                                {5, 30},
                                {-2'000'000'000, 5},
                                {2'000'000'000, 2'000'000'000}}) {
        Picture small(40, 30);
        stamp.drawAt(small.view(), at.x, at.y);
        for (int y = 0; y < 30; ++y)
            for (int x = 0; x < 40; ++x) {
                const std::int64_t sx = std::int64_t{x} - at.x + 60, sy = std::int64_t{y} - at.y + 60;
                const std::uint32_t expected =
                    sx >= 0 && sx < 140 && sy >= 0 && sy < 130 ? large.at(int(sx), int(sy)) : 0;
                ASSERT_EQ(small.at(x, y), expected) << at.x << ' ' << at.y;
            }
        ASSERT_TRUE(small.spareUntouched());
    }
}

TEST(Erase, ClearsByTheMaskForAllValues)
{
    Picture picture(256, 256);
    Mask mask(256, 256);
    for (int y = 0; y < 256; ++y)
        for (int x = 0; x < 256; ++x)
            picture.at(x, y) = std::uint32_t(x) * 0x01010101u, mask.at(x, y) = std::uint8_t(y);
    eraseThroughMask(picture.view(), mask.view());
    for (int y = 0; y < 256; ++y)
        for (int x = 0; x < 256; ++x)
            ASSERT_EQ(picture.at(x, y), std::uint32_t(std::lround(x * y / 255.0)) * 0x01010101u) << x << ' ' << y;
    EXPECT_TRUE(picture.spareUntouched());
}

TEST(PointerFeed, DeliversEverythingInOrderToAnotherThread)
{
    constexpr int kCount = 300'000; // several times round the ring
    auto feed = std::make_unique<PointerFeed>();
    std::vector<float> got;
    got.reserve(kCount);
    std::thread reader([&] {
        for (;;) {
            const bool closed = feed->isClosed();
            Point p;
            if (feed->pop(p)) {
                got.push_back(p.x);
            } else if (closed) {
                return;
            } else {
                feed->waitForNews(std::chrono::milliseconds(5));
            }
        }
    });
    for (int i = 0; i < kCount; ++i) feed->push({float(i), 1});
    EXPECT_EQ(feed->latest(), (Point{float(kCount - 1), 1}));
    feed->close();
    reader.join();
    ASSERT_EQ(got.size(), std::size_t(kCount));
    for (int i = 0; i < kCount; ++i) ASSERT_EQ(got[std::size_t(i)], float(i));
}

TEST(PointerFeed, AnAbandonedFeedNeverHoldsItsWriterUp)
{
    auto feed = std::make_unique<PointerFeed>();
    feed->abandon();
    for (int i = 0; i < 200'000; ++i) feed->push({float(i), 0});
    SUCCEED();
}

TEST(PointerFeed, WakesASleeper)
{
    auto feed = std::make_unique<PointerFeed>();
    const auto start = std::chrono::steady_clock::now();
    std::thread writer([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
        feed->push({1, 2});
    });
    feed->waitForNews(std::chrono::seconds(20));
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10));
    Point p;
    EXPECT_TRUE(feed->pop(p));
    writer.join();
}

} // namespace
