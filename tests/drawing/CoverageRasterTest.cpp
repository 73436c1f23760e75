// SPDX-License-Identifier: GPL-3.0-or-later
/// A large mask is swept by several cores at once, and must come out as from one.
#include "drawing/CoverageRaster.h"
#include "base/BezierPath.h"
#include "base/BitmapView.h"
#include "drawing/BitmapContext.h"
#include "drawing/CoverageRows.h"
#include <cmath>
#include <cstring>
#include <gtest/gtest.h>
#include <random>

namespace
{

using namespace zp;

constexpr int kWidth = 3000, kHeight = 2500; // several bands

struct Bytes final : CoverageSink {
    std::vector<std::uint8_t> bytes = std::vector<std::uint8_t>(std::size_t(kWidth) * kHeight, 255);

    std::uint8_t* at(int y, int x) { return &bytes[std::size_t(y) * kWidth + std::size_t(x)]; }
    void solid(int y, int x0, int x1) override { std::memset(at(y, x0), 40, std::size_t(x1 - x0)); }
    void partial(int y, int x0, int x1, const std::uint8_t* cover) override
    {
        for (int x = x0; x < x1; ++x) *at(y, x) = movedTowards(*at(y, x), cover[x - x0], 40);
    }
};

BezierPath star(int points)
{
    BezierPath path;
    for (int i = 0; i < points; ++i) {
        const double angle = i * 2 * M_PI * double(points / 2) / points;
        const Point p{float(kWidth / 2 + 1400 * std::cos(angle)), float(kHeight / 2 + 1400 * std::sin(angle))};
        i == 0 ? path.moveTo(p) : path.lineTo(p);
    }
    path.closePath();
    return path;
}

BezierPath scribble()
{
    std::mt19937 random(61);
    BezierPath path;
    const auto anywhere = [&] { return Point{float(random() % 4000) - 500, float(int(random() % 3500)) - 500}; };
    path.moveTo(anywhere());
    for (int i = 0; i < 200; ++i) i % 3 ? path.lineTo(anywhere()) : path.curveTo(anywhere(), anywhere(), anywhere());
    path.closePath();
    return path;
}

TEST(CoverageRaster, BandsGiveWhatOneSweepGives)
{
    for (BezierPath path : {star(31), scribble()})
        for (const auto rule : {WindingRule::NonZero, WindingRule::EvenOdd})
            for (const bool antialias : {true, false}) {
                path.setWindingRule(rule);
                CoverageRaster raster({0, 0, kWidth, kHeight});
                raster.addPath(path, {});
                Bytes whole;
                raster.sweep(rule, antialias, whole);
                std::vector<std::uint8_t> mask(whole.bytes.size(), 255);
                fillPathInMask({mask.data(), kWidth, kHeight, kWidth}, path, 40, antialias);
                ASSERT_TRUE(mask == whole.bytes);
            }
}

} // namespace
