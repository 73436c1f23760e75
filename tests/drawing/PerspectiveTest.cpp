// SPDX-License-Identifier: GPL-3.0-or-later
/// Images in perspective: the pixels that the map says, reduced without grain, cut by the clip alone.
#include "codecs/TestPictures.h"
#include "drawing/BitmapContext.h"
#include "drawing/ImageLevels.h"
#include "drawing/PerspectiveSampler.h"
#include "drawing/ScreenRows.h"
#include "support/Decibels.h"
#include "support/EveryTarget.h"
#include "support/KernelCases.h"
#include <gtest/gtest.h>

using namespace zp;
using zp::test::channelOf;
using zp::test::decibels;
using zp::test::isPremultiplied;
using zp::test::noise;
using zp::test::word;

namespace
{

/// Waves of @p period pixels, opaque.
std::shared_ptr<BitmapRep> waves(int width, int height, double period)
{
    auto rep = BitmapRep::create(width, height);
    const double turn = 2 * std::acos(-1.0) / period;
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            rep->view().row(y)[x] =
                word(255, int(127.5 + 100 * std::sin((x + 0.5) * turn)), int(127.5 + 100 * std::sin((y + 0.5) * turn)),
                     int(127.5 + 100 * std::sin((x + y + 1) * turn)));
    return rep;
}

/// What each pixel should be: the mean of @p finer by @p finer exact places inside it.
std::shared_ptr<BitmapRep> exactly(const BitmapRep& image, const ProjectiveTransform& toImage, int width, int height,
                                   int finer)
{
    auto rep = BitmapRep::create(width, height);
    const ConstBitmapView from = image.view();
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            double sum[4] = {};
            for (int i = 0; i < finer * finer; ++i) {
                const CurvePoint at =
                    toImage.apply(CurvePoint{x + (i % finer + 0.5) / finer, y + (i / finer + 0.5) / finer});
                const double u = std::clamp(at.x - 0.5, 0.0, from.width - 1.0);
                const double v = std::clamp(at.y - 0.5, 0.0, from.height - 1.0);
                const int u0 = int(u), v0 = int(v), u1 = std::min(u0 + 1, from.width - 1);
                const int v1 = std::min(v0 + 1, from.height - 1);
                for (int k = 0; k < 4; ++k) {
                    const auto one = [&](int a, int b) { return double(from.pixel(a, b)[k]); };
                    const double top = one(u0, v0) + (one(u1, v0) - one(u0, v0)) * (u - u0);
                    const double bottom = one(u0, v1) + (one(u1, v1) - one(u0, v1)) * (u - u0);
                    sum[k] += top + (bottom - top) * (v - v0);
                }
            }
            for (int k = 0; k < 4; ++k)
                rep->view().pixel(x, y)[k] = std::uint8_t(std::lround(sum[k] / (finer * finer)));
        }
    return rep;
}

TEST(ImageLevels, AreTheMeansOfTheLevelBefore)
{
    const auto image = noise(37, 22, 5);
    const ImageLevels levels(image);
    ASSERT_EQ(levels.count(), 6); // 37 x 22, 19 x 11, 10 x 6, 5 x 3, 3 x 2, 2 x 1
    for (int n = 1; n < levels.count(); ++n) {
        const ConstBitmapView from = levels.level(n - 1), to = levels.level(n);
        ASSERT_EQ(to.width, (from.width + 1) / 2);
        ASSERT_EQ(to.height, (from.height + 1) / 2);
        for (int y = 0; y < to.height; ++y)
            for (int x = 0; x < to.width; ++x)
                for (int k = 0; k < 4; ++k) {
                    int sum = 0;
                    for (int i = 0; i < 4; ++i)
                        sum += from.pixel(std::min(2 * x + i % 2, from.width - 1),
                                          std::min(2 * y + i / 2, from.height - 1))[k];
                    ASSERT_EQ(to.pixel(x, y)[k], (sum + 2) / 4) << n << ": " << x << " " << y;
                }
    }
}

