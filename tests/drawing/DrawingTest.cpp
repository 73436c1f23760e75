// SPDX-License-Identifier: GPL-3.0-or-later
/// Drawing into memory: coverage, clips, operations and images, held against plain arithmetic.
#include "base/BitmapRep.h"
#include "codecs/TestPictures.h"
#include "drawing/BitmapContext.h"
#include <functional>
#include <gtest/gtest.h>
#include <limits>
#include <numbers>
#include <random>

using namespace zp;
using zp::test::channelOf;
using zp::test::isPremultiplied;
using zp::test::noise;
using zp::test::picture;
using zp::test::samePixels;
using zp::test::word;

namespace
{
constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();

/// A polygon's exact share of a pixel by cutting it to the pixel (convex outlines).
double areaInPixel(std::vector<std::pair<double, double>> polygon, int px, int py)
{
    const auto cut = [&](auto inside, auto cross) {
        std::vector<std::pair<double, double>> out;
        for (std::size_t i = 0; i < polygon.size(); ++i) {
            const auto a = polygon[i], b = polygon[(i + 1) % polygon.size()];
            if (inside(a)) out.push_back(a);
            if (inside(a) != inside(b)) out.push_back(cross(a, b));
        }
        polygon = out;
    };
    for (const double x : {double(px), double(px + 1)})
        cut([&](auto p) { return x == px ? p.first >= x : p.first <= x; },
            [&](auto a, auto b) {
                return std::pair{x, a.second + (b.second - a.second) * (x - a.first) / (b.first - a.first)};
            });
    for (const double y : {double(py), double(py + 1)})
        cut([&](auto p) { return y == py ? p.second >= y : p.second <= y; },
            [&](auto a, auto b) {
                return std::pair{a.first + (b.first - a.first) * (y - a.second) / (b.second - a.second), y};
            });
    double area = 0;
    for (std::size_t i = 0; i < polygon.size(); ++i) {
        const auto a = polygon[i], b = polygon[(i + 1) % polygon.size()];
        area += a.first * b.second - b.first * a.second;
    }
    return std::abs(area) / 2;
}

struct Mask {
    int width, height;
    std::vector<std::uint8_t> bytes;
    Mask(int w, int h, std::uint8_t fill = 0) : width(w), height(h), bytes(std::size_t(w) * std::size_t(h), fill) {}
    MaskView view() { return {bytes.data(), width, height, width}; }
    int at(int x, int y) const { return bytes[std::size_t(y) * std::size_t(width) + std::size_t(x)]; }
};

BezierPath polygonPath(const std::vector<std::pair<double, double>>& points)
{
    BezierPath path;
    for (std::size_t i = 0; i < points.size(); ++i) {
        const Point p{float(points[i].first), float(points[i].second)};
        i == 0 ? path.moveTo(p) : path.lineTo(p);
    }
    path.closePath();
    return path;
}
} // namespace

// ---- coverage ------------------------------------------------------------------------------------------------------

TEST(Coverage, IsTheExactAreaOfEveryPixel)
{
    std::mt19937 random(1);
    std::uniform_real_distribution<float> coordinate(-6, 46);
    for (int round = 0; round < 300; ++round) {
        std::vector<std::pair<double, double>> triangle;
        for (int i = 0; i < 3; ++i) triangle.push_back({coordinate(random), coordinate(random)});
        Mask mask(40, 40);
        fillPathInMask(mask.view(), polygonPath(triangle), 255);
        for (int y = 0; y < 40; ++y)
            for (int x = 0; x < 40; ++x)
                ASSERT_NEAR(mask.at(x, y), 255 * areaInPixel(triangle, x, y), 0.6)
                    << "round " << round << " at " << x << "," << y;
    }
}

TEST(Coverage, LongFlatEdgesAreExactToo)
{
    const std::vector<std::pair<double, double>> sliver{{-3.3, 1.1}, {403.7, 2.9}, {403.2, 3.3}, {-2.5, 1.6}};
    Mask mask(400, 6);
    fillPathInMask(mask.view(), polygonPath(sliver), 255);
    for (int y = 0; y < 6; ++y)
        for (int x = 0; x < 400; ++x) ASSERT_NEAR(mask.at(x, y), 255 * areaInPixel(sliver, x, y), 0.6) << x << "," << y;
}

