// SPDX-License-Identifier: GPL-3.0-or-later
/// Structural similarity, against the formula written out, and what it is asked for.
#include "imageops/Likeness.h"
#include "base/BitmapRep.h"
#include "support/EveryTarget.h"
#include <algorithm>
#include <gtest/gtest.h>
#include <random>

using namespace zp;

namespace
{

std::shared_ptr<BitmapRep> noise(int width, int height, unsigned seed, int depth)
{
    auto rep = BitmapRep::create(width, height);
    std::mt19937 random(seed);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            std::uint8_t* const p = rep->view().rowData(y) + 4 * std::ptrdiff_t{x};
            p[0] = 255;
            for (int c = 1; c < 4; ++c)
                p[c] = std::uint8_t((x * 3 + y) % (256 - depth) + int(random() % unsigned(depth)));
        }
    return rep;
}

double brightness(const std::uint8_t* p) { return (77 * p[1] + 150 * p[2] + 29 * p[3] + 128) / 256 + (255 - p[0]); }

/// Mean of all windows, one after the other.
double plainMean(const BitmapRep& a, const BitmapRep& b)
{
    double sum = 0;
    int windows = 0;
    for (int top = 0; top + 8 <= a.pixelsHigh(); top += 4)
        for (int left = 0; left + 8 <= a.pixelsWide(); left += 4, ++windows) {
            double x = 0, y = 0, xx = 0, yy = 0, xy = 0;
            for (int i = 0; i < 64; ++i) {
                const std::ptrdiff_t at = 4 * std::ptrdiff_t{left + i % 8};
                const double u = brightness(a.view().rowData(top + i / 8) + at),
                             v = brightness(b.view().rowData(top + i / 8) + at);
                x += u / 64, y += v / 64, xx += u * u / 64, yy += v * v / 64, xy += u * v / 64;
            }
            sum += (2 * x * y + 6.5025) * (2 * (xy - x * y) + 58.5225) /
                   ((x * x + y * y + 6.5025) * (xx - x * x + yy - y * y + 58.5225));
        }
    return sum / windows;
}

} // namespace

TEST(Likeness, IsOneForTheSamePicture)
{
    for (const int side : {1, 7, 8, 9, 100}) {
        const auto picture = noise(side, side + 3, 1, 200);
        const Likeness same = likenessOf(std::as_const(*picture).view(), std::as_const(*picture).view());
        EXPECT_NEAR(same.mean, 1, 1e-12) << side;
        EXPECT_NEAR(same.worst, 1, 1e-12) << side;
    }
}

TEST(Likeness, IsTheFormulasOnEveryVectorUnit)
{
    struct Case {
        int width, height;
    };
    for (const Case& c : {Case{8, 8}, Case{11, 9}, Case{64, 64}, Case{203, 150}, Case{517, 75}}) {
        const auto a = noise(c.width, c.height, 2, 100), b = noise(c.width, c.height, 3, 100);
        const double expected = plainMean(*a, *b);
        test::onEveryTarget([&] {
            const Likeness found = likenessOf(std::as_const(*a).view(), std::as_const(*b).view());
            EXPECT_NEAR(found.mean, expected, 1e-9) << c.width << " x " << c.height;
            EXPECT_LE(found.worst, found.mean + 1e-12);
        });
    }
}

TEST(Likeness, SeesWhereAPatternWasLost)
{
    const auto before = noise(640, 640, 4, 120), after = noise(640, 640, 4, 120);
    for (int y = 256; y < 320; ++y) std::fill_n(after->view().rowData(y) + 4 * 256, 4 * 64, std::uint8_t(255));
    const Likeness found = likenessOf(std::as_const(*before).view(), std::as_const(*after).view());
    EXPECT_GT(found.mean, 0.98);
    EXPECT_LT(found.worst, 0.2);
}

TEST(Likeness, TakesTransparentPartsForWhite)
{
    const auto clear = BitmapRep::create(32, 32), white = BitmapRep::create(32, 32);
    for (int y = 0; y < 32; ++y) std::fill_n(white->view().rowData(y), 4 * 32, std::uint8_t(255));
    EXPECT_NEAR(likenessOf(std::as_const(*clear).view(), std::as_const(*white).view()).worst, 1, 1e-12);
}

TEST(Likeness, OfSpecksIsTheirGreatestDifference)
{
    const auto a = BitmapRep::create(3, 5), b = BitmapRep::create(3, 5);
    b->view().rowData(4)[4 * 2 + 1] = 51;
    EXPECT_NEAR(likenessOf(std::as_const(*a).view(), std::as_const(*b).view()).mean, 0.8, 1e-12);
}
