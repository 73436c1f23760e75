// SPDX-License-Identifier: GPL-3.0-or-later
/// The mask tracer against known pictures and against the plain way of doing it.
#include "selection/MaskPictures.h"
#include "selection/OutlineCorners.h"
#include "selection/OutlineTracer.h"
#include "selection/ReferenceTracer.h"
#include "selection/ZPPathBuilder.h"
#include <cstdlib>
#include <gmock/gmock.h>

using namespace zp;
using testing::ElementsAre;

namespace
{

BezierPath traced(const TestMask& mask) { return ZPPathBuilder(mask.view()).path(); }

std::string text(const BezierPath& path)
{
    std::string text;
    path.forEach([&](PathElement kind, const Point* p) {
        text += "MLCZ"[int(kind)];
        if (kind != PathElement::ClosePath) text += std::to_string(int(p->x)) + "," + std::to_string(int(p->y)) + " ";
    });
    return text;
}

/// The mask that a traced path stands for, its offset taken back.
TestMask covered(const BezierPath& path, int width, int height)
{
    TestMask mask(width, height);
    const auto loops = subpaths(path);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            if (holds(loops, WindingRule::EvenOdd, x + 0.5, y + 1.5)) mask.bytes[std::size_t(y * width + x)] = 0;
    return mask;
}

TestMask hardened(TestMask mask)
{
    for (std::uint8_t& m : mask.bytes) m = m == 255 ? 255 : 0;
    return mask;
}

} // namespace

TEST(PathBuilder, OnePixelGivesAClosedSquareOnePixelLower)
{
    TestMask mask(8, 6);
    mask.bytes[2 * 8 + 3] = 0;
    const BezierPath path = traced(mask);
    EXPECT_EQ(text(path), "M3,3 L3,4 L4,4 L4,3 L3,3 Z");
    EXPECT_EQ(path.windingRule(), WindingRule::EvenOdd);
}

TEST(PathBuilder, FullMaskGivesOneRectangleRoundThePicture)
{
    for (const int width : {1, 2, 63, 64, 65, 128, 200}) {
        const TestMask mask(width, 5, 0);
        const std::string w = std::to_string(width);
        EXPECT_EQ(text(traced(mask)), "M0,1 L0,6 L" + w + ",6 L" + w + ",1 L0,1 Z");
    }
}

TEST(PathBuilder, RingGivesTwoSubpathsAndAnUnselectedHole)
{
    const TestMask ring("...../.###./.#.#./.###./.....");
    const BezierPath path = traced(ring);
    EXPECT_EQ(subpaths(path).size(), 2u);
    EXPECT_EQ(covered(path, 5, 5).text(), ring.text());
    EXPECT_FALSE(path.contains({2.5f, 3.5f}));
    EXPECT_TRUE(path.contains({1.5f, 3.5f}));
}

TEST(PathBuilder, DiagonalNeighboursAreTracedThroughTheSharedCorner)
{
    for (const char* picture : {"#./.#", ".#/#."}) {
        const TestMask mask{std::string_view(picture)};
        EXPECT_EQ(covered(traced(mask), 2, 2).text(), picture);
        EXPECT_EQ(text(traced(mask)), text(reference::MaskTracer(mask.view()).path())) << picture;
    }
}

TEST(PathBuilder, NothingInsideGivesAnEmptyPath)
{
    EXPECT_TRUE(traced(TestMask(40, 40)).isEmpty());
    EXPECT_TRUE(ZPPathBuilder(ConstMaskView{}).path().isEmpty());
    EXPECT_TRUE(ZPPathBuilder(ConstMaskView{nullptr, 0, 0, 0}).path().isEmpty());
}

TEST(PathBuilder, Only255IsOutside)
{
    for (int m = 0; m < 256; ++m) {
        const TestMask mask(1, 1, std::uint8_t(m));
        EXPECT_EQ(traced(mask).isEmpty(), m == 255) << m;
    }
}