TEST(Coverage, DoesNotDependOnWherePixelsLieNorOnWhatIsCut)
{
    std::mt19937 random(2);
    std::uniform_real_distribution<float> coordinate(0, 60);
    for (int round = 0; round < 100; ++round) {
        BezierPath path;
        path.moveTo({coordinate(random), coordinate(random)});
        for (int i = 0; i < 6; ++i)
            path.curveTo({coordinate(random), coordinate(random)}, {coordinate(random), coordinate(random)},
                         {coordinate(random), coordinate(random)});
        Mask whole(64, 64);
        fillPathInMask(whole.view(), path, 255);
        AffineTransform shift;
        shift.translate(-17, -9);
        const auto canvas = picture(30, 30);
        BitmapContext context(canvas->view());
        context.concat(shift);
        context.setColor(kWhite);
        context.fill(path);
        for (int y = 0; y < 30; ++y)
            for (int x = 0; x < 30; ++x)
                ASSERT_EQ(channelOf(canvas->view().row(y)[x], 0), whole.at(x + 17, y + 9))
                    << round << " " << x << "," << y;
    }
}

TEST(Coverage, WindingRulesDiffer)
{
    BezierPath path = BezierPath::withRect(makeRect(2, 2, 60, 60));
    path.appendRect(makeRect(10, 10, 20, 20));
    Mask nonZero(64, 64), evenOdd(64, 64);
    fillPathInMask(nonZero.view(), path, 255);
    path.setWindingRule(WindingRule::EvenOdd);
    fillPathInMask(evenOdd.view(), path, 255);
    EXPECT_EQ(nonZero.at(15, 15), 255);
    EXPECT_EQ(evenOdd.at(15, 15), 0);
    EXPECT_EQ(evenOdd.at(40, 40), 255);
    EXPECT_EQ(evenOdd.at(1, 1), 0);
}

TEST(Coverage, ManyOutlinesOnTopOfEachOtherStillFill)
{
    BezierPath path;
    for (int i = 0; i < 500; ++i) path.appendRect(makeRect(1.5f, 1.5f, 5, 5));
    Mask mask(8, 8);
    fillPathInMask(mask.view(), path, 255);
    EXPECT_EQ(mask.at(3, 3), 255);
    EXPECT_EQ(mask.at(7, 7), 0);
    path.setWindingRule(WindingRule::EvenOdd); // an even number of times: nothing
    Mask none(8, 8);
    fillPathInMask(none.view(), path, 255);
    EXPECT_EQ(none.at(3, 3), 0);
}

TEST(Coverage, DenseAndSparseRowsAgree)
{
    // Narrow teeth touch nearly every pixel of a row; the same picture drawn tooth by tooth touches few at a time.
    BezierPath comb;
    Mask whole(300, 20), apart(300, 20);
    for (int i = 0; i < 140; ++i) {
        const float x = 5 + 2.06f * float(i);
        BezierPath tooth;
        tooth.moveTo({x, 1.3f});
        tooth.lineTo({x + 0.7f, 18.2f});
        tooth.lineTo({x + 1.1f, 18.2f});
        tooth.closePath();
        comb.append(tooth);
    }
    fillPathInMask(whole.view(), comb, 255);
    for (int y = 0; y < 20; ++y)
        for (int x = 0; x < 300; ++x) {
            double area = 0;
            for (int i = 0; i < 140; ++i) {
                const double tx = double(5 + 2.06f * float(i));
                if (tx > x + 1 || tx + 1.2 < x) continue;
                area += areaInPixel({{tx, double(1.3f)},
                                     {double(float(tx) + 0.7f), double(18.2f)},
                                     {double(float(tx) + 1.1f), double(18.2f)}},
                                    x, y);
            }
            ASSERT_NEAR(whole.at(x, y), 255 * area, 1.0) << x << "," << y;
        }
}

TEST(Coverage, WithoutAntialiasingPixelsAreAllOrNothing)
{
    Mask mask(64, 64);
    fillPathInMask(mask.view(), BezierPath::withOvalInRect(makeRect(3.3f, 4.4f, 50, 55)), 255, false);
    int full = 0;
    for (const std::uint8_t b : mask.bytes) {
        ASSERT_TRUE(b == 0 || b == 255);
        full += b == 255;
    }
    EXPECT_NEAR(full, std::numbers::pi * 25 * 27.5, 15);
}

