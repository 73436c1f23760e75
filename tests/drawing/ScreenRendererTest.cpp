// SPDX-License-Identifier: GPL-3.0-or-later
/// The screen's pixels against their definition, computed the slow way in double precision.
#include "drawing/ScreenRenderer.h"
#include <cmath>
#include <gtest/gtest.h>
#include <random>
#include <vector>

using namespace zp;

namespace
{

constexpr std::uint32_t kOutside = 0xFF123456;

struct Picture {
    int width, height;
    std::ptrdiff_t rowBytes;
    std::vector<std::uint8_t> bytes;

    Picture(int w, int h)
        : width(w), height(h), rowBytes(64 * (w / 16) + 64), bytes(std::size_t(rowBytes) * std::size_t(h))
    {
    }
    ConstBitmapView view() const { return {bytes.data(), width, height, rowBytes}; }
    BitmapView view() { return {bytes.data(), width, height, rowBytes}; }
};

Picture makeNoise(int width, int height, unsigned seed)
{
    Picture picture(width, height);
    std::mt19937 random(seed);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            std::uint8_t* p = picture.view().pixel(x, y);
            const unsigned kind = random() % 4;
            p[0] = kind == 0 ? 255 : kind == 1 ? 0 : std::uint8_t(random());
            for (int c = 1; c < 4; ++c) p[c] = std::uint8_t(random() % (p[0] + 1u));
        }
    return picture;
}

struct Reference {
    double red, green, blue;
    bool inside;
};

double snapped(double v) { return std::abs(v - std::round(v)) < 1e-6 ? std::round(v) : v; }

/// What the device pixel shows by its definition.
Reference expected(const Picture& picture, int X, int Y, double scale)
{
    double sum[4] = {0, 0, 0, 0}, area = 0;
    const auto add = [&](int x, int y, double share) {
        if (x < 0 || y < 0 || x >= picture.width || y >= picture.height || share <= 0) return;
        for (int c = 0; c < 4; ++c) sum[c] += share * picture.view().pixel(x, y)[c];
        area += share;
    };
    if (scale >= 1) {
        add(int(std::floor((X + 0.5) / scale)), int(std::floor((Y + 0.5) / scale)), 1);
    } else {
        const double x0 = snapped(X / scale), x1 = snapped((X + 1) / scale);
        const double y0 = snapped(Y / scale), y1 = snapped((Y + 1) / scale);
        for (int y = int(std::floor(y0)); y < y1; ++y)
            for (int x = int(std::floor(x0)); x < x1; ++x)
                add(x, y,
                    (std::min<double>(x + 1, x1) - std::max<double>(x, x0)) *
                        (std::min<double>(y + 1, y1) - std::max<double>(y, y0)));
    }
    if (area <= 0) return {0, 0, 0, false};
    for (double& s : sum) s /= area;
    const double gray = (255 - sum[0]) * 128 / 255;
    return {sum[1] + gray, sum[2] + gray, sum[3] + gray, true};
}

std::vector<std::uint32_t> render(const Picture& picture, PixelBox box, double scale)
{
    std::vector<std::uint32_t> out(std::size_t(box.width()) * std::size_t(box.height()), 0xDEADBEEF);
    renderToScreen(std::as_const(picture).view(), out.data(), box.width(), box, scale, kOutside);
    return out;
}

class ScreenRendererScales : public testing::TestWithParam<double>
{
};

TEST_P(ScreenRendererScales, EachPixelIsTheMeanOfItsArea)
{
    const double scale = GetParam();
    const Picture picture = makeNoise(203, 117, 7);
    const int width = int(std::ceil(203 * scale)) + 5, height = int(std::ceil(117 * scale)) + 4;
    const PixelBox box{-3, -2, std::min(width, 700), std::min(height, 500)};
    const std::vector<std::uint32_t> out = render(picture, box, scale);
    const double slack = scale >= 1 ? 0.5 : 1.25; // the means of colour and alpha are rounded, then the grey
    for (int y = box.y0; y < box.y1; ++y)
        for (int x = box.x0; x < box.x1; ++x) {
            const std::uint32_t word = out[std::size_t((y - box.y0) * box.width() + (x - box.x0))];
            const Reference want = expected(picture, x, y, scale);
            if (!want.inside) {
                ASSERT_EQ(word, kOutside) << x << "," << y;
                continue;
            }
            ASSERT_EQ(word >> 24, 255u);
            ASSERT_NEAR(int(word >> 16 & 255), want.red, slack + 0.01) << x << "," << y;
            ASSERT_NEAR(int(word >> 8 & 255), want.green, slack + 0.01) << x << "," << y;
            ASSERT_NEAR(int(word & 255), want.blue, slack + 0.01) << x << "," << y;
        }
}

