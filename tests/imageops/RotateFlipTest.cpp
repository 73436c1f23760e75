// SPDX-License-Identifier: GPL-3.0-or-later
/// Every pixel of a turned or mirrored picture stands where the table of moves says, in sizes around every block's
/// edge.
#include "imageops/RotateFlip.h"
#include "base/BitmapRep.h"
#include "support/EveryTarget.h"
#include <gtest/gtest.h>
#include <random>
#include <tuple>
#include <vector>

using namespace zp;

namespace
{

class Picture
{
public:
    Picture(int width, int height, unsigned seed = 0)
        : mWords(std::size_t(BitmapRep::rowBytesForWidth(width) / 4 * height) + 16), mWidth(width), mHeight(height)
    {
        std::mt19937 random(seed);
        for (std::uint32_t& word : mWords) word = seed ? random() : 0x5A5A5A5A;
    }
    /// 64-byte aligned, as the canvas's pixels are.
    BitmapView view()
    {
        auto address = reinterpret_cast<std::uintptr_t>(mWords.data());
        auto* const data = reinterpret_cast<std::uint8_t*>((address + 63) / 64 * 64);
        return {data, mWidth, mHeight, BitmapRep::rowBytesForWidth(mWidth)};
    }
    std::vector<std::uint32_t> pixels()
    {
        std::vector<std::uint32_t> result;
        for (int y = 0; y < mHeight; ++y) result.insert(result.end(), view().row(y), view().row(y) + mWidth);
        return result;
    }
    bool spareUntouched()
    {
        for (int y = 0; y < mHeight; ++y)
            for (int x = mWidth; x < int(view().rowBytes / 4); ++x)
                if (view().row(y)[x] != 0x5A5A5A5A) return false;
        return true;
    }

private:
    std::vector<std::uint32_t> mWords;
    int mWidth, mHeight;
};

class Moves : public testing::TestWithParam<std::tuple<int, int>>
{
protected:
    int w = std::get<0>(GetParam()), h = std::get<1>(GetParam());
    Picture source{w, h, unsigned(1000 * w + h)};
};

TEST_P(Moves, CounterClockwisePutsTheTopEdgeLeft)
{
    test::onEveryTarget([&] {
        Picture turned(h, w);
        rotateCounterClockwise(source.view(), turned.view());
        for (int v = 0; v < h; ++v)
            for (int u = 0; u < w; ++u)
                ASSERT_EQ(turned.view().row(w - 1 - u)[v], source.view().row(v)[u]) << u << ", " << v;
        EXPECT_TRUE(turned.spareUntouched());
    });
}

TEST_P(Moves, ClockwisePutsTheTopEdgeRight)
{
    test::onEveryTarget([&] {
        Picture turned(h, w);
        rotateClockwise(source.view(), turned.view());
        for (int v = 0; v < h; ++v)
            for (int u = 0; u < w; ++u)
                ASSERT_EQ(turned.view().row(u)[h - 1 - v], source.view().row(v)[u]) << u << ", " << v;
        EXPECT_TRUE(turned.spareUntouched());
    });
}

TEST_P(Moves, FlipsExchangeTheSidesAndTwoOfThemNothing)
{
    test::onEveryTarget([&] {
        const auto before = source.pixels();
        const auto at = [&](int x, int y) { return before[std::size_t(y) * std::size_t(w) + std::size_t(x)]; };
        flipHorizontally(source.view());
        for (int y = 0; y < h; ++y)
            for (int x = 0; x < w; ++x) ASSERT_EQ(source.view().row(y)[w - 1 - x], at(x, y)) << x << ", " << y;
        flipHorizontally(source.view());
        ASSERT_EQ(source.pixels(), before);
        flipVertically(source.view());
        for (int y = 0; y < h; ++y)
            for (int x = 0; x < w; ++x) ASSERT_EQ(source.view().row(h - 1 - y)[x], at(x, y)) << x << ", " << y;
        flipVertically(source.view());
        ASSERT_EQ(source.pixels(), before);
    });
}

TEST_P(Moves, FourQuarterTurnsAreNone)
{
    Picture a(h, w), b(w, h);
    const auto before = source.pixels();
    rotateClockwise(source.view(), a.view());
    rotateClockwise(a.view(), b.view());
    rotateClockwise(b.view(), a.view());
    rotateClockwise(a.view(), b.view());
    EXPECT_EQ(b.pixels(), before);
    rotateCounterClockwise(b.view(), a.view());
    rotateClockwise(a.view(), b.view());
    EXPECT_EQ(b.pixels(), before);
}

INSTANTIATE_TEST_SUITE_P(Sizes, Moves,
                         testing::Combine(testing::Values(1, 2, 3, 15, 16, 17, 31, 33, 64, 100, 257),
                                          testing::Values(1, 2, 7, 16, 17, 32, 47, 200)),
                         [](const auto& row) {
                             return std::to_string(std::get<0>(row.param)) + "x" +
                                    std::to_string(std::get<1>(row.param));
                         });
// Large enough for the stores that go past the cache.
INSTANTIATE_TEST_SUITE_P(Large, Moves, testing::Combine(testing::Values(1999, 2000), testing::Values(1503)),
                         [](const auto& row) {
                             return std::to_string(std::get<0>(row.param)) + "x" +
                                    std::to_string(std::get<1>(row.param));
                         });

TEST(Rotate, TheTopLeftOfATurnedThreeByTwoIsTheOldTopRight)
{
    Picture source(3, 2, 9), turned(2, 3);
    rotateCounterClockwise(source.view(), turned.view());
    EXPECT_EQ(turned.view().row(0)[0], source.view().row(0)[2]);
    EXPECT_EQ(turned.view().width, 2);
}

TEST(Rotate, NothingIsTurnedWithoutPixels)
{
    rotateClockwise({}, {});
    rotateCounterClockwise({}, {});
    flipHorizontally({});
    flipVertically({});
    Picture one(1, 1, 3);
    const auto before = one.pixels();
    flipVertically(one.view());
    EXPECT_EQ(one.pixels(), before);
}

} // namespace