TEST(Coverage, MovesMaskBytesTowardsTheValue)
{
    Mask mask(4, 1, 255);
    fillPathInMask(mask.view(), BezierPath::withRect(makeRect(0.5f, 0, 2, 1)), 0);
    EXPECT_EQ(mask.at(0, 0), 127);
    EXPECT_EQ(mask.at(1, 0), 0);
    EXPECT_EQ(mask.at(2, 0), 127);
    EXPECT_EQ(mask.at(3, 0), 255);
}

class BrokenPath : public testing::TestWithParam<std::pair<const char*, std::function<BezierPath()>>>
{
};

TEST_P(BrokenPath, IsCutToTheBitmapOrDrawsNothing)
{
    const BezierPath path = GetParam().second();
    const auto canvas = picture(32, 32);
    BitmapContext context(canvas->view());
    context.setColor(kWhite);
    context.fill(path);
    context.stroke(path);
    context.addClip(path);
    context.fillRect(makeRect(0, 0, 32, 32));
    EXPECT_TRUE(isPremultiplied(canvas->view()));
    Mask mask(32, 32);
    fillPathInMask(mask.view(), path, 255);
    strokePathInMask(mask.view(), path, 255);
    (void)strokeBounds(path);
}

INSTANTIATE_TEST_SUITE_P(Drawing, BrokenPath,
                         testing::Values(std::pair{"NaN", std::function([] {
                                                       BezierPath p = BezierPath::withRect(makeRect(0, 0, 10, 10));
                                                       p.lineTo({kNaN, 3});
                                                       return p;
                                                   })},
                                         std::pair{"HugeCurve", std::function([] {
                                                       return BezierPath::withOvalInRect(
                                                           makeRect(-1e30f, -1e30f, 2e30f, 2e30f));
                                                   })},
                                         std::pair{"HugeLine", std::function([] {
                                                       BezierPath p;
                                                       p.moveTo({-3e38f, -3e38f});
                                                       p.lineTo({3e38f, 3e38f});
                                                       p.lineTo({3e38f, 0});
                                                       return p;
                                                   })},
                                         std::pair{"Infinite", std::function([] {
                                                       BezierPath p;
                                                       p.moveTo({0, 0});
                                                       p.lineTo({std::numeric_limits<float>::infinity(), 5});
                                                       p.lineTo({0, 10});
                                                       return p;
                                                   })},
                                         std::pair{"HugeWidth", std::function([] {
                                                       BezierPath p;
                                                       p.moveTo({0, 0});
                                                       p.lineTo({5, 5});
                                                       p.setLineWidth(1e30f);
                                                       return p;
                                                   })},
                                         std::pair{"NaNWidth", std::function([] {
                                                       BezierPath p;
                                                       p.moveTo({0, 0});
                                                       p.lineTo({5, 5});
                                                       p.setLineWidth(kNaN);
                                                       return p;
                                                   })},
                                         std::pair{"ManyDashes", std::function([] {
                                                       BezierPath p;
                                                       p.moveTo({-1e6f, 5});
                                                       p.lineTo({1e6f, 6});
                                                       const float dash[] = {0.01f, 0.01f};
                                                       p.setLineDash(dash, 0);
                                                       return p;
                                                   })},
                                         std::pair{"NaNDash", std::function([] {
                                                       BezierPath p;
                                                       p.moveTo({0, 5});
                                                       p.lineTo({30, 6});
                                                       const float dash[] = {kNaN, 1};
                                                       p.setLineDash(dash, kNaN);
                                                       return p;
                                                   })},
                                         std::pair{"Empty", std::function([] { return BezierPath{}; })},
                                         std::pair{"LoneMove", std::function([] {
                                                       BezierPath p;
                                                       p.moveTo({4, 4});
                                                       return p;
                                                   })}),
                         [](const auto& row) { return std::string(row.param.first); });

TEST(Coverage, AShapeFarLargerThanTheBitmapFillsIt)
{
    for (const float far : {1e5f, 1e6f, 1e7f, 1e8f, 1e20f}) {
        Mask mask(16, 16);
        fillPathInMask(mask.view(), BezierPath::withRect(makeRect(-far, -far, 2 * far, 2 * far)), 255);
        EXPECT_EQ(mask.at(0, 0), 255) << far;
        EXPECT_EQ(mask.at(15, 15), 255) << far;
        Mask diagonal(16, 16);
        BezierPath half;
        half.moveTo({-far, -far});
        half.lineTo({far, far});
        half.lineTo({-far, far});
        half.closePath();
        fillPathInMask(diagonal.view(), half, 255);
        EXPECT_EQ(diagonal.at(12, 3), 0) << far;
        EXPECT_EQ(diagonal.at(3, 12), 255) << far;
        EXPECT_NEAR(diagonal.at(7, 7), 128, 2) << far;
    }
}