TEST_P(ScreenRendererScales, ABoxCutInPiecesIsTheSame)
{
    const double scale = GetParam();
    const Picture picture = makeNoise(203, 117, 8);
    const PixelBox box{-2, -1, std::min(int(203 * scale) + 4, 300), std::min(int(117 * scale) + 3, 300)};
    const std::vector<std::uint32_t> whole = render(picture, box, scale);
    std::mt19937 random(3);
    for (int round = 0; round < 40; ++round) {
        PixelBox part;
        part.x0 = box.x0 + int(random() % unsigned(box.width())),
        part.y0 = box.y0 + int(random() % unsigned(box.height()));
        part.x1 = part.x0 + 1 + int(random() % unsigned(box.x1 - part.x0));
        part.y1 = part.y0 + 1 + int(random() % unsigned(box.y1 - part.y0));
        const std::vector<std::uint32_t> piece = render(picture, part, scale);
        for (int y = part.y0; y < part.y1; ++y)
            for (int x = part.x0; x < part.x1; ++x)
                ASSERT_EQ(piece[std::size_t((y - part.y0) * part.width() + (x - part.x0))],
                          whole[std::size_t((y - box.y0) * box.width() + (x - box.x0))])
                    << x << "," << y << " in a part from " << part.x0 << "," << part.y0;
    }
}

INSTANTIATE_TEST_SUITE_P(Zooms, ScreenRendererScales,
                         testing::Values(0.01, 0.05, 0.0625, 0.1, 0.125, 0.25, 1.0 / 3, 0.4, 0.5, double(0.6667f), 0.75,
                                         0.99, 1.0, 1.25, 1.5, 2.0, 3.0, 4.0, 8.0, 13.7));

TEST(ScreenRenderer, OpaquePixelsAreOnlySwapped)
{
    Picture picture(300, 4);
    std::mt19937 random(5);
    for (int y = 0; y < 4; ++y)
        for (int x = 0; x < 300; ++x) {
            picture.view().pixel(x, y)[0] = 255;
            for (int c = 1; c < 4; ++c) picture.view().pixel(x, y)[c] = std::uint8_t(random());
        }
    const std::vector<std::uint32_t> out = render(picture, {0, 0, 300, 4}, 1);
    for (int y = 0; y < 4; ++y)
        for (int x = 0; x < 300; ++x) {
            const std::uint8_t* p = std::as_const(picture).view().pixel(x, y);
            ASSERT_EQ(out[std::size_t(y * 300 + x)],
                      0xFF000000u | std::uint32_t(p[1]) << 16 | std::uint32_t(p[2]) << 8 | p[3]);
        }
}

TEST(ScreenRenderer, TransparentPlacesShowMidGray)
{
    const Picture picture(40, 40);
    for (const double scale : {0.25, 0.3, 1.0, 4.0})
        for (const std::uint32_t word : render(picture, {0, 0, 10, 10}, scale)) ASSERT_EQ(word, 0xFF808080u) << scale;
}

TEST(ScreenRenderer, AFlatColourStaysAtEveryScale)
{
    Picture picture(500, 400);
    for (int y = 0; y < 400; ++y)
        for (int x = 0; x < 500; ++x) {
            std::uint8_t* p = picture.view().pixel(x, y);
            p[0] = 255, p[1] = 1, p[2] = 254, p[3] = 77;
        }
    for (double scale = 0.011; scale < 1; scale *= 1.07)
        for (const std::uint32_t word : render(picture, {0, 0, int(500 * scale), int(400 * scale)}, scale))
            ASSERT_EQ(word, 0xFF01FE4Du) << scale;
}

TEST(ScreenRenderer, ScalesThatAreNoneShowOnlyTheOutside)
{
    const Picture picture = makeNoise(20, 20, 1);
    for (const double scale : {0.0, -1.0, double(NAN), double(INFINITY)})
        for (const std::uint32_t word : render(picture, {-1, -1, 5, 5}, scale)) ASSERT_EQ(word, kOutside);
}

TEST(ScreenRenderer, AnEmptyPictureShowsOnlyTheOutside)
{
    std::vector<std::uint32_t> out(9);
    renderToScreen({}, out.data(), 3, {0, 0, 3, 3}, 1, kOutside);
    for (const std::uint32_t word : out) EXPECT_EQ(word, kOutside);
}

TEST(ScreenRenderer, WritesNothingBesideTheBox)
{
    const Picture picture = makeNoise(64, 64, 2);
    for (const double scale : {0.3, 0.5, 1.0, 3.0}) {
        std::vector<std::uint32_t> out(12 * 10, 1);
        renderToScreen(std::as_const(picture).view(), out.data() + 12 + 1, 12, {2, 3, 12, 11}, scale, kOutside);
        for (int y = 0; y < 10; ++y)
            for (int x = 0; x < 12; ++x)
                if (y == 0 || y == 9 || x == 0 || x == 11) {
                    ASSERT_EQ(out[std::size_t(y * 12 + x)], 1u);
                } else {
                    ASSERT_NE(out[std::size_t(y * 12 + x)], 1u);
                }
    }
}

} // namespace