TEST(PathBuilder, AsksTheMaskOnlyOnce)
{
    TestMask mask(9, 9, 0);
    const ZPPathBuilder builder(mask.view());
    std::fill(mask.bytes.begin(), mask.bytes.end(), std::uint8_t(255));
    EXPECT_EQ(subpaths(builder.path()).size(), 1u);
    EXPECT_EQ(text(builder.path()), text(builder.path()));
}

TEST(PathBuilder, ReadsNothingBetweenTheRows)
{
    std::vector<std::uint8_t> bytes(70 * 4, 0); // the spare bytes look selected
    for (int y = 0; y < 4; ++y) std::fill_n(bytes.begin() + y * 70, 60, std::uint8_t(255));
    EXPECT_TRUE(ZPPathBuilder(ConstMaskView{bytes.data(), 60, 4, 70}).path().isEmpty());
}

TEST(PathBuilder, EqualsThePlainWayOnEveryMaskOfFourByFour)
{
    for (unsigned bits = 0; bits < 1u << 16; ++bits) {
        TestMask mask(4, 4);
        for (int i = 0; i < 16; ++i) mask.bytes[std::size_t(i)] = bits >> i & 1 ? 0 : 255;
        ASSERT_EQ(text(traced(mask)), text(reference::MaskTracer(mask.view()).path())) << mask.text();
    }
}

TEST(PathBuilder, EqualsThePlainWayOnRandomMasks)
{
    std::mt19937 random(4711);
    for (int i = 0; i < 400; ++i) {
        const int width = 1 + int(random() % 150), height = 1 + int(random() % 40);
        const double density = double(random() % 101) / 100;
        const TestMask mask = randomMask(random, width, height, density, int(random() % 3));
        const BezierPath path = traced(mask);
        ASSERT_EQ(text(path), text(reference::MaskTracer(mask.view()).path())) << "round " << i << ": " << mask.text();
        ASSERT_EQ(covered(path, width, height).text(), hardened(mask).text()) << "round " << i;
    }
}

TEST(PathBuilder, EqualsThePlainWayWhereManyThreadsFindTheCorners)
{
    // Pieces of border that run down through all bands, some with bands where no corner lies on their column. The pool
    // asks for the number of threads when it is first used, which is here where each test has a process of its own.
    setenv("ZELPANE_JOBS", "5", 1);
    std::mt19937 random(17);
    for (const double density : {0.5, 0.35}) {
        TestMask mask = randomMask(random, 1000, 700, density, 0);
        for (int y = 0; y < 700; ++y)
            for (int x = 300; x < 600; ++x)
                if (y > 2 && y < 690 && x % 50 < 40) mask.bytes[std::size_t(y * 1000 + x)] = x % 7 < 4 ? 0 : 255;
        ASSERT_EQ(text(traced(mask)), text(reference::MaskTracer(mask.view()).path())) << density;
    }
}

TEST(PathBuilder, PicturesWiderThanSixteenBitsAreTracedAsWell)
{
    TestMask mask(70000, 3);
    for (const int x : {0, 1, 65534, 65535, 65536, 69999}) mask.bytes[std::size_t(70000 + x)] = 0;
    mask.bytes[65533] = 0; // touches the third piece's left end diagonally
    EXPECT_EQ(text(traced(mask)), text(reference::MaskTracer(mask.view()).path()));
}

TEST(OutlineTracer, TellsTheNumberOfCornersBeforehand)
{
    std::mt19937 random(5);
    const TestMask mask = randomMask(random, 200, 100, 0.5, 1);
    std::size_t expected = 0, found = 0;
    traceOutline(
        BitRows::ofSelected(mask.view()), {}, [&](std::span<const Point> loop) { found += loop.size() - 1; },
        [&](std::size_t count) { expected = count; });
    EXPECT_LE(found, expected);
    EXPECT_GT(found, expected / 2);
}