// ---- strokes -------------------------------------------------------------------------------------------------------

TEST(Stroke, AUnitLineOnHalvesFillsOneRowOfPixels)
{
    Mask mask(10, 5);
    BezierPath line;
    line.moveTo({2, 2.5f});
    line.lineTo({8, 2.5f});
    strokePathInMask(mask.view(), line, 255);
    for (int y = 0; y < 5; ++y)
        for (int x = 0; x < 10; ++x) EXPECT_EQ(mask.at(x, y), y == 2 && x >= 2 && x < 8 ? 255 : 0) << x << "," << y;
}

TEST(Stroke, OnWholeNumbersItSpreadsOverTwoRows)
{
    Mask mask(10, 5);
    BezierPath line;
    line.moveTo({2, 2});
    line.lineTo({8, 2});
    strokePathInMask(mask.view(), line, 255);
    EXPECT_EQ(mask.at(5, 1), 128);
    EXPECT_EQ(mask.at(5, 2), 128);
}

TEST(Stroke, CapsReachAsFarAsTheyShould)
{
    for (const auto& [cap, before] : {std::pair{LineCap::Butt, 0}, {LineCap::Square, 255}}) {
        Mask mask(20, 8);
        BezierPath line;
        line.moveTo({6, 4});
        line.lineTo({14, 4});
        line.setLineWidth(4);
        line.setLineCap(cap);
        strokePathInMask(mask.view(), line, 255);
        EXPECT_EQ(mask.at(4, 2), before);
        EXPECT_EQ(mask.at(3, 4), 0);
        EXPECT_EQ(mask.at(6, 2), 255);
    }
}

TEST(Stroke, ADotIsDrawnWhereALineHasNoLength)
{
    for (const auto& [cap, area] :
         {std::pair{LineCap::Round, std::numbers::pi * 25}, {LineCap::Square, 100.0}, {LineCap::Butt, 0.0}}) {
        for (const bool close : {false, true}) {
            Mask mask(30, 30);
            BezierPath dot;
            dot.moveTo({15, 15});
            dot.lineTo({15, 15});
            if (close) dot.closePath();
            dot.setLineWidth(10);
            dot.setLineCap(cap);
            strokePathInMask(mask.view(), dot, 255);
            double sum = 0;
            for (const std::uint8_t b : mask.bytes) sum += b;
            EXPECT_NEAR(sum / 255, area, 0.5);
        }
    }
}

TEST(Stroke, DashesAlternateAndKeepTheirPhase)
{
    for (const float phase : {0.0f, 2.0f, 12.0f, -8.0f}) {
        Mask mask(40, 3);
        BezierPath line;
        line.moveTo({0, 1.5f});
        line.lineTo({40, 1.5f});
        const float dash[] = {5, 5};
        line.setLineDash(dash, phase);
        strokePathInMask(mask.view(), line, 255);
        for (int x = 0; x < 40; ++x) {
            const int inPeriod = (x + int(phase) + 20) % 10;
            EXPECT_EQ(mask.at(x, 1), inPeriod < 5 ? 255 : 0) << "phase " << phase << " x " << x;
        }
    }
}

TEST(Stroke, ADashOfNothingIsASolidLine)
{
    Mask mask(40, 3);
    BezierPath line;
    line.moveTo({0, 1.5f});
    line.lineTo({40, 1.5f});
    const float dash[] = {0, 0};
    line.setLineDash(dash, 0);
    strokePathInMask(mask.view(), line, 255);
    for (int x = 0; x < 40; ++x) EXPECT_EQ(mask.at(x, 1), 255);
}

