// SPDX-License-Identifier: GPL-3.0-or-later
/// The filters against their formulae, computed in double precision on colour without alpha.
#include "drawing/Filters.h"
#include "base/BitmapRep.h"
#include "drawing/FiltersBlur.h"
#include "support/EveryTarget.h"
#include <array>
#include <cmath>
#include <cstring>
#include <gtest/gtest.h>
#include <numbers>
#include <random>

using namespace zp;

namespace
{

using Pixel = std::array<double, 4>; // alpha, red, green, blue; colour premultiplied; 0 to 255

struct Plane {
    int width = 0, height = 0;
    std::vector<Pixel> pixels;
    Pixel& at(int x, int y) { return pixels[std::size_t(y) * std::size_t(width) + std::size_t(x)]; }
    const Pixel& atEdge(int x, int y) const
    {
        return pixels[std::size_t(std::clamp(y, 0, height - 1)) * std::size_t(width) +
                      std::size_t(std::clamp(x, 0, width - 1))];
    }
};

Plane planeOf(ConstBitmapView view)
{
    Plane plane{view.width, view.height, {}};
    for (int y = 0; y < view.height; ++y)
        for (int x = 0; x < view.width; ++x) {
            const std::uint8_t* p = view.pixel(x, y);
            plane.pixels.push_back({double(p[0]), double(p[1]), double(p[2]), double(p[3])});
        }
    return plane;
}

double luma(double r, double g, double b) { return 0.2126 * r + 0.7152 * g + 0.0722 * b; }

/// Hue turned, then saturation, brightness and contrast, in real numbers from 0 to 1 without alpha; clamped at the end.
void applyColour(Plane& plane, const FilterSettings& s)
{
    for (Pixel& p : plane.pixels) {
        if (p[0] <= 0) continue;
        double v[3] = {p[1] / p[0], p[2] / p[0], p[3] / p[0]};
        // Along the grey axis nothing moves; across it the vector turns.
        const double mean = (v[0] + v[1] + v[2]) / 3;
        const double across[3] = {v[0] - mean, v[1] - mean, v[2] - mean};
        const double n = 1 / std::sqrt(3.0);
        const double cross[3] = {n * (across[2] - across[1]), n * (across[0] - across[2]), n * (across[1] - across[0])};
        for (int c = 0; c < 3; ++c)
            v[c] = mean + across[c] * std::cos(double(s.hueAngle)) + cross[c] * std::sin(double(s.hueAngle));
        const double y = luma(v[0], v[1], v[2]);
        for (int c = 0; c < 3; ++c) {
            v[c] = y + (v[c] - y) * double(s.saturation);
            v[c] += double(s.brightness);
            v[c] = (v[c] - 0.5) * double(s.contrast) + 0.5;
            p[std::size_t(c + 1)] = std::clamp(v[c], 0.0, 1.0) * p[0];
        }
    }
}

Plane gaussian(const Plane& plane, double sigma)
{
    const int radius = int(std::ceil(6 * sigma));
    std::vector<double> weight(std::size_t(radius + 1));
    double sum = 0;
    for (int k = -radius; k <= radius; ++k) sum += std::exp(-0.5 * k * k / (sigma * sigma));
    for (int k = 0; k <= radius; ++k) weight[std::size_t(k)] = std::exp(-0.5 * k * k / (sigma * sigma)) / sum;
    Plane along = plane, across = plane;
    for (int y = 0; y < plane.height; ++y)
        for (int x = 0; x < plane.width; ++x)
            for (std::size_t c = 0; c < 4; ++c) {
                double v = 0;
                for (int k = -radius; k <= radius; ++k)
                    v += weight[std::size_t(std::abs(k))] * plane.atEdge(x + k, y)[c];
                along.at(x, y)[c] = v;
            }
    for (int y = 0; y < plane.height; ++y)
        for (int x = 0; x < plane.width; ++x)
            for (std::size_t c = 0; c < 4; ++c) {
                double v = 0;
                for (int k = -radius; k <= radius; ++k)
                    v += weight[std::size_t(std::abs(k))] * along.atEdge(x, y + k)[c];
                across.at(x, y)[c] = v;
            }
    return across;
}

Plane reference(ConstBitmapView view, const FilterSettings& s)
{
    Plane plane = planeOf(view);
    applyColour(plane, s);
    if (s.unsharpIntensity != 0) {
        const Plane blurred = gaussian(plane, double(s.unsharpRadius));
        for (std::size_t i = 0; i < plane.pixels.size(); ++i) {
            Pixel& p = plane.pixels[i];
            const Pixel& b = blurred.pixels[i];
            if (p[0] <= 0) continue;
            for (std::size_t c = 1; c < 4; ++c) {
                const double own = p[c] / p[0], soft = b[c] / b[0];
                p[c] = std::clamp(own + double(s.unsharpIntensity) * (own - soft), 0.0, 1.0) * p[0];
            }
        }
    }
    if (s.blurRadius > 0) plane = gaussian(plane, double(s.blurRadius));
    return plane;
}

std::shared_ptr<BitmapRep> makePicture(int width, int height, bool opaque, unsigned seed)
{
    auto rep = BitmapRep::create(width, height);
    std::mt19937 random(seed);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            std::uint8_t* p = rep->view().pixel(x, y);
            // Flat areas with hard edges, gradients and noise.
            const int kind = (x / 13 + y / 9) % 4;
            p[0] = opaque ? 255 : kind == 3 ? std::uint8_t(random()) : std::uint8_t((x * 5) % 256);
            for (int c = 1; c < 4; ++c) {
                const int level = kind == 0 ? 255 * (c & 1) : kind == 1 ? (x * c + y) % 256 : int(random() % 256);
                p[c] = std::uint8_t(level * p[0] / 255);
            }
        }
    return rep;
}

