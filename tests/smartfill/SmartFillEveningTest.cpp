// SPDX-License-Identifier: GPL-3.0-or-later
/// Patches of a fill are brought to what stands around them; edges and what lies outside stay.
#include "smartfill/SmartFillEvening.h"
#include "smartfill/SmartFillPictures.h"
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <gtest/gtest.h>
#include <random>
#include <vector>

using namespace zp;
using namespace zp::testpictures;

namespace
{

constexpr int kWidth = 200, kHeight = 150;

/// With a hole of which the fill must learn nothing. @p level gives the alpha and three colours of a pixel.
template <class Level>
SmartFillPicture pictureOf(PixelBox hole, Level level)
{
    SmartFillPicture picture;
    picture.width = kWidth, picture.height = kHeight;
    for (int y = 0; y < kHeight; ++y)
        for (int x = 0; x < kWidth; ++x) {
            const bool inside = hole.contains(x, y);
            const std::array<unsigned, 4> c = level(x, y);
            picture.pixels.push_back(inside ? argb(c[0], c[0], 0, 0) : argb(c[0], c[1], c[2], c[3]));
            picture.mask.push_back(inside ? 255 : 0);
        }
    return picture;
}

std::array<unsigned, 4> gradient(int x, int y)
{
    return {255, unsigned(20 + x), unsigned(40 + y), unsigned(200 - (x + y) / 3)};
}

/// The root of the mean square, over hole and colours.
template <class Level>
double wrongBy(const SmartFillPicture& picture, PixelBox hole, Level level)
{
    double sum = 0;
    for (int y = hole.y0; y < hole.y1; ++y)
        for (int x = hole.x0; x < hole.x1; ++x)
            for (int c = 1; c < 4; ++c) {
                const int value = int(picture.pixels[std::size_t(y * kWidth + x)] >> (8 * c) & 255);
                sum += std::pow(value - int(level(x, y)[std::size_t(c)]), 2);
            }
    return std::sqrt(sum / (3.0 * hole.width() * hole.height()));
}

struct Place {
    const char* name;
    PixelBox hole;
};
class SmartFillEveningPlaces : public testing::TestWithParam<Place>
{
};

TEST_P(SmartFillEveningPlaces, BringsAGradientBack)
{
    const PixelBox hole = GetParam().hole;
    for (const std::uint64_t seed : {1, 2, 3}) {
        SmartFillPicture plain = pictureOf(hole, gradient), evened = plain;
        EXPECT_EQ(fillSmartFillPicture(plain, seed, {}), SmartFillStatus::Filled);
        EXPECT_EQ(fillEvenly(evened, seed, {}), SmartFillStatus::Filled);
        EXPECT_LT(wrongBy(evened, hole, gradient), 0.6 * wrongBy(plain, hole, gradient)) << seed;
        for (std::size_t i = 0; i < plain.pixels.size(); ++i)
            if (!plain.mask[i]) {
                ASSERT_EQ(evened.pixels[i], plain.pixels[i]) << i;
            }
    }
}

INSTANTIATE_TEST_SUITE_P(Places, SmartFillEveningPlaces,
                         testing::Values(Place{"Middle", {70, 50, 130, 100}}, Place{"Border", {0, 40, 60, 90}},
                                         Place{"Corner", {150, 110, 200, 150}}, Place{"Thin", {60, 70, 140, 73}},
                                         Place{"Stripe", {60, 0, 90, 150}}),
                         [](const auto& test) { return std::string(test.param.name); });

TEST(SmartFillEvening, ChangesNothingWherePatchesFit)
{
    const PixelBox hole{70, 50, 130, 100};
    const auto flat = [](int, int) { return std::array<unsigned, 4>{200, 100, 90, 80}; };
    SmartFillPicture plain = pictureOf(hole, flat), evened = plain;
    fillSmartFillPicture(plain, 1, {});
    fillEvenly(evened, 1, {});
    EXPECT_EQ(evened.pixels, plain.pixels);
}

TEST(SmartFillEvening, LeavesEdgesOfThings)
{
    const PixelBox hole{70, 50, 130, 100};
    const auto edge = [](int x, int) {
        const unsigned value = x < 100 ? 40 : 210;
        return std::array<unsigned, 4>{255, value, value, value};
    };
    SmartFillPicture picture = pictureOf(hole, edge);
    fillEvenly(picture, 1, {});
    int between = 0;
    for (int y = hole.y0; y < hole.y1; ++y)
        for (int x = hole.x0; x < hole.x1; ++x) {
            const int value = int(picture.pixels[std::size_t(y * kWidth + x)] >> 8 & 255);
            between += value > 60 && value < 190;
        }
    EXPECT_LT(between, 30);
}

TEST(SmartFillEvening, KeepsColoursBelowTheirAlpha)
{
    const PixelBox hole{70, 50, 130, 100};
    std::mt19937 random(3);
    const auto translucent = [&random](int x, int) {
        const auto alpha = unsigned(60 + x / 2);
        return std::array<unsigned, 4>{alpha, alpha - unsigned(random() % 3), unsigned(random() % 3), alpha / 2};
    };
    SmartFillPicture plain = pictureOf(hole, translucent), evened = plain;
    fillSmartFillPicture(plain, 1, {});
    fillEvenly(evened, 1, {});
    for (std::size_t i = 0; i < plain.pixels.size(); ++i) {
        const std::uint32_t word = evened.pixels[i];
        ASSERT_EQ(word & 255, plain.pixels[i] & 255);
        for (int c = 1; c < 4; ++c) ASSERT_LE(word >> (8 * c) & 255, word & 255);
    }
}

TEST(SmartFillEvening, TellsHowFarItIsAndCanBeCancelled)
{
    const PixelBox hole{70, 50, 130, 100};
    const SmartFillPicture before = pictureOf(hole, gradient);
    std::vector<float> told;
    SmartFillHooks hooks;
    hooks.progress = [&told](float progress) { told.push_back(progress); };
    SmartFillPicture picture = before;
    EXPECT_EQ(fillEvenly(picture, 1, hooks), SmartFillStatus::Filled);
    EXPECT_TRUE(std::ranges::is_sorted(told));
    EXPECT_EQ(told.front(), 0);
    EXPECT_EQ(told.back(), 1);
    const auto filled = float(std::ranges::count_if(told, [](float p) { return p <= 0.75f; }));
    EXPECT_GT(filled, 3);
    for (const float at : {0.2f, 0.75f, 0.9f}) {
        told.clear();
        hooks.cancelled = [&told, at] { return !told.empty() && told.back() >= at; };
        picture = before;
        EXPECT_EQ(fillEvenly(picture, 1, hooks), SmartFillStatus::Cancelled) << at;
        EXPECT_EQ(picture.pixels, before.pixels) << at;
    }
}

TEST(SmartFillEvening, HasNothingToDoWithoutHoleOrSource)
{
    SmartFillPicture whole = pictureOf({}, gradient), before = whole;
    EXPECT_EQ(fillEvenly(whole, 1, {}), SmartFillStatus::Filled);
    EXPECT_EQ(whole.pixels, before.pixels);
    SmartFillPicture nothing = pictureOf({0, 0, kWidth, kHeight}, gradient);
    before = nothing;
    EXPECT_EQ(fillEvenly(nothing, 1, {}), SmartFillStatus::NoSource);
    EXPECT_EQ(nothing.pixels, before.pixels);
}

} // namespace