TEST(Stroke, NeverLeavesItsBounds)
{
    std::mt19937 random(3);
    std::uniform_real_distribution<float> coordinate(20, 80);
    for (int round = 0; round < 60; ++round) {
        BezierPath path;
        path.moveTo({coordinate(random), coordinate(random)});
        for (int i = 0; i < 4; ++i) path.lineTo({coordinate(random), coordinate(random)});
        path.setLineWidth(1 + float(random() % 9));
        path.setLineJoin(LineJoin(random() % 3));
        path.setLineCap(LineCap(random() % 3));
        path.setMiterLimit(4);
        Mask mask(100, 100);
        strokePathInMask(mask.view(), path, 255);
        const PixelBox box = pixelBoxOf(strokeBounds(path), 100, 100);
        for (int y = 0; y < 100; ++y)
            for (int x = 0; x < 100; ++x) ASSERT_TRUE(box.contains(x, y) || mask.at(x, y) == 0) << x << "," << y;
    }
}

// ---- colours and clips ---------------------------------------------------------------------------------------------

TEST(Context, AHalfTransparentColourIsMixedWithRounding)
{
    const auto canvas = picture(2, 1, word(255, 200, 100, 50));
    BitmapContext context(canvas->view());
    context.setColor({1, 0, 0, 0.5f});
    context.fill(BezierPath::withRect(makeRect(0, 0, 1, 1)));
    EXPECT_EQ(canvas->view().row(0)[0], word(255, int(std::lround(128 + 200 * 127 / 255.0)),
                                             int(std::lround(100 * 127 / 255.0)), int(std::lround(50 * 127 / 255.0))));
    EXPECT_EQ(canvas->view().row(0)[1], word(255, 200, 100, 50));
}

TEST(Context, CopyingAClearColourErases)
{
    const auto canvas = picture(4, 4, word(255, 9, 8, 7));
    BitmapContext context(canvas->view());
    context.setColor(kClear);
    context.fillRect(makeRect(1, 1, 2, 2));
    EXPECT_EQ(canvas->view().row(1)[1], 0u);
    EXPECT_EQ(canvas->view().row(0)[0], word(255, 9, 8, 7));
    context.fillRect(makeRect(0, 0, 1, 1),
                     CompositingOperation::SourceOver); // nothing over something is that something
    EXPECT_EQ(canvas->view().row(0)[0], word(255, 9, 8, 7));
}

TEST(Context, ClearErasesWhateverTheColour)
{
    const auto canvas = picture(4, 4, word(255, 9, 8, 7));
    BitmapContext context(canvas->view());
    context.setColor(kWhite);
    context.fillRect(makeRect(0, 0, 2, 4), CompositingOperation::Clear);
    EXPECT_EQ(canvas->view().row(3)[1], 0u);
    EXPECT_EQ(canvas->view().row(3)[2], word(255, 9, 8, 7));
}

TEST(Context, ClipsIntersect)
{
    const auto canvas = picture(20, 20);
    BitmapContext context(canvas->view());
    context.setColor(kWhite);
    context.addClip(BezierPath::withRect(makeRect(2, 2, 10, 10)));
    context.addClip(BezierPath::withOvalInRect(makeRect(6, 6, 12, 12)));
    context.addClip(BezierPath::withOvalInRect(makeRect(5, 5, 12, 12)));
    context.fillRect(makeRect(0, 0, 20, 20));
    Mask a(20, 20), b(20, 20);
    fillPathInMask(a.view(), BezierPath::withOvalInRect(makeRect(6, 6, 12, 12)), 255);
    fillPathInMask(b.view(), BezierPath::withOvalInRect(makeRect(5, 5, 12, 12)), 255);
    for (int y = 0; y < 20; ++y)
        for (int x = 0; x < 20; ++x) {
            const bool inside = x >= 2 && x < 12 && y >= 2 && y < 12;
            ASSERT_EQ(channelOf(canvas->view().row(y)[x], 0),
                      inside ? int(std::lround(a.at(x, y) * b.at(x, y) / 255.0)) : 0);
        }
}

TEST(Context, RestoringBringsTheEarlierClipBack)
{
    const auto canvas = picture(8, 8);
    BitmapContext context(canvas->view());
    context.setColor(kWhite);
    context.saveGraphicsState();
    context.addClip(makeRect(0, 0, 2, 2));
    AffineTransform shift;
    shift.translate(1, 1);
    context.concat(shift);
    context.setColor({1, 0, 0, 1});
    context.fillRect(makeRect(0, 0, 8, 8));
    context.restoreGraphicsState();
    context.restoreGraphicsState(); // without a saved state nothing happens
    EXPECT_EQ(canvas->view().row(0)[0], 0u);
    EXPECT_EQ(canvas->view().row(1)[1], word(255, 255, 0, 0));
    EXPECT_EQ(canvas->view().row(2)[2], 0u);
    context.fillRect(makeRect(5, 5, 1, 1));
    EXPECT_EQ(canvas->view().row(5)[5], word(255, 255, 255, 255));
}