struct View {
    const char* name;
    std::array<CurvePoint, 4> corners; ///< of the image on a picture of 300 by 200
    double period;                     ///< of the image's waves
    double least;                      ///< decibels
};
class Perspective : public testing::TestWithParam<View>
{
};

TEST_P(Perspective, ShowsWhatTheMapSaysEverywhere)
{
    const View& v = GetParam();
    const auto image = waves(400, 300, v.period);
    const auto placement = ProjectiveTransform::ofRect(makeRect(0, 0, 400, 300), v.corners);
    ASSERT_TRUE(placement);
    auto drawn = BitmapRep::create(300, 200);
    BitmapContext context(drawn->view());
    context.drawLevels(ImageLevels(image), *placement);
    const auto expected = exactly(*image, *placement->inverted(), 300, 200, 8);
    // Inside, away from where the image's last pixels go on.
    auto inside = BitmapRep::create(300, 200), there = BitmapRep::create(300, 200);
    BezierPath shape;
    for (const CurvePoint& p : v.corners) {
        const Point at{float(150 + (p.x - 150) * 0.95), float(100 + (p.y - 100) * 0.95)};
        shape.isEmpty() ? shape.moveTo(at) : shape.lineTo(at);
    }
    shape.closePath();
    for (const auto& [from, to] : {std::pair(drawn, inside), {expected, there}}) {
        BitmapContext cut(to->view());
        cut.addClip(shape);
        cut.drawImageAt(std::as_const(*from).view(), {0, 0});
    }
    EXPECT_GT(decibels(inside->view(), there->view()), v.least);
}

INSTANTIATE_TEST_SUITE_P(
    Views, Perspective,
    testing::Values(View{"nearly_straight", {CurvePoint{0, 0}, {300, 5}, {295, 200}, {4, 196}}, 12, 34},
                    View{"enlarged", {CurvePoint{-600, -400}, {900, -350}, {880, 500}, {-500, 620}}, 12, 38},
                    View{"aslant", {CurvePoint{90, 10}, {210, 20}, {300, 190}, {0, 180}}, 24, 34},
                    View{"far_away", {CurvePoint{120, 80}, {170, 85}, {180, 120}, {115, 118}}, 100, 34},
                    View{"turned", {CurvePoint{150, 0}, {300, 100}, {140, 200}, {0, 90}}, 24, 34},
                    View{"mirrored", {CurvePoint{300, 0}, {0, 20}, {10, 200}, {290, 180}}, 12, 34}),
    [](const auto& test) { return std::string(test.param.name); });

TEST(PerspectiveSampler, ReducedNoiseIsGreyNotGrain)
{
    const auto image = noise(1024, 1024, 11);
    const auto placement =
        ProjectiveTransform::ofRect(makeRect(0, 0, 1024, 1024), {CurvePoint{0, 0}, {32, 0}, {31, 32}, {1, 30}});
    auto drawn = BitmapRep::create(32, 32);
    BitmapContext context(drawn->view());
    context.addClip(makeRect(4, 4, 24, 22));
    context.drawLevels(ImageLevels(image), *placement);
    double lowest = 255, highest = 0;
    for (int y = 6; y < 24; ++y)
        for (int x = 6; x < 26; ++x) {
            const double alpha = drawn->view().pixel(x, y)[0];
            lowest = std::min(lowest, alpha), highest = std::max(highest, alpha);
        }
    EXPECT_LT(highest - lowest, 40) << "single pixels of the noise differ by 255";
    EXPECT_EQ(drawn->view().pixel(2, 10)[0], 0) << "outside the clip";
}

