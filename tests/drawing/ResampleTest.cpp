// SPDX-License-Identifier: GPL-3.0-or-later
/// Resampling against its definition in double precision.
#include "drawing/Resample.h"
#include <algorithm>
#include <cmath>
#include <cstring>
#include <gtest/gtest.h>
#include <random>
#include <vector>

using namespace zp;

namespace
{

struct Picture {
    int width, height;
    std::ptrdiff_t rowBytes;
    std::vector<std::uint8_t> bytes;

    Picture(int w, int h, std::uint8_t fill = 0)
        : width(w), height(h), rowBytes(64 * (w / 16) + 64), bytes(std::size_t(rowBytes) * std::size_t(h), fill)
    {
    }
    BitmapView view() { return {bytes.data(), width, height, rowBytes}; }
    ConstBitmapView view() const { return {bytes.data(), width, height, rowBytes}; }
};

enum class Kind { Noise, Edges, Opaque };

Picture makePicture(int width, int height, Kind kind, unsigned seed)
{
    Picture picture(width, height);
    std::mt19937 random(seed);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            std::uint8_t* p = picture.view().pixel(x, y);
            const bool on = (x / 5 + y / 3) % 2 == 0;
            p[0] = kind == Kind::Opaque ? 255 : kind == Kind::Edges ? (on ? 255 : 0) : std::uint8_t(random());
            for (int c = 1; c < 4; ++c) p[c] = kind == Kind::Edges ? p[0] : std::uint8_t(random() % (p[0] + 1u));
        }
    return picture;
}

double cubic(double t)
{
    t = std::abs(t);
    if (t < 1) return 1.5 * t * t * t - 2.5 * t * t + 1;
    return t < 2 ? -0.5 * t * t * t + 2.5 * t * t - 4 * t + 2 : 0;
}

/// Share of source position @p s in destination position @p d, the ends repeated.
std::vector<double> shares(int length, int wanted, int d)
{
    std::vector<double> result(std::size_t(length), 0.0);
    if (wanted == length) {
        result[std::size_t(d)] = 1;
    } else if (wanted < length) {
        const double begin = double(d) * length / wanted, end = double(d + 1) * length / wanted;
        for (int s = 0; s < length; ++s)
            result[std::size_t(s)] = std::max(0.0, std::min(end, s + 1.0) - std::max(begin, double(s))) / (end - begin);
    } else {
        const double middle = (d + 0.5) * length / wanted - 0.5;
        for (int s = int(std::floor(middle)) - 1; s <= int(std::floor(middle)) + 2; ++s)
            result[std::size_t(std::clamp(s, 0, length - 1))] += cubic(middle - s);
    }
    return result;
}

double worstDifference(const Picture& source, const Picture& result)
{
    std::vector<std::vector<double>> columns;
    for (int x = 0; x < result.width; ++x) columns.push_back(shares(source.width, result.width, x));
    double worst = 0;
    for (int y = 0; y < result.height; ++y) {
        const std::vector<double> rows = shares(source.height, result.height, y);
        std::vector<double> line(std::size_t(source.width) * 4, 0.0);
        for (int s = 0; s < source.height; ++s) {
            if (rows[std::size_t(s)] == 0) continue;
            for (int i = 0; i < 4 * source.width; ++i)
                line[std::size_t(i)] += rows[std::size_t(s)] * source.view().rowData(s)[i];
        }
        for (int x = 0; x < result.width; ++x) {
            double v[4] = {0, 0, 0, 0};
            for (int s = 0; s < source.width; ++s)
                for (int c = 0; c < 4; ++c)
                    v[c] += columns[std::size_t(x)][std::size_t(s)] * line[std::size_t(4 * s + c)];
            const std::uint8_t* p = result.view().pixel(x, y);
            const double alpha = std::clamp(v[0], 0.0, 255.0);
            worst = std::max(worst, std::abs(p[0] - alpha));
            for (int c = 1; c < 4; ++c) {
                worst = std::max(worst, std::abs(p[c] - std::clamp(v[c], 0.0, alpha)));
                EXPECT_LE(p[c], p[0]) << x << "," << y;
            }
        }
    }
    return worst;
}

struct Sizes {
    int width, height, newWidth, newHeight;
};

class ResampleSizes : public testing::TestWithParam<Sizes>
{
};

TEST_P(ResampleSizes, IsTheMeanOrTheCubic)
{
    const Sizes s = GetParam();
    for (const Kind kind : {Kind::Noise, Kind::Edges, Kind::Opaque}) {
        const Picture source = makePicture(s.width, s.height, kind, 1);
        Picture result(s.newWidth, s.newHeight);
        resample(source.view(), result.view());
        EXPECT_LE(worstDifference(source, result), 1.0) << int(kind);
    }
}

TEST_P(ResampleSizes, AFlatPictureStaysFlat)
{
    const Sizes s = GetParam();
    for (const std::uint32_t word : {0xFFFFFFFFu, 0x4D01FEFFu, 0x40302080u, 0u, 0x01010101u}) {
        Picture source(s.width, s.height), result(s.newWidth, s.newHeight);
        for (int y = 0; y < s.height; ++y) std::fill_n(source.view().row(y), s.width, word);
        resample(std::as_const(source).view(), result.view());
        for (int y = 0; y < s.newHeight; ++y)
            for (int x = 0; x < s.newWidth; ++x) ASSERT_EQ(result.view().row(y)[x], word) << x << "," << y;
    }
}

TEST_P(ResampleSizes, WritesNothingBesideThePicture)
{
    const Sizes s = GetParam();
    const Picture source = makePicture(s.width, s.height, Kind::Noise, 2);
    Picture result(s.newWidth, s.newHeight, 0xA5);
    resample(source.view(), result.view());
    for (int y = 0; y < s.newHeight; ++y)
        for (std::ptrdiff_t i = 4 * s.newWidth; i < result.rowBytes; ++i) ASSERT_EQ(result.view().rowData(y)[i], 0xA5);
}

INSTANTIATE_TEST_SUITE_P(Sizes, ResampleSizes,
                         testing::Values(Sizes{100, 80, 50, 40}, Sizes{100, 80, 25, 20}, Sizes{100, 80, 33, 27},
                                         Sizes{100, 80, 99, 79}, Sizes{100, 80, 1, 1}, Sizes{100, 80, 200, 160},
                                         Sizes{100, 80, 101, 81}, Sizes{37, 29, 310, 300}, Sizes{100, 80, 40, 200},
                                         Sizes{100, 80, 300, 20}, Sizes{100, 80, 100, 33}, Sizes{100, 80, 100, 133},
                                         Sizes{100, 80, 61, 80}, Sizes{100, 80, 161, 80}, Sizes{1, 1, 20, 30},
                                         Sizes{3, 2, 7, 9}, Sizes{1, 50, 1, 20}, Sizes{2000, 3, 7, 3},
                                         Sizes{900, 700, 45, 35}, Sizes{700, 3, 20, 50}));

TEST(Resample, TheSameSizeIsTheSamePixels)
{
    const Picture source = makePicture(123, 45, Kind::Noise, 3);
    Picture result(123, 45);
    resample(source.view(), result.view());
    for (int y = 0; y < 45; ++y) ASSERT_EQ(std::memcmp(result.view().rowData(y), source.view().rowData(y), 123 * 4), 0);
}

TEST(Resample, AnEmptyPictureDoesNothing)
{
    Picture result(4, 4, 7);
    resample(ConstBitmapView{}, result.view());
    EXPECT_EQ(result.bytes[0], 7);
    const Picture source(4, 4);
    resample(source.view(), BitmapView{});
}

} // namespace