std::shared_ptr<BitmapRep> filtered(const BitmapRep& source, const FilterSettings& settings)
{
    auto out = BitmapRep::create(source.pixelsWide(), source.pixelsHigh());
    applyFilters(source.view(), out->view(), settings, source.view().box());
    return out;
}

/// The largest difference from the reference, and whether colour stays within alpha.
double worstDifference(const BitmapRep& result, const Plane& want)
{
    double worst = 0;
    for (int y = 0; y < want.height; ++y)
        for (int x = 0; x < want.width; ++x) {
            const std::uint8_t* p = std::as_const(result).view().pixel(x, y);
            for (std::size_t c = 0; c < 4; ++c) worst = std::max(worst, std::abs(double(p[c]) - want.atEdge(x, y)[c]));
            for (std::size_t c = 1; c < 4; ++c) EXPECT_LE(p[c], p[0]) << x << "," << y;
        }
    return worst;
}

struct Case {
    const char* name;
    FilterSettings settings;
    double slack;
};

class FiltersFormula : public testing::TestWithParam<Case>
{
};

TEST_P(FiltersFormula, OpaquePictures)
{
    const auto picture = makePicture(150, 110, true, 3);
    EXPECT_LE(worstDifference(*filtered(*picture, GetParam().settings),
                              reference(std::as_const(*picture).view(), GetParam().settings)),
              GetParam().slack);
}

TEST_P(FiltersFormula, PicturesWithAlpha)
{
    const auto picture = makePicture(149, 111, false, 4);
    // Premultiplied bytes know a colour of low alpha only to half a byte, and what enhances it enhances that.
    EXPECT_LE(worstDifference(*filtered(*picture, GetParam().settings),
                              reference(std::as_const(*picture).view(), GetParam().settings)),
              GetParam().slack);
}

TEST_P(FiltersFormula, PicturesSmallerThanTheKernel)
{
    for (const auto& [width, height] : {std::pair{1, 1}, {2, 7}, {33, 1}, {1, 40}, {5, 3}}) {
        const auto picture = makePicture(width, height, false, 5);
        EXPECT_LE(worstDifference(*filtered(*picture, GetParam().settings),
                                  reference(std::as_const(*picture).view(), GetParam().settings)),
                  GetParam().slack)
            << width << "x" << height;
    }
}

TEST_P(FiltersFormula, APartIsThatPartOfTheWhole)
{
    const auto picture = makePicture(700, 300, false, 6);
    const auto whole = filtered(*picture, GetParam().settings);
    std::mt19937 random(9);
    for (int round = 0; round < 12; ++round) {
        PixelBox part{int(random() % 690), int(random() % 290), 0, 0};
        part.x1 = part.x0 + 1 + int(random() % unsigned(700 - part.x0));
        part.y1 = part.y0 + 1 + int(random() % unsigned(300 - part.y0));
        auto out = BitmapRep::create(700, 300);
        applyFilters(std::as_const(*picture).view(), out->view(), GetParam().settings, part);
        for (int y = 0; y < 300; ++y)
            for (int x = 0; x < 700; ++x)
                ASSERT_EQ(out->view().row(y)[x], part.contains(x, y) ? whole->view().row(y)[x] : 0u)
                    << x << "," << y << " of part " << part.x0 << "," << part.y0 << " to " << part.x1 << "," << part.y1;
    }
}

