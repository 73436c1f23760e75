// SPDX-License-Identifier: GPL-3.0-or-later
/// Images into images: exact where nothing is resampled, averaged when reduced, smooth when enlarged or turned.
#include "base/BitmapRep.h"
#include "codecs/TestPictures.h"
#include "drawing/BitmapContext.h"
#include "drawing/ImageDrawingBlend.h"
#include "drawing/ImageDrawingSampler.h"
#include "support/EveryTarget.h"
#include <array>
#include <cmath>
#include <functional>
#include <gtest/gtest.h>
#include <limits>
#include <random>

using namespace zp;
using zp::test::channelOf;
using zp::test::isPremultiplied;
using zp::test::noise;
using zp::test::picture;
using zp::test::word;

namespace
{
/// Slow waves: what interpolation must carry over well.
std::shared_ptr<BitmapRep> waves(int width, int height)
{
    auto rep = BitmapRep::create(width, height);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            rep->view().row(y)[x] =
                word(255, int(127.5 + 120 * std::sin((x + 0.5) * 0.15)), int(127.5 + 120 * std::sin((y + 0.5) * 0.11)),
                     int(127.5 + 120 * std::sin((x + y + 1) * 0.07)));
    return rep;
}

/// One channel of the operations, in real numbers.
double composed(CompositingOperation op, double s, double sa, double d, double da, double cover)
{
    double result = 0;
    switch (op) {
    case CompositingOperation::Clear:
        result = 0;
        break;
    case CompositingOperation::Copy:
        result = s;
        break;
    case CompositingOperation::SourceOver:
        result = s + d * (1 - sa);
        break;
    case CompositingOperation::SourceIn:
        result = s * da;
        break;
    }
    return d + (result - d) * cover;
}
} // namespace

class Operation : public testing::TestWithParam<CompositingOperation>
{
};