TEST(PerspectiveSampler, KeepsColourWithinAlphaAndTheHorizonClear)
{
    const auto image = noise(200, 150, 2);
    const ImageLevels levels(image);
    const auto placement =
        ProjectiveTransform::ofRect(makeRect(0, 0, 200, 150), {CurvePoint{90, 60}, {110, 60}, {200, 150}, {0, 150}});
    auto drawn = BitmapRep::create(200, 150);
    BitmapContext context(drawn->view());
    context.drawLevels(levels, *placement);
    EXPECT_TRUE(isPremultiplied(drawn->view()));
    const PerspectiveSampler sampler(levels, *placement->inverted());
    PerspectiveSampler::Room room;
    const std::uint32_t* row = sampler.generate(-5'000, 0, 200, room);
    for (int x = 0; x < 200; ++x) EXPECT_EQ(row[x], 0u) << "beyond the horizon";
}

TEST(PerspectiveSampler, GivesTheSamePixelsHoweverARowIsCut)
{
    const auto image = waves(300, 200, 15);
    const ImageLevels levels(image);
    const auto back =
        ProjectiveTransform::ofRect(makeRect(0, 0, 300, 200), {CurvePoint{10, 20}, {190, 0}, {200, 150}, {0, 140}})
            ->inverted();
    const PerspectiveSampler sampler(levels, *back);
    PerspectiveSampler::Room whole, part;
    for (int y = 0; y < 150; y += 7) {
        const std::uint32_t* row = sampler.generate(y, 0, 200, whole);
        for (const int x0 : {0, 1, 63, 64, 130})
            for (const int x1 : {x0 + 1, x0 + 17, 200}) {
                const std::uint32_t* piece = sampler.generate(y, x0, x1, part);
                for (int x = x0; x < x1; ++x)
                    for (int k = 0; k < 4; ++k)
                        ASSERT_NEAR(channelOf(piece[x - x0], k), channelOf(row[x], k), 2) << x << " " << y;
            }
    }
}

TEST(BitmapContext, LevelsOfAnUnmovedImageAreTheImage)
{
    const auto image = noise(70, 50, 8);
    for (const auto& [dx, dy] : {std::pair(0, 0), {5, 3}}) {
        auto drawn = BitmapRep::create(70, 50), plain = BitmapRep::create(70, 50);
        AffineTransform shift;
        shift.translate(dx, dy);
        BitmapContext context(drawn->view()), other(plain->view());
        context.addClip(makeRect(float(dx), float(dy), 70, 50));
        context.drawLevels(ImageLevels(image), ProjectiveTransform(shift));
        other.drawImageAt(std::as_const(*image).view(), {float(dx), float(dy)});
        int worst = 0;
        for (int y = 0; y < 50; ++y)
            for (int x = 0; x < 70; ++x)
                for (int k = 0; k < 4; ++k)
                    worst = std::max(worst, std::abs(int(drawn->view().pixel(x, y)[k]) - plain->view().pixel(x, y)[k]));
        EXPECT_LE(worst, 1);
    }
}

TEST(ScreenRows, LayTransparentPixelsOverWhatIsThere)
{
    test::onEveryTarget([] {
        std::mt19937 random(71);
        for (const int count : test::kKernelLengths) {
            const auto pixels = test::extremePixels(random, std::size_t(count));
            std::vector<std::uint32_t> out(std::size_t(count) + 1), before;
            for (std::uint32_t& o : out) o = std::uint32_t(random()) | 0xFF000000u;
            before = out;
            layOnScreen(pixels.data(), out.data(), count);
            ASSERT_EQ(out.back(), before.back());
            for (int i = 0; i < count; ++i) {
                const std::uint32_t p = pixels[std::size_t(i)], o = before[std::size_t(i)], through = 255 - (p & 255);
                const auto under = [&](std::uint32_t v) { return (2 * (v & 255) * through + 255) / 510; };
                const std::uint32_t expected = 0xFF000000u | ((p >> 8 & 255) + under(o >> 16)) << 16 |
                                               ((p >> 16 & 255) + under(o >> 8)) << 8 | ((p >> 24) + under(o));
                ASSERT_EQ(out[std::size_t(i)], expected) << i << " of " << count;
            }
        }
    });
}

} // namespace