TEST_P(FiltersFormula, AFlatColourWithoutColourStepsStays)
{
    FilterSettings settings = GetParam().settings;
    settings.hueAngle = 0, settings.saturation = 1, settings.brightness = 0, settings.contrast = 1;
    for (const std::uint32_t word : {0xFFFFFFFFu, 0x000000FFu, 0x7F0180FFu, 0x4D4C0180u, 0x00000000u, 0x01010101u}) {
        auto picture = BitmapRep::create(300, 50);
        for (int y = 0; y < 50; ++y) std::fill_n(picture->view().row(y), 300, word);
        const auto out = filtered(*picture, settings);
        for (int y = 0; y < 50; ++y)
            for (int x = 0; x < 300; ++x) ASSERT_EQ(out->view().row(y)[x], word) << x << "," << y;
    }
}

INSTANTIATE_TEST_SUITE_P(
    Settings, FiltersFormula,
    testing::Values(
        Case{"HueThird", {.hueAngle = float(2 * std::numbers::pi / 3)}, 0.51},
        Case{"HueSmall", {.hueAngle = 0.3f}, 0.51}, Case{"HueLeast", {.hueAngle = -3.14f}, 0.51},
        Case{"Gray", {.saturation = 0}, 0.51}, Case{"Saturated", {.saturation = 2}, 0.51},
        Case{"Brighter", {.brightness = 0.25f}, 0.51}, Case{"Darkest", {.brightness = -1}, 0.51},
        Case{"Contrast", {.contrast = 1.7f}, 0.51}, Case{"ContrastMost", {.contrast = 4}, 0.51},
        Case{"Flat", {.contrast = 0}, 0.51},
        Case{"AllColour", {.hueAngle = 1, .saturation = 1.5f, .brightness = 0.1f, .contrast = 1.3f}, 0.51},
        Case{"UnsharpLeast", {.unsharpIntensity = 0.01f}, 0.6}, Case{"UnsharpMost", {.unsharpIntensity = 2}, 2},
        Case{"UnsharpBackwards", {.unsharpIntensity = -0.5f}, 1}, Case{"BlurLeast", {.blurRadius = 0.05f}, 0.51},
        Case{"BlurHalf", {.blurRadius = 0.5f}, 0.8}, Case{"BlurOne", {.blurRadius = 1}, 1},
        Case{"BlurWidestDirect", {.blurRadius = 2.35f}, 1.2}, Case{"BlurJustHalved", {.blurRadius = 2.37f}, 1.2},
        Case{"BlurFour", {.blurRadius = 4}, 1}, Case{"BlurJustHalvedTwice", {.blurRadius = 4.97f}, 1},
        Case{"BlurEight", {.blurRadius = 8}, 1}, Case{"BlurJustHalvedThrice", {.blurRadius = 10.06f}, 1},
        Case{"BlurTen", {.blurRadius = 10}, 1}, Case{"BlurThirty", {.blurRadius = 30}, 1},
        Case{"AllAndUnsharp",
             {.hueAngle = -0.7f, .saturation = 1.2f, .brightness = -0.05f, .contrast = 1.4f, .unsharpIntensity = 1},
             1.5},
        Case{"AllAndBlur",
             {.hueAngle = 2, .saturation = 0.5f, .brightness = 0.2f, .contrast = 0.8f, .blurRadius = 2.5f},
             1.2}),
    [](const auto& one) { return std::string(one.param.name); });

TEST(Filters, NeutralSettingsAreAnExactCopy)
{
    const auto picture = makePicture(333, 77, false, 7);
    const auto out = filtered(*picture, {});
    for (int y = 0; y < 77; ++y)
        ASSERT_EQ(std::memcmp(out->view().row(y), picture->view().row(y), 333 * 4), 0) << "row " << y;
}

TEST(Filters, AThirdOfATurnLeadsFromRedToGreen)
{
    auto picture = BitmapRep::create(1, 1);
    picture->view().row(0)[0] = 0x0000FFFFu; // alpha and red
    const auto out = filtered(*picture, {.hueAngle = float(2 * std::numbers::pi / 3)});
    EXPECT_EQ(out->view().row(0)[0], 0x00FF00FFu);
}