TEST(Context, AnEmptyClipPathStopsEverything)
{
    const auto canvas = picture(8, 8);
    BitmapContext context(canvas->view());
    context.setColor(kWhite);
    context.addClip(BezierPath{});
    context.fillRect(makeRect(0, 0, 8, 8));
    context.fill(BezierPath::withOvalInRect(makeRect(0, 0, 8, 8)));
    EXPECT_TRUE(samePixels(canvas->view(), picture(8, 8)->view()));
}

TEST(Context, MasksLetThroughTheirComplement)
{
    const auto canvas = picture(600, 4);
    Mask mask(600, 4);
    std::mt19937 random(4);
    for (int i = 0; i < 2400; ++i)
        mask.bytes[std::size_t(i)] = i % 600 < 256 ? (i < 600 ? 255 : 0) : std::uint8_t(random());
    for (const bool overOval : {false, true}) {
        BitmapContext context(canvas->view());
        context.setColor(kWhite);
        context.fillRect(makeRect(0, 0, 600, 4), CompositingOperation::Clear);
        context.clipToMask(mask.view());
        Mask shape(600, 4, 255);
        if (overOval) {
            shape = Mask(600, 4);
            fillPathInMask(shape.view(), BezierPath::withOvalInRect(makeRect(1, -3, 590, 9)), 255);
            context.fill(BezierPath::withOvalInRect(makeRect(1, -3, 590, 9)));
        } else {
            context.fillRect(makeRect(0, 0, 600, 4));
        }
        for (int y = 0; y < 4; ++y)
            for (int x = 0; x < 600; ++x)
                ASSERT_EQ(channelOf(canvas->view().row(y)[x], 0),
                          int(std::lround(shape.at(x, y) * (255 - mask.at(x, y)) / 255.0)))
                    << x << "," << y;
    }
}

TEST(Context, AMaskIsReadWhenDrawingHappens)
{
    const auto canvas = picture(4, 1);
    Mask mask(4, 1, 255);
    BitmapContext context(canvas->view());
    context.clipToMask(mask.view());
    mask.bytes[2] = 0;
    context.fillRect(makeRect(0, 0, 4, 1));
    EXPECT_EQ(canvas->view().row(0)[1], 0u);
    EXPECT_EQ(canvas->view().row(0)[2], word(255, 0, 0, 0));
}

TEST(Context, FramesAreOnePixelWideInsideTheRectangle)
{
    const auto canvas = picture(8, 8);
    BitmapContext context(canvas->view());
    context.setColor(kWhite);
    context.frameRect(makeRect(1, 1, 5, 4));
    for (int y = 0; y < 8; ++y)
        for (int x = 0; x < 8; ++x) {
            const bool inside = x >= 1 && x < 6 && y >= 1 && y < 5, core = x >= 2 && x < 5 && y >= 2 && y < 4;
            EXPECT_EQ(canvas->view().row(y)[x] != 0, inside && !core) << x << "," << y;
        }
}

TEST(Context, SpareBytesOfTheRowsStayAsTheyAre)
{
    const auto canvas = picture(16, 3);
    for (int y = 0; y < 3; ++y) std::fill_n(canvas->view().rowData(y) + 64, 64, std::uint8_t(0xEE));
    BitmapContext context(canvas->view());
    context.setColor(kWhite);
    context.fillRect(makeRect(-5, -5, 50, 50));
    context.fill(BezierPath::withOvalInRect(makeRect(-5, -5, 50, 50)));
    context.drawImageAt(noise(40, 40, 1)->view(), {-3, -3});
    context.drawImage(noise(40, 40, 1)->view(), makeRect(-3, -3, 33, 44), makeRect(0, 0, 40, 40));
    for (int y = 0; y < 3; ++y)
        for (int i = 64; i < 128; ++i) ASSERT_EQ(canvas->view().rowData(y)[i], 0xEE);
}

TEST(Context, AnEmptyBitmapTakesAnything)
{
    BitmapContext context(BitmapView{});
    context.fillRect(makeRect(0, 0, 5, 5));
    context.stroke(BezierPath::withRect(makeRect(0, 0, 5, 5)));
    context.drawImageAt(noise(4, 4, 1)->view(), {0, 0});
}