TEST_P(Operation, MatchesItsFormulaToWithinRounding)
{
    const auto from = noise(256, 64, 7), to = noise(256, 64, 8);
    std::mt19937 random(9);
    for (int row = 0; row < 64; ++row) {
        std::vector<std::uint8_t> cover(256);
        for (auto& c : cover) c = std::uint8_t(random() % 4 ? random() : 255 * (random() % 2));
        const unsigned opacity = row % 3 ? 255 : random() % 256;
        const bool covered = row % 2, oneWord = row % 5 == 0;
        const std::uint32_t single = from->view().row(row)[17];
        std::vector<std::uint32_t> result(to->view().row(row), to->view().row(row) + 256);
        blendRun(
            {result.data(), oneWord ? nullptr : from->view().row(row), single, covered ? cover.data() : nullptr, 256},
            GetParam(), opacity);
        for (int x = 0; x < 256; ++x) {
            const std::uint32_t s = oneWord ? single : from->view().row(row)[x], d = to->view().row(row)[x];
            for (int c = 0; c < 4; ++c) {
                const double o = opacity / 255.0;
                const double expected = 255 * composed(GetParam(), channelOf(s, c) * o / 255, channelOf(s, 0) * o / 255,
                                                       channelOf(d, c) / 255.0, channelOf(d, 0) / 255.0,
                                                       covered ? cover[std::size_t(x)] / 255.0 : 1);
                ASSERT_NEAR(channelOf(result[std::size_t(x)], c), expected, 1.6)
                    << "row " << row << " x " << x << " channel " << c;
                ASSERT_LE(channelOf(result[std::size_t(x)], c), channelOf(result[std::size_t(x)], 0));
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(
    Blend, Operation,
    testing::Values(CompositingOperation::Clear, CompositingOperation::Copy, CompositingOperation::SourceOver,
                    CompositingOperation::SourceIn),
    [](const auto& row) {
        return std::string(std::array{"Clear", "Copy", "SourceOver", "SourceIn"}[std::size_t(row.param)]);
    });

TEST(Blend, DrawingAnOpaquePixelOverItselfChangesNothingUnderAnyCover)
{
    for (int v = 0; v < 256; ++v)
        for (int c = 0; c < 256; ++c) {
            std::uint32_t d = word(255, v, 255 - v, v / 2);
            const std::uint32_t s = d;
            const auto cover = std::uint8_t(c);
            blendRun({&d, &s, 0, &cover, 1}, CompositingOperation::SourceOver, 255);
            ASSERT_EQ(d, s) << v << " " << c;
            blendRun({&d, &s, 0, nullptr, 1}, CompositingOperation::SourceOver, unsigned(c));
            ASSERT_EQ(d, s) << v << " " << c;
        }
}

TEST(Blend, FullCoverIsTheSameAsNoCover)
{
    const auto from = noise(300, 4, 1), to = noise(300, 4, 2);
    const std::vector<std::uint8_t> full(300, 255);
    for (int op = 0; op < 4; ++op)
        for (const unsigned opacity : {255u, 77u}) {
            std::vector<std::uint32_t> a(to->view().row(0), to->view().row(0) + 300), b = a;
            blendRun({a.data(), from->view().row(0), 0, nullptr, 300}, CompositingOperation(op), opacity);
            blendRun({b.data(), from->view().row(0), 0, full.data(), 300}, CompositingOperation(op), opacity);
            EXPECT_EQ(a, b) << op << " " << opacity;
        }
}

// ---- exactness -----------------------------------------------------------------------------------------------------

TEST(ImageDrawing, AtUnitScaleCopyingChangesNoByte)
{
    const auto image = noise(50, 40, 3);
    const auto canvas = noise(80, 70, 4), before = noise(80, 70, 4);
    BitmapContext context(canvas->view());
    context.drawImageAt(image->view(), {7, 9}, CompositingOperation::Copy);
    for (int y = 0; y < 70; ++y)
        for (int x = 0; x < 80; ++x) {
            const bool inside = x >= 7 && x < 57 && y >= 9 && y < 49;
            ASSERT_EQ(canvas->view().row(y)[x], inside ? image->view().row(y - 9)[x - 7] : before->view().row(y)[x]);
        }
}

TEST(ImageDrawing, AtUnitScaleOpaquePixelsReplaceAndEmptyOnesLeave)
{
    const auto image = noise(200, 40, 5);
    const auto canvas = noise(200, 40, 6), before = noise(200, 40, 6);
    BitmapContext context(canvas->view());
    context.drawImageAt(image->view(), {0, 0});
    for (int y = 0; y < 40; ++y)
        for (int x = 0; x < 200; ++x) {
            const std::uint32_t s = image->view().row(y)[x];
            const bool opaque = (s & 255) == 255;
            if (!opaque && s != 0) continue;
            ASSERT_EQ(canvas->view().row(y)[x], opaque ? s : before->view().row(y)[x]);
        }
    EXPECT_TRUE(isPremultiplied(canvas->view()));
}

TEST(ImageDrawing, ShiftsAreCutToTheBitmap)
{
    const auto image = noise(20, 20, 7, true);
    for (const float x : {-100.f, -20.f, -19.f, -7.f, 0.f, 9.f, 15.f, 1e9f, -1e9f, 3e38f})
        for (const float y : {-20.f, -3.f, 12.f, 400.f}) {
            const auto canvas = picture(16, 13);
            BitmapContext context(canvas->view());
            context.drawImageAt(image->view(), {x, y});
            for (int cy = 0; cy < 13; ++cy)
                for (int cx = 0; cx < 16; ++cx) {
                    const float sx = float(cx) - x, sy = float(cy) - y;
                    const bool inside = sx >= 0 && sx < 20 && sy >= 0 && sy < 20;
                    ASSERT_EQ(canvas->view().row(cy)[cx], inside ? image->view().row(int(sy))[int(sx)] : 0u);
                }
        }
}

TEST(ImageDrawing, RightAnglesAndMirrorsAreExact)
{
    const auto image = noise(23, 17, 8);
    struct Turn {
        AffineTransform map;
        std::function<PixelPoint(int, int)> back;
    };
    const Turn turns[] = {
        {{0, 1, -1, 0, 17, 0},
         [](int x, int y) {
             return PixelPoint{y, 16 - x};
         }},
        {{-1, 0, 0, -1, 23, 17},
         [](int x, int y) {
             return PixelPoint{22 - x, 16 - y};
         }},
        {{0, -1, 1, 0, 0, 23},
         [](int x, int y) {
             return PixelPoint{22 - y, x};
         }},
        {{-1, 0, 0, 1, 23, 0},
         [](int x, int y) {
             return PixelPoint{22 - x, y};
         }},
    };
    for (const Interpolation interpolation : {Interpolation::Default, Interpolation::None})
        for (const Turn& turn : turns) {
            const bool upright = turn.map.m11 != 0;
            const int width = upright ? 23 : 17, height = upright ? 17 : 23;
            const auto canvas = picture(width, height);
            BitmapContext context(canvas->view());
            context.setInterpolation(interpolation);
            context.concat(turn.map);
            context.drawImageAt(image->view(), {0, 0}, CompositingOperation::Copy);
            for (int y = 0; y < height; ++y)
                for (int x = 0; x < width; ++x) {
                    const PixelPoint p = turn.back(x, y);
                    ASSERT_EQ(canvas->view().row(y)[x], image->view().row(p.y)[p.x]) << x << "," << y;
                }
        }
}

TEST(ImageDrawing, ReductionByWholeNumbersIsTheAverage)
{
    const auto image = noise(60, 40, 9);
    for (const int by : {2, 4, 5}) {
        const auto canvas = picture(60 / by, 40 / by);
        BitmapContext context(canvas->view());
        context.drawImage(image->view(), makeRect(0, 0, 60.f / float(by), 40.f / float(by)), makeRect(0, 0, 60, 40));
        for (int y = 0; y < 40 / by; ++y)
            for (int x = 0; x < 60 / by; ++x)
                for (int c = 0; c < 4; ++c) {
                    int sum = 0;
                    for (int v = 0; v < by; ++v)
                        for (int u = 0; u < by; ++u) sum += channelOf(image->view().row(y * by + v)[x * by + u], c);
                    ASSERT_NEAR(channelOf(canvas->view().row(y)[x], c), double(sum) / (by * by), 0.51);
                }
    }
}

TEST(ImageDrawing, ReductionByAnyNumberWeighsByArea)
{
    const auto image = noise(97, 61, 10, true);
    const auto canvas = picture(37, 23);
    BitmapContext context(canvas->view());
    context.drawImage(image->view(), makeRect(0, 0, 37, 23), makeRect(0, 0, 97, 61));
    const double sx = 97.0 / 37, sy = 61.0 / 23;
    for (int y = 0; y < 23; ++y)
        for (int x = 0; x < 37; ++x)
            for (int c = 1; c < 4; ++c) {
                double sum = 0;
                for (int v = int(y * sy); v < std::min(61, int(std::ceil((y + 1) * sy))); ++v)
                    for (int u = int(x * sx); u < std::min(97, int(std::ceil((x + 1) * sx))); ++u) {
                        const double w = std::min(u + 1.0, (x + 1) * sx) - std::max(double(u), x * sx);
                        const double h = std::min(v + 1.0, (y + 1) * sy) - std::max(double(v), y * sy);
                        sum += w * h * channelOf(image->view().row(v)[u], c);
                    }
                ASSERT_NEAR(channelOf(canvas->view().row(y)[x], c), sum / (sx * sy), 0.6) << x << "," << y;
            }
}

class FlatColour : public testing::TestWithParam<double>
{
};

TEST_P(FlatColour, StaysThatColourWhateverTheMap)
{
    for (const std::uint32_t colour :
         {word(255, 255, 255, 255), word(255, 3, 77, 254), word(100, 100, 50, 1), word(1, 1, 0, 1)}) {
        const auto image = picture(64, 48, colour);
        for (const double degrees : {0.0, 7.0, 45.0, 90.0, 133.0}) {
            const auto canvas = picture(300, 300);
            BitmapContext context(canvas->view());
            AffineTransform map;
            map.translate(150, 150);
            map.rotateByDegrees(degrees);
            map.scale(GetParam(), GetParam());
            map.translate(-32, -24);
            context.concat(map);
            context.drawImageAt(image->view(), {0, 0}, CompositingOperation::Copy);
            const AffineTransform back = map.inverted();
            for (int y = 0; y < 300; ++y)
                for (int x = 0; x < 300; ++x) {
                    const Point p = back.apply(Point{float(x) + 0.5f, float(y) + 0.5f});
                    const float margin = float(0.8 / GetParam());
                    const bool inside = p.x > margin && p.x < 64 - margin && p.y > margin && p.y < 48 - margin;
                    const bool outside = p.x < -margin || p.x > 64 + margin || p.y < -margin || p.y > 48 + margin;
                    if (!inside && !outside) continue;
                    ASSERT_EQ(canvas->view().row(y)[x], inside ? colour : 0u) << x << "," << y << " at " << degrees;
                }
            EXPECT_TRUE(isPremultiplied(canvas->view()));
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Scales, FlatColour, testing::Values(0.05, 0.3, 0.5, 0.93, 1.0, 1.01, 1.7, 4.0));

TEST(ImageDrawing, SmoothPicturesAreCarriedOverSmoothly)
{
    const auto image = waves(200, 200);
    for (const double scale : {0.5, 0.8, 1.0, 1.6, 2.3})
        for (const double degrees : {0.0, 10.0, 37.0, 200.0}) {
            const auto canvas = picture(200, 200);
            BitmapContext context(canvas->view());
            AffineTransform map;
            map.translate(100.3, 99.6);
            map.rotateByDegrees(degrees);
            map.scale(scale, scale);
            map.translate(-100, -100);
            context.concat(map);
            context.drawImageAt(image->view(), {0, 0});
            const AffineTransform back = map.inverted();
            double worst = 0;
            for (int y = 0; y < 200; ++y)
                for (int x = 0; x < 200; ++x) {
                    const Point p = back.apply(Point{float(x) + 0.5f, float(y) + 0.5f});
                    if (p.x < 5 || p.x > 195 || p.y < 5 || p.y > 195) continue;
                    worst = std::max(worst, std::abs(channelOf(canvas->view().row(y)[x], 1) -
                                                     (127.5 + 120 * std::sin(double(p.x) * 0.15))));
                    worst = std::max(worst, std::abs(channelOf(canvas->view().row(y)[x], 2) -
                                                     (127.5 + 120 * std::sin(double(p.y) * 0.11))));
                }
            // Averaging flattens waves a little; a shift by half a pixel would show as 9.
            EXPECT_LT(worst, scale < 0.9 ? 3.2 : 2.5) << scale << " at " << degrees;
        }
}

TEST(ImageDrawing, TheBorderOfATurnedImageIsSoft)
{
    const auto image = picture(40, 40, word(255, 255, 255, 255));
    const auto canvas = picture(80, 80);
    BitmapContext context(canvas->view());
    AffineTransform map;
    map.translate(40, 40);
    map.rotateByDegrees(20);
    map.translate(-20, -20);
    context.concat(map);
    context.drawImageAt(image->view(), {0, 0});
    double area = 0;
    int soft = 0;
    for (int y = 0; y < 80; ++y)
        for (int x = 0; x < 80; ++x) {
            const int a = channelOf(canvas->view().row(y)[x], 0);
            area += a / 255.0;
            soft += a > 0 && a < 255;
        }
    EXPECT_NEAR(area, 1600, 2);
    EXPECT_GT(soft, 120);
}

TEST(ImageDrawing, HalfAPixelAsideGivesHalfTheBorder)
{
    const auto image = picture(4, 4, word(255, 200, 100, 0));
    const auto canvas = picture(8, 8);
    BitmapContext context(canvas->view());
    context.drawImageAt(image->view(), {1.5f, 1});
    EXPECT_EQ(channelOf(canvas->view().row(2)[1], 0), 128);
    EXPECT_EQ(canvas->view().row(2)[3], word(255, 200, 100, 0));
    EXPECT_EQ(channelOf(canvas->view().row(2)[5], 0), 128);
    EXPECT_EQ(canvas->view().row(2)[6], 0u);
}

TEST(ImageDrawing, ExtendedEdgesLeaveTheOutlineToTheClip)
{
    const auto image = picture(40, 40, word(255, 255, 255, 255));
    const auto canvas = picture(80, 80), shape = picture(80, 80);
    AffineTransform map;
    map.translate(40, 40);
    map.rotateByDegrees(20);
    map.scale(1.3, 1.3);
    map.translate(-20, -20);
    for (const auto& [target, asImage] : {std::pair{canvas, true}, {shape, false}}) {
        BitmapContext context(target->view());
        context.concat(map);
        context.setColor(kWhite);
        if (asImage) {
            context.setImageEdgesExtend(true);
            context.addClip(BezierPath::withRect(makeRect(0, 0, 40, 40)));
            context.drawImageAt(image->view(), {0, 0});
        } else {
            context.fill(BezierPath::withRect(makeRect(0, 0, 40, 40)));
        }
    }
    for (int y = 0; y < 80; ++y)
        for (int x = 0; x < 80; ++x) ASSERT_EQ(canvas->view().row(y)[x], shape->view().row(y)[x]) << x << "," << y;
}

TEST(ImageDrawing, NoneTakesTheNearestPixel)
{
    const auto image = noise(10, 10, 11);
    const auto canvas = picture(30, 30);
    BitmapContext context(canvas->view());
    context.setInterpolation(Interpolation::None);
    context.drawImage(image->view(), makeRect(0, 0, 30, 30), makeRect(0, 0, 10, 10), CompositingOperation::Copy);
    for (int y = 0; y < 30; ++y)
        for (int x = 0; x < 30; ++x) ASSERT_EQ(canvas->view().row(y)[x], image->view().row(y / 3)[x / 3]);
    const auto reduced = picture(5, 5);
    BitmapContext small(reduced->view());
    small.setInterpolation(Interpolation::None);
    small.drawImage(image->view(), makeRect(0, 0, 5, 5), makeRect(0, 0, 10, 10), CompositingOperation::Copy);
    for (int y = 0; y < 5; ++y)
        for (int x = 0; x < 5; ++x) ASSERT_EQ(reduced->view().row(y)[x], image->view().row(2 * y + 1)[2 * x + 1]);
}

TEST(ImageDrawing, APartOfAnImageDoesNotBleedInItsSurroundings)
{
    const auto image = picture(30, 30, word(255, 255, 0, 0));
    for (int y = 10; y < 20; ++y) std::fill_n(image->view().row(y) + 10, 10, word(255, 0, 0, 255));
    for (const float size : {5.f, 10.f, 25.f}) {
        const auto canvas = picture(30, 30);
        BitmapContext context(canvas->view());
        context.drawImage(image->view(), makeRect(0, 0, size, size), makeRect(10, 10, 10, 10));
        for (int y = 0; y < int(size); ++y)
            for (int x = 0; x < int(size); ++x) ASSERT_EQ(canvas->view().row(y)[x], word(255, 0, 0, 255));
    }
}

TEST(ImageDrawing, FractionsBeyondTheRangeAreCut)
{
    const auto image = picture(4, 4, word(255, 200, 100, 0));
    for (const auto& [fraction, alpha] : {std::pair{1.0f, 255},
                                          {7.0f, 255},
                                          {0.0f, 0},
                                          {-1.0f, 0},
                                          {0.5f, 128},
                                          {std::numeric_limits<float>::quiet_NaN(), 0}}) {
        const auto canvas = picture(4, 4);
        BitmapContext context(canvas->view());
        context.drawImageAt(image->view(), {0, 0}, CompositingOperation::SourceOver, fraction);
        EXPECT_EQ(channelOf(canvas->view().row(1)[1], 0), alpha) << fraction;
    }
}

TEST(ImageDrawing, SourceInKeepsTheDestinationsShape)
{
    const auto image = picture(4, 1, word(255, 200, 100, 0));
    const auto canvas = picture(4, 1);
    canvas->view().row(0)[1] = word(255, 0, 0, 255);
    canvas->view().row(0)[2] = word(51, 0, 0, 51);
    BitmapContext context(canvas->view());
    context.drawImageAt(image->view(), {0, 0}, CompositingOperation::SourceIn);
    EXPECT_EQ(canvas->view().row(0)[0], 0u);
    EXPECT_EQ(canvas->view().row(0)[1], word(255, 200, 100, 0));
    EXPECT_EQ(canvas->view().row(0)[2], word(51, 40, 20, 0));
}

TEST(ImageDrawing, BrokenMapsDrawNothing)
{
    const auto image = noise(10, 10, 12);
    const float nan = std::numeric_limits<float>::quiet_NaN();
    for (const Rect destination : {makeRect(nan, 0, 5, 5), makeRect(0, 0, nan, 5), makeRect(0, 0, 0, 5),
                                   makeRect(0, 0, -5, 5), makeRect(3e38f, 3e38f, 3e38f, 3e38f)}) {
        const auto canvas = picture(10, 10);
        BitmapContext context(canvas->view());
        context.drawImage(image->view(), destination, makeRect(0, 0, 10, 10));
        for (int y = 0; y < 10; ++y)
            for (int x = 0; x < 10; ++x) ASSERT_EQ(canvas->view().row(y)[x], 0u);
    }
    const auto canvas = picture(10, 10);
    BitmapContext context(canvas->view());
    context.drawImage(image->view(), makeRect(0, 0, 5, 5), makeRect(50, 50, 5, 5));
    context.drawImage(image->view(), makeRect(0, 0, 5, 5), makeRect(nan, 0, 5, 5));
    context.concat({1, 1, 1, 1, 0, 0}); // flattens the plane
    context.drawImageAt(image->view(), {0, 0});
    EXPECT_EQ(canvas->view().row(0)[0], 0u);
}

TEST(ImageDrawing, ExtremeScalesEndAndStayInside)
{
    const auto image = noise(64, 64, 13);
    for (const float size : {1e-3f, 0.4f, 1.f, 2e4f, 1e8f, 1e20f}) {
        const auto canvas = picture(64, 64);
        BitmapContext context(canvas->view());
        context.drawImage(image->view(), makeRect(-size / 3, -size / 3, size, size), makeRect(0, 0, 64, 64));
        AffineTransform turn;
        turn.rotateByDegrees(33);
        context.concat(turn);
        context.drawImage(image->view(), makeRect(-size / 3, -size / 3, size, size), makeRect(0, 0, 64, 64));
        EXPECT_TRUE(isPremultiplied(canvas->view()));
    }
}

TEST(ImageDrawing, APictureInPartsIsTheSameAsWhole)
{
    // What is drawn must not depend on how much of it is asked for: the screen asks for its visible part.
    const auto image = noise(120, 90, 14);
    for (const double scale : {0.37, 0.9, 1.0, 1.9})
        for (const double degrees : {0.0, 25.0}) {
            AffineTransform map;
            map.translate(70.25, 55.5);
            map.rotateByDegrees(degrees);
            map.scale(scale, scale);
            map.translate(-60, -45);
            const auto whole = picture(140, 110), part = picture(40, 30);
            BitmapContext all(whole->view()), some(part->view());
            all.concat(map);
            all.drawImageAt(image->view(), {0, 0});
            AffineTransform shift;
            shift.translate(-51, -40);
            some.concat(shift);
            some.concat(map);
            some.drawImageAt(image->view(), {0, 0});
            int different = 0;
            for (int y = 0; y < 30; ++y)
                for (int x = 0; x < 40; ++x)
                    for (int c = 0; c < 4; ++c) {
                        const int d = std::abs(channelOf(part->view().row(y)[x], c) -
                                               channelOf(whole->view().row(y + 40)[x + 51], c));
                        ASSERT_LE(d, 2) << scale << " at " << degrees;
                        different += d != 0;
                    }
            EXPECT_LT(different, 60) << scale << " at " << degrees; // a position may fall on the other side of a 256th
        }
}

/// a * b / 2^15, rounded half up.
int rounded15(int a, int b) { return (a * b + 0x4000) >> 15; }

/// The curve's shares of the four neighbours at a phase of 256.
std::array<int, 4> curveShares(int phase)
{
    const double t = phase / 256.0;
    const double w[4] = {((-0.5 * t + 1) * t - 0.5) * t, (1.5 * t - 2.5) * t * t + 1, ((-1.5 * t + 2) * t + 0.5) * t,
                         (0.5 * t - 0.5) * t * t};
    std::array<int, 4> shares;
    int rest = 32768;
    for (std::size_t k = 0; k < 4; ++k) rest -= shares[k] = int(std::min(32767L, std::lround(w[k] * 32768)));
    int& largest = shares[phase < 128 ? 1 : 2];
    largest = std::min(32767, largest + rest);
    return shares;
}

TEST(Interpolation, IsTheFixedPointSumOnEveryTarget)
{
    const auto image = noise(70, 50, 15);
    const auto expected = [&](PixelBox part, const SampleLine& line, std::int64_t k) {
        const std::int64_t half = std::int64_t{1} << 23;
        const std::int64_t x = line.x + k * line.dx + half, y = line.y + k * line.dy + half;
        const auto across = curveShares(int(x >> 24 & 255)), down = curveShares(int(y >> 24 & 255));
        std::uint32_t word = 0;
        int alpha = 255;
        for (int channel = 0; channel < 4; ++channel) {
            int sum = 0;
            for (int column = 0; column < 4; ++column) {
                int v = 0;
                for (int row = 0; row < 4; ++row) {
                    const int px = std::clamp(int(x >> 32) - 1 + column, part.x0, part.x1 - 1);
                    const int py = std::clamp(int(y >> 32) - 1 + row, part.y0, part.y1 - 1);
                    v += rounded15(channelOf(image->view().row(py)[px], channel) << 6, down[std::size_t(row)]);
                }
                sum += rounded15(v, across[std::size_t(column)]);
            }
            const int level = std::clamp((sum + 32) >> 6, 0, alpha);
            if (channel == 0) alpha = level;
            word |= std::uint32_t(level) << 8 * channel;
        }
        return word;
    };
    test::onEveryTarget([&] {
        std::mt19937_64 random(16);
        for (int round = 0; round < 200; ++round) {
            const auto number = [&](double low, double high) {
                return std::int64_t((low + (high - low) * double(random() % 100000) / 100000) * 4294967296.0);
            };
            const SampleLine line{number(-20, 80), number(-20, 60), number(-1.5, 1.5), number(-1.5, 1.5)};
            // The second part is smaller than the curve's reach.
            for (const PixelBox part : {image->view().box(), PixelBox{20, 10, 23, 13}}) {
                const int count = 80 + round % 11;
                std::vector<std::uint32_t> got(std::size_t(count) + 1, 0x5A5A5A5A);
                interpolateLine(image->view(), part, line, got.data(), count);
                ASSERT_EQ(got.back(), 0x5A5A5A5Au);
                for (int k = 0; k < count; ++k)
                    ASSERT_EQ(got[std::size_t(k)], expected(part, line, k)) << "round " << round << ", " << k;
            }
        }
    });
}

TEST(Interpolation, OnPixelsItIsTheIdentity)
{
    const auto image = noise(70, 50, 17);
    for (int y = 0; y < 50; ++y) {
        std::vector<std::uint32_t> row(70);
        interpolateLine(image->view(), image->view().box(), {0, std::int64_t{y} << 32, std::int64_t{1} << 32, 0},
                        row.data(), 70);
        for (int x = 0; x < 70; ++x) ASSERT_EQ(row[std::size_t(x)], image->view().row(y)[x]);
    }
}