TEST(Filters, GraysDoNotTurn)
{
    auto picture = BitmapRep::create(256, 1);
    for (int x = 0; x < 256; ++x) picture->view().row(0)[x] = 0xFFu | std::uint32_t(x) * 0x01010100u;
    for (const float angle : {0.5f, 1.57f, 3.14f, -2.0f}) {
        const auto out = filtered(*picture, {.hueAngle = angle, .saturation = 1.8f});
        for (int x = 0; x < 256; ++x) ASSERT_EQ(out->view().row(0)[x], picture->view().row(0)[x]) << angle;
    }
}

TEST(Filters, BetweenColourStepsNothingIsClamped)
{
    // Brightness carries white beyond one, and contrast fetches it back.
    auto picture = BitmapRep::create(1, 1);
    picture->view().row(0)[0] = 0xFFFFFFFFu;
    const auto out = filtered(*picture, {.brightness = 0.5f, .contrast = 0.25f});
    const std::uint8_t* p = out->view().pixel(0, 0);
    EXPECT_EQ(p[1], 191); // (1.5 - 0.5) * 0.25 + 0.5
    EXPECT_EQ(p[0], 255);
}

TEST(Filters, AShadedEdgeOfOneColourKeepsThatColour)
{
    // A red shape with a soft edge: blurred, its pixels are all still pure red, and none is darker than its alpha.
    auto picture = BitmapRep::create(120, 60);
    for (int y = 0; y < 60; ++y)
        for (int x = 0; x < 120; ++x) {
            const int alpha = std::clamp((x - 30) * 9, 0, 255);
            picture->view().row(y)[x] = std::uint32_t(alpha) * 0x0101u;
        }
    for (const FilterSettings& settings : {FilterSettings{.unsharpIntensity = 2}, FilterSettings{.blurRadius = 3}}) {
        const auto out = filtered(*picture, settings);
        for (int y = 0; y < 60; ++y)
            for (int x = 0; x < 120; ++x) {
                const std::uint8_t* p = out->view().pixel(x, y);
                ASSERT_EQ(p[1], p[0]) << x << "," << y;
                ASSERT_EQ(p[2], 0);
                ASSERT_EQ(p[3], 0);
            }
    }
}

TEST(Filters, UnsharpThenBlurIsTheChainOfBoth)
{
    const auto picture = makePicture(90, 70, true, 8);
    const FilterSettings both{.unsharpIntensity = 1, .blurRadius = 1.5f};
    EXPECT_LE(worstDifference(*filtered(*picture, both), reference(std::as_const(*picture).view(), both)), 1.5);
}

TEST(Filters, SettingsThatAreNoNumbersLeaveValidPixels)
{
    const auto picture = makePicture(64, 16, false, 11);
    for (const float bad : {float(NAN), float(INFINITY), -float(INFINITY)})
        for (const FilterSettings& settings :
             {FilterSettings{.hueAngle = bad}, FilterSettings{.saturation = bad}, FilterSettings{.contrast = bad},
              FilterSettings{.unsharpIntensity = bad}, FilterSettings{.blurRadius = bad}}) {
            const auto out = filtered(*picture, settings);
            for (int x = 0; x < 64; ++x) {
                const std::uint8_t* p = out->view().pixel(x, 3);
                ASSERT_EQ(p[0], picture->view().pixel(x, 3)[0]);
                for (int c = 1; c < 4; ++c) ASSERT_LE(p[c], p[0]);
            }
        }
}

TEST(Filters, EveryProcessorGivesTheSameBytes)
{
    for (const bool opaque : {true, false}) {
        const auto picture = makePicture(301, 90, opaque, 10);
        for (const double sigma : {0.6, 2.5, 5.0, 9.0})
            for (const bool sharpen : {false, true}) {
                filters::BlurJob job;
                job.sigma = sigma;
                job.sharpen = sharpen;
                job.amount = {20000, 1};
                std::vector<std::uint32_t> first;
                test::onEveryTarget([&] {
                    auto out = BitmapRep::create(301, 90);
                    filters::blurPart(std::as_const(*picture).view(), out->view(), job, out->view().box());
                    std::vector<std::uint32_t> pixels;
                    for (int y = 0; y < 90; ++y)
                        pixels.insert(pixels.end(), out->view().row(y), out->view().row(y) + 301);
                    if (first.empty()) first = pixels;
                    ASSERT_EQ(pixels, first) << "sigma " << sigma << (sharpen ? ", sharpened" : "");
                });
            }
    }
}

} // namespace
